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

size_t hashOf(const ParserTreeNode* modeNode, const std::vector<CmdPathEntry>& path) {
  size_t hash = mix(path.size(), modeNode);
  for (const CmdPathEntry& entry : path) hash = mix(hash, entry.node);
  return hash;
}

bool sameNodes(const std::vector<const ParserTreeNode*>& nodes, const ParserTreeNode* modeNode,
               const std::vector<CmdPathEntry>& path) {
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
  mCount = 0;
  mPoolUsed = used;
  mTableSize = tableSize;
}

const PathOrderMemo::Slot* PathOrderMemo::find(size_t hash, const ParserTreeNode* modeNode,
                                               const CiscoCommandLine& command) const {
  if (mSlots.empty()) return nullptr;
  const size_t mask = mSlots.size() - 1;
  for (size_t at = hash & mask;; at = (at + 1) & mask) {
    const Slot& slot = mSlots[at];
    if (!slot.used) return nullptr;
    if (slot.hash == hash && sameNodes(slot.nodes, modeNode, command.getTreeNodes())) return &slot;
  }
}

void PathOrderMemo::keep(size_t hash, const ParserTreeNode* modeNode, const CiscoCommandLine& command, int number) {
  if (2 * (mCount + 1) > mSlots.size()) grow();
  const size_t mask = mSlots.size() - 1;
  size_t at = hash & mask;
  while (mSlots[at].used) at = (at + 1) & mask;
  Slot& slot = mSlots[at];
  slot.used = true;
  slot.hash = hash;
  slot.number = number;
  slot.nodes.push_back(modeNode);
  for (const CmdPathEntry& entry : command.getTreeNodes()) slot.nodes.push_back(entry.node);
  ++mCount;
}

// Twice the room, the numbers moved over; past the limit, empty again.
void PathOrderMemo::grow() {
  if (mSlots.size() >= kMostSlots) {
    for (Slot& slot : mSlots) slot = Slot();
    mCount = 0;
    return;
  }
  std::vector<Slot> old;
  old.swap(mSlots);
  mSlots.resize(old.empty() ? kFirstSlots : 2 * old.size());
  const size_t mask = mSlots.size() - 1;
  for (Slot& slot : old) {
    if (!slot.used) continue;
    size_t at = slot.hash & mask;
    while (mSlots[at].used) at = (at + 1) & mask;
    mSlots[at] = std::move(slot);
  }
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
