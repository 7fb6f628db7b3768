// 128-bit identifiers of devices, drivers, hops and path runs, over Boost.Uuid.
// Text forms: ToString gives the canonical "8-4-4-4-12" lower-case form;
// ToXHexString gives 32 upper-case hexadecimal digits, the form used in file names.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "netloom/export.h"

class NETLOOM_API TW128Guid {
 public:
  TW128Guid() : m_bytes{} {}  // the null guid

  static TW128Guid NewGuid();
  static TW128Guid FromString(const std::string& text);  // null when unreadable

  void GenerateGuid();
  void SetNull() { m_bytes.fill(0); }
  bool IsNull() const;
  bool IsValid() const { return !IsNull(); }

  std::string ToString() const;
  std::string ToXHexString() const;
  // Canonical text, with or without braces, any case. False leaves the guid null.
  bool ParserStr(const std::string& text);
  // 32 hexadecimal digits (dashes and braces are skipped when `lenient`).
  // False leaves the guid null.
  bool ParserXHexStr(const std::string& text, bool lenient = true);

  const std::array<uint8_t, 16>& Bytes() const { return m_bytes; }

  bool operator==(const TW128Guid& o) const { return m_bytes == o.m_bytes; }
  bool operator!=(const TW128Guid& o) const { return m_bytes != o.m_bytes; }
  bool operator<(const TW128Guid& o) const { return m_bytes < o.m_bytes; }

 private:
  std::array<uint8_t, 16> m_bytes;
};

// The older name of the same identifier.
using TWGuid2 = TW128Guid;
