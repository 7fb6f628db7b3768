// One step of a path (on this device, for this destination, leave by this
// interface towards this next hop) with flags that tell how the hop was
// learned and what kind of hop it is. RouteMessage and RoutesMessage are the
// envelopes a route change travels in.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "netloom/export.h"
#include "netloom/ipaddress.h"
#include "netloom/routingcost.h"
#include "netloom/util/guid.h"

class IInterfaceTypeHelper;
class LiveRtEntry;
class RoutingTableEntry;

class NETLOOM_API RoutingHop {
 public:
  // Feature bits.
  static constexpr int RHT_NOMAL = 0;
  static constexpr int RHT_LB = 1;
  static constexpr int RHT_MAIN = 2;
  static constexpr int RHT_STANDBY = 4;
  static constexpr int RHT_FIXUP = 8;
  static constexpr int RHT_CLI = 16;
  static constexpr int RHT_SNMP = 32;
  static constexpr int RHT_L2 = 64;
  static constexpr int RHT_HSRP = 128;
  static constexpr int RHT_VRRP = 256;
  static constexpr int RHT_GLBP = 512;

  // The device type catalogue's default code.
  static constexpr int kDefaultDeviceType = 1036;

  RoutingHop() = default;
  RoutingHop(const RoutingHop& other) = default;
  explicit RoutingHop(const std::string& device);
  RoutingHop(const std::string& device, int deviceType);
  RoutingHop(const std::string& device, const IpLocation& destination, const IpAddress& nextHop,
             const std::string& nextDevice, const std::string& outInterface,
             TW_RoutingAlgorithm algorithm);
  // The interface helper is accepted for callers' convenience and not used.
  RoutingHop(const std::string& device, const RoutingTableEntry& entry, IInterfaceTypeHelper* helper);
  RoutingHop(const std::string& device, const LiveRtEntry& entry, IInterfaceTypeHelper* helper);
  virtual ~RoutingHop() = default;

  RoutingHop& operator=(const RoutingHop& other) = default;

  // Everything but the features and the state id.
  bool operator==(const RoutingHop& other) const;
  // By device, out interface and next device joined into one text: hops that
  // differ only in next hop are equivalent keys.
  bool operator<(const RoutingHop& other) const;

  const TW128Guid& GetStateGuid() const { return m_stateGuid; }
  void SetStateGuid(const TW128Guid& guid) { m_stateGuid = guid; }

  bool isLoadBalance() const { return IsHopHasFeature(Features, RHT_LB); }
  bool isMaster() const { return IsHopHasFeature(Features, RHT_MAIN); }
  bool isStandby() const { return IsHopHasFeature(Features, RHT_STANDBY); }
  bool isFromFixup() const { return IsHopHasFeature(Features, RHT_FIXUP); }
  bool isFromCli() const { return IsHopHasFeature(Features, RHT_CLI); }
  bool isFromSNMP() const { return IsHopHasFeature(Features, RHT_SNMP); }
  bool isL2Hop() const { return IsHopHasFeature(Features, RHT_L2); }
  bool isUseHSRP() const { return IsHopHasFeature(Features, RHT_HSRP); }
  bool isUseVRRP() const { return IsHopHasFeature(Features, RHT_VRRP); }
  bool isUseGLBP() const { return IsHopHasFeature(Features, RHT_GLBP); }

  void setLoadBalance(bool on) { Features = SetHopFeature(Features, RHT_LB, on); }
  void setMaster(bool on) { Features = SetHopFeature(Features, RHT_MAIN, on); }
  void setStandby(bool on) { Features = SetHopFeature(Features, RHT_STANDBY, on); }
  void setFromFixup(bool on) { Features = SetHopFeature(Features, RHT_FIXUP, on); }
  void setFromCli(bool on) { Features = SetHopFeature(Features, RHT_CLI, on); }
  void setFromSNMP(bool on) { Features = SetHopFeature(Features, RHT_SNMP, on); }
  void setL2Hop(bool on) { Features = SetHopFeature(Features, RHT_L2, on); }
  void setUseHSRP(bool on) { Features = SetHopFeature(Features, RHT_HSRP, on); }
  void setUseVRRP(bool on) { Features = SetHopFeature(Features, RHT_VRRP, on); }
  void setUseGLBP(bool on) { Features = SetHopFeature(Features, RHT_GLBP, on); }

  // All bits of `feature` are set in `flags` (so RHT_NOMAL is in every value).
  static bool IsHopHasFeature(int flags, int feature) { return (flags & feature) == feature; }
  static int SetHopFeature(int flags, int feature, bool on) {
    return on ? (flags | feature) : (flags & ~feature);
  }

  std::string Device;
  int DeviceType = kDefaultDeviceType;
  std::string DeviceInfo;
  std::string OutInterface;
  int Features = 0;
  TW_RoutingAlgorithm Algorithm = RT_ALG_UNKNOWN;
  IpLocation Destination;
  std::string NextDevice;
  int NextDeviceType = kDefaultDeviceType;
  IpAddress NextHop;
  std::string NextInterface;

 private:
  TW128Guid m_stateGuid;
};

// A route change and the sender it came from. The message owns its entry.
class NETLOOM_API RouteMessage {
 public:
  RouteMessage() = default;
  // Copies the sender words only; the copy holds no entry.
  RouteMessage(const RouteMessage& other);
  virtual ~RouteMessage();
  // Copies the sender words and drops the held entry WITHOUT destroying it:
  // whoever still points at that entry becomes its owner.
  virtual RouteMessage& operator=(const RouteMessage& other);

  // Takes ownership of `entry` (may be null) and destroys the one held.
  void setEntry(RoutingTableEntry* entry);
  const RoutingTableEntry* getEntry() const { return m_entry; }

  // Same sender, and both entries present with the same destination and mask.
  bool isFloodingSameEntry(const RouteMessage& other) const;

  // The three words identify the sender of a change.
  std::uint64_t SenderWords[3] = {0, 0, 0};
  std::int32_t Word = 0;

 private:
  RoutingTableEntry* m_entry = nullptr;
};

// Several route messages with the same sender header, in the order given.
// The messages in Messages are owned and destroyed with the envelope.
class NETLOOM_API RoutesMessage {
 public:
  RoutesMessage() = default;
  RoutesMessage(const RoutesMessage&) = delete;
  RoutesMessage& operator=(const RoutesMessage&) = delete;
  ~RoutesMessage();

  std::uint32_t Words[7] = {0, 0, 0, 0, 0, 0, 0};
  std::vector<RouteMessage*> Messages;
};
