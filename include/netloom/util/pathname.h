// Paths and whole-file reads.
#pragma once

#include <string>
#include <sys/types.h>

#include "netloom/export.h"

class NETLOOM_API Pathname {
 public:
  explicit Pathname(const std::string& path) : m_path(path) {}

  const std::string& path() const { return m_path; }
  bool exists() const;
  bool isDirectory() const;
  // Creates the last folder of the path; true when it exists afterwards.
  bool mkdir(mode_t mode = 0755) const;
  // Creates the folder and every missing parent; true when it exists afterwards.
  bool mkdirHier(mode_t mode = 0755) const;
  // The file name without folder and without its last extension.
  std::string fileHead() const;
  // The file name with its extension.
  std::string fileName() const;
  // The folder part, ending in "/" (empty when the path has none).
  std::string dirName() const;

 private:
  std::string m_path;
};

class NETLOOM_API FileHelper {
 public:
  // The whole file as bytes; empty when it can't be read.
  static std::string GetFileContentByPath(const std::string& path);
  static bool GetFileContentByPath(const std::string& path, std::string& content);
  // Writes through a temporary file and a rename, so a crash never leaves half a file.
  static bool WriteFileAtomic(const std::string& path, const std::string& content);
};
