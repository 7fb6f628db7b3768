// MAC address reading and writing. Devices print addresses in many shapes, so
// reading is deliberately forgiving: strip "0x" prefixes, keep only hex
// digits, and count what is left. The same cleaning decides IsMacAddress, so
// the two never disagree about what an address is.
#include "netloom/macaddress.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>

#include "netloom/util/stlhelper.h"

namespace netloom::detail {
namespace {

constexpr std::size_t kMacDigits = 12;

bool IsKeptChar(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// The digits a text contributes to an address: hex prefixes go first (the
// lower-case form before the upper-case one), then everything that is not a
// hex digit, separators and stray letters alike.
std::string CleanMacText(const std::string& text) {
  std::string copy = text;
  StlHelper::replaceString(copy, "0x", "");
  StlHelper::replaceString(copy, "0X", "");
  std::string digits;
  digits.reserve(kMacDigits + 1);
  for (char c : copy) {
    if (IsKeptChar(c)) digits.push_back(c);
  }
  return digits;
}

}  // namespace
}  // namespace netloom::detail

MacAddress::MacAddress(const std::string& text) {
  std::string digits = netloom::detail::CleanMacText(text);
  if (digits.size() > netloom::detail::kMacDigits) digits.resize(netloom::detail::kMacDigits);
  if (digits.size() == netloom::detail::kMacDigits)
    m_value = static_cast<long long>(std::strtoull(digits.c_str(), nullptr, 16));
}

bool MacAddress::IsMacAddress(const std::string& text) {
  return netloom::detail::CleanMacText(text).size() == netloom::detail::kMacDigits;
}

std::string MacAddress::TextForm(int group) const {
  if (m_value == 0) return std::string();
  char buf[32];
  std::snprintf(buf, sizeof buf, "%012" PRIx64, static_cast<std::uint64_t>(m_value));
  std::string text = buf;
  // A group below 1 has no place to put a dot; it means "no grouping".
  if (group < 1) return text;
  for (std::size_t pos = static_cast<std::size_t>(group); pos < text.size();
       pos += static_cast<std::size_t>(group) + 1)
    text.insert(pos, 1, '.');
  return text;
}

void MacAddress::GetMacAddress(const std::vector<std::string>& words,
                               std::vector<std::string>& found, bool normalize) {
  static const std::string kNone;
  const std::size_t n = words.size();
  auto word = [&](std::size_t i) -> const std::string& { return i < n ? words[i] : kNone; };

  // How many consecutive words may make up one address, tried in this order.
  static const std::size_t kSpans[] = {1, 2, 3, 6};

  std::vector<std::string> results;
  std::size_t i = 0;
  while (i < n) {
    std::size_t advance = 1;
    std::string joined;
    std::size_t taken = 0;
    for (std::size_t span : kSpans) {
      for (; taken < span; ++taken) {
        if (taken) joined += ' ';
        joined += word(i + taken);
      }
      if (IsMacAddress(joined)) {
        results.push_back(joined);
        advance = span;
        break;
      }
    }
    i += advance;
  }

  for (const std::string& r : results)
    found.push_back(normalize ? MacAddress(r).TextForm(4) : r);
}
