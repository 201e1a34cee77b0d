// PathOrderMemo: the order numbers a terminal has already looked up.
//
// A command's order number comes from the first template of its mode's
// command-order table that fits its path, and a fit looks only at the nodes
// of the path: so the answer for a mode node and a sequence of path nodes is
// the same every time while the grammar and the table stay as they are. A
// configuration repeats the same few paths (every "switchport mode access"),
// so a terminal keeps the answers it found and looks each path up once. The
// memo forgets everything when nodes have been made or the table has changed
// its size since it was filled, and starts over when it has grown to its
// limit. Owned by one terminal model; not shared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "grammar/MemoSlots.h"

namespace qxparser {

class CiscoCommandLine;
class ParserTreeNode;

class PathOrderMemo {
 public:
  // Sets the order number of `command` exactly as
  // command.setOrderNo(modeNode) does.
  void setOrderNo(CiscoCommandLine& command, ParserTreeNode* modeNode);

 private:
  struct Slot {
    size_t hash = 0;
    bool used = false;
    int number = 0;
    // The mode node, then the nodes of the path.
    std::vector<const ParserTreeNode*> nodes;
  };
  // No template fits: the command keeps the number it had.
  static constexpr int kNoFit = INT32_MIN;

  void forgetIfStale();
  const Slot* find(size_t hash, const ParserTreeNode* modeNode, const CiscoCommandLine& command) const;
  void keep(size_t hash, const ParserTreeNode* modeNode, const CiscoCommandLine& command, int number);

  MemoSlots<Slot, 64, 16384> mSlots;
  size_t mPoolUsed = 0;
  size_t mTableSize = 0;
};

}  // namespace qxparser
