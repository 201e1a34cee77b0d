// Helpers for the design-note tests: scratch folders, small files, the
// interpreter check, and running the built vtyconf program with its output
// captured.
#pragma once

#include <string>
#include <vector>

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

struct CliResult {
  int status = -1;
  std::string out;
  std::string err;
};

// Runs the vtyconf program with args, each passed as it stands.
inline CliResult runCli(const std::vector<std::string>& args) {
  const testsupport::CliRun run = testsupport::runCliArgs(args);
  return CliResult{run.exitCode, run.out, run.err};
}

}  // namespace notestest
