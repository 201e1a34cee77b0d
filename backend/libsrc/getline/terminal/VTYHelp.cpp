// Help ("?"), completion (tab) and next-word hints. The same walk as a
// parsed line, but nothing is consumed: no level, record or text of the model
// changes, and the option state is put back afterwards.
#include <algorithm>
#include <cctype>
#include <map>
#include <ostream>

#include "config/CiscoCommandLine.h"
#include "grammar/DefinitionLoader.h"
#include "grammar/NodeLookup.h"
#include "terminal/VTYModel.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/ValueKinds.h"

namespace qxparser {

namespace {

const char* const kUnrecognized = "% Unrecognized command";

bool isNoWord(const std::string& piece) {
  return piece.size() == 2 && (piece[0] == 'n' || piece[0] == 'N') && (piece[1] == 'o' || piece[1] == 'O');
}

bool splitAtFirstDigit(const std::string& token, std::string& name, std::string& rest) {
  size_t digit = 0;
  while (digit < token.size() && !std::isdigit(static_cast<unsigned char>(token[digit]))) ++digit;
  if (digit == 0 || digit >= token.size()) return false;
  name = token.substr(0, digit);
  rest = token.substr(digit);
  return true;
}

// True when `word` names an option of `node` owned by another parent that has
// used it up already (or excludes it).
bool usedByOwner(const ParserTreeNode* node, const std::string& word) {
  for (const auto& entry : node->mOptions) {
    const ParserTreeNode* option = entry.second;
    bool names = option->mIsComplex ? option->mKeywords.count(word) > 0 : entry.first == word;
    if (!names || !option->mParent || option->mParent == node) continue;
    if (option->mParent->mVisitedOptions.count(word) || isConflicting(option->mParent, word)) return true;
  }
  return false;
}

}  // namespace

bool printHelp(ParserTreeNode* node, std::ostream& out, const std::string& prefix) {
  if (!node) return false;
  std::map<std::string, std::string> table;
  for (const auto& entry : node->mHelp) {
    if (!entry.first.empty() && entry.first[0] == '&') {
      auto keys = gKeyTables().find(entry.first);
      if (keys != gKeyTables().end()) table.insert(keys->second.begin(), keys->second.end());
    } else {
      table.insert(entry);
    }
  }
  for (auto* map : {&node->mChildren, &node->mOptions}) {
    for (const auto& entry : *map) {
      if (entry.second->mIsComplex) table.insert(entry.second->mKeywords.begin(), entry.second->mKeywords.end());
    }
  }
  if (table.empty()) return false;
  size_t tabs = 0;
  // A checked value kind is shown, and so measured, in the device's form.
  auto shown = [](const std::string& word) { return ValueKinds::isKind(word) ? ValueKinds::label(word) : word; };
  for (const auto& entry : table) tabs = std::max(tabs, shown(entry.first).size() / 8 + 1);
  const size_t width = tabs * 8 < 79 ? 79 - tabs * 8 : 1;
  const bool signedPrefix = !prefix.empty() && (prefix[0] == '+' || prefix[0] == '-');
  bool printed = false;
  for (const auto& entry : table) {
    const std::string& word = entry.first;
    if (!prefix.empty() && !ParserToolCase::partialMatched(word, prefix)) continue;
    if (node->mExcluded.count(word) || node->mVisitedOptions.count(word) || isConflicting(node, word)) continue;
    if (usedByOwner(node, word)) continue;
    std::string label = word;
    if (word == "\n") {
      label = "<cr>";
    } else if (word == "+/-<delay>" && signedPrefix) {
      label = "<1-4294967295>";
    } else if (word == "+/-<metric>" && signedPrefix) {
      label = "<0-4294967295>";
    } else if (ValueKinds::isKind(word)) {
      label = shown(word);
    }
    // The tab count is taken from the word, not from the label shown; a
    // checked value kind counts in its device form.
    out << label << std::string(tabs - shown(word).size() / 8, '\t');
    const std::string& help = entry.second;
    size_t pos = 0;
    do {
      if (pos > 0) out << std::string(tabs, '\t');
      out << help.substr(pos, width) << "\n";
      pos += width;
    } while (pos < help.size());
    printed = true;
  }
  return printed;
}

void VTYModel::recordOptionPair(ParserTreeNode* from, ParserTreeNode* to) {
  if (to && to->mIsOption) {
    mOptionPairs.push_back(from);
    mOptionPairs.push_back(to);
  }
}

ParserTreeNode* VTYModel::splitForHook(ParserTreeNode* node, const std::string& piece, std::string& key) {
  std::string name, rest;
  if (!splitAtFirstDigit(piece, name, rest)) return nullptr;
  bool flag = false;
  ParserTreeNode* first = lookupToken(node, name, flag, key, mCliMode, nullptr);
  recordOptionPair(node, first);
  if (!first) return nullptr;
  ParserTreeNode* second = lookupToken(first, rest, flag, key, mCliMode, nullptr);
  recordOptionPair(first, second);
  return second;
}

ParserTreeNode* VTYModel::walkForHook(const std::string& line, std::string& prefix, std::string& lastWord,
                                      std::vector<ParserTreeNode*>& visited, char& lastChar) {
  std::vector<std::string> pieces;
  ParserToolCase::splitString(line, " ", pieces);
  lastChar = line.empty() ? '\0' : line.back();
  lastWord = pieces.empty() ? std::string() : pieces.back().substr(0, pieces.back().size() - 1);
  ParserTreeNode* node = mLevels->nodes.empty() ? nullptr : mLevels->nodes.back();
  for (size_t i = 0; i + 1 < pieces.size(); ++i) {
    const std::string& piece = pieces[i];
    prefix += piece + " ";
    if (isNoWord(piece)) continue;
    if (!node) break;
    bool flag = false, retried = false;
    std::string key;
    ParserTreeNode* next = lookupToken(node, piece, flag, key, mCliMode, &retried);
    if (retried && next) visited.push_back(node);
    recordOptionPair(node, next);
    if (!next && hasInterfaceWords(node)) next = splitForHook(node, piece, key);
    node = next;
  }
  return node;
}

void VTYModel::answerHelp(const std::string& lastWord, ParserTreeNode* node) {
  if (mInsideBanner) return;
  std::ostream& out = mOwner->mOutput;
  if (!node) {
    out << kUnrecognized << "\n";
    return;
  }
  if (lastWord.empty()) {
    printHelp(node, out, "");
    clearExcluded(node);
    return;
  }
  if (printHelp(node, out, lastWord)) {
    clearExcluded(node);
    return;
  }
  bool flag = false;
  std::string key;
  if (ParserTreeNode* next = lookupToken(node, lastWord, flag, key, true, nullptr)) {
    clearExcluded(next);
    out << key << "\n";
    recordOptionPair(node, next);
    return;
  }
  ParserTreeNode* split = hasInterfaceWords(node) ? splitForHook(node, lastWord, key) : nullptr;
  if (!split) {
    out << kUnrecognized << "\n";
    return;
  }
  printHelp(split, out, "");
}

void VTYModel::answerCompletion(const std::string& prefix, const std::string& lastWord, ParserTreeNode* node) {
  if (mInsideBanner) return;
  std::ostream& out = mOwner->mOutput;
  if (!node || lastWord.empty()) {
    out << prefix << lastWord;
    return;
  }
  bool flag = false;
  std::string key;
  ParserTreeNode* next = lookupToken(node, lastWord, flag, key, true, nullptr);
  if (!next) {
    // An ambiguous word is completed up to the common prefix; a word that
    // matches nothing has an empty key and is erased.
    out << prefix << key;
    return;
  }
  recordOptionPair(node, next);
  clearExcluded(next);
  if (ParserToolCase::isPvFormStr(key)) {
    out << prefix << lastWord;
  } else {
    out << prefix << key << " ";
  }
}

void VTYModel::hookLine(const std::string& line) {
  std::string prefix, lastWord;
  std::vector<ParserTreeNode*> visited;
  char lastChar = '\0';
  ParserTreeNode* node = walkForHook(line, prefix, lastWord, visited, lastChar);
  if (lastChar == '\t') {
    answerCompletion(prefix, lastWord, node);
  } else if (lastChar == '?') {
    answerHelp(lastWord, node);
  }
  for (ParserTreeNode* n : visited) clearExcluded(n);
  clearOptionPairs();
}

void VTYModel::nextWords(const std::string& line, std::vector<ConfigHint>& hints) {
  const size_t count = mLevels->texts.size();
  for (size_t pass = 0; pass <= count; ++pass) {
    hookLine(line);
    ParserTreeNode* asked = mLevels->nodes.empty() ? nullptr : mLevels->nodes.back();
    const std::string prompt = promptSuffixOf(asked);
    // The stream is read, not emptied: each pass sees the text of the ones
    // before it, and once "Unrecognized command" is in, later passes drop out.
    const std::string text = mOwner->mOutput.str();
    if (!(text.size() > 19 && text.find("Unrecognized command") != std::string::npos)) {
      hints.push_back({prompt, text});
    }
    mOwner->mOutput.clear();
    if (!mLevels->nodes.empty()) mLevels->nodes.pop_back();
    if (!mLevels->commands.empty()) mLevels->commands.pop_back();
    if (!mLevels->texts.empty()) mLevels->texts.pop_back();
    if (mCurrentCommand) mCurrentCommand->clearVisitedOption();
  }
}

// vtyconf's own: as nextWords, but each level is asked on its own, with the
// stream emptied before it, so a level that knows no next word does not hide
// the levels above it.
void VTYModel::nextWordsEachLevel(const std::string& line, std::vector<ConfigHint>& hints) {
  const size_t count = mLevels->texts.size();
  for (size_t pass = 0; pass <= count; ++pass) {
    mOwner->mOutput.str(std::string());
    mOwner->mOutput.clear();
    hookLine(line);
    ParserTreeNode* asked = mLevels->nodes.empty() ? nullptr : mLevels->nodes.back();
    const std::string text = mOwner->mOutput.str();
    if (!text.empty() && text.find("Unrecognized command") == std::string::npos &&
        text.find("Invalid input") == std::string::npos) {
      hints.push_back({promptSuffixOf(asked), text});
    }
    if (!mLevels->nodes.empty()) mLevels->nodes.pop_back();
    if (!mLevels->commands.empty()) mLevels->commands.pop_back();
    if (!mLevels->texts.empty()) mLevels->texts.pop_back();
    if (mCurrentCommand) mCurrentCommand->clearVisitedOption();
  }
  mOwner->mOutput.str(std::string());
  mOwner->mOutput.clear();
}

}  // namespace qxparser
