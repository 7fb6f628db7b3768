// Small text and binary helpers shared by the route parser, the route file
// readers and the comparison file. Private to the library.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <istream>
#include <ostream>
#include <string>

namespace netloom::detail {

// atoi without its undefined overflow: the value strtol gives, narrowed as
// the platform's atoi narrows it, so "4294967295" still reads back as ~0u.
inline int Atoi(const char* text) {
  return text ? static_cast<int>(std::strtol(text, nullptr, 10)) : 0;
}
inline int Atoi(const std::string& text) { return Atoi(text.c_str()); }

// The common shape of a dotted address, four groups of one to three digits
// each at most 255, read without sscanf. False for any other text, which
// the caller then hands to the general reader (whose result on this shape
// is the same number).
inline bool FastDotted(const char* text, size_t length, unsigned int& value) {
  unsigned int result = 0;
  size_t i = 0;
  for (int group = 0; group < 4; ++group) {
    if (group) {
      if (i >= length || text[i] != '.') return false;
      ++i;
    }
    unsigned int octet = 0;
    size_t digits = 0;
    while (i < length && text[i] >= '0' && text[i] <= '9' && digits < 4) {
      octet = octet * 10 + unsigned(text[i] - '0');
      ++i, ++digits;
    }
    if (digits == 0 || digits > 3 || octet > 255) return false;
    result = result << 8 | octet;
  }
  if (i != length) return false;
  value = result;
  return true;
}

// Route ages as devices print them ("00:01:02", "1d02h", "2w3d"), read
// without sscanf. False for any other text, which goes to the general reader
// (RoutingTable::FormatTimeToSecond, which gives the same number on these).
inline bool FastAge(const char* text, unsigned int& seconds) {
  unsigned int n[3] = {0, 0, 0};
  char sep[3] = {0, 0, 0};
  int parts = 0;
  const char* p = text;
  while (parts < 3) {
    int digits = 0;
    unsigned int v = 0;
    while (*p >= '0' && *p <= '9' && digits < 9) v = v * 10 + unsigned(*p++ - '0'), ++digits;
    if (digits == 0 || (*p >= '0' && *p <= '9')) return false;
    n[parts] = v;
    sep[parts] = *p;
    ++parts;
    if (*p == '\0') break;
    ++p;
    if ((sep[parts - 1] == 'd' || sep[parts - 1] == 'h') && *p == '\0') break;
  }
  if (*p != '\0') return false;
  if (parts == 2 && sep[0] == 'w' && sep[1] == 'd') {
    seconds = (n[0] * 7u + n[1]) * 86400u;
    return true;
  }
  if (parts == 2 && sep[0] == 'd' && sep[1] == 'h') {
    seconds = (n[0] * 24u + n[1]) * 3600u;
    return true;
  }
  if (parts == 3 && sep[0] == ':' && sep[1] == ':' && sep[2] == '\0') {
    seconds = (n[0] * 60u + n[1]) * 60u + n[2];
    return true;
  }
  return false;
}

// "0.0.0.0" for 0 through "255.255.255.255" for 32; empty outside.
const std::string& DottedMask(int length);

// Length of a mask written as a dotted quad (set 1) or in hexadecimal (set 2).
std::string MaskTextToLength(int set, const std::string& mask);

// Little-endian words of the binary forms. The readers leave `value` alone
// and report false when the stream runs out.
inline bool ReadLE32(std::istream& in, uint32_t& value) {
  unsigned char b[4];
  if (!in.read(reinterpret_cast<char*>(b), 4)) return false;
  value = uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
  return true;
}
inline bool ReadLE16(std::istream& in, uint16_t& value) {
  unsigned char b[2];
  if (!in.read(reinterpret_cast<char*>(b), 2)) return false;
  value = uint16_t(b[0] | b[1] << 8);
  return true;
}
inline bool ReadByte(std::istream& in, uint8_t& value) {
  char c;
  if (!in.get(c)) return false;
  value = static_cast<uint8_t>(c);
  return true;
}
inline void WriteLE32(std::ostream& out, uint32_t value) {
  const char b[4] = {char(value & 0xFF), char(value >> 8 & 0xFF), char(value >> 16 & 0xFF), char(value >> 24 & 0xFF)};
  out.write(b, 4);
}

// A length-prefixed text: a 32-bit length, then that many bytes, taken up to
// the first NUL. Lengths above `maxLength` end the read with false.
inline bool ReadLengthText(std::istream& in, std::string& text, uint32_t maxLength) {
  uint32_t length = 0;
  if (!ReadLE32(in, length) || length > maxLength) return false;
  std::string buffer(length, '\0');
  if (length && !in.read(&buffer[0], length)) return false;
  const size_t nul = buffer.find('\0');
  if (nul != std::string::npos) buffer.resize(nul);
  text = std::move(buffer);
  return true;
}

}  // namespace netloom::detail
