#include "netloom/util/guid.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid.hpp>
#include <cctype>
#include <cstring>
#include <mutex>

namespace {
int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// Reads 32 hex digits, skipping the characters in `skip`; false on anything else.
bool ReadHex(const std::string& text, const char* skip, std::array<uint8_t, 16>& out) {
  std::array<uint8_t, 16> bytes{};
  size_t digits = 0;
  for (char c : text) {
    if (std::strchr(skip, c) && c != '\0') continue;
    const int v = HexValue(c);
    if (v < 0 || digits >= 32) return false;
    bytes[digits / 2] = static_cast<uint8_t>(bytes[digits / 2] | (digits % 2 ? v : v << 4));
    ++digits;
  }
  if (digits != 32) return false;
  out = bytes;
  return true;
}

std::string Hex(const std::array<uint8_t, 16>& b, bool dashes, bool upper) {
  const char* digits = upper ? "0123456789ABCDEF" : "0123456789abcdef";
  std::string s;
  s.reserve(36);
  for (size_t i = 0; i < 16; ++i) {
    if (dashes && (i == 4 || i == 6 || i == 8 || i == 10)) s += '-';
    s += digits[b[i] >> 4];
    s += digits[b[i] & 15];
  }
  return s;
}
}  // namespace

TW128Guid TW128Guid::NewGuid() {
  TW128Guid g;
  g.GenerateGuid();
  return g;
}

TW128Guid TW128Guid::FromString(const std::string& text) {
  TW128Guid g;
  g.ParserStr(text);
  return g;
}

void TW128Guid::GenerateGuid() {
  static std::mutex mutex;
  static boost::uuids::random_generator generator;
  boost::uuids::uuid u;
  {
    std::lock_guard<std::mutex> lock(mutex);
    u = generator();
  }
  std::memcpy(m_bytes.data(), u.data, 16);
}

bool TW128Guid::IsNull() const {
  for (auto b : m_bytes)
    if (b) return false;
  return true;
}

std::string TW128Guid::ToString() const { return Hex(m_bytes, true, false); }
std::string TW128Guid::ToXHexString() const { return Hex(m_bytes, false, true); }

bool TW128Guid::ParserStr(const std::string& text) {
  std::string t = text;
  if (t.size() == 38 && t.front() == '{' && t.back() == '}') t = t.substr(1, 36);
  const bool ok = t.size() == 36 && t[8] == '-' && t[13] == '-' && t[18] == '-' && t[23] == '-' &&
                  ReadHex(t, "-", m_bytes);
  if (!ok) SetNull();
  return ok;
}

bool TW128Guid::ParserXHexStr(const std::string& text, bool lenient) {
  const bool ok = ReadHex(text, lenient ? "-{}" : "", m_bytes);
  if (!ok) SetNull();
  return ok;
}
