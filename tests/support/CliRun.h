// Running the built vtyconf program from a test: exit code, standard output
// and standard error of one run, through the shell. runCli takes arguments
// as they would be typed, with their own quoting; runCliArgs quotes each
// argument itself. Standard input is empty unless `input` is given. Runs
// write to fixed files of the temporary folder, so one run at a time.
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "support/TestFiles.h"

namespace testsupport {

struct CliRun {
  int exitCode = -1;
  std::string out;
  std::string err;
};

// True when the program was built (tests skip otherwise).
inline bool cliBuilt() { return !std::string(VTYCONF_CLI_PATH).empty() && Pathname(VTYCONF_CLI_PATH).exists(); }

// The argument in single quotes, so that the shell passes it as it stands.
inline std::string shellQuote(const std::string& argument) {
  std::string quoted = "'";
  for (char c : argument) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

inline CliRun runCli(const std::string& arguments, const std::string& input = std::string()) {
  const std::string dir = QXFileSystem::GetTempFolder();
  const std::string in = input.empty() ? std::string("/dev/null") : tempFile("cli-run-in.txt", input);
  const std::string out = dir + "cli-run-out.txt";
  const std::string err = dir + "cli-run-err.txt";
  const std::string command = shellQuote(VTYCONF_CLI_PATH) + " " + arguments + " >" + shellQuote(out) + " 2>" +
                              shellQuote(err) + " <" + shellQuote(in);
  const int status = std::system(command.c_str());
  CliRun run;
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  run.out = readFile(out);
  run.err = readFile(err);
  return run;
}

inline CliRun runCliArgs(const std::vector<std::string>& args) {
  std::string arguments;
  for (const std::string& a : args) arguments += (arguments.empty() ? "" : " ") + shellQuote(a);
  return runCli(arguments);
}

}  // namespace testsupport
