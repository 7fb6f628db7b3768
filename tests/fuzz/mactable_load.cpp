// Feeds arbitrary bytes to the MAC table readers. Whatever loads must survive
// every query, and a table the CSV import accepted must come back the same
// through its own writer.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "netloom/mactable.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);

  MacTable loaded;
  std::istringstream in(text);
  if (!loaded.LoadMacTable(in)) __builtin_trap();
  const unsigned count = loaded.GetRecordCount();
  if (count > 0) {
    const MacRecord* last = loaded[count - 1];
    if (!last || loaded[count]) __builtin_trap();
    int64_t mac = last->Mac;
    MacTable::PortVlanSet ports;
    if (!loaded.GetPortByMac(mac, ports)) __builtin_trap();
    MacTable filtered;
    loaded.FilterMacTableWithMac(filtered, text.substr(0, 4));
    loaded.FilterMacTableWithPort(filtered, last->PortName);
    loaded.FilterMacTableWithVlan(filtered, text.substr(0, 3));
  }

  MacTable imported;
  std::istringstream again(text);
  if (!imported.ImportMacTable(again, "fuzz")) return 0;
  std::ostringstream out;
  if (!imported.ExportMacTable(out)) __builtin_trap();
  MacTable back;
  std::istringstream reread(out.str());
  if (!back.ImportMacTable(reread, "fuzz")) __builtin_trap();
  if (back.GetRecordCount() != imported.GetRecordCount() || !MacTable::IsSameTable(imported, back)) __builtin_trap();
  return 0;
}
