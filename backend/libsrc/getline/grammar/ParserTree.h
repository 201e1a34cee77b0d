// ParserTree: the grammar of one mode.
//
// Built from a top definition file by the constructor, which loads the file
// and everything it links at once. The tree owns its containers only: the
// nodes belong to NodePool and outlive it. Trees are built by
// createNewParserResource and shared by every terminal; not thread-safe.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "grammar/ParserTreeNode.h"
#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API ParserTree {
 public:
  // Loads `fileName` (below <resources>/files/) and everything it links.
  // Throws ParserException when a file cannot be opened or is malformed.
  // The boolean is accepted for compatibility and has no use.
  ParserTree(const std::string& fileName, bool load);
  ParserTree(const ParserTree&) = delete;
  ParserTree& operator=(const ParserTree&) = delete;
  ~ParserTree() = default;

  ParserTreeNode* getRoot() const { return mRoot; }

  ParserTreeNode* mRoot = nullptr;
  // Mode files already loaded by this tree, by file name.
  std::map<std::string, ParserTreeNode*> mFiles;
  // Open nodes while loading; empty afterwards.
  std::deque<ParserTreeNode*> mNodeStack;

  // Where the loader stands, for messages about malformed files: one entry per
  // file being read (nested through links), with the stack depth at its start.
  struct LoadPosition {
    std::string file;
    int line = 0;
    size_t stackBase = 0;
  };
  std::vector<LoadPosition> mLoading;
  // The definition folder (<resources>/files/), found once when the
  // outermost file of a load is opened and used for every file it links.
  std::string mFilesFolder;
};

}  // namespace qxparser
