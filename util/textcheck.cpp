#include "netloom/util/textcheck.h"

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "netloom/util/stlhelper.h"

namespace {
bool IsHex(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }

bool ParseQuad(const std::string& s, uint32_t& value) {
  int parts = 0;
  uint32_t v = 0;
  size_t i = 0;
  while (parts < 4) {
    size_t start = i;
    unsigned octet = 0;
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i])) && i - start < 3)
      octet = octet * 10 + static_cast<unsigned>(s[i++] - '0');
    if (i == start || octet > 255) return false;
    v = (v << 8) | octet;
    ++parts;
    if (parts < 4) {
      if (i >= s.size() || s[i] != '.') return false;
      ++i;
    }
  }
  if (i != s.size()) return false;
  value = v;
  return true;
}

bool IsContiguousMask(uint32_t m) { return (~m & (~m + 1)) == 0; }

// The digits of a MAC text when it is written in one of the usual layouts.
bool MacDigits(std::string text, std::string& digits) {
  text = StlHelper::trump(text);
  StlHelper::replaceString(text, "0x", "");
  StlHelper::replaceString(text, "0X", "");
  digits.clear();
  char sep = 0;
  size_t run = 0;
  std::string runs;
  for (char c : text) {
    if (IsHex(c)) {
      digits += c;
      ++run;
      continue;
    }
    if (c != '.' && c != ':' && c != '-' && c != ' ') return false;
    if (sep && c != sep) return false;
    if (run == 0) return false;
    sep = c;
    runs += static_cast<char>('0' + run);
    run = 0;
  }
  if (digits.size() != 12) return false;
  if (!sep) return true;
  runs += static_cast<char>('0' + run);
  return runs == "444" || runs == "222222" || runs == "66";
}
}  // namespace

int CountHexDigit(const std::string& text) {
  int n = 0;
  for (char c : text) n += IsHex(c);
  return n;
}

std::string NormalizeToMacAddress(const std::string& text, int group) {
  std::string clean = text;
  StlHelper::replaceString(clean, "0x", "");
  StlHelper::replaceString(clean, "0X", "");
  std::string digits;
  for (char c : clean)
    if (IsHex(c)) digits += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (digits.size() != 12) return text;
  if (group != 4 && group != 2) return digits;
  const char sep = group == 4 ? '.' : ':';
  std::string out;
  for (size_t i = 0; i < 12; ++i) {
    if (i && i % static_cast<size_t>(group) == 0) out += sep;
    out += digits[i];
  }
  return out;
}

bool IsValidMacAddress(std::string text, bool rejectSpecial) {
  std::string digits;
  if (!MacDigits(text, digits)) return false;
  if (rejectSpecial) {
    const std::string lower = StlHelper::toLower(digits);
    if (lower == "000000000000" || lower == "ffffffffffff") return false;
  }
  return true;
}

bool IsValidInterfaceName(std::string text) {
  if (text.empty() || text.size() > 256) return false;
  if (std::isspace(static_cast<unsigned char>(text.front())) || std::isspace(static_cast<unsigned char>(text.back())))
    return false;
  bool alnum = false;
  for (char c : text) {
    const unsigned char u = static_cast<unsigned char>(c);
    if (u < 0x20 || u == 0x7f) return false;
    if (std::isalnum(u)) alnum = true;
  }
  return alnum;
}

long long Str2LongLong(const std::string& text) {
  std::string t = StlHelper::trump(text);
  if (t.size() > 2 && t[0] == '0' && (t[1] == 'x' || t[1] == 'X')) t.erase(0, 2);
  unsigned long long v = 0;
  int digits = 0;
  for (char c : t) {
    if (c == '.' || c == ':' || c == '-') continue;
    if (!IsHex(c) || ++digits > 16) return 0;
    const int d = std::isdigit(static_cast<unsigned char>(c)) ? c - '0' : std::tolower(c) - 'a' + 10;
    v = (v << 4) | static_cast<unsigned>(d);
  }
  return static_cast<long long>(v);
}

bool StrIsIP(const char* text) {
  uint32_t v;
  return text && ParseQuad(text, v);
}

bool StrIsIPMask(const char* text) {
  if (!text) return false;
  const std::string s = StlHelper::trump(text);
  size_t sep = s.find('/');
  if (sep == std::string::npos) sep = s.find(' ');
  if (sep == std::string::npos) return false;
  uint32_t addr, mask;
  if (!ParseQuad(s.substr(0, sep), addr)) return false;
  const std::string right = StlHelper::trump(s.substr(sep + 1));
  if (ParseQuad(right, mask)) return IsContiguousMask(mask);
  if (s[sep] != '/' || right.empty() || right.size() > 2) return false;
  for (char c : right)
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  return std::atoi(right.c_str()) <= 32;
}

bool StrIsMac(const char* text) {
  std::string digits;
  return text && MacDigits(text, digits);
}
