#include "ConsoleTwin.h"

#include <fstream>
#include <sstream>
#include <utility>
#include <vector>

#include "ConsoleFilter.h"
#include "config/QxParserUtil.h"

namespace vtycli {
namespace {

using qxparser::QxParserUtil;

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> out;
  for (std::string word; in >> word;) out.push_back(word);
  return out;
}

bool isConfigPrompt(const std::string& suffix) { return suffix.find("(config") != std::string::npos; }

// The top-level block of `config` whose head line is `head`, with its lines.
std::string blockOf(const std::string& config, const std::string& head) {
  std::istringstream in(config);
  std::string out;
  bool inside = false;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line[0] != ' ') inside = line == head;
    if (inside) out += line + "\n";
  }
  return out;
}

std::string firstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

// Where the `index`-th blank-separated word of `text` starts (its length
// when the text has fewer words).
size_t wordOffset(const std::string& text, size_t index) {
  size_t at = text.find_first_not_of(' ');
  for (; index > 0 && at != std::string::npos; --index) {
    at = text.find_first_not_of(' ', text.find(' ', at));
  }
  return at == std::string::npos ? text.size() : at;
}

constexpr const char* kInvalidInput = "% Invalid input detected at '^' marker.\n";

}  // namespace

ConsoleTwin::ConsoleTwin(std::string startup, std::string savePath)
    : mStartup(std::move(startup)), mSaved(mStartup), mSavePath(std::move(savePath)) {}

bool ConsoleTwin::answer(const std::string& line, const std::string& promptSuffix, std::string& out) {
  std::vector<std::string> words = wordsOf(line);
  if (words.empty()) return false;
  std::string exec = line;
  if (isConfigPrompt(promptSuffix)) {
    // Only `do` reaches the exec lines from a configuration mode.
    if (!abbreviates(words[0], "do", 2)) return false;
    exec = line.substr(line.find(words[0]) + words[0].size());
    words.erase(words.begin());
    if (words.empty()) return false;
  } else if (promptSuffix != "#") {
    return false;
  }
  const bool show = abbreviates(words[0], "show", 2) && words.size() >= 2;
  const bool showRun = show && abbreviates(words[1], "running-config", 2);
  const bool showStart = show && abbreviates(words[1], "startup-config", 4);
  const bool showChanges = show && abbreviates(words[1], "changes", 3);
  const bool write = abbreviates(words[0], "write", 2) &&
                     (words.size() == 1 || (words.size() == 2 && abbreviates(words[1], "memory", 3)));
  const bool copy = words.size() == 3 && abbreviates(words[0], "copy", 3) &&
                    abbreviates(words[1], "running-config", 3) && abbreviates(words[2], "startup-config", 3);
  if (!showRun && !showStart && !showChanges && !write && !copy) return false;
  mRefusedAt = std::string::npos;
  out = answerExec(exec);
  if (mRefusedAt != std::string::npos) mRefusedAt += line.size() - exec.size();
  return true;
}

std::string ConsoleTwin::answerExec(const std::string& line) {
  const std::vector<std::string> words = wordsOf(line);
  if (!abbreviates(words[0], "show", 2)) return writeMemory();
  const size_t bar = line.find('|');
  std::string text;
  if (abbreviates(words[1], "running-config", 2)) {
    text = showRunning(line.substr(0, bar));
  } else if (abbreviates(words[1], "startup-config", 4)) {
    text = mSaved.empty() ? "startup-config is not present\n" : mSaved;
  } else {
    text = changes();
  }
  if (bar == std::string::npos) return text;
  std::string filtered, error;
  if (applyConsoleFilter(line.substr(bar + 1), text, filtered, error)) return filtered;
  if (error + "\n" == kInvalidInput) mRefusedAt = bar + 1 + wordOffset(line.substr(bar + 1), 0);
  return error + "\n";
}

// `rest` is the show line before any filter: "show running-config" with an
// optional "interface NAME".
std::string ConsoleTwin::showRunning(const std::string& rest) {
  const std::vector<std::string> words = wordsOf(rest);
  if (words.size() == 2) return running();
  if (!abbreviates(words[2], "interface", 3)) return refuse(rest, 2);
  if (words.size() == 3) return "% Incomplete command.\n";
  if (words.size() > 4) return refuse(rest, 4);
  const std::string head = firstLine(QxParserUtil::deviceText("interface " + words[3] + "\n"));
  const std::string block = blockOf(running(), head);
  return block.empty() ? refuse(rest, 3) : block;
}

std::string ConsoleTwin::refuse(const std::string& line, size_t word) {
  mRefusedAt = wordOffset(line, word);
  return kInvalidInput;
}

std::string ConsoleTwin::writeMemory() {
  if (mSavePath.empty()) return "% No file to save to: start the console with --config or --save\n";
  const std::string config = running();
  std::ofstream file(mSavePath, std::ios::binary | std::ios::trunc);
  file << config;
  file.close();
  if (!file) return "% Error writing " + mSavePath + "\n";
  mSaved = config;
  return "Building configuration...\n[OK]\n";
}

void ConsoleTwin::record(const std::string& line, const std::string& promptSuffix, const std::string& afterSuffix) {
  if (!isConfigPrompt(promptSuffix)) {
    // The reader starts in the configuration; after an `end` (or an `exit`
    // at its top) it must be brought back as the person was. A line the
    // reader refuses would cost the changes behind it their undo commands,
    // so nothing but what was typed and this goes in.
    if (isConfigPrompt(afterSuffix) && !mSession.empty()) mSession += "configure terminal\n";
    return;
  }
  const std::vector<std::string> words = wordsOf(line);
  if (words.empty() || abbreviates(words[0], "do", 2)) return;
  mSession += line + "\n";
}

std::string ConsoleTwin::running() const { return QxParserUtil::mergeConfigCmdsDeviceText(mSession, mStartup); }

std::string ConsoleTwin::changes() const { return QxParserUtil::fallbackConfigCmdsDeviceText(mSession, mStartup, 0); }

std::string ConsoleTwin::hostName() const {
  std::istringstream in(running());
  std::string name = "Router";
  for (std::string line; std::getline(in, line);) {
    const std::vector<std::string> words = wordsOf(line);
    if (words.size() == 2 && words[0] == "hostname" && line[0] != ' ') name = words[1];
  }
  return name;
}

}  // namespace vtycli
