// Feeds arbitrary bytes to the CDP table reader, once without a translator
// and once with one that rewrites names, and checks that an accepted table
// comes back through its own writer and compares equal to itself.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/cdptable.h"

namespace {

// Answers and changes names by their length, so that every branch is reachable.
struct LengthParser : ITWTableParsor {
  static bool Touch(std::string& s, bool& changed) {
    if (s.size() % 3 == 0) return false;
    if (s.size() % 3 == 1) {
      s += "x";
      changed = true;
    }
    return true;
  }
  bool TranslateLink(std::string&, std::string& a, std::string&, std::string& b, bool& changed) override {
    return Touch(a, changed) && Touch(b, changed);
  }
  bool TranslateInterface(std::string&, std::string& name, bool& changed) override { return Touch(name, changed); }
  bool TranslateDevice(std::string&, std::string& device, bool& changed) override { return Touch(device, changed); }
  bool IsKnownAddress(std::string& address) override { return address.size() % 2 == 0; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);

  LengthParser parser;
  for (ITWTableParsor* p : {static_cast<ITWTableParsor*>(nullptr), static_cast<ITWTableParsor*>(&parser)}) {
    CDPTable table;
    table.SetParser(p);
    std::istringstream in(text);
    if (!table.LoadCdpTable(in)) continue;

    std::ostringstream out;
    if (!table.SaveCdpTable(out)) __builtin_trap();
    CDPTable back;  // no translator: the written rows must read back as they are
    std::istringstream reread(out.str());
    if (!back.LoadCdpTable(reread)) __builtin_trap();
    if (back.GetCdpEntryList().size() != table.GetCdpEntryList().size()) __builtin_trap();
    if (!CDPTable::IsSameTable(table, back) || !CDPTable::IsSameTableCA(table, back)) __builtin_trap();
    std::vector<CDPTableEntryPair> pairs;
    CDPTable::GetCdpCompareResult(table, back, pairs);
    if (pairs.size() != table.GetCdpEntryList().size()) __builtin_trap();
  }
  return 0;
}
