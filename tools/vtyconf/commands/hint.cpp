// vtyconf hint CONFIG LINE: the words that may follow LINE at the end of a
// configuration, level by level, as the device's help would list them.
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>

#include "CommandRegistry.h"
#include "ConfigInput.h"
#include "config/HintListing.h"
#include "config/QxParserUtil.h"
#include "terminal/VTY.h"

namespace vtycli {
namespace {

struct HintOptions {
  std::string config;
  std::string line;
  bool json = false;
};

int runHint(const HintOptions& options) {
  std::string text;
  if (!readInput(options.config, text)) return 2;
  if (!loadResources()) return 2;
  std::vector<qxparser::ConfigHint> hints;
  std::string line = options.line;
  // Every level is asked on its own: the specified hintCommand stops at the
  // first level that knows no next word.
  qxparser::QxParserUtil::hintCommandEachLevel(text, line, hints);
  const std::vector<qxparser::HintLevel> levels = qxparser::hintLevels(hints);
  if (options.json) {
    nlohmann::json out = nlohmann::json::array();
    for (size_t i = 0; i < hints.size(); ++i) {
      nlohmann::json level;
      level["prompt"] = hints[i].prompt;
      nlohmann::json words = nlohmann::json::array();
      for (const qxparser::HintWord& word : levels[i].words)
        words.push_back({{"word", word.word}, {"help", word.help}});
      level["words"] = words;
      out.push_back(level);
    }
    std::cout << out.dump(2) << "\n";
  } else {
    for (size_t i = 0; i < hints.size(); ++i) {
      std::cout << hints[i].prompt << "\n";
      std::istringstream in(levels[i].text);
      std::string listed;
      while (std::getline(in, listed)) {
        if (!listed.empty()) std::cout << "  " << listed << "\n";
      }
    }
  }
  qxparser::QxParserUtil::destroyParserResource();
  if (hints.empty()) std::cerr << "vtyconf: nothing can follow \"" << options.line << "\" at any level\n";
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
