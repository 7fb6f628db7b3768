// Helpers shared by the device-table modules: file status, the number and text
// readers the table files need, and the case folding their compares use.
#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

#include "netloom/util/csvparser.h"

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

// Host name from a table's first row: all after the first "hostname:" in
// field 1, when there is one; otherwise `hostname` stays.
void TakeHostname(const CSVLineParser& row, std::string& hostname);
// Writes the two head rows of a table file: "version:1.0" and "hostname:"
// with the host name, then the column names. Leaves those cells in `row`.
void WriteTableHead(std::ostream& out, CSVLineParser& row, const std::string& hostname,
                    const char* const* names, size_t count);
// The first `count` fields of a column row are exactly `names`.
bool HeaderMatches(const CSVLineParser& row, const char* const* names, size_t count);

// One line of the old text forms: up to LF, cut at its first CR.
bool ReadTextLine(std::istream& in, std::string& line);

// Byte-wise ASCII case folding; other bytes pass unchanged.
std::string AsciiUpper(std::string text);
std::string AsciiLower(std::string text);
bool EqualNoCase(const std::string& a, const std::string& b);

// Appends a length-prefixed piece to a composite hash key, so that pieces
// holding any bytes (NUL included) can never run into each other.
void AppendKeyPart(std::string& key, const std::string& part);

// The rows of one side of a compare, waiting under their keys in row order:
// the compares pair each row with the first row of its key not yet taken.
// One hash entry per distinct key and one link per row.
template <typename Key>
class RowQueues {
 public:
  static constexpr size_t npos = static_cast<size_t>(-1);

  explicit RowQueues(size_t rows) : m_next(rows, npos) { m_ends.reserve(rows); }
  // Rows must come in ascending order.
  void Add(const Key& key, size_t row) {
    auto [it, fresh] = m_ends.try_emplace(key, Ends{row, row});
    if (fresh) return;
    if (it->second.head == npos)
      it->second.head = row;
    else
      m_next[it->second.tail] = row;
    it->second.tail = row;
  }
  // The first waiting row of the key, taken out; npos when there is none.
  size_t Take(const Key& key) {
    const auto it = m_ends.find(key);
    if (it == m_ends.end() || it->second.head == npos) return npos;
    const size_t row = it->second.head;
    it->second.head = m_next[row];
    return row;
  }

 private:
  struct Ends {
    size_t head, tail;
  };
  std::unordered_map<Key, Ends> m_ends;
  std::vector<size_t> m_next;
};

}  // namespace netloom::detail::table
