// Helpers for the design-note tests: scratch folders, small files, the
// interpreter check and the folders of the example notes and test data.
#pragma once

#include <string>

#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "support/CliRun.h"
#include "support/TestFiles.h"

namespace notestest {

using testsupport::readFile;
using testsupport::writeFile;

// A fresh, empty folder (no separator at the end).
inline std::string scratch(const std::string& name) {
  std::string dir = testsupport::scratchFolder(name);
  dir.pop_back();
  return dir;
}

inline bool exists(const std::string& path) { return platform::access(path, 0) == 0; }

inline bool havePerl() { return !QXFileSystem::GetPerlExepath().empty(); }

inline std::string examplesDir() { return std::string(VTYCONF_SOURCE_DIR) + "/examples/notes"; }
inline std::string dataDir() { return std::string(VTYCONF_TEST_DATA_DIR) + "/notes"; }

}  // namespace notestest
