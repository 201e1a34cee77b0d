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

int lineOf(const DeviceOrderKey& key) { return hasLine(key) ? key.lineNo : kAbsent; }
int orderOf(const DeviceOrderKey& key) { return hasOrder(key) ? key.orderNo : kAbsent; }
int unlinedOrderOf(const DeviceOrderKey& key) { return hasOrder(key) && !hasLine(key) ? key.orderNo : kAbsent; }

// Per position the three numbers the procedure compares: the line number of
// a command that has one; the order number of any command that has one; the
// order number of a command that has one but no line number (kAbsent where
// there is none).
struct Mins {
  int lines = kAbsent;
  int orders = kAbsent;
  int unlinedOrders = kAbsent;

  static Mins of(const DeviceOrderKey& key) { return {lineOf(key), orderOf(key), unlinedOrderOf(key)}; }
  static Mins least(const Mins& a, const Mins& b) {
    return {std::min(a.lines, b.lines), std::min(a.orders, b.orders), std::min(a.unlinedOrders, b.unlinedOrders)};
  }
  bool operator==(const Mins& other) const {
    return lines == other.lines && orders == other.orders && unlinedOrders == other.unlinedOrders;
  }
};

// Minimum of each of the three numbers per position, with "first position at
// or after `from` whose number is below `bound`".
class MinTree {
 public:
  explicit MinTree(const std::vector<DeviceOrderKey>& keys) {
    while (mWidth < keys.size()) mWidth *= 2;
    mNodes.assign(2 * mWidth, Mins());
    for (size_t i = 0; i < keys.size(); ++i) mNodes[mWidth + i] = Mins::of(keys[i]);
    for (size_t node = mWidth - 1; node >= 1; --node) mNodes[node] = Mins::least(mNodes[2 * node], mNodes[2 * node + 1]);
  }

  void set(size_t position, const Mins& value) {
    size_t node = position + mWidth;
    mNodes[node] = value;
    for (node /= 2; node >= 1; node /= 2) {
      const Mins least = Mins::least(mNodes[2 * node], mNodes[2 * node + 1]);
      // Nodes above one that keeps its value keep theirs.
      if (least == mNodes[node]) break;
      mNodes[node] = least;
    }
  }

  // Climbs from the leaf of `from` to the first subtree to its right that
  // holds a number below `bound`, then goes down to that number's leaf: a
  // near answer costs few steps.
  size_t firstBelow(int Mins::*number, size_t from, int bound) const {
    if (from >= mWidth) return kNone;
    size_t node = from + mWidth;
    while (mNodes[node].*number >= bound) {
      while ((node & 1) != 0) {
        node /= 2;
        if (node == 0) return kNone;
      }
      ++node;
    }
    while (node < mWidth) {
      node *= 2;
      if (mNodes[node].*number >= bound) ++node;
    }
    return node - mWidth;
  }

 private:
  size_t mWidth = 1;
  std::vector<Mins> mNodes;
};

// Whether `other`, standing behind `held`, beats it: the comparison of the
// procedure.
bool beats(const DeviceOrderKey& held, const DeviceOrderKey& other) {
  if (hasLine(held) && hasLine(other)) return other.lineNo < held.lineNo;
  if (hasOrder(held) && hasOrder(other)) return other.orderNo < held.orderNo;
  return false;
}

// Positions looked at one by one behind a candidate before the trees are asked.
constexpr size_t kNearScan = 16;

// Whether some key behind `held` beats it, given the least line number,
// order number and order number without a line number behind it.
bool beaten(const DeviceOrderKey& held, int lines, int orders, int unlinedOrders) {
  if (hasLine(held)) return lines < held.lineNo || (hasOrder(held) && unlinedOrders < held.orderNo);
  return hasOrder(held) && orders < held.orderNo;
}

// The first position whose key a later key beats (the size when none is):
// the procedure leaves every position before it as it stands.
size_t firstBeaten(const std::vector<DeviceOrderKey>& keys) {
  size_t first = keys.size();
  int lines = kAbsent;
  int orders = kAbsent;
  int unlinedOrders = kAbsent;
  for (size_t position = keys.size(); position-- > 0;) {
    const DeviceOrderKey& key = keys[position];
    if (beaten(key, lines, orders, unlinedOrders)) first = position;
    lines = std::min(lines, lineOf(key));
    orders = std::min(orders, orderOf(key));
    unlinedOrders = std::min(unlinedOrders, unlinedOrderOf(key));
  }
  return first;
}

// Levels up to this size are sorted by the plain procedure: its scan costs
// less than the trees.
constexpr size_t kPlainLimit = 24;

// The procedure by minimum trees, over the whole of `keys`.
std::vector<size_t> selectionOrderByTrees(const std::vector<DeviceOrderKey>& keys) {
  const size_t count = keys.size();
  std::vector<size_t> order(count);
  std::iota(order.begin(), order.end(), size_t{0});
  // The keys in their present places, swapped along with `order`.
  std::vector<DeviceOrderKey> placed(keys);
  MinTree mins(keys);
  // The first position behind `candidate` whose key beats the key there. A
  // few positions are looked at one by one (beaters often stand close, in a
  // stretch of new commands), the rest through the trees: a command with a
  // line number meets others with line numbers by line, and the rest by order.
  const auto nextBeater = [&](size_t candidate) {
    const DeviceOrderKey& held = placed[candidate];
    const size_t near = std::min(count, candidate + 1 + kNearScan);
    for (size_t j = candidate + 1; j < near; ++j) {
      if (beats(held, placed[j])) return j;
    }
    if (near == count) return kNone;
    size_t next = kNone;
    if (hasLine(held)) {
      next = mins.firstBelow(&Mins::lines, near, held.lineNo);
      if (hasOrder(held)) {
        const size_t byOrder = mins.firstBelow(&Mins::unlinedOrders, near, held.orderNo);
        if (byOrder < next) next = byOrder;
      }
    } else if (hasOrder(held)) {
      next = mins.firstBelow(&Mins::orders, near, held.orderNo);
    }
    return next < count ? next : kNone;
  };
  for (size_t i = 0; i < count; ++i) {
    // The candidate only changes at the first later position that beats it;
    // jump from one such position to the next.
    size_t candidate = i;
    for (size_t next = nextBeater(candidate); next != kNone; next = nextBeater(candidate)) candidate = next;
    if (candidate != i) {
      std::swap(order[i], order[candidate]);
      std::swap(placed[i], placed[candidate]);
      mins.set(i, Mins::of(placed[i]));
      mins.set(candidate, Mins::of(placed[candidate]));
    }
  }
  return order;
}

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
  // The positions ahead of the first beaten one stay; the procedure over the
  // rest is the procedure over those keys alone (a pass only looks behind
  // its own position).
  const size_t settled = firstBeaten(keys);
  std::vector<size_t> order(keys.size());
  std::iota(order.begin(), order.end(), size_t{0});
  if (settled == keys.size()) return order;
  const std::vector<DeviceOrderKey> rest(keys.begin() + static_cast<long>(settled), keys.end());
  const std::vector<size_t> restOrder =
      rest.size() <= kPlainLimit ? selectionOrderPlain(rest) : selectionOrderByTrees(rest);
  for (size_t k = 0; k < restOrder.size(); ++k) order[settled + k] = settled + restOrder[k];
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
