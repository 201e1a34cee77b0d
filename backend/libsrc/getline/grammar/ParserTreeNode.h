// ParserTreeNode: one position in the grammar of a mode.
//
// A node answers to the words in mKeywords and leads on to its children. In
// spite of the word "tree" the nodes form a graph: loops, option groups and
// shared grammars add back edges, so a node may be reached from several
// parents; mParent is only the first of them. Nodes are owned by NodePool and
// live until the process ends; they are never freed one by one.
//
// After loading, nodes do not change: the walker's per-line scratch
// (mVisitedOptions, mExcluded) is kept by each thread apart (ThreadWordSet),
// so terminals on different threads may walk the same nodes at once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "grammar/FlatMap.h"
#include "grammar/FlatSet.h"
#include "grammar/RareText.h"
#include "grammar/ThreadWordSet.h"
#include "platform/Export.h"

namespace qxparser {

// Bits of ParserTreeNode::mFlags, set by the flag codes of a definition line.
enum ParserNodeFlag : uint32_t {
  NODE_FLAG_K = 1,        // "k": the value is part of the command's identity
  NODE_FLAG_O = 2,        // "o": overwriting command
  NODE_FLAG_A = 4,        // "a": additive command
  NODE_FLAG_M = 8,        // "m": mergeable command
  NODE_FLAG_MB = 16,      // "mb": text written in front of the token
  NODE_FLAG_MA = 32,      // "ma": text stored
  NODE_FLAG_LB = 64,      // "lb": loop begin
  NODE_FLAG_LE = 128,     // "le": loop end
  NODE_FLAG_FIRST = 256,  // no code sets it: "take the first child"
  NODE_FLAG_N = 512,      // "n": a no form may stop here
  NODE_FLAG_SN = 1024,    // "sn": only the no form is stored
  NODE_FLAG_SB = 2048,    // "sb": both forms are stored
  NODE_FLAG_OB = 4096,    // "ob": option begin
  NODE_FLAG_OE = 8192,    // "oe": option end
  NODE_FLAG_NC = 16384,   // "nc": overrides n
  NODE_FLAG_CF = 32768,   // "cf": words excluded by this option
  NODE_FLAG_RP = 65536,   // "rp": text replaces the token
  NODE_FLAG_NE = 131072,  // "ne": a no form may stop anywhere from here
  NODE_FLAG_NK = 262144,  // "nk": must be spelled in the no form
  NODE_FLAG_IF = 524288,  // "if": stored, read by nothing
  NODE_FLAG_WA = 1048576  // "wa": repeated values joined in typed order
};

class VTYCONF_API ParserTreeNode {
 public:
  // Sorted flat containers (FlatMap.h): iterated in key order like the tree
  // maps they stand for, but an insertion may move their entries. A word's
  // help text is a view of a text HelpTextStore keeps.
  using NodeMap = FlatMap<std::string, ParserTreeNode*>;
  using WordMap = FlatMap<std::string, std::string_view>;
  using WordSet = FlatSet<std::string>;

  ParserTreeNode();
  ParserTreeNode(const ParserTreeNode&) = delete;
  ParserTreeNode& operator=(const ParserTreeNode&) = delete;

  bool hasFlag(uint32_t flag) const { return (mFlags & flag) != 0; }
  // The first entry of mKeywords ("" when there is none).
  std::string firstKeyword() const;
  std::string firstKeywordHelp() const;

  // Members stand in an order that leaves no padding between them.
  // The mode file and mode a node opens: set on a few hundred nodes only.
  RareText mFileName;
  RareText mModeName;
  std::string mText;
  ParserTreeNode* mParent = nullptr;
  NodeMap mChildren;
  WordMap mHelp;
  NodeMap mOptionalChildren;
  NodeMap mSpareChildren;
  NodeMap mOptions;
  WordMap mKeywords;
  WordSet mConflicts;
  uint32_t mFlags = 0;
  int32_t mComplexCounter;
  bool mEntersMode = false;
  bool mIsEnd = false;
  bool mIsComplex = false;
  bool mIsOption = false;
  // Set by the loader once a complex node stands in mChildren or mOptions
  // (it may stay set after an include replaces them): only then does a
  // definition line search the blocks' words of its parent.
  bool mHasComplexChild = false;
  // Per-line scratch of the walker, kept by each thread (no storage here).
  ThreadWordSet mExcluded;
  ThreadWordSet mVisitedOptions;
};

}  // namespace qxparser
