// ARP table: the two-step load, the row checks of the CSV import, the index and
// its valid flag, the filters and the three-pass compare.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <random>
#include <sstream>

#include "common/testenv.h"
#include "netloom/arptable.h"
#include "netloom/commontablecompareresult.h"

namespace {

using namespace netloom_test;

const std::string kHeader = "version:1.0,hostname:core-1\nInterface,IP Address,MAC Address,Vendor\n";

ArpTable LoadText(const std::string& text) {
  ArpTable t;
  std::istringstream in(text);
  EXPECT_TRUE(t.LoadArpTable(in));
  return t;
}

ArpRecord Row(const std::string& ip, const std::string& mac, const std::string& intf) {
  ArpRecord r;
  r.Ip = ip, r.Mac = mac, r.Interface = intf;
  return r;
}

ArpTable Table(const std::vector<ArpRecord>& rows) {
  ArpTable t;
  for (ArpRecord r : rows) t.InsertArpRecord(r);
  return t;
}

// ---------------------------------------------------------------- loading

TEST(ArpTableLoad, CsvRowsAreCheckedNormalisedAndDeduplicated) {
  ArpTable t = LoadText(kHeader +
                        "Gi0/1,10.0.0.1,00-11-22-33-44-55,Cisco\n"   // normalised
                        "Gi0/1,10.0.0.1,0011.2233.4455\n"            // same after normalising: dropped
                        "Gi0/2,10.0.0.1,0011.2233.4455\n"            // differs in Interface: stays
                        "Gi0/3,10.0.0.3,0011.2233.445\n"             // 11 digits
                        "Gi0/3,10.0.0.3,0011.2233.44556\n"           // 13 digits
                        "Gi0/3,10.0.0.300,0011.2233.4456\n"          // bad address
                        "Gi0/3,10.0.0.3,0000.0000.0000\n"            // no real MAC
                        ",10.0.0.4,00:11:22:33:44:57\n"              // empty interface is lawful
                        " Gi0/5,10.0.0.5,0011.2233.4458\n"           // malformed interface
                        "Gi0/6,10.0.0.6\n");                         // too few fields
  EXPECT_EQ("core-1", t.GetHostname());
  ASSERT_EQ(3u, t.GetCount());
  EXPECT_EQ("0011.2233.4455", t[0].Mac);
  EXPECT_EQ("", t[0].Vendor) << "the reader never takes the Vendor column";
  EXPECT_EQ("Gi0/2", t[1].Interface);
  EXPECT_EQ("0011.2233.4457", t[2].Mac);

  // The host name comes from row one only, wherever in it the tag stands.
  std::istringstream noName("\nInterface,IP Address,MAC Address\nGi1,1.1.1.1,0011.2233.4455\n");
  ASSERT_TRUE(t.LoadArpTable(noName));
  EXPECT_EQ("core-1", t.GetHostname());
  std::istringstream anywhere("x,my hostname:r1:hostname:b\nInterface,IP Address,MAC Address\n");
  ASSERT_TRUE(t.LoadArpTable(anywhere));
  EXPECT_EQ("r1:hostname:b", t.GetHostname());
}

TEST(ArpTableLoad, WrongHeaderFallsBackToTextForm) {
  const std::string text =
      "Interface,IP,MAC Address\n7\r\nGi0/1\n10.0.0.1\n0011.2233.4455\n9\nGi0/2\n10.0.0.9\nx\n";
  ArpTable t = LoadText(text);
  // Four lines a row, the header line first; the trailing line alone is dropped.
  ASSERT_EQ(2u, t.GetCount());
  EXPECT_EQ("7", t[0].Interface) << "a CR ends the line";
  EXPECT_EQ("10.0.0.1", t[0].Mac);
  EXPECT_EQ(11, t[1].Number) << "atoi stops at the first dot";

  ArpTable raw = LoadText("-3\nGi0/1\n10.0.0.1\nnot-a-mac\n5\nx\n");
  ASSERT_EQ(1u, raw.GetCount());
  EXPECT_EQ(-3, raw[0].Number);
  EXPECT_EQ("not-a-mac", raw[0].Mac) << "text-form rows are taken as they stand";
  EXPECT_EQ(0u, LoadText("").GetCount());

  std::istringstream again(text);
  ArpTable imported;
  EXPECT_FALSE(imported.ImportArpTable(again, "h", 0)) << "the import has no text fallback";
  EXPECT_EQ(0u, imported.GetCount());
}

TEST(ArpTableLoad, FilesAndRoundTrip) {
  ArpTable t;
  t.SetHostname("edge, \"quoted\"");
  ArpRecord r = Row("10.1.1.1", "aabb.ccdd.eeff", "Port-channel1.100");
  r.Vendor = "Acme";
  t.InsertArpRecord(r);
  std::ostringstream out;
  ASSERT_TRUE(t.SaveArpTable(out));
  ArpTable back = LoadText(out.str());
  EXPECT_EQ("edge, \"quoted\"", back.GetHostname());
  ASSERT_EQ(1u, back.GetCount());
  EXPECT_EQ("Port-channel1.100", back[0].Interface);
  std::ostringstream failed;
  failed.setstate(std::ios::badbit);
  EXPECT_FALSE(t.SaveArpTable(failed));

  const std::string dir = MakeTempDir("arp");
  const std::string path = WriteFile(dir + "arp.csv", kHeader + "Gi1,1.1.1.1,0011.2233.4455\n");
  ArpTable f;
  ASSERT_TRUE(f.LoadArpTable(path, false));
  EXPECT_EQ(path, f.GetFileName());
  struct stat st {};
  ASSERT_EQ(0, ::stat(path.c_str(), &st));
  EXPECT_EQ(static_cast<int64_t>(st.st_mtime), f.GetTime());
  EXPECT_TRUE(f.LoadArpTable(path, true));  // check-only: the file is there
  EXPECT_FALSE(f.LoadArpTable(dir + "missing.csv", true));
  EXPECT_FALSE(f.LoadArpTable(dir + "missing.csv", false));

  ArpTable imported;
  ASSERT_TRUE(imported.ImportArpTable(path, "override", 0));
  EXPECT_EQ("override", imported.GetHostname());
  EXPECT_EQ("", imported.GetFileName());
  EXPECT_FALSE(imported.ImportArpTable(dir + "missing.csv", "x", 0));

  ASSERT_TRUE(f.SaveArpTable(dir + "saved.csv"));
  EXPECT_EQ(kHeader + "Gi1,1.1.1.1,0011.2233.4455,\n", ReadFile(dir + "saved.csv"));
  EXPECT_FALSE(f.ExportArpTable(dir + "no/such/folder/x.csv"));
}

// ---------------------------------------------------------------- index

TEST(ArpTableIndex, RepeatedAddressFindsTheFirstRowInBothStates) {
  ArpTable t = LoadText(kHeader + "Gi1,1.1.1.1,0011.2233.4455\nGi2,1.1.1.1,0011.2233.4466\n");
  // Repeated addresses made the load rebuild the index: it is valid now.
  EXPECT_EQ("Gi1", t.FindMacfromArpTable("1.1.1.1").Interface);
  ArpRecord extra = Row("", "x", "Gi9");
  t.InsertArpRecord(extra);  // three rows, index of one address (and the empty one): stale size shows
  EXPECT_EQ(" Rcd 3, index 2, ", t.GenLogOfUnmormalIndex());

  ArpTable walk = Table({Row("1.1.1.1", "a", "Gi1"), Row("1.1.1.1", "b", "Gi2")});
  EXPECT_EQ("", walk.GenLogOfUnmormalIndex()) << "an index never made valid reports nothing";
  EXPECT_EQ("Gi1", walk.FindMacfromArpTable("1.1.1.1").Interface);
  EXPECT_EQ("", walk.FindMacfromArpTable("1.1.1.2").Interface);

  // Insert offers empty addresses to the index, a rebuild skips them.
  ArpTable empty = Table({Row("", "a", "Gi1"), Row("1.1.1.1", "b", "Gi2")});
  empty.SetIndexValid();
  empty.RemoveArpRecord(9u);
  EXPECT_EQ(" Rcd 2, index 1, ", empty.GenLogOfUnmormalIndex());
}

TEST(ArpTableIndex, RemovingByPositionLeavesAValidIndexStale) {
  ArpTable t = LoadText(kHeader + "Gi1,1.1.1.1,0011.2233.4455\nGi2,2.2.2.2,0011.2233.4466\n");
  EXPECT_EQ("", t.GenLogOfUnmormalIndex()) << "distinct addresses leave the flag false";
  t.SetIndexValid();
  t.RemoveArpRecord(0u);
  EXPECT_EQ(" Rcd 1, index 2, ", t.GenLogOfUnmormalIndex());
  // Stale positions: 1.1.1.1 still points at position 0, which now holds Gi2;
  // 2.2.2.2 points past the end and finds nothing, with no fallback to the walk.
  EXPECT_EQ("Gi2", t.FindMacfromArpTable("1.1.1.1").Interface);
  EXPECT_EQ("", t.FindMacfromArpTable("2.2.2.2").Interface);

  t.RemoveArpRecord(5u);  // past the end: rebuilds a valid index
  EXPECT_EQ("", t.GenLogOfUnmormalIndex());
  EXPECT_EQ("Gi2", t.FindMacfromArpTable("2.2.2.2").Interface);
  EXPECT_EQ("", t.FindMacfromArpTable("1.1.1.1").Interface);
}

TEST(ArpTableIndex, RemovingByMacRebuildsAValidIndex) {
  ArpTable t = Table({Row("1.1.1.1", "a", "Gi1"), Row("2.2.2.2", "b", "Gi2"), Row("3.3.3.3", "a", "Gi3")});
  t.SetIndexValid();
  std::string mac = "a";
  t.RemoveArpRecord(mac);
  ASSERT_EQ(1u, t.GetCount());
  EXPECT_EQ("", t.GenLogOfUnmormalIndex());
  EXPECT_EQ("Gi2", t.FindMacfromArpTable("2.2.2.2").Interface);

  t.RemoveArpRecord(t[0].Mac);  // the text may be a field of the row it removes
  EXPECT_EQ(0u, t.GetCount());
}

// ---------------------------------------------------------------- filters

TEST(ArpTableFilter, SubstringMatchesAppendWithoutClearing) {
  ArpTable t = Table({Row("10.0.0.1", "aabb.ccdd.eeff", "GigabitEthernet0/1"), Row("10.0.1.1", "0011.2233.4455", "Vlan10")});
  ArpTable out = Table({Row("9.9.9.9", "x", "y")});
  t.FilterArpTableWithIp(out, ".0.0.");
  t.FilterArpTableWithMac(out, "CCDD");
  t.FilterArpTableWithPort(out, "vlan");
  ASSERT_EQ(4u, out.GetCount());
  EXPECT_EQ("9.9.9.9", out[0].Ip);
  EXPECT_EQ("10.0.0.1", out[2].Ip);
  EXPECT_EQ("10.0.1.1", out[3].Ip);

  ArpTable none;
  t.FilterArpTableWithIp(none, "10.0.0.1A");
  t.FilterArpTableWithPort(none, "");
  EXPECT_EQ(2u, none.GetCount()) << "no partial hit; an empty filter matches every row";
  ArpTable ipCase = Table({Row("fe80::A", "m", "i")}), hits;
  ipCase.FilterArpTableWithIp(hits, "fe80::a");
  EXPECT_EQ(0u, hits.GetCount()) << "the address filter keeps case";

  t.FilterArpTableWithIp(t, "10.");  // into itself: each row once
  EXPECT_EQ(4u, t.GetCount());
}

// ---------------------------------------------------------------- compare

// The compare as written, one quadratic pass after another.
std::vector<ArpRecordPair> ModelCompare(const std::vector<ArpRecord>& L, const std::vector<ArpRecord>& R,
                                        std::vector<ArpRecordPair> out) {
  auto eq = [](const std::string& a, const std::string& b) { return strcasecmp(a.c_str(), b.c_str()) == 0; };
  std::vector<bool> lm(L.size()), rm(R.size());
  for (size_t i = 0; i < L.size(); ++i)
    for (size_t j = 0; j < R.size(); ++j)
      if (!rm[j] && eq(L[i].Ip, R[j].Ip) && eq(L[i].Mac, R[j].Mac) && eq(L[i].Interface, R[j].Interface)) {
        lm[i] = rm[j] = true;
        out.push_back({L[i], R[j], 1});
        break;
      }
  for (size_t i = 0; i < L.size(); ++i) {
    if (lm[i]) continue;
    size_t j = 0;
    while (j < R.size() && (rm[j] || !eq(L[i].Ip, R[j].Ip))) ++j;
    if (j == R.size())
      out.push_back({L[i], ArpRecord(), 256});
    else
      out.push_back({L[i], R[j], eq(L[i].Mac, R[j].Mac) && eq(L[i].Interface, R[j].Interface) ? 1 : 16});
  }
  for (size_t j = 0; j < R.size(); ++j) {
    if (rm[j]) continue;
    bool seen = false;
    for (const auto& p : out) seen = seen || eq(p.Left.Ip, R[j].Ip);
    if (!seen) out.push_back({ArpRecord(), R[j], 4096});
  }
  return out;
}

TEST(ArpTableCompare, AgreesWithTheQuadraticModel) {
  std::mt19937 rng(7);
  auto pick = [&](std::initializer_list<const char*> from) {
    return std::string(from.begin()[rng() % from.size()]);
  };
  for (int round = 0; round < 300; ++round) {
    std::vector<ArpRecord> L, R;
    for (int side = 0; side < 2; ++side) {
      const int n = static_cast<int>(rng() % 7);
      for (int k = 0; k < n; ++k)
        (side ? R : L).push_back(Row(pick({"1.1.1.1", "1.1.1.2", "", "A.b"}), pick({"m1", "M1", "m2"}),
                                     pick({"Gi1", "gi1", "Gi2", ""})));
    }
    // A seeded earlier pair: the third pass looks at pairs it did not make.
    std::vector<ArpRecordPair> seed;
    if (round % 3 == 0) seed.push_back({Row(pick({"1.1.1.1", ""}), "s", "s"), ArpRecord(), 256});
    ArpTable l = Table(L), r = Table(R);
    std::vector<ArpRecordPair> got = seed;
    ArpTable().GetArpCompareResult(l, r, got);
    const std::vector<ArpRecordPair> want = ModelCompare(L, R, seed);
    ASSERT_EQ(want.size(), got.size()) << "round " << round;
    for (size_t k = 0; k < want.size(); ++k)
      EXPECT_TRUE(want[k].Result == got[k].Result && want[k].Left.Mac == got[k].Left.Mac &&
                  want[k].Right.Mac == got[k].Right.Mac && want[k].Right.Interface == got[k].Right.Interface)
          << "round " << round << " pair " << k;
  }
}

}  // namespace
