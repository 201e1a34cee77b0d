// LineWalk and TextLines: the non-empty lines of a text by number, numbered
// as the terminal numbers them (cut at carriage returns and line feeds, empty
// pieces dropped, counted from 1).
//
// A LineWalk finds them one after the other and keeps no list: asked in line
// order, it reads the text once. A TextLines keeps where each line starts
// (four bytes a line), so that lines are found in any order without a copy of
// their text. Both hold a reference to the text, which must outlive them and
// stay unchanged. Internal to the library; no shared state.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qxparser {

// Where a non-empty line stands in the text, and how many empty lines stood
// before it.
struct ReadLine {
  size_t start = 0;
  size_t length = 0;
  int emptyBefore = 0;
};

class LineWalk {
 public:
  explicit LineWalk(const std::string& text) : mText(text) {}

  // The line numbered `number`; false past the last line. Walks on from the
  // last line found; a smaller number starts over.
  bool find(int number, ReadLine& line);

 private:
  bool next();

  const std::string& mText;
  size_t mPosition = 0;
  int mNumber = 0;
  ReadLine mLine;
};

class TextLines {
 public:
  // Whether a text is short enough for offsets of four bytes.
  static bool fits(const std::string& text) { return text.size() <= UINT32_MAX; }

  // `text` must fit (see fits); else std::length_error.
  explicit TextLines(const std::string& text);

  // The line numbered `number`, without its line end; false where there is
  // no such line.
  bool find(int number, std::string_view& line) const;
  // How many empty lines stood before line `number` (none before the first).
  int emptyBefore(int number) const;

 private:
  const std::string& mText;
  std::vector<uint32_t> mStarts;
};

}  // namespace qxparser
