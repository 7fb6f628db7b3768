// Hostile CSV: any bytes must read without a crash, and whatever rows were
// read must come back unchanged after a write and a second read.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/util/csvparser.h"

namespace {

std::vector<std::vector<std::string>> ReadAll(const std::string& text, const std::string& delim) {
  std::istringstream in(text);
  CSVLineParser line(delim);
  std::vector<std::vector<std::string>> rows;
  while (line.ReadFromStream(in)) rows.push_back(line.Fields());
  return rows;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  // The first byte picks the delimiter. Any byte must read safely; the round
  // trip is owed only for delimiters that are not themselves CSV syntax.
  const char any = static_cast<char>(data[0]);
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  ReadAll(text, std::string(1, any));
  static const char kDelims[] = {',', ';', '\t', '|', ' ', 'a'};
  const std::string delim(1, kDelims[data[0] % sizeof kDelims]);

  const auto rows = ReadAll(text, delim);
  std::ostringstream out;
  for (const auto& cells : rows) {
    CSVLineParser line(delim);
    line.Fields() = cells;
    line.WriteToStream(out);
  }
  if (ReadAll(out.str(), delim) != rows) __builtin_trap();

  CSVParser csv(delim);
  csv.Load(text);
  if (csv.size() != rows.size()) __builtin_trap();
  return 0;
}
