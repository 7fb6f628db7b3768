// MAC table: the CSV and text forms, the site filter files, the port and MAC
// maps, the filters and the compare.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <sstream>

#include "common/testenv.h"
#include "netloom/commontablecompareresult.h"
#include "netloom/mactable.h"
#include "netloom/util/twfilesystem.h"

namespace {

using namespace netloom_test;

constexpr unsigned kNoVlan = 0x1000000;
const std::string kRow1 = "version:1.0,hostname:sw1\n";
const std::string kHeader = kRow1 + "VLan ID,Mac Address,Port Name,Vendor,IP Address,DNS Name,VLan Name\n";

// Reaches the protected parts the tests look at.
struct MacTableProbe : MacTable {
  using MacTable::GetMacCompareResult;
  using MacTable::mFilterMac;
  using MacTable::mFilterPort;
};

MacTable Import(const std::string& text) {
  MacTable t;
  std::istringstream in(text);
  EXPECT_TRUE(t.ImportMacTable(in, "given"));
  return t;
}

MacRecord Rec(int64_t mac, const std::string& port, unsigned vlan = 1) {
  MacRecord r;
  r.Mac = mac, r.PortName = port, r.VlanId = vlan;
  return r;
}

MacTable Table(const std::vector<MacRecord>& rows) {
  MacTable t;
  for (MacRecord r : rows) t.InsertMacRecord(r.PortName, r);
  return t;
}

// ---------------------------------------------------------------- CSV form

TEST(MacTableLoad, CsvColumnsVlanAndRoundTrip) {
  MacTable t = Import(kHeader +
                      "10,0011.2233.4455,Gi0/1,Cisco,10.0.0.1,host-a,users\n"
                      ",00:11:22:33:44:66,Gi0/1\n"    // empty VLAN cell
                      "v20,0011.2233.4477,Gi0/2,,,\n"  // VLAN cell not all digits
                      "30,not-a-mac,Gi0/3\n"
                      "30,0011.2233.4488\n");
  EXPECT_EQ(2u, t.size());
  ASSERT_EQ(3u, t.GetRecordCount());
  EXPECT_EQ(nullptr, t[3]);
  std::ostringstream out;
  ASSERT_TRUE(t.ExportMacTable(out));
  EXPECT_EQ("version:1.0,hostname:given\n"
                "VLan ID,Mac Address,Port Name,Vendor,IP Address,DNS Name,VLan Name\n"
                "10,0011.2233.4455,Gi0/1,,10.0.0.1,host-a,users\n"
                ",0011.2233.4466,Gi0/1,,,,\n"
                ",0011.2233.4477,Gi0/2,,,,\n",
            out.str());
  EXPECT_EQ(kNoVlan, t[2]->VlanId);

  std::istringstream back(out.str());
  MacTable again;
  ASSERT_TRUE(again.LoadMacTable(back));
  EXPECT_EQ("given", again.GetHostname());
  EXPECT_TRUE(MacTable::IsSameTable(t, again));
  EXPECT_EQ("users", again[0]->VlanName);

  // Older headers: fields 4 and 5 are read by position, field 6 only under its own name.
  for (const char* columns : {"VLan ID,Mac Address,Port Name\n", "VLan ID,Mac Address,Port Name,Vendor,IP,DNS,Name of VLAN\n"}) {
    MacTable old = Import(kRow1 + columns + "5,aabb.ccdd.eeff,Fa0/1,x,1.1.1.1,dns,vname\n");
    ASSERT_EQ(1u, old.GetRecordCount());
    EXPECT_EQ("1.1.1.1", old[0]->Ip);
    EXPECT_EQ("dns", old[0]->DnsName);
    EXPECT_EQ("", old[0]->VlanName) << columns;
  }
}

TEST(MacTableLoad, TrimmedPortsAndDuplicatesCollapse) {
  MacTable t = Import(kHeader +
                      "1,0011.2233.4455, Gi0/1 ,,10.0.0.1\n"
                      "1,0011.2233.4455,Gi0/1,,10.0.0.1\n"
                      "1,0011-2233-4455,Gi0/1,,10.0.0.1\n"  // same number, other text
                      "1,0011.2233.4455,Gi0/1,,10.0.0.2\n"
                      "2,0011.2233.4455,Gi0/1,,10.0.0.1\n");
  EXPECT_EQ(1u, t.size());
  EXPECT_EQ(3u, t.GetRecordCount());
  int64_t mac = 0x001122334455LL, unknown = 1;
  MacTable::PortVlanSet ports;
  ASSERT_TRUE(t.GetPortByMac(mac, ports));
  EXPECT_EQ((MacTable::PortVlanSet{{"Gi0/1", 1u}, {"Gi0/1", 2u}}), ports);
  EXPECT_FALSE(t.GetPortByMac(unknown, ports));
}

TEST(MacTableLoad, WrongHeaderFallsBackToTextFormAndImportRefuses) {
  const std::string text = "12\n0011.2233.4455\nGi0/1\nx\nzz\r\nGi0/2\n7\n";
  MacTable t;
  std::istringstream in(text);
  ASSERT_TRUE(t.LoadMacTable(in));
  ASSERT_EQ(2u, t.GetRecordCount());
  EXPECT_EQ(12u, t[0]->VlanId);
  EXPECT_EQ(0x001122334455LL, t[0]->Mac);
  EXPECT_EQ(kNoVlan, t[1]->VlanId);
  EXPECT_EQ(0, t[1]->Mac) << "unreadable address text";

  std::istringstream again(text);
  MacTable imported;
  EXPECT_FALSE(imported.ImportMacTable(again, "h"));
  EXPECT_EQ(0u, imported.GetRecordCount());
}

TEST(MacTableLoad, FilesByPath) {
  const std::string dir = MakeTempDir("mac");
  const std::string path = WriteFile(dir + "mac.csv", kHeader + "1,0011.2233.4455,Gi0/1\n");
  MacTable t;
  ASSERT_TRUE(t.LoadMacTable(path));
  EXPECT_EQ(path, t.GetFileName());
  EXPECT_GT(t.GetTime(), 0);
  EXPECT_FALSE(t.LoadMacTable(dir + "missing"));

  MacTable imp;
  ASSERT_TRUE(imp.ImportMacTable(path, "h2", 0));
  EXPECT_EQ("h2", imp.GetHostname());
  EXPECT_EQ("", imp.GetFileName());

  ASSERT_TRUE(t.SaveMacTable(dir + "out.csv"));
  EXPECT_EQ(kHeader + "1,0011.2233.4455,Gi0/1,,,,\n", ReadFile(dir + "out.csv"));
  EXPECT_FALSE(t.SaveMacTable(dir + "none/out.csv"));
}

// ---------------------------------------------------------------- site filters

// The filter lists live for the process; start and leave each case without them.
class MacTableSiteFilter : public ::testing::Test {
 protected:
  void SetUp() override { Reset(); }
  void TearDown() override { Reset(); }
  static void Reset() {
    MacTableProbe::mFilterMac.clear();
    MacTableProbe::mFilterPort.clear();
    std::remove((TWFileSystem::GetSystemConfFolder() + "fix_FilterMac.def").c_str());
    std::remove((TWFileSystem::GetSystemConfFolder() + "fix_FilterPort.def").c_str());
  }
  static void WriteConf(const std::string& name, const std::string& text) {
    WriteFile(TWFileSystem::GetSystemConfFolder() + name, text);
  }
};

TEST_F(MacTableSiteFilter, WildcardPatternsDropRowsAtImportOnly) {
  const std::string body = "1,0011.2233.4455,Gi0/1\n1,0011.2233.5555,Gi0/1\n1,0011.2233.5556,vl1\n"
                           "1,0011.2233.5557,Vl10\n";
  EXPECT_EQ(4u, Import(kHeader + body).GetRecordCount());
  EXPECT_TRUE(MacTableProbe::mFilterPort.empty());

  // Missing files are looked for again at the next import.
  WriteConf("fix_FilterMac.def", "  0011.2233.44??\r\n\n\t\n");
  WriteConf("fix_FilterPort.def", "Vl?\n");
  MacTable t = Import(kHeader + body);
  ASSERT_EQ(2u, t.GetRecordCount());
  EXPECT_EQ(0x001122335555LL, t[0]->Mac);
  EXPECT_EQ("Vl10", t[1]->PortName) << "a ? stands for exactly one character";
  EXPECT_EQ((std::vector<std::string>{"0011.2233.44??"}), MacTableProbe::mFilterMac);

  // The text form takes every row.
  MacTable text;
  std::istringstream in("1\n0011.2233.4455\nVl1\n");
  text.LoadMacTable(in);
  EXPECT_EQ(1u, text.GetRecordCount());

  // A filter list once read stays for the life of the process.
  WriteConf("fix_FilterMac.def", "*\n");
  EXPECT_EQ(2u, Import(kHeader + body).GetRecordCount());
}

// ---------------------------------------------------------------- maps and filters

TEST(MacTableFilter, PortOrderAndFilters) {
  MacTable order = Table({Rec(3, "Gi2"), Rec(1, "Gi1"), Rec(2, "Gi2"), Rec(1, "Gi3", 7)});
  EXPECT_EQ(3u, order.size());
  ASSERT_EQ(4u, order.GetRecordCount());
  EXPECT_EQ(1, order[0]->Mac);
  EXPECT_EQ(3, order[1]->Mac) << "rows run in port order";
  EXPECT_EQ(2u, order.GetMacPortMap().at(1).size());

  MacRecord named = Rec(0x00AA00BB1234LL, "Gi0/2", 20);
  named.VlanName = "Voice";
  MacTable t = Table({Rec(0x0011AABB0000LL, "GigabitEthernet0/1", 10), named});
  // Filter text with a dot is looked for in the dotted form, else in the bare digits.
  const struct { const char* text; unsigned hits; } macCases[] = {
      {"aabb", 1}, {"11aa.bb", 0}, {"0011.aab", 1}, {"BB12", 1}, {"b.12", 1}};
  for (const auto& c : macCases) {
    MacTable out;
    t.FilterMacTableWithMac(out, c.text);
    EXPECT_EQ(c.hits, out.GetRecordCount()) << c.text;
  }
  MacTable vlans;
  t.FilterMacTableWithVlan(vlans, "10");
  ASSERT_EQ(1u, vlans.GetRecordCount());
  EXPECT_EQ(10u, vlans[0]->VlanId);
  t.FilterMacTableWithVlan(vlans, "20");  // the named row matches by name only
  EXPECT_EQ(1u, vlans.GetRecordCount());
  t.FilterMacTableWithVlan(vlans, "voi");
  t.FilterMacTableWithVlan(vlans, "");
  EXPECT_EQ(4u, vlans.GetRecordCount()) << "not cleared; an empty filter takes all";

  t.FilterMacTableWithPort(t, "gi");  // into itself, without case
  EXPECT_EQ(4u, t.GetRecordCount());
}

// ---------------------------------------------------------------- compare

TEST(MacTableCompare, SameTableIgnoresNamesAndAddresses) {
  MacRecord a = Rec(2, "Gi2"), b = a;
  b.DnsName = "other", b.Ip = "1.2.3.4", b.VlanName = "v";
  MacTable left = Table({Rec(1, "Gi1"), a}), right = Table({Rec(1, "GI1"), b});
  EXPECT_TRUE(MacTable::IsSameTable(left, right));
}

std::vector<MacRecordPair> Model(MacTable& lt, MacTable& rt, bool sameOnly, bool& answer) {
  std::vector<MacRecord> L, R;
  for (unsigned i = 0; lt[i]; ++i) L.push_back(*lt[i]);
  for (unsigned i = 0; rt[i]; ++i) R.push_back(*rt[i]);
  std::vector<MacRecordPair> out;
  answer = false;
  if (sameOnly && L.size() != R.size()) return out;
  auto eq = [](const std::string& a, const std::string& b) { return strcasecmp(a.c_str(), b.c_str()) == 0; };
  std::vector<bool> lm(L.size()), rm(R.size());
  for (size_t i = 0; i < L.size(); ++i)
    for (size_t j = 0; j < R.size(); ++j)
      if (!rm[j] && L[i].Mac == R[j].Mac && eq(L[i].PortName, R[j].PortName) && L[i].VlanId == R[j].VlanId) {
        lm[i] = rm[j] = true;
        out.push_back({L[i], R[j], 1});
        break;
      }
  for (size_t i = 0; i < L.size(); ++i) {
    if (lm[i]) continue;
    size_t j = 0;
    while (j < R.size() && (rm[j] || L[i].Mac != R[j].Mac)) ++j;
    MacRecordPair p{L[i], MacRecord(), 256};
    if (j < R.size()) {
      rm[j] = true;
      p.Right = R[j];
      p.Result = eq(L[i].PortName, R[j].PortName) && L[i].VlanId == R[j].VlanId ? 1 : 16;
    }
    if (sameOnly && p.Result != 1) return out;
    out.push_back(p);
  }
  for (size_t j = 0; j < R.size(); ++j) {
    if (rm[j]) continue;
    bool seen = false;
    for (const auto& p : out) seen = seen || p.Left.Mac == R[j].Mac;
    if (seen) continue;
    if (sameOnly) return out;
    out.push_back({MacRecord(), R[j], 4096});
  }
  answer = true;
  return out;
}

TEST(MacTableCompare, AgreesWithTheQuadraticModel) {
  std::mt19937 rng(11);
  const char* ports[] = {"Gi1", "gi1", "Gi2"};
  for (int round = 0; round < 400; ++round) {
    MacTable l, r;
    for (MacTable* t : {&l, &r}) {
      const int n = static_cast<int>(rng() % 6);
      for (int k = 0; k < n; ++k) {
        MacRecord rec = Rec(static_cast<int64_t>(rng() % 3), ports[rng() % 3], 1 + rng() % 2);
        rec.DnsName = rng() % 2 ? "a" : "b";  // names never count
        t->InsertMacRecord(rec.PortName, rec);
      }
    }
    const bool sameOnly = round % 2;
    bool want = false;
    const auto expected = Model(l, r, sameOnly, want);
    std::vector<MacRecordPair> got;
    ASSERT_EQ(want, MacTableProbe::GetMacCompareResult(l, r, got, sameOnly)) << "round " << round;
    EXPECT_TRUE(!sameOnly || want == MacTable::IsSameTable(l, r)) << "round " << round;
    ASSERT_EQ(expected.size(), got.size()) << "round " << round;
    for (size_t k = 0; k < got.size(); ++k)
      EXPECT_TRUE(expected[k].Result == got[k].Result && expected[k].Left.PortName == got[k].Left.PortName &&
                  expected[k].Right.PortName == got[k].Right.PortName && expected[k].Right.Mac == got[k].Right.Mac &&
                  expected[k].Right.VlanId == got[k].Right.VlanId)
          << "round " << round << " pair " << k;
  }
}

}  // namespace
