// Redraw of GetLineData: the smallest change that brings the screen line in
// step with the buffer, with horizontal scrolling.
//
// The screen shows the prompt, then `mWidth` columns for text (never fewer than
// the scroll step and two), of which at most mWidth - 1 are used. When the text
// does not fit, the visible part starts at gShift (a multiple of the scroll
// step) and a "$" stands in the first column when text is hidden to the left,
// and in the last used column when text is hidden to the right. mCursor is
// where the terminal cursor stands, as an index into the line; all motion on
// the screen is done with backspaces and by printing characters again, never
// with terminal control sequences.
#include <cctype>
#include <cstring>

#include "editor/GetLineData.h"

int GetLineData::gShift = 0;
int GetLineData::gOffRight = 0;
int GetLineData::gOffLeft = 0;

void GetLineData::gl_putc(int c) {
  if (mDumb) return;
  if (mNoechoNow && std::isprint(static_cast<unsigned char>(c))) return;
  mOutput.push_back(static_cast<char>(c));
}

void GetLineData::gl_puts(const char* text) {
  if (mDumb || text == nullptr) return;
  mOutput.append(text);
}

void GetLineData::gl_redraw() {
  gl_putc('\n');
  gl_fixup(mPrompt.c_str(), -2, mCursor);
}

void GetLineData::gl_fixup(const char* prompt, int change, int cursor) {
  if (prompt == nullptr) prompt = "";
  int promptLength = static_cast<int>(std::strlen(prompt));
  int storedLength = promptLength < kMaxInput ? promptLength : kMaxInput;

  if (change == -2) {
    gShift = gOffRight = gOffLeft = 0;
    mCursor = mLength = 0;
    mNoechoNow = 0;
    gl_puts(prompt);
    mNoechoNow = mNoecho;
    mPrevText.assign(prompt, storedLength);
    mWidth = mTermWidth - promptLength;
    change = 0;
  } else if (mPrevText.compare(0, std::string::npos, prompt, storedLength) != 0) {
    int oldLength = static_cast<int>(mPrevText.size());
    // Columns in use, counted from the end of the new prompt.
    mLength = mLength + oldLength - promptLength;
    mPrevText.assign(prompt, storedLength);
    for (int i = mCursor - gShift + oldLength; i > 0; i--) gl_putc('\b');
    mNoechoNow = 0;
    gl_puts(prompt);
    mNoechoNow = mNoecho;
    mCursor = gShift;
    mWidth = mTermWidth - promptLength;
    change = 0;
  }

  // The text keeps at least the scroll step and two columns, also beside a
  // prompt that takes (almost) the whole screen or after a wider screen was
  // set since the last full draw: with fewer, the shift computed from the
  // cursor would pass the end of the line and the draw would read behind it.
  if (mWidth < mScroll + 2) mWidth = mScroll + 2;

  int pad = gOffRight ? mWidth - 1 : mLength - gShift;
  int backup = mCursor - gShift;  // columns from the start of the text to the terminal cursor
  if (change >= 0) {
    mLength = static_cast<int>(std::strlen(mLine.data()));
    if (change > mLength) change = mLength;
  }
  if (cursor > mLength) {
    if (cursor != kBufSize) beep();
    cursor = mLength;
  }
  if (cursor < 0) {
    beep();
    cursor = 0;
  }

  int extra = 0;
  if (gOffRight || (gOffLeft && cursor < gShift + mWidth - mScroll / 2)) extra = 2;
  int newShift = cursor + extra + mScroll - mWidth;
  if (newShift > 0) {
    newShift /= mScroll;
    newShift *= mScroll;
  } else {
    newShift = 0;
  }

  bool draw = false;
  int left = 0;
  int right = 0;
  int target = 0;  // column of `left`, counted from the start of the text
  if (newShift == gShift) {
    if (change >= 0) {
      left = change >= gOffLeft + gShift ? change : gShift;
      target = left - gShift;
      gOffRight = mLength > gShift + mWidth - 1;
      right = gOffRight ? gShift + mWidth - 2 : mLength;
      if (mExtent && right > left + mExtent) right = left + mExtent;
      draw = true;
    }
  } else {
    gOffLeft = newShift != 0;
    gShift = newShift;
    gOffRight = mLength > gShift + mWidth - 1;
    left = gShift;
    target = 0;
    right = gOffRight ? gShift + mWidth - 2 : mLength;
    draw = true;
  }

  pad -= gOffRight ? mWidth - 1 : mLength - gShift;
  if (pad < 0) pad = 0;

  // `at` is the index of the line under the terminal cursor from here on.
  int at = mCursor;
  if (draw && (left < right || pad > 0)) {
    if (backup >= target) {
      for (int i = backup - target; i > 0; i--) gl_putc('\b');
    } else {
      for (int i = mCursor; i < left; i++) gl_putc(mLine[i]);
    }
    int i = left;
    if (i == gShift && gOffLeft && i < right) {
      gl_putc('$');
      i++;
    }
    for (; i < right; i++) gl_putc(mLine[i]);
    at = right > left ? right : left;
    if (gOffRight && right == gShift + mWidth - 2) {
      gl_putc('$');
      at++;
    } else {
      for (int k = 0; k < pad; k++) gl_putc(' ');
      at += pad;
    }
  }

  if (cursor < at) {
    for (int i = at - cursor; i > 0; i--) gl_putc('\b');
  } else {
    for (int i = at; i < cursor; i++) gl_putc(mLine[i]);
  }
  mCursor = cursor;
}
