// Interface-type JSON of any bytes, loaded the way the library loads it:
// from MultiVendorData/InterfaceType.json under the resource folder.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "netloom/ifnametransfermgr.h"

namespace {
std::string g_file;
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    const std::string dir = std::filesystem::temp_directory_path().string() + "/netloom-fuzz-ifname-" +
                            std::to_string(::getpid()) + "/";
    std::filesystem::create_directories(dir + "MultiVendorData");
    ::setenv("NETLOOM_RESOURCE_DIR", dir.c_str(), 1);
    ::setenv("NETLOOM_PARSER_DATA_DIR", dir.c_str(), 1);
    g_file = dir + "MultiVendorData/InterfaceType.json";
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    {
        std::ofstream out(g_file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    IfNameTransfersMgr* mgr = IfNameTransfersMgr::Instant();
    mgr->LoadData();
    static const char* const names[] = {"Gi0/1", "x1", "", "0", "_", "Eth-Trunk1", "a b 1"};
    for (const char* name : names) {
        const std::string full = mgr->GetFullIfNameFromPossibleName("d", name);
        // An expansion keeps everything from the first digit or underscore on.
        const std::string in(name);
        const size_t cut = in.find_first_of("_0123456789");
        if (cut != std::string::npos && full.size() < in.size() - cut) std::abort();
    }
    return 0;
}
