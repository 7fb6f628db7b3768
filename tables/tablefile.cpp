// Helpers shared by the device-table modules.
#include "tables/tablefile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cstdlib>
#include <ctime>

#include "netloom/ipaddress.h"

namespace netloom::detail::table {

bool CanAccess(const std::string& path) { return ::access(path.c_str(), F_OK) == 0; }

int64_t Now() { return static_cast<int64_t>(std::time(nullptr)); }

int64_t FileTimeOrNow(const std::string& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return Now();
  return static_cast<int64_t>(st.st_mtime);
}

int Atoi(const std::string& text) {
  // Narrowing keeps the low bits, as glibc's atoi does with strtol's clamped value.
  return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

bool AllDigits(const std::string& text) {
  if (text.empty()) return false;
  for (char c : text)
    if (c < '0' || c > '9') return false;
  return true;
}

bool IsValidIp(const std::string& text) { return IpAddress::isValidIpAddress(text); }

bool ReadTextLine(std::istream& in, std::string& line) {
  if (!std::getline(in, line)) return false;
  const size_t cr = line.find('\r');
  if (cr != std::string::npos) line.resize(cr);
  return true;
}

std::string AsciiUpper(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

std::string AsciiLower(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

bool EqualNoCase(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    if (x != y) return false;
  }
  return true;
}

void AppendKeyPart(std::string& key, const std::string& part) {
  key += std::to_string(part.size());
  key += ':';
  key += part;
}

void TakeHostname(const CSVLineParser& row, std::string& hostname) {
  static const std::string tag = "hostname:";
  if (row.size() < 2) return;
  const std::string& field = row.Field(1);
  const size_t at = field.find(tag);
  if (at != std::string::npos) hostname = field.substr(at + tag.size());
}

void WriteTableHead(std::ostream& out, CSVLineParser& row, const std::string& hostname,
                    const char* const* names, size_t count) {
  row.SetAt(0, "version:1.0");
  row.SetAt(1, "hostname:" + hostname);
  row.WriteToStream(out);
  for (size_t i = 0; i < count; ++i) row.SetAt(static_cast<int>(i), names[i]);
  row.WriteToStream(out);
}

bool HeaderMatches(const CSVLineParser& row, const char* const* names, size_t count) {
  if (row.size() < count) return false;
  for (size_t i = 0; i < count; ++i)
    if (row.Field(i) != names[i]) return false;
  return true;
}

}  // namespace netloom::detail::table
