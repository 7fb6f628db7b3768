// Dual-stack address operations and the IPv4 location-with-port of NAT rules.
// IPv4 behaviour is delegated to IpAddress so that the two types can never
// drift apart; IPv6 gets the neutral answers callers were written against.
#include "netloom/ipaddress2.h"

#include <bitset>
#include <cstdio>

#include <boost/system/system_error.hpp>

#include "address/numtext.h"

namespace netloom::detail {
namespace {

namespace ip = boost::asio::ip;

// IPv6 first, then IPv4, as the text constructor promises. An embedded NUL
// would let the resolver see only a prefix of the text, so it is refused.
bool ReadAddress(const std::string& text, ip::address& out, boost::system::error_code& ec) {
  if (text.find('\0') != std::string::npos) {
    ec = boost::asio::error::make_error_code(boost::asio::error::invalid_argument);
    return false;
  }
  ec.clear();
  const ip::address_v6 v6 = ip::make_address_v6(text, ec);
  if (!ec) {
    out = v6;
    return true;
  }
  ec.clear();
  const ip::address_v4 v4 = ip::make_address_v4(text, ec);
  if (!ec) {
    out = v4;
    return true;
  }
  return false;
}

ip::address ReadAddressOrThrow(const std::string& text) {
  ip::address address;
  boost::system::error_code ec;
  if (!ReadAddress(text, address, ec)) throw boost::system::system_error(ec);
  return address;
}

}  // namespace
}  // namespace netloom::detail

using netloom::detail::ReadAddress;
using netloom::detail::ReadAddressOrThrow;

IpAddress2::IpAddress2(std::array<unsigned char, 16>& bytes)
    : m_address(boost::asio::ip::make_address_v6(bytes)) {}

IpAddress2::IpAddress2(unsigned int address)
    : m_address(boost::asio::ip::make_address_v4(address)) {}

IpAddress2::IpAddress2(const std::string& text) : m_address(ReadAddressOrThrow(text)) {}

unsigned int IpAddress2::bitForm() const { return m_address.to_v4().to_uint(); }

IpAddress2 IpAddress2::network() const { return IpAddress2(networkForm()); }

unsigned int IpAddress2::networkForm() const { return v4().networkForm(); }

bool IpAddress2::netMatch(const IpAddress2& other) const { return v4().netMatch(other.v4()); }

std::array<unsigned char, 16> IpAddress2::byteForm() const {
  const auto bytes = m_address.to_v6().to_bytes();
  std::array<unsigned char, 16> out;
  for (std::size_t i = 0; i < out.size(); ++i) out[i] = bytes[i];
  return out;
}

unsigned int IpAddress2::classMaskBits() const { return is_v4() ? v4().classMaskBits() : 0; }

IpAddress2 IpAddress2::classMask() const {
  return is_v4() ? IpAddress2(v4().classMask().bitForm()) : *this;
}

int IpAddress2::getLeftNonZeroLen() const { return is_v4() ? v4().getLeftNonZeroLen() : 0; }

int IpAddress2::getRightZeroLen() const { return is_v4() ? v4().getRightZeroLen() : 0; }

bool IpAddress2::isValidNetMask() const { return is_v4() ? v4().isValidNetMask() : true; }

std::vector<IpAddress2> IpAddress2::getAllPossibleSubnets() const {
  std::vector<IpAddress2> out;
  if (!is_v4()) return out;
  for (const IpAddress& subnet : v4().getAllPossibleSubnets()) out.emplace_back(subnet.bitForm());
  return out;
}

void IpAddress2::invert() {
  if (is_v4()) {
    m_address = boost::asio::ip::make_address_v4(~bitForm());
    return;
  }
  const boost::asio::ip::address_v6 v6 = m_address.to_v6();
  auto bytes = v6.to_bytes();
  for (auto& b : bytes) b = static_cast<unsigned char>(~b);
  m_address = boost::asio::ip::address_v6(bytes, v6.scope_id());
}

IpAddress2 IpAddress2::getRevertedAddress() const {
  IpAddress2 copy(*this);
  copy.invert();
  return copy;
}

unsigned int IpAddress2::getBitIPv4MaskByLength(int length) {
  return IpAddress::getBitMaskByLength(length);
}

std::string IpAddress2::getMask(int length) { return IpAddress::getMask(length); }

int IpAddress2::getMaskLength(unsigned int mask) { return IpAddress::getMaskLength(mask); }

int IpAddress2::getMaskLength(std::array<unsigned char, 16>& bytes) {
  int length = 0;
  for (unsigned char b : bytes) {
    if (b == 0xFF) {
      length += 8;
      continue;
    }
    length += static_cast<int>(std::bitset<8>(b).count());
    break;
  }
  return length;
}

int IpAddress2::getMaskLength(const std::string& text) {
  boost::asio::ip::address address;
  boost::system::error_code ec;
  if (!ReadAddress(text, address, ec)) return -1;
  if (address.is_v6()) {
    auto raw = address.to_v6().to_bytes();
    std::array<unsigned char, 16> bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = raw[i];
    return getMaskLength(bytes);
  }
  return IpAddress::getMaskLength(address.to_v4().to_uint());
}

bool IpAddress2::isValidIpAddress2(const std::string& text) {
  boost::asio::ip::address address;
  boost::system::error_code ec;
  return ReadAddress(text, address, ec);
}

bool IpAddress2::isValidIpAddress2ForHost(const std::string& text) {
  return !IpAddress2(text).is_unspecified();
}

bool IpAddress2::isValidNetmask(const std::string& text) {
  boost::asio::ip::address address;
  boost::system::error_code ec;
  if (!ReadAddress(text, address, ec)) return false;
  return IpAddress2(address).isValidNetMask();
}

bool IpAddress2::GetLocalIp(IpAddress2& out) {
  // IpAddress may answer true without writing; keep `out` as it was then.
  const bool wasV4 = out.is_v4();
  IpAddress found(wasV4 ? out.bitForm() : 0u);
  const bool ok = IpAddress::GetLocalIp(found);
  if (wasV4 || !found.isNull()) out = IpAddress2(found.bitForm());
  return ok;
}

bool IpAddress2::GetLocalIps(std::vector<IpAddress2>& out) {
  std::vector<IpAddress> found;
  const bool ok = IpAddress::GetLocalIps(found);
  for (const IpAddress& a : found) out.emplace_back(a.bitForm());
  return ok;
}

std::string IpAddress2::GetHostNamebyIP(const IpAddress2& address) {
  if (!address.is_v4()) return std::string();
  return IpAddress::GetHostNamebyIP(IpAddress(address.bitForm()));
}

IpAddress2 IpAddress2::GetIpByHostName(const std::string& name) {
  // Built first on purpose: a name that is no address text throws here.
  const IpAddress2 given(name);
  if (given.is_v4() && !given.is_unspecified()) return given;
  return IpAddress2(IpAddress::GetIpByHostName(name).bitForm());
}

// ---------------------------------------------------------------------------
// NetAddress

NetAddress::NetAddress(const std::string& text) { fromString(text, *this); }

NetAddress::NetAddress(const std::string& address, const std::string& mask)
    : m_location(IpAddress(address), IpAddress(mask)) {}

NetAddress::NetAddress(const std::string& address, const std::string& mask, int port)
    : m_location(IpAddress(address), IpAddress(mask)), m_port(port) {}

std::string NetAddress::getIpAddress() const {
  const IpAddress a = m_location.unmaskedAddress();
  return a.isNull() ? std::string() : a.textForm();
}

std::string NetAddress::getNetmask() const {
  const IpAddress m = m_location.subnetMask();
  return m.isNull() ? std::string() : m.textForm();
}

int NetAddress::getMaskLength() const {
  return IpAddress::getMaskLength(m_location.subnetMask().textForm());
}

bool NetAddress::matchTo(const NetAddress& other) const {
  return m_location.inSameNet(other.m_location);
}

namespace netloom::detail {
namespace {

std::string WithPort(std::string text, int port) {
  if (port != 0) {
    char buf[16];
    std::snprintf(buf, sizeof buf, ":%d", port);
    text += buf;
  }
  return text;
}

}  // namespace
}  // namespace netloom::detail

std::string NetAddress::textFormByMaskLen() const {
  const std::string location = m_location.isFullMask()
                                   ? m_location.unmaskedAddress().textForm()
                                   : m_location.textFormByMaskLen();
  return netloom::detail::WithPort(location, m_port);
}

std::string NetAddress::toString() const {
  std::string location = m_location.unmaskedAddress().textForm();
  if (!m_location.isFullMask()) location += "/" + m_location.subnetMask().textForm();
  return netloom::detail::WithPort(location, m_port);
}

bool NetAddress::fromString(const std::string& text, NetAddress& out) {
  const std::size_t colon = text.find(':');
  const std::string locationText = text.substr(0, colon);
  int port = 0;
  if (colon != std::string::npos) {
    port = netloom::detail::AtoiClamped(text.substr(colon + 1));
    if (port == 0) return false;
  }
  IpAddress address, mask;
  if (!IpLocation::get_ip_mask(locationText, address, mask)) return false;
  out.m_location = IpLocation(address, mask);
  out.m_port = port;
  return true;
}
