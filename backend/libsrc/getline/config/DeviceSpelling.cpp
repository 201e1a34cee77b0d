// Device spelling of one command.
#include "config/DeviceSpelling.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <string_view>
#include <vector>

#include "grammar/ParserTreeNode.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/ToolkitText.h"

namespace qxparser {

namespace {

const char* const kInterfaceKeyFile = "&interfacefile.cfm";

struct DisplayTable {
  std::string folder;
  std::map<std::string, std::map<std::string, std::string>> files;
  // The folder while a Batch lives.
  int batches = 0;
  std::string pinned;
};

DisplayTable& table() {
  static DisplayTable instance;
  return instance;
}

// The rows of files/display/<name> ("word|Display"), read once per resource
// folder; empty when the file is missing.
const std::map<std::string, std::string>& displayNames(const std::string& name) {
  DisplayTable& current = table();
  std::string looked;
  const std::string& folder =
      current.batches > 0 ? current.pinned : (looked = QXFileSystem::GetSystemResourceFolder());
  if (current.folder != folder) {
    current.files.clear();
    current.folder = folder;
  }
  const auto loaded = current.files.find(name);
  if (loaded != current.files.end()) return loaded->second;
  std::map<std::string, std::string>& names = current.files[name];
  std::ifstream in(folder + "files" + platform::kPathSeparator + "display" + platform::kPathSeparator + name);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const size_t bar = line.find('|');
    if (line.empty() || line[0] == '#' || bar == std::string::npos) continue;
    names[ParserToolCase::string2Lower(line.substr(0, bar))] = line.substr(bar + 1);
  }
  return names;
}

// The words of `text` as ParserToolCase::splitString cuts them (blanks, tabs
// and line ends part them; a NUL byte ends the text), as views into it.
void words(std::string_view text, std::vector<std::string_view>& out) {
  out.clear();
  text = text.substr(0, text.find('\0'));
  auto separator = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  size_t at = 0;
  for (;;) {
    while (at < text.size() && separator(text[at])) ++at;
    if (at == text.size()) return;
    const size_t begin = at;
    while (at < text.size() && !separator(text[at])) ++at;
    out.push_back(text.substr(begin, at - begin));
  }
}

std::string lower(const std::string& text) { return ParserToolCase::string2Lower(text); }

// `key` becomes `word` in lower case; its storage is reused.
void lowerInto(std::string_view word, std::string& key) {
  key.assign(word.data(), word.size());
  for (char& c : key) c = toolkit_detail::lowerChar(c);
}

// Whether `word` in lower case is `key` (which is in lower case).
bool lowersTo(std::string_view word, std::string_view key) {
  if (word.size() != key.size()) return false;
  for (size_t i = 0; i < word.size(); ++i) {
    if (toolkit_detail::lowerChar(word[i]) != key[i]) return false;
  }
  return true;
}

bool holds(const std::vector<std::string>& words, const std::string& word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

// The words that the record's path (its nested option commands included)
// matched on the interface KeyFile, and those it matched as literal keywords,
// in lower case.
void collectWords(const CiscoCommandLine& record, std::vector<std::string>& interfaces,
                  std::vector<std::string>& keywords, std::string& key) {
  static const std::string interfaceKeyFile = kInterfaceKeyFile;
  for (const CmdPathEntry& entry : record.getTreeNodes()) {
    if (entry.node == nullptr) continue;
    const bool isInterface = entry.node->mKeywords.count(interfaceKeyFile) != 0;
    for (std::string_view word : entry.words) {
      lowerInto(word, key);
      if (isInterface && !holds(interfaces, key)) interfaces.push_back(key);
      if (entry.node->mKeywords.count(key) != 0 && !holds(keywords, key)) keywords.push_back(key);
    }
  }
  for (const auto& sub : record.getSubCommands()) collectWords(*sub.second, interfaces, keywords, key);
}

std::string_view typedLine(const std::string& raw) {
  const size_t cut = raw.rfind('\n');
  return cut == std::string::npos ? std::string_view(raw) : std::string_view(raw).substr(cut + 1);
}

bool startsWithDigit(std::string_view word) {
  return !word.empty() && std::isdigit(static_cast<unsigned char>(word[0])) != 0;
}

}  // namespace

std::string DeviceSpelling::interfaceType(const std::string& word) {
  static const std::string file = "interfacefile.display";
  const auto& names = displayNames(file);
  const auto found = names.find(lower(word));
  return found == names.end() ? word : found->second;
}

void DeviceSpelling::reload() {
  DisplayTable& current = table();
  current.folder.clear();
  current.files.clear();
}

DeviceSpelling::Batch::Batch() {
  DisplayTable& current = table();
  if (current.batches++ == 0) current.pinned = QXFileSystem::GetSystemResourceFolder();
}

DeviceSpelling::Batch::~Batch() { --table().batches; }

std::string DeviceSpelling::spell(const CiscoCommandLine& record) {
  std::vector<std::string_view> full;
  std::vector<std::string_view> typed;
  words(record.getOriginalCmd(), full);
  words(typedLine(record.getRawText()), typed);
  std::string out;
  out.reserve(record.getOriginalCmd().size());
  size_t start = 0;
  if (!full.empty() && full[0] == "no") {
    out = "no";
    start = 1;
  }
  // The typed spelling of each word, used once each, in typed order.
  size_t typedFrom = !typed.empty() && lowersTo(typed[0], "no") ? 1 : 0;
  std::vector<bool> used(typed.size(), false);
  std::vector<std::string> interfaceWords;
  std::vector<std::string> keywordWords;
  std::string key;
  collectWords(record, interfaceWords, keywordWords, key);
  static const std::string keywordFile = "keywords.display";
  const auto& keywordNames = displayNames(keywordFile);
  for (size_t j = start; j < full.size(); ++j) {
    if (!out.empty()) out += ' ';
    lowerInto(full[j], key);
    if (j + 1 < full.size() && startsWithDigit(full[j + 1]) && holds(interfaceWords, key)) {
      out += interfaceType(std::string(full[j]));
      out += full[j + 1];
      ++j;
      continue;
    }
    if (holds(keywordWords, key)) {
      const auto name = keywordNames.find(key);
      if (name != keywordNames.end()) {
        out += name->second;
        continue;
      }
    }
    std::string_view word = full[j];
    for (size_t i = typedFrom; i < typed.size(); ++i) {
      if (!used[i] && lowersTo(typed[i], key)) {
        word = typed[i];
        used[i] = true;
        break;
      }
    }
    out += word;
  }
  return out;
}

}  // namespace qxparser
