// ReadingSketch: the parts of a typed reading that the device-text rollback
// reads after the comparison.
#include "config/ReadingSketch.h"

#include <cstring>
#include <stdexcept>

#include "config/DeviceMeaning.h"
#include "config/MeaningText.h"

namespace qxparser {

namespace {

// The last line of a raw text, trailing blanks and tabs cut.
std::string_view typedLineOf(std::string_view raw) {
  const std::string_view line = meaning::lastLine(raw);
  return line.substr(0, line.find_last_not_of(" \t") + 1);
}

// How many records `records` and those below them hold, and the length of
// their texts: a sketch takes its room at once, not by doubling.
void measure(const std::vector<CiscoCommandLine*>& records, size_t& count, size_t& texts) {
  for (const CiscoCommandLine* record : records) {
    ++count;
    texts += record->getOriginalCmd().size();
    measure(record->getChildCommands(), count, texts);
  }
}

}  // namespace

ReadingSketch::ReadingSketch(const std::vector<CiscoCommandLine*>& topLevel, std::shared_ptr<const std::string> form,
                             const TextLines* lines)
    : mForm(std::move(form)), mLines(lines) {
  size_t count = 0;
  size_t texts = 0;
  measure(topLevel, count, texts);
  mEntries.reserve(count);
  // Typed lines other than their commands' texts are few in a configuration
  // (interface heads, abbreviations); so are commands the form does not
  // hold in turn (comments, lines the settling moved).
  mTexts.reserve(mForm ? texts / 16 : texts + texts / 8);
  for (const CiscoCommandLine* record : topLevel) add(*record);
  mBanners = DeviceMeaning::bannersOf(topLevel,
                                      [this](const CiscoCommandLine& record) { return rawTextOf(record); });
  mLines = nullptr;
}

std::string_view ReadingSketch::rawTextOf(const CiscoCommandLine& record) const {
  std::string_view raw = record.getRawText();
  if (raw.empty() && mLines != nullptr) mLines->find(record.getLineNo(), raw);
  return raw;
}

uint32_t ReadingSketch::keep(std::string_view text) {
  if (mTexts.size() + text.size() > UINT32_MAX) throw std::length_error("reading too large to sketch");
  const auto at = static_cast<uint32_t>(mTexts.size());
  mTexts.append(text);
  return at;
}

void ReadingSketch::add(const CiscoCommandLine& record) {
  const size_t at = mEntries.size();
  if (at >= kMostEntries) throw std::length_error("reading too large to sketch");
  mEntries.emplace_back();
  Entry entry;
  const std::string& command = record.getOriginalCmd();
  if (command.size() > kLongestCommand) throw std::length_error("command too long to sketch");
  uint32_t commandAt = 0;
  entry.commandInForm = findInForm(command, commandAt);
  entry.commandAt = entry.commandInForm ? commandAt : keep(command);
  entry.commandSize = static_cast<uint32_t>(command.size());
  entry.hasPath = record.getTreeNodeSize() > 0;
  entry.negated = record.hasFlags(CMDBIT_NO);
  entry.stored = record.hasFlags(CMDBIT_STORED);
  entry.opensMode = record.hasFlags(CMDBIT_OPENS_MODE);
  if (record.getCurrentCommand() != command) mCurrent.emplace(at, record.getCurrentCommand());
  const std::string_view raw = rawTextOf(record);
  if (!raw.empty() && !entry.hasPath) {
    // Comments and refused lines: nobody looks their typed lines up.
    entry.typed = static_cast<uint32_t>(Typed::Unkept);
  } else if (!raw.empty()) {
    const std::string_view line = typedLineOf(raw);
    const size_t indent = line.find_first_not_of(' ');
    if (indent != std::string_view::npos && line.substr(indent) == meaning::bare(command)) {
      entry.typed = static_cast<uint32_t>(Typed::Indented);
      entry.lineAt = static_cast<uint32_t>(indent);
    } else {
      entry.typed = static_cast<uint32_t>(Typed::Stored);
      const auto length = static_cast<uint32_t>(line.size());
      entry.lineAt = keep(std::string_view(reinterpret_cast<const char*>(&length), sizeof(length)));
      keep(line);
    }
  }
  for (const CiscoCommandLine* child : record.getChildCommands()) add(*child);
  entry.end = static_cast<uint32_t>(mEntries.size());
  mEntries[at] = entry;
}

bool ReadingSketch::findInForm(std::string_view command, uint32_t& at) {
  if (!mForm || command.empty()) return false;
  const std::string_view form(*mForm);
  // Past the indent (a blank, then NUL bytes) and the "!" lines that close
  // modes, which no record of a settled reading holds. A command may begin
  // with blanks itself (a banner's line), so each place in the last indent
  // is tried, from its start.
  size_t indent = mFormAt;
  size_t from = mFormAt;
  for (;;) {
    while (from < form.size() && (form[from] == ' ' || form[from] == '\0')) ++from;
    if (form.compare(from, 2, "!\n") != 0 || command == "!\n") break;
    from += 2;
    indent = from;
  }
  for (size_t place = indent; place <= from; ++place) {
    if (place + command.size() > form.size() || form.compare(place, command.size(), command) != 0) continue;
    if (place > UINT32_MAX) return false;
    at = static_cast<uint32_t>(place);
    mFormAt = place + command.size();
    return true;
  }
  return false;
}

std::string_view ReadingSketch::currentCommand(size_t at) const {
  if (mCurrent.empty()) return command(at);
  const auto found = mCurrent.find(at);
  return found == mCurrent.end() ? command(at) : std::string_view(found->second);
}

std::string ReadingSketch::typedLine(size_t at) const {
  const Entry& entry = mEntries[at];
  switch (static_cast<Typed>(entry.typed)) {
    case Typed::None:
    case Typed::Unkept:
      return std::string();
    case Typed::Stored: {
      uint32_t length = 0;
      std::memcpy(&length, mTexts.data() + entry.lineAt, sizeof(length));
      return mTexts.substr(entry.lineAt + sizeof(length), length);
    }
    case Typed::Indented:
      break;
  }
  std::string line(entry.lineAt, ' ');
  line.append(meaning::bare(command(at)));
  return line;
}

}  // namespace qxparser
