// Reading a configuration with the lines as they were read.
#include "config/DeviceTextReader.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

#include "config/MeaningText.h"
#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

// Where a non-empty line stands in the text, and how many empty lines stood
// before it.
struct ReadLine {
  size_t start = 0;
  size_t length = 0;
  int emptyBefore = 0;
};

// Where the line that starts at `from` ends: at the first carriage return or
// line feed, else at the end. Two searches for one character each (a search
// for either looks every character up in a set).
size_t lineEnd(const std::string& text, size_t from) {
  size_t end = text.find('\n', from);
  if (end == std::string::npos) end = text.size();
  const void* back = std::memchr(text.data() + from, '\r', end - from);
  return back == nullptr ? end : static_cast<size_t>(static_cast<const char*>(back) - text.data());
}

// The non-empty lines of `text` one after the other, numbered as the
// terminal numbers them (cut at carriage returns and line feeds, empty pieces
// dropped), each with the count of empty lines that stood before it. Walks
// on from the last line asked for, so that asking in line order reads the
// text once and keeps no list of its lines.
class LineWalk {
 public:
  explicit LineWalk(const std::string& text) : mText(text) {}

  // The line numbered `number` (from 1); false past the last line. Walks on
  // from the last line found; a smaller number starts over.
  bool find(int number, ReadLine& line) {
    if (number < mNumber) {
      mPosition = 0;
      mNumber = 0;
    }
    while (mNumber < number) {
      if (!next()) return false;
    }
    line = mLine;
    return mNumber > 0;
  }

 private:
  bool next() {
    int breaks = 0;
    int returns = 0;
    while (mPosition < mText.size()) {
      const char c = mText[mPosition];
      if (c == '\n' || c == '\r') {
        (c == '\n' ? breaks : returns)++;
        ++mPosition;
        continue;
      }
      const size_t end = lineEnd(mText, mPosition);
      mLine.start = mPosition;
      mLine.length = end - mPosition;
      mLine.emptyBefore = mNumber == 0 ? 0 : std::max(0, std::max(breaks, returns) - 1);
      ++mNumber;
      mPosition = end;
      return true;
    }
    return false;
  }

  const std::string& mText;
  size_t mPosition = 0;
  int mNumber = 0;
  ReadLine mLine;
};

bool isCommand(const CiscoCommandLine* record) {
  return record->getFlag() != CMD_TEXT && record->getTreeNodeSize() > 0;
}

// Whether the line leaves the banner state changed: the terminal toggles it on
// every delimiter character of a line.
bool togglesBanner(std::string_view line, char delimiter) {
  return std::count(line.begin(), line.end(), delimiter) % 2 == 1;
}

std::string lastLine(const std::string& raw) { return std::string(meaning::lastLine(raw)); }

// Makes `record` a child of `owner`, in line order among the children (the
// owner may have taken children read after it already).
void adopt(CiscoCommandLine* owner, CiscoCommandLine* record) {
  if (record->getParentCommand() != nullptr) return;
  record->setParentCommand(owner, false);
  std::vector<CiscoCommandLine*>& children = owner->getChildCommands();
  const auto at = std::find_if(children.begin(), children.end(), [record](const CiscoCommandLine* child) {
    return child->getLineNo() > record->getLineNo();
  });
  children.insert(at, record);
}

// A command behind which the device takes lines of data until "quit": a
// certificate of a chain, the key of a public-key entry.
bool takesData(const CiscoCommandLine* record) {
  const std::string& text = record->getOriginalCmd();
  return text.compare(0, 12, "certificate ") == 0 || text.compare(0, 11, "key-string ") == 0 ||
         text.compare(0, 9, "key-hash ") == 0;
}

}  // namespace

char DeviceTextReader::bannerDelimiter(const std::string& line) {
  const size_t lead = line.find_first_not_of(" \t");
  if (lead == std::string::npos || line.compare(lead, 7, "banner ") != 0) return '\0';
  const size_t first = line.find(' ');
  const size_t second = first == std::string::npos ? std::string::npos : line.find(' ', first + 1);
  if (second == std::string::npos || second + 1 >= line.size()) return '\0';
  return line[second + 1];
}

void DeviceTextReader::attachRawText(const std::string& text, const std::vector<CiscoCommandLine*>& records) {
  // Records come in line order: one walk over the text.
  LineWalk walk(text);
  for (CiscoCommandLine* record : records) {
    const int number = record->getLineNo();
    ReadLine line;
    if (number < 1 || !walk.find(number, line)) continue;
    if (line.emptyBefore == 0) {
      record->setRawText(text.substr(line.start, line.length));
      continue;
    }
    std::string raw;
    raw.reserve(static_cast<size_t>(line.emptyBefore) + line.length);
    raw.append(static_cast<size_t>(line.emptyBefore), '\n');
    raw.append(text, line.start, line.length);
    record->setRawText(std::move(raw));
  }
}

// The mode that an "exit-address-family" line (or one of its kind) closes:
// the innermost command around `last` that opens a mode named by the line's
// last word (family, interface, topology, policy, session). The line then
// stays with that mode, so that it is written back where it stood.
CiscoCommandLine* closedMode(const CiscoCommandLine* record, CiscoCommandLine* last) {
  if (record->getFlag() != CMD_TEXT || last == nullptr) return nullptr;
  std::string text = lastLine(record->getRawText());
  text.erase(0, text.find_first_not_of(" \t"));
  if (text.compare(0, 5, "exit-") != 0) return nullptr;
  const std::string named = text.substr(text.rfind('-') + 1);
  for (CiscoCommandLine* mode = last; mode != nullptr; mode = mode->getParentCommand()) {
    if (mode->hasFlags(CMDBIT_OPENS_MODE) && mode->getLevel() > 0 &&
        mode->getOriginalCmd().find(named) != std::string::npos) {
      return mode;
    }
  }
  return nullptr;
}

void DeviceTextReader::attachDataLines(const std::vector<CiscoCommandLine*>& records, bool keepRefused) {
  CiscoCommandLine* lastCommand = nullptr;
  CiscoCommandLine* banner = nullptr;
  char delimiter = '\0';
  for (CiscoCommandLine* record : records) {
    std::string_view line = meaning::lastLine(record->getRawText());
    if (banner != nullptr) {
      // Body and closing line go with the banner command; an empty line
      // inside a banner is part of its text, elsewhere it is not kept.
      adopt(banner, record);
      if (togglesBanner(line, delimiter)) banner = nullptr;
      continue;
    }
    // The empty lines before a command are not kept with it. (Setting the
    // text again leaves the record as read: nothing changed it since.)
    const std::string& raw = record->getRawText();
    if (!raw.empty() && raw[0] == '\n') {
      const size_t text = raw.find_first_not_of('\n');
      record->setRawText(text == std::string::npos ? std::string() : raw.substr(text));
      line = meaning::lastLine(record->getRawText());
    }
    if (record->getFlag() != CMD_TEXT && record->getParentCommand() == nullptr && record->getLevel() > 0 &&
        lastCommand != nullptr && (keepRefused || takesData(lastCommand))) {
      adopt(lastCommand, record);
      continue;
    }
    if (CiscoCommandLine* closed = closedMode(record, lastCommand)) {
      adopt(closed, record);
      continue;
    }
    if (!isCommand(record)) continue;
    lastCommand = record;
    // Only a line that holds "banner " can open one.
    delimiter = line.find("banner ") == std::string_view::npos ? '\0' : bannerDelimiter(std::string(line));
    if (delimiter != '\0' && togglesBanner(line, delimiter)) banner = record;
  }
}

bool DeviceTextReader::read(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                            std::vector<RefusedLine>* refused, bool keepRefused, bool byIndent) {
  std::vector<CiscoCommandLine*> all;
  std::vector<RefusedLine> unwanted;
  bool ok = false;
  try {
    if (byIndent) {
      ok = TypedTextReader::readByIndent(text, all, refused ? *refused : unwanted);
    } else {
      ok = QxParserUtil::getCmdInfoTyped(text, all, refused ? *refused : unwanted);
    }
  } catch (...) {
    QxParserUtil::deleteCommands(all);
    throw;
  }
  settle(text, all, commands, keepRefused);
  return ok;
}

void DeviceTextReader::settle(const std::string& text, std::vector<CiscoCommandLine*>& all,
                              std::vector<CiscoCommandLine*>& commands, bool keepRefused) {
  try {
    attachRawText(text, all);
  } catch (...) {
    QxParserUtil::deleteCommands(all);
    throw;
  }
  attachDataLines(all, keepRefused);
  for (CiscoCommandLine* record : all) {
    if (record->getParentCommand() == nullptr && record->getLevel() == 0) commands.push_back(record);
  }
  // A record refused inside a mode before any command was read has nobody to
  // hold it.
  for (CiscoCommandLine* record : all) {
    if (record->getParentCommand() == nullptr && record->getLevel() != 0) delete record;
  }
  all.clear();
}

}  // namespace qxparser
