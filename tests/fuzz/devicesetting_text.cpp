// Device-setting text of any bytes: loading never crashes, and whatever
// loads writes out in a form that loads again to the same record.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "netloom/devicesetting.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // Keep the key out of the conf folder of whoever runs the fuzzer.
    ::setenv("NETLOOM_AES_KEY", "AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA=", 1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const bool keep = data[0] & 1;
    std::istringstream in(std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
    DeviceSetting first;
    first.setUserName("kept");
    if (!first.loadFromString(in, keep)) return 0;

    std::ostringstream out;
    first.generateString(out, false);
    std::istringstream again(out.str());
    DeviceSetting second;
    if (!second.loadFromString(again, false)) std::abort();
    if (second.getHostName() != first.getHostName() || second.getPassWord() != first.getPassWord() ||
        second.getExternalServers().size() > first.getExternalServers().size() ||
        second.getModeLoginScript() != first.getModeLoginScript())
        std::abort();
    return 0;
}
