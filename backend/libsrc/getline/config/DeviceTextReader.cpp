// Reading a configuration with the lines as they were read.
#include "config/DeviceTextReader.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>

#include "config/MeaningText.h"
#include "config/QxParserUtil.h"
#include "config/TextLines.h"

namespace qxparser {

namespace {

bool isCommand(const CiscoCommandLine* record) {
  return record->getFlag() != CMD_TEXT && record->getTreeNodeSize() > 0;
}

// Whether the line leaves the banner state changed: the terminal toggles it on
// every delimiter character of a line.
bool togglesBanner(std::string_view line, char delimiter) {
  return std::count(line.begin(), line.end(), delimiter) % 2 == 1;
}

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
CiscoCommandLine* closedMode(const CiscoCommandLine* record, std::string_view line, CiscoCommandLine* last) {
  if (record->getFlag() != CMD_TEXT || last == nullptr) return nullptr;
  std::string text(line);
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
  attachDataLines(records, keepRefused, nullptr);
}

void DeviceTextReader::attachDataLines(const std::vector<CiscoCommandLine*>& records, bool keepRefused,
                                       const TextLines* lines) {
  // Each record's line: the last line of its raw text, or where the records
  // have none, the line of its number in `lines`.
  const auto lineOf = [lines](const CiscoCommandLine* record) {
    if (lines == nullptr) return meaning::lastLine(record->getRawText());
    std::string_view line;
    return lines->find(record->getLineNo(), line) ? line : std::string_view();
  };
  CiscoCommandLine* lastCommand = nullptr;
  CiscoCommandLine* banner = nullptr;
  char delimiter = '\0';
  for (CiscoCommandLine* record : records) {
    std::string_view line = lineOf(record);
    if (banner != nullptr) {
      // Body and closing line go with the banner command; an empty line
      // inside a banner is part of its text, elsewhere it is not kept.
      adopt(banner, record);
      if (lines != nullptr && !line.empty()) {
        // The empty lines before it are the only raw text such a reading keeps.
        const int empty = lines->emptyBefore(record->getLineNo());
        if (empty > 0) record->setRawText(std::string(static_cast<size_t>(empty), '\n').append(line));
      }
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
    if (CiscoCommandLine* closed = closedMode(record, line, lastCommand)) {
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
  keepTopLevel(all, commands);
}

void DeviceTextReader::settleByLines(const TextLines& lines, std::vector<CiscoCommandLine*>& all,
                                     std::vector<CiscoCommandLine*>& commands, bool keepRefused) {
  attachDataLines(all, keepRefused, &lines);
  keepTopLevel(all, commands);
}

void DeviceTextReader::keepTopLevel(std::vector<CiscoCommandLine*>& all, std::vector<CiscoCommandLine*>& commands) {
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
