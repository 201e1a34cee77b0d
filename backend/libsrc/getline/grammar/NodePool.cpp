#include "grammar/NodePool.h"

#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

#include "grammar/HelpTextStore.h"

namespace qxparser {

ParserTreeNode::ParserTreeNode() : mComplexCounter(std::rand()) {}

std::string ParserTreeNode::firstKeyword() const {
  return mKeywords.empty() ? std::string() : mKeywords.begin()->first;
}

std::string ParserTreeNode::firstKeywordHelp() const {
  return mKeywords.empty() ? std::string() : std::string(mKeywords.begin()->second);
}

namespace {

// Nodes past the array are built one at a time, when handed out, in blocks
// of raw storage: one allocation per block instead of two per node.
constexpr size_t kBlockSize = 1024;

struct PoolState {
  std::unique_ptr<ParserTreeNode[]> array;
  size_t next = 0;
  std::vector<void*> blocks;
};

PoolState& pool() {
  // Deliberately never destroyed: nodes outlive every static that may point
  // at them (resource maps, order tables) until the process ends.
  static PoolState* state = new PoolState();
  return *state;
}

ParserTreeNode* overflowSlot(PoolState& p, size_t index) {
  return static_cast<ParserTreeNode*>(p.blocks[index / kBlockSize]) + index % kBlockSize;
}

}  // namespace

ParserTreeNode* NodePool::newNode() {
  PoolState& p = pool();
  if (!p.array) p.array.reset(new ParserTreeNode[kArraySize]);
  if (p.next < kArraySize) return &p.array[p.next++];
  const size_t index = p.next - kArraySize;
  if (index / kBlockSize >= p.blocks.size()) p.blocks.push_back(::operator new(kBlockSize * sizeof(ParserTreeNode)));
  ParserTreeNode* node = new (overflowSlot(p, index)) ParserTreeNode();
  ++p.next;
  return node;
}

size_t NodePool::used() { return pool().next; }

void NodePool::releaseAll() {
  PoolState& p = pool();
  // Nodes of the array are rebuilt in place, so that the array stays where it
  // is and a later load costs no new allocation of 10000 nodes.
  for (size_t i = 0; p.array && i < p.next && i < kArraySize; ++i) {
    p.array[i].~ParserTreeNode();
    new (&p.array[i]) ParserTreeNode();
  }
  for (size_t i = 0; p.next > kArraySize && i < p.next - kArraySize; ++i) overflowSlot(p, i)->~ParserTreeNode();
  for (void* block : p.blocks) ::operator delete(block);
  p.blocks.clear();
  p.next = 0;
  HelpTextStore::releaseAll();
}

}  // namespace qxparser
