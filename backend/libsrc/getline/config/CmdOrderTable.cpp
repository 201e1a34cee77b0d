#include "config/CmdOrderTable.h"

#include <atomic>
#include <mutex>
#include <unordered_map>
#include <utility>

#include "grammar/ParserTreeNode.h"

namespace qxparser {

namespace {

const std::string kEndWord = "\n";

// The templates of one grammar file grouped by the first node of their path.
// A template fits a command only if their first nodes agree, unless its path
// is empty or its first element ends a line (then it fits any command whose
// path parts from it at once): those stand in a list of their own. Built on
// first use and again whenever the table's vector is another one.
struct OrderIndex {
  const CiscoCommandLine* const* data = nullptr;
  size_t size = 0;
  std::unordered_map<const ParserTreeNode*, std::vector<size_t>> byFirstNode;
  std::vector<size_t> anyFirstNode;
};

std::unordered_map<std::string, OrderIndex>& orderIndexes() {
  static auto* indexes = new std::unordered_map<std::string, OrderIndex>();
  return *indexes;
}

// Guards orderIndexes: threads that read at once build indexes of the same
// table. An index, once built for the table's vector, is only read.
std::mutex gIndexesLock;

const OrderIndex& orderIndexOf(const std::string& key, const std::vector<CiscoCommandLine*>& templates) {
  std::lock_guard<std::mutex> guard(gIndexesLock);
  OrderIndex& index = orderIndexes()[key];
  if (index.data == templates.data() && index.size == templates.size()) return index;
  index = OrderIndex();
  index.data = templates.data();
  index.size = templates.size();
  for (size_t i = 0; i < templates.size(); ++i) {
    const CiscoCommandLine* templ = templates[i];
    if (!templ) continue;
    const auto& path = templ->getTreeNodes();
    if (path.empty() || path.front().words.count(kEndWord) > 0) {
      index.anyFirstNode.push_back(i);
    } else {
      index.byFirstNode[path.front().node].push_back(i);
    }
  }
  return index;
}

// The table entry and index of the grammar file asked for last: the commands
// of one mode ask for the same one in a row. One for each thread; dropped
// with the table (each clearing of the table counts up gTableClears).
std::atomic<size_t> gTableClears{0};

struct LastFile {
  size_t clears = 0;
  std::string fileName;
  const std::vector<CiscoCommandLine*>* templates = nullptr;
  const OrderIndex* index = nullptr;
};

LastFile& lastFile() {
  thread_local LastFile last;
  return last;
}

// The templates and index for the grammar file `key`; null when the table has
// no entry for it.
const OrderIndex* indexFor(const std::string& key, const std::vector<CiscoCommandLine*>*& templates) {
  LastFile& last = lastFile();
  const size_t clears = gTableClears.load(std::memory_order_acquire);
  if (last.clears != clears) {
    last = LastFile();
    last.clears = clears;
  }
  if (last.templates && last.fileName == key && last.index->data == last.templates->data() &&
      last.index->size == last.templates->size()) {
    templates = last.templates;
    return last.index;
  }
  auto found = gCmdOrderTable().find(key);
  if (found == gCmdOrderTable().end()) return nullptr;
  templates = &found->second;
  last.fileName = key;
  last.templates = templates;
  last.index = &orderIndexOf(key, *templates);
  return last.index;
}

}  // namespace

namespace {

CmdOrderTable& table() {
  static auto* table = new CmdOrderTable();
  return *table;
}

struct DeferredFilling {
  std::mutex mutex;
  std::atomic<bool> pending{false};
  std::function<void()> fill;
};

DeferredFilling& deferredFilling() {
  static auto* deferred = new DeferredFilling();
  return *deferred;
}

thread_local bool tFilling = false;

}  // namespace

CmdOrderTable& gCmdOrderTable() {
  fillDeferredCmdOrderTable();
  return table();
}

void deferCmdOrderTable(std::function<void()> fill) {
  DeferredFilling& deferred = deferredFilling();
  std::lock_guard<std::mutex> lock(deferred.mutex);
  deferred.fill = std::move(fill);
  deferred.pending.store(deferred.fill != nullptr, std::memory_order_release);
}

void fillDeferredCmdOrderTable() {
  DeferredFilling& deferred = deferredFilling();
  if (tFilling || !deferred.pending.load(std::memory_order_acquire)) return;
  std::lock_guard<std::mutex> lock(deferred.mutex);
  if (!deferred.pending.load(std::memory_order_relaxed)) return;
  std::function<void()> fill = std::move(deferred.fill);
  deferred.fill = nullptr;
  // Cleared after the filling, thrown or not: a failed filling is not
  // tried again by every terminal that follows.
  struct Done {
    DeferredFilling& deferred;
    ~Done() {
      tFilling = false;
      deferred.pending.store(false, std::memory_order_release);
    }
  } done{deferred};
  tFilling = true;
  fill();
}

void clearCmdOrderTable() {
  {
    DeferredFilling& deferred = deferredFilling();
    std::lock_guard<std::mutex> lock(deferred.mutex);
    deferred.fill = nullptr;
    deferred.pending.store(false, std::memory_order_release);
  }
  for (auto& entry : table()) {
    for (CiscoCommandLine*& templ : entry.second) {
      delete templ;
      templ = nullptr;
    }
  }
  table().clear();
  {
    std::lock_guard<std::mutex> guard(gIndexesLock);
    orderIndexes().clear();
  }
  gTableClears.fetch_add(1, std::memory_order_release);
}

bool templateFits(const CiscoCommandLine& templ, const CiscoCommandLine& command) {
  const auto& t = templ.getTreeNodes();
  const auto& c = command.getTreeNodes();
  auto ti = t.begin();
  auto ci = c.begin();
  for (;; ++ti, ++ci) {
    if (ti == t.end()) return true;
    if (ci == c.end() || ti->node != ci->node) return ti->words.count(kEndWord) > 0;
  }
}

void CiscoCommandLine::setOrderNo(ParserTreeNode* modeNode) {
  if (!modeNode || mPathSize == 0 || gCmdOrderTable().empty()) return;
  static const std::string kTopFile = "configuration_mod.cfm";
  const std::string& key = modeNode->mFileName.empty() ? kTopFile : modeNode->mFileName.str();
  const std::vector<CiscoCommandLine*>* table = nullptr;
  const OrderIndex* planned = indexFor(key, table);
  if (!planned) return;
  // The first template in file order that fits, among those that can.
  const std::vector<CiscoCommandLine*>& templates = *table;
  const OrderIndex& index = *planned;
  static const std::vector<size_t> kNone;
  auto same = index.byFirstNode.find(mPath[0].node);
  const std::vector<size_t>& first = same == index.byFirstNode.end() ? kNone : same->second;
  const std::vector<size_t>& any = index.anyFirstNode;
  auto a = first.begin();
  auto b = any.begin();
  while (a != first.end() || b != any.end()) {
    const bool takeA = b == any.end() || (a != first.end() && *a < *b);
    const size_t at = takeA ? *a++ : *b++;
    if (templateFits(*templates[at], *this)) {
      orderNo = templates[at]->getOrderNo();
      return;
    }
  }
}

}  // namespace qxparser
