// HintListing: the answers of QxParserUtil::hintCommand split into words.
//
// Each answer's text repeats the texts of the levels asked before it at its
// head, and the first one begins with the terminal's answer to "configure
// terminal". hintLevels keeps what each level adds (`text`) and splits it into
// "word<tabs>help" entries, where a help text too long for one line goes on
// in lines that begin with tabs. Pure function.
#pragma once

#include <string>
#include <vector>

#include "platform/Export.h"
#include "terminal/VTY.h"

namespace qxparser {

struct HintWord {
  std::string word;
  std::string help;
};

struct HintLevel {
  std::string prompt;           // the prompt suffix of the level, "(config-if)#"
  std::string text;             // the level's own listing, as the terminal wrote it
  std::vector<HintWord> words;  // the listing, entry by entry
};

VTYCONF_API std::vector<HintLevel> hintLevels(const std::vector<ConfigHint>& hints);

}  // namespace qxparser
