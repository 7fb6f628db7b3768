// The header of the packet a path analysis follows: two addresses, the IP
// protocol and two ports. The defaults (-1, 0xFFFF) mean "any", which is what a
// packet known only by its addresses carries.
#pragma once

#include <cstdint>
#include <string>

#include "netloom/export.h"
#include "netloom/ipaddress.h"

class NETLOOM_API L3Packet {
 public:
  L3Packet() = default;
  L3Packet(const L3Packet& other) = default;
  // Address texts go through the IpAddress text reader: bad text is 0.0.0.0.
  L3Packet(const std::string& source, const std::string& destination);
  L3Packet(const std::string& source, const std::string& destination, int protocol,
           short sourcePort, int destinationPort);
  L3Packet(const IpAddress& source, const IpAddress& destination, int protocol,
           short sourcePort, int destinationPort);

  L3Packet& operator=(const L3Packet& other) = default;

  void SetSourceIP(const std::string& text) { SourceIP = IpAddress(text); }
  void SetDestinationIP(const std::string& text) { DestinationIP = IpAddress(text); }
  // Ports keep the low 16 bits of what they are given.
  void SetSourcePort(int port) { SourcePort = static_cast<std::uint16_t>(port); }
  void SetDestinationPort(int port) { DestinationPort = static_cast<std::uint16_t>(port); }
  void SetProtocol(int protocol) { Protocol = protocol; }

  // The answer travelling back: addresses and ports swapped.
  L3Packet getReverse() const;

  IpAddress SourceIP;
  IpAddress DestinationIP;
  int Protocol = -1;
  std::uint16_t SourcePort = 0xFFFF;
  std::uint16_t DestinationPort = 0xFFFF;
  // Carried along for the caller; never part of a comparison.
  std::uint32_t Reserved = 0;
};

// Same addresses, ports and protocol; the reserved word is not looked at.
NETLOOM_API bool operator==(const L3Packet& a, const L3Packet& b);
