// Whole console sessions typed at a pseudo-terminal, from the scripts of
// tests/data/console/sessions.txt: what the screen shows step by step, that
// the session ends by itself or by the signal sent with the terminal put back, and that the file
// `write memory` saved is what merging the typed configuration lines into
// the starting configuration gives.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "PtySession.h"
#include "support/CaseFile.h"
#include "support/CliRun.h"
#include "support/TestFiles.h"

namespace {

namespace fs = std::filesystem;
using testsupport::Case;

const std::string kResources = std::string(VTYCONF_SOURCE_DIR) + "/resources/";
const std::string kCorpus = std::string(VTYCONF_SHARED_CORPUS_DIR) + "/public/";

// Types and waits as the case's script says; false at the first step the
// screen does not show.
bool runScript(const Case& c, testsupport::PtySession& session) {
  std::istringstream script(c["session"]);
  int number = 0;
  for (std::string step; std::getline(script, step);) {
    ++number;
    if (step.size() < 2 || step[1] != ' ' || std::string("<>|=!").find(step[0]) == std::string::npos) {
      ADD_FAILURE() << c.where() << ": step " << number << " is no step: " << step;
      return false;
    }
    const std::string text = testsupport::unescaped(step.substr(2));
    if (step[0] == '>') {
      session.type(text);
    } else if (step[0] == '|') {
      session.resize(std::stoi(text));
    } else if (step[0] == '!') {
      kill(session.pid(), std::stoi(text));
    } else if (step[0] == '=') {
      EXPECT_TRUE(session.keyByKey()) << c.where() << ": step " << number << ": the terminal is key by key";
    } else if (!session.waitFor(text)) {
      ADD_FAILURE() << c.where() << ": step " << number << " never showed: " << step << "\n--- screen after the "
                    << "last step shown:\n"
                    << session.screen().substr(session.mark());
      return false;
    }
  }
  return true;
}

// The saved file against what `vtyconf merge` makes of the typed lines and
// the starting configuration.
void expectSavedIsTheMerge(const Case& c, const std::string& dir) {
  const std::string typed = dir + "typed.txt";
  testsupport::writeFile(typed, c["merged"]);
  const std::string expected = dir + "expected.cfg";
  testsupport::CliRun merge =
      testsupport::runCliArgs({"--resources", kResources, "merge", typed, kCorpus + c["config"], "-o", expected});
  ASSERT_EQ(merge.exitCode, 0) << c.where() << merge.err;
  const std::string saved = testsupport::readFile(dir + c["saved"]);
  EXPECT_FALSE(saved.empty()) << c.where() << ": nothing saved";
  EXPECT_EQ(saved, testsupport::readFile(expected)) << c.where();
}

TEST(ConsoleSessionTest, SessionsAtAPseudoTerminal) {
  if (!testsupport::cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  int index = 0;
  for (const Case& c : testsupport::readCases("console/sessions.txt")) {
    if (c.has("config") && !fs::exists(kCorpus + c["config"])) {
      GTEST_SKIP() << "the corpus configuration " << kCorpus + c["config"] << " is absent";
    }
    const std::string dir = testsupport::scratchFolder("console-session-" + std::to_string(++index));
    testsupport::PtySession session(testsupport::words(testsupport::placed(c["args"], dir)));
    ASSERT_TRUE(session.started()) << c.where();
    if (!runScript(c, session)) continue;
    const int status = session.finish();
    if (c.has("signal")) {
      EXPECT_TRUE(WIFSIGNALED(status) && std::to_string(WTERMSIG(status)) == c["signal"]) << c.where() << status;
    } else {
      EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << c.where() << " status " << status;
    }
    EXPECT_FALSE(session.keyByKey()) << c.where() << ": the terminal is put back on leaving";
    if (c.has("saved")) expectSavedIsTheMerge(c, dir);
  }
}

}  // namespace
