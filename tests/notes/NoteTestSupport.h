// Helpers for the design-note tests: scratch folders, small files, the
// interpreter check, and running the built vtyconf program with its output
// captured.
#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

extern char** environ;

namespace notestest {

inline std::string scratch(const std::string& name) {
  std::string dir = QXFileSystem::GetTempFolder() + name;
  Pathname(dir).removeFile(true);
  platform::makeDir(dir);
  return dir;
}

inline void writeFile(const std::string& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
}

inline std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream ss;
  ss << in.rdbuf();
  return ss.str();
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

// Runs the vtyconf program with args (no shell), standard output and error
// captured in files of the private temporary folder.
inline CliResult runCli(const std::vector<std::string>& args) {
  CliResult result;
  const std::string outPath = QXFileSystem::GetTempFolder() + "cli.out";
  const std::string errPath = QXFileSystem::GetTempFolder() + "cli.err";
  std::vector<std::string> argv{VTYCONF_CLI_PATH};
  argv.insert(argv.end(), args.begin(), args.end());
  std::vector<char*> raw;
  for (auto& a : argv) raw.push_back(const_cast<char*>(a.c_str()));
  raw.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, 1, outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&actions, 2, errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  pid_t pid = 0;
  if (posix_spawn(&pid, raw[0], &actions, nullptr, raw.data(), environ) == 0) {
    int status = 0;
    if (waitpid(pid, &status, 0) == pid && WIFEXITED(status)) result.status = WEXITSTATUS(status);
  }
  posix_spawn_file_actions_destroy(&actions);
  result.out = readFile(outPath);
  result.err = readFile(errPath);
  return result;
}

}  // namespace notestest
