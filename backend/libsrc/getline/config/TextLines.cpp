// The non-empty lines of a text by number.
#include "config/TextLines.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace qxparser {

namespace {

// Where the line that starts at `from` ends: at the first carriage return or
// line feed, else at the end. Two searches for one character each (a search
// for either looks every character up in a set).
size_t lineEnd(const std::string& text, size_t from) {
  size_t end = text.find('\n', from);
  if (end == std::string::npos) end = text.size();
  const void* back = std::memchr(text.data() + from, '\r', end - from);
  return back == nullptr ? end : static_cast<size_t>(static_cast<const char*>(back) - text.data());
}

bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

}  // namespace

bool LineWalk::find(int number, ReadLine& line) {
  if (number < mNumber) {
    mPosition = 0;
    mNumber = 0;
  }
  while (mNumber < number) {
    if (!next()) return false;
  }
  line = mLine;
  return mNumber > 0;
}

bool LineWalk::next() {
  int breaks = 0;
  int returns = 0;
  while (mPosition < mText.size()) {
    const char c = mText[mPosition];
    if (isLineEnd(c)) {
      (c == '\n' ? breaks : returns)++;
      ++mPosition;
      continue;
    }
    const size_t end = lineEnd(mText, mPosition);
    mLine.start = mPosition;
    mLine.length = end - mPosition;
    // Of a run of line ends, the larger count of one kind made the lines:
    // "\r\n" ends one line, "\n\n" makes one empty line.
    mLine.emptyBefore = mNumber == 0 ? 0 : std::max(0, std::max(breaks, returns) - 1);
    ++mNumber;
    mPosition = end;
    return true;
  }
  return false;
}

TextLines::TextLines(const std::string& text) : mText(text) {
  if (!fits(text)) throw std::length_error("text too long for line offsets");
  size_t at = 0;
  while (at < text.size()) {
    if (isLineEnd(text[at])) {
      ++at;
      continue;
    }
    mStarts.push_back(static_cast<uint32_t>(at));
    at = lineEnd(text, at);
  }
}

bool TextLines::find(int number, std::string_view& line) const {
  if (number < 1 || static_cast<size_t>(number) > mStarts.size()) return false;
  const size_t start = mStarts[static_cast<size_t>(number) - 1];
  line = std::string_view(mText).substr(start, lineEnd(mText, start) - start);
  return true;
}

int TextLines::emptyBefore(int number) const {
  if (number < 2 || static_cast<size_t>(number) > mStarts.size()) return 0;
  int breaks = 0;
  int returns = 0;
  for (size_t at = mStarts[static_cast<size_t>(number) - 1]; at > 0 && isLineEnd(mText[at - 1]); --at) {
    (mText[at - 1] == '\n' ? breaks : returns)++;
  }
  return std::max(0, std::max(breaks, returns) - 1);
}

}  // namespace qxparser
