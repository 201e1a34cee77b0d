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

// `text` with every {name} of a case's places replaced: {dir} by `dir`, the
// folders of the source tree, the test data and the public corpus.
inline std::string placed(std::string text, const std::string& dir) {
  const std::pair<const char*, std::string> places[] = {
      {"{dir}", dir},
      {"{resources}", std::string(VTYCONF_SOURCE_DIR) + "/resources/"},
      {"{examples}", std::string(VTYCONF_SOURCE_DIR) + "/examples"},
      {"{data}", VTYCONF_TEST_DATA_DIR},
      {"{corpus}", std::string(VTYCONF_SHARED_CORPUS_DIR) + "/public/"},
  };
  for (const auto& [name, value] : places) {
    for (size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + value.size())) {
      text.replace(at, std::string(name).size(), value);
    }
  }
  return text;
}

// The words of `args`, cut at blanks; '...' holds blanks and may be empty.
inline std::vector<std::string> words(const std::string& args) {
  std::vector<std::string> out;
  bool quoted = false, inWord = false;
  for (char c : args) {
    if (c == '\'') {
      if (!inWord) out.emplace_back();
      quoted = !quoted;
      inWord = true;
    } else if (c == ' ' && !quoted) {
      inWord = false;
    } else {
      if (!inWord) out.emplace_back();
      out.back() += c;
      inWord = true;
    }
  }
  return out;
}

}  // namespace testsupport
