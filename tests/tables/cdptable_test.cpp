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

using netloom_test::MakeTempDir;
using netloom_test::ReadFile;
using netloom_test::WriteFile;

const std::string kColumns = "ID,Local Interface,Device Name,Interface Name,Interface Address,Platform\n";

std::string File(const std::string& flag, const std::string& rows) {
  return "version:100,name:core," + flag + "\n" + kColumns + rows;
}

// A translator that writes down every call and answers as told.
struct RecordingParser : ITWTableParsor {
  std::vector<std::string> calls;
  // Per call kind: whether it answers, and what it does to the names.
  std::function<bool(std::string&, bool&)> onInterface = [](std::string&, bool&) { return false; };
  std::function<bool(std::string&, bool&)> onDevice = [](std::string&, bool&) { return false; };
  std::function<bool(bool&)> onLink = [](bool&) { return false; };
  std::function<bool(const std::string&)> known = [](const std::string&) { return true; };

  bool TranslateLink(std::string& device, std::string& local, std::string& nDevice, std::string& nIf,
                     bool& changed) override {
    calls.push_back("link " + device + " " + local + " " + nDevice + " " + nIf);
    return onLink(changed);
  }
  bool TranslateInterface(std::string& device, std::string& name, bool& changed) override {
    calls.push_back("if " + device + " " + name);
    return onInterface(name, changed);
  }
  bool TranslateDevice(std::string& address, std::string& device, bool& changed) override {
    calls.push_back("dev " + address + " " + device);
    return onDevice(device, changed);
  }
  bool IsKnownAddress(std::string& address) override {
    calls.push_back("known " + address);
    return known(address);
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

CDPTableEntry Entry(const std::string& local, const std::string& device, const std::string& nIf,
                    const std::string& addr = "10.0.0.1") {
  CDPTableEntry e;
  e.LocalInterface = local;
  e.DeviceName = device;
  e.InterfaceName = nIf;
  e.InterfaceAddress = addr;
  return e;
}

CDPTable Table(const std::vector<CDPTableEntry>& rows) {
  CDPTable t;
  t.GetCdpEntryList() = rows;
  return t;
}

// ---------------------------------------------------------------- file form

TEST(CdpTableLoad, ColumnsAndRowRules) {
  bool ok = false;
  CDPTable t = Load(File("translated:true",
                         "1,Gi0/1,sw2,Gi0/24,10.0.0.2,WS-C3750\n"
                         "2,GI0/1,SW2,gi0/24,10.0.0.2,other\n"  // differs only in case: dropped
                         "3,Gi0/2,sw3,Gi0/1,10.0.0.3\n"         // five fields: no platform
                         "4,Gi0/3,sw4,Gi0/1,10.0.0.4,P,extra\n" // seven fields: no platform
                         "5,Gi0/4,sw5,Gi0/1\n"),                 // too short
                    nullptr, &ok);
  ASSERT_TRUE(ok);
  EXPECT_EQ("core", t.GetDeviceName());
  auto& rows = t.GetCdpEntryList();
  ASSERT_EQ(3u, rows.size());
  EXPECT_EQ("Gi0/1", rows[0].LocalInterface);
  EXPECT_EQ("sw2", rows[0].DeviceName);
  EXPECT_EQ("Gi0/24", rows[0].InterfaceName);
  EXPECT_EQ("10.0.0.2", rows[0].InterfaceAddress);
  EXPECT_EQ("WS-C3750", rows[0].Platform);
  EXPECT_EQ("", rows[1].Platform);
  EXPECT_EQ("", rows[2].Platform);
  EXPECT_TRUE(rows[0].Flag);

  // Written back with fresh numbers.
  EXPECT_EQ("version:100,name:core,translated:true\n" + kColumns +
                "1,Gi0/1,sw2,Gi0/24,10.0.0.2,WS-C3750\n2,Gi0/2,sw3,Gi0/1,10.0.0.3,\n3,Gi0/3,sw4,Gi0/1,10.0.0.4,\n",
            Saved(t));
}

TEST(CdpTableLoad, HeaderFailures) {
  bool ok = true;
  Load("version:100\n" + kColumns, nullptr, &ok);
  EXPECT_FALSE(ok) << "row 1 needs two fields";
  Load("version:100,name:x\nID,Local Interface,Device Name,Interface Name\n", nullptr, &ok);
  EXPECT_FALSE(ok);
  Load("version:100,name:x\nID,Local Interface,Device Name,Interface Name,Interface Address\n", nullptr, &ok);
  EXPECT_TRUE(ok) << "Platform is not required";
  Load("", nullptr, &ok);
  EXPECT_FALSE(ok);

  CDPTable t = Load("v,host name:r1\n" + kColumns, nullptr, &ok);
  EXPECT_TRUE(ok);
  EXPECT_EQ("r1", t.GetDeviceName());
  CDPTable noName = Load("v,r1\n" + kColumns + "1,Gi1,sw,Gi2,\n");
  EXPECT_EQ("", noName.GetDeviceName());
  EXPECT_NE(std::string::npos, Saved(noName).find("translated:false")) << "two fields count as not translated";
}

TEST(CdpTableEntry, ClearAndEquality) {
  CDPTableEntry e = Entry("Gi1", "sw", "Gi2");
  e.Platform = "P";
  e.Flag = false;
  e.clear();
  EXPECT_EQ("", e.LocalInterface);
  EXPECT_EQ("", e.InterfaceAddress);
  EXPECT_EQ("P", e.Platform) << "clear leaves Platform";
  EXPECT_TRUE(e.Flag);

  CDPTableEntry a = Entry("Gi1", "SW", "Gi2"), b = Entry("gi1", "sw", "GI2");
  b.Platform = "different";
  EXPECT_TRUE(a == b);
  b.Flag = false;
  EXPECT_FALSE(a == b);
}

// ---------------------------------------------------------------- translation

TEST(CdpTableTranslate, TranslatedFileIsLeftAlone) {
  RecordingParser p;
  CDPTable t = Load(File("translated:true", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"), &p);
  EXPECT_TRUE(p.calls.empty());
  EXPECT_NE(std::string::npos, Saved(t).find("translated:true"));

  Load(File("Translated:TRUE", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"), &p);
  EXPECT_FALSE(p.calls.empty()) << "the flag is case-sensitive";
}

TEST(CdpTableTranslate, NoParserLoadsRowsAsTheyStand) {
  CDPTable t = Load(File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"));
  ASSERT_EQ(1u, t.GetCdpEntryList().size());
  EXPECT_EQ("Gi0/1", t.GetCdpEntryList()[0].LocalInterface);
  EXPECT_NE(std::string::npos, Saved(t).find("translated:false"));
}

TEST(CdpTableTranslate, CallsComeInTheirOrderOncePerRow) {
  RecordingParser p;
  Load(File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n2,Gi0/2,sw3,Gi0/7,\n"), &p);
  EXPECT_EQ((std::vector<std::string>{"if core Gi0/1", "dev 10.0.0.2 sw2", "if sw2 Gi0/24",
                                      "link core Gi0/1 sw2 Gi0/24", "known 10.0.0.2", "if core Gi0/2",
                                      "dev  sw3", "if sw3 Gi0/7", "link core Gi0/2 sw3 Gi0/7"}),
            p.calls)
      << "no address, no question about it";
}

TEST(CdpTableTranslate, AnswerWithoutChangeMeansNotTranslated) {
  RecordingParser p;
  p.onInterface = [](std::string&, bool&) { return true; };  // answers, changes nothing
  CDPTable t = Load(File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"), &p);
  EXPECT_NE(std::string::npos, Saved(t).find("translated:false"));

  // Every answering call after a change in the same row counts as changed.
  RecordingParser q;
  q.onInterface = [](std::string& name, bool& changed) {
    if (name == "Gi0/1") {
      name = "GigabitEthernet0/1";
      changed = true;
    }
    return true;
  };
  q.onDevice = [](std::string&, bool&) { return true; };
  q.onLink = [](bool&) { return true; };
  CDPTable u = Load(File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"), &q);
  EXPECT_EQ("GigabitEthernet0/1", u.GetCdpEntryList()[0].LocalInterface);
  EXPECT_NE(std::string::npos, Saved(u).find("translated:true"));
}

TEST(CdpTableTranslate, LoadByPathRewritesATranslatedFile) {
  const std::string dir = MakeTempDir("cdp");
  const std::string path = WriteFile(dir + "cdp.csv", File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2,P\n"));
  RecordingParser p;
  p.onInterface = [](std::string& name, bool& changed) {
    if (name.rfind("Gi", 0) == 0) {
      name = "GigabitEthernet" + name.substr(2);
      changed = true;
    }
    return true;
  };
  CDPTable t;
  t.SetParser(&p);
  ASSERT_TRUE(t.LoadCdpTable(path, false));
  EXPECT_EQ(path, t.GetFileName());
  EXPECT_GT(t.GetTime(), 0);
  EXPECT_EQ("version:100,name:core,translated:true\n" + kColumns +
                "1,GigabitEthernet0/1,sw2,GigabitEthernet0/24,10.0.0.2,P\n",
            ReadFile(path));

  // The rewritten file needs no second translation.
  p.calls.clear();
  ASSERT_TRUE(t.LoadCdpTable(path, false));
  EXPECT_TRUE(p.calls.empty());
  EXPECT_TRUE(t.LoadCdpTable(path, true));
  EXPECT_FALSE(t.LoadCdpTable(dir + "missing.csv", true));
  EXPECT_FALSE(t.LoadCdpTable(dir + "missing.csv", false));
}

TEST(CdpTableTranslate, RejectedAddressIsEmptiedAndWrittenBack) {
  const std::string dir = MakeTempDir("cdp");
  const std::string path =
      WriteFile(dir + "cdp.csv", File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n2,Gi0/2,sw3,Gi0/1,fe80::1\n"));
  RecordingParser p;
  p.known = [](const std::string&) { return false; };
  CDPTable t;
  t.SetParser(&p);
  ASSERT_TRUE(t.LoadCdpTable(path, false));
  EXPECT_EQ("", t.GetCdpEntryList()[0].InterfaceAddress);
  EXPECT_EQ("fe80::1", t.GetCdpEntryList()[1].InterfaceAddress) << "only IPv4 addresses are asked about";
  EXPECT_NE(std::string::npos, ReadFile(path).find("1,Gi0/1,sw2,Gi0/24,,\n"));
  // No call answered, so nothing stands untranslated.
  EXPECT_NE(std::string::npos, ReadFile(path).find("translated:true"));
}

TEST(CdpTableTranslate, FailedLoadNeverRewritesTheFile) {
  const std::string dir = MakeTempDir("cdp");
  RecordingParser p;
  p.known = [](const std::string&) { return false; };
  CDPTable t;
  t.SetParser(&p);
  const std::string good = WriteFile(dir + "a.csv", File("translated:false", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"));
  ASSERT_TRUE(t.LoadCdpTable(good, false));  // leaves the modified flag set
  const std::string bad = WriteFile(dir + "b.csv", "garbage\nwith,no,header\n");
  EXPECT_FALSE(t.LoadCdpTable(bad, false));
  EXPECT_EQ("garbage\nwith,no,header\n", ReadFile(bad));
}

TEST(CdpTableLoad, ImportForms) {
  const std::string dir = MakeTempDir("cdp");
  const std::string path = WriteFile(dir + "cdp.csv", File("translated:true", "1,Gi0/1,sw2,Gi0/24,10.0.0.2\n"));
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
  std::istringstream fine(File("translated:true", "1,a,b,c,d\n"));
  EXPECT_TRUE(t.ImportCdpTable(fine, "", 0));
  EXPECT_FALSE(t.SaveCdpTable(dir + "no/such/dir/x.csv"));
}

// ---------------------------------------------------------------- compares

TEST(CdpTableCompare, PlainCompareKeysOnLocalInterfaceOnly) {
  CDPTable left = Table({Entry("Gi1", "sw1", "Gi9"), Entry("Gi2", "sw2", "Gi9")});
  CDPTable right = Table({Entry("Gi3", "sw1", "Gi9"), Entry("Gi4", "sw2", "Gi9")});
  EXPECT_TRUE(CDPTable::IsSameTable(left, right)) << "unmatched rows don't change the plain answer";
  EXPECT_FALSE(CDPTable::IsSameTableCA(left, right));

  std::vector<CDPTableEntryPair> out;
  CDPTable::GetCdpCompareResult(left, right, out);
  ASSERT_EQ(4u, out.size());
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInleft, out[0].Result);
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInleft, out[1].Result);
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInRight, out[2].Result);
  EXPECT_EQ("Gi4", out[3].Right.LocalInterface);
}

TEST(CdpTableCompare, PlainCompareCodes) {
  CDPTable left = Table({Entry("Gi1", "sw1", "Gi9"), Entry("Gi2", "sw2", "Gi9"), Entry("Gi1", "sw5", "Gi5")});
  CDPTable right = Table({Entry("gi2", "SW2", "gi9"), Entry("Gi1", "sw1", "Gi8"), Entry("Gi7", "x", "y")});
  std::vector<CDPTableEntryPair> out;
  CDPTable::GetCdpCompareResult(left, right, out);
  ASSERT_EQ(4u, out.size());
  EXPECT_EQ(CommonTableCompareResult::m_iDiff, out[0].Result);
  EXPECT_EQ("Gi8", out[0].Right.InterfaceName);
  EXPECT_EQ(CommonTableCompareResult::m_iSame, out[1].Result);
  EXPECT_EQ("SW2", out[1].Right.DeviceName);
  EXPECT_EQ("sw5", out[2].Left.DeviceName);
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInleft, out[2].Result);
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInRight, out[3].Result);

  EXPECT_FALSE(CDPTable::IsSameTable(left, right)) << "a differing row answers no";
  CDPTable shorter = Table({Entry("Gi1", "sw1", "Gi9")});
  EXPECT_FALSE(CDPTable::IsSameTable(left, shorter));
  CDPTable upper = Table({Entry("GI1", "SW1", "GI9"), Entry("gi2", "sw2", "gi9"), Entry("Gi1", "sw5", "Gi5")});
  EXPECT_TRUE(CDPTable::IsSameTable(left, upper));
  EXPECT_FALSE(CDPTable::IsSameTableCA(left, upper)) << "the strict compare keeps case";
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
  EXPECT_EQ("Gi0", out[0].Left.LocalInterface);
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInleft, out[0].Result);
  EXPECT_EQ("Gi1", out[1].Left.InterfaceName);
  EXPECT_EQ(CommonTableCompareResult::m_iDiff, out[1].Result);
  EXPECT_EQ("Gi3", out[1].Right.InterfaceName) << "no equal row: the first of the key";
  EXPECT_EQ("Gi3", out[2].Left.InterfaceName);
  EXPECT_EQ(CommonTableCompareResult::m_iDiff, out[2].Result) << "its equal row was used up";
  EXPECT_EQ("Gi4", out[2].Right.InterfaceName);
  EXPECT_EQ(CommonTableCompareResult::m_iDiff, out[3].Result) << "address differs";
  EXPECT_EQ(CommonTableCompareResult::m_iOnlyInRight, out[4].Result);
  EXPECT_EQ("Gi9", out[4].Right.LocalInterface);

  // Several neighbours on one interface pair off by name and address.
  CDPTable a = Table({Entry("Gi1", "sw", "Gi1"), Entry("Gi1", "sw", "Gi2")});
  CDPTable b = Table({Entry("Gi1", "sw", "Gi2"), Entry("Gi1", "sw", "Gi1")});
  out.clear();
  EXPECT_TRUE(CDPTable::GetCdpCompareResultCA(a, b, out, true));
  ASSERT_EQ(2u, out.size());
  EXPECT_EQ("Gi1", out[0].Right.InterfaceName);
  EXPECT_EQ("Gi2", out[1].Right.InterfaceName);
  EXPECT_TRUE(CDPTable::IsSameTableCA(a, b));
  CDPTable c = Table({Entry("Gi1", "sw", "Gi2")});
  out.clear();
  EXPECT_FALSE(CDPTable::GetCdpCompareResultCA(a, c, out, true));
  EXPECT_TRUE(out.empty()) << "sizes differ: no work at all";
}

}  // namespace
