#include "platform/QXFileSystem.h"

#include <dlfcn.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <system_error>

#include "platform/PlatformOs.h"

extern char** environ;

namespace fs = std::filesystem;

namespace {

std::mutex gFolderLock;
std::string gResourceOverride;
std::string gTempFolder;

std::string withSeparator(std::string folder) {
  if (!folder.empty() && !platform::isPathSeparator(folder.back())) folder += platform::kPathSeparator;
  return folder;
}

bool isFolder(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_directory(path, ec);
}

// The resources installed with the shared library: the build records the path
// from the library's folder to them (<prefix>/lib/libvtyconf.so gives
// <prefix>/lib/../share/vtyconf/resources/), so a moved install tree works.
std::string findInstalledResources() {
#ifdef VTYCONF_INSTALL_RELATIVE_RESOURCES
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&findInstalledResources), &info) == 0 || !info.dli_fname) return {};
  std::error_code ec;
  fs::path lib = fs::weakly_canonical(fs::path(info.dli_fname), ec);
  if (ec) return {};
  return (lib.parent_path() / VTYCONF_INSTALL_RELATIVE_RESOURCES).lexically_normal().string();
#else
  return {};
#endif
}

// Where the library was loaded from does not change while it is loaded:
// worked out once (a look-up of the library file and its real path).
const std::string& installedResources() {
  static const std::string folder = findInstalledResources();
  return folder;
}

struct TempFolderRemover {
  ~TempFolderRemover() {
    if (!gTempFolder.empty()) {
      std::error_code ec;
      fs::remove_all(gTempFolder, ec);
    }
  }
};

std::string findOnPath(const std::string& name) {
  std::string path = platform::getEnv("PATH", "/usr/local/bin:/usr/bin:/bin");
  size_t start = 0;
  while (start <= path.size()) {
    size_t end = path.find(':', start);
    if (end == std::string::npos) end = path.size();
    std::string dir = path.substr(start, end - start);
    if (dir.empty()) dir = ".";
    std::string candidate = dir + "/" + name;
    if (::access(candidate.c_str(), X_OK) == 0 && !isFolder(candidate)) return candidate;
    start = end + 1;
  }
  return {};
}

}  // namespace

std::string QXFileSystem::GetSystemResourceFolder() {
  {
    std::lock_guard<std::mutex> guard(gFolderLock);
    if (!gResourceOverride.empty()) return withSeparator(gResourceOverride);
  }
  std::string env = platform::getEnv("VTYCONF_RESOURCES");
  if (!env.empty()) return withSeparator(env);
  const std::string& installed = installedResources();
  if (isFolder(installed)) return withSeparator(installed);
#ifdef VTYCONF_SOURCE_RESOURCES
  if (isFolder(VTYCONF_SOURCE_RESOURCES)) return withSeparator(VTYCONF_SOURCE_RESOURCES);
#endif
  return withSeparator(installed.empty() ? std::string("resources") : installed);
}

void QXFileSystem::SetSystemResourceFolder(const std::string& folder) {
  std::lock_guard<std::mutex> guard(gFolderLock);
  gResourceOverride = folder;
}

std::string QXFileSystem::GetTempFolder() {
  static TempFolderRemover remover;
  std::lock_guard<std::mutex> guard(gFolderLock);
  if (!gTempFolder.empty() && isFolder(gTempFolder)) return gTempFolder;
  std::string base = platform::getEnv("TMPDIR", "/tmp");
  std::string pattern = withSeparator(base) + "vtyconf-XXXXXX";
  std::vector<char> buffer(pattern.begin(), pattern.end());
  buffer.push_back('\0');
  if (::mkdtemp(buffer.data()) == nullptr) return withSeparator(base);
  gTempFolder = withSeparator(buffer.data());
  return gTempFolder;
}

std::string QXFileSystem::GetPerlExepath() {
  std::string env = platform::getEnv("VTYCONF_PERL");
  if (!env.empty()) return env;
  return findOnPath("perl");
}

std::string QXFileSystem::GetPythonExepath() {
  std::string env = platform::getEnv("VTYCONF_PYTHON");
  if (!env.empty()) return env;
  std::string found = findOnPath("python3");
  return found.empty() ? findOnPath("python") : found;
}

std::string QXFileSystem::GetScriptFilePath(const std::string& name) {
  return GetSystemResourceFolder() + "scripts" + platform::kPathSeparator + name;
}

std::vector<std::string> QXFileSystem::SplitCommandLine(const std::string& arguments) {
  std::vector<std::string> out;
  size_t i = 0;
  const size_t n = arguments.size();
  while (true) {
    while (i < n && (arguments[i] == ' ' || arguments[i] == '\t')) ++i;
    if (i >= n) break;
    std::string item;
    bool quoted = false;
    while (i < n) {
      char c = arguments[i];
      if (!quoted && (c == ' ' || c == '\t')) break;
      if (c == '\\') {
        size_t slashes = 0;
        while (i < n && arguments[i] == '\\') {
          ++slashes;
          ++i;
        }
        if (i < n && arguments[i] == '"') {
          item.append(slashes / 2, '\\');
          if (slashes % 2 == 1) {
            item += '"';
            ++i;
          }
        } else {
          item.append(slashes, '\\');
        }
        continue;
      }
      if (c == '"') {
        quoted = !quoted;
        ++i;
        continue;
      }
      item += c;
      ++i;
    }
    out.push_back(item);
  }
  return out;
}

void QXFileSystem::ExecuteCmd(const std::string& executable, const std::string& arguments, bool, bool, void*,
                              unsigned int) {
  std::string exe = executable;
  if (exe.size() >= 2 && exe.front() == '"' && exe.back() == '"') exe = exe.substr(1, exe.size() - 2);
  if (exe.empty()) return;
  std::vector<std::string> argv{exe};
  for (auto& a : SplitCommandLine(arguments)) argv.push_back(std::move(a));
  ExecuteArgv(argv);
}

int QXFileSystem::ExecuteArgv(const std::vector<std::string>& argv) {
  if (argv.empty() || argv[0].empty()) return -1;
  std::string program = argv[0];
  if (program.find('/') == std::string::npos) {
    program = findOnPath(program);
    if (program.empty()) return -1;
  }
  std::vector<char*> args;
  args.reserve(argv.size() + 1);
  for (const auto& a : argv) args.push_back(const_cast<char*>(a.c_str()));
  args.push_back(nullptr);
  pid_t pid = 0;
  if (::posix_spawn(&pid, program.c_str(), nullptr, nullptr, args.data(), environ) != 0) return -1;
  int status = 0;
  while (::waitpid(pid, &status, 0) < 0) {
    if (errno != EINTR) return -1;
  }
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  if (WIFSIGNALED(status)) return 128 + WTERMSIG(status);
  return -1;
}
