// MeaningText: the small text and record helpers that the device-meaning
// rules (AccessListMeaning, BgpNeighbourMeaning, DeviceMeaning,
// InterfaceRangeMeaning, RouteFilterMeaning, VlanListMeaning) and the
// device-text reader and its sketches share.
// Internal to the library; plain inline functions without state.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "config/QxParserUtil.h"

namespace qxparser {
namespace meaning {

// A command's text without the blank and line end that records carry.
inline std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \r\n") + 1);
  return text;
}

// The same without a copy.
inline std::string_view bare(std::string_view text) { return text.substr(0, text.find_last_not_of(" \r\n") + 1); }

// The last line of a raw text (all of it behind its last line feed), without
// a copy.
inline std::string_view lastLine(std::string_view raw) {
  const size_t cut = raw.rfind('\n');
  return cut == std::string_view::npos ? raw : raw.substr(cut + 1);
}

inline bool startsWith(std::string_view text, std::string_view lead) {
  return text.compare(0, lead.size(), lead) == 0;
}

// The blanks that separate words of a line as a stream reads them (blank,
// tab, line end, carriage return, vertical tab, form feed).
inline bool isWordBreak(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// The words of a text one after the other, without copies: next() gives
// the following word, or false (leaving `word` alone) when none is left.
class WordCursor {
 public:
  explicit WordCursor(std::string_view text) : mText(text) {}
  bool next(std::string_view& word) {
    while (mAt < mText.size() && isWordBreak(mText[mAt])) ++mAt;
    if (mAt == mText.size()) return false;
    const size_t start = mAt;
    while (mAt < mText.size() && !isWordBreak(mText[mAt])) ++mAt;
    word = mText.substr(start, mAt - start);
    return true;
  }

 private:
  std::string_view mText;
  size_t mAt = 0;
};

// The words of `text`, cut at those blanks; no empty words.
inline std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  WordCursor cursor(text);
  for (std::string_view word; cursor.next(word);) words.emplace_back(word);
  return words;
}

// The first word of `text` (empty when there is none), without a copy.
inline std::string_view firstWord(std::string_view text) {
  std::string_view word;
  WordCursor(text).next(word);
  return word;
}

// Calls `each` with every line of `text` as a line reader gives them: cut at
// line feeds, the feed not included, nothing behind a last feed.
template <typename Each>
void forEachLine(const std::string& text, Each&& each) {
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    each(std::string_view(text).substr(start, end - start));
    start = end + 1;
  }
}

// Writes `text` line by line as forEachLine cuts it, each line as
// `form(line, piece)` appends its new form (without the feed) to `piece`,
// every line closed by a feed. Into `out`, and only where that differs from
// `text`: the lines are copied from the first one that changes on, and
// false (`out` untouched) says that `text` stands as it is.
template <typename Form>
bool rewriteLines(const std::string& text, std::string& out, Form&& form) {
  bool changed = false;
  std::string piece;
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    const std::string_view line = std::string_view(text).substr(start, end - start);
    piece.clear();
    form(line, piece);
    if (!changed && piece != line) {
      changed = true;
      out.clear();
      out.reserve(text.size() + 1);
      out.append(text, 0, start);
    }
    if (changed) {
      out += piece;
      out += '\n';
    }
    start = end + 1;
  }
  if (changed || text.empty() || text.back() == '\n') return changed;
  // Only the feed behind the last line is new.
  out = text;
  out += '\n';
  return true;
}

// Frees one record with its children.
inline void freeRecord(CiscoCommandLine* record) {
  std::vector<CiscoCommandLine*> alone{record};
  QxParserUtil::deleteCommands(alone);
}

}  // namespace meaning
}  // namespace qxparser
