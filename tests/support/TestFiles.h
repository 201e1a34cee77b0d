// Small file helpers shared by the tests: a fresh scratch folder below the
// process's private temporary folder, and whole-file reads and writes in
// binary mode (no line-end translation). Header-only; not for use from two
// threads on the same paths.
#pragma once

#include <fstream>
#include <sstream>
#include <string>

#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

namespace testsupport {

// A fresh, empty folder below the process's temporary folder; ends in "/".
inline std::string scratchFolder(const std::string& name) {
  std::string dir = QXFileSystem::GetTempFolder() + name;
  Pathname(dir).removeFile(true);
  platform::makeDir(dir);
  return dir + "/";
}

inline void writeFile(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
}

// The whole file; empty when it cannot be read.
inline std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

// `text` in a file of that name in the temporary folder; returns its path.
inline std::string tempFile(const std::string& name, const std::string& text) {
  const std::string path = QXFileSystem::GetTempFolder() + name;
  writeFile(path, text);
  return path;
}

}  // namespace testsupport
