#include "config/HintListing.h"

#include <sstream>

namespace qxparser {

namespace {

std::vector<HintWord> splitListing(const std::string& text) {
  std::vector<HintWord> words;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty()) continue;
    if (line[0] == '\t') {
      size_t start = line.find_first_not_of('\t');
      if (!words.empty() && start != std::string::npos) words.back().help += " " + line.substr(start);
      continue;
    }
    size_t tab = line.find('\t');
    HintWord entry;
    entry.word = line.substr(0, tab);
    if (tab != std::string::npos) {
      size_t start = line.find_first_not_of('\t', tab);
      if (start != std::string::npos) entry.help = line.substr(start);
    }
    while (!entry.help.empty() && entry.help.back() == ' ') entry.help.pop_back();
    words.push_back(entry);
  }
  return words;
}

// What the terminal answered when the query brought it into configuration
// mode; it stands at the head of the first answer and is no word.
const char kConfigureAnswer[] = "Enter configuration commands, one per line.\n";

}  // namespace

std::vector<HintLevel> hintLevels(const std::vector<ConfigHint>& hints) {
  std::vector<HintLevel> levels;
  std::string before;
  for (const ConfigHint& hint : hints) {
    std::string text = hint.hintText;
    if (!before.empty() && text.compare(0, before.size(), before) == 0) text = text.substr(before.size());
    if (levels.empty() && text.compare(0, sizeof kConfigureAnswer - 1, kConfigureAnswer) == 0)
      text = text.substr(sizeof kConfigureAnswer - 1);
    levels.push_back(HintLevel{hint.prompt, text, splitListing(text)});
    before = hint.hintText;
  }
  return levels;
}

}  // namespace qxparser
