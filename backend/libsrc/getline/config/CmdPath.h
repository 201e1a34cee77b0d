// CmdPathEntry and CmdPathView: a command's path through the grammar.
//
// A path is the list of grammar nodes a command's words matched, each with
// the sorted words that matched it; the end of a line is the word "\n" on the
// end-of-line node. A record keeps its path in one block of its own (no
// vector header in the record, see CiscoCommandLine) and hands it out as a
// CmdPathView: the elements in order, read-only, iterated by pointer. A view
// is good until the record's path changes or the record goes.
#pragma once

#include <cstddef>
#include <iterator>

#include "config/PathWords.h"

namespace qxparser {

class ParserTreeNode;

// One element of a command's path: a grammar node and the sorted words that
// matched it.
struct CmdPathEntry {
  ParserTreeNode* node = nullptr;
  PathWords words;
};

class CmdPathView {
 public:
  using value_type = CmdPathEntry;
  using const_iterator = const CmdPathEntry*;
  using iterator = const_iterator;
  using const_reverse_iterator = std::reverse_iterator<const_iterator>;

  CmdPathView() = default;
  CmdPathView(const CmdPathEntry* items, size_t size) : mItems(items), mSize(size) {}

  const CmdPathEntry* begin() const { return mItems; }
  const CmdPathEntry* end() const { return mItems + mSize; }
  const_reverse_iterator rbegin() const { return const_reverse_iterator(end()); }
  const_reverse_iterator rend() const { return const_reverse_iterator(begin()); }
  size_t size() const { return mSize; }
  bool empty() const { return mSize == 0; }
  const CmdPathEntry& operator[](size_t at) const { return mItems[at]; }
  const CmdPathEntry& front() const { return mItems[0]; }
  const CmdPathEntry& back() const { return mItems[mSize - 1]; }

 private:
  const CmdPathEntry* mItems = nullptr;
  size_t mSize = 0;
};

}  // namespace qxparser
