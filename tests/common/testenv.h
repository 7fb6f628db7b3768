// Test environment: every test process runs with its own fresh folders, so
// that no test reads a site's configuration or another run's leftovers.
#pragma once

#include <string>

namespace netloom_test {

// Folder of this process's scratch area, ending in "/".
const std::string& ScratchDir();
// A new empty folder under the scratch area, ending in "/".
std::string MakeTempDir(const std::string& hint = "t");
// Path of a file in the source tree's tests/ folder.
std::string TestSourcePath(const std::string& relative);
// Path of a file in the source tree.
std::string SourcePath(const std::string& relative);
// Writes text to a file, creating parent folders; returns the path.
std::string WriteFile(const std::string& path, const std::string& text);
// Whole content of a file; empty when it can't be read.
std::string ReadFile(const std::string& path);

}  // namespace netloom_test
