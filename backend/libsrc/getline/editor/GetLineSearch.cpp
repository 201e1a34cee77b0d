// Incremental search of GetLineData through the history ring.
//
// While a search runs, the prompt on the screen is the search text followed by
// "? ", and the line shows the history entry found. mSearchLast is the slot of
// the last hit of an explicit step (Ctrl-R/Ctrl-S); taking a character back
// returns there. The search text stops at kSearchMax characters.
#include <cstring>

#include "editor/GetLineData.h"

void GetLineData::search_update(int c) {
  if (c == 0) {
    mSearchPos = 0;
    mSearchString.clear();
    mSearchPrompt = "? ";
  } else if (c > 0) {
    if (mSearchPos >= kSearchMax) {
      beep();
      return;
    }
    mSearchString.push_back(static_cast<char>(c));
    mSearchPos++;
    mSearchPrompt = mSearchString + "? ";
  } else {
    if (mSearchPos > 0) {
      mSearchPos--;
      mSearchString.pop_back();
      mSearchPrompt = mSearchString + "? ";
    } else {
      beep();
      mHistPos = mHistLast;
    }
  }
}

void GetLineData::search_addchar(int c) {
  if (c > 0 && mSearchPos >= kSearchMax) {
    beep();
    return;
  }
  search_update(c);
  if (c < 0) {
    if (mSearchPos > 0) {
      mHistPos = mSearchLast;
    } else {
      mHistPos = mHistLast;
    }
    const auto& slot = mHist[mHistPos];
    setLineText(slot && mSearchPos > 0 ? slot->c_str() : "");
  }
  const char* hit = std::strstr(mLine.data(), mSearchString.c_str());
  if (hit != nullptr) {
    gl_fixup(mSearchPrompt.c_str(), 0, static_cast<int>(hit - mLine.data()));
  } else if (mSearchPos > 0) {
    if (mSearchForw) {
      search_forw(0);
    } else {
      search_back(0);
    }
  } else {
    gl_fixup(mSearchPrompt.c_str(), 0, 0);
  }
}

void GetLineData::searchFail() {
  beep();
  mLine[0] = '\0';
  gl_fixup(mSearchPrompt.c_str(), 0, 0);
}

void GetLineData::search_back(int newSearch) { searchStep(false, newSearch); }

void GetLineData::search_forw(int newSearch) { searchStep(true, newSearch); }

// The first step only enters search mode at the newest entry. Later steps walk
// the ring one slot at a time. Going back stops before wrapping onto the newest
// entry; going forward stops at the newest entry itself, so a forward step from
// there always fails.
void GetLineData::searchStep(bool forward, int newSearch) {
  mSearchForw = forward ? 1 : 0;
  if (!mSearchMode) {
    search_update(0);
    mHistPos = mSearchLast = mHistLast;
    mSearchMode = 1;
    mLine[0] = '\0';
    gl_fixup(mSearchPrompt.c_str(), 0, 0);
    return;
  }
  if (mSearchPos == 0) {
    beep();
    return;
  }
  for (;;) {
    int step = forward ? (mHistPos + 1) % kHistSize : (mHistPos - 1 + kHistSize) % kHistSize;
    bool atEnd = forward ? (mHistPos == mHistLast || step == mHistLast) : step == mHistLast;
    if (!mHist[mHistPos] || atEnd || !mHist[step]) {
      searchFail();
      return;
    }
    mHistPos = step;
    const char* text = mHist[step]->c_str();
    if (const char* hit = std::strstr(text, mSearchString.c_str())) {
      setLineText(text);
      gl_fixup(mSearchPrompt.c_str(), 0, static_cast<int>(hit - text));
      if (newSearch) mSearchLast = mHistPos;
      return;
    }
  }
}

void GetLineData::search_term() {
  mSearchMode = 0;
  if (mLine[0] == '\0') mHistPos = mHistLast;
  gl_fixup(mPrompt.c_str(), 0, mCursor);
}
