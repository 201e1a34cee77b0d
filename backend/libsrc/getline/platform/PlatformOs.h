// Thin wrappers over the operating-system calls that the library needs.
//
// These stand in for the few direct system calls of the original platform
// (_access, _mkdir, DeleteFileA, CopyFileA, _putenv_s, the console size). Only
// platform/ includes system headers; everything above calls these. All
// functions are safe to call from several threads, except setEnv.
#pragma once

#include <string>

#include "platform/Export.h"

namespace platform {

// The separator the library writes between path components.
#ifdef _WIN32
constexpr char kPathSeparator = '\\';
#else
constexpr char kPathSeparator = '/';
#endif

// True when c separates path components on this host (both separators are
// accepted on every host where the design strips or tests one).
inline bool isPathSeparator(char c) { return c == '/' || c == '\\'; }

// _access(path, mode): 0 when the path exists (mode 0) or allows the access
// asked for (2 write, 4 read, 6 both); -1 otherwise.
VTYCONF_API int access(const std::string& path, int mode);
// _mkdir: creates one folder; 0 on success, -1 otherwise.
VTYCONF_API int makeDir(const std::string& path);
// DeleteFileA: removes one file; true on success.
VTYCONF_API bool deleteFile(const std::string& path);
// CopyFileA: copies a file; with failIfExists an existing target is an error.
VTYCONF_API bool copyFile(const std::string& from, const std::string& to, bool failIfExists);
// _putenv_s: sets an environment variable for the rest of the process.
VTYCONF_API bool setEnv(const std::string& name, const std::string& value);
// Reads an environment variable; def when it is not set.
VTYCONF_API std::string getEnv(const std::string& name, const std::string& def = "");
// Width of the terminal on standard output in columns, or def when there is none.
VTYCONF_API int consoleWidth(int def);
// Width of the terminal on the given descriptor, or def.
VTYCONF_API int terminalWidth(int fd, int def);
// True when the descriptor (0 input, 1 output, 2 error) is a terminal.
VTYCONF_API bool isTerminal(int fd);

}  // namespace platform
