// PathOrderMemo: the order numbers a terminal has already looked up.
//
// A command's order number comes from the first template of its mode's
// command-order table that fits its path, and a fit looks only at the nodes
// of the path: so the answer for a mode node and a sequence of path nodes is
// the same every time while the grammar and the table stay as they are. A
// configuration repeats the same few paths (every "switchport mode access"),
// so a terminal keeps the answers it found and looks each path up once. The
// memo forgets everything when nodes have been made or the table has changed
// its size since it was filled. Owned by one terminal model; not shared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace qxparser {

class CiscoCommandLine;
class ParserTreeNode;

class PathOrderMemo {
 public:
  // Sets the order number of `command` exactly as
  // command.setOrderNo(modeNode) does.
  void setOrderNo(CiscoCommandLine& command, ParserTreeNode* modeNode);

 private:
  using Key = std::vector<const ParserTreeNode*>;
  struct KeyHash {
    size_t operator()(const Key& key) const {
      size_t hash = key.size();
      for (const ParserTreeNode* node : key) hash = hash * 1000003u ^ (reinterpret_cast<std::uintptr_t>(node) >> 4);
      return hash;
    }
  };
  // No template fits: the command keeps the number it had.
  static constexpr int kNoFit = INT32_MIN;

  void forgetIfStale();

  std::unordered_map<Key, int, KeyHash> mNumbers;
  Key mKey;  // the key being looked up (kept to spare an allocation)
  size_t mPoolUsed = 0;
  size_t mTableSize = 0;
};

}  // namespace qxparser
