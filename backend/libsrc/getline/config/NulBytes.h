// NUL bytes in texts the library wrote: the merge writer indents levels below
// the first with NUL bytes, which a reader would take for part of a word.
// These helpers turn them into blanks, so that such a text reads whole.
// Internal to the library; plain inline functions without state.
#pragma once

#include <algorithm>
#include <string>

namespace qxparser {

// `text` with each NUL byte as a blank.
inline std::string nulAsBlank(std::string text) {
  std::replace(text.begin(), text.end(), '\0', ' ');
  return text;
}

// The same without a copy where `text` holds no NUL byte: `text` itself,
// else the copy made in `copy`.
inline const std::string& nulAsBlank(const std::string& text, std::string& copy) {
  if (text.find('\0') == std::string::npos) return text;
  copy = nulAsBlank(text);
  return copy;
}

}  // namespace qxparser
