#include "terminal/PathOrderMemo.h"

#include <utility>

#include "config/CiscoCommandLine.h"
#include "config/CmdOrderTable.h"
#include "grammar/NodePool.h"

namespace qxparser {

namespace {

size_t mix(size_t hash, const ParserTreeNode* node) {
  return (hash ^ (reinterpret_cast<std::uintptr_t>(node) >> 4)) * 0x100000001B3ull;
}

size_t hashOf(const ParserTreeNode* modeNode, CmdPathView path) {
  size_t hash = mix(path.size(), modeNode);
  for (const CmdPathEntry& entry : path) hash = mix(hash, entry.node);
  return hash;
}

bool sameNodes(const std::vector<const ParserTreeNode*>& nodes, const ParserTreeNode* modeNode,
               CmdPathView path) {
  if (nodes.size() != path.size() + 1 || nodes[0] != modeNode) return false;
  for (size_t i = 0; i < path.size(); ++i) {
    if (nodes[i + 1] != path[i].node) return false;
  }
  return true;
}

}  // namespace

void PathOrderMemo::forgetIfStale() {
  const size_t used = NodePool::used();
  const size_t tableSize = gCmdOrderTable().size();
  if (used == mPoolUsed && tableSize == mTableSize) return;
  mSlots.clear();
  mPoolUsed = used;
  mTableSize = tableSize;
}

const PathOrderMemo::Slot* PathOrderMemo::find(size_t hash, const ParserTreeNode* modeNode,
                                               const CiscoCommandLine& command) const {
  return mSlots.find(hash, [&](const Slot& slot) { return sameNodes(slot.nodes, modeNode, command.getTreeNodes()); });
}

void PathOrderMemo::keep(size_t hash, const ParserTreeNode* modeNode, const CiscoCommandLine& command, int number) {
  Slot& slot = mSlots.add(hash);
  slot.number = number;
  slot.nodes.push_back(modeNode);
  for (const CmdPathEntry& entry : command.getTreeNodes()) slot.nodes.push_back(entry.node);
}

void PathOrderMemo::setOrderNo(CiscoCommandLine& command, ParserTreeNode* modeNode) {
  const auto& path = command.getTreeNodes();
  if (!modeNode || path.empty() || gCmdOrderTable().empty()) return;
  forgetIfStale();
  const size_t hash = hashOf(modeNode, path);
  int number = 0;
  if (const Slot* known = find(hash, modeNode, command)) {
    number = known->number;
  } else {
    // Looked up once with a number no template carries, to tell "no fit".
    const int before = command.getOrderNo();
    command.setOrderNo(kNoFit);
    command.setOrderNo(modeNode);
    number = command.getOrderNo();
    command.setOrderNo(before);
    keep(hash, modeNode, command, number);
  }
  if (number != kNoFit) command.setOrderNo(number);
}

}  // namespace qxparser
