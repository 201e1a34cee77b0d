#include "grammar/NodeLookup.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <functional>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "grammar/DefinitionLoader.h"
#include "grammar/LookupMemo.h"
#include "grammar/NodePool.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/ValueKinds.h"

namespace qxparser {

namespace {

bool startsWithAmpersand(const std::string& word) { return !word.empty() && word[0] == '&'; }

// Pattern steps of findChild over mChildren, then mOptions.
template <typename Test>
ParserTreeNode* firstChildWithWord(ParserTreeNode* node, Test test) {
  for (auto* map : {&node->mChildren, &node->mOptions}) {
    for (auto& entry : *map) {
      for (auto& word : entry.second->mKeywords) {
        if (test(word.first)) return entry.second;
      }
    }
  }
  return nullptr;
}

void addCandidates(const ParserTreeNode* child, const std::string& token,
                   std::map<std::string, ParserTreeNode*>& candidates, ParserTreeNode* target) {
  for (auto& word : child->mKeywords) {
    if (ParserToolCase::partialMatched(word.first, token)) candidates[word.first] = target;
    if (startsWithAmpersand(word.first)) {
      auto table = gKeyTables().find(word.first);
      if (table == gKeyTables().end()) continue;
      for (auto& tableWord : table->second) {
        if (ParserToolCase::partialMatched(tableWord.first, token)) candidates[tableWord.first] = target;
      }
    }
  }
}

void markVisited(ParserTreeNode* at, const std::string& token, const ParserTreeNode* child) {
  at->mVisitedOptions.insert(token);
  if (child->mIsComplex) {
    for (auto& word : child->mKeywords) at->mVisitedOptions.insert(word.first);
  }
}

// Which words can only match a token by being equal to it: the pattern
// tests answer true for other tokens only for these.
bool matchesOtherTokens(const std::string& word) {
  static const std::set<std::string> kPatterns = {"a.b.c.d", "a.b.c.d/<1-32>", "oui:vpn-index", "id",
                                                  "+/-<metric>", "+/-<delay>", "h.h.h"};
  if (word.find(':') != std::string::npos || kPatterns.count(word) > 0) return true;
  // Every kind of value is named with a slash ("a.b.c.d/mask", "list/...")
  // or is a range, which has a dash.
  if (word.find('-') == std::string::npos && word.find('/') == std::string::npos) return false;
  return ValueKinds::isKind(word);
}

// A numeric range word ("1-4094", "1.0-9.9") is matched by the range test,
// which takes only one or two runs of digits joined by a dot: any other
// token matches such a word only by being equal to it.
class PatternTest {
 public:
  explicit PatternTest(const std::string& token) : mToken(token) {}

  bool accepts(const std::string& word, bool range) {
    if (!range) return ParserToolCase::isNewValidInput(word, mToken);
    // A word with a dash never equals a dotted number.
    if (!isDottedNumber()) return word == mToken;
    return inRange(word);
  }

 private:
  // The range test for a dotted-number token, without copies: as many parts
  // as the bounds, each part between them as a decimal of any length.
  bool inRange(std::string_view word) const {
    const size_t dash = word.find('-');
    std::string_view low[2];
    std::string_view high[2];
    std::string_view value[2];
    const size_t parts = dottedParts(word.substr(0, dash), low);
    dottedParts(word.substr(dash + 1), high);
    if (dottedParts(mToken, value) != parts) return false;
    for (size_t i = 0; i < parts; ++i) {
      if (compareNumbers(value[i], low[i]) < 0 || compareNumbers(value[i], high[i]) > 0) return false;
    }
    return true;
  }

  // Cuts "X" or "X.Y" (never more parts: both are dotted numbers).
  static size_t dottedParts(std::string_view text, std::string_view* parts) {
    const size_t dot = text.find('.');
    parts[0] = text.substr(0, dot);
    if (dot == std::string_view::npos) return 1;
    parts[1] = text.substr(dot + 1);
    return 2;
  }

  static std::string_view significant(std::string_view number) {
    const size_t first = number.find_first_not_of('0');
    return first == std::string_view::npos ? std::string_view("0") : number.substr(first);
  }

  static int compareNumbers(std::string_view a, std::string_view b) {
    a = significant(a);
    b = significant(b);
    if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
    const int order = a.compare(b);
    return order < 0 ? -1 : (order == 0 ? 0 : 1);
  }

  bool isDottedNumber() {
    if (mDotted < 0) mDotted = dottedNumber(mToken) ? 1 : 0;
    return mDotted == 1;
  }

  static bool dottedNumber(const std::string& text) {
    bool digits = false;
    int dots = 0;
    for (char c : text) {
      if (c == '.') {
        if (!digits || ++dots > 1) return false;
        digits = false;
      } else if (std::isdigit(static_cast<unsigned char>(c))) {
        digits = true;
      } else {
        return false;
      }
    }
    return digits;
  }

  const std::string& mToken;
  int mDotted = -1;  // unknown until asked
};

bool isCatchAll(const std::string& word) { return word == "hostname or a.b.c.d" || word == "word" || word == "line"; }

// The keys of a node's mChildren and mOptions in one open-addressed hash
// table: for a node with many of them, one probe instead of two binary
// searches over the sorted maps. Answers exactly what the two finds answer.
class ExactWords {
 public:
  struct Found {
    ParserTreeNode* child = nullptr;   // mChildren's entry of the word
    ParserTreeNode* option = nullptr;  // mOptions's entry of the word
    bool isChild = false;
    bool isOption = false;
  };

  void build(const ParserTreeNode* node) {
    size_t capacity = 8;
    while (capacity < 2 * (node->mChildren.size() + node->mOptions.size())) capacity *= 2;
    mSlots.assign(capacity, Slot());
    for (auto& entry : node->mChildren) {
      Found& found = slotOf(entry.first).found;
      found.child = entry.second;
      found.isChild = true;
    }
    for (auto& entry : node->mOptions) {
      Found& found = slotOf(entry.first).found;
      found.option = entry.second;
      found.isOption = true;
    }
  }

  const Found* find(const std::string& token) const {
    const size_t hash = std::hash<std::string>()(token);
    const size_t mask = mSlots.size() - 1;
    for (size_t at = hash & mask;; at = (at + 1) & mask) {
      const Slot& slot = mSlots[at];
      if (!slot.word) return nullptr;
      if (slot.hash == hash && *slot.word == token) return &slot.found;
    }
  }

 private:
  struct Slot {
    size_t hash = 0;
    const std::string* word = nullptr;
    Found found;
  };

  Slot& slotOf(const std::string& word) {
    const size_t hash = std::hash<std::string>()(word);
    const size_t mask = mSlots.size() - 1;
    for (size_t at = hash & mask;; at = (at + 1) & mask) {
      Slot& slot = mSlots[at];
      if (!slot.word) {
        slot.hash = hash;
        slot.word = &word;
        return slot;
      }
      if (slot.hash == hash && *slot.word == word) return slot;
    }
  }

  std::vector<Slot> mSlots;
};

// Nodes with at least this many children and options are searched by hash.
constexpr size_t kHashedWords = 12;

bool searchedByHash(const ParserTreeNode* node) {
  return node->mChildren.size() + node->mOptions.size() >= kHashedWords;
}

struct TablePlan;

// What the searches of findChild, lookupPass and hasInterfaceWords need of one
// node, worked out once: the candidates of each step in the order the plain
// scans visit them, with the words that cannot match a step left out. The
// exact words and the steps by word (angle-bracket, pattern and catch-all
// words) are worked out only when a search first gets to them: most nodes
// are left at once by an exact word.
struct LookupPlan {
  std::vector<ParserTreeNode*> complexChildren;
  std::vector<ParserTreeNode*> complexOptions;
  // A KeyFile word of a child or option; its table is found on first use.
  struct TableRef {
    const std::string* name;
    ParserTreeNode* node;
    bool resolved = false;
    const KeyTable* table = nullptr;
    const TablePlan* plan = nullptr;
  };
  std::vector<TableRef> childTables;
  std::vector<TableRef> optionTables;
  std::vector<std::pair<const std::string*, ParserTreeNode*>> angleWords;
  // The pattern step: the words that only match themselves, sorted by word
  // and then by position, so that the first of equal words is the first
  // appearance; the other words in order, with their positions.
  struct LiteralWord {
    const std::string* word;
    size_t position;
    ParserTreeNode* node;
  };
  std::vector<LiteralWord> literalWords;
  struct PatternWord {
    size_t position;
    const std::string* word;
    ParserTreeNode* node;
    bool range;  // a numeric range word (see PatternTest)
  };
  std::vector<PatternWord> patternWords;
  ParserTreeNode* catchAll = nullptr;
  int interfaceWords = -1;  // unknown until asked
  ExactWords exactWords;    // for nodes searchedByHash only
  bool exactWordsBuilt = false;
  bool wordStepsBuilt = false;
};

// Same as KeyTable lookups in matchesKeyTable: the words that can match a
// token other than themselves, in table order.
struct TablePlan {
  const KeyTable* table = nullptr;
  struct Word {
    const std::string* word;
    bool bracketed;
    bool range;  // a numeric range word (see PatternTest)
  };
  std::vector<Word> words;
};

// Whether plans are used, and how often they were reset (KeyFiles read):
// one setting for the process.
std::atomic<bool> gPlansEnabled{true};
std::atomic<size_t> gPlansGeneration{0};

// Each thread keeps plans of its own: a plan is filled in part by part as
// searches first reach them, so a plan shared by two walking threads would
// be written while the other reads it. A thread builds only the plans of the
// nodes its walks search.
struct PlanCache {
  size_t poolUsed = static_cast<size_t>(-1);
  size_t builtGeneration = static_cast<size_t>(-1);
  std::unordered_map<const ParserTreeNode*, LookupPlan> nodes;
  std::unordered_map<std::string, TablePlan> tables;
};

bool plansOn() { return gPlansEnabled.load(std::memory_order_relaxed); }

PlanCache& planCache() {
  thread_local PlanCache cache;
  const size_t generation = gPlansGeneration.load(std::memory_order_acquire);
  if (cache.builtGeneration != generation) {
    cache.nodes.clear();
    cache.tables.clear();
    cache.builtGeneration = generation;
  }
  return cache;
}

// Plans stay valid while no node is made (every load makes nodes; the nodes
// never change afterwards) and no KeyFile is read.
PlanCache& currentPlans() {
  PlanCache& cache = planCache();
  const size_t used = NodePool::used();
  if (cache.poolUsed != used) {
    cache.nodes.clear();
    cache.tables.clear();
    cache.poolUsed = used;
  }
  return cache;
}

LookupPlan& planOf(ParserTreeNode* node) {
  PlanCache& cache = currentPlans();
  auto found = cache.nodes.find(node);
  if (found != cache.nodes.end()) return found->second;
  LookupPlan& plan = cache.nodes[node];
  for (auto& entry : node->mChildren) {
    if (entry.second->mIsComplex) plan.complexChildren.push_back(entry.second);
    for (auto& word : entry.second->mKeywords) {
      if (startsWithAmpersand(word.first)) plan.childTables.push_back({&word.first, entry.second});
    }
  }
  for (auto& entry : node->mOptions) {
    if (entry.second->mIsComplex) plan.complexOptions.push_back(entry.second);
    for (auto& word : entry.second->mKeywords) {
      if (startsWithAmpersand(word.first)) plan.optionTables.push_back({&word.first, entry.second});
    }
  }
  return plan;
}

LookupPlan& exactPlanOf(ParserTreeNode* node) {
  LookupPlan& plan = planOf(node);
  if (!plan.exactWordsBuilt) {
    plan.exactWords.build(node);
    plan.exactWordsBuilt = true;
  }
  return plan;
}

// The steps by word of `plan`, the plan of `node`, worked out on first use.
LookupPlan& withWordSteps(ParserTreeNode* node, LookupPlan& plan) {
  if (plan.wordStepsBuilt) return plan;
  plan.wordStepsBuilt = true;
  size_t position = 0;
  for (auto* map : {&node->mChildren, &node->mOptions}) {
    for (auto& entry : *map) {
      for (auto& word : entry.second->mKeywords) {
        if (ParserToolCase::isPvFormStr(word.first)) plan.angleWords.emplace_back(&word.first, entry.second);
        if (matchesOtherTokens(word.first)) {
          plan.patternWords.push_back({position, &word.first, entry.second, ValueKinds::isRange(word.first)});
        } else {
          plan.literalWords.push_back({&word.first, position, entry.second});
        }
        if (!plan.catchAll && isCatchAll(word.first)) plan.catchAll = entry.second;
        ++position;
      }
    }
  }
  std::sort(plan.literalWords.begin(), plan.literalWords.end(),
            [](const LookupPlan::LiteralWord& a, const LookupPlan::LiteralWord& b) {
              const int order = a.word->compare(*b.word);
              return order != 0 ? order < 0 : a.position < b.position;
            });
  return plan;
}

const TablePlan* tablePlanOf(const std::string& tableName) {
  PlanCache& cache = currentPlans();
  auto found = cache.tables.find(tableName);
  if (found != cache.tables.end()) return found->second.table ? &found->second : nullptr;
  TablePlan& plan = cache.tables[tableName];
  auto table = gKeyTables().find(tableName);
  if (table == gKeyTables().end()) return nullptr;
  plan.table = &table->second;
  for (auto& entry : table->second) {
    const bool bracketed = ParserToolCase::isPvFormStr(entry.first);
    if (bracketed || matchesOtherTokens(entry.first)) {
      plan.words.push_back({&entry.first, bracketed, ValueKinds::isRange(entry.first)});
    }
  }
  return &plan;
}

// matchesKeyTable's planned test once the token is not a word of the table.
bool tableWordsAccept(const TablePlan& plan, const std::string& token) {
  // Only bracketed and pattern words can match a token other than
  // themselves.
  PatternTest test(token);
  for (const auto& entry : plan.words) {
    const std::string& word = *entry.word;
    if (entry.bracketed && ParserToolCase::isValidInput(word, token)) return true;
    if (test.accepts(word, entry.range)) return true;
  }
  return false;
}

// matchesKeyTable(token, *ref.name), with the table and its plan kept.
bool matchesTable(LookupPlan::TableRef& ref, const std::string& token) {
  if (!ref.resolved) {
    auto table = gKeyTables().find(*ref.name);
    ref.table = table == gKeyTables().end() ? nullptr : &table->second;
    ref.resolved = true;
  }
  if (!ref.table) return false;
  if (ref.table->count(token)) return true;
  if (!ref.plan) ref.plan = tablePlanOf(*ref.name);
  return tableWordsAccept(*ref.plan, token);
}

// findChild's pattern step: the first word, children before options, for
// which isNewValidInput holds.
ParserTreeNode* firstPatternMatch(const LookupPlan& plan, const std::string& token) {
  if (token == "\n") return nullptr;
  size_t bestPosition = static_cast<size_t>(-1);
  ParserTreeNode* best = nullptr;
  auto literal = std::lower_bound(plan.literalWords.begin(), plan.literalWords.end(), token,
                                  [](const LookupPlan::LiteralWord& entry, const std::string& word) {
                                    return *entry.word < word;
                                  });
  if (literal != plan.literalWords.end() && *literal->word == token) {
    bestPosition = literal->position;
    best = literal->node;
  }
  PatternTest test(token);
  for (const auto& entry : plan.patternWords) {
    if (entry.position > bestPosition) break;
    if (test.accepts(*entry.word, entry.range)) return entry.node;
  }
  return best;
}

// findChild's steps by value, once the token is no word of the node: the
// KeyFile tables, then the angle-bracket words, then the pattern words.
ParserTreeNode* findByValue(ParserTreeNode* node, LookupPlan& plan, const std::string& token) {
  for (auto& entry : plan.childTables) {
    if (matchesTable(entry, token)) return entry.node;
  }
  for (auto& entry : plan.optionTables) {
    if (!matchesTable(entry, token)) continue;
    auto byWord = node->mOptions.find(*entry.name);
    if (byWord == node->mOptions.end()) continue;
    if (ParserTreeNode* entered = enterOption(node, token, byWord->second)) return entered;
  }
  withWordSteps(node, plan);
  for (const auto& entry : plan.angleWords) {
    if (ParserToolCase::isValidInput(*entry.first, token)) return entry.second;
  }
  return firstPatternMatch(plan, token);
}

// findChild's steps once the token is no word of the node: complex children
// and options, the first child, then the steps by value.
ParserTreeNode* findPastWords(ParserTreeNode* node, LookupPlan& plan, const std::string& token, bool exactOption) {
  if (!exactOption) {
    for (ParserTreeNode* child : plan.complexChildren) {
      if (child->mKeywords.count(token)) return child;
    }
    for (ParserTreeNode* child : plan.complexOptions) {
      if (child->mKeywords.count(token)) {
        if (ParserTreeNode* entered = enterOption(node, token, child)) return entered;
      }
    }
  }
  if (node->hasFlag(NODE_FLAG_FIRST) && !node->mChildren.empty()) return node->mChildren.begin()->second;
  return findByValue(node, plan, token);
}

// Tokens longer than this are not kept (no copy of them is made).
constexpr size_t kLongestKept = 15;

// findPastWords through `memo`, for a node where it reads no state of the
// walk: one without options, or whose options hold no complex entry and no
// KeyFile word and do not have the token.
ParserTreeNode* findPastWordsKept(ParserTreeNode* node, LookupPlan* planned, const std::string& token,
                                  LookupMemo& memo) {
  // Long tokens (descriptions, names) seldom come again: not worth a copy.
  if (token.size() > kLongestKept) return findPastWords(node, planned ? *planned : planOf(node), token, false);
  memo.useStamp(NodePool::used(), gPlansGeneration.load(std::memory_order_acquire));
  const size_t hash = LookupMemo::hashOf(node, token);
  ParserTreeNode* found = nullptr;
  if (memo.find(node, token, hash, found)) return found;
  found = findPastWords(node, planned ? *planned : planOf(node), token, false);
  memo.keep(node, token, hash, found);
  return found;
}

ParserTreeNode* findChildPlanned(ParserTreeNode* node, const std::string& token, LookupMemo* memo);

// findChild through `memo` for a node without options, searched by hash:
// the whole search reads no state of the walk, and one probe of the memo
// costs less than finding the node's plan and probing its words.
ParserTreeNode* findChildKept(ParserTreeNode* node, const std::string& token, LookupMemo& memo) {
  memo.useStamp(NodePool::used(), gPlansGeneration.load(std::memory_order_acquire));
  const size_t hash = LookupMemo::hashOf(node, token);
  ParserTreeNode* found = nullptr;
  if (memo.find(node, token, hash, found)) return found;
  found = findChildPlanned(node, token, nullptr);
  memo.keep(node, token, hash, found);
  return found;
}

ParserTreeNode* findChildPlanned(ParserTreeNode* node, const std::string& token, LookupMemo* memo) {
  if (memo && node->mOptions.empty() && token.size() <= kLongestKept && searchedByHash(node)) {
    return findChildKept(node, token, *memo);
  }
  bool exactOption = false;
  LookupPlan* planned = nullptr;
  if (searchedByHash(node)) {
    planned = &exactPlanOf(node);
    if (const ExactWords::Found* found = planned->exactWords.find(token)) {
      if (found->isChild) return found->child;
      if (found->isOption) {
        if (ParserTreeNode* entered = enterOption(node, token, found->option)) return entered;
        exactOption = true;
      }
    }
  } else {
    auto exact = node->mChildren.find(token);
    if (exact != node->mChildren.end()) return exact->second;
    auto option = node->mOptions.find(token);
    if (option != node->mOptions.end()) {
      if (ParserTreeNode* entered = enterOption(node, token, option->second)) return entered;
      exactOption = true;
    }
  }
  // Without options nothing past the words reads the state of the walk.
  if (memo && node->mOptions.empty()) return findPastWordsKept(node, planned, token, *memo);
  LookupPlan& plan = planned ? *planned : planOf(node);
  if (memo && !exactOption && plan.complexOptions.empty() && plan.optionTables.empty()) {
    return findPastWordsKept(node, &plan, token, *memo);
  }
  return findPastWords(node, plan, token, exactOption);
}

bool hasUpperCase(const std::string& text) {
  for (char c : text) {
    if (c >= 'A' && c <= 'Z') return true;
  }
  return false;
}

}  // namespace

ParserTreeNode* findChild(ParserTreeNode* node, const std::string& token) {
  if (!node) return nullptr;
  if (plansOn()) return findChildPlanned(node, token, nullptr);
  bool exactOption = false;
  auto exact = node->mChildren.find(token);
  if (exact != node->mChildren.end()) return exact->second;
  auto option = node->mOptions.find(token);
  if (option != node->mOptions.end()) {
    if (ParserTreeNode* entered = enterOption(node, token, option->second)) return entered;
    exactOption = true;  // a refused option skips the complex children
  }
  if (!exactOption) {
    for (auto& entry : node->mChildren) {
      if (entry.second->mIsComplex && entry.second->mKeywords.count(token)) return entry.second;
    }
    for (auto& entry : node->mOptions) {
      if (entry.second->mIsComplex && entry.second->mKeywords.count(token)) {
        if (ParserTreeNode* entered = enterOption(node, token, entry.second)) return entered;
      }
    }
  }
  if (node->hasFlag(NODE_FLAG_FIRST) && !node->mChildren.empty()) return node->mChildren.begin()->second;
  for (auto& entry : node->mChildren) {
    for (auto& word : entry.second->mKeywords) {
      if (startsWithAmpersand(word.first) && matchesKeyTable(token, word.first)) return entry.second;
    }
  }
  for (auto& entry : node->mOptions) {
    for (auto& word : entry.second->mKeywords) {
      if (!startsWithAmpersand(word.first) || !matchesKeyTable(token, word.first)) continue;
      // The option is found again by the word as its key; a complex option
      // (whose key is a made-up name) holding a table word finds nothing.
      auto byWord = node->mOptions.find(word.first);
      if (byWord == node->mOptions.end()) continue;
      if (ParserTreeNode* entered = enterOption(node, token, byWord->second)) return entered;
    }
  }
  if (ParserTreeNode* angle = firstChildWithWord(node, [&](const std::string& word) {
        return ParserToolCase::isPvFormStr(word) && ParserToolCase::isValidInput(word, token);
      })) {
    return angle;
  }
  return firstChildWithWord(node,
                            [&](const std::string& word) { return ParserToolCase::isNewValidInput(word, token); });
}

namespace {

ParserTreeNode* lookupPass(ParserTreeNode* node, const std::string& token, std::string& keyOut, bool abbreviate,
                           LookupMemo* memo) {
  ParserTreeNode* child = plansOn() ? findChildPlanned(node, token, memo) : findChild(node, token);
  if (child) {
    keyOut = token;
    return child;
  }
  if (abbreviate) {
    if (ParserTreeNode* found = findAbbreviation(node, token, keyOut)) return found;
  }
  ParserTreeNode* any = nullptr;
  if (plansOn()) {
    if (token != "\n") any = withWordSteps(node, planOf(node)).catchAll;
  } else {
    any = firstChildWithWord(node,
                             [&](const std::string& word) { return ParserToolCase::isAnyValidInput(word, token); });
  }
  if (any) {
    keyOut = token;
    return any;
  }
  return nullptr;
}

ParserTreeNode* lookupWith(ParserTreeNode* node, const std::string& token, bool& flagOut, std::string& keyOut,
                           bool abbreviate, LookupMemo* memo) {
  flagOut = false;
  if (!node) return nullptr;
  if (ParserTreeNode* found = lookupPass(node, token, keyOut, abbreviate, memo)) return found;
  if (!keyOut.empty()) return nullptr;
  // A failed pass changes nothing, so a token that is lower-case already
  // would fail again.
  if (plansOn() && !hasUpperCase(token)) return nullptr;
  const std::string lower = ParserToolCase::string2Lower(token);
  if (ParserTreeNode* found = lookupPass(node, lower, keyOut, abbreviate, memo)) {
    keyOut = lower;
    return found;
  }
  return nullptr;
}

}  // namespace

ParserTreeNode* lookup(ParserTreeNode* node, const std::string& token, bool& flagOut, std::string& keyOut,
                       bool abbreviate) {
  return lookupWith(node, token, flagOut, keyOut, abbreviate, nullptr);
}

ParserTreeNode* lookupToken(ParserTreeNode* node, const std::string& token, bool& flagOut, std::string& keyOut,
                            bool abbreviate, bool* retriedOut) {
  return lookupToken(node, token, flagOut, keyOut, abbreviate, retriedOut, nullptr);
}

ParserTreeNode* lookupToken(ParserTreeNode* node, const std::string& token, bool& flagOut, std::string& keyOut,
                            bool abbreviate, bool* retriedOut, LookupMemo* memo) {
  keyOut.clear();
  ParserTreeNode* result = lookupWith(node, token, flagOut, keyOut, abbreviate, memo);
  if (!result && keyOut.empty()) {
    if (retriedOut) *retriedOut = true;
    // A lookup that finds nothing and no key has changed no state: the
    // second try gives the same answer.
    if (plansOn()) return nullptr;
    return lookupWith(node, token, flagOut, keyOut, abbreviate, memo);
  }
  if (node) clearExcluded(node);
  if (retriedOut) *retriedOut = false;
  return result;
}

ParserTreeNode* findAbbreviation(ParserTreeNode* node, const std::string& token, std::string& keyOut) {
  std::map<std::string, ParserTreeNode*> candidates;
  for (auto& entry : node->mChildren) addCandidates(entry.second, token, candidates, entry.second);
  for (auto& entry : node->mOptions) {
    if (isConflicting(node, entry.first) || node->mVisitedOptions.count(entry.first)) continue;
    addCandidates(entry.second, token, candidates, entry.second);
  }
  if (candidates.empty()) return nullptr;
  if (candidates.size() == 1) {
    keyOut = candidates.begin()->first;
    return enterOption(node, keyOut, candidates.begin()->second);
  }
  const std::string& first = candidates.begin()->first;
  std::string key = first.substr(0, token.size());
  while (key.size() < first.size()) {
    key += first[key.size()];
    bool all = true;
    for (auto& candidate : candidates) {
      if (!ParserToolCase::partialMatched(candidate.first, key)) {
        all = false;
        break;
      }
    }
    if (!all) {
      key.pop_back();
      break;
    }
  }
  keyOut = key;
  return nullptr;
}

ParserTreeNode* enterOption(ParserTreeNode* node, const std::string& token, ParserTreeNode* child) {
  if (!child || !child->mIsOption) return child;
  if (node->mVisitedOptions.count(token) || isConflicting(node, token)) return nullptr;
  ParserTreeNode* owner = child->mParent;
  if (owner && owner != node) {
    // The conflict test asks the child, not the owner: kept as it is.
    if (owner->mVisitedOptions.count(token) || isConflicting(child, token)) return nullptr;
  }
  markVisited(node, token, child);
  if (owner && owner != node) markVisited(owner, token, child);
  node->mVisitedOptions.insert(child->mConflicts.begin(), child->mConflicts.end());
  return child;
}

bool isConflicting(const ParserTreeNode* node, const std::string& word) {
  return node && node->hasFlag(NODE_FLAG_CF) && node->mConflicts.count(word) > 0;
}

bool matchesKeyTable(const std::string& token, const std::string& tableName) {
  auto table = gKeyTables().find(tableName);
  if (table == gKeyTables().end()) return false;
  if (table->second.count(token)) return true;
  if (plansOn()) return tableWordsAccept(*tablePlanOf(tableName), token);
  for (auto& entry : table->second) {
    const std::string& word = entry.first;
    if (ParserToolCase::isPvFormStr(word) && ParserToolCase::isValidInput(word, token)) return true;
    if (ParserToolCase::isNewValidInput(word, token)) return true;
  }
  return false;
}

bool hasInterfaceWords(const ParserTreeNode* node) {
  if (!node) return false;
  static const std::string kInterfaceTable = "&interfacefile.cfm";
  if (plansOn()) {
    LookupPlan& plan = planOf(const_cast<ParserTreeNode*>(node));
    if (plan.interfaceWords < 0) {
      // Worked out in full before it is kept, so that a word that throws
      // keeps throwing.
      bool found = false;
      for (auto* map : {&node->mChildren, &node->mOptions}) {
        for (auto it = map->begin(); it != map->end() && !found; ++it) {
          for (auto& word : it->second->mKeywords) {
            if (word.first == kInterfaceTable || matchesKeyTable(word.first, kInterfaceTable)) {
              found = true;
              break;
            }
          }
        }
        if (found) break;
      }
      plan.interfaceWords = found ? 1 : 0;
    }
    return plan.interfaceWords == 1;
  }
  for (auto* map : {&node->mChildren, &node->mOptions}) {
    for (auto& entry : *map) {
      for (auto& word : entry.second->mKeywords) {
        if (word.first == kInterfaceTable || matchesKeyTable(word.first, kInterfaceTable)) return true;
      }
    }
  }
  return false;
}

int nodeStatus(const ParserTreeNode* node) { return node && node->mIsEnd ? 0 : 1; }

void resetLookupPlans() { gPlansGeneration.fetch_add(1, std::memory_order_release); }

void setLookupPlansEnabled(bool enabled) {
  gPlansEnabled.store(enabled, std::memory_order_relaxed);
  resetLookupPlans();
}

bool lookupPlansEnabled() { return plansOn(); }

void clearExcluded(ParserTreeNode* node) {
  if (node) node->mExcluded.clear();
}

}  // namespace qxparser
