// Route table comparison: difference codes, unknown values, removed routes
// carried by a covering route, load-balanced groups, keyed comparison,
// subnet lists and the saved comparison file.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "common/testenv.h"
#include "netloom/routingtablecmp.h"
#include "netloom/subnetlistdata.h"

namespace {

using Row = std::tuple<unsigned, unsigned, unsigned>;

RoutingTableEntry Route(const char* dest, int len, const char* hop, const char* outIf, unsigned metric = 20,
                        unsigned short distance = 110) {
  RoutingTableEntry e;
  e.DestIp = IpAddress(dest);
  e.DestMask = IpAddress(IpAddress::getBitMaskByLength(len));
  e.NextHop = IpAddress(hop);
  e.OutIf = outIf;
  e.Distance = distance;
  e.Metric = metric;
  e.Alg = RT_ALG_OSPF;
  return e;
}

// Adds routes in order, so the n-th route has Index n; builds the map.
void Fill(RoutingTable& table, const std::vector<RoutingTableEntry>& routes) {
  for (const auto& r : routes) table.AddRoute(&r);
  table.GenerateNetworkMap();
}

struct Pair {
  RoutingTable src{"left"}, dst{"right"};
  RTCmpElement a, b;
  RoutingTableCmp cmp;
  Pair(const std::vector<RoutingTableEntry>& left = {}, const std::vector<RoutingTableEntry>& right = {})
      : cmp(&a, &b) {
    a.Table = &src;
    b.Table = &dst;
    Fill(src, left);
    Fill(dst, right);
  }
  std::vector<Row> Run(bool keepEqual = true) {
    EXPECT_TRUE(cmp.CompareRT(keepEqual, nullptr));
    return Rows();
  }
  std::vector<Row> Rows() {
    std::vector<Row> rows;
    for (const RTCmpEntry& e : cmp.GetCmpEntryList()) rows.emplace_back(e.Code, e.SrcIndex, e.DstIndex);
    return rows;
  }
};

TEST(RouteCmp, FieldDifferencesAndUnknownValues) {
  Pair p({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 20), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1", 0xFFFFFFFF),
               Route("10.3.0.0", 16, "10.0.0.1", "Vlan1", 20, 65535), Route("10.4.0.0", 16, "10.0.0.1", "Vlan1")});
  RoutingTableEntry changedAll = Route("10.4.0.0", 16, "10.0.0.9", "Vlan9", 21, 90);
  changedAll.Alg = RT_ALG_EIGRP;
  Fill(p.dst, {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 30), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1", 5),
               Route("10.3.0.0", 16, "10.0.0.1", "Vlan1", 20, 90), changedAll});
  EXPECT_EQ(p.Run(false), (std::vector<Row>{{0x200, 1, 1}, {0x2000 | 0x1000 | 0x800 | 0x400 | 0x200, 4, 4}}));
  EXPECT_EQ(p.cmp.GetEqualCount(), 2u);

  Pair q;
  Fill(q.src, {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 20)});
  Fill(q.dst, {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 30)});
  q.cmp.setFlag(RoutingTableCmp::kIgnoreMetric);
  EXPECT_EQ(q.Run(true), (std::vector<Row>{{0, 1, 1}}));
  // Any other bit in the flag word brings the metric test back.
  q.cmp.setFlag(4);
  EXPECT_EQ(q.Run(true), (std::vector<Row>{{0x200, 1, 1}}));
}

TEST(RouteCmp, RemovedRoutesAndNewRoutes) {
  Pair p({Route("10.1.1.0", 24, "10.0.0.1", "Vlan1", 20),  // carried on by the /16 that remains
               Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 30),
               Route("192.168.1.0", 24, "10.0.0.1", "Vlan1"),   // nothing covers it
               Route("10.2.1.0", 24, "10.0.0.7", "Vlan1"),      // the /16 goes elsewhere
               Route("10.2.0.0", 16, "10.0.0.1", "Vlan1")},
         {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 30), Route("172.16.0.0", 12, "10.0.0.1", "Vlan1"),
               Route("10.2.0.0", 16, "10.0.0.1", "Vlan1")});
  EXPECT_EQ(p.Run(false), (std::vector<Row>{{0x4000, 0, 2},
                                            {0x8000, 4, 0},
                                            {0x8000, 3, 0},
                                            {0x8000 | 0x8 | 0x200, 1, 1}}));
  EXPECT_EQ(p.cmp.GetEqualCount(), 2u);
}

TEST(RouteCmp, LoadBalancedGroups) {
  // Two against two, one path changed: the whole group is marked.
  Pair p({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.1.0.0", 16, "10.0.0.2", "Vlan2")},
         {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.1.0.0", 16, "10.0.0.3", "Vlan3")});
  EXPECT_EQ(p.Run(false), (std::vector<Row>{{0x100, 1, 1}, {0x100, 2, 2}}));
  EXPECT_EQ(p.cmp.GetEqualCount(), 0u);

  // Two against three: the third path has no partner.
  Pair q({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.1.0.0", 16, "10.0.0.2", "Vlan2")},
         {Route("10.1.0.0", 16, "10.0.0.2", "Vlan2"), Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"),
               Route("10.1.0.0", 16, "10.0.0.3", "Vlan3")});
  EXPECT_EQ(q.Run(false), (std::vector<Row>{{0x100, 1, 2}, {0x100, 2, 1}, {0x100, 0, 3}}));

  // The same paths in another order are an equal group.
  Pair r({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.1.0.0", 16, "10.0.0.2", "Vlan2")},
         {Route("10.1.0.0", 16, "10.0.0.2", "Vlan2"), Route("10.1.0.0", 16, "10.0.0.1", "Vlan1")});
  EXPECT_TRUE(r.Run(false).empty());
  EXPECT_EQ(r.cmp.GetEqualCount(), 2u);
  // Kept pairs are listed; the count goes on adding across runs.
  EXPECT_EQ(r.Run(true), (std::vector<Row>{{0, 1, 2}, {0, 2, 1}}));
  EXPECT_EQ(r.cmp.GetEqualCount(), 4u);
}

TEST(RouteCmp, SelectedIndexesAndNullSides) {
  Pair p({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1")},
         {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1")});
  std::set<unsigned> first = {1};
  p.a.Indexes = &first;
  EXPECT_EQ(p.Run(false), std::vector<Row>{});

  RoutingTableCmp noSides(nullptr, nullptr);
  EXPECT_FALSE(noSides.CompareRT(true, nullptr));
  RTCmpElement empty;
  RoutingTableCmp nullTable(&p.a, &empty);
  EXPECT_FALSE(nullTable.CompareRT(true, nullptr));

  // A subnet list limits both sides.
  Pair s({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1")},
         {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.2.0.0", 16, "10.0.0.9", "Vlan1")});
  SubnetListData subnets("watch", "");
  SubnetEntry host;
  host.address = IpAddress("10.1.2.3").bitForm();
  host.mask = 0xFFFFFFFF;
  subnets.AddSubnetEntry(host);
  ASSERT_TRUE(s.cmp.CompareRT(false, &subnets));
  EXPECT_TRUE(s.Rows().empty());
  EXPECT_EQ(s.cmp.GetEqualCount(), 1u);
}

TEST(RouteCmp, KeyedComparisonPairsByKeyAndTestsTheRest) {
  Pair p({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1")},
         {Route("10.1.0.0", 24, "10.0.0.1", "Vlan1"), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1", 99)});
  // Keyed by address alone: the /16 and the /24 pair up and differ in their mask.
  ASSERT_TRUE(p.cmp.CompareRTEx(false, nullptr, {CI_DEST_IP}));
  EXPECT_EQ(p.Rows(), (std::vector<Row>{{0x200, 2, 2}, {0x10000, 1, 1}}));

  // Keyed by address and mask: the /16 is gone and the /24 new; the search
  // for a comparable route goes by address, so the /24 is named as carrier.
  Pair q({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1"), Route("10.7.0.0", 16, "10.0.0.1", "Vlan1")},
         {Route("10.1.0.0", 24, "10.0.0.1", "Vlan1")});
  ASSERT_TRUE(q.cmp.CompareRTEx(false, nullptr, {CI_DEST_IP, CI_DEST_MASK}));
  EXPECT_EQ(q.Rows(), (std::vector<Row>{{0x4000, 0, 1}, {0x8000, 2, 0}, {0x8008, 1, 1}}));

  // Unknown values count in the keyed test.
  Pair r({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 0xFFFFFFFF)},
         {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 5)});
  ASSERT_TRUE(r.cmp.CompareRTEx(false, nullptr, {CI_DEST_IP, CI_DEST_MASK}));
  EXPECT_EQ(r.Rows(), (std::vector<Row>{{0x200, 1, 1}}));
  ASSERT_TRUE(r.cmp.CompareRTEx(false, nullptr, {CI_DEST_IP, CI_DEST_MASK, CI_METRIC}));
  EXPECT_TRUE(r.Rows().empty());

}

TEST(RouteCmpFile, SavedComparisonRoundTrips) {
  const std::string dir = netloom_test::MakeTempDir("cmp");
  Pair p({Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 20), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1"),
               Route("10.3.0.0", 16, "10.0.0.1", "Vlan1")},
         {Route("10.1.0.0", 16, "10.0.0.1", "Vlan1", 30), Route("10.2.0.0", 16, "10.0.0.1", "Vlan1"),
               Route("10.4.0.0", 16, "10.0.0.1", "Vlan1")});
  p.Run(false);
  ASSERT_EQ(p.cmp.GetCmpEntryList().size(), 3u);
  p.cmp.GetCmpEntryList().pop_back();
  const std::string path = dir + "cmp.bin";
  ASSERT_TRUE(p.cmp.SaveRTCmpData(path.c_str()));
  EXPECT_EQ(std::filesystem::file_size(path), 33u);
  const std::string bytes = netloom_test::ReadFile(path);
  EXPECT_EQ(bytes.substr(0, 7), std::string("\x80\x00\x40\x01\x00\x00\x00", 7));
  EXPECT_EQ(bytes.substr(7, 13), std::string("\x00\x00\x02\x00\x00\x01\x00\x00\x00\x01\x00\x00\x00", 13));

  RoutingTableCmp back;
  ASSERT_TRUE(back.ReadRTCmpData(path.c_str()));
  EXPECT_FALSE(back.GetKeepEqual());
  EXPECT_EQ(back.GetEqualCount(), 1u);
  ASSERT_EQ(back.GetCmpEntryList().size(), 2u);
  EXPECT_EQ(back.GetCmpEntryList()[1].Code, p.cmp.GetCmpEntryList()[1].Code);
  EXPECT_EQ(back.GetCmpEntryList()[1].DstIndex, p.cmp.GetCmpEntryList()[1].DstIndex);
}

TEST(RouteCmpFile, BrokenComparisonFilesAreRefused) {
  const std::string dir = netloom_test::MakeTempDir("cmp");
  RoutingTableCmp cmp;
  auto read = [&](const std::string& bytes) {
    return cmp.ReadRTCmpData(netloom_test::WriteFile(dir + "c.bin", bytes).c_str());
  };
  EXPECT_TRUE(read(std::string("\x80\x01\x40\x00\x00\x00\x00", 7)));
  EXPECT_TRUE(cmp.GetKeepEqual());
  EXPECT_TRUE(cmp.GetCmpEntryList().empty());
  for (const std::string& bad : {std::string("\x00\x01\x40\x00\x00\x00\x00", 7), std::string("\x80\x01\x00\x00\x00\x00\x00", 7),
                                 std::string("\x80\x01\x40\x00\x00", 5), std::string(),
                                 std::string("\x80\x01\x40\x00\x00\x00\x00\x00\x01\x02", 10) /* a cut record */})
    EXPECT_FALSE(read(bad));
  EXPECT_FALSE(cmp.ReadRTCmpData((dir + "missing.bin").c_str()));
  EXPECT_FALSE(cmp.SaveRTCmpData((dir + "no/such/dir.bin").c_str()));
}

}  // namespace
