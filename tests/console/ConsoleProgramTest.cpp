// The vtyconf console program end to end: through a pseudo-terminal, as a
// person would use it, and scripted on standard input.
#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "support/CliRun.h"

namespace {

const std::string kCli = VTYCONF_CLI_PATH;
const std::string kResources = std::string(VTYCONF_SOURCE_DIR) + "/resources/";
// Only a guard against a hung program; no test depends on speed.
constexpr int kPatienceMs = 30000;

using testsupport::cliBuilt;

class PtySession {
 public:
  explicit PtySession(const char* hostname) {
    struct winsize size {};
    size.ws_row = 24;
    size.ws_col = 100;
    pid_ = forkpty(&master_, nullptr, nullptr, &size);
    if (pid_ == 0) {
      execl(kCli.c_str(), kCli.c_str(), "--resources", kResources.c_str(), "console", "--hostname", hostname,
            static_cast<char*>(nullptr));
      _exit(127);
    }
  }
  ~PtySession() {
    if (pid_ > 0 && !reaped_) {
      kill(pid_, SIGKILL);
      waitpid(pid_, nullptr, 0);
    }
    if (master_ >= 0) close(master_);
  }
  bool started() const { return pid_ > 0 && master_ >= 0; }
  void type(const std::string& keys) {
    ASSERT_EQ(write(master_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }
  // Reads the screen until it holds `needle` after `from`; true when it did.
  bool waitFor(const std::string& needle, size_t from = std::string::npos) {
    if (from == std::string::npos) from = mark_;
    for (int waited = 0; waited < kPatienceMs; waited += 100) {
      size_t found = screen_.find(needle, from);
      if (found != std::string::npos) {
        mark_ = found + needle.size();
        return true;
      }
      if (!drain(100)) break;
    }
    return screen_.find(needle, from) != std::string::npos;
  }
  // Reads what arrives within `ms`; false once the terminal is closed.
  bool drain(int ms) {
    struct pollfd p {};
    p.fd = master_;
    p.events = POLLIN;
    if (poll(&p, 1, ms) <= 0) return true;
    char buf[4096];
    ssize_t n = read(master_, buf, sizeof buf);
    if (n <= 0) return false;
    screen_.append(buf, static_cast<size_t>(n));
    return true;
  }
  // Waits for the program to end; its wait status.
  int finish() {
    int status = 0;
    for (int waited = 0; waited < kPatienceMs; waited += 100) {
      if (waitpid(pid_, &status, WNOHANG) == pid_) {
        reaped_ = true;
        return status;
      }
      // Keep draining the screen so that the program never blocks on output;
      // once the terminal is closed the program is about to end.
      if (!drain(100)) {
        waitpid(pid_, &status, 0);
        reaped_ = true;
        return status;
      }
    }
    return -1;
  }
  bool keyByKey() const {
    struct termios mode {};
    tcgetattr(master_, &mode);
    return (mode.c_lflag & (ICANON | ECHO)) == 0;
  }
  void resize(int columns) {
    struct winsize size {};
    size.ws_row = 24;
    size.ws_col = static_cast<unsigned short>(columns);
    ioctl(master_, TIOCSWINSZ, &size);
  }
  pid_t pid() const { return pid_; }
  const std::string& screen() const { return screen_; }
  size_t mark() const { return mark_; }

 private:
  pid_t pid_ = -1;
  int master_ = -1;
  bool reaped_ = false;
  std::string screen_;
  size_t mark_ = 0;
};

TEST(ConsoleProgramTest, PersonAtAPseudoTerminalGetsADeviceConsole) {
  if (!cliBuilt()) GTEST_SKIP() << "the vtyconf program was not built";
  PtySession session("R1");
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
    PtySession session("R2");
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
  PtySession session("R5");
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
