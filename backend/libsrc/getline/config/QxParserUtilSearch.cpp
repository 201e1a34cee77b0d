// Searches of a configuration file: the section or the lines of one command,
// found by replaying the file through a scratch terminal so that the file is
// compared in the terminal's own full-word form.
#include <fstream>
#include <memory>
#include <sstream>

#include "config/QxParserUtil.h"
#include "platform/StlHelper.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {

namespace {

// The file as lines, split at newline; the carriage return of a CR LF file is
// dropped as a text stream would. False when the file cannot be opened.
bool readLines(const std::string& path, std::vector<std::string>& lines) {
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  return true;
}

// A terminal in configuration mode that owns every record it hands out.
class SearchTerminal {
 public:
  explicit SearchTerminal(bool cliMode, const char* configure) : mVty("hostName", cliMode) {
    mVty.parse("enable\n", true, nullptr);
    mVty.parse(configure, true, nullptr);
  }
  ~SearchTerminal() {
    // Records of all levels stand in the vector; children are not freed
    // through their parents, so each record goes exactly once.
    for (CiscoCommandLine* record : mRecords) delete record;
  }
  SearchTerminal(const SearchTerminal&) = delete;
  SearchTerminal& operator=(const SearchTerminal&) = delete;

  // The record made for the line, or null when the line gave none.
  CiscoCommandLine* feed(const std::string& line) {
    const size_t before = mRecords.size();
    std::string errorText;
    int errorLine = 0;
    mVty.getComLineInfo(line, mRecords, errorText, errorLine, true);
    return mRecords.size() > before ? mRecords.back() : nullptr;
  }

 private:
  VTY mVty;
  std::vector<CiscoCommandLine*> mRecords;
};

std::string firstWord(const std::string& text) {
  const size_t start = text.find_first_not_of(" \t");
  if (start == std::string::npos) return std::string();
  const size_t end = text.find_first_of(" \t\r\n", start);
  return text.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

}  // namespace

void QxParserUtil::GetCmdsFromConfig(const std::string& configFile, std::string& result, const std::string& key,
                                     SEARCHTYPE type) {
  if (configFile.empty() || key.empty()) return;
  std::vector<std::string> words;
  ParserToolCase::splitString(key, " \t\n", words);
  std::string normalised;
  for (const std::string& word : words) {
    if (!normalised.empty()) normalised += ' ';
    normalised += word;
  }

  std::string searchKey;
  {
    SearchTerminal terminal(true, "configure terminal \n");
    CiscoCommandLine* record = terminal.feed(normalised);
    if (record) searchKey = record->getOriginalCmd();
  }
  if (!searchKey.empty() && searchKey.back() == '\n') searchKey.pop_back();
  if (!searchKey.empty() && searchKey.back() == ' ') searchKey.pop_back();

  const int kind = static_cast<int>(type);
  if (kind >= 0 && kind <= 2) {
    GetSpecialCmdsFromConfig(configFile, result, searchKey, type);
  } else if (kind >= 4 && kind <= 6) {
    GetAclCmdsFromConfig(configFile, result, searchKey, type);
  }
}

void QxParserUtil::GetSpecialCmdsFromConfig(const std::string& configFile, std::string& result,
                                            const std::string& key, SEARCHTYPE type) {
  if (configFile.empty() || key.empty()) return;
  std::vector<std::string> lines;
  if (!readLines(configFile, lines)) return;

  SearchTerminal terminal(false, "configure\n");
  const size_t blank = key.find(' ');
  const std::string preFilter = key.substr(0, blank);
  const bool keyHasDot = key.find('.') != std::string::npos;

  bool inBanner = false;
  char delimiter = '\0';
  size_t next = 0;
  // A line that ended a section is looked at again as a candidate.
  bool pending = false;
  std::string pendingLine;
  std::string pendingLower;

  while (pending || next < lines.size()) {
    std::string line;
    std::string lower;
    if (pending) {
      pending = false;
      line.swap(pendingLine);
      lower.swap(pendingLower);
    } else {
      line = lines[next++];
      if (line.empty()) continue;
      ParserToolCase::removeMore(line);
      lower = ParserToolCase::string2Lower(line);

      if (inBanner) {
        if (!lower.empty() && lower[0] == delimiter) inBanner = false;
        continue;
      }
      if (ParserToolCase::strInCmd(lower, "banner")) {
        std::vector<std::string> parts;
        ParserToolCase::splitString(lower, " \t\r\n", parts);
        // Fewer than three words keep the delimiter of the banner before.
        if (parts.size() >= 3) delimiter = parts[2][0];
        inBanner = true;
        continue;
      }
    }

    if (!ParserToolCase::strInCmd(lower, preFilter)) continue;
    CiscoCommandLine* record = terminal.feed(lower);
    if (!record) continue;
    const std::string fullText = record->getOriginalCmd();
    bool match = ParserToolCase::strInCmd(fullText, key);
    if (!match && keyHasDot && firstWord(lower) == "interface") match = ParserToolCase::strInCmd(lower, key);
    if (!match) continue;

    if (type == SEARCH_LINE) {
      result += line + "\n";
      continue;
    }
    if (type == SEARCH_SECTION) result += fullText;
    const int headLevel = record->getLevel();
    while (next < lines.size()) {
      std::string inner = lines[next++];
      if (inner.empty()) continue;
      ParserToolCase::removeMore(inner);
      std::string innerLower = ParserToolCase::string2Lower(inner);
      if (ParserToolCase::strInCmd(innerLower, "!")) continue;
      if (ParserToolCase::strInCmd(innerLower, "version")) {
        result += "  " + innerLower + "\n";
        continue;
      }
      CiscoCommandLine* innerRecord = terminal.feed(innerLower);
      if (!innerRecord) continue;
      if (innerRecord->getLevel() == headLevel) {
        pending = true;
        pendingLine.swap(inner);
        pendingLower.swap(innerLower);
        break;
      }
      result += "  " + inner + "\n";
    }
  }
}

void QxParserUtil::GetAclCmdsFromConfig(const std::string& configFile, std::string& result, const std::string& key,
                                        SEARCHTYPE type) {
  if (configFile.empty() || key.empty()) return;
  std::vector<std::string> lines;
  if (!readLines(configFile, lines)) return;

  SearchTerminal terminal(false, "configure\n");
  std::string first = key;
  std::string second;
  ParserToolCase::getBothAclCmdsStr(first, second);
  const bool withBody = type == SEARCH_ACL_SECTION || type == SEARCH_ACL_SECTION_ALT;

  size_t next = 0;
  while (next < lines.size()) {
    const std::string& raw = lines[next++];
    if (raw.empty()) continue;
    const std::string line = ParserToolCase::string2CutSpace(raw);

    if (!first.empty() && ParserToolCase::strInCmd(line, first)) {
      CiscoCommandLine* record = terminal.feed(line);
      if (record && record->getLevel() == 0 && ParserToolCase::strInCmd(record->getOriginalCmd(), first)) {
        result += line + "\n";
      }
      continue;
    }
    if (second.empty() || !ParserToolCase::strInCmd(line, second)) continue;
    CiscoCommandLine* record = terminal.feed(line);
    if (!record || record->getLevel() != 0 || !ParserToolCase::strInCmd(record->getOriginalCmd(), second)) continue;
    result += line + "\n";
    if (!withBody) continue;
    // The body: the line that ends it is consumed here.
    while (next < lines.size()) {
      const std::string& rawInner = lines[next++];
      if (rawInner.empty()) continue;
      const std::string inner = ParserToolCase::string2CutSpace(rawInner);
      CiscoCommandLine* innerRecord = terminal.feed(inner);
      if (!innerRecord) continue;
      if (innerRecord->getLevel() == 1) {
        result += inner + "\n";
      } else if (innerRecord->getLevel() == 0) {
        break;
      }
    }
  }
}

}  // namespace qxparser
