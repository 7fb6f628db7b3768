// MAC addresses as one number, read from whatever notation a device prints
// (dotted, colon, dash, bare, "0x"-prefixed) and written back in a chosen
// grouping. GetMacAddress digs addresses out of text that has already been
// split into words, where one address may span several of them.
#pragma once

#include <string>
#include <vector>

#include "netloom/export.h"

class NETLOOM_API MacAddress {
 public:
  MacAddress() = default;
  MacAddress(const MacAddress& other) = default;
  MacAddress(long long value) : m_value(value) {}
  // Reads the first 12 hexadecimal digits that survive cleaning; fewer leave 0.
  MacAddress(const std::string& text);

  MacAddress& operator=(const MacAddress& other) = default;

  bool operator==(const MacAddress& other) const { return m_value == other.m_value; }
  int operator!=(const MacAddress& other) const { return m_value != other.m_value; }
  bool operator<(const MacAddress& other) const { return m_value < other.m_value; }
  bool operator>(const MacAddress& other) const { return m_value > other.m_value; }

  long long LonglongForm() const { return m_value; }
  bool isValid() const { return m_value != 0; }

  // Lower-case hex padded to 12 digits with a "." after every `group` digits;
  // empty for the null address.
  std::string TextForm(int group) const;

  // True when exactly 12 hexadecimal digits remain after cleaning.
  static bool IsMacAddress(const std::string& text);

  // Appends to `found` each address seen in `words`, trying one, two, three
  // and six consecutive words as one address.
  static void GetMacAddress(const std::vector<std::string>& words,
                            std::vector<std::string>& found, bool normalize);

 private:
  long long m_value = 0;
};
