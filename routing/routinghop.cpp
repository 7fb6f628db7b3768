// Path hops and route-change envelopes.
#include "netloom/routinghop.h"

#include "netloom/routingtable.h"

RoutingHop::RoutingHop(const std::string& device) : Device(device) {}

RoutingHop::RoutingHop(const std::string& device, int deviceType)
    : Device(device), DeviceType(deviceType) {}

RoutingHop::RoutingHop(const std::string& device, const IpLocation& destination,
                       const IpAddress& nextHop, const std::string& nextDevice,
                       const std::string& outInterface, TW_RoutingAlgorithm algorithm)
    : Device(device),
      OutInterface(outInterface),
      Algorithm(algorithm),
      Destination(destination),
      NextDevice(nextDevice),
      NextHop(nextHop) {}

RoutingHop::RoutingHop(const std::string& device, const RoutingTableEntry& entry,
                       IInterfaceTypeHelper* /*helper*/)
    : RoutingHop(device, IpLocation(entry.DestIp, entry.DestMask), entry.NextHop,
                 entry.NextDevice, entry.OutIf, entry.Alg) {}

RoutingHop::RoutingHop(const std::string& device, const LiveRtEntry& entry,
                       IInterfaceTypeHelper* /*helper*/)
    : RoutingHop(device, IpLocation(entry.DestText, entry.MaskText, false),
                 IpAddress(entry.NextHopText), std::string(), entry.IfName, entry.getAlg()) {}

bool RoutingHop::operator==(const RoutingHop& other) const {
  return Device == other.Device && DeviceType == other.DeviceType &&
         OutInterface == other.OutInterface && DeviceInfo == other.DeviceInfo &&
         Algorithm == other.Algorithm && Destination == other.Destination &&
         NextDevice == other.NextDevice && NextDeviceType == other.NextDeviceType &&
         NextHop == other.NextHop && NextInterface == other.NextInterface;
}

bool RoutingHop::operator<(const RoutingHop& other) const {
  // Byte-wise on the joined text, not field by field: "ab"+"c" ties "a"+"bc".
  return Device + OutInterface + NextDevice <
         other.Device + other.OutInterface + other.NextDevice;
}

// ---------------------------------------------------------------------------
// RouteMessage

RouteMessage::RouteMessage(const RouteMessage& other) { *this = other; }

RouteMessage::~RouteMessage() { delete m_entry; }

RouteMessage& RouteMessage::operator=(const RouteMessage& other) {
  if (this == &other) return *this;
  for (int i = 0; i < 3; ++i) SenderWords[i] = other.SenderWords[i];
  Word = other.Word;
  m_entry = nullptr;
  return *this;
}

void RouteMessage::setEntry(RoutingTableEntry* entry) {
  if (entry == m_entry) return;
  delete m_entry;
  m_entry = entry;
}

bool RouteMessage::isFloodingSameEntry(const RouteMessage& other) const {
  for (int i = 0; i < 3; ++i) {
    if (SenderWords[i] != other.SenderWords[i]) return false;
  }
  return m_entry && other.m_entry && m_entry->DestIp == other.m_entry->DestIp &&
         m_entry->DestMask == other.m_entry->DestMask;
}

RoutesMessage::~RoutesMessage() {
  for (RouteMessage* message : Messages) delete message;
}
