// Helpers shared by the device-table modules: file status, the number and text
// readers the table files need, and the case folding their compares use.
#pragma once

#include <cstdint>
#include <istream>
#include <string>

namespace netloom::detail::table {

// Whether the path can be reached at all (existence, not permission to read).
bool CanAccess(const std::string& path);
// The file's modification time in seconds since 1970, or now when its status can't be read.
int64_t FileTimeOrNow(const std::string& path);
int64_t Now();

// atoi without its undefined overflow: leading blanks, a sign, digits; values
// beyond the range of long are clamped and then narrowed as the C library does.
int Atoi(const std::string& text);
// Non-empty and decimal digits only.
bool AllDigits(const std::string& text);
// A whole dotted-quad IPv4 address.
bool IsValidIp(const std::string& text);

// One line of the old text forms: up to LF, cut at its first CR.
bool ReadTextLine(std::istream& in, std::string& line);

// Byte-wise ASCII case folding; other bytes pass unchanged.
std::string AsciiUpper(std::string text);
std::string AsciiLower(std::string text);
bool EqualNoCase(const std::string& a, const std::string& b);

// Appends a length-prefixed piece to a composite hash key, so that pieces
// holding any bytes (NUL included) can never run into each other.
void AppendKeyPart(std::string& key, const std::string& part);

}  // namespace netloom::detail::table
