#include "config/ReaderLineMap.h"

#include <algorithm>
#include <string_view>

namespace qxparser {

namespace {

void splitReaderLines(const std::string& text, ReaderLineMap& map) {
  const size_t size = text.size();
  const size_t lines = static_cast<size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
  map.fileLines.reserve(lines);
  map.lineStarts.reserve(lines);
  int fileLine = 1;
  size_t start = 0;
  for (size_t i = 0; i <= size; ++i) {
    const char c = i < size ? text[i] : '\n';
    if (c != '\r' && c != '\n') continue;
    if (i > start) {
      map.fileLines.push_back(fileLine);
      map.lineStarts.push_back(start);
    }
    if (c == '\n') ++fileLine;
    start = i + 1;
  }
}

// The line that begins at `start`: up to the next carriage return or line
// feed, or to the end of the text.
std::string_view lineAt(const std::string& text, size_t start) {
  const size_t end = text.find_first_of("\r\n", start);
  return std::string_view(text).substr(start, end == std::string::npos ? std::string::npos : end - start);
}

// A banner's closing line with text before its delimiter ("*****^C").
bool closesWithText(std::string_view line, char delimiter) {
  const size_t mark = delimiter == '\0' ? std::string::npos : line.find(delimiter);
  return mark != std::string::npos && line.find_first_not_of(" \t") < mark;
}

// Banner text, followed the way the terminal does: a line that begins with
// "bann" names the delimiter (the character behind its second blank); a line
// inside a banner without the delimiter is text. So is the closing line when
// text stands before its delimiter: the device ends the banner there and
// keeps the text, while the terminal hands the line to the grammar, which
// cannot take it.
void markBannerText(const std::string& text, ReaderLineMap& map) {
  char delimiter = '\0';
  bool inside = false;
  map.bannerText.reserve(map.lineStarts.size());
  for (size_t index = 0; index < map.lineStarts.size(); ++index) {
    const std::string_view line = lineAt(text, map.lineStarts[index]);
    size_t lead = line.find_first_not_of(" \t");
    if (lead != std::string::npos && line.compare(lead, 4, "bann") == 0) {
      size_t first = line.find(' ');
      size_t second = first == std::string::npos ? std::string::npos : line.find(' ', first + 1);
      if (second != std::string::npos && second + 1 < line.size()) delimiter = line[second + 1];
    }
    if (inside && (delimiter == '\0' || line.find(delimiter) == std::string::npos)) {
      map.bannerText.push_back(true);
      continue;
    }
    map.bannerText.push_back(inside && closesWithText(line, delimiter));
    if (delimiter != '\0' && std::count(line.begin(), line.end(), delimiter) % 2 != 0) inside = !inside;
  }
}

}  // namespace

int ReaderLineMap::fileLineOf(int number) const {
  if (number < 1 || static_cast<size_t>(number) > fileLines.size()) return 0;
  return fileLines[static_cast<size_t>(number) - 1];
}

bool ReaderLineMap::isBannerText(int number) const {
  if (number < 1 || static_cast<size_t>(number) > bannerText.size()) return false;
  return bannerText[static_cast<size_t>(number) - 1];
}

std::string ReaderLineMap::readerLine(const std::string& text, size_t index) const {
  if (index >= lineStarts.size() || lineStarts[index] > text.size()) return std::string();
  return std::string(lineAt(text, lineStarts[index]));
}

ReaderLineMap mapReaderLines(const std::string& text) {
  ReaderLineMap map;
  splitReaderLines(text, map);
  markBannerText(text, map);
  return map;
}

}  // namespace qxparser
