// TextWords: the words of a typed line, for the readers of typed text.
//
// Lines are cut at blanks and tabs only (what a person types on one line);
// each word keeps its byte offset, so a caret can be put under it. Plain
// functions over values; no state.
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

}  // namespace qxparser
