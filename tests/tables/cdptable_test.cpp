// CDP table: the "translated:" flag and the translator calls, the write-back
// after a load that translated something, the row rules of the CSV form and
// both compares.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "common/testenv.h"
#include "netloom/cdptable.h"
#include "netloom/commontablecompareresult.h"

namespace {

using namespace netloom_test;

const std::string kColumns = "ID,Local Interface,Device Name,Interface Name,Interface Address,Platform\n";
const std::string kRow = "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n";

std::string File(const std::string& flag, const std::string& rows) {
  return "version:100,name:core," + flag + "\n" + kColumns + rows;
}

// A translator that writes down every call and answers as told.
struct RecordingParser : ITWTableParsor {
  std::vector<std::string> calls;
  std::function<bool(std::string&, bool&)> onInterface = [](std::string&, bool&) { return false; };
  bool answerOthers = false;
  bool knownAnswer = true;

  bool TranslateLink(std::string& device, std::string& local, std::string& nDevice, std::string& nIf,
                     bool&) override {
    calls.push_back("link " + device + " " + local + " " + nDevice + " " + nIf);
    return answerOthers;
  }
  bool TranslateInterface(std::string& device, std::string& name, bool& changed) override {
    calls.push_back("if " + device + " " + name);
    return onInterface(name, changed);
  }
  bool TranslateDevice(std::string& address, std::string& device, bool&) override {
    calls.push_back("dev " + address + " " + device);
    return answerOthers;
  }
  bool IsKnownAddress(std::string& address) override {
    calls.push_back("known " + address);
    return knownAnswer;
  }
};

CDPTable Load(const std::string& text, ITWTableParsor* parser = nullptr, bool* ok = nullptr) {
  CDPTable t;
  t.SetParser(parser);
  std::istringstream in(text);
  const bool loaded = t.LoadCdpTable(in);
  if (ok) *ok = loaded;
  return t;
}

std::string Saved(CDPTable& t) {
  std::ostringstream out;
  EXPECT_TRUE(t.SaveCdpTable(out));
  return out.str();
}

bool SavedAsTranslated(CDPTable& t) { return Saved(t).find("translated:true") != std::string::npos; }

CDPTableEntry Entry(const std::string& local, const std::string& device, const std::string& nIf,
                    const std::string& addr = "10.0.0.1") {
  CDPTableEntry e;
  e.LocalInterface = local, e.DeviceName = device, e.InterfaceName = nIf, e.InterfaceAddress = addr;
  return e;
}

CDPTable Table(const std::vector<CDPTableEntry>& rows) {
  CDPTable t;
  t.GetCdpEntryList() = rows;
  return t;
}

// ---------------------------------------------------------------- file form

TEST(CdpTableLoad, ColumnsAndRowRules) {
  CDPTable t = Load(File("translated:true",
                         "1,Gi0/1,sw2,Gi0/24,10.0.0.2,WS-C3750\n"
                         "2,GI0/1,SW2,gi0/24,10.0.0.2,other\n"  // differs only in case: dropped
                         "3,Gi0/2,sw3,Gi0/1,10.0.0.3\n"         // five fields: no platform
                         "4,Gi0/3,sw4,Gi0/1,10.0.0.4,P,extra\n" // seven fields: no platform
                         "5,Gi0/4,sw5,Gi0/1\n"));                // too short
  EXPECT_EQ("core", t.GetDeviceName());
  ASSERT_EQ(3u, t.GetCdpEntryList().size());
  EXPECT_TRUE(t.GetCdpEntryList()[0].Flag);
  // Written back with fresh numbers.
  EXPECT_EQ("version:100,name:core,translated:true\n" + kColumns +
                "1,Gi0/1,sw2,Gi0/24,10.0.0.2,WS-C3750\n2,Gi0/2,sw3,Gi0/1,10.0.0.3,\n3,Gi0/3,sw4,Gi0/1,10.0.0.4,\n",
            Saved(t));

  const struct { std::string text; bool ok; } headers[] = {
      {"version:100\n" + kColumns, false},  // row 1 needs two fields
      {"version:100,name:x\nID,Local Interface,Device Name,Interface Name\n", false},
      {"version:100,name:x\nID,Local Interface,Device Name,Interface Name,Interface Address\n", true},
      {"", false},
      {"garbage\nwith,no,header\n", false}};
  for (const auto& h : headers) {
    bool ok = !h.ok;
    Load(h.text, nullptr, &ok);
    EXPECT_EQ(h.ok, ok) << h.text;
  }
  EXPECT_EQ("r1", Load("v,host name:r1\n" + kColumns).GetDeviceName());
  CDPTable noName = Load("v,r1\n" + kColumns + "1,Gi1,sw,Gi2,\n");
  EXPECT_EQ("", noName.GetDeviceName());
  EXPECT_FALSE(SavedAsTranslated(noName)) << "two fields count as not translated";
}

TEST(CdpTableLoad, EntryEqualityIgnoresCaseAndPlatform) {
  CDPTableEntry a = Entry("Gi1", "SW", "Gi2"), b = Entry("gi1", "sw", "GI2");
  b.Platform = "different";
  EXPECT_TRUE(a == b);
  b.Flag = false;
  EXPECT_FALSE(a == b);
}

TEST(CdpTableLoad, FilesAndImportForms) {
  const std::string dir = MakeTempDir("cdp");
  const std::string path = WriteFile(dir + "cdp.csv", File("translated:true", kRow));
  CDPTable t;
  t.SetFileName("before");
  ASSERT_TRUE(t.ImportCdpTable(path, "ignored", 7));
  EXPECT_EQ(1u, t.GetCdpEntryList().size());
  EXPECT_EQ("before", t.GetFileName());
  EXPECT_EQ(0, t.GetTime());
  EXPECT_FALSE(t.ImportCdpTable(dir + "none", "", 0));
  EXPECT_TRUE(t.GetCdpEntryList().empty());

  std::istringstream failed(File("translated:true", ""));
  failed.setstate(std::ios::failbit);
  EXPECT_FALSE(t.ImportCdpTable(failed, "", 0));
  EXPECT_FALSE(t.SaveCdpTable(dir + "no/such/dir/x.csv"));

  ASSERT_TRUE(t.LoadCdpTable(path, false));
  EXPECT_EQ(path, t.GetFileName());
  EXPECT_GT(t.GetTime(), 0);
  EXPECT_TRUE(t.LoadCdpTable(path, true));
  EXPECT_FALSE(t.LoadCdpTable(dir + "missing.csv", true));
  EXPECT_FALSE(t.LoadCdpTable(dir + "missing.csv", false));
}

// ---------------------------------------------------------------- translation

TEST(CdpTableTranslate, FlagDecidesWhetherToTranslate) {
  CDPTable plain = Load(File("translated:false", kRow));
  ASSERT_EQ(1u, plain.GetCdpEntryList().size());
  EXPECT_FALSE(SavedAsTranslated(plain)) << "no parser: rows as they stand";

  RecordingParser p;
  CDPTable done = Load(File("translated:true", kRow), &p);
  EXPECT_TRUE(p.calls.empty());
  EXPECT_TRUE(SavedAsTranslated(done));
  Load(File("Translated:TRUE", kRow), &p);
  EXPECT_FALSE(p.calls.empty()) << "the flag is case-sensitive";

  RecordingParser quiet;
  quiet.onInterface = [](std::string&, bool&) { return true; };  // answers, changes nothing
  CDPTable same = Load(File("translated:false", kRow), &quiet);
  EXPECT_FALSE(SavedAsTranslated(same));
}

TEST(CdpTableTranslate, CallsComeInTheirOrderOncePerRow) {
  RecordingParser p;
  Load(File("translated:false", kRow + "2,Gi0/2,sw3,Gi0/7,\n"), &p);
  EXPECT_EQ((std::vector<std::string>{"if core Gi0/1", "dev 10.0.0.2 sw2", "if sw2 Gi0/24",
                                      "link core Gi0/1 sw2 Gi0/24", "known 10.0.0.2", "if core Gi0/2",
                                      "dev  sw3", "if sw3 Gi0/7", "link core Gi0/2 sw3 Gi0/7"}),
            p.calls)
      << "no address, no question about it";

  // Every answering call after a change in the same row counts as changed.
  RecordingParser q;
  q.onInterface = [](std::string& name, bool& changed) {
    if (name == "Gi0/1") name = "GigabitEthernet0/1", changed = true;
    return true;
  };
  q.answerOthers = true;
  CDPTable u = Load(File("translated:false", kRow), &q);
  EXPECT_EQ("GigabitEthernet0/1", u.GetCdpEntryList()[0].LocalInterface);
  EXPECT_TRUE(SavedAsTranslated(u));
}

TEST(CdpTableTranslate, LoadByPathRewritesATranslatedFile) {
  const std::string dir = MakeTempDir("cdp");
  const std::string path = WriteFile(dir + "cdp.csv", File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2,P\n"));
  RecordingParser p;
  p.onInterface = [](std::string& name, bool& changed) {
    if (name.rfind("Gi", 0) == 0) name = "GigabitEthernet" + name.substr(2), changed = true;
    return true;
  };
  CDPTable t;
  t.SetParser(&p);
  ASSERT_TRUE(t.LoadCdpTable(path, false));
  EXPECT_EQ("version:100,name:core,translated:true\n" + kColumns +
                "1,GigabitEthernet0/1,sw2,GigabitEthernet0/24,10.0.0.2,P\n",
            ReadFile(path));
  p.calls.clear();
  ASSERT_TRUE(t.LoadCdpTable(path, false));
  EXPECT_TRUE(p.calls.empty()) << "the rewritten file needs no second translation";

  // A rejected IPv4 address is emptied and written back; no call answered, so
  // nothing stands untranslated.
  const std::string two = WriteFile(dir + "two.csv", File("translated:false", kRow + "2,Gi0/2,sw3,Gi0/1,fe80::1\n"));
  RecordingParser r;
  r.knownAnswer = false;
  t.SetParser(&r);
  ASSERT_TRUE(t.LoadCdpTable(two, false));  // leaves the modified flag set
  EXPECT_EQ("", t.GetCdpEntryList()[0].InterfaceAddress);
  EXPECT_EQ("fe80::1", t.GetCdpEntryList()[1].InterfaceAddress) << "only IPv4 addresses are asked about";
  EXPECT_NE(std::string::npos, ReadFile(two).find("translated:true\n" + kColumns + "1,Gi0/1,sw2,Gi0/24,,\n"));

  const std::string bad = WriteFile(dir + "b.csv", "garbage\nwith,no,header\n");
  EXPECT_FALSE(t.LoadCdpTable(bad, false));
  EXPECT_EQ("garbage\nwith,no,header\n", ReadFile(bad)) << "a failed load never rewrites the file";
}

// ---------------------------------------------------------------- compares

TEST(CdpTableCompare, PlainCompareKeysOnLocalInterfaceWithoutCase) {
  CDPTable left = Table({Entry("Gi1", "sw1", "Gi9"), Entry("Gi2", "sw2", "Gi9"), Entry("Gi1", "sw5", "Gi5")});
  CDPTable right = Table({Entry("gi2", "SW2", "gi9"), Entry("Gi1", "sw1", "Gi8"), Entry("Gi7", "x", "y")});
  std::vector<CDPTableEntryPair> out;
  CDPTable::GetCdpCompareResult(left, right, out);
  ASSERT_EQ(4u, out.size());
  const int want[] = {CommonTableCompareResult::m_iDiff, CommonTableCompareResult::m_iSame,
                      CommonTableCompareResult::m_iOnlyInleft, CommonTableCompareResult::m_iOnlyInRight};
  for (size_t k = 0; k < 4; ++k) EXPECT_EQ(want[k], out[k].Result) << k;
  EXPECT_EQ("Gi8", out[0].Right.InterfaceName);
  EXPECT_EQ("sw5", out[2].Left.DeviceName);
  EXPECT_FALSE(CDPTable::IsSameTable(left, right)) << "a differing row answers no";

  CDPTable upper = Table({Entry("GI1", "SW1", "GI9"), Entry("gi2", "sw2", "gi9"), Entry("Gi1", "sw5", "Gi5")});
  EXPECT_TRUE(CDPTable::IsSameTable(left, upper));
  EXPECT_FALSE(CDPTable::IsSameTableCA(left, upper)) << "the strict compare keeps case";
  CDPTable shorter = Table({Entry("Gi1", "sw1", "Gi9")});
  EXPECT_FALSE(CDPTable::IsSameTable(left, shorter));
  CDPTable moved = Table({Entry("Gi3", "sw1", "Gi9"), Entry("Gi4", "sw2", "Gi9"), Entry("Gi5", "sw5", "Gi5")});
  EXPECT_TRUE(CDPTable::IsSameTable(left, moved)) << "unmatched rows don't change the plain answer";
}

TEST(CdpTableCompare, StrictCompareRunsInKeyOrder) {
  CDPTable left = Table({Entry("Gi2", "swB", "Gi1"), Entry("Gi1", "swA", "Gi1"), Entry("Gi1", "swA", "Gi3"),
                         Entry("Gi0", "swZ", "Gi1")});
  CDPTable right = Table({Entry("Gi1", "swA", "Gi3"), Entry("Gi1", "swA", "Gi4"), Entry("Gi2", "swB", "Gi1", "10.0.0.9"),
                          Entry("Gi9", "swQ", "Gi1")});
  std::vector<CDPTableEntryPair> out;
  EXPECT_FALSE(CDPTable::GetCdpCompareResultCA(left, right, out, false));
  ASSERT_EQ(5u, out.size());
  // Gi0__sep__swZ < Gi1__sep__swA (twice, file order) < Gi2__sep__swB; then the right-only rest.
  // The first Gi1 row has no equal row and takes the first of the key; the
  // second finds its equal row used up; Gi2 differs in address.
  const struct { int result; const char* left; const char* right; } want[] = {
      {CommonTableCompareResult::m_iOnlyInleft, "Gi0/Gi1", "/"}, {CommonTableCompareResult::m_iDiff, "Gi1/Gi1", "Gi1/Gi3"},
      {CommonTableCompareResult::m_iDiff, "Gi1/Gi3", "Gi1/Gi4"}, {CommonTableCompareResult::m_iDiff, "Gi2/Gi1", "Gi2/Gi1"},
      {CommonTableCompareResult::m_iOnlyInRight, "/", "Gi9/Gi1"}};
  for (size_t k = 0; k < 5; ++k) {
    EXPECT_EQ(want[k].result, out[k].Result) << k;
    EXPECT_EQ(want[k].left, out[k].Left.LocalInterface + "/" + out[k].Left.InterfaceName) << k;
    EXPECT_EQ(want[k].right, out[k].Right.LocalInterface + "/" + out[k].Right.InterfaceName) << k;
  }

  // Several neighbours on one interface pair off by name and address.
  CDPTable a = Table({Entry("Gi1", "sw", "Gi1"), Entry("Gi1", "sw", "Gi2")});
  CDPTable b = Table({Entry("Gi1", "sw", "Gi2"), Entry("Gi1", "sw", "Gi1")});
  out.clear();
  EXPECT_TRUE(CDPTable::GetCdpCompareResultCA(a, b, out, true));
  ASSERT_EQ(2u, out.size());
  EXPECT_EQ("Gi1", out[0].Right.InterfaceName);
  EXPECT_EQ("Gi2", out[1].Right.InterfaceName);
  CDPTable c = Table({Entry("Gi1", "sw", "Gi2")});
  out.clear();
  EXPECT_FALSE(CDPTable::GetCdpCompareResultCA(a, c, out, true));
  EXPECT_TRUE(out.empty()) << "sizes differ: no work at all";
}

}  // namespace
