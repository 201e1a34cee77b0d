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

// ---- an interactive console on the process's own terminal
// These keep process-wide state (the saved terminal settings and the signal
// handlers): one console per process, driven from one thread.

// True when fd is a terminal.
VTYCONF_API bool isTerminal(int fd);
// Switches the terminal on fd to key-by-key input: no echo, no line
// buffering, no signal, flow-control or carriage-return translation of keys
// (Ctrl-C, Ctrl-S, Ctrl-Q and CR arrive as bytes); output processing stays as
// it was. The settings in force before are saved and come back with
// terminalRestore, and also when SIGINT, SIGTERM or SIGHUP arrive, after which
// the signal takes its default course. A change of the terminal size is
// noted for terminalResized. False, with nothing changed, when fd is no
// terminal or its settings cannot be changed.
VTYCONF_API bool terminalEnterRaw(int fd);
// Puts back the settings saved by terminalEnterRaw; does nothing when none
// are saved. Safe to call more than once.
VTYCONF_API void terminalRestore();
// True once after each change of the terminal size seen since the last call.
VTYCONF_API bool terminalResized();
// Reads one byte from fd: 1 read, 0 end of input, -1 error, -2 a signal came
// first (the caller may look at terminalResized and read again).
VTYCONF_API int readByte(int fd, char& byte);
// True when fd has input within `milliseconds`.
VTYCONF_API bool waitInput(int fd, int milliseconds);
// Writes all of text to fd; false on an error.
VTYCONF_API bool writeAll(int fd, const std::string& text);

// Turns the bytes a terminal sends for its special keys into the one-byte
// key codes of the console line editor: the arrows (0xB8 up, 0xB0 down,
// 0xB3 right, 0xB5 left), Home 0xB9, End 0xB1, Delete 0xAD and Insert 0xAE,
// in both their "ESC [" and "ESC O" forms and with modifiers ("ESC [1;5C").
// The backspace key (DEL, 127) becomes Ctrl-H. Other sequences, such as
// function keys, are dropped. An ESC that starts no sequence is passed on as
// the ESC key. One object per input stream; plain value, no shared state.
class VTYCONF_API TerminalKeyDecoder {
 public:
  // Feeds one byte; appends the keys it completes to `keys`.
  void feed(char byte, std::string& keys);
  // No further byte came in time: a pending ESC is the ESC key, and an
  // unfinished sequence is dropped.
  void flush(std::string& keys);
  // True while a sequence has begun and not ended.
  bool pending() const { return mState != State::Plain; }

 private:
  enum class State { Plain, Escape, Csi, Ss3 };
  static void appendFinal(char final, const std::string& parameters, std::string& keys);

  State mState = State::Plain;
  std::string mParameters;
};

}  // namespace platform
