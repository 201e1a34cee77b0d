// The program runs of tests/data/cli/cases.txt and console_twin.txt, each with a fresh folder
// {dir} that holds the case's files: exit code, standard output and standard
// error as the case gives them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/PlatformOs.h"
#include "support/CaseFile.h"
#include "support/CliRun.h"

namespace {

// Every line of the case's section `key` is (or with `present` false, is
// not) a part of `text`.
void expectLines(const testsupport::Case& c, const std::string& key, const std::string& text, bool present,
                 const std::string& dir) {
  std::istringstream lines(testsupport::placed(c.get(key), dir));
  std::string line;
  while (std::getline(lines, line)) {
    EXPECT_EQ(text.find(line) != std::string::npos, present) << c.where() << " [" << key << "] " << line << "\n" << text;
  }
}

TEST(CliCases, RunsGiveTheirExitCodeAndOutput) {
  if (!testsupport::cliBuilt()) GTEST_SKIP() << "the vtyconf program is not built";
  const std::set<std::string> known = {"args",       "stdin",      "exit",       "stdout",      "stderr",
                                       "stdout has", "stdout lacks", "stderr has", "stderr lacks", "env", "stderr holds"};
  int serial = 0;
  std::vector<testsupport::Case> cases = testsupport::readCases("cli/cases.txt");
  for (testsupport::Case& c : testsupport::readCases("cli/console_twin.txt")) cases.push_back(std::move(c));
  for (const testsupport::Case& c : cases) {
    const std::string dir = testsupport::scratchFolder("cli-case-" + std::to_string(++serial));
    for (const auto& [key, text] : c.sections) {
      if (key.compare(0, 5, "file ") != 0) continue;
      std::filesystem::create_directories(std::filesystem::path(dir + key.substr(5)).parent_path());
      testsupport::writeFile(dir + key.substr(5), text);
    }
    std::string arguments;
    for (const std::string& word : testsupport::words(testsupport::placed(c["args"], dir))) arguments += " " + testsupport::shellQuote(word);
    const std::string env = c.get("env");
    if (!env.empty()) platform::setEnv(env.substr(0, env.find('=')), env.substr(env.find('=') + 1));
    const testsupport::CliRun run = testsupport::runCli(arguments, c.get("stdin"));
    if (!env.empty()) ::unsetenv(env.substr(0, env.find('=')).c_str());
    EXPECT_EQ(std::to_string(run.exitCode), c.get("exit", "0")) << c.where() << "\n" << run.err;
    if (c.has("stdout")) {
      EXPECT_EQ(run.out, testsupport::placed(c["stdout"], dir)) << c.where();
    }
    std::string err = run.err;
    for (size_t at = err.find(dir); at != std::string::npos; at = err.find(dir)) err.replace(at, dir.size(), "{dir}");
    testsupport::expectSection(c, "stderr", err);
    expectLines(c, "stdout has", run.out, true, dir);
    expectLines(c, "stdout lacks", run.out, false, dir);
    expectLines(c, "stderr has", run.err, true, dir);
    expectLines(c, "stderr lacks", run.err, false, dir);
    if (c.has("stderr holds")) {
      EXPECT_NE(run.err.find(c["stderr holds"]), std::string::npos) << c.where() << run.err;
    }
    for (const auto& [key, text] : c.sections) {
      if (key.compare(0, 8, "written ") == 0) {
        EXPECT_EQ(testsupport::readFile(dir + key.substr(8)), text) << c.where() << " [" << key << "]";
      } else {
        EXPECT_TRUE(key.compare(0, 5, "file ") == 0 || known.count(key) != 0) << c.where() << ": section " << key;
      }
    }
  }
}

}  // namespace
