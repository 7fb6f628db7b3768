#include "netloom/util/strformat.h"

#include <cctype>

StrFormat& StrFormat::operator<<(const std::string& value) {
  m_args.push_back(value);
  return *this;
}

std::string StrFormat::str() const {
  // One pass, so an argument that itself contains "{1}" is never expanded again.
  std::string out;
  out.reserve(m_pattern.size());
  for (size_t i = 0; i < m_pattern.size();) {
    if (m_pattern[i] == '{') {
      size_t j = i + 1;
      size_t index = 0;
      while (j < m_pattern.size() && std::isdigit(static_cast<unsigned char>(m_pattern[j])) && j - i < 6)
        index = index * 10 + static_cast<size_t>(m_pattern[j++] - '0');
      if (j > i + 1 && j < m_pattern.size() && m_pattern[j] == '}' && index < m_args.size()) {
        out += m_args[index];
        i = j + 1;
        continue;
      }
    }
    out += m_pattern[i++];
  }
  return out;
}
