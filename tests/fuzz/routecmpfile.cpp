// Any bytes as a saved route comparison.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "netloom/routingtablecmp.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::string path = "/tmp/netloom_fuzz_routecmp_" + std::to_string(::getpid());
  if (FILE* f = std::fopen(path.c_str(), "wb")) {
    std::fwrite(data, 1, size, f);
    std::fclose(f);
  }
  RoutingTableCmp cmp;
  cmp.ReadRTCmpData(path.c_str());
  return 0;
}
