// ReaderLineMap: where each line the reader sees stands in the text it came from.
//
// getCmdInfo cuts a text at every carriage return and line feed, skips the
// empty pieces and numbers the rest from 1. A ReaderLineMap follows the same
// cut so that such a number can be mapped back to the line of the file, and
// marks the lines that are banner text (the terminal takes them as text up to
// the banner's delimiter). The map keeps where each line begins, not the lines
// themselves: readerLine cuts one from the text on demand. A plain value made
// by mapReaderLines; no shared state.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

struct VTYCONF_API ReaderLineMap {
  std::vector<int> fileLines;            // file line of each non-empty line, in order
  std::vector<bool> bannerText;          // per non-empty line: inside a banner
  std::vector<size_t> lineStarts;        // per non-empty line: where it begins in the text

  // File line of the reader's line number `number` (1-based); 0 if unknown.
  int fileLineOf(int number) const;
  bool isBannerText(int number) const;
  // How many non-empty lines the text has.
  size_t lineCount() const { return lineStarts.size(); }
  // The non-empty line at `index` (0-based) as the reader sees it, cut from
  // `text`, which must be the text the map was made from; empty when there
  // is no such line.
  std::string readerLine(const std::string& text, size_t index) const;
};

VTYCONF_API ReaderLineMap mapReaderLines(const std::string& text);

// Where the piece of `text` that begins at `start` ends: at the next carriage
// return or line feed, or at the end of the text.
VTYCONF_API size_t readerPieceEnd(const std::string& text, size_t start);

}  // namespace qxparser
