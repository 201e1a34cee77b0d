// TextWords: the words of a typed line, for the readers of typed text.
//
// Lines are cut at blanks and tabs only (what a person types on one line);
// each word keeps its byte offset, so a caret can be put under it. The
// spans of the first words may be had without copying them (a reader asks
// this of every line). Plain functions over values; no state.
#pragma once

#include <cctype>
#include <string>
#include <utility>
#include <vector>

namespace qxparser {

inline std::string loweredWord(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// The words of `line`, each with its offset.
inline std::vector<std::pair<size_t, std::string>> wordsWithOffsets(const std::string& line) {
  static const char* const kBlanks = " \t";
  std::vector<std::pair<size_t, std::string>> words;
  size_t start = line.find_first_not_of(kBlanks);
  while (start != std::string::npos) {
    const size_t end = line.find_first_of(kBlanks, start);
    words.emplace_back(start, line.substr(start, end == std::string::npos ? std::string::npos : end - start));
    start = end == std::string::npos ? end : line.find_first_not_of(kBlanks, end);
  }
  return words;
}

// Offset and length of one word of a line.
struct WordSpan {
  size_t start = 0;
  size_t length = 0;
};

// How many words `line` holds, counted up to `countUpTo` (the scan stops
// there); the first `most` of them are put in `spans`.
inline size_t wordSpans(const std::string& line, WordSpan* spans, size_t most,
                        size_t countUpTo = static_cast<size_t>(-1)) {
  size_t count = 0;
  size_t i = 0;
  const size_t size = line.size();
  while (count < countUpTo) {
    while (i < size && (line[i] == ' ' || line[i] == '\t')) ++i;
    if (i == size) return count;
    const size_t start = i;
    while (i < size && line[i] != ' ' && line[i] != '\t') ++i;
    if (count < most) spans[count] = WordSpan{start, i - start};
    ++count;
  }
  return count;
}

// Whether the word at `span` of `line`, lower-cased, is `lowered`.
inline bool wordIs(const std::string& line, const WordSpan& span, const std::string& lowered) {
  if (span.length != lowered.size()) return false;
  for (size_t i = 0; i < span.length; ++i) {
    const char c = line[span.start + i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lowered[i]) return false;
  }
  return true;
}

}  // namespace qxparser
