#include "platform/PlatformOs.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace platform {

int access(const std::string& path, int mode) {
  int how = F_OK;
  if (mode & 2) how |= W_OK;
  if (mode & 4) how |= R_OK;
  return ::access(path.c_str(), how) == 0 ? 0 : -1;
}

int makeDir(const std::string& path) { return ::mkdir(path.c_str(), 0700) == 0 ? 0 : -1; }

bool deleteFile(const std::string& path) { return ::unlink(path.c_str()) == 0; }

bool copyFile(const std::string& from, const std::string& to, bool failIfExists) {
  std::error_code ec;
  auto options = failIfExists ? std::filesystem::copy_options::none
                              : std::filesystem::copy_options::overwrite_existing;
  return std::filesystem::copy_file(from, to, options, ec) && !ec;
}

bool setEnv(const std::string& name, const std::string& value) {
  return ::setenv(name.c_str(), value.c_str(), 1) == 0;
}

std::string getEnv(const std::string& name, const std::string& def) {
  const char* v = std::getenv(name.c_str());
  return v ? std::string(v) : def;
}

int terminalWidth(int fd, int def) {
  struct winsize ws {};
  if (::isatty(fd) && ::ioctl(fd, TIOCGWINSZ, &ws) == 0 && ws.ws_col > 0) return ws.ws_col;
  return def;
}

int consoleWidth(int def) { return terminalWidth(STDOUT_FILENO, def); }

// ------------------------------------------------------ interactive console

namespace {

struct termios gSavedTerminal;
volatile std::sig_atomic_t gTerminalSaved = 0;
int gTerminalFd = -1;
volatile std::sig_atomic_t gResized = 0;

// Both handlers only call functions that are safe inside a signal handler
// (tcsetattr, sigaction, raise).
extern "C" void onTerminalSignal(int sig) {
  if (gTerminalSaved) ::tcsetattr(gTerminalFd, TCSAFLUSH, &gSavedTerminal);
  gTerminalSaved = 0;
  struct sigaction dfl {};
  dfl.sa_handler = SIG_DFL;
  sigemptyset(&dfl.sa_mask);
  ::sigaction(sig, &dfl, nullptr);
  ::raise(sig);
}

extern "C" void onResize(int) { gResized = 1; }

}  // namespace

bool isTerminal(int fd) { return ::isatty(fd) != 0; }

bool terminalEnterRaw(int fd) {
  if (!::isatty(fd)) return false;
  struct termios saved {};
  if (::tcgetattr(fd, &saved) != 0) return false;
  struct termios raw = saved;
  raw.c_iflag &= ~static_cast<tcflag_t>(IXON | ICRNL | INLCR | IGNCR | ISTRIP | BRKINT | PARMRK);
  raw.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL | ICANON | ISIG | IEXTEN);
  raw.c_cflag |= CS8;
  raw.c_cc[VMIN] = 1;
  raw.c_cc[VTIME] = 0;

  if (!gTerminalSaved) {
    gSavedTerminal = saved;
    gTerminalFd = fd;
    gTerminalSaved = 1;
  }
  struct sigaction action {};
  action.sa_handler = onTerminalSignal;
  sigemptyset(&action.sa_mask);
  for (int sig : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(sig, &action, nullptr);
  // No SA_RESTART: a read that waits for a key returns, so the size is read anew.
  struct sigaction resize {};
  resize.sa_handler = onResize;
  sigemptyset(&resize.sa_mask);
  ::sigaction(SIGWINCH, &resize, nullptr);

  if (::tcsetattr(fd, TCSAFLUSH, &raw) != 0) {
    terminalRestore();
    return false;
  }
  return true;
}

void terminalRestore() {
  if (gTerminalSaved) {
    ::tcsetattr(gTerminalFd, TCSAFLUSH, &gSavedTerminal);
    gTerminalSaved = 0;
  }
  struct sigaction dfl {};
  dfl.sa_handler = SIG_DFL;
  sigemptyset(&dfl.sa_mask);
  for (int sig : {SIGINT, SIGTERM, SIGHUP, SIGWINCH}) ::sigaction(sig, &dfl, nullptr);
}

bool terminalResized() {
  if (!gResized) return false;
  gResized = 0;
  return true;
}

int readByte(int fd, char& byte) {
  ssize_t n = ::read(fd, &byte, 1);
  if (n == 1) return 1;
  if (n == 0) return 0;
  return errno == EINTR ? -2 : -1;
}

bool waitInput(int fd, int milliseconds) {
  struct pollfd p {};
  p.fd = fd;
  p.events = POLLIN;
  return ::poll(&p, 1, milliseconds) > 0 && (p.revents & POLLIN) != 0;
}

bool writeAll(int fd, const std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    done += static_cast<std::size_t>(n);
  }
  return true;
}

// ------------------------------------------------------------ terminal keys

void TerminalKeyDecoder::feed(char byte, std::string& keys) {
  constexpr char kEsc = 27;
  switch (mState) {
    case State::Plain:
      if (byte == kEsc) {
        mState = State::Escape;
      } else if (byte == 127) {
        keys += '\b';
      } else {
        keys += byte;
      }
      return;
    case State::Escape:
      if (byte == '[') {
        mState = State::Csi;
        mParameters.clear();
      } else if (byte == 'O') {
        mState = State::Ss3;
      } else {
        mState = State::Plain;
        keys += kEsc;
        feed(byte, keys);
      }
      return;
    case State::Ss3:
      mState = State::Plain;
      appendFinal(byte, "", keys);
      return;
    case State::Csi:
      if (byte >= 0x40 && byte <= 0x7e) {
        mState = State::Plain;
        appendFinal(byte, mParameters, keys);
      } else if (mParameters.size() < 16) {
        mParameters += byte;
      }
      return;
  }
}

void TerminalKeyDecoder::flush(std::string& keys) {
  if (mState == State::Escape) keys += static_cast<char>(27);
  mState = State::Plain;
}

void TerminalKeyDecoder::appendFinal(char final, const std::string& parameters, std::string& keys) {
  // "1;5C" and the like carry modifiers; the key is the first number.
  const std::string number = parameters.substr(0, parameters.find(';'));
  int code = 0;
  switch (final) {
    case 'A': code = 0xB8; break;
    case 'B': code = 0xB0; break;
    case 'C': code = 0xB3; break;
    case 'D': code = 0xB5; break;
    case 'H': code = 0xB9; break;
    case 'F': code = 0xB1; break;
    case '~':
      if (number == "1" || number == "7") code = 0xB9;
      if (number == "4" || number == "8") code = 0xB1;
      if (number == "3") code = 0xAD;
      if (number == "2") code = 0xAE;
      break;
    default: break;
  }
  if (code != 0) keys += static_cast<char>(code);
}

}  // namespace platform
