// "{0}"-style templates: StrFormat("sys.path.append('{0}')") << dir).str().
// Each << fills the next index; every occurrence of that index is replaced.
// Placeholders with no argument stay as written.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "netloom/export.h"

class NETLOOM_API StrFormat {
 public:
  explicit StrFormat(std::string pattern) : m_pattern(std::move(pattern)) {}

  StrFormat& operator<<(const std::string& value);
  StrFormat& operator<<(const char* value) { return *this << std::string(value ? value : ""); }
  template <typename T>
  StrFormat& operator<<(const T& value) {
    std::ostringstream ss;
    ss << value;
    return *this << ss.str();
  }

  std::string str() const;

 private:
  std::string m_pattern;
  std::vector<std::string> m_args;
};
