#include "platform/StlHelper.h"

void StlHelper::replaceString(std::string& text, const std::string& from, const std::string& to) {
  if (from.empty()) return;
  size_t pos = 0;
  while ((pos = text.find(from, pos)) != std::string::npos) {
    text.replace(pos, from.size(), to);
    pos += to.size();
  }
}

void StlHelper::trimRight(std::string& text, const std::string& set) {
  size_t keep = text.find_last_not_of(set);
  text.erase(keep == std::string::npos ? 0 : keep + 1);
}

std::string StlHelper::GetFirstWord(std::string& text) {
  static const char* const kSeparators = " \t\r\n";
  size_t start = text.find_first_not_of(kSeparators);
  if (start == std::string::npos) {
    text.clear();
    return std::string();
  }
  size_t end = text.find_first_of(kSeparators, start);
  std::string word = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
  size_t next = end == std::string::npos ? std::string::npos : text.find_first_not_of(kSeparators, end);
  text.erase(0, next == std::string::npos ? text.size() : next);
  return word;
}
