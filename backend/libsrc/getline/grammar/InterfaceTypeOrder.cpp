#include "grammar/InterfaceTypeOrder.h"

#include <cctype>
#include <fstream>
#include <mutex>
#include <utility>
#include <vector>

#include "toolkit/TextWords.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

namespace qxparser {

namespace {


bool abbreviates(const std::string& word, const std::string& full) {
  return !word.empty() && word.size() <= full.size() && full.compare(0, word.size(), word) == 0;
}



}  // namespace

std::string InterfaceTypeOrder::preferredType(const std::string& word) {
  // The KeyFile of the loaded resource folder, read once per folder.
  static std::mutex lock;
  static std::string folder;
  static std::vector<std::string> types;
  std::lock_guard<std::mutex> guard(lock);
  const std::string current = QXFileSystem::GetSystemResourceFolder();
  if (current != folder) {
    folder = current;
    types.clear();
    std::ifstream in(folder + "files" + platform::kPathSeparator + "keyfiles" + platform::kPathSeparator +
                     "interfacefile.cfm");
    std::string row;
    while (std::getline(in, row)) {
      const std::string type = row.substr(0, row.find('|'));
      if (!type.empty() && type.find_first_of(" \t\r") == std::string::npos) types.push_back(type);
    }
  }
  std::string first;
  int count = 0;
  for (const std::string& type : types) {
    if (type == word) return std::string();
    if (abbreviates(word, type)) {
      if (count++ == 0) first = type;
    }
  }
  return count >= 2 ? first : std::string();
}

std::string InterfaceTypeOrder::withPreferredTypes(const std::string& line) {
  std::string rewritten = line;
  bool changed = false;
  const auto words = wordsWithOffsets(line);
  for (size_t i = words.size(); i-- > 0;) {
    const std::string& word = words[i].second;
    size_t digit = 0;
    while (digit < word.size() && !std::isdigit(static_cast<unsigned char>(word[digit]))) ++digit;
    if (digit == 0) continue;
    // "Po1", or "Po" followed by the number as a word of its own.
    const bool numberFollows = digit == word.size() && i + 1 < words.size() &&
                               std::isdigit(static_cast<unsigned char>(words[i + 1].second[0]));
    if (digit == word.size() && !numberFollows) continue;
    const std::string type = preferredType(loweredWord(word.substr(0, digit)));
    if (type.empty()) continue;
    rewritten.replace(words[i].first, digit, type);
    changed = true;
  }
  return changed ? rewritten : std::string();
}

}  // namespace qxparser
