#include "grammar/NodePool.h"

#include <cstdlib>
#include <list>
#include <memory>
#include <new>

namespace qxparser {

ParserTreeNode::ParserTreeNode() : mComplexCounter(std::rand()) {}

std::string ParserTreeNode::firstKeyword() const {
  return mKeywords.empty() ? std::string() : mKeywords.begin()->first;
}

std::string ParserTreeNode::firstKeywordHelp() const {
  return mKeywords.empty() ? std::string() : mKeywords.begin()->second;
}

namespace {

struct PoolState {
  std::unique_ptr<ParserTreeNode[]> array;
  size_t next = 0;
  std::list<std::unique_ptr<ParserTreeNode>> overflow;
};

PoolState& pool() {
  // Deliberately never destroyed: nodes outlive every static that may point
  // at them (resource maps, order tables) until the process ends.
  static PoolState* state = new PoolState();
  return *state;
}

}  // namespace

ParserTreeNode* NodePool::newNode() {
  PoolState& p = pool();
  if (!p.array) p.array.reset(new ParserTreeNode[kArraySize]);
  if (p.next < kArraySize) return &p.array[p.next++];
  p.overflow.push_back(std::make_unique<ParserTreeNode>());
  ++p.next;
  return p.overflow.back().get();
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
  p.overflow.clear();
  p.next = 0;
}

}  // namespace qxparser
