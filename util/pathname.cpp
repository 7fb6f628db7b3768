#include "netloom/util/pathname.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "netloom/util/stlhelper.h"

namespace {
std::string StripSlashes(std::string p) {
  while (p.size() > 1 && p.back() == '/') p.pop_back();
  return p;
}
}  // namespace

bool Pathname::exists() const {
  struct stat st;
  return !m_path.empty() && ::stat(m_path.c_str(), &st) == 0;
}

bool Pathname::isDirectory() const {
  struct stat st;
  return !m_path.empty() && ::stat(m_path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool Pathname::mkdir(mode_t mode) const {
  const std::string p = StripSlashes(m_path);
  if (p.empty()) return false;
  if (::mkdir(p.c_str(), mode) == 0) return true;
  return errno == EEXIST && Pathname(p).isDirectory();
}

bool Pathname::mkdirHier(mode_t mode) const {
  const std::string p = StripSlashes(m_path);
  if (p.empty()) return false;
  for (size_t pos = p.find('/', 1); pos != std::string::npos; pos = p.find('/', pos + 1)) {
    const std::string part = p.substr(0, pos);
    if (::mkdir(part.c_str(), mode) != 0 && errno != EEXIST) return false;
  }
  return Pathname(p).mkdir(mode);
}

std::string Pathname::fileName() const {
  const size_t slash = m_path.find_last_of('/');
  return slash == std::string::npos ? m_path : m_path.substr(slash + 1);
}

std::string Pathname::fileHead() const {
  const std::string name = fileName();
  const size_t dot = name.find_last_of('.');
  return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

std::string Pathname::dirName() const {
  const size_t slash = m_path.find_last_of('/');
  return slash == std::string::npos ? std::string() : m_path.substr(0, slash + 1);
}

bool FileHelper::GetFileContentByPath(const std::string& path, std::string& content) {
  content.clear();
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  content = StlHelper::fromStram(in);
  return !in.bad();
}

std::string FileHelper::GetFileContentByPath(const std::string& path) {
  std::string content;
  GetFileContentByPath(path, content);
  return content;
}

bool FileHelper::WriteFileAtomic(const std::string& path, const std::string& content) {
  const std::string tmp = path + ".tmp." + std::to_string(::getpid());
  {
    std::ofstream out(StlHelper::AToW(tmp), std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.flush();
    if (!out) {
      std::remove(tmp.c_str());
      return false;
    }
  }
  if (std::rename(tmp.c_str(), path.c_str()) != 0) {
    std::remove(tmp.c_str());
    return false;
  }
  return true;
}
