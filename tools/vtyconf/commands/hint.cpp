// vtyconf hint CONFIG LINE: the words that may follow LINE at the end of a
// configuration, level by level, as the device's help would list them.
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "config/QxParserUtil.h"
#include "terminal/VTY.h"

namespace vtycli {
namespace {

struct HintOptions {
  std::string config;
  std::string line;
  bool json = false;
};

struct HintWord {
  std::string word;
  std::string help;
};

// The help listing of one level: "word<tabs>help" lines, where a help text
// too long for one line goes on in lines that begin with tabs.
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

// Each answer's text holds the texts of the levels asked before it at its
// head; what a level adds is what follows them.
std::vector<std::string> ownTexts(const std::vector<qxparser::ConfigHint>& hints) {
  std::vector<std::string> texts;
  std::string before;
  for (const qxparser::ConfigHint& hint : hints) {
    std::string text = hint.hintText;
    if (!before.empty() && text.compare(0, before.size(), before) == 0) text = text.substr(before.size());
    if (texts.empty() && text.compare(0, sizeof kConfigureAnswer - 1, kConfigureAnswer) == 0)
      text = text.substr(sizeof kConfigureAnswer - 1);
    texts.push_back(text);
    before = hint.hintText;
  }
  return texts;
}

int runHint(const HintOptions& options) {
  std::string text;
  if (!readInput(options.config, text)) return 2;
  if (!loadResources()) return 2;
  std::vector<qxparser::ConfigHint> hints;
  std::string line = options.line;
  qxparser::QxParserUtil::hintCommand(text, line, hints);
  std::vector<std::string> texts = ownTexts(hints);
  if (options.json) {
    nlohmann::json out = nlohmann::json::array();
    for (size_t i = 0; i < hints.size(); ++i) {
      nlohmann::json level;
      level["prompt"] = hints[i].prompt;
      nlohmann::json words = nlohmann::json::array();
      for (const HintWord& word : splitListing(texts[i]))
        words.push_back({{"word", word.word}, {"help", word.help}});
      level["words"] = words;
      out.push_back(level);
    }
    std::cout << out.dump(2) << "\n";
  } else {
    for (size_t i = 0; i < hints.size(); ++i) {
      std::cout << hints[i].prompt << "\n";
      std::istringstream in(texts[i]);
      std::string listed;
      while (std::getline(in, listed)) {
        if (!listed.empty()) std::cout << "  " << listed << "\n";
      }
    }
  }
  qxparser::QxParserUtil::destroyParserResource();
  return hints.empty() ? 1 : 0;
}

CommandRegistration registration{CommandSpec{
    "hint", "next words after LINE at the end of a configuration",
    [](CLI::App& sub, const GlobalOptions&) -> std::function<int()> {
      auto options = std::make_shared<HintOptions>();
      sub.add_option("CONFIG", options->config, "the configuration ('-' for standard input)")->required();
      sub.add_option("LINE", options->line, "the words typed so far (may be empty)")->required();
      sub.add_flag("--json", options->json, "print the answers as JSON: [{prompt, words: [{word, help}]}]");
      sub.footer(
          "Exit code 1 when no level knows a next word.\n"
          "Example: vtyconf hint router1.cfg 'ip address'");
      return [options]() { return runHint(*options); };
    }}};

}  // namespace
}  // namespace vtycli
