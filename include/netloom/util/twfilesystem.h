// The library's folders. Each answer ends in "/" so that callers append file
// names directly. A folder comes from its environment variable when set
// (NETLOOM_RESOURCE_DIR, NETLOOM_CONF_DIR, NETLOOM_TEMP_DIR, NETLOOM_LOG_DIR,
// NETLOOM_PYTHON_DIR, NETLOOM_BIN_DIR, NETLOOM_PARSER_DATA_DIR), read once at
// first use; otherwise from the install prefix. A library running from its
// build tree takes its resources from the source tree.
#pragma once

#include <string>

#include "netloom/export.h"

class NETLOOM_API TWFileSystem {
 public:
  static std::string GetSystemResourceFolder();
  static std::string GetSystemConfFolder();
  static std::string GetTempFolder();
  static std::string GetLogFolder();
  static std::string GetSystemPythonFolder();
  static std::string GetSystemBinFolder();
  static std::string GetFSParserDataFolder();
};
