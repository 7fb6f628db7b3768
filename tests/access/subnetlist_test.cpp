// Subnet lists with their filters, and device lists with their binary forms.
#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <tuple>

#include "common/testenv.h"
#include "netloom/devicelistdata.h"
#include "netloom/routingtable.h"
#include "netloom/subnetlistdata.h"

namespace {

SubnetEntry Subnet(const char* address, int len, int filterType = 0) {
  SubnetEntry e;
  e.address = IpAddress(address).bitForm();
  e.mask = IpAddress::getBitMaskByLength(len);
  e.filterType = filterType;
  return e;
}

IpLocation Loc(const char* address, int len) { return IpLocation(IpAddress(address), len); }

// ---- subnet lists ----

TEST(SubnetList, EntriesAreKeyedByAddressAndMask) {
  SubnetListData list("watch", "core nets");
  EXPECT_EQ(list.AddSubnetEntry(Subnet("10.0.0.0", 8)), 1);
  EXPECT_EQ(list.AddSubnetEntry(Subnet("10.0.0.0", 8, 3)), 0);  // the filter type is no part of the key
  EXPECT_EQ(list.AddSubnetEntry(Subnet("10.0.0.0", 16)), 1);
  EXPECT_EQ(list.DelSubnetEntry(Subnet("10.0.0.0", 24)), 0);
  EXPECT_EQ(list.DelSubnetEntry(Subnet("10.0.0.0", 16)), 1);
  EXPECT_EQ(list.FindSubnetEntry(Subnet("10.0.0.0", 16)), 0);
  EXPECT_EQ(list.GetCount(), 1);

  SubnetListData other("other", "");
  other.AddSubnetEntry(Subnet("10.0.0.0", 8));
  other.AddSubnetEntry(Subnet("192.168.0.0", 16));
  list.AddSubnetList(&other);
  list.AddSubnetList(nullptr);
  EXPECT_EQ(list.GetCount(), 2);
}

TEST(SubnetList, FilterTypes) {
  // 0: same net; 1: the subnet summarises the route's location; 2: the
  // location is a supernet of the subnet; 3: the subnet's address lies in
  // the location; anything else matches nothing.
  const std::tuple<SubnetEntry, IpLocation, bool> cases[] = {
      {Subnet("10.1.0.0", 16, 0), Loc("10.1.0.0", 16), true},   {Subnet("10.1.0.0", 16, 0), Loc("10.1.0.0", 24), false},
      {Subnet("10.0.0.0", 8, 1), Loc("10.1.0.0", 16), true},    {Subnet("10.0.0.0", 8, 1), Loc("11.1.0.0", 16), false},
      {Subnet("10.0.0.0", 8, 1), Loc("0.0.0.0", 0), false},     {Subnet("10.1.2.0", 24, 2), Loc("10.1.0.0", 16), true},
      {Subnet("10.1.2.0", 24, 2), Loc("0.0.0.0", 0), true},     {Subnet("10.1.2.0", 24, 2), Loc("10.1.2.128", 25), false},
      {Subnet("10.1.2.3", 32, 3), Loc("10.1.0.0", 16), true},   {Subnet("10.1.2.3", 32, 3), Loc("10.2.0.0", 16), false},
      {Subnet("10.1.0.0", 16, 7), Loc("10.1.0.0", 16), false}};
  for (size_t i = 0; i < std::size(cases); ++i) {
    const auto& [entry, loc, want] = cases[i];
    EXPECT_EQ(SubnetListData::FilterEntry(entry, loc), want) << "case " << i;
  }

  SubnetListData list;
  EXPECT_FALSE(SubnetListData::FilterEntryList(list, Loc("10.1.0.0", 16)));
  list.AddSubnetEntry(Subnet("192.168.0.0", 16, 0));
  list.AddSubnetEntry(Subnet("10.1.2.3", 32, 3));
  EXPECT_TRUE(SubnetListData::FilterEntryList(list, Loc("10.1.0.0", 16)));
  EXPECT_FALSE(SubnetListData::FilterEntryList(list, Loc("172.16.0.0", 12)));
}

RoutingTableEntry Route(const char* dest, int len, const char* hop) {
  RoutingTableEntry e;
  e.DestIp = IpAddress(dest);
  e.DestMask = IpAddress(IpAddress::getBitMaskByLength(len));
  e.NextHop = IpAddress(hop);
  e.Alg = RT_ALG_STATIC;
  return e;
}

TEST(SubnetList, RouteTableFilters) {
  RoutingTable table("r1");
  const RoutingTableEntry routes[] = {Route("10.1.0.0", 16, "10.0.0.1"), Route("10.1.2.0", 24, "10.0.0.2"),
                                      Route("172.16.0.0", 12, "10.0.0.1")};
  for (const auto& r : routes) table.AddRoute(&r);
  table.GenerateNetworkMap();

  SubnetEntry covering = Subnet("10.0.0.0", 8, 1);
  EXPECT_EQ(table.FilterSubnet(covering, nullptr), (std::set<unsigned>{1, 2}));
  std::set<unsigned> only = {2, 3, 99};
  EXPECT_EQ(table.FilterSubnet(covering, &only), (std::set<unsigned>{2}));

  SubnetListData list;
  list.AddSubnetEntry(covering);
  std::set<unsigned> hops = {IpAddress("10.0.0.1").bitForm()};
  std::set<unsigned> none;
  std::pair<RTFilterStruct, std::set<unsigned>> combinations[] = {
      {{&list, &hops}, {1}}, {{nullptr, &hops}, {1, 3}}, {{nullptr, &none}, {}}, {{}, {1, 2, 3}}};
  for (size_t i = 0; i < std::size(combinations); ++i)
    EXPECT_EQ(table.FilterCombination(combinations[i].first, nullptr), combinations[i].second) << i;

  // Routes that carry each subnet's address: the longest prefix.
  SubnetListData hosts;
  // Nothing carries the last one, and there is no default route.
  for (const char* host : {"10.1.2.9", "10.1.3.9", "192.0.2.1"}) hosts.AddSubnetEntry(Subnet(host, 32));
  EXPECT_EQ(table.FilterSubnetList(hosts, nullptr), (std::set<unsigned>{1, 2}));
  std::set<unsigned> first = {1};
  EXPECT_EQ(table.FilterSubnetList(hosts, &first), (std::set<unsigned>{1}));
}

// ---- device lists ----

TEST(DeviceList, TwoSetsNamesWithoutCase) {
  DeviceListData list("core", "core routers");
  EXPECT_EQ(list.AddDeviceEntry(DeviceEntry("R1", 1)), 1);
  EXPECT_EQ(list.AddDeviceEntry(DeviceEntry("r1", 2)), 0);
  EXPECT_EQ(list.DelDeviceEntry(DeviceEntry("R9")), 0);
  EXPECT_EQ(list.DelDeviceEntry(DeviceEntry("r1")), 1);
  EXPECT_EQ(list.GetSize(), 0);

  EXPECT_EQ(list.AddDeviceEntry2(DeviceEntry("a"), 1), 1);
  EXPECT_EQ(list.AddDeviceEntry2(DeviceEntry("b"), 3), 1);
  EXPECT_EQ(list.AddDeviceEntry2(DeviceEntry("B"), 3), 0);
  EXPECT_EQ(list.AddDeviceEntry2(DeviceEntry("c"), 2), 1);
  EXPECT_EQ(std::make_pair(list.GetSize(), list.GetSize2()), std::make_pair(2, 2));
  // 0 found where asked, -2 found in the other set, -1 nowhere (or bad set).
  const std::tuple<const char*, int, int> finds[] = {{"a", 1, 0},  {"a", 2, -1}, {"b", 3, 0},
                                                     {"c", 3, -2}, {"z", 3, -1}, {"a", 4, -1}};
  for (const auto& [name, set, want] : finds) EXPECT_EQ(list.FindDeviceEntry2(DeviceEntry(name), set), want) << name;
  EXPECT_EQ(list.GetDeviceList().size(), 3u);
  EXPECT_EQ(list.DelDeviceEntry2(DeviceEntry("b"), 3), 2);
  EXPECT_EQ(list.GetDeviceList().size(), 2u);
  list.RemoveAllEntry2(2);
  EXPECT_TRUE(list.GetSecondDeviceList().empty());
  EXPECT_EQ(list.GetSize2(), 1);  // sizes stay as they were
  list.RemoveAllEntry();
  EXPECT_TRUE(list.GetDeviceList().empty());
}

// Every field of the saved form set, in both sets and the dynamic part.
DeviceListData FullList() {
  DeviceListData list("core", "core routers");
  list.SetUseColor(true), list.SetColor(0x00FF8800), list.SetType(4), list.SetIsSystemCreate(true);
  list.SetPublic(true), list.SetGroupIDInDB(17);
  list.AddDeviceEntry(DeviceEntry("R1", 5)), list.AddDeviceEntry(DeviceEntry("r2", -3));
  list.AddDeviceEntry2(DeviceEntry("sw1", 9), 2);
  list.SetDyString("vendor == 'x'"), list.SetDyContainerType(2), list.SetDyContainerData({{1, "one"}, {2, ""}});
  return list;
}

TEST(DeviceListFile, SavedListReloads) {
  const DeviceListData list = FullList();
  const TWGuid2 guid = TWGuid2::NewGuid();
  std::string bytes;
  ASSERT_TRUE(list.SaveToString(bytes, guid));
  EXPECT_EQ(bytes.substr(0, 4), std::string("\x40\x01\x00\x00", 4));

  // Read back and written again, the bytes are the same: no field is lost.
  DeviceListData back;
  ASSERT_TRUE(back.LoadFromString(bytes, TWGuid2()));
  // One field from each part, so a field both sides skip shows too.
  EXPECT_EQ(back.GetName(), "core");
  EXPECT_EQ(back.GetColor(), 0x00FF8800u);
  EXPECT_EQ(back.GetSecondDeviceList().size(), 1u);
  EXPECT_EQ(back.GetDyContainerData(), list.GetDyContainerData());
  std::string again;
  ASSERT_TRUE(back.SaveToString(again, guid));
  EXPECT_EQ(again, bytes);

  const std::string dir = netloom_test::MakeTempDir("devlist");
  ASSERT_TRUE(list.Save(dir + "core.dl", guid));
  DeviceListData fromFile, headOnly;
  ASSERT_TRUE(fromFile.Load(dir + "core.dl", guid));
  ASSERT_TRUE(fromFile.SaveToString(again, guid));
  EXPECT_EQ(again, bytes);
  ASSERT_TRUE(headOnly.LoadHead(dir + "core.dl", guid));
  EXPECT_EQ(headOnly.GetName(), "core");
  EXPECT_TRUE(headOnly.GetDeviceList2().empty());
  EXPECT_FALSE(fromFile.Load(dir + "missing.dl", guid));

  // A group id of -1 is written, but leaves the reader's field alone.
  DeviceListData noGroup = FullList();
  noGroup.SetGroupIDInDB(-1);
  ASSERT_TRUE(noGroup.SaveToString(bytes, guid));
  back.SetGroupIDInDB(42);
  ASSERT_TRUE(back.LoadFromString(bytes, guid));
  EXPECT_EQ(back.GetGroupIDInDB(), 42);
}

// Bytes of the forms before 320, written by hand.
class Bytes {
 public:
  Bytes& Word(uint32_t v) {
    for (int i = 0; i < 4; ++i) s_.push_back(char(v >> (8 * i) & 0xFF));
    return *this;
  }
  Bytes& Text(const std::string& t) {
    Word(uint32_t(t.size() + 1));
    s_ += t;
    s_.push_back('\0');
    return *this;
  }
  const std::string& str() const { return s_; }

 private:
  std::string s_;
};

Bytes OldHead(int count) {
  Bytes b;
  b.Word(0x80000000).Text("old").Word(0x40000000).Text("list").Word(0x20000000).Word(1);
  b.Word(0x10000000).Word(7).Word(0x08000000).Word(count).Word(0x04000000).Word(2).Word(0x02000000).Word(0);
  return b;
}

TEST(DeviceListFile, OlderForms) {
  // Version 300: the first set, and nothing of the second set or the dynamic data.
  Bytes b300;
  b300.Word(300);
  std::string bytes300 = b300.str() + OldHead(1).str();
  Bytes tail300;
  tail300.Word(0x00400000).Word(1).Word(0x00200000).Word(5).Word(0x01000000).Text("R7").Word(70);
  bytes300 += tail300.str();
  DeviceListData list = FullList();
  ASSERT_TRUE(list.LoadFromString(bytes300, TWGuid2()));
  EXPECT_EQ(list.GetName(), "old");
  EXPECT_EQ(list.GetColor(), 7u);
  EXPECT_EQ(list.GetGroupIDInDB(), 5);
  ASSERT_EQ(list.GetDeviceList2().size(), 1u);
  EXPECT_EQ(list.GetDeviceList2().begin()->Name, "R7");
  EXPECT_EQ(list.GetSecondDeviceList().size(), 1u);  // left alone
  EXPECT_EQ(list.GetDyString(), "vendor == 'x'");

  // No version word and no public flag: the head ends behind the system flag.
  Bytes entries;
  entries.Word(0x01000000).Text("R8").Word(80).Word(0x01000000).Text("R9").Word(90);
  DeviceListData oldest;
  ASSERT_TRUE(oldest.LoadFromString(OldHead(2).str() + entries.str(), TWGuid2()));
  EXPECT_EQ(oldest.GetDeviceList2().size(), 2u);
  EXPECT_FALSE(oldest.IsPublic());
  DeviceListData headOnly;
  ASSERT_TRUE(headOnly.LoadFromString(OldHead(0).str(), TWGuid2()));
  EXPECT_EQ(headOnly.GetName(), "old");
}

TEST(DeviceListFile, DamagedFilesFail) {
  DeviceListData list;
  Bytes noTag;
  noTag.Word(0x7FFFFFFF).Word(0);
  EXPECT_FALSE(list.LoadFromString(noTag.str(), TWGuid2()));
  EXPECT_FALSE(list.LoadFromString("", TWGuid2()));

  // Version 320 needs the public flag.
  Bytes v320;
  v320.Word(320);
  EXPECT_FALSE(list.LoadFromString(v320.str() + OldHead(0).str(), TWGuid2()));

  // An entry without its tag, or a name longer than its buffer.
  Bytes badEntry;
  badEntry.Word(0x02000000).Text("R1").Word(1);
  EXPECT_FALSE(list.LoadFromString(OldHead(1).str() + badEntry.str(), TWGuid2()));
  Bytes longName;
  longName.Word(0x01000000).Text(std::string(1024, 'n')).Word(1);
  EXPECT_FALSE(list.LoadFromString(OldHead(1).str() + longName.str(), TWGuid2()));

  // Every cut of a good file fails or loads a prefix, never more.
  std::string good;
  ASSERT_TRUE(FullList().SaveToString(good, TWGuid2()));
  for (size_t n = 0; n < good.size(); ++n) {
    DeviceListData cut;
    EXPECT_FALSE(cut.LoadFromString(good.substr(0, n), TWGuid2())) << n;
  }

  std::mt19937 rng(99);
  for (int round = 0; round < 300; ++round) {
    std::string junk = good;
    for (int k = 0; k < 4; ++k) junk[rng() % junk.size()] = char(rng());
    DeviceListData any;
    any.LoadFromString(junk, TWGuid2());
  }
}

}  // namespace
