// vtyconf console: an emulated device console on the terminal, key by key.
//
// On a terminal the keys are read one byte at a time in raw mode and handed
// to parser_main; the escape sequences of the arrow, Home, End, Insert and
// Delete keys become the editor's one-byte console codes, and the backspace
// key (DEL) becomes Ctrl-H. When standard input is not a terminal, it is read
// line by line and each line is typed, so a session can be scripted.
//
// Around the terminal stands the device's state (ConsoleTwin): a finished
// line that looks at or saves the configurations is answered from it and
// never reaches the terminal; a configuration line the terminal accepts is
// kept, and `hostname` renames the prompt. The console adds what a device's
// console does around its lines: the caret line under a refused line, `do`
// for exec commands in the configuration modes, Ctrl-Z, Ctrl-C (the line
// is dropped) and `exit`/`logout` at an exec prompt (the session ends).
#include <algorithm>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "ConsoleCaret.h"
#include "ConsoleExecLine.h"
#include "ConsoleFilter.h"
#include "ConsoleTwin.h"
#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"
#include "editor/GetLineData.h"
#include "main.h"
#include "platform/PlatformOs.h"
#include "terminal/VTY.h"

namespace vtycli {
namespace {

struct ConsoleOptions {
  std::string hostname;  // empty: the configuration's, else "Router"
  std::string history = "-";
  std::string config;
  std::string save;
};

constexpr int kMinWidth = 21;
constexpr char kCtrlC = 3;
constexpr char kCtrlZ = 26;
// How long a lone ESC waits for the rest of a sequence before it counts as a key.
constexpr int kEscapeWaitMs = 50;

// Puts the terminal back on every way out of the session.
struct RawModeGuard {
  bool active = false;
  ~RawModeGuard() {
    if (active) platform::terminalRestore();
  }
};

int screenWidth() {
  int width = platform::terminalWidth(1, platform::terminalWidth(0, 80));
  return std::max(width, kMinWidth);
}

class Console {
 public:
  Console(const ConsoleOptions& options, ConsoleTwin& twin, bool interactive)
      : mVty(options.hostname.empty() ? twin.hostName() : options.hostname, true),
        mEditor(std::make_unique<GetLineData>()),
        mTwin(twin),
        mInteractive(interactive) {
    // `int Po1` and `int Se0/0/0` name the types the device prefers.
    mVty.setPreferInterfaceTypes(true);
    show(vtysh_console_init(&mVty, mEditor.get(), interactive ? screenWidth() : 80, options.history.c_str()));
  }

  // Types one key; false when the session ends with it.
  bool key(char key) {
    if (key == kCtrlC) return abandonLine();
    const bool leave = key == 4 && mEditor->getLine()[0] == '\0' && !mEditor->isSearching();
    char buffer[2] = {key, '\0'};
    Line line{mEditor->getLine(), mEditor->getPrompt(), ""};
    mVty.getPrompt(line.suffix);
    if (key == kCtrlZ && line.configuring() && !mEditor->isSearching()) return ctrlZ(line.typed);
    // Enter also ends a search, and runs the line found.
    const bool enter = key == '\n' || key == '\r';
    bool goOn = true;
    if (enter && answerAround(buffer, line, goOn)) return goOn;
    std::string output;
    try {
      parser_main(&mVty, mEditor.get(), buffer, output, &mDelta);
    } catch (const std::exception& e) {
      output = recover(e.what());
    }
    if (enter && mEditor->getNewLine()) {
      output = withCaretLine(output, caretColumn(line, mVty.lastErrorOffset()));
      followLine(line.typed, line.suffix, output);
    }
    show(output);
    return !leave;
  }

  // A line as Enter finds it: its text, the prompt drawn before it, and the
  // terminal's prompt suffix ("#", "(config-if)#").
  struct Line {
    std::string typed;
    std::string prompt;
    std::string suffix;
    bool configuring() const { return suffix.find("(config") != std::string::npos; }
  };

  // The finished lines the console answers itself, never the terminal: the
  // end of the session, a line of the device's state, an exec command
  // through `do`. False for the terminal's lines; `goOn` false when the
  // session ends.
  bool answerAround(char* buffer, const Line& line, bool& goOn) {
    std::string answer;
    if (!line.configuring() && endsSession(line.typed)) {
      goOn = leaveSession(buffer);
    } else if (mTwin.answer(line.typed, line.suffix, answer)) {
      show(answered(buffer, withCaret(answer, line, mTwin.refusedAt())));
    } else if (const size_t at = line.configuring() ? execAfterDo(line.typed) : std::string::npos;
               at != std::string::npos) {
      const ExecAnswer exec = answerExecLine(line.typed.substr(at));
      show(answered(buffer, withCaret(exec.text, line, exec.refused ? at + exec.errorOffset : std::string::npos)));
    } else {
      return false;
    }
    return true;
  }

  // `answer` with the caret line above its invalid-input message, the "^"
  // under the line's byte `offset` (none for npos).
  std::string withCaret(const std::string& answer, const Line& line, size_t offset) const {
    if (offset == std::string::npos) return answer;
    // withCaretLine looks for the message at the start of a line.
    return withCaretLine("\n" + answer, caretColumn(line, offset)).substr(1);
  }

  // Ctrl-C: the line typed so far is dropped unrun (and kept out of the
  // history); a new prompt of the same mode follows, shown after "^C".
  bool abandonLine() {
    if (mEditor->isSearching()) mEditor->search_term();
    mEditor->clearOutput();
    newPrompt();
    show("^C\n" + takeOutput());
    return true;
  }

  // `exit` or `logout` at an exec prompt ends the session, as it closes the
  // connection to a device.
  static bool endsSession(const std::string& typed) {
    std::istringstream in(typed);
    std::string word, more;
    if (!(in >> word) || in >> more) return false;
    return abbreviates(word, "exit", 3) || abbreviates(word, "logout", 4);
  }

  bool leaveSession(char* buffer) {
    mEditor->clearOutput();
    try {
      mEditor->vtysh_rl_gets(buffer, &mVty);
    } catch (const GetLineError&) {
    }
    show(takeOutput());
    return false;
  }

  // Where the exec command of a `do` line starts; npos for any other line.
  static size_t execAfterDo(const std::string& typed) {
    const size_t start = typed.find_first_not_of(' ');
    if (start == std::string::npos) return std::string::npos;
    const size_t end = std::min(typed.find(' ', start), typed.size());
    if (!abbreviates(typed.substr(start, end - start), "do", 2)) return std::string::npos;
    if (typed.find_first_not_of(' ', end) == std::string::npos) return std::string::npos;
    return end;
  }

  // The column of the caret under the line's byte `offset`: the prompt,
  // then the word where the walk stopped. None (npos) at a terminal where
  // prompt and line did not fit on the screen: the line was scrolled, and
  // its columns no longer match the text.
  size_t caretColumn(const Line& line, size_t offset) const {
    const size_t column = line.prompt.size() + offset;
    if (mInteractive && line.prompt.size() + line.typed.size() + 1 >= static_cast<size_t>(screenWidth())) {
      return std::string::npos;
    }
    return column;
  }

  // Ctrl-Z in a configuration mode: a line typed so far is entered first,
  // then the session leaves the configuration as `end` does, shown as "^Z".
  bool ctrlZ(const std::string& typed) {
    if (!typed.empty() && !key('\n')) return false;
    std::string prompt;
    mVty.getPrompt(prompt);
    if (prompt.find("(config") == std::string::npos) return true;
    auto command = std::make_unique<qxparser::CiscoCommandLine>();
    mVty.parse("end \n", true, command.get());
    std::string answer;
    mVty.getOutputString(answer);
    std::string after;
    mVty.getPrompt(after);
    mTwin.record("end", prompt, after);
    mEditor->clearOutput();
    newPrompt();
    show("^Z\n" + answer + takeOutput());
    return true;
  }

  // Finishes a line that the device state answers: the editor ends it (on
  // the screen and in the history) and the next prompt follows the answer.
  std::string answered(char* buffer, const std::string& answer) {
    mEditor->clearOutput();
    try {
      mEditor->vtysh_rl_gets(buffer, &mVty);
    } catch (const GetLineError&) {
      mEditor->gl_redraw();
    }
    std::string shown = mEditor->outputString() + answer;
    mEditor->clearOutput();
    newPrompt();
    return shown + takeOutput();
  }

  // A line the terminal took: kept when it was accepted, and the prompt
  // drawn again when it renamed the device.
  void followLine(const std::string& typed, const std::string& before, std::string& output) {
    if (output.find("\n% ") != std::string::npos) return;
    std::string after;
    mVty.getPrompt(after);
    mTwin.record(typed, before, after);
    if (!namesHost(typed)) return;
    const std::string name = mTwin.hostName();
    if (name == mVty.getHostName()) return;
    const size_t at = output.rfind(vtysh_prompt(&mVty));
    if (at != std::string::npos) output.erase(at);
    mVty.setHostName(name);
    mEditor->clearOutput();
    newPrompt();
    output += takeOutput();
  }

  static bool namesHost(const std::string& typed) {
    std::istringstream in(typed);
    std::string word;
    in >> word;
    if (word == "no") in >> word;
    return word.size() >= 4 && std::string("hostname").compare(0, word.size(), word) == 0;
  }

  void newPrompt() {
    char* prompt = vtysh_prompt(&mVty);
    mEditor->gl_init();
    mEditor->setPrompt(prompt);
    mEditor->clearLine();
    mEditor->gl_fixup(prompt, -2, GetLineData::kBufSize);
  }

  std::string takeOutput() {
    std::string shown = mEditor->outputString();
    mEditor->clearOutput();
    return shown;
  }

  void resized() { mEditor->Gl_setwidth(screenWidth()); }

  // The library let an error out of a line or a hook (a value it cannot
  // take, such as a range value of only zeros): it is shown like a message
  // of the device and the session goes on, on a new line or on the line as
  // it was.
  std::string recover(const std::string& what) {
    std::string shown = mEditor->outputString();
    std::string pending;
    mVty.getOutputString(pending);
    // A finished line has already moved the screen to a new line.
    if (!mEditor->getNewLine()) shown += "\n";
    shown += pending + "% " + what + "\n";
    mEditor->clearOutput();
    char* prompt = vtysh_prompt(&mVty);
    mEditor->setPrompt(prompt);
    if (mEditor->getNewLine()) {
      mEditor->clearLine();
      mEditor->gl_fixup(prompt, -2, GetLineData::kBufSize);
    } else {
      mEditor->gl_fixup(prompt, -2, mEditor->getCursor());
    }
    shown += mEditor->outputString();
    mEditor->clearOutput();
    return shown;
  }

  void show(const std::string& text) {
    if (mInteractive) {
      platform::writeAll(1, text);
    } else {
      std::cout << text << std::flush;
    }
  }

 private:
  qxparser::VTY mVty;
  std::unique_ptr<GetLineData> mEditor;
  std::string mDelta;
  ConsoleTwin& mTwin;
  bool mInteractive;
};

int runInteractive(const ConsoleOptions& options, ConsoleTwin& twin, const GlobalOptions& global) {
  RawModeGuard guard;
  guard.active = platform::terminalEnterRaw(0);
  if (!guard.active) {
    std::cerr << "vtyconf: console: the terminal cannot be put into key-by-key mode\n";
    return 2;
  }
  if (!global.quiet) platform::writeAll(2, "vtyconf console: Ctrl-D on an empty line leaves.\r\n");
  Console console(options, twin, true);
  platform::TerminalKeyDecoder decoder;
  for (;;) {
    char byte = 0;
    int got = platform::readByte(0, byte);
    // The size may change while a key is read or while one is handled.
    if (platform::terminalResized()) console.resized();
    if (got == -2) continue;
    if (got <= 0) {
      console.show("\n");
      return 0;
    }
    std::string keys;
    decoder.feed(byte, keys);
    if (decoder.pending() && !platform::waitInput(0, kEscapeWaitMs)) decoder.flush(keys);
    for (char k : keys) {
      if (!console.key(k)) return 0;
    }
  }
}

int runScripted(const ConsoleOptions& options, ConsoleTwin& twin) {
  Console console(options, twin, false);
  platform::TerminalKeyDecoder decoder;
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    std::string keys;
    for (char byte : line) decoder.feed(byte, keys);
    decoder.flush(keys);
    keys += '\n';
    for (char k : keys) {
      if (!console.key(k)) return 0;
    }
  }
  console.show("\n");
  return 0;
}

CommandRegistration registration{CommandSpec{
    "console", "an emulated device console on the terminal, key by key",
    [](CLI::App& sub, const GlobalOptions& global) -> std::function<int()> {
      auto options = std::make_shared<ConsoleOptions>();
      sub.add_option("--hostname", options->hostname,
                     "host name shown in the prompt (default: the configuration's, else Router)");
      sub.add_option("--config", options->config, "the running configuration the device starts with");
      sub.add_option("--save", options->save, "file that `write memory` writes (default: the --config file)");
      sub.add_option("--history", options->history, "file that keeps the line history ('-': none)")
          ->capture_default_str();
      sub.footer(
          "Keys: arrows, Home/End, Delete, Ctrl-A/E/K/U/W/Y, Ctrl-R search, '?' help, Tab completion; "
          "Ctrl-Z leaves the configuration, Ctrl-C drops the line; Ctrl-D on an empty line, or exit/logout at "
          "an exec prompt, leaves.\n"
          "Without a terminal, standard input is typed line by line.\n"
          "At the privileged prompt (and through `do`): show running-config [interface NAME] "
          "[| include|exclude|begin|section RE], show startup-config, show changes, write memory, "
          "copy running-config startup-config.\n"
          "Example: vtyconf console --config r1.cfg --save r1-new.cfg --history ~/.vtyconf_history");
      return [options, &global]() {
        if (!loadResources()) return 2;
        std::string startup;
        if (!options->config.empty() && !readInput(options->config, startup)) return 2;
        ConsoleTwin twin(startup, options->save.empty() ? options->config : options->save);
        int rc = platform::isTerminal(0) ? runInteractive(*options, twin, global) : runScripted(*options, twin);
        qxparser::QxParserUtil::destroyParserResource();
        return rc;
      };
    }}};

}  // namespace
}  // namespace vtycli
