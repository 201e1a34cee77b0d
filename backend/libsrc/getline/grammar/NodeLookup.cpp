#include "grammar/NodeLookup.h"

#include <map>

#include "grammar/DefinitionLoader.h"
#include "toolkit/ParserToolCase.h"

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

}  // namespace

ParserTreeNode* findChild(ParserTreeNode* node, const std::string& token) {
  if (!node) return nullptr;
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

ParserTreeNode* lookupPass(ParserTreeNode* node, const std::string& token, std::string& keyOut, bool abbreviate) {
  if (ParserTreeNode* found = findChild(node, token)) {
    keyOut = token;
    return found;
  }
  if (abbreviate) {
    if (ParserTreeNode* found = findAbbreviation(node, token, keyOut)) return found;
  }
  if (ParserTreeNode* any = firstChildWithWord(
          node, [&](const std::string& word) { return ParserToolCase::isAnyValidInput(word, token); })) {
    keyOut = token;
    return any;
  }
  return nullptr;
}

}  // namespace

ParserTreeNode* lookup(ParserTreeNode* node, const std::string& token, bool& flagOut, std::string& keyOut,
                       bool abbreviate) {
  flagOut = false;
  if (!node) return nullptr;
  if (ParserTreeNode* found = lookupPass(node, token, keyOut, abbreviate)) return found;
  if (!keyOut.empty()) return nullptr;
  const std::string lower = ParserToolCase::string2Lower(token);
  if (ParserTreeNode* found = lookupPass(node, lower, keyOut, abbreviate)) {
    keyOut = lower;
    return found;
  }
  return nullptr;
}

ParserTreeNode* lookupToken(ParserTreeNode* node, const std::string& token, bool& flagOut, std::string& keyOut,
                            bool abbreviate, bool* retriedOut) {
  keyOut.clear();
  ParserTreeNode* result = lookup(node, token, flagOut, keyOut, abbreviate);
  if (!result && keyOut.empty()) {
    if (retriedOut) *retriedOut = true;
    return lookup(node, token, flagOut, keyOut, abbreviate);
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

void clearExcluded(ParserTreeNode* node) {
  if (node) node->mExcluded.clear();
}

}  // namespace qxparser
