// Test helpers of the results tests: a private folder below the process's
// temporary folder, and small file readers and writers.
#pragma once

#include <fstream>
#include <sstream>
#include <string>

#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

namespace resultstest {

// A fresh, empty folder for one test (ends in a separator).
inline std::string freshFolder(const std::string& name) {
  std::string dir = QXFileSystem::GetTempFolder() + name;
  Pathname(dir).removeFile(true);
  platform::makeDir(dir);
  return dir + platform::kPathSeparator;
}

inline void writeFile(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
}

inline std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

}  // namespace resultstest
