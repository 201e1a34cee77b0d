// QXFileSystem: where the library finds its resources and temporary space, and
// how it starts an external interpreter.
//
// All members are static. Folders are returned with a trailing separator so
// that names can be appended directly. The resource folder is, in order: what
// SetSystemResourceFolder was given; the environment variable VTYCONF_RESOURCES;
// the folder installed beside the library (<prefix>/share/vtyconf/resources/);
// resources/ of the source tree the library was built from. The temporary
// folder is private to the process (mode 0700), made on first use and removed
// when the process ends normally. Interpreters are always started with an
// argument vector, never through a shell, so no argument can run anything.
// The setters are not meant to race with readers on other threads.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

class VTYCONF_API QXFileSystem {
 public:
  static std::string GetSystemResourceFolder();
  // Overrides the resource folder for the rest of the process; an empty text
  // goes back to the search described above.
  static void SetSystemResourceFolder(const std::string& folder);

  static std::string GetTempFolder();

  // The interpreters: environment VTYCONF_PERL / VTYCONF_PYTHON, else the first
  // "perl" / "python3" (then "python") on PATH; empty when none is found.
  static std::string GetPerlExepath();
  static std::string GetPythonExepath();

  // resources/scripts/ + name.
  static std::string GetScriptFilePath(const std::string& name);

  // Starts `executable` with the arguments of `arguments`, a command-line text
  // in which items are separated by blanks and may be quoted with double quotes
  // (a backslash escapes a quote; backslashes before a closing quote pair up,
  // as on the platform the design comes from), and waits for it to end.
  // Surrounding quotes of `executable` are removed. The remaining parameters
  // are accepted for compatibility and have no effect: the call always waits.
  static void ExecuteCmd(const std::string& executable, const std::string& arguments, bool showWindow = false,
                         bool wait = true, void* reserved = nullptr, unsigned int timeoutMs = 0xFFFFFFFFu);

  // Starts argv[0] (searched on PATH when it holds no separator) with argv and
  // waits. Returns the exit status, 128 + signal number for a killed child, or
  // -1 when the program could not be started.
  static int ExecuteArgv(const std::vector<std::string>& argv);

  // Splits a command-line text the way ExecuteCmd does.
  static std::vector<std::string> SplitCommandLine(const std::string& arguments);
};
