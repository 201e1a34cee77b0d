// Device spelling of one command.
#include "config/DeviceSpelling.h"

#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <vector>

#include "grammar/ParserTreeNode.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {

namespace {

const char* const kInterfaceKeyFile = "&interfacefile.cfm";

struct DisplayTable {
  std::string folder;
  std::map<std::string, std::map<std::string, std::string>> files;
};

DisplayTable& table() {
  static DisplayTable instance;
  return instance;
}

// The rows of files/display/<name> ("word|Display"), read once per resource
// folder; empty when the file is missing.
const std::map<std::string, std::string>& displayNames(const std::string& name) {
  DisplayTable& current = table();
  const std::string folder = QXFileSystem::GetSystemResourceFolder();
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

std::vector<std::string> words(const std::string& text) {
  std::vector<std::string> out;
  ParserToolCase::splitString(text, " \t\r\n", out);
  return out;
}

std::string lower(const std::string& text) { return ParserToolCase::string2Lower(text); }

// The words that the record's path (its nested option commands included)
// matched on the interface KeyFile, and those it matched as literal keywords.
void collectWords(const CiscoCommandLine& record, std::set<std::string>& interfaces,
                  std::set<std::string>& keywords) {
  for (const CmdPathEntry& entry : record.getTreeNodes()) {
    if (entry.node == nullptr) continue;
    const bool isInterface = entry.node->mKeywords.count(kInterfaceKeyFile) != 0;
    for (const std::string& word : entry.words) {
      const std::string key = lower(word);
      if (isInterface) interfaces.insert(key);
      if (entry.node->mKeywords.count(key) != 0) keywords.insert(key);
    }
  }
  for (const auto& sub : record.getSubCommands()) collectWords(*sub.second, interfaces, keywords);
}

std::string typedLine(const std::string& raw) {
  const size_t cut = raw.rfind('\n');
  return cut == std::string::npos ? raw : raw.substr(cut + 1);
}

bool startsWithDigit(const std::string& word) {
  return !word.empty() && std::isdigit(static_cast<unsigned char>(word[0])) != 0;
}

}  // namespace

std::string DeviceSpelling::interfaceType(const std::string& word) {
  const auto& names = displayNames("interfacefile.display");
  const auto found = names.find(lower(word));
  return found == names.end() ? word : found->second;
}

void DeviceSpelling::reload() { table() = DisplayTable(); }

std::string DeviceSpelling::spell(const CiscoCommandLine& record) {
  std::vector<std::string> full = words(record.getOriginalCmd());
  std::vector<std::string> typed = words(typedLine(record.getRawText()));
  std::string out;
  size_t start = 0;
  if (!full.empty() && full[0] == "no") {
    out = "no";
    start = 1;
  }
  if (!typed.empty() && lower(typed[0]) == "no") typed.erase(typed.begin());
  // The typed spelling of each word, used once each, in typed order.
  std::multimap<std::string, size_t> typedByLower;
  for (size_t i = 0; i < typed.size(); ++i) typedByLower.emplace(lower(typed[i]), i);
  std::set<std::string> interfaceWords;
  std::set<std::string> keywordWords;
  collectWords(record, interfaceWords, keywordWords);
  const auto& keywordNames = displayNames("keywords.display");
  for (size_t j = start; j < full.size(); ++j) {
    std::string word = full[j];
    const std::string key = lower(word);
    if (interfaceWords.count(key) && j + 1 < full.size() && startsWithDigit(full[j + 1])) {
      word = interfaceType(word) + full[j + 1];
      ++j;
    } else if (keywordWords.count(key) && keywordNames.count(key)) {
      word = keywordNames.at(key);
    } else {
      const auto match = typedByLower.find(key);
      if (match != typedByLower.end()) {
        word = typed[match->second];
        typedByLower.erase(match);
      }
    }
    if (!out.empty()) out += ' ';
    out += word;
  }
  return out;
}

}  // namespace qxparser
