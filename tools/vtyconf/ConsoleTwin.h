// ConsoleTwin: the console's device state around the terminal, so that a
// session behaves as a device does with a running and a startup
// configuration.
//
// The device starts with a startup configuration (the text of --config, or
// none). Every configuration line the terminal accepts is kept as it was
// typed, with the mode changes between them; the running configuration is
// the startup text merged with those lines in device text. The twin answers
// the exec lines that look at or save these configurations (show
// running-config with its filters, show startup-config, show changes, write
// memory, copy running-config startup-config), at the privileged prompt and
// through `do` in the configuration modes; every other line is the
// terminal's. Plain value, one per console; not for two threads (the library
// walks a shared grammar).
#pragma once

#include <string>

namespace vtycli {

class ConsoleTwin {
 public:
  ConsoleTwin(std::string startup, std::string savePath);

  // The answer to `line` typed at the prompt whose suffix is `promptSuffix`
  // ("#", "(config-if)#"), or false when the line is the terminal's.
  bool answer(const std::string& line, const std::string& promptSuffix, std::string& out);

  // Where the word stands in the last answered line at which the answer
  // refused it (for the caret under it); npos when the line was taken.
  size_t refusedAt() const { return mRefusedAt; }

  // Keeps a line the terminal accepted; `promptSuffix` is the prompt it was
  // typed at and `afterSuffix` the prompt it left.
  void record(const std::string& line, const std::string& promptSuffix, const std::string& afterSuffix);

  // The running configuration, as the device shows it.
  std::string running() const;
  // The commands that undo the session's changes.
  std::string changes() const;
  // The host name the running configuration gives ("Router" when it gives
  // none, as the device names itself).
  std::string hostName() const;

 private:
  std::string answerExec(const std::string& line);
  std::string showRunning(const std::string& rest);
  // The device's refusal of `line` at its `word`-th word.
  std::string refuse(const std::string& line, size_t word);
  std::string writeMemory();

  std::string mStartup;   // the configuration the device started with
  std::string mSaved;     // the startup configuration: as loaded or last saved
  std::string mSavePath;  // where `write memory` writes ("" when nowhere)
  std::string mSession;   // the configuration lines as typed, with mode changes
  size_t mRefusedAt = std::string::npos;
};

}  // namespace vtycli
