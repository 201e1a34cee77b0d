// Rollback lines that the comparison by grammar path leaves out.
#include "config/DeviceMeaning.h"

#include "config/QxParserUtil.h"

namespace qxparser {

namespace {

std::string trimmed(std::string text) {
  text.erase(text.find_last_not_of(" \r\n") + 1);
  return text;
}

const CiscoCommandLine* sameCommand(const std::vector<CiscoCommandLine*>& records, const CiscoCommandLine& wanted) {
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() > 0 && record->getCurrentCommand() == wanted.getCurrentCommand()) return record;
  }
  return nullptr;
}

// A "no" form of `from` that the comparison takes for `command`.
bool onlyNegated(const std::vector<CiscoCommandLine*>& from, CiscoCommandLine& command) {
  for (CiscoCommandLine* record : from) {
    if (record->getTreeNodeSize() > 0 && record->hasFlags(CMDBIT_NO) && !record->hasFlags(CMDBIT_STORED) &&
        record->isComparable(&command) && command.isNoable(record)) {
      return true;
    }
  }
  return false;
}

void collect(const std::vector<CiscoCommandLine*>& from, const std::vector<CiscoCommandLine*>& to,
             const std::string& heads, int depth, std::string& out) {
  const std::string indent(static_cast<size_t>(depth), ' ');
  for (CiscoCommandLine* command : to) {
    if (command->getTreeNodeSize() == 0 || command->hasFlags(CMDBIT_NO) || !command->hasFlags(CMDBIT_STORED)) {
      continue;
    }
    const CiscoCommandLine* same = sameCommand(from, *command);
    if (same) {
      if (command->hasFlags(CMDBIT_OPENS_MODE)) {
        collect(same->getChildCommands(), command->getChildCommands(),
                heads + indent + trimmed(command->getOriginalCmd()) + "\n", depth + 1, out);
      }
    } else if (!command->hasFlags(CMDBIT_OPENS_MODE) && onlyNegated(from, *command)) {
      out += heads + indent + trimmed(command->getOriginalCmd()) + "\n";
    }
  }
}

CiscoCommandLine* sameHead(const std::vector<CiscoCommandLine*>& records, const CiscoCommandLine& head) {
  for (CiscoCommandLine* record : records) {
    if (record->hasFlags(CMDBIT_OPENS_MODE) && record->getOriginalCmd() == head.getOriginalCmd()) return record;
  }
  return nullptr;
}

}  // namespace

std::string DeviceMeaning::missedCommands(const std::vector<CiscoCommandLine*>& from,
                                          const std::vector<CiscoCommandLine*>& to) {
  std::string out;
  collect(from, to, "", 0, out);
  return out;
}

void DeviceMeaning::graft(std::vector<CiscoCommandLine*>& extra, std::vector<CiscoCommandLine*>& into,
                          CiscoCommandLine* parent) {
  for (CiscoCommandLine* record : extra) {
    if (record->getFlag() == CMD_TEXT) {
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
      continue;
    }
    CiscoCommandLine* head = record->hasFlags(CMDBIT_OPENS_MODE) ? sameHead(into, *record) : nullptr;
    if (head) {
      graft(record->getChildCommands(), head->getChildCommands(), head);
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
    } else {
      record->setParentCommand(parent, false);
      into.push_back(record);
    }
  }
  extra.clear();
}

}  // namespace qxparser
