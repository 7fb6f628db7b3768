// Feeds arbitrary bytes to the address text readers: MAC cleaning and word
// joining, the dual-stack reader (which may only throw its documented error)
// and the NAT location reader, checking that what reads also writes back.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <boost/system/system_error.hpp>

#include "netloom/ipaddress2.h"
#include "netloom/macaddress.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);

  const MacAddress mac(text);
  if (MacAddress::IsMacAddress(text) && MacAddress(mac.TextForm(4)) != mac) __builtin_trap();
  for (int group = -1; group <= 13; ++group) (void)mac.TextForm(group);

  std::vector<std::string> words;
  std::string word;
  for (char c : text) {
    if (c == ' ') {
      words.push_back(word);
      word.clear();
    } else {
      word += c;
    }
  }
  words.push_back(word);
  std::vector<std::string> found;
  MacAddress::GetMacAddress(words, found, true);
  MacAddress::GetMacAddress(words, found, false);

  const bool readable = IpAddress2::isValidIpAddress2(text);
  try {
    const IpAddress2 a(text);
    if (!readable) __builtin_trap();
    (void)a.getRevertedAddress();
    (void)a.classMask();
    (void)a.getAllPossibleSubnets();
    // Absurd zone numbers do not survive Boost's own print and re-read, so
    // only unscoped addresses must come back equal.
    const std::string printed = a.textForm();
    const IpAddress2 again(printed);
    if (printed.find('%') == std::string::npos && again != a) __builtin_trap();
  } catch (const boost::system::system_error&) {
    if (readable) __builtin_trap();
  }
  (void)IpAddress2::getMaskLength(text);
  (void)IpAddress2::isValidNetmask(text);

  NetAddress net;
  if (NetAddress::fromString(text, net)) {
    NetAddress back;
    if (!NetAddress::fromString(net.textFormByMaskLen(), back)) __builtin_trap();
    (void)net.toString();
  }
  return 0;
}
