#include "config/CmdOrderTable.h"

#include "grammar/ParserTreeNode.h"

namespace qxparser {

CmdOrderTable& gCmdOrderTable() {
  static auto* table = new CmdOrderTable();
  return *table;
}

void clearCmdOrderTable() {
  for (auto& entry : gCmdOrderTable()) {
    for (CiscoCommandLine*& templ : entry.second) {
      delete templ;
      templ = nullptr;
    }
  }
  gCmdOrderTable().clear();
}

bool templateFits(const CiscoCommandLine& templ, const CiscoCommandLine& command) {
  const auto& t = templ.getTreeNodes();
  const auto& c = command.getTreeNodes();
  auto ti = t.begin();
  auto ci = c.begin();
  for (;; ++ti, ++ci) {
    if (ti == t.end()) return true;
    if (ci == c.end() || ti->node != ci->node) return ti->words.count("\n") > 0;
  }
}

void CiscoCommandLine::setOrderNo(ParserTreeNode* modeNode) {
  if (!modeNode || treeNodes.empty() || gCmdOrderTable().empty()) return;
  const std::string key = modeNode->mFileName.empty() ? "configuration_mod.cfm" : modeNode->mFileName;
  auto found = gCmdOrderTable().find(key);
  if (found == gCmdOrderTable().end()) return;
  for (const CiscoCommandLine* templ : found->second) {
    if (templ && templateFits(*templ, *this)) {
      orderNo = templ->getOrderNo();
      return;
    }
  }
}

}  // namespace qxparser
