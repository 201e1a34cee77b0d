// The merge's selection sort, plain and with minimum trees.
#include "config/DeviceOrderSort.h"

#include <algorithm>
#include <climits>
#include <numeric>
#include <utility>

namespace qxparser {

namespace {

constexpr size_t kNone = static_cast<size_t>(-1);
constexpr int kAbsent = INT_MAX;

bool hasLine(const DeviceOrderKey& key) { return key.lineNo >= 1; }
bool hasOrder(const DeviceOrderKey& key) { return key.orderNo >= 1; }

// Minimum of an int per position, with "first position at or after `from`
// whose value is below `bound`".
class MinTree {
 public:
  explicit MinTree(size_t count) {
    while (mWidth < count) mWidth *= 2;
    mNodes.assign(2 * mWidth, kAbsent);
  }

  void set(size_t position, int value) {
    size_t node = position + mWidth;
    mNodes[node] = value;
    for (node /= 2; node >= 1; node /= 2) mNodes[node] = std::min(mNodes[2 * node], mNodes[2 * node + 1]);
  }

  size_t firstBelow(size_t from, int bound) const { return find(1, 0, mWidth, from, bound); }

 private:
  size_t find(size_t node, size_t low, size_t high, size_t from, int bound) const {
    if (high <= from || mNodes[node] >= bound) return kNone;
    if (high - low == 1) return low;
    const size_t middle = low + (high - low) / 2;
    const size_t left = find(2 * node, low, middle, from, bound);
    if (left != kNone) return left;
    return find(2 * node + 1, middle, high, from, bound);
  }

  size_t mWidth = 1;
  std::vector<int> mNodes;
};

}  // namespace

std::vector<size_t> selectionOrderPlain(const std::vector<DeviceOrderKey>& keys) {
  std::vector<size_t> order(keys.size());
  std::iota(order.begin(), order.end(), size_t{0});
  const size_t count = order.size();
  for (size_t i = 0; i < count; ++i) {
    size_t candidate = i;
    for (size_t j = i + 1; j < count; ++j) {
      const DeviceOrderKey& held = keys[order[candidate]];
      const DeviceOrderKey& other = keys[order[j]];
      if (hasLine(held) && hasLine(other)) {
        if (held.lineNo > other.lineNo) candidate = j;
      } else if (hasOrder(held) && hasOrder(other)) {
        if (held.orderNo > other.orderNo) candidate = j;
      }
    }
    if (candidate != i) std::swap(order[i], order[candidate]);
  }
  return order;
}

std::vector<size_t> selectionOrder(const std::vector<DeviceOrderKey>& keys) {
  const size_t count = keys.size();
  std::vector<size_t> order(count);
  std::iota(order.begin(), order.end(), size_t{0});
  // Per position: the line number of a command that has one; the order
  // number of any command that has one; the order number of a command that
  // has one but no line number. A command with a line number meets others
  // with line numbers by line, and the rest by order.
  MinTree lines(count);
  MinTree orders(count);
  MinTree unlinedOrders(count);
  auto place = [&](size_t position) {
    const DeviceOrderKey& key = keys[order[position]];
    lines.set(position, hasLine(key) ? key.lineNo : kAbsent);
    orders.set(position, hasOrder(key) ? key.orderNo : kAbsent);
    unlinedOrders.set(position, hasOrder(key) && !hasLine(key) ? key.orderNo : kAbsent);
  };
  for (size_t position = 0; position < count; ++position) place(position);

  for (size_t i = 0; i < count; ++i) {
    // The candidate only changes at the first later position that beats it;
    // jump from one such position to the next.
    size_t candidate = i;
    for (;;) {
      const DeviceOrderKey& held = keys[order[candidate]];
      size_t next = kNone;
      if (hasLine(held)) {
        next = lines.firstBelow(candidate + 1, held.lineNo);
        if (hasOrder(held)) {
          const size_t byOrder = unlinedOrders.firstBelow(candidate + 1, held.orderNo);
          if (byOrder < next) next = byOrder;
        }
      } else if (hasOrder(held)) {
        next = orders.firstBelow(candidate + 1, held.orderNo);
      }
      if (next == kNone || next >= count) break;
      candidate = next;
    }
    if (candidate != i) {
      std::swap(order[i], order[candidate]);
      place(i);
      place(candidate);
    }
  }
  return order;
}

void sortByDeviceOrder(std::vector<CiscoCommandLine*>& commands) {
  std::vector<DeviceOrderKey> keys;
  keys.reserve(commands.size());
  for (const CiscoCommandLine* command : commands) keys.push_back({command->getLineNo(), command->getOrderNo()});
  const std::vector<size_t> order = selectionOrder(keys);
  std::vector<CiscoCommandLine*> sorted;
  sorted.reserve(commands.size());
  for (size_t index : order) sorted.push_back(commands[index]);
  commands.swap(sorted);
}

}  // namespace qxparser
