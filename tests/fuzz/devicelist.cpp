// Any bytes as a device list file.
#include <cstddef>
#include <cstdint>
#include <string>

#include "netloom/devicelistdata.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  DeviceListData list;
  list.LoadFromString(std::string(reinterpret_cast<const char*>(data), size), TWGuid2());
  std::string again;
  list.SaveToString(again, TWGuid2());
  return 0;
}
