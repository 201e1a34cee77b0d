// Running the built vtyconf program from a test: exit code, standard output
// and standard error of one run, through the shell (arguments are written
// as they would be typed, with their own quoting).
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "platform/QXFileSystem.h"

namespace testsupport {

struct CliRun {
  int exitCode = -1;
  std::string out;
  std::string err;
};

inline std::string readWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

inline CliRun runCli(const std::string& arguments) {
  const std::string dir = QXFileSystem::GetTempFolder();
  const std::string out = dir + "cli-run-out.txt";
  const std::string err = dir + "cli-run-err.txt";
  const std::string command =
      "'" + std::string(VTYCONF_CLI_PATH) + "' " + arguments + " >'" + out + "' 2>'" + err + "' </dev/null";
  const int status = std::system(command.c_str());
  CliRun run;
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  run.out = readWholeFile(out);
  run.err = readWholeFile(err);
  return run;
}

}  // namespace testsupport
