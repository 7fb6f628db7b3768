// Checks and normal forms for the texts device tables hold: MAC addresses,
// interface names, IP addresses.
#pragma once

#include <string>

#include "netloom/export.h"

// How many hexadecimal digits the text holds, wherever they stand.
NETLOOM_API int CountHexDigit(const std::string& text);
// The hexadecimal digits of the text ("0x" prefixes dropped), lower case, grouped
// by `group` digits: 4 gives "0011.2233.4455", 2 gives "00:11:22:33:44:55", any
// other value the 12 plain digits. A text without exactly 12 digits comes back unchanged.
NETLOOM_API std::string NormalizeToMacAddress(const std::string& text, int group);
// Exactly 12 hexadecimal digits, separated by nothing or by '.', ':', '-' or ' '
// in the usual places. With `rejectSpecial` the all-zero and broadcast
// addresses are refused too, as incomplete table rows carry them.
NETLOOM_API bool IsValidMacAddress(std::string text, bool rejectSpecial);
// 1 to 256 characters, no control characters, no white space at the ends, at
// least one letter or digit.
NETLOOM_API bool IsValidInterfaceName(std::string text);
// The hexadecimal number in the text, separators '.', ':', '-' and a "0x"
// prefix ignored; 0 for anything else or more than 16 digits.
NETLOOM_API long long Str2LongLong(const std::string& text);
// A dotted-quad IPv4 address.
NETLOOM_API bool StrIsIP(const char* text);
// An address with a mask: "a.b.c.d/len", "a.b.c.d/m.m.m.m" or "a.b.c.d m.m.m.m",
// with a contiguous mask.
NETLOOM_API bool StrIsIPMask(const char* text);
// A MAC address in any common notation.
NETLOOM_API bool StrIsMac(const char* text);
