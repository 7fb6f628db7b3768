#include "common/testenv.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace netloom_test {

const std::string& ScratchDir() {
  static const std::string dir = [] {
    fs::path base = fs::temp_directory_path() / ("netloom-test-" + std::to_string(::getpid()));
    fs::remove_all(base);
    fs::create_directories(base);
    return base.string() + "/";
  }();
  return dir;
}

std::string MakeTempDir(const std::string& hint) {
  static int counter = 0;
  std::string dir = ScratchDir() + hint + "-" + std::to_string(++counter) + "/";
  fs::remove_all(dir);
  fs::create_directories(dir);
  return dir;
}

std::string TestSourcePath(const std::string& relative) { return NETLOOM_TEST_SOURCE_DIR + relative; }
std::string SourcePath(const std::string& relative) { return NETLOOM_SOURCE_DIR + relative; }

std::string WriteFile(const std::string& path, const std::string& text) {
  fs::path p(path);
  if (p.has_parent_path()) fs::create_directories(p.parent_path());
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
  return path;
}

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

}  // namespace netloom_test
