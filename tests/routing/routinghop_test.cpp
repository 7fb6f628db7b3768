// Routing hops (feature bits, equality, the joined-text order) and the
// route messages that own their entries.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "netloom/routinghop.h"
#include "netloom/routingtable.h"

namespace {

RoutingHop SampleHop() {
  return RoutingHop("core1", IpLocation(0x0A010000u, 0xFFFF0000u), IpAddress(0xC0A80102u), "edge2",
                    "GigabitEthernet0/1", RT_ALG_OSPF);
}

TEST(RoutingHopFeatures, BitTestsAndEachSetterOwnsOneBit) {
  EXPECT_TRUE(RoutingHop::IsHopHasFeature(RoutingHop::RHT_LB | RoutingHop::RHT_L2, RoutingHop::RHT_L2));
  EXPECT_FALSE(RoutingHop::IsHopHasFeature(RoutingHop::RHT_LB, RoutingHop::RHT_LB | RoutingHop::RHT_L2));
  EXPECT_TRUE(RoutingHop::IsHopHasFeature(RoutingHop::RHT_GLBP, RoutingHop::RHT_NOMAL));
  EXPECT_EQ(RoutingHop::SetHopFeature(5, 4, false), 1);
  EXPECT_EQ(RoutingHop::SetHopFeature(5, 4, true), 5);

  using Setter = void (RoutingHop::*)(bool);
  using Getter = bool (RoutingHop::*)() const;
  const struct { Setter set; Getter get; int bit; } cases[] = {
      {&RoutingHop::setLoadBalance, &RoutingHop::isLoadBalance, 1}, {&RoutingHop::setMaster, &RoutingHop::isMaster, 2},
      {&RoutingHop::setStandby, &RoutingHop::isStandby, 4},         {&RoutingHop::setFromFixup, &RoutingHop::isFromFixup, 8},
      {&RoutingHop::setFromCli, &RoutingHop::isFromCli, 16},        {&RoutingHop::setFromSNMP, &RoutingHop::isFromSNMP, 32},
      {&RoutingHop::setL2Hop, &RoutingHop::isL2Hop, 64},            {&RoutingHop::setUseHSRP, &RoutingHop::isUseHSRP, 128},
      {&RoutingHop::setUseVRRP, &RoutingHop::isUseVRRP, 256},       {&RoutingHop::setUseGLBP, &RoutingHop::isUseGLBP, 512},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.bit);
    RoutingHop hop("r1");
    (hop.*c.set)(true);
    EXPECT_EQ(hop.Features, c.bit);
    EXPECT_TRUE((hop.*c.get)());
    hop.Features = 0x3FF;  // the others stay as they are
    (hop.*c.set)(false);
    EXPECT_EQ(hop.Features, 0x3FF & ~c.bit);
    EXPECT_FALSE((hop.*c.get)());
  }
}

TEST(RoutingHopBuild, FromRouteAndLiveEntries) {
  EXPECT_EQ(RoutingHop("core1").DeviceType, 1036);
  RoutingTableEntry entry;
  entry.DestIp = IpAddress(0x0A010000u);
  entry.DestMask = IpAddress(0xFFFF0000u);
  entry.NextHop = IpAddress(0xC0A80102u);
  entry.OutIf = "GigabitEthernet0/1";
  entry.NextDevice = "edge2";
  entry.Alg = RT_ALG_OSPF;
  const RoutingHop hop("core1", entry, nullptr);
  EXPECT_TRUE(hop == SampleHop());
  EXPECT_EQ(hop.OutInterface, "GigabitEthernet0/1");

  LiveRtEntry live;
  live.DestText = "10.1.0.0";
  live.MaskText = "255.255.0.0";
  live.NextHopText = "192.168.1.2";
  live.IfName = "GigabitEthernet0/1";
  live.RouteType = 4;
  live.RouteProto = 13;  // ospf
  EXPECT_TRUE(RoutingHop("core1", live, nullptr) == RoutingHop("core1", IpLocation(0x0A010000u, 0xFFFF0000u),
                                                               IpAddress(0xC0A80102u), "", "GigabitEthernet0/1",
                                                               RT_ALG_OSPF));
}

TEST(RoutingHopCompare, EqualityIgnoresFeaturesAndStateIdButNoOtherField) {
  RoutingHop a = SampleHop(), b = SampleHop();
  b.setLoadBalance(true);
  b.setUseHSRP(true);
  b.SetStateGuid(TW128Guid::NewGuid());
  EXPECT_TRUE(a == b);
  void (*changes[])(RoutingHop&) = {
      [](RoutingHop& h) { h.Device = "x"; },         [](RoutingHop& h) { h.DeviceType = 1; },
      [](RoutingHop& h) { h.DeviceInfo = "x"; },     [](RoutingHop& h) { h.OutInterface = "x"; },
      [](RoutingHop& h) { h.Algorithm = RT_ALG_BGP; }, [](RoutingHop& h) { h.Destination.setFullMask(); },
      [](RoutingHop& h) { h.NextDevice = "x"; },     [](RoutingHop& h) { h.NextDeviceType = 1; },
      [](RoutingHop& h) { h.NextHop = IpAddress(1u); }, [](RoutingHop& h) { h.NextInterface = "x"; }};
  for (auto change : changes) {
    RoutingHop c = SampleHop();
    change(c);
    EXPECT_FALSE(a == c);
  }
}

TEST(RoutingHopCompare, OrderByJoinedText) {
  RoutingHop a = SampleHop(), b = SampleHop();
  b.NextHop = IpAddress(0x01010101u);
  b.Destination = IpLocation(0x0B000000u, 0xFF000000u);
  // Different next hop and destination, same joined text: equivalent keys.
  EXPECT_FALSE(a < b);
  EXPECT_FALSE(b < a);
  EXPECT_EQ((std::set<RoutingHop>{a, b}).size(), 1u);

  // The join cannot tell where one field ends.
  RoutingHop ab("ab"), a_bc("a");
  ab.OutInterface = "c";
  a_bc.OutInterface = "bc";
  EXPECT_FALSE(ab < a_bc);
  EXPECT_FALSE(a_bc < ab);
  EXPECT_FALSE(ab == a_bc);
  EXPECT_TRUE(RoutingHop("z") < RoutingHop("\xC3\xA9"));
}

RoutingTableEntry* NewEntry(unsigned int dest, unsigned int mask) {
  auto* e = new RoutingTableEntry;
  e->DestIp = IpAddress(dest);
  e->DestMask = IpAddress(mask);
  return e;
}

// The sanitizer run catches leaks and double frees in these.
TEST(RouteMessage, OwnershipOfTheEntryThroughSetCopyAndAssign) {
  RouteMessage source;
  source.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  RoutingTableEntry* held = NewEntry(1u, 2u);
  source.setEntry(held);  // the first entry is freed
  source.setEntry(held);  // same pointer again: still held, not destroyed
  EXPECT_EQ(source.getEntry()->DestIp.bitForm(), 1u);
  source.SenderWords[2] = 0xFFFFFFFFFFFFFFFFull;
  source.Word = -7;
  const RouteMessage copy(source);  // copies never share the entry
  EXPECT_EQ(copy.getEntry(), nullptr);
  EXPECT_EQ(copy.SenderWords[2], 0xFFFFFFFFFFFFFFFFull);
  EXPECT_EQ(copy.Word, -7);
  RouteMessage target;
  RoutingTableEntry* previous = NewEntry(0x0C000000u, 0xFF000000u);
  target.setEntry(previous);
  target = source;
  EXPECT_EQ(target.getEntry(), nullptr);
  // The dropped entry was not destroyed: it is still readable, and ours to free.
  EXPECT_EQ(previous->DestIp.bitForm(), 0x0C000000u);
  delete previous;
  source = static_cast<const RouteMessage&>(source);
  EXPECT_NE(source.getEntry(), nullptr);
  RoutesMessage envelope;
  envelope.Messages.push_back(new RouteMessage);
  envelope.Messages.back()->setEntry(NewEntry(0x0A000001u, 0xFFFFFFFFu));  // freed with the envelope
}

TEST(RouteMessage, FloodingSameEntry) {
  RouteMessage a, b;
  a.SenderWords[0] = b.SenderWords[0] = 42;
  EXPECT_FALSE(a.isFloodingSameEntry(b));  // neither has an entry
  a.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  EXPECT_FALSE(b.isFloodingSameEntry(a));
  b.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  a.Word = 9;  // the 32-bit word takes no part
  EXPECT_TRUE(a.isFloodingSameEntry(b));
  b.setEntry(NewEntry(0x0A000000u, 0xFFFF0000u));
  EXPECT_FALSE(a.isFloodingSameEntry(b));
  b.setEntry(NewEntry(0x0A000001u, 0xFF000000u));
  EXPECT_FALSE(a.isFloodingSameEntry(b));
  b.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  b.SenderWords[2] = 1;
  EXPECT_FALSE(a.isFloodingSameEntry(b));
}

}  // namespace
