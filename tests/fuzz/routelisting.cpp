// Any bytes as a route listing: the parse ends, every stored entry is whole,
// and the table can be saved and read back with the same routes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "netloom/routingtable.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  RoutingTable table("fuzz");
  table.ParseCmdString(text.c_str(), nullptr, true);
  for (auto& [index, entry] : table.getEntryIndexMap())
    if (!entry || entry->Index != index || !entry->DestMask.isValidNetMask()) std::abort();

  std::stringstream file;
  if (!table.SaveRTData(file)) std::abort();
  RoutingTable back;
  if (!back.ReadRTData(file, true) || back.GetSize() != table.GetSize()) std::abort();
  return 0;
}
