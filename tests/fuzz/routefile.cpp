// Any bytes as a route file, CSV or binary: the read ends with a result and
// leaves only whole entries behind.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "netloom/routingtable.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  RoutingTable table;
  table.ReadRTData(in, true);
  for (auto& [index, entry] : table.getEntryIndexMap())
    if (!entry || entry->Index != index) std::abort();
  std::ostringstream out;
  table.SaveRTData(out);
  return 0;
}
