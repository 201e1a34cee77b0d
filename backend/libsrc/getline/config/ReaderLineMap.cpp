#include "config/ReaderLineMap.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace qxparser {

namespace {

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
class BannerTracker {
 public:
  // Whether `line`, the next non-empty line, is banner text.
  bool isText(std::string_view line) {
    size_t lead = 0;
    while (lead < line.size() && (line[lead] == ' ' || line[lead] == '\t')) ++lead;
    if (line.size() - lead >= 4 && line.compare(lead, 4, "bann") == 0) {
      size_t first = line.find(' ');
      size_t second = first == std::string::npos ? std::string::npos : line.find(' ', first + 1);
      if (second != std::string::npos && second + 1 < line.size()) mDelimiter = line[second + 1];
    }
    // Most lines lack the delimiter: counted only from where it first stands.
    const size_t mark = mDelimiter == '\0' ? std::string::npos : line.find(mDelimiter);
    if (mInside && mark == std::string::npos) return true;
    const bool text = mInside && closesWithText(line, mDelimiter);
    if (mark != std::string::npos && std::count(line.begin() + mark, line.end(), mDelimiter) % 2 != 0) {
      mInside = !mInside;
    }
    return text;
  }

 private:
  char mDelimiter = '\0';
  bool mInside = false;
};

// One pass over the text: the non-empty pieces between carriage returns and
// line feeds, with their file lines and banner marks.
void splitReaderLines(const std::string& text, ReaderLineMap& map) {
  const size_t size = text.size();
  const size_t lines = static_cast<size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
  map.fileLines.reserve(lines);
  map.lineStarts.reserve(lines);
  map.bannerText.reserve(lines);
  BannerTracker banner;
  const char* data = text.data();
  int fileLine = 1;
  size_t start = 0;
  for (;;) {
    const size_t end = readerPieceEnd(text, start);
    if (end > start) {
      map.fileLines.push_back(fileLine);
      map.lineStarts.push_back(start);
      map.bannerText.push_back(banner.isText(std::string_view(data + start, end - start)));
    }
    if (end >= size) break;
    if (data[end] == '\n') ++fileLine;
    start = end + 1;
  }
}

std::string_view lineAt(const std::string& text, size_t start) {
  return std::string_view(text).substr(start, readerPieceEnd(text, start) - start);
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

size_t readerPieceEnd(const std::string& text, size_t start) {
  const char* data = text.data();
  const size_t size = text.size();
  if (start >= size) return size;
  const void* feed = std::memchr(data + start, '\n', size - start);
  const size_t end = feed ? static_cast<size_t>(static_cast<const char*>(feed) - data) : size;
  const void* ret = std::memchr(data + start, '\r', end - start);
  return ret ? static_cast<size_t>(static_cast<const char*>(ret) - data) : end;
}

ReaderLineMap mapReaderLines(const std::string& text) {
  ReaderLineMap map;
  splitReaderLines(text, map);
  return map;
}

}  // namespace qxparser
