#include "netloom/util/twfilesystem.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

std::string WithSlash(std::string dir) {
  if (dir.empty() || dir.back() != '/') dir += '/';
  return dir;
}

std::string FromEnv(const char* var, const std::string& fallback) {
  const char* value = std::getenv(var);
  return WithSlash(value && *value ? std::string(value) : fallback);
}

// Where this shared library was loaded from; empty when unknown.
std::string LibraryPath() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&LibraryPath), &info) && info.dli_fname) {
    std::error_code ec;
    auto p = std::filesystem::weakly_canonical(info.dli_fname, ec);
    return ec ? std::string(info.dli_fname) : p.string();
  }
  return {};
}

bool RunsFromBuildTree() {
  std::error_code ec;
  const auto build = std::filesystem::weakly_canonical(NETLOOM_BUILD_DIR, ec).string();
  const std::string lib = LibraryPath();
  return !build.empty() && lib.compare(0, build.size(), build) == 0;
}

const std::string kPrefix = WithSlash(NETLOOM_INSTALL_PREFIX);

}  // namespace

std::string TWFileSystem::GetSystemResourceFolder() {
  static const std::string dir = FromEnv(
      "NETLOOM_RESOURCE_DIR",
      RunsFromBuildTree() ? std::string(NETLOOM_SOURCE_RESOURCE_DIR) : kPrefix + "share/netloom/resources/");
  return dir;
}

std::string TWFileSystem::GetSystemConfFolder() {
  static const std::string dir = FromEnv("NETLOOM_CONF_DIR", kPrefix + "etc/netloom/");
  return dir;
}

std::string TWFileSystem::GetTempFolder() {
  static const std::string dir = [] {
    const char* tmp = std::getenv("TMPDIR");
    return FromEnv("NETLOOM_TEMP_DIR", WithSlash(tmp && *tmp ? tmp : "/tmp") + "netloom/");
  }();
  return dir;
}

std::string TWFileSystem::GetLogFolder() {
  static const std::string dir = FromEnv("NETLOOM_LOG_DIR", kPrefix + "var/log/netloom/");
  return dir;
}

std::string TWFileSystem::GetSystemPythonFolder() {
  static const std::string dir = FromEnv("NETLOOM_PYTHON_DIR", "/usr/");
  return dir;
}

std::string TWFileSystem::GetSystemBinFolder() {
  static const std::string dir = FromEnv("NETLOOM_BIN_DIR", kPrefix + "bin/");
  return dir;
}

std::string TWFileSystem::GetFSParserDataFolder() {
  static const std::string dir = FromEnv("NETLOOM_PARSER_DATA_DIR", kPrefix + "share/netloom/parserdata/");
  return dir;
}
