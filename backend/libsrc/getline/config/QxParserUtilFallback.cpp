// Fallback: the commands that take a device back, either from applied changes
// (delta mode) or from one complete configuration to another (file mode).
#include <algorithm>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>

#include "config/CommandMatchIndex.h"
#include "config/NulBytes.h"
#include "config/QxParserUtil.h"
#include "config/RecordCopy.h"
#include "config/SideReading.h"
#include "platform/StlHelper.h"

namespace qxparser {

CiscoCommandLine* QxParserUtil::createNoCommand(CiscoCommandLine* command) {
  auto negated = std::make_unique<CiscoCommandLine>();
  *negated = *command;
  const std::string& text = negated->getOriginalCmd();
  if (text.compare(0, 3, "no ") == 0) {
    // The prefix goes; CMDBIT_NO stays as it was.
    negated->setOriginalCmd(text.substr(3));
  } else {
    negated->setOriginalCmd("no " + text);
    negated->setFlags(CMDBIT_NO, true);
  }
  return negated.release();
}

std::string QxParserUtil::fallbackConfigCmds(const std::string& first, const std::string& second, unsigned int mode) {
  return fallbackNormalised(first, second, mode, false, Readers());
}

std::string QxParserUtil::fallbackConfigCmdsAllLevels(const std::string& first, const std::string& second,
                                                      unsigned int mode) {
  return fallbackNormalised(first, second, mode, true, Readers());
}

std::string QxParserUtil::readTyped(const std::string& text, bool allLevels, std::vector<RefusedLine>* typed,
                                    const TypedReading& reading) {
  // Over every level, a text that is itself a merge result (NUL indent bytes
  // included) is read whole as well.
  std::string copy;
  const std::string& given = allLevels ? nulAsBlank(text, copy) : text;
  const bool handedOn = typed != nullptr && reading.records != nullptr;
  // Where the caller keeps the whole reading, its top level is only lent.
  std::vector<CiscoCommandLine*> topLevel;
  try {
    if (handedOn) {
      const size_t from = reading.records->size();
      TypedTextReader::read(given, *reading.records, *typed);
      for (size_t at = from; at < reading.records->size(); ++at) {
        if ((*reading.records)[at]->getLevel() == 0) topLevel.push_back((*reading.records)[at]);
      }
    } else if (typed) {
      transformCmdsTyped(given, topLevel, typed);
    } else {
      std::string errorText;
      int errorLine = 0;
      transformCmds(given, topLevel, errorText, errorLine);
    }
    // The records are brought into the form that a merge writes, so that
    // comments are gone and repeated words stand in one order.
    // Text read as typed is read back the same way: a banner closed on its
    // last text line ("text ^C") stays closed.
    std::string form = mergeForm(topLevel, allLevels);
    if (!handedOn) deleteTopLevel(topLevel);
    return form;
  } catch (...) {
    if (!handedOn) deleteTopLevel(topLevel);
    throw;
  }
}

std::string QxParserUtil::mergeForm(const std::vector<CiscoCommandLine*>& topLevel, bool allLevels) {
  std::string form = expandMergedCmds(topLevel, 0);
  if (allLevels) return nulAsBlank(std::move(form));
  return form;
}

void QxParserUtil::readMergeForm(const std::string& form, bool typed, std::vector<CiscoCommandLine*>& commands) {
  if (!typed) {
    std::string errorText;
    int errorLine = 0;
    transformCmds(form, commands, errorText, errorLine);
    return;
  }
  // Typed texts found their levels by their exits; the written form keeps
  // them in its indent.
  std::vector<CiscoCommandLine*> all;
  std::vector<RefusedLine> unwanted;
  try {
    TypedTextReader::readByIndent(form, all, unwanted);
  } catch (...) {
    deleteCommands(all);
    throw;
  }
  keepTopLevel(all, commands);
}

std::string QxParserUtil::fallbackNormalised(const std::string& first, const std::string& second, unsigned int mode,
                                             bool allLevels, const Readers& readers) {
  if (first.empty()) return second;
  std::vector<CiscoCommandLine*> firstCmds;
  std::vector<CiscoCommandLine*> secondCmds;
  std::vector<CiscoCommandLine*> out;
  std::string text;
  try {
    {
      // Long texts are read at once, the second on the side thread. The
      // second text's refused lines follow those of the first, as one thread
      // reading both gives them.
      const bool beside = SideReading::worthAThread(first) && SideReading::worthAThread(second);
      std::vector<RefusedLine> secondLines;
      std::vector<RefusedLine>* secondTyped = beside && readers.second ? &secondLines : readers.second;
      auto handOn = [&]() {
        if (secondTyped != &secondLines) return;
        readers.second->insert(readers.second->end(), secondLines.begin(), secondLines.end());
      };
      // First as typed, written in the merge form...
      std::shared_ptr<const std::string> firstForm;
      std::shared_ptr<const std::string> secondForm;
      const TypedReading& secondReading = readers.secondTyped;
      bool secondTypedRead = false;
      SideReading secondTypedReading([&]() {
        if (readers.secondForm) {
          secondForm = readers.secondForm;
          secondTypedRead = true;
          return;
        }
        secondForm = std::make_shared<const std::string>(readTyped(second, allLevels, secondTyped, secondReading));
        if (secondReading.read) secondReading.read(secondForm);
        if (secondReading.release) secondReading.release();
        secondTypedRead = true;
      });
      // ...then that form read, once the typed reading has served.
      // The comparison's index of the second text's top level is made by
      // the thread that read it, while the other may still be reading.
      std::optional<CommandMatchIndex> secondIndex;
      SideReading secondFormRead([&]() {
        // Nothing to read where the typed reading failed (its wait() throws).
        if (!secondTypedRead) return;
        readMergeForm(*secondForm, secondTyped != nullptr, secondCmds);
        secondForm.reset();
        if (beside) secondIndex.emplace(secondCmds);
      });
      // Each thread frees the records it read for the comparison.
      SideReading secondFreed([&]() { deleteTopLevel(secondCmds); });
      // Each thread reads its text twice without waiting for the other.
      SideThread side;
      if (beside) {
        side.post(secondTypedReading);
        side.post(secondFormRead);
      }
      firstForm = std::make_shared<const std::string>(readTyped(first, allLevels, readers.first, readers.firstTyped));
      if (readers.firstTyped.read) readers.firstTyped.read(firstForm);
      if (readers.firstTyped.release) readers.firstTyped.release();
      readMergeForm(*firstForm, readers.first != nullptr, firstCmds);
      firstForm.reset();
      try {
        secondTypedReading.wait();
      } catch (...) {
        handOn();
        throw;
      }
      handOn();
      if (readers.bothRead) readers.bothRead();
      secondFormRead.wait();
      if (beside && readers.besideComparison) side.post(*readers.besideComparison);
      CommandMatchIndex* index = secondIndex ? &*secondIndex : nullptr;
      if (mode == 0) {
        fallbackCiscoCommands(firstCmds, secondCmds, out, nullptr, index);
      } else {
        fallbackCiscoCommandFile(firstCmds, secondCmds, out, nullptr, index);
      }
      secondIndex.reset();
      text = expandMergedCmds(out, 0);
      if (readers.compared != nullptr) {
        readers.compared->insert(readers.compared->end(), firstCmds.begin(), firstCmds.end());
        firstCmds.clear();
        readers.compared->insert(readers.compared->end(), secondCmds.begin(), secondCmds.end());
        secondCmds.clear();
      } else if (beside && side.post(secondFreed)) {
        deleteTopLevel(firstCmds);
      }
    }
  } catch (...) {
    deleteTopLevel(firstCmds);
    deleteTopLevel(secondCmds);
    deleteTopLevel(out);
    throw;
  }
  deleteTopLevel(firstCmds);
  deleteTopLevel(secondCmds);
  deleteTopLevel(out);
  return text;
}

void QxParserUtil::fallbackCiscoCommands(std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config,
                                         std::vector<CiscoCommandLine*>& out, CiscoCommandLine* parent,
                                         CommandMatchIndex* given) {
  // Commands to restore; lives for the whole pass.
  std::vector<CiscoCommandLine*> restore;
  auto flush = [&]() {
    for (CiscoCommandLine* record : restore) out.push_back(copyUnder(record, parent));
    restore.clear();
  };
  std::optional<CommandMatchIndex> own;
  CommandMatchIndex& index = given != nullptr ? *given : own.emplace(config);
  auto mark = [&restore, &index](CiscoCommandLine* record) {
    record->setFlags(CMDBIT_REMOVED, false);
    restore.push_back(record);
    index.removed(record);
  };
  auto negate = [&](CiscoCommandLine* record) {
    CiscoCommandLine* negated = createNoCommand(record);
    negated->setParentCommand(parent, false);
    out.push_back(negated);
  };
  // The head of a mode is written only when something changes inside it.
  auto descend = [&](CiscoCommandLine* change, CiscoCommandLine* found, const CiscoCommandLine* data) {
    auto head = std::make_unique<CiscoCommandLine>();
    *head = *data;
    head->setParentCommand(parent, false);
    fallbackCiscoCommands(change->getChildCommands(), found->getChildCommands(), head->getChildCommands(), head.get());
    if (!head->getChildCommands().empty()) out.push_back(head.release());
  };

  for (CiscoCommandLine* change : changes) {
    const CiscoCommandLineFlag kind = change->getFlag();
    const bool stored = change->hasFlags(CMDBIT_STORED);
    const bool opensMode = change->hasFlags(CMDBIT_OPENS_MODE);

    if (!change->hasFlags(CMDBIT_NO)) {
      const size_t at = index.firstComparable(change);
      if (at == CommandMatchIndex::npos) {
        if (stored) negate(change);
        continue;
      }
      CiscoCommandLine* found = config[at];
      if (!stored) {
        if (found->hasFlags(CMDBIT_NO)) out.push_back(copyUnder(found, parent));
        continue;
      }
      if (kind == CMD_ADDITIVE && !opensMode) {
        // The "no" forms of the run in front of a command with the same
        // text are marked; that command means the change had no effect.
        const CommandMatchIndex::Run run = index.walkRun(at, change);
        for (size_t position : run.otherSign) {
          if (config[position]->isNoable(change)) mark(config[position]);
        }
        const bool noEffect = run.equal != CommandMatchIndex::npos;
        if (noEffect) restore.clear();
        if (!noEffect) {
          negate(change);
          flush();
        }
      } else if (kind == CMD_ADDITIVE) {
        descend(change, found, found);
      } else if (kind == CMD_OVERWRITE) {
        if (!found->isExactlyMatch(change)) {
          out.push_back(copyUnder(found, parent));
        } else if (opensMode) {
          descend(change, found, found);
        }
      } else if (kind == CMD_MERGEABLE) {
        negate(change);
        out.push_back(copyUnder(found, parent));
      } else if (opensMode) {
        descend(change, found, change);
      }
      continue;
    }

    const size_t at = index.firstNoable(change);
    if (at == CommandMatchIndex::npos) {
      if (stored) negate(change);
      continue;
    }
    CiscoCommandLine* found = config[at];
    if (!stored) {
      if (kind == CMD_ADDITIVE) {
        // What the "no" took away is written back.
        for (size_t i = at; i < config.size(); ++i) {
          CiscoCommandLine* current = config[i];
          if (current->hasFlags(CMDBIT_NO) || !current->isNoable(change)) break;
          mark(current);
        }
        flush();
      } else if (kind == CMD_MERGEABLE) {
        negate(change);
        out.push_back(copyUnder(found, parent));
        flush();
      } else {
        mark(found);
        flush();
      }
    } else if (found->isComparable(change)) {
      // A positive one waits for the next flush of the pass, and is lost if
      // none follows.
      if (!found->hasFlags(CMDBIT_NO)) mark(found);
    } else {
      flush();
    }
  }
}

void QxParserUtil::fallbackCiscoCommandFile(std::vector<CiscoCommandLine*>& from, std::vector<CiscoCommandLine*>& to,
                                            std::vector<CiscoCommandLine*>& out, CiscoCommandLine* parent,
                                            CommandMatchIndex* given) {
  auto negate = [&](CiscoCommandLine* record) {
    CiscoCommandLine* negated = createNoCommand(record);
    negated->setParentCommand(parent, false);
    out.push_back(negated);
  };
  auto descend = [&](CiscoCommandLine* command, CiscoCommandLine* found, const CiscoCommandLine* data) {
    auto head = std::make_unique<CiscoCommandLine>();
    *head = *data;
    head->setParentCommand(parent, false);
    fallbackCiscoCommandFile(command->getChildCommands(), found->getChildCommands(), head->getChildCommands(),
                             head.get());
    if (!head->getChildCommands().empty()) out.push_back(head.release());
  };
  std::optional<CommandMatchIndex> own;
  CommandMatchIndex& toIndex = given != nullptr ? *given : own.emplace(to);
  // The key hashes of `from`, taken once: the pass below reads the records
  // and changes none of them.
  std::vector<std::pair<uint64_t, const CiscoCommandLine*>> fromKeys;
  fromKeys.reserve(from.size());

  for (CiscoCommandLine* command : from) {
    const bool keyed = !command->hasFlags(CMDBIT_REMOVED) && !command->getTreeNodes().empty();
    const uint64_t hash = CommandMatchIndex::keyHash(command);
    if (keyed) fromKeys.emplace_back(hash, command);
    if (!command->hasFlags(CMDBIT_STORED)) continue;
    const CiscoCommandLineFlag kind = command->getFlag();
    const bool opensMode = command->hasFlags(CMDBIT_OPENS_MODE);
    const size_t at = toIndex.firstComparable(command, hash);
    if (at == CommandMatchIndex::npos) {
      if (kind != CMD_MERGEABLE) {
        negate(command);
        continue;
      }
      // A mergeable command is negated word by word where the grammar
      // allows that.
      std::unique_ptr<CiscoCommandLine> negated(createNoCommand(command));
      auto copy = std::make_unique<CiscoCommandLine>(*command);
      CiscoCommandLine* result =
          copy->mergeCommand(negated.get()) ? createNoCommand(copy.get()) : createNoCommand(command);
      result->setParentCommand(parent, false);
      out.push_back(result);
      continue;
    }
    CiscoCommandLine* found = to[at];
    if (kind == CMD_ADDITIVE) {
      if (opensMode) descend(command, found, found);
      // Each command of the other sign in the run in front of one with the
      // same text that negates this one writes its negation.
      const CommandMatchIndex::Run run = toIndex.walkRun(at, command);
      for (size_t position : run.otherSign) {
        if (to[position]->isNoable(command)) negate(command);
      }
      if (run.equal == CommandMatchIndex::npos) negate(command);
    } else if (kind == CMD_OVERWRITE) {
      if (!found->isExactlyMatch(command)) {
        out.push_back(copyUnder(found, parent));
      } else if (opensMode) {
        descend(command, found, command);
      }
    } else if (kind == CMD_MERGEABLE) {
      if (!found->isExactlyMatch(command)) {
        negate(command);
        out.push_back(copyUnder(found, parent));
      }
    } else if (opensMode) {
      descend(command, found, command);
    }
  }

  // New commands go behind the negations. A command of `from` is comparable
  // with a target exactly when their key signatures agree.
  const CommandMatchIndex::KeySet fromKeySet(std::move(fromKeys));
  for (size_t i = 0; i < to.size(); ++i) {
    CiscoCommandLine* target = to[i];
    if (!target->hasFlags(CMDBIT_STORED)) continue;
    if (!fromKeySet.containsKeyOf(target, toIndex.keyHashAt(i))) out.push_back(copyUnder(target, parent));
  }
}

bool QxParserUtil::removeInterfaceFromConfigFile(const std::string& path, const std::string& name) {
  // Reads the file and forms the interface head, and leaves the file as it
  // was: the operation has never changed anything.
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  std::stringstream buffer;
  if (in) buffer << in.rdbuf();
  const std::string content = buffer.str();
  const std::string head = "interface " + name;
  (void)content;
  (void)head;
  return true;
}

}  // namespace qxparser
