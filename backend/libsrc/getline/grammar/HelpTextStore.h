// HelpTextStore: where the help texts of the grammar's words are kept.
//
// Every word a definition line names carries a help text, and the loader puts
// it in two maps (the word's own node and its parent's help table), and a
// linked mode file copies its root's table into every node that opens the
// mode. The maps hold views of texts kept here, end to end in large blocks:
// loading allocates a block now and then instead of a string per map entry,
// the maps move views, not strings, when they insert, and a mode's table
// copied into a node copies views. A text asked for twice in a row (a word
// and its parent's table) is kept once.
//
// Texts are kept as long as the grammar nodes are (NodePool): until the
// process ends, or until a host that reloads grammars has the pool take its
// nodes back, which releases the texts too. Like NodePool, not thread-safe:
// grammars are loaded by one thread at a time.
#pragma once

#include <string_view>

namespace qxparser {

class HelpTextStore {
 public:
  // A view of a kept copy of `text` (an empty view for an empty text), valid
  // until the process ends or releaseAll.
  static std::string_view keep(std::string_view text);
  // Frees every text (NodePool::releaseAll calls it with the nodes gone).
  static void releaseAll();
};

}  // namespace qxparser
