// ReaderLineMap: where each line the reader sees stands in the text it came from.
//
// getCmdInfo cuts a text at every carriage return and line feed, skips the
// empty pieces and numbers the rest from 1. A ReaderLineMap follows the same
// cut so that such a number can be mapped back to the line of the file, and
// marks the lines that are banner text (the terminal takes them as text up to
// the banner's delimiter). A plain value made by mapReaderLines; no shared state.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

struct VTYCONF_API ReaderLineMap {
  std::vector<int> fileLines;            // file line of each non-empty line, in order
  std::vector<bool> bannerText;          // per non-empty line: inside a banner
  std::vector<std::string> readerLines;  // the non-empty lines as the reader sees them

  // File line of the reader's line number `number` (1-based); 0 if unknown.
  int fileLineOf(int number) const;
  bool isBannerText(int number) const;
};

VTYCONF_API ReaderLineMap mapReaderLines(const std::string& text);

}  // namespace qxparser
