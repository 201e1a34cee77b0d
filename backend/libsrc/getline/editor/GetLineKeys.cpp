// Key handling and editing commands of GetLineData: the key map, set-up, the
// edits of the line and the kill buffer.
#include <cctype>
#include <cstring>

#include "editor/GetLineData.h"
#include "platform/PlatformOs.h"

namespace {

constexpr const char* kOverflow = "\n*** Error: Getline(): input buffer overflow\n";
constexpr const char* kMinWidth = "\n*** Error: minimum screen width is 21\n";

bool isWordChar(int c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

}  // namespace

GlHook GetLineData::gHelpHook = nullptr;
GlHook GetLineData::gTabHook = nullptr;

GetLineData::GetLineData() { mSearchPrompt = "? "; }

// ---------------------------------------------------------------- set-up

void GetLineData::vtysh_pager_init() { mPager = platform::getEnv("VTYSH_PAGER", "more"); }

void GetLineData::parser_init(GlHook helpHook, GlHook tabHook) {
  vtysh_pager_init();
  gHelpHook = helpHook;
  gTabHook = tabHook;
  mNewLine = 1;
}

int GetLineData::getline_init(GlHook helpHook, GlHook tabHook) {
  gHelpHook = helpHook;
  gTabHook = tabHook;
  return 0;
}

int GetLineData::Gl_config(const char* which, int value) {
  if (which == nullptr) return -1;
  if (std::strcmp(which, "noecho") == 0) {
    mNoecho = value;
  } else if (std::strcmp(which, "erase") == 0) {
    mErase = value;
  } else {
    return -1;
  }
  return 0;
}

int GetLineData::Gl_eof() const { return mEof; }

void GetLineData::Gl_setwidth(int width) {
  if (width < 21) gl_error(kMinWidth);
  mTermWidth = width;
  mScroll = width / 3;
}

void GetLineData::Gl_setconsole(int mode) {
  mConsoleMode = mode;
  if (mode > 0) mDumb = 0;
}

void GetLineData::gl_init() {
  if (mInitState < 0) hist_init();
  bool console = mConsoleMode >= 0
                     ? mConsoleMode > 0
                     : platform::terminalWidth(0, 0) > 0 && platform::terminalWidth(1, 0) > 0;
  if (console) {
    mInitState = 1;
    if (!mDumb) gl_char_init();
  } else {
    mDumb = 1;
    mInitState = 1;
  }
}

void GetLineData::gl_cleanup() { mInitState = 0; }

void GetLineData::gl_char_init() {
  if (mDumb) return;
  mInterruptKey = 3;
  mQuitKey = 17;
}

void GetLineData::setPrompt(const char* prompt) { mPrompt = prompt ? prompt : ""; }

void GetLineData::clearLine() {
  mLine[0] = '\0';
  mCursor = 0;
  mLength = 0;
}

void GetLineData::setLineText(const char* text) {
  std::size_t n = std::strlen(text);
  if (n > static_cast<std::size_t>(kMaxInput)) n = kMaxInput;
  std::memcpy(mLine.data(), text, n);
  mLine[n] = '\0';
}

[[noreturn]] void GetLineData::gl_error(const char* message) {
  gl_cleanup();
  gl_puts(message);
  throw GetLineError(message);
}

bool GetLineData::is_whitespace(int c) { return !isWordChar(c); }

// ------------------------------------------------------------- one key

int GetLineData::gl_getc(char key) {
  int c = static_cast<signed char>(key);
  if (c > 0) return c == 27 ? 21 : c;
  switch (static_cast<unsigned char>(key)) {
    case 0xAD: return 4;
    case 0xAE: return 15;
    case 0xB0: return 14;
    case 0xB1: return 5;
    case 0xB3: return 6;
    case 0xB5: return 2;
    case 0xB8: return 16;
    case 0xB9: return 1;
    default: return 0;
  }
}

char* GetLineData::Getline(char* buffer, const char* prompt, qxparser::VTY* vty) {
  return Getlinem(buffer, 0, prompt, vty);
}

char* GetLineData::Getlinem(char* buffer, int mode, const char* prompt, qxparser::VTY* vty) {
  if (mode == 2) {
    mInitState = 0;
    return nullptr;
  }
  if (mode == -1) {
    if (mNewLine) {
      mNoecho = 0;
      mErase = 0;
      gl_init();
      setPrompt(prompt);
      clearLine();
      return nullptr;
    }
    mode = 0;
  }
  if (mode == 0 && mNewLine) {
    gl_init();
    setPrompt(prompt);
    clearLine();
    mNewLine = 0;
  }
  bool ended = handleKey(gl_getc(buffer != nullptr ? buffer[0] : '\0'), vty);
  if (mode == 0 || ended) return mLine.data();
  return nullptr;
}

char* GetLineData::vtysh_rl_gets(char* buffer, const char* prompt, qxparser::VTY* vty) {
  if (mLineRead && mNewLine) mLineRead = false;
  char* line = Getlinem(buffer, 0, prompt, vty);
  mLineRead = line != nullptr;
  if (line != nullptr && line[0] != '\0' && mNewLine) Gl_histadd(line);
  return line;
}

void GetLineData::runHook(GlHook hook, qxparser::VTY* vty) {
  int cursor = mCursor;
  int result = hook(mLine.data(), static_cast<int>(mPrompt.size()), cursor, vty, mOutput);
  if (result >= 0 || result == -2 || cursor != mCursor) gl_fixup(mPrompt.c_str(), result, cursor);
}

bool GetLineData::handleKey(int c, qxparser::VTY* vty) {
  if (c <= 0) {
    if (c == -1 && mDumb) mEof = 1;
    gl_cleanup();
    clearLine();
    return true;
  }
  mExtent = 0;
  if (c >= ' ') {
    if (mSearchMode) {
      search_addchar(c);
    } else {
      gl_addchar(c);
      // The help hook runs on the line with the "?" already in it.
      if (c == '?' && gHelpHook != nullptr) runHook(gHelpHook, vty);
    }
    return false;
  }
  if (mSearchMode) {
    if (c == 14 || c == 16) {
      search_term();
      c = 0;
    } else if (c == 8) {
      search_addchar(-1);
      c = 0;
    } else if (c != 18 && c != 19) {
      search_term();
    }
  }
  const char* prompt = mPrompt.c_str();
  switch (c) {
    case 0: gl_set_mark(); break;
    case 1: gl_fixup(prompt, -1, 0); break;
    case 2: gl_fixup(prompt, -1, mCursor - 1); break;
    case 4:
      if (mLength == 0) {
        mLine[0] = '\0';
        gl_cleanup();
        gl_putc('\n');
        return true;
      }
      gl_del(0);
      break;
    case 5: gl_fixup(prompt, -1, mLength); break;
    case 6: gl_fixup(prompt, -1, mCursor + 1); break;
    case 8: gl_del(-1); break;
    case 9:
      if (gTabHook != nullptr) runHook(gTabHook, vty);
      break;
    case 10:
    case 13:
      gl_newline();
      gl_cleanup();
      return true;
    case 11: gl_kill(mCursor); break;
    case 12: gl_redraw(); break;
    case 14:
      setLineText(hist_next());
      gl_fixup(prompt, 0, kBufSize);
      break;
    case 15: mOverwrite = !mOverwrite; break;
    case 16:
      setLineText(hist_prev());
      gl_fixup(prompt, 0, kBufSize);
      break;
    case 18: search_back(1); break;
    case 19: search_forw(1); break;
    case 20: gl_transpose(); break;
    case 21:
      gl_fixup(prompt, -1, 0);
      gl_kill(mCursor);
      break;
    case 23: gl_wipe(); break;
    case 24: gl_exch(); break;
    case 25: gl_yank(); break;
    default:
      if (c == mInterruptKey) {
        // The console's own break event is left to the host: it sees the key
        // before handing it over. The editor starts over on the same line.
        gl_cleanup();
        gl_init();
        gl_redraw();
      } else {
        beep();
      }
      break;
  }
  return false;
}

// ----------------------------------------------------------------- edits

void GetLineData::gl_addchar(int c) {
  if (mLength >= kMaxInput) gl_error(kOverflow);
  if (mOverwrite && mCursor < mLength) {
    mLine[mCursor] = static_cast<char>(c);
    mExtent = 1;
  } else {
    std::memmove(&mLine[mCursor + 1], &mLine[mCursor], mLength - mCursor + 1);
    mLine[mCursor] = static_cast<char>(c);
  }
  gl_fixup(mPrompt.c_str(), mCursor, mCursor + 1);
}

void GetLineData::gl_del(int loc) {
  if ((loc == -1 && mCursor > 0) || (loc == 0 && mCursor < mLength)) {
    int at = mCursor + loc;
    std::memmove(&mLine[at], &mLine[at + 1], mLength - at);
    gl_fixup(mPrompt.c_str(), at, at);
  } else {
    beep();
  }
}

void GetLineData::gl_kill(int pos) {
  if (pos < mLength) {
    std::strcpy(mKill.data(), &mLine[pos]);
    mLine[pos] = '\0';
    gl_fixup(mPrompt.c_str(), pos, pos);
  } else {
    beep();
  }
}

void GetLineData::gl_kill_region(int from, int to) {
  if (from > to) std::swap(from, to);
  if (from < 0 || to >= mLength) return;
  int n = to - from + 1;
  std::memcpy(mKill.data(), &mLine[from], n);
  mKill[n] = '\0';
  std::memmove(&mLine[from], &mLine[to + 1], mLength - to);
  gl_fixup(mPrompt.c_str(), from, from);
}

void GetLineData::gl_kill_1_word() {
  int i = mCursor;
  while (i < mLength && is_whitespace(mLine[i])) i++;
  while (i < mLength && !is_whitespace(mLine[i])) i++;
  if (i > mCursor) {
    gl_kill_region(mCursor, i - 1);
  } else {
    beep();
  }
}

void GetLineData::gl_kill_back_1_word() {
  int i = mCursor;
  while (i > 0 && is_whitespace(mLine[i - 1])) i--;
  while (i > 0 && !is_whitespace(mLine[i - 1])) i--;
  if (i < mCursor) {
    mMark = i;
    gl_kill_region(i, mCursor - 1);
  } else {
    beep();
  }
}

void GetLineData::gl_back_1_word() {
  int i = mCursor;
  if (i > 0 && is_whitespace(mLine[i - 1])) i--;
  while (i > 0 && is_whitespace(mLine[i])) i--;
  while (i > 0 && !is_whitespace(mLine[i - 1])) i--;
  gl_fixup(mPrompt.c_str(), -1, i);
}

void GetLineData::gl_fwd_1_word() {
  int i = mCursor;
  while (i < mLength && !is_whitespace(mLine[i])) i++;
  while (i < mLength && is_whitespace(mLine[i])) i++;
  gl_fixup(mPrompt.c_str(), -1, i);
}

void GetLineData::gl_transpose() {
  if (mCursor > 0 && mCursor < mLength) {
    std::swap(mLine[mCursor - 1], mLine[mCursor]);
    mExtent = 2;
    gl_fixup(mPrompt.c_str(), mCursor - 1, mCursor);
  } else {
    beep();
  }
}

void GetLineData::gl_wipe() {
  if (mMark < 0 || mMark == mCursor) return;
  int from = mMark < mCursor ? mMark : mCursor;
  int to = mMark < mCursor ? mCursor : mMark;
  if (to > mLength) to = mLength;
  mMark = from;
  if (to > from) gl_kill_region(from, to - 1);
}

void GetLineData::gl_yank() {
  int len = static_cast<int>(std::strlen(mKill.data()));
  if (len == 0) {
    beep();
    return;
  }
  mMark = mCursor;
  if (mOverwrite) {
    if (mCursor + len >= kMaxInput) gl_error(kOverflow);
    std::memcpy(&mLine[mCursor], mKill.data(), len);
    if (mCursor + len > mLength) mLine[mCursor + len] = '\0';
    mExtent = len;
  } else {
    if (mLength + len >= kMaxInput) gl_error(kOverflow);
    std::memmove(&mLine[mCursor + len], &mLine[mCursor], mLength - mCursor + 1);
    std::memcpy(&mLine[mCursor], mKill.data(), len);
  }
  gl_fixup(mPrompt.c_str(), mCursor, mCursor + len);
}

void GetLineData::gl_exch() {
  if (mMark < 0) return;
  int target = mMark;
  mMark = mCursor;
  gl_fixup(mPrompt.c_str(), -1, target);
}

void GetLineData::gl_set_mark() { mMark = mCursor; }

void GetLineData::gl_newline() {
  if (mLength >= kMaxInput) gl_error(kOverflow);
  int len = mLength;
  if (mErase) {
    // Drawn as an empty line; the text itself is what the caller gets.
    std::string keep(mLine.data(), len);
    mLine[0] = '\0';
    gl_fixup(mPrompt.c_str(), 0, 0);
    std::memcpy(mLine.data(), keep.data(), len);
    mLine[len] = '\0';
    mLength = len;
  } else {
    // The cursor goes back far enough that the line is unscrolled.
    int loc = mWidth - 5;
    if (loc > len) loc = len;
    gl_fixup(mPrompt.c_str(), len, loc);
    gl_putc('\n');
  }
  mLine[len] = '\n';
  mLine[len + 1] = '\0';
  // The newline counts in the length: an edit made on the finished line (a key
  // in mode 1 before the next line starts) moves the text up to the length and
  // its end marker, and must not leave the old end behind.
  mLength = len + 1;
  mMark = -1;
  mNewLine = 1;
}

int GetLineData::gl_tab(char* buf, int offset, int& loc) {
  int len = static_cast<int>(std::strlen(buf));
  int count = 8 - (offset + loc) % 8;
  if (len + count >= kMaxInput) gl_error(kOverflow);
  std::memmove(buf + loc + count, buf + loc, len - loc + 1);
  std::memset(buf + loc, ' ', count);
  int first = loc;
  loc += count;
  return first;
}
