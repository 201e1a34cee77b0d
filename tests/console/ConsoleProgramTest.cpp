// The vtyconf console program end to end: through a pseudo-terminal, as a
// person would use it, and scripted on standard input.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "PtySession.h"
#include "support/CliRun.h"

namespace {

const std::string kResources = std::string(VTYCONF_SOURCE_DIR) + "/resources/";

using testsupport::cliBuilt;

// The console with the shipped grammar and `hostname` in the prompt.
class NamedSession : public testsupport::PtySession {
 public:
  explicit NamedSession(const char* hostname)
      : PtySession({"--resources", kResources, "console", "--hostname", hostname}) {}
};

TEST(ConsoleProgramTest, PersonAtAPseudoTerminalGetsADeviceConsole) {
  if (!cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  NamedSession session("R1");
  ASSERT_TRUE(session.started());
  ASSERT_TRUE(session.waitFor("R1>")) << session.screen();
  EXPECT_TRUE(session.keyByKey()) << "raw mode while the console runs";

  session.type("enable\r");
  ASSERT_TRUE(session.waitFor("R1#")) << session.screen();
  session.type("conf t\r");
  ASSERT_TRUE(session.waitFor("Enter configuration commands, one per line.")) << session.screen();
  ASSERT_TRUE(session.waitFor("R1(config)#")) << session.screen();
  session.type("int gi0/1\r");
  ASSERT_TRUE(session.waitFor("R1(config-if)#")) << session.screen();
  // Short interface types as the device takes them, an ambiguous one (Po:
  // port-channel and pos) as the type it prefers.
  for (const char* line : {"int Te1/0/1\r", "int Po1\r", "int Gi0/1\r"}) {
    const size_t before = session.screen().size();
    session.type(line);
    ASSERT_TRUE(session.waitFor("R1(config-if)#", before)) << line << session.screen();
    EXPECT_EQ(session.screen().find("Invalid", before), std::string::npos) << line << session.screen();
  }

  session.type("?");
  size_t helpStart = session.mark();
  ASSERT_TRUE(session.waitFor("shutdown")) << session.screen();
  EXPECT_TRUE(session.waitFor("R1(config-if)#", helpStart)) << "the prompt comes back below the list";
  EXPECT_NE(session.screen().find("description", helpStart), std::string::npos) << session.screen();

  session.type("shut\t");
  ASSERT_TRUE(session.waitFor("R1(config-if)#shutdown ")) << session.screen();
  session.type("\r");
  ASSERT_TRUE(session.waitFor("R1(config-if)#")) << session.screen();

  session.type("exit\r");
  ASSERT_TRUE(session.waitFor("R1(config)#")) << session.screen();
  // Up arrow twice recalls "shutdown", down arrow once comes back to "exit".
  session.type("\x1b[A");
  ASSERT_TRUE(session.waitFor("exit")) << session.screen();
  session.type("\x1b[A");
  ASSERT_TRUE(session.waitFor("shutdown")) << session.screen();
  session.type("\x1b[B");
  ASSERT_TRUE(session.waitFor("exit")) << session.screen();
  // Home and Delete take the "e" away, "e" puts it back, End goes to the end:
  // the line runs as "exit" and leaves the configuration mode.
  session.type("\x1b[H\x1b[3~");
  ASSERT_TRUE(session.waitFor("xit")) << session.screen();
  session.type("e\x1bOF\r");
  ASSERT_TRUE(session.waitFor("\nR1#")) << session.screen();
  session.type("\x04");
  int status = session.finish();
  ASSERT_TRUE(WIFEXITED(status)) << status << session.screen();
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_FALSE(session.keyByKey()) << "the terminal is put back on leaving";
}

TEST(ConsoleProgramTest, TerminalIsRestoredWhenTheProgramIsTerminated) {
  if (!cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  for (int sig : {SIGTERM, SIGHUP, SIGINT}) {
    NamedSession session("R2");
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

TEST(ConsoleProgramTest, NewTerminalWidthTakesEffectAtTheNextLine) {
  if (!cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  NamedSession session("R5");
  ASSERT_TRUE(session.started());
  ASSERT_TRUE(session.waitFor("R5>")) << session.screen();
  const std::string words = "abcdefghij abcdefghij abcdefghij abcdefghij";
  session.type(words);
  ASSERT_TRUE(session.waitFor(words)) << "100 columns hold the whole line: " << session.screen();
  session.type("\x15");
  session.resize(30);
  session.type("\r");
  ASSERT_TRUE(session.waitFor("R5>")) << session.screen();
  session.type(words);
  ASSERT_TRUE(session.waitFor("$")) << "a line wider than 30 columns scrolls: " << session.screen();
  session.type("\x15\x04");
  int status = session.finish();
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
}

// Runs the console with `input` on standard input; `logLevel` sets VTYCONF_LOG
// for that run.
testsupport::CliRun runScripted(const std::string& arguments, const std::string& input,
                                const std::string& logLevel = "") {
  if (!logLevel.empty()) platform::setEnv("VTYCONF_LOG", logLevel);
  testsupport::CliRun run = testsupport::runCli("--resources '" + kResources + "' console " + arguments, input);
  if (!logLevel.empty()) ::unsetenv("VTYCONF_LOG");
  return run;
}

TEST(ConsoleProgramTest, EveryKeyIsLoggedWhenTheLogIsOn) {
  if (!cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  testsupport::CliRun quiet = runScripted("", "enable\n");
  EXPECT_EQ(quiet.err, "");
  testsupport::CliRun logged = runScripted("", "enable\n", "info");
  EXPECT_EQ(logged.exitCode, 0);
  EXPECT_NE(
      logged.err.find("EmulatedCLI backend\\libsrc\\getline\\main:80 parser_main: After Parser Main Buf e"),
      std::string::npos)
      << logged.err;
  EXPECT_NE(logged.err.find("After Parser Main Buf \nRouter#"), std::string::npos) << logged.err;
}

TEST(ConsoleProgramTest, HistoryFileCarriesLinesToTheNextSession) {
  if (!cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  std::string history = QXFileSystem::GetTempFolder() + "console-history.txt";
  std::remove(history.c_str());
  runScripted("--history '" + history + "'", "enable\nconf t\n");
  // Each line is written with the line end it was typed with and one more.
  EXPECT_EQ(testsupport::readFile(history), "enable\n\nconf t\n\n");
  testsupport::CliRun next = runScripted("--history '" + history + "'", "\x1b[A\x1b[A\n");
  EXPECT_NE(next.out.find("Router#"), std::string::npos) << "enable was recalled and run: " << next.out;
}

}  // namespace
