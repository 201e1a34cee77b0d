#include "terminal/PathOrderMemo.h"

#include "config/CiscoCommandLine.h"
#include "config/CmdOrderTable.h"
#include "grammar/NodePool.h"

namespace qxparser {

void PathOrderMemo::forgetIfStale() {
  const size_t used = NodePool::used();
  const size_t tableSize = gCmdOrderTable().size();
  if (used == mPoolUsed && tableSize == mTableSize) return;
  mNumbers.clear();
  mPoolUsed = used;
  mTableSize = tableSize;
}

void PathOrderMemo::setOrderNo(CiscoCommandLine& command, ParserTreeNode* modeNode) {
  const auto& path = command.getTreeNodes();
  if (!modeNode || path.empty() || gCmdOrderTable().empty()) return;
  forgetIfStale();
  mKey.clear();
  mKey.push_back(modeNode);
  for (const CmdPathEntry& entry : path) mKey.push_back(entry.node);
  auto known = mNumbers.find(mKey);
  if (known == mNumbers.end()) {
    // Looked up once with a number no template carries, to tell "no fit".
    const int before = command.getOrderNo();
    command.setOrderNo(kNoFit);
    command.setOrderNo(modeNode);
    known = mNumbers.emplace(mKey, command.getOrderNo()).first;
    command.setOrderNo(before);
  }
  if (known->second != kNoFit) command.setOrderNo(known->second);
}

}  // namespace qxparser
