#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "netloom/routinghop.h"
#include "netloom/routingtable.h"

namespace {

RoutingHop SampleHop() {
  return RoutingHop("core1", IpLocation(0x0A010000u, 0xFFFF0000u), IpAddress(0xC0A80102u), "edge2",
                    "GigabitEthernet0/1", RT_ALG_OSPF);
}

TEST(RoutingHopFeatures, BitTests) {
  EXPECT_TRUE(RoutingHop::IsHopHasFeature(RoutingHop::RHT_LB | RoutingHop::RHT_L2, RoutingHop::RHT_L2));
  EXPECT_FALSE(RoutingHop::IsHopHasFeature(RoutingHop::RHT_LB, RoutingHop::RHT_LB | RoutingHop::RHT_L2));
  EXPECT_TRUE(RoutingHop::IsHopHasFeature(0, RoutingHop::RHT_NOMAL));
  EXPECT_TRUE(RoutingHop::IsHopHasFeature(RoutingHop::RHT_GLBP, RoutingHop::RHT_NOMAL));
  EXPECT_EQ(RoutingHop::SetHopFeature(5, 4, false), 1);
  EXPECT_EQ(RoutingHop::SetHopFeature(1, 4, true), 5);
  EXPECT_EQ(RoutingHop::SetHopFeature(5, 4, true), 5);
  EXPECT_EQ(RoutingHop::SetHopFeature(1, 4, false), 1);
}

TEST(RoutingHopFeatures, EachSetterOwnsOneBit) {
  using Setter = void (RoutingHop::*)(bool);
  using Getter = bool (RoutingHop::*)() const;
  struct Case {
    Setter set;
    Getter get;
    int bit;
  };
  const Case cases[] = {
      {&RoutingHop::setLoadBalance, &RoutingHop::isLoadBalance, 1},
      {&RoutingHop::setMaster, &RoutingHop::isMaster, 2},
      {&RoutingHop::setStandby, &RoutingHop::isStandby, 4},
      {&RoutingHop::setFromFixup, &RoutingHop::isFromFixup, 8},
      {&RoutingHop::setFromCli, &RoutingHop::isFromCli, 16},
      {&RoutingHop::setFromSNMP, &RoutingHop::isFromSNMP, 32},
      {&RoutingHop::setL2Hop, &RoutingHop::isL2Hop, 64},
      {&RoutingHop::setUseHSRP, &RoutingHop::isUseHSRP, 128},
      {&RoutingHop::setUseVRRP, &RoutingHop::isUseVRRP, 256},
      {&RoutingHop::setUseGLBP, &RoutingHop::isUseGLBP, 512},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.bit);
    RoutingHop hop("r1");
    (hop.*c.set)(true);
    EXPECT_EQ(hop.Features, c.bit);
    EXPECT_TRUE((hop.*c.get)());
    // Others stay as they are.
    hop.Features = 0x3FF;
    (hop.*c.set)(false);
    EXPECT_EQ(hop.Features, 0x3FF & ~c.bit);
    EXPECT_FALSE((hop.*c.get)());
    for (const Case& other : cases) {
      if (other.bit != c.bit) {
        EXPECT_TRUE((hop.*other.get)());
      }
    }
  }
  EXPECT_EQ(RoutingHop::RHT_MAIN, 2);
  EXPECT_EQ(RoutingHop::RHT_STANDBY, 4);
}

TEST(RoutingHopBuild, Defaults) {
  const RoutingHop hop("core1");
  EXPECT_EQ(hop.Device, "core1");
  EXPECT_EQ(hop.DeviceType, 1036);
  EXPECT_EQ(hop.NextDeviceType, 1036);
  EXPECT_EQ(hop.Features, 0);
  EXPECT_EQ(hop.Algorithm, RT_ALG_UNKNOWN);
  EXPECT_TRUE(hop.Destination == IpLocation());
  EXPECT_TRUE(hop.NextHop.isNull());
  EXPECT_TRUE(hop.GetStateGuid().IsNull());
  EXPECT_EQ(RoutingHop("core1", 7).DeviceType, 7);
  EXPECT_EQ(RoutingHop().Device, "");
}

TEST(RoutingHopBuild, FromRouteEntry) {
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
  EXPECT_EQ(hop.Destination.textFormByMaskLen(), "10.1.0.0/16");
}

TEST(RoutingHopBuild, FromLiveEntry) {
  LiveRtEntry live;
  live.DestText = "10.1.0.0";
  live.MaskText = "255.255.0.0";
  live.NextHopText = "192.168.1.2";
  live.IfName = "GigabitEthernet0/1";
  live.RouteType = 4;
  live.RouteProto = 13;  // ospf
  const RoutingHop hop("core1", live, nullptr);
  EXPECT_EQ(hop.Destination.textFormByMaskLen(), "10.1.0.0/16");
  EXPECT_EQ(hop.NextHop.textForm(), "192.168.1.2");
  EXPECT_EQ(hop.OutInterface, "GigabitEthernet0/1");
  EXPECT_EQ(hop.Algorithm, RT_ALG_OSPF);
  EXPECT_EQ(hop.NextDevice, "");

  live.NextHopText = "junk";
  live.RouteType = 3;
  const RoutingHop direct("core1", live, nullptr);
  EXPECT_TRUE(direct.NextHop.isNull());
  EXPECT_EQ(direct.Algorithm, RT_ALG_CONNECTED);
}

TEST(RoutingHopCompare, EqualityIgnoresFeaturesAndStateId) {
  RoutingHop a = SampleHop(), b = SampleHop();
  b.setLoadBalance(true);
  b.setUseHSRP(true);
  b.SetStateGuid(TW128Guid::NewGuid());
  EXPECT_TRUE(a == b);

  // Each compared field breaks equality.
  auto differs = [&](void (*change)(RoutingHop&)) {
    RoutingHop c = SampleHop();
    change(c);
    return !(a == c);
  };
  EXPECT_TRUE(differs([](RoutingHop& h) { h.Device = "x"; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.DeviceType = 1; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.DeviceInfo = "x"; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.OutInterface = "x"; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.Algorithm = RT_ALG_BGP; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.Destination.setFullMask(); }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.NextDevice = "x"; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.NextDeviceType = 1; }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.NextHop = IpAddress(1u); }));
  EXPECT_TRUE(differs([](RoutingHop& h) { h.NextInterface = "x"; }));
}

TEST(RoutingHopCompare, OrderByJoinedText) {
  RoutingHop a = SampleHop(), b = SampleHop();
  b.NextHop = IpAddress(0x01010101u);
  b.Destination = IpLocation(0x0B000000u, 0xFF000000u);
  // Different next hop and destination, same joined text: equivalent keys.
  EXPECT_FALSE(a < b);
  EXPECT_FALSE(b < a);
  std::set<RoutingHop> hops = {a, b};
  EXPECT_EQ(hops.size(), 1u);

  // The join cannot tell where one field ends.
  RoutingHop ab("ab"), a_bc("a");
  ab.OutInterface = "c";
  a_bc.OutInterface = "bc";
  EXPECT_FALSE(ab < a_bc);
  EXPECT_FALSE(a_bc < ab);
  EXPECT_FALSE(ab == a_bc);

  RoutingHop early("a"), late("b");
  EXPECT_TRUE(early < late);
  // Byte order, not field order: device "a" + interface "z" sorts after
  // device "ab" with no interface.
  RoutingHop az("a"), abNoIf("ab");
  az.OutInterface = "z";
  EXPECT_TRUE(abNoIf < az);
  // Bytes compare unsigned.
  RoutingHop high("\xC3\xA9"), low("z");
  EXPECT_TRUE(low < high);
}

TEST(RoutingHopState, GuidAndCopy) {
  RoutingHop hop = SampleHop();
  const TW128Guid guid = TW128Guid::NewGuid();
  hop.SetStateGuid(guid);
  hop.setFromCli(true);
  const RoutingHop copy(hop);
  EXPECT_EQ(copy.GetStateGuid(), guid);
  EXPECT_TRUE(copy.isFromCli());
  RoutingHop assigned;
  assigned = hop;
  EXPECT_EQ(assigned.GetStateGuid(), guid);
  EXPECT_TRUE(assigned == hop);
}

// --- RouteMessage ------------------------------------------------------------

RoutingTableEntry* NewEntry(unsigned int dest, unsigned int mask) {
  auto* e = new RoutingTableEntry;
  e->DestIp = IpAddress(dest);
  e->DestMask = IpAddress(mask);
  return e;
}

TEST(RouteMessage, StartsEmpty) {
  const RouteMessage m;
  EXPECT_EQ(m.getEntry(), nullptr);
  EXPECT_EQ(m.SenderWords[0], 0u);
  EXPECT_EQ(m.SenderWords[2], 0u);
  EXPECT_EQ(m.Word, 0);
  const RoutesMessage ms;
  EXPECT_TRUE(ms.Messages.empty());
  EXPECT_EQ(ms.Words[6], 0u);
}

TEST(RouteMessage, SetEntryReplacesAndDestroys) {
  // The sanitizer run catches a leak or double free here.
  RouteMessage m;
  m.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  m.setEntry(NewEntry(0x0B000000u, 0xFF000000u));
  ASSERT_NE(m.getEntry(), nullptr);
  EXPECT_EQ(m.getEntry()->DestIp.bitForm(), 0x0B000000u);
  RoutingTableEntry* held = NewEntry(1u, 2u);
  m.setEntry(held);
  m.setEntry(held);  // same pointer again: still held, not destroyed
  EXPECT_EQ(m.getEntry(), held);
  EXPECT_EQ(m.getEntry()->DestIp.bitForm(), 1u);
  m.setEntry(nullptr);
  EXPECT_EQ(m.getEntry(), nullptr);
}

TEST(RouteMessage, CopyAndAssignCarryWordsNotTheEntry) {
  RouteMessage source;
  source.SenderWords[0] = 1;
  source.SenderWords[1] = 2;
  source.SenderWords[2] = 0xFFFFFFFFFFFFFFFFull;
  source.Word = -7;
  source.setEntry(NewEntry(0x0A000000u, 0xFF000000u));

  const RouteMessage copy(source);
  EXPECT_EQ(copy.getEntry(), nullptr);
  EXPECT_EQ(copy.SenderWords[2], 0xFFFFFFFFFFFFFFFFull);
  EXPECT_EQ(copy.Word, -7);

  RouteMessage target;
  RoutingTableEntry* previous = NewEntry(0x0C000000u, 0xFF000000u);
  target.setEntry(previous);
  target = source;
  EXPECT_EQ(target.getEntry(), nullptr);
  EXPECT_EQ(target.SenderWords[1], 2u);
  // The dropped entry was not destroyed: it is still readable, and ours to free.
  EXPECT_EQ(previous->DestIp.bitForm(), 0x0C000000u);
  delete previous;

  // Through the base reference too, since assignment is virtual.
  RouteMessage& viaBase = target;
  viaBase = copy;
  EXPECT_EQ(target.Word, -7);

  // Self-assignment keeps what is held.
  source = static_cast<const RouteMessage&>(source);
  EXPECT_NE(source.getEntry(), nullptr);
}

TEST(RouteMessage, FloodingSameEntry) {
  RouteMessage a, b;
  a.SenderWords[0] = b.SenderWords[0] = 42;
  EXPECT_FALSE(a.isFloodingSameEntry(b));  // neither has an entry
  a.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  EXPECT_FALSE(a.isFloodingSameEntry(b));
  EXPECT_FALSE(b.isFloodingSameEntry(a));
  b.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  EXPECT_TRUE(a.isFloodingSameEntry(b));

  // The 32-bit word and the rest of the entry take no part.
  a.Word = 9;
  b.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  EXPECT_TRUE(a.isFloodingSameEntry(b));

  b.setEntry(NewEntry(0x0A000000u, 0xFFFF0000u));
  EXPECT_FALSE(a.isFloodingSameEntry(b));
  b.setEntry(NewEntry(0x0A000001u, 0xFF000000u));
  EXPECT_FALSE(a.isFloodingSameEntry(b));
  b.setEntry(NewEntry(0x0A000000u, 0xFF000000u));
  b.SenderWords[2] = 1;
  EXPECT_FALSE(a.isFloodingSameEntry(b));
}

TEST(RoutesMessage, OwnsItsMessages) {
  // Destroyed with their entries when the envelope goes; the sanitizer run
  // reports a leak otherwise.
  RoutesMessage envelope;
  for (int i = 0; i < 3; ++i) {
    auto* m = new RouteMessage;
    m->setEntry(NewEntry(0x0A000000u + static_cast<unsigned>(i), 0xFFFFFFFFu));
    envelope.Messages.push_back(m);
  }
  EXPECT_EQ(envelope.Messages.size(), 3u);
}

}  // namespace
