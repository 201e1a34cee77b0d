// vtyconf console: an emulated device console on the terminal, key by key.
//
// On a terminal the keys are read one byte at a time in raw mode and handed
// to parser_main; the escape sequences of the arrow, Home, End, Insert and
// Delete keys become the editor's one-byte console codes, and the backspace
// key (DEL) becomes Ctrl-H. When standard input is not a terminal, it is read
// line by line and each line is typed, so a session can be scripted.
#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "config/QxParserUtil.h"
#include "editor/GetLineData.h"
#include "main.h"
#include "platform/PlatformOs.h"
#include "terminal/VTY.h"

namespace vtycli {
namespace {

struct ConsoleOptions {
  std::string hostname = "Router";
  std::string history = "-";
};

constexpr char kEsc = 27;
constexpr int kMinWidth = 21;
// How long a lone ESC waits for the rest of a sequence before it counts as a key.
constexpr int kEscapeWaitMs = 50;

// Turns terminal key sequences into the bytes the editor understands.
class KeyDecoder {
 public:
  // Feeds one byte; appends the editor keys it completes to `keys`.
  void feed(char byte, std::string& keys) {
    switch (mState) {
      case State::Plain:
        if (byte == kEsc) {
          mState = State::Escape;
        } else if (byte == 127) {
          keys += '\b';  // the backspace key of a terminal sends DEL
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
          // ESC on its own is a key of the editor (it clears the line).
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
  // No further byte came: an ESC that started nothing is the ESC key, and
  // an unfinished sequence is dropped.
  void flush(std::string& keys) {
    if (mState == State::Escape) keys += kEsc;
    mState = State::Plain;
  }
  bool pending() const { return mState != State::Plain; }

 private:
  enum class State { Plain, Escape, Csi, Ss3 };

  static void appendFinal(char final, const std::string& parameters, std::string& keys) {
    // "1;5C" and the like carry modifiers; the key is the first number.
    std::string number = parameters.substr(0, parameters.find(';'));
    char code = 0;
    switch (final) {
      case 'A': code = static_cast<char>(0xB8); break;  // up: previous line
      case 'B': code = static_cast<char>(0xB0); break;  // down: next line
      case 'C': code = static_cast<char>(0xB3); break;  // right
      case 'D': code = static_cast<char>(0xB5); break;  // left
      case 'H': code = static_cast<char>(0xB9); break;  // home
      case 'F': code = static_cast<char>(0xB1); break;  // end
      case '~':
        if (number == "1" || number == "7") code = static_cast<char>(0xB9);
        if (number == "4" || number == "8") code = static_cast<char>(0xB1);
        if (number == "3") code = static_cast<char>(0xAD);  // delete
        if (number == "2") code = static_cast<char>(0xAE);  // insert: overstrike
        break;
      default: break;
    }
    if (code != 0) keys += code;  // other sequences (function keys) are dropped
  }

  State mState = State::Plain;
  std::string mParameters;
};

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
  Console(const ConsoleOptions& options, bool interactive)
      : mVty(options.hostname, true), mEditor(std::make_unique<GetLineData>()), mInteractive(interactive) {
    show(vtysh_console_init(&mVty, mEditor.get(), interactive ? screenWidth() : 80, options.history.c_str()));
  }

  // Types one key; false when the session ends with it.
  bool key(char key) {
    bool leave = key == 4 && mEditor->getLine()[0] == '\0' && !mEditor->isSearching();
    char buffer[2] = {key, '\0'};
    std::string output;
    parser_main(&mVty, mEditor.get(), buffer, output, &mDelta);
    show(output);
    return !leave;
  }

  void resized() { mEditor->Gl_setwidth(screenWidth()); }

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
  bool mInteractive;
};

int runInteractive(const ConsoleOptions& options, const GlobalOptions& global) {
  RawModeGuard guard;
  guard.active = platform::terminalEnterRaw(0);
  if (!guard.active) {
    std::cerr << "vtyconf: console: the terminal cannot be put into key-by-key mode\n";
    return 2;
  }
  if (!global.quiet) platform::writeAll(2, "vtyconf console: Ctrl-D on an empty line leaves.\r\n");
  Console console(options, true);
  KeyDecoder decoder;
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

int runScripted(const ConsoleOptions& options) {
  Console console(options, false);
  KeyDecoder decoder;
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
      sub.add_option("--hostname", options->hostname, "host name shown in the prompt")->capture_default_str();
      sub.add_option("--history", options->history, "file that keeps the line history ('-': none)")
          ->capture_default_str();
      sub.footer(
          "Keys: arrows, Home/End, Delete, Ctrl-A/E/K/U/W/Y, Ctrl-R search, '?' help, Tab completion; "
          "Ctrl-D on an empty line leaves.\n"
          "Without a terminal, standard input is typed line by line.\n"
          "Example: vtyconf console --hostname R1 --history ~/.vtyconf_history");
      return [options, &global]() {
        if (!loadResources()) return 2;
        int rc = platform::isTerminal(0) ? runInteractive(*options, global) : runScripted(*options);
        qxparser::QxParserUtil::destroyParserResource();
        return rc;
      };
    }}};

}  // namespace
}  // namespace vtycli
