// STP rows per VLAN and the bound-interface set: parsing, ordering, file forms.
#include <gtest/gtest.h>

#include <fstream>

#include "common/testenv.h"
#include "netloom/boundinterfacetable.h"
#include "netloom/stptable.h"

namespace {
const char* kStp =
    "version:100,name:sw1\r\n"
    "ID,Blockedport,VLAN\r\n"
    "1,Gi0/1,VLAN0010\r\n"
    "2,Gi0/1,VLAN0020\r\n"
    "3,Gi0/2,VLAN0010\r\n"
    "4,short\r\n";

BoundInterface Entry(const std::string& dev, const std::string& intf, const std::string& loc, int id = 0,
                     const std::string& desc = "") {
  BoundInterface b;
  b.DeviceName = dev;
  b.Interface = intf;
  b.IpAddress = IpLocation(loc);
  b.Id = id;
  b.Description = desc;
  return b;
}
}  // namespace

TEST(StpTable, ParsesRowsAndKeepsTextVerbatim) {
  STPTable t;
  ASSERT_TRUE(t.LoadStpData(kStp));
  EXPECT_EQ(t.GetDeviceName(), "sw1");
  ASSERT_EQ(t.GetCount(), 3u);  // the two-field row is skipped
  EXPECT_EQ(t[1].Vlan, "VLAN0020");
  EXPECT_TRUE(t[0].Blocked);

  const std::string dir = netloom_test::MakeTempDir("stp");
  ASSERT_TRUE(t.SaveToFile((dir + "out.csv").c_str()));
  EXPECT_EQ(netloom_test::ReadFile(dir + "out.csv"), kStp);

  std::set<int> out;
  EXPECT_EQ(t.GetBlockedVlans("Gi0/1", {10}, out), 1);
  EXPECT_EQ(out, std::set<int>{10});
}

TEST(StpTable, HeaderChecksAndNameCutAtCarriageReturn) {
  STPTable t;
  EXPECT_TRUE(t.LoadStpData("version:1000,x name:edge\r\nID,Blockedport,VLAN\n"));  // prefix only
  EXPECT_EQ(t.GetDeviceName(), "edge");
  EXPECT_EQ(t.GetCount(), 0u);
  EXPECT_FALSE(t.LoadStpData("version:10,name:a\nID,Blockedport,VLAN\n"));
  EXPECT_FALSE(t.LoadStpData("version:100,name:a\nID,Port,VLAN\n"));
  EXPECT_FALSE(t.LoadStpData("version:100\n"));
  EXPECT_FALSE(t.LoadStpData(""));
  EXPECT_FALSE(t.LoadStpData(nullptr));
  EXPECT_TRUE(t.GetText().empty());  // a failed load leaves no text behind
}

TEST(StpTable, VlanWordIsCutWhereverItStands) {
  STPTable t;
  ASSERT_TRUE(t.LoadStpData("version:100,name:a\nID,Blockedport,VLAN\n1,p,30\n2,p,id vlan 40\n3,p,Vlan50\n"));
  std::set<int> out;
  EXPECT_EQ(t.GetBlockedVlans("p", {30, 40, 50, 0}, out), 3);
  EXPECT_EQ(out, (std::set<int>{0, 30, 50}));  // "id vlan 40" loses "id v" and reads as 0
}

TEST(StpTable, CompareIsPerVlanAndOrderSensitive) {
  STPTable l, r, any;
  ASSERT_TRUE(l.LoadStpData("version:100,name:a\nID,Blockedport,VLAN\n1,p1,V1\n2,p2,V1\n3,p3,V2\n4,p4,V3\n"));
  ASSERT_TRUE(r.LoadStpData("version:100,name:b\nID,Blockedport,VLAN\n1,p2,V1\n2,p1,V1\n3,p3,V2\n4,p5,V4\n"));
  std::vector<STPTablePair> out;
  any.GetStpCompareResult(l, r, out);
  ASSERT_EQ(out.size(), 4u);
  EXPECT_EQ(out[0].Left.BlockedPort, "p1,p2");
  EXPECT_EQ(out[0].Right.BlockedPort, "p2,p1");
  EXPECT_EQ(out[0].Code, 16);
  EXPECT_EQ(out[1].Code, 1);
  EXPECT_EQ(out[2].Code, 256);
  EXPECT_EQ(out[3].Code, 4096);
  EXPECT_EQ(out[3].Right.Vlan, "V4");
}

TEST(StpTable, BinaryFileSizeBound) {
  const std::string dir = netloom_test::MakeTempDir("stp");
  std::string text = "version:100,name:big\nID,Blockedport,VLAN\n1,p,V1\n";
  std::string exact = text + std::string(10000000 - text.size(), 'x');
  netloom_test::WriteFile(dir + "exact.bin", exact);
  netloom_test::WriteFile(dir + "over.bin", exact + "x");
  STPTable t;
  EXPECT_TRUE(t.ParseBinfile((dir + "exact.bin").c_str()));
  EXPECT_FALSE(t.ParseBinfile((dir + "over.bin").c_str()));
  EXPECT_FALSE(t.ParseBinfile((dir + "missing.bin").c_str()));
  EXPECT_FALSE(t.ParseBinfile(""));
}

TEST(BoundInterfaceTable, UniquenessIgnoresCaseAndKeepsFirst) {
  BoundInterfaceTable t;
  EXPECT_TRUE(t.AddEntry(Entry("R1", "Gi0/1", "1.1.1.1 255.255.255.0", 1, "first")));
  EXPECT_FALSE(t.AddEntry(Entry("r1", "gi0/1", "1.1.1.1 255.255.255.0", 2, "second")));
  ASSERT_EQ(t.GetAllEntries().size(), 1u);
  EXPECT_EQ(t.GetAllEntries().begin()->Description, "first");
  EXPECT_TRUE(t.AddEntry(Entry("R1", "Gi0/1", "1.1.1.1 255.255.0.0")));
  EXPECT_EQ(t.GetAllEntries().begin()->IpAddress.subnetMask().textForm(), "255.255.0.0");  // smaller mask first
  EXPECT_TRUE(t.DeleteEntry(Entry("R1", "Gi0/1", "1.1.1.1 255.255.0.0")));
  EXPECT_FALSE(t.DeleteEntry(Entry("R1", "Gi0/1", "1.1.1.1 255.255.0.0")));
}

TEST(BoundInterfaceTable, FindEntriesStopsAtOtherSpelling) {
  BoundInterfaceTable t;
  t.AddEntry(Entry("R1", "Gi0/1", "1.1.1.1 255.255.255.255"));
  t.AddEntry(Entry("R1", "Gi0/1", "1.1.1.2 255.255.255.255"));
  t.AddEntry(Entry("R1", "Gi0/2", "1.1.1.3 255.255.255.255"));
  t.AddEntry(Entry("R2", "Gi0/1", "1.1.1.4 255.255.255.255"));
  EXPECT_EQ(t.FindEntries("R1", "Gi0/1").size(), 2u);
  EXPECT_EQ(t.FindEntries("R1").size(), 3u);
  EXPECT_TRUE(t.FindEntries("R9").empty());
  EXPECT_TRUE(t.FindEntries("r1").empty());
}

class BoundFile : public BoundInterfaceTable {
 public:
  using BoundInterfaceTable::LoadFromStream;
};

TEST(BoundInterfaceTable, FileRoundTripSkipsBadRowsAndAppends) {
  const std::string dir = netloom_test::MakeTempDir("bit");
  BoundInterfaceTable t;
  t.AddEntry(Entry("R1", "Gi0/1", "10.0.0.1 255.255.255.0", 7, "to ISP, primary"));
  t.AddEntry(Entry("R2", "Gi0/2", "10.0.1.1 255.255.255.252", 8, ""));
  ASSERT_TRUE(t.SaveToFile(dir + "b.csv"));
  BoundInterfaceTable back;
  ASSERT_TRUE(back.LoadFromFile(dir + "b.csv"));
  ASSERT_EQ(back.GetAllEntries().size(), 2u);
  EXPECT_EQ(back.GetAllEntries().begin()->Description, "to ISP, primary");
  EXPECT_EQ(back.GetAllEntries().begin()->Id, 7);

  // Saving again appends a second copy behind the first.
  ASSERT_TRUE(t.SaveToFile(dir + "b.csv"));
  const std::string twice = netloom_test::ReadFile(dir + "b.csv");
  EXPECT_EQ(twice.find("Internet Bound Interface"), twice.rfind("Internet Bound Interface") - twice.size() / 2);

  BoundFile f;
  std::istringstream bad("anything at all\nId,Device Name,Device Type,Interface,IP Address,Description\n"
                         "1,R1,2,Gi0/1,1.1.1.1 255.0.0.0\n2,R1,2,Gi0/2,1.1.1.2 255.0.0.0,d\n");
  ASSERT_TRUE(f.LoadFromStream(bad));
  EXPECT_EQ(f.GetAllEntries().size(), 1u);
  std::istringstream wrongHead("x\nId,Device,Device Type,Interface,IP Address,Description\n");
  EXPECT_FALSE(f.LoadFromStream(wrongHead));
  EXPECT_EQ(f.GetAllEntries().size(), 1u);  // untouched
  std::istringstream onlyHead("x\nId,Device Name,Device Type,Interface,IP Address,Description\n");
  EXPECT_TRUE(f.LoadFromStream(onlyHead));
  EXPECT_TRUE(f.GetAllEntries().empty());
}
