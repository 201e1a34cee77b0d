// Merge: applies changes in configuration language to a configuration, by
// grammar path comparison, and writes the result in the device's order.
#include <set>

#include "config/CommandMatchIndex.h"
#include "config/DeviceOrderSort.h"
#include "config/QxParserUtil.h"
#include "config/RecordCopy.h"

namespace qxparser {

void QxParserUtil::deleteTopLevel(std::vector<CiscoCommandLine*>& commands) {
  for (CiscoCommandLine* record : commands) {
    record->delOnlyChildCmds();
    delete record;
  }
  commands.clear();
}

std::string QxParserUtil::mergeConfigCmds(const std::string& changes, const std::string& config) {
  if (changes.empty()) return config;
  if (config.empty()) return changes;
  std::vector<CiscoCommandLine*> changeCmds;
  std::vector<CiscoCommandLine*> configCmds;
  std::string errorText;
  int errorLine = 0;
  std::string text;
  try {
    transformCmds(changes, changeCmds, errorText, errorLine);
    transformCmds(config, configCmds, errorText, errorLine);
    mergeCiscoCommands(changeCmds, configCmds, nullptr);
    text = expandMergedCmds(configCmds, 0);
  } catch (...) {
    deleteTopLevel(changeCmds);
    deleteTopLevel(configCmds);
    throw;
  }
  deleteTopLevel(changeCmds);
  deleteTopLevel(configCmds);
  return text;
}

void QxParserUtil::mergeCiscoCommands(std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config,
                                      CiscoCommandLine* parent) {
  // The first comparable or noable command is looked up through an index of
  // the level; the index answers exactly what a scan from the front would.
  // While the pass runs, the level is read and extended through the index.
  CommandMatchIndex index(config);
  std::set<CiscoCommandLine*> removed;
  auto remove = [&removed, &index](CiscoCommandLine* record) {
    record->setFlags(CMDBIT_REMOVED, false);
    removed.insert(record);
    index.removed(record);
  };

  for (CiscoCommandLine* change : changes) {
    const bool stored = change->hasFlags(CMDBIT_STORED);
    const bool opensMode = change->hasFlags(CMDBIT_OPENS_MODE);
    const CiscoCommandLineFlag kind = change->getFlag();

    if (change->hasFlags(CMDBIT_NO)) {
      const size_t at = index.firstNoable(change);
      if (at == CommandMatchIndex::npos) {
        if (stored) index.append(copyUnder(change, parent));
        continue;
      }
      CiscoCommandLine* base = index.at(at);
      if (!stored) {
        if (kind == CMD_ADDITIVE) {
          // A "no" takes away the whole run of additive commands it negates.
          for (size_t i = at; i < index.size(); ++i) {
            CiscoCommandLine* current = index.at(i);
            if (current->getFlag() == CMD_TEXT) continue;
            if (current->hasFlags(CMDBIT_NO) || !current->isNoable(change)) break;
            remove(current);
          }
        } else if (kind == CMD_MERGEABLE) {
          if (!base->mergeCommand(change)) remove(base);
          index.refresh(at);
        } else {
          remove(base);
        }
      } else if (base->isComparable(change)) {
        if (kind == CMD_OVERWRITE) {
          *base = *change;
          index.refresh(at);
        } else if (!base->hasFlags(CMDBIT_NO)) {
          remove(base);
        }
      }
      continue;
    }

    const size_t at = index.firstComparable(change);
    if (at == CommandMatchIndex::npos) {
      if (!stored) continue;
      CiscoCommandLine* copy = copyUnder(change, parent);
      if (kind == CMD_ADDITIVE) copy->genCommandStr();
      if (opensMode) {
        // The commands of the new mode pass through these rules as well.
        copy->delOnlyChildCmds();
        mergeCiscoCommands(change->getChildCommands(), copy->getChildCommands(), copy);
      }
      index.append(copy);
      continue;
    }
    CiscoCommandLine* base = index.at(at);
    if (!stored) {
      if (base->hasFlags(CMDBIT_NO) || base->getFlag() == CMD_OVERWRITE) remove(base);
      continue;
    }
    if (change->hasFlags(CMDBIT_CONFLICT) && base->isConflictWith(change)) continue;
    if (kind == CMD_ADDITIVE && !opensMode) {
      // Additive commands of one setting stand together; a new one goes at
      // the end of their run.
      // The walk over the run stops at a command with the same text; the
      // "no" forms in front of it that negate the change go.
      bool replaced = false;
      const CommandMatchIndex::Run run = index.walkRun(at, change);
      for (size_t position : run.otherSign) {
        CiscoCommandLine* current = index.at(position);
        if (current->isNoable(change)) {
          remove(current);
          if (current->hasFlags(CMDBIT_STORED)) replaced = true;
        }
      }
      const bool inPlace = run.equal != CommandMatchIndex::npos;
      if (!inPlace && !replaced) index.insert(run.end, copyUnder(change, parent));
    } else if (kind == CMD_ADDITIVE) {
      mergeCiscoCommands(change->getChildCommands(), base->getChildCommands(), base);
    } else if (kind == CMD_OVERWRITE) {
      if (!base->isExactlyMatch(change)) {
        *base = *change;
        index.refresh(at);
      } else if (opensMode) {
        mergeCiscoCommands(change->getChildCommands(), base->getChildCommands(), base);
      }
    } else if (kind == CMD_MERGEABLE) {
      base->mergeCommand(change);
      index.refresh(at);
    } else if (opensMode) {
      mergeCiscoCommands(change->getChildCommands(), base->getChildCommands(), base);
    }
  }

  // From here on the vector holds the level with its new commands.
  index.commit();

  if (!removed.empty()) {
    std::vector<CiscoCommandLine*> kept;
    kept.reserve(config.size());
    for (CiscoCommandLine* record : config) {
      if (removed.count(record)) {
        record->delOnlyChildCmds();
        delete record;
      } else {
        kept.push_back(record);
      }
    }
    config.swap(kept);
  }
  SortCiscoCommands(config);
}

void QxParserUtil::SortCiscoCommands(std::vector<CiscoCommandLine*>& commands) {
  // A selection sort on purpose: the comparison is not a strict order, and
  // the result depends on this very procedure. sortByDeviceOrder gives the
  // procedure's result without its quadratic scan.
  sortByDeviceOrder(commands);
}

namespace {

// The length of what appendMerged writes for `commands` at `depth`.
size_t mergedLength(const std::vector<CiscoCommandLine*>& commands, size_t depth) {
  size_t length = 0;
  for (const CiscoCommandLine* command : commands) {
    length += depth + command->getOriginalCmd().size();
    length += mergedLength(command->getChildCommands(), depth + 1);
    if (command->hasFlags(CMDBIT_OPENS_MODE)) length += depth + 2;
  }
  return length;
}

// Writes `commands` and the commands below them into `text`; `indent` is
// the indent of their level and grows by one NUL byte per level below.
void appendMerged(std::string& text, const std::vector<CiscoCommandLine*>& commands, std::string& indent) {
  for (const CiscoCommandLine* command : commands) {
    text += indent;
    text += command->getOriginalCmd();
    if (!command->getChildCommands().empty()) {
      const size_t kept = indent.size();
      indent.push_back(kept == 0 ? ' ' : '\0');
      appendMerged(text, command->getChildCommands(), indent);
      indent.resize(kept);
    }
    if (command->hasFlags(CMDBIT_OPENS_MODE)) {
      text += indent;
      text += "!\n";
    }
  }
}

}  // namespace

std::string QxParserUtil::expandMergedCmds(const std::vector<CiscoCommandLine*>& commands, int depth) {
  // The indent comes from a constant of one blank followed by NUL bytes, and
  // the NULs go into the text as they are. The text is written in one piece,
  // its length taken first.
  std::string indent;
  if (depth > 0) {
    indent.assign(1, ' ');
    indent.append(static_cast<size_t>(depth - 1), '\0');
  }
  std::string text;
  text.reserve(mergedLength(commands, indent.size()));
  appendMerged(text, commands, indent);
  return text;
}

}  // namespace qxparser
