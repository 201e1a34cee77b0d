// GetLineData: the one-line editor of the emulated console, driven one key at
// a time.
//
// The editor reads no terminal. Each call of Getlinem/Getline hands it a
// buffer whose first byte is one key; everything the editor would print
// (echo, redraw, backspaces, beeps) is appended to its output string, which
// the caller reads with outputString() and sends to the screen, then empties
// with clearOutput(). The width of that screen is set with Gl_setwidth.
//
// Ownership: the object owns its line, kill buffer, prompt copy and history
// ring. Getlinem returns a pointer into the object's own line buffer, valid
// until the next call. The object is large (four 40960-byte buffers); build
// it once and keep it.
//
// Threads: none of this may be used from two threads. The redraw keeps three
// process-wide statics (gShift, gOffRight, gOffLeft: the scroll state of the
// line on the screen) and the "?" and tab hooks are process-wide slots, so
// only one editor may be drawing at a time; a full redraw
// (gl_fixup(prompt, -2, cursor)) resets the scroll statics for the editor that
// makes it.
//
// Errors: where the line would pass 40959 characters, and for a screen width
// below 21, gl_error writes its message to the output string and throws
// GetLineError. The process goes on and the editor stays usable: the failing
// edit is not applied, the line keeps its text, and gl_redraw() draws prompt
// and line again below the message.
//
// Keys from the console with the high bit set are mapped by gl_getc:
// 0xAD delete, 0xAE overstrike, 0xB0 next, 0xB1 end, 0xB3 right, 0xB5 left,
// 0xB8 previous, 0xB9 home; every other high byte is read as "no key", which
// ends the call with an empty line. ESC acts as Ctrl-U and DEL (127) is
// inserted like a letter. "?" is inserted and then handed to the help hook;
// the tab key goes to the tab hook and does nothing when none is set. The
// interrupt key (Ctrl-C on a console) starts the line's drawing over; raising
// a break in the host is left to the host, which sees the key first.
#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string>

#include "platform/Export.h"

namespace qxparser {
class VTY;
}

// Raised by GetLineData::gl_error in place of ending the process. what() is
// the editor's message, e.g. "\n*** Error: Getline(): input buffer overflow\n".
class VTYCONF_API GetLineError : public std::runtime_error {
 public:
  explicit GetLineError(const std::string& message) : std::runtime_error(message) {}
};

// A "?" or tab hook. It gets the line buffer (40960 bytes, NUL ended; it may
// rewrite it, at most 40959 characters), the prompt length, the cursor (it may
// move it), the terminal and the editor's output string (to append text). It
// returns the first changed position, -1 for no change of text, or -2 for a
// full redraw of prompt and line.
using GlHook = int (*)(char* line, int promptLength, int& cursor, qxparser::VTY* vty,
                       std::string& output);

class VTYCONF_API GetLineData {
 public:
  static constexpr int kBufSize = 40960;     // line, kill buffer and prompt copy
  static constexpr int kMaxInput = 40959;    // input stops at this many characters
  static constexpr int kHistSize = 100;      // ring slots; 99 lines are kept
  static constexpr int kSearchMax = 100;     // characters of a search string
  static constexpr int kHistTrimLines = 40;  // lines cut from the head of a long history file
  static constexpr int kHistFileMax = 100;   // file line count that starts a trim

  GetLineData();

  // ---- driving the editor one key at a time
  // mode 2: leave the set-up state and return null. mode -1 at the start of a
  // line: clear "noecho"/"erase", set up, store the prompt, empty the line,
  // return null (the line stays pending). mode 0: at the start of a line set
  // up, store the prompt and empty the line; then handle the key and return
  // the line. mode 1: handle the key; return the line only if the key ended it.
  // A line has ended when getNewLine() is true after the call; it then holds
  // the text followed by "\n".
  char* Getlinem(char* buffer, int mode, const char* prompt, qxparser::VTY* vty);
  char* Getline(char* buffer, const char* prompt, qxparser::VTY* vty);

  // One key of the console: Getlinem(buffer, 0, prompt, vty), with the last
  // line read forgotten when a new line starts, and a finished non-empty line
  // added to the history. Returns the line.
  char* vtysh_rl_gets(char* buffer, const char* prompt, qxparser::VTY* vty);
  // The same with the prompt of the terminal (vtysh_prompt); defined beside
  // the console loop, which owns vtysh_prompt.
  char* vtysh_rl_gets(char* buffer, qxparser::VTY* vty);
  // Reads the pager name: environment "VTYSH_PAGER", else "more". Stored only.
  void vtysh_pager_init();

  // ---- set-up
  // Reads the pager name, sets the "?" and tab hooks, and starts a new line.
  void parser_init(GlHook helpHook, GlHook tabHook);
  // Sets only the hooks; returns 0.
  static int getline_init(GlHook helpHook, GlHook tabHook);
  // "noecho" (printable characters are not echoed while the text is drawn) or
  // "erase" (a finished line is wiped from the screen). 0, or -1 for another name.
  int Gl_config(const char* which, int value);
  int Gl_eof() const;
  // Terminal width in columns; the scroll step becomes a third of it. Below 21
  // it raises GetLineError and changes nothing.
  void Gl_setwidth(int width);
  // Whether gl_init takes the host's standard input and output for a console:
  // -1 (default) asks the host, 1 always, 0 never. When it is not a console the
  // editor turns "dumb" and writes nothing. A remote console and tests set 1
  // before the first key.
  void Gl_setconsole(int mode);
  void gl_init();
  void gl_cleanup();
  void gl_char_init();

  // ---- what the console loop reads and sets between lines
  bool getNewLine() const { return mNewLine != 0; }
  const char* getLine() const { return mLine.data(); }
  int getCursor() const { return mCursor; }
  const char* getPrompt() const { return mPrompt.c_str(); }
  // Stores a new prompt for the next draw (null is the empty prompt).
  void setPrompt(const char* prompt);
  // Empties the line; cursor and length go to 0.
  void clearLine();
  // Everything drawn since the last clearOutput().
  std::string& outputString() { return mOutput; }
  void clearOutput() { mOutput.clear(); }
  const std::string& getPager() const { return mPager; }
  bool isOverwrite() const { return mOverwrite != 0; }
  bool isSearching() const { return mSearchMode != 0; }
  int getMark() const { return mMark; }
  const char* getKillBuffer() const { return mKill.data(); }

  // ---- editing commands (each acts on the current line and redraws)
  void gl_addchar(int c);
  void gl_del(int loc);  // -1: the character before the cursor; 0: the one under it
  void gl_kill(int pos);
  void gl_kill_1_word();
  void gl_kill_back_1_word();
  void gl_kill_region(int from, int to);  // both ends included
  void gl_back_1_word();
  void gl_fwd_1_word();
  void gl_transpose();
  void gl_wipe();
  void gl_yank();
  void gl_exch();
  void gl_set_mark();
  void gl_newline();
  void gl_redraw();
  // Redraws with the smallest change. change: -2 whole new draw, -1 no change
  // of text, else the first changed position. cursor: where the cursor ends;
  // kBufSize asks for the end of the line without a beep.
  void gl_fixup(const char* prompt, int change, int cursor);
  // Inserts blanks into buf at loc up to the next multiple of 8 counted from
  // offset + loc; returns the first changed position and moves loc behind them.
  int gl_tab(char* buf, int offset, int& loc);
  void gl_putc(int c);
  void gl_puts(const char* text);
  // Maps one console byte to a key code (see the paragraph at the top).
  static int gl_getc(char key);
  [[noreturn]] void gl_error(const char* message);
  static bool is_whitespace(int c);

  // ---- history
  void hist_init();
  const char* hist_next();
  const char* hist_prev();
  std::string hist_save(const char* line);
  // Keeps the history in fileName ("-": no file) and loads what it holds.
  void Gl_histinit(const char* fileName);
  void Gl_histadd(const char* line);
  int getHistFileLines() const { return mHistFileLines; }

  // ---- incremental search
  void search_addchar(int c);
  void search_back(int newSearch);
  void search_forw(int newSearch);
  void search_term();
  void search_update(int c);
  const std::string& getSearchString() const { return mSearchString; }
  const std::string& getSearchPrompt() const { return mSearchPrompt; }

 private:
  // Handles one mapped key; true when it ended the line.
  bool handleKey(int c, qxparser::VTY* vty);
  void runHook(GlHook hook, qxparser::VTY* vty);
  void beep() { gl_putc('\007'); }
  void setLineText(const char* text);
  void searchFail();
  // One Ctrl-R (backward) or Ctrl-S (forward) step through the history ring.
  void searchStep(bool forward, int newSearch);

  static int gShift;     // first visible column of the line
  static int gOffRight;  // text is cut at the right edge ("$" there)
  static int gOffLeft;   // text is cut at the left edge ("$" there)
  static GlHook gHelpHook;
  static GlHook gTabHook;

  int mInitState = -1;
  int mDumb = 0;
  int mEof = 0;
  int mTermWidth = 80;
  int mScroll = 27;
  int mWidth = 80;
  int mExtent = 0;
  int mOverwrite = 0;
  int mNoecho = 0;
  int mNoechoNow = 0;
  int mErase = 0;
  int mCursor = 0;
  int mLength = 0;
  std::array<char, kBufSize> mLine{};
  std::array<char, kBufSize> mKill{};
  std::string mPrompt;
  char mInterruptKey = 0;
  char mQuitKey = 0;
  int mSearchMode = 0;
  int mHistFileLines = 0;
  std::string mHistFileName;
  int mMark = -1;
  int mNewLine = 1;
  std::string mSearchPrompt;
  std::string mSearchString;
  int mSearchPos = 0;
  int mSearchForw = 0;
  int mSearchLast = 0;
  std::string mPrevText;  // the prompt as last drawn
  int mHistPos = 0;
  int mHistLast = 0;
  // A free slot is empty (no value); the slot at mHistLast holds "".
  std::array<std::optional<std::string>, kHistSize> mHist;
  std::string mPrevLine;  // last line added, to drop a repeat
  bool mLineRead = false;  // vtysh_rl_gets holds a line (the slot of the last line read)
  std::string mOutput;
  std::string mPager;
  int mConsoleMode = -1;
};
