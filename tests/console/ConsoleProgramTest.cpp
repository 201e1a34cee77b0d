// The vtyconf console program put to an end by a signal at a pseudo-terminal
// (whole sessions are rows of tests/data/console/sessions.txt).
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <string>

#include "PtySession.h"
#include "support/CliRun.h"

namespace {

const std::string kResources = std::string(VTYCONF_SOURCE_DIR) + "/resources/";

TEST(ConsoleProgramTest, TerminalIsRestoredWhenTheProgramIsTerminated) {
  if (!testsupport::cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  for (int sig : {SIGTERM, SIGHUP, SIGINT}) {
    testsupport::PtySession session({"--resources", kResources, "console", "--hostname", "R2"});
    ASSERT_TRUE(session.started());
    ASSERT_TRUE(session.waitFor("R2>")) << session.screen();
    ASSERT_TRUE(session.keyByKey());
    kill(session.pid(), sig);
    int status = session.finish();
    ASSERT_TRUE(WIFSIGNALED(status)) << sig << " status " << status;
    EXPECT_EQ(WTERMSIG(status), sig);
    EXPECT_FALSE(session.keyByKey()) << "signal " << sig;
  }
}

}  // namespace
