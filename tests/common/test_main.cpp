// Shared main of every test executable: points the library's folders at a
// fresh scratch area before any test runs, since the library reads the
// NETLOOM_* variables once, at first use.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "common/testenv.h"

int main(int argc, char** argv) {
  const std::string scratch = netloom_test::ScratchDir();
  auto set = [&](const char* var, const std::string& sub) {
    const std::string dir = scratch + sub + "/";
    std::filesystem::create_directories(dir);
    ::setenv(var, dir.c_str(), 1);
  };
  set("NETLOOM_TEMP_DIR", "temp");
  set("NETLOOM_CONF_DIR", "conf");
  set("NETLOOM_LOG_DIR", "log");
  set("NETLOOM_BIN_DIR", "bin");
  set("NETLOOM_PARSER_DATA_DIR", "parserdata");
  ::setenv("NETLOOM_RESOURCE_DIR", (std::string(NETLOOM_SOURCE_DIR) + "resources/").c_str(), 1);
  ::setenv("NETLOOM_PYTHON_DIR", "/usr/", 0);

  ::testing::InitGoogleTest(&argc, argv);
  const int rc = RUN_ALL_TESTS();
  if (!std::getenv("NETLOOM_KEEP_SCRATCH")) {
    std::error_code ec;
    std::filesystem::remove_all(scratch, ec);
  }
  return rc;
}
