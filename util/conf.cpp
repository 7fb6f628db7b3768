#include "netloom/util/conf.h"

#include <boost/property_tree/ini_parser.hpp>
#include <boost/property_tree/ptree.hpp>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>

#include "netloom/util/stlhelper.h"
#include "netloom/util/twfilesystem.h"

CConf::CConf(const char* fileName) {
  if (!fileName || !*fileName) return;
  std::string path = fileName;
  if (path[0] != '/') path = TWFileSystem::GetSystemConfFolder() + path;
  std::ifstream in(StlHelper::AToW(path));
  if (!in) return;
  try {
    boost::property_tree::ptree tree;
    boost::property_tree::ini_parser::read_ini(in, tree);
    for (const auto& section : tree) {
      auto& keys = m_values[section.first];
      for (const auto& kv : section.second) keys[kv.first] = StlHelper::trump(kv.second.data());
    }
    m_loaded = true;
  } catch (const std::exception&) {
    // A malformed file counts as absent: the defaults of the calling code stand.
    m_values.clear();
  }
}

bool CConf::HasValue(const std::string& section, const std::string& key) const {
  auto s = m_values.find(section);
  return s != m_values.end() && s->second.count(key) != 0;
}

std::string CConf::GetString(const std::string& section, const std::string& key, const std::string& def) const {
  auto s = m_values.find(section);
  if (s == m_values.end()) return def;
  auto k = s->second.find(key);
  return k == s->second.end() ? def : k->second;
}

int CConf::GetInt(const std::string& section, const std::string& key, int def) const {
  const std::string text = GetString(section, key);
  if (text.empty()) return def;
  errno = 0;
  char* end = nullptr;
  const long value = std::strtol(text.c_str(), &end, 10);
  if (errno || *end || value < INT_MIN || value > INT_MAX) return def;
  return static_cast<int>(value);
}

int CConf::LoadIntValue(CConf& fixConf, CConf& conf, const char* section, const char* key, int defaultValue) {
  const std::string s = section ? section : "", k = key ? key : "";
  if (fixConf.HasValue(s, k)) return fixConf.GetInt(s, k, defaultValue);
  return conf.GetInt(s, k, defaultValue);
}
