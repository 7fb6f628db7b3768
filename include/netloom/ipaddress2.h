// Dual-stack addresses. IpAddress2 offers the operations of IpAddress on top
// of Boost.Asio's address and treats IPv4 as the main case: operations that
// only make sense for one family throw boost::asio::ip::bad_address_cast for
// the other, and the text constructor throws boost::system::system_error for
// text that is no address at all. Those are the only throwing value types of
// the library, so callers validate with isValidIpAddress2 first.
//
// NetAddress is an IPv4 location with a port, as NAT rules name them:
// "10.0.0.0/24:8080".
#pragma once

#include <array>
#include <string>
#include <vector>

#include <boost/asio/ip/address.hpp>

#include "netloom/export.h"
#include "netloom/ipaddress.h"

class NETLOOM_API IpAddress2 {
 public:
  IpAddress2() = default;  // 0.0.0.0
  IpAddress2(const IpAddress2& other) = default;
  explicit IpAddress2(std::array<unsigned char, 16>& bytes);
  // IPv4 in IpAddress's numeric form.
  IpAddress2(unsigned int address);
  // Tried as IPv6, then as IPv4; anything else throws boost::system::system_error.
  explicit IpAddress2(const std::string& text);

  IpAddress2& operator=(const IpAddress2& other) = default;

  // Boost's order: every IPv4 address before every IPv6 one; IPv6 by bytes,
  // then scope id.
  bool operator==(const IpAddress2& o) const { return m_address == o.m_address; }
  int operator!=(const IpAddress2& o) const { return m_address != o.m_address; }
  bool operator<(const IpAddress2& o) const { return m_address < o.m_address; }
  bool operator<=(const IpAddress2& o) const { return m_address <= o.m_address; }
  bool operator>(const IpAddress2& o) const { return m_address > o.m_address; }
  bool operator>=(const IpAddress2& o) const { return m_address >= o.m_address; }

  // IPv4 only (throw bad_address_cast for IPv6, on either side of netMatch).
  unsigned int bitForm() const;
  IpAddress2 network() const;
  unsigned int networkForm() const;
  bool netMatch(const IpAddress2& other) const;
  // IPv6 only.
  std::array<unsigned char, 16> byteForm() const;

  // As IpAddress for IPv4; neutral answers for IPv6 (0, the value itself,
  // true, an empty list).
  unsigned int classMaskBits() const;
  IpAddress2 classMask() const;
  int getLeftNonZeroLen() const;
  int getRightZeroLen() const;
  bool isValidNetMask() const;
  std::vector<IpAddress2> getAllPossibleSubnets() const;

  // Complement every bit of the active family.
  void invert();
  IpAddress2 getRevertedAddress() const;

  bool is_v4() const { return m_address.is_v4(); }
  bool is_v6() const { return m_address.is_v6(); }
  bool is_unspecified() const { return m_address.is_unspecified(); }
  std::string textForm() const { return m_address.to_string(); }

  static unsigned int getBitIPv4MaskByLength(int length);
  // Dotted IPv4 text of the mask of that length.
  static std::string getMask(int length);
  static int getMaskLength(unsigned int mask);
  // Counts whole 0xFF bytes, then the set bits of the first smaller byte, and
  // stops there; contiguity is not checked.
  static int getMaskLength(std::array<unsigned char, 16>& bytes);
  // -1 for text that is neither IPv6 nor IPv4.
  static int getMaskLength(const std::string& text);
  static bool isValidIpAddress2(const std::string& text);
  // Not the unspecified address. Throws like the text constructor for
  // unreadable text.
  static bool isValidIpAddress2ForHost(const std::string& text);
  // Readable, and a mask by isValidNetMask.
  static bool isValidNetmask(const std::string& text);

  // IPv4 host look-ups, as those of IpAddress.
  static bool GetLocalIp(IpAddress2& out);
  static bool GetLocalIps(std::vector<IpAddress2>& out);
  // Empty for an IPv6 address.
  static std::string GetHostNamebyIP(const IpAddress2& address);
  // Throws like the text constructor when the name is no address text.
  static IpAddress2 GetIpByHostName(const std::string& name);

 private:
  explicit IpAddress2(const boost::asio::ip::address& address) : m_address(address) {}
  IpAddress v4() const { return IpAddress(bitForm()); }

  boost::asio::ip::address m_address;
};

class NETLOOM_API NetAddress {
 public:
  NetAddress() = default;
  NetAddress(const NetAddress& other) = default;
  // Reads the text with fromString; unreadable text leaves 0/0, port 0.
  explicit NetAddress(const std::string& text);
  NetAddress(const std::string& address, const std::string& mask);
  NetAddress(const std::string& address, const std::string& mask, int port);
  NetAddress(const IpLocation& location) : m_location(location) {}

  NetAddress& operator=(const NetAddress& other) = default;

  IpLocation& getIpLocaltion() { return m_location; }
  const IpLocation& getIpLocaltion() const { return m_location; }
  IpAddress unmaskedAddress() const { return m_location.unmaskedAddress(); }
  bool isNull() const { return m_location.isNull(); }
  int getPort() const { return m_port; }
  void setPort(int port) { m_port = port; }
  void setIpAddress(const std::string& text) { m_location.setIpAddress(IpAddress(text)); }
  void setNetmask(const std::string& text) { m_location.setSubnetMask(IpAddress(text)); }
  // Dotted text, empty when the value is 0.
  std::string getIpAddress() const;
  std::string getNetmask() const;
  // Of the mask's text, so -1 for a mask with holes.
  int getMaskLength() const;
  // The other address lies in this location's net.
  bool matchTo(const NetAddress& other) const;

  bool equals(const NetAddress& other) const { return *this == other; }
  bool operator==(const NetAddress& other) const {
    return m_location == other.m_location && m_port == other.m_port;
  }
  bool operator!=(const NetAddress& other) const { return !(*this == other); }
  // The location's key order; the port takes no part.
  bool operator<(const NetAddress& other) const { return m_location < other.m_location; }

  // "a.b.c.d/len:port"; the prefix only below a full mask, the port only when set.
  std::string textFormByMaskLen() const;
  // "a.b.c.d/m.m.m.m:port" with the same omissions.
  std::string toString() const;

  // "location[:port]", the location as IpLocation::get_ip_mask reads it. A port
  // part must be a non-zero number. False leaves `out` unchanged.
  static bool fromString(const std::string& text, NetAddress& out);

 private:
  IpLocation m_location;
  int m_port = 0;
};
