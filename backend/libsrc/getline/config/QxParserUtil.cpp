// Resources and reading: the shared grammar, and the door from configuration
// text to command records.
#include "config/QxParserUtil.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <unordered_set>

#include "config/CmdOrderTable.h"
#include "config/DeviceTextReader.h"
#include "config/SideReading.h"
#include "grammar/DefinitionLoader.h"
#include "grammar/ParserException.h"
#include "grammar/ParserTree.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "platform/StlHelper.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {

namespace {

std::map<VTYModeType, ParserTree*>& resourceTrees() {
  static auto* trees = new std::map<VTYModeType, ParserTree*>();
  return *trees;
}

}  // namespace

// Asked for by every terminal when it is made: the first one after resource
// creation fills the command-order table.
std::map<VTYModeType, ParserTree*>& gResourceTrees() {
  fillDeferredCmdOrderTable();
  return resourceTrees();
}

namespace {

const char* const kTopFiles[] = {"view_mode.cfm", "execution_mode.cfm", "configuration_mod.cfm"};
const char* const kSuffixes[] = {">", "#", "(config)#"};

// A terminal brought into configuration mode, for the length of one call.
void enterConfiguration(VTY& vty, const char* configure) {
  vty.parse("enable\n", true, nullptr);
  vty.parse(configure, true, nullptr);
}

std::atomic<bool> gFreeRecordsOnReturn{true};

// The command-order table from the order files below `resourceFolder`: each
// file read as a configuration, its records numbered in file order.
void fillCmdOrderTableFrom(const std::string& resourceFolder) {
  std::string folder = resourceFolder + "files" + platform::kPathSeparator + "commandorder";
  for (const Pathname& entry : Pathname(folder).dirContents()) {
    const std::string name = entry.file();
    if (name.empty() || name[0] == '.') continue;
    std::string text;
    {
      std::ifstream in(StlHelper::AToW(entry.data()), std::ios::binary);
      std::stringstream buffer;
      if (in) buffer << in.rdbuf();
      text = buffer.str();
    }
    std::vector<CiscoCommandLine*> records;
    std::string errorText;
    int errorLine = 0;
    try {
      QxParserUtil::getCmdInfo(text, records, errorText, errorLine);
    } catch (...) {
      QxParserUtil::deleteCommands(records);
      throw;
    }
    std::vector<CiscoCommandLine*> templates;
    int counter = 0;
    for (CiscoCommandLine* record : records) {
      ++counter;
      if (record->getTreeNodeSize() > 0) {
        record->setOrderNo(counter);
        templates.push_back(record);
      } else {
        delete record;
      }
    }
    // Templates of all levels stand in one vector; their child lists are not
    // used and must not free anything twice.
    for (CiscoCommandLine* templ : templates) templ->getChildCommands().clear();
    size_t dot = name.rfind('.');
    const std::string key = dot == std::string::npos ? name : name.substr(0, dot);
    if (!gCmdOrderTable().emplace(key, templates).second) {
      for (CiscoCommandLine* templ : templates) delete templ;
    }
  }
}

}  // namespace

void QxParserUtil::createNewParserResource() {
  loadKeyFiles();
  for (int mode = VIEW_MODE; mode <= CONFIG_MODE; ++mode) {
    auto tree = std::make_unique<ParserTree>(kTopFiles[mode], true);
    gPromptSuffixes()[tree->mRoot] = kSuffixes[mode];
    ParserTree*& slot = resourceTrees()[static_cast<VTYModeType>(mode)];
    delete slot;
    slot = tree.release();
  }
  clearCmdOrderTable();
  // Filled from this resource folder when first needed.
  const std::string folder = QXFileSystem::GetSystemResourceFolder();
  deferCmdOrderTable([folder] { fillCmdOrderTableFrom(folder); });
}

void QxParserUtil::createParserResource() { createNewParserResource(); }

void QxParserUtil::destroyParserResource() {
  for (auto& entry : resourceTrees()) delete entry.second;
  resourceTrees().clear();
  VTY::mTrees4Modes.clear();
  clearCmdOrderTable();
}

void QxParserUtil::fillCmdOrderTable() { fillCmdOrderTableFrom(QXFileSystem::GetSystemResourceFolder()); }

void QxParserUtil::setOverwriteCmds() {
  std::set<std::string>& set = ParserToolCase::overwriteCmds();
  set.clear();
  const std::string path = QXFileSystem::GetSystemResourceFolder() + "files" + platform::kPathSeparator +
                           "commandflag" + platform::kPathSeparator + "cisco.flg";
  std::ifstream in(StlHelper::AToW(path));
  if (!in) throw ParserException("error: can't open file: " + path);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty()) continue;
    set.insert(ParserToolCase::getKeyStr(line));
  }
}

bool QxParserUtil::getCmdInfo(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                              std::string& errorText, int& errorLine) {
  VTY vty("hostName", false);
  enterConfiguration(vty, "configure terminal \n");
  return vty.getComLineInfo(text, commands, errorText, errorLine, true);
}

bool QxParserUtil::transformCmds(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                                 std::string& errorText, int& errorLine) {
  std::vector<CiscoCommandLine*> all;
  bool ok = false;
  try {
    ok = getCmdInfo(text, all, errorText, errorLine);
  } catch (...) {
    // The records read before the exception belong to nobody else.
    deleteCommands(all);
    throw;
  }
  keepTopLevel(all, commands);
  return ok;
}

void QxParserUtil::keepTopLevel(std::vector<CiscoCommandLine*>& all, std::vector<CiscoCommandLine*>& commands) {
  for (CiscoCommandLine* record : all) {
    if (record->getLevel() == 0) commands.push_back(record);
  }
  // Records of deeper levels stay reachable through their parents; a record
  // that failed at a deeper level has no parent and would be lost: keep none
  // such alive.
  for (CiscoCommandLine* record : all) {
    if (record->getLevel() != 0 && record->getParentCommand() == nullptr) delete record;
  }
  all.clear();
}

bool QxParserUtil::hintCommand(std::string& configuration, std::string& line, std::vector<ConfigHint>& hints) {
  VTY vty("hostName", false);
  enterConfiguration(vty, "configure terminal \n");
  return vty.hintCommand(configuration, line, hints);
}

bool QxParserUtil::hintCommandEachLevel(std::string& configuration, const std::string& line,
                                        std::vector<ConfigHint>& hints) {
  VTY vty("hostName", false);
  enterConfiguration(vty, "configure terminal \n");
  return vty.hintCommandEachLevel(configuration, line, hints);
}

bool QxParserUtil::isTheSameCmd(const std::string& a, const std::string& b, bool withNo) {
  return ParserToolCase::isTheSameCmd(a, b, withNo);
}

void QxParserUtil::deleteCommands(std::vector<CiscoCommandLine*>& commands) {
  // Records of all levels may stand in the vector, and children are owned by
  // their parents: free each record once, children included. Sorted
  // addresses tell which records hang below others, and whether one is
  // listed twice (then a set keeps count of those freed).
  const std::less<const CiscoCommandLine*> byAddress;
  std::vector<CiscoCommandLine*> reachable;
  for (CiscoCommandLine* record : commands) record->getAllChildCommands(reachable);
  std::sort(reachable.begin(), reachable.end(), byAddress);
  std::vector<CiscoCommandLine*> listed(commands);
  std::sort(listed.begin(), listed.end(), byAddress);
  const bool repeated = std::adjacent_find(listed.begin(), listed.end()) != listed.end();
  std::unordered_set<CiscoCommandLine*> freed;
  for (CiscoCommandLine* record : commands) {
    if (std::binary_search(reachable.begin(), reachable.end(), record, byAddress)) continue;
    if (repeated && !freed.insert(record).second) continue;
    record->delOnlyChildCmds();
    delete record;
  }
  commands.clear();
}

void QxParserUtil::setFreeRecordsOnReturn(bool free) { gFreeRecordsOnReturn = free; }

bool QxParserUtil::freeRecordsOnReturn() { return gFreeRecordsOnReturn; }

void QxParserUtil::releaseResultRecords(std::vector<CiscoCommandLine*>& commands) {
  if (gFreeRecordsOnReturn) {
    deleteCommands(commands);
    return;
  }
  // Reachable from here, so that leak checkers do not count them.
  static auto* const kept = new std::vector<CiscoCommandLine*>();
  kept->insert(kept->end(), commands.begin(), commands.end());
  commands.clear();
}

}  // namespace qxparser

namespace qxparser {

void QxParserUtil::setReadingThreadsAllowed(bool allowed) { SideReading::setThreadsAllowed(allowed); }

bool QxParserUtil::readingThreadsAllowed() { return SideReading::threadsAllowed(); }

}  // namespace qxparser
