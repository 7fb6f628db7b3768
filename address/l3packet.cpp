// Packet header construction and comparison.
#include "netloom/l3packet.h"

#include <utility>

L3Packet::L3Packet(const std::string& source, const std::string& destination)
    : SourceIP(source), DestinationIP(destination) {}

L3Packet::L3Packet(const std::string& source, const std::string& destination, int protocol,
                   short sourcePort, int destinationPort)
    : L3Packet(IpAddress(source), IpAddress(destination), protocol, sourcePort, destinationPort) {}

L3Packet::L3Packet(const IpAddress& source, const IpAddress& destination, int protocol,
                   short sourcePort, int destinationPort)
    : SourceIP(source),
      DestinationIP(destination),
      Protocol(protocol),
      SourcePort(static_cast<std::uint16_t>(sourcePort)),
      DestinationPort(static_cast<std::uint16_t>(destinationPort)) {}

L3Packet L3Packet::getReverse() const {
  L3Packet reversed(*this);
  std::swap(reversed.SourceIP, reversed.DestinationIP);
  std::swap(reversed.SourcePort, reversed.DestinationPort);
  return reversed;
}

bool operator==(const L3Packet& a, const L3Packet& b) {
  return a.DestinationIP == b.DestinationIP && a.DestinationPort == b.DestinationPort &&
         a.SourceIP == b.SourceIP && a.SourcePort == b.SourcePort && a.Protocol == b.Protocol;
}
