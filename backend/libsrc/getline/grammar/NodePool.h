// NodePool: where every grammar node comes from.
//
// A fixed array of 10000 constructed nodes, built once before the first
// definition file is read, is handed out in order; past its end nodes are
// built one at a time in blocks of 1024. Nothing is returned before the
// process ends (unless a host that reloads grammars calls releaseAll), so node
// pointers stay valid across destroyParserResource and a later
// createNewParserResource. Not thread-safe.
#pragma once

#include <cstddef>

#include "grammar/ParserTreeNode.h"
#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API NodePool {
 public:
  static constexpr size_t kArraySize = 10000;

  // A fresh node, owned by the pool.
  static ParserTreeNode* newNode();
  // Number of nodes handed out so far.
  static size_t used();
  // vtyconf's own: takes every node back (and the help texts the nodes held,
  // HelpTextStore) and starts the pool over, for a host
  // that loads grammars again and again in one process (a fuzzer, a test).
  // Only safe when nothing refers to a node any more: no tree, no record, no
  // loader table (clearLoaderTables) and no command-order table.
  static void releaseAll();
};

}  // namespace qxparser
