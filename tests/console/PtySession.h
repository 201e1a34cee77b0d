// The vtyconf console program at a pseudo-terminal of 24 rows and 100
// columns, as a person at a real terminal has it: keys are written to the
// terminal, and the screen is what the program drew there (carriage returns
// left out, so that lines end in "\n" as in the program's own text).
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace testsupport {

class PtySession {
 public:
  // Only a guard against a hung program; no test depends on speed.
  static constexpr int kPatienceMs = 30000;

  // Starts the program with `args` (after the program's name).
  explicit PtySession(const std::vector<std::string>& args) {
    struct winsize size {};
    size.ws_row = 24;
    size.ws_col = 100;
    const std::string program = VTYCONF_CLI_PATH;
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const std::string& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    pid_ = forkpty(&master_, nullptr, nullptr, &size);
    if (pid_ == 0) {
      execv(program.c_str(), argv.data());
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
  PtySession(const PtySession&) = delete;
  PtySession& operator=(const PtySession&) = delete;

  bool started() const { return pid_ > 0 && master_ >= 0; }
  void type(const std::string& keys) {
    ASSERT_EQ(write(master_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }
  // Reads the screen until it holds `needle` after `from` (by default after
  // the last text waited for); true when it did.
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
    for (ssize_t i = 0; i < n; ++i) {
      if (buf[i] != '\r') screen_ += buf[i];
    }
    return true;
  }
  // Waits for the program to end; its wait status (-1 when it did not end).
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

}  // namespace testsupport
