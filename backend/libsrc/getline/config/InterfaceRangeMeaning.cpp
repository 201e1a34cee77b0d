// Interface ranges and interface defaults as the device applies them.
#include "config/InterfaceRangeMeaning.h"

#include <algorithm>
#include <cctype>

#include "config/DeviceTextReader.h"
#include "config/MeaningText.h"
#include "config/QxParserUtil.h"
#include "config/RecordCopy.h"

namespace qxparser {

namespace {

using meaning::freeRecord;
using meaning::startsWith;

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \t\r\n") + 1);
  text.erase(0, text.find_first_not_of(" \t"));
  return text;
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

std::string withoutBlanks(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), ' '), text.end());
  return text;
}

// Where the number of an interface name begins.
size_t numberStart(const std::string& name) {
  const size_t at = name.find_first_of("0123456789");
  return at == std::string::npos ? name.size() : at;
}

// The configuration's spelling of `typed`: same interface, type written in
// full where `typed` shortened it.
std::string spelling(const std::vector<CiscoCommandLine*>& config, const std::string& typed) {
  const size_t cut = numberStart(typed);
  const std::string type = lower(typed.substr(0, cut));
  const std::string number = typed.substr(cut);
  for (const CiscoCommandLine* record : config) {
    const std::string text = trimmed(record->getOriginalCmd());
    if (!startsWith(text, "interface ")) continue;
    const std::string name = text.substr(10);
    const size_t at = numberStart(name);
    if (name.substr(at) == number && !type.empty() && startsWith(lower(name.substr(0, at)), type))
      return name;
  }
  return typed;
}

CiscoCommandLine* interfaceOf(std::vector<CiscoCommandLine*>& config, const std::string& name) {
  for (CiscoCommandLine* record : config) {
    if (trimmed(record->getOriginalCmd()) == "interface " + name) return record;
  }
  return nullptr;
}

// One block per member of `range`, each with copies of its lines.
std::vector<CiscoCommandLine*> blocksOf(const CiscoCommandLine& range,
                                        const std::vector<CiscoCommandLine*>& config) {
  std::vector<CiscoCommandLine*> blocks;
  const std::string text = trimmed(range.getOriginalCmd());
  for (const std::string& member : InterfaceRangeMeaning::members(text.substr(16))) {
    std::vector<CiscoCommandLine*> read;
    DeviceTextReader::read("interface " + spelling(config, member) + "\n", read);
    for (CiscoCommandLine* head : read) {
      if (head->getFlag() == CMD_TEXT || !head->hasFlags(CMDBIT_OPENS_MODE)) {
        freeRecord(head);
        continue;
      }
      head->setLineNo(range.getLineNo());
      for (const CiscoCommandLine* line : range.getChildCommands()) {
        head->getChildCommands().push_back(copyUnder(line, head));
      }
      blocks.push_back(head);
    }
  }
  return blocks;
}

// Empties the interfaces that a "default interface [range] ..." line names.
void applyDefault(const std::string& text, std::vector<CiscoCommandLine*>& config) {
  const std::string named = text.substr(18);
  const bool isRange = startsWith(named, "range ");
  const std::vector<std::string> names = isRange ? InterfaceRangeMeaning::members(named.substr(6))
                                                 : std::vector<std::string>{withoutBlanks(named)};
  for (const std::string& name : names) {
    CiscoCommandLine* found = interfaceOf(config, spelling(config, name));
    if (found) found->delOnlyChildCmds();
  }
}

}  // namespace

std::vector<std::string> InterfaceRangeMeaning::members(const std::string& range) {
  std::vector<std::string> out;
  size_t from = 0;
  while (from <= range.size()) {
    size_t end = range.find(',', from);
    if (end == std::string::npos) end = range.size();
    const std::string part = trimmed(range.substr(from, end - from));
    from = end + 1;
    const size_t dash = part.find('-');
    if (dash == std::string::npos) {
      if (!part.empty()) out.push_back(withoutBlanks(part));
      continue;
    }
    const std::string first = withoutBlanks(part.substr(0, dash));
    const std::string last = trimmed(part.substr(dash + 1));
    const size_t digits = first.find_last_not_of("0123456789") + 1;
    if (digits >= first.size() || first.size() - digits > 6 || last.empty() || last.size() > 6 ||
        last.find_first_not_of("0123456789") != std::string::npos) {
      // A span the device refuses names no interface.
      continue;
    }
    const long low = std::stol(first.substr(digits));
    const long high = std::stol(last);
    for (long n = low; n <= high && n - low < 4096; ++n)
      out.push_back(first.substr(0, digits) + std::to_string(n));
  }
  return out;
}

void InterfaceRangeMeaning::expand(std::vector<CiscoCommandLine*>& changes,
                                   std::vector<CiscoCommandLine*>& config) {
  for (size_t i = 0; i < changes.size();) {
    CiscoCommandLine* record = changes[i];
    const std::string text = trimmed(record->getOriginalCmd());
    if (startsWith(text, "default interface ")) {
      applyDefault(text, config);
      freeRecord(record);
      changes.erase(changes.begin() + static_cast<long>(i));
    } else if (startsWith(text, "interface range ") && record->hasFlags(CMDBIT_OPENS_MODE)) {
      const std::vector<CiscoCommandLine*> blocks = blocksOf(*record, config);
      freeRecord(record);
      changes.erase(changes.begin() + static_cast<long>(i));
      changes.insert(changes.begin() + static_cast<long>(i), blocks.begin(), blocks.end());
      i += blocks.size();
    } else {
      ++i;
    }
  }
}

}  // namespace qxparser
