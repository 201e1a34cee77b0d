#include "NoteStaging.h"

#include <iostream>

#include "ConfigInput.h"

namespace vtycli {

bool StagedNote::stageConfig(const std::string& path, std::string& error) {
  std::string text;
  if (!readInput(path, text)) {
    error.clear();  // readInput has told the user already
    return false;
  }
  return stageConfigText(text, error);
}

void printNoteMessages(const std::string& name, const std::string& messages) {
  std::size_t start = 0;
  while (start < messages.size()) {
    std::size_t end = messages.find('\n', start);
    if (end == std::string::npos) end = messages.size();
    std::string line = messages.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) std::cerr << "vtyconf: " << name << ": " << line << "\n";
    start = end + 1;
  }
}

}  // namespace vtycli
