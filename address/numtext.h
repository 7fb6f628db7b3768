// Number reading shared by the address modules. Device and file text is
// untrusted, and atoi overflows into undefined behaviour; this reads the same
// prefix atoi would and clamps instead.
#pragma once

#include <climits>
#include <cstdlib>
#include <string>

namespace netloom::detail {

// Leading blanks, an optional sign, then digits up to the first other
// character; 0 when there are none. Out-of-range values stop at INT_MIN/INT_MAX.
inline int AtoiClamped(const std::string& text) {
  const long long value = std::strtoll(text.c_str(), nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

}  // namespace netloom::detail
