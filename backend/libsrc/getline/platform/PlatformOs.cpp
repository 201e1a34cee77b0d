#include "platform/PlatformOs.h"

#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

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

bool isTerminal(int fd) { return ::isatty(fd) == 1; }

}  // namespace platform
