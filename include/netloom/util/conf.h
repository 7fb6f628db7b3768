// Site settings from ini files in the conf folder. Settings come in pairs: a
// file the site edits ("procedure3.ini") and one that fixes a value for the
// site ("fix_procedure3.ini"); LoadIntValue lets the "fix_" file win.
#pragma once

#include <map>
#include <string>

#include "netloom/export.h"

class NETLOOM_API CConf {
 public:
  // `fileName` is looked up in TWFileSystem::GetSystemConfFolder() unless it
  // is an absolute path. A missing or unreadable file gives an empty set.
  explicit CConf(const char* fileName);
  explicit CConf(const std::string& fileName) : CConf(fileName.c_str()) {}

  bool IsLoaded() const { return m_loaded; }
  bool HasValue(const std::string& section, const std::string& key) const;
  std::string GetString(const std::string& section, const std::string& key, const std::string& def = "") const;
  // The value when it is a whole decimal number, else `def`.
  int GetInt(const std::string& section, const std::string& key, int def) const;

  // The value from `fixConf` when it has one, else from `conf`, else `defaultValue`.
  static int LoadIntValue(CConf& fixConf, CConf& conf, const char* section, const char* key, int defaultValue);

 private:
  std::map<std::string, std::map<std::string, std::string>> m_values;
  bool m_loaded = false;
};
