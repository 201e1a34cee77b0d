// The walk of one line through the grammar of a mode.
//
// A line is tried at the level on top of the stack; a line that does not fit
// there is tried again one level up, and so on, which is how a replayed
// configuration leaves a sub-mode without an "exit". When no level takes it,
// parseLine swaps the saved level containers back, so a failed line leaves
// levels, prompt and mode as they were.
#include "terminal/VTYModel.h"

#include <algorithm>
#include <cctype>
#include <locale>
#include <stdexcept>

#include "config/CiscoCommandLine.h"
#include "grammar/DefinitionLoader.h"
#include "grammar/NodeLookup.h"
#include "grammar/ParserException.h"
#include "grammar/ParserTree.h"
#include "toolkit/ParserToolCase.h"
#include "toolkit/TextWords.h"

namespace qxparser {

namespace {

const char* const kSeparators = " \t\r\n";

// find_first_of / find_first_not_of over kSeparators, a character at a time
// (the library's versions search the separators for every character).
bool isSeparator(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

size_t nextSeparator(const std::string& line, size_t from) {
  for (size_t i = from; i < line.size(); ++i) {
    if (isSeparator(line[i])) return i;
  }
  return std::string::npos;
}

size_t nextWord(const std::string& line, size_t from) {
  for (size_t i = from; i < line.size(); ++i) {
    if (!isSeparator(line[i])) return i;
  }
  return std::string::npos;
}

// Words from `start` to the line's end.
size_t wordsFrom(const std::string& line, size_t start) {
  size_t count = 0;
  bool inWord = false;
  for (size_t i = start; i < line.size(); ++i) {
    const bool separator = isSeparator(line[i]);
    if (!separator && !inWord) ++count;
    inWord = !separator;
  }
  return count;
}
const std::string kEndToken = "\n";
const std::string kInvalidInput = "% Invalid input detected at ^";
const std::string kIncomplete = "% Incomplete command.";
const std::string kVersionWord = "version";
const std::string kNoWord = "no";

template <typename T>
void popBack(T& container) {
  if (!container.empty()) container.pop_back();
}

}  // namespace

const std::string& promptSuffixOf(ParserTreeNode* node) {
  static const std::string kNone;
  const auto& suffixes = gPromptSuffixes();
  const auto found = suffixes.find(node);
  return found == suffixes.end() ? kNone : found->second;
}

VTYModel::VTYModel(VTY* owner, ParserTree* tree) : mOwner(owner), mTree(tree), mCliMode(owner->mCliMode) {
  mPrompt = promptSuffixOf(tree ? tree->mRoot : nullptr);
  resetModel();
}

void VTYModel::resetModel() {
  ParserTreeNode* root = mTree ? mTree->mRoot : nullptr;
  mCurrentNode = root;
  mLevels->nodes.clear();
  mLevels->commands.clear();
  mLevels->texts.clear();
  if (root) mLevels->nodes.push_back(root);
  mPrompt = promptSuffixOf(root);
  mMajorLevel = 0;
  mInsideBanner = false;
  mNewLevel = false;
  saveState();
}

// The levels are copied into their saved twin only when the line is about to
// change them (changeLevels); most lines leave them as they are.
void VTYModel::saveState() {
  mLevelsUnsaved = true;
  mSavedPrompt = mPrompt;
  mSavedMajorLevel = mMajorLevel;
  mSavedNewLevel = mNewLevel;
}

VTYModel::Levels& VTYModel::changeLevels() {
  if (mLevelsUnsaved) {
    *mSavedLevels = *mLevels;
    mLevelsUnsaved = false;
  }
  return *mLevels;
}

void VTYModel::restoreState() {
  if (!mLevelsUnsaved) std::swap(mLevels, mSavedLevels);
  mLevelsUnsaved = false;
  mInsideBanner = false;
  mMajorLevel = mSavedMajorLevel;
  mNewLevel = mSavedNewLevel;
  mPrompt = mSavedPrompt;
}

void VTYModel::levelText(std::string& text, bool allLevels) const {
  text.clear();
  size_t count = mLevels->texts.size();
  if (!allLevels && mMajorLevel != count && count > 0) --count;
  for (size_t i = 0; i < count; ++i) text += mLevels->texts[i];
}

bool VTYModel::levelTextIs(const std::string& text, bool allLevels) const {
  size_t count = mLevels->texts.size();
  if (!allLevels && mMajorLevel != count && count > 0) --count;
  size_t at = 0;
  for (size_t i = 0; i < count; ++i) {
    const std::string& piece = mLevels->texts[i];
    if (text.compare(at, piece.size(), piece) != 0) return false;
    at += piece.size();
  }
  return at == text.size();
}

bool VTYModel::parseLine(const std::string& line, std::string& errorText, int& modeResult, bool& inBanner) {
  inBanner = false;
  modeResult = MODE_NO_CHANGE;
  try {
    saveState();
    int status = tryLine(line, modeResult, errorText);
    if (status != 0) {
      restoreState();
    } else {
      inBanner = mInsideBanner;
    }
    return status == 0;
  } catch (const ParserException&) {
    return false;
  } catch (const std::out_of_range&) {
    // A value the toolkit cannot take (zeros typed into a range) ends the
    // walk with the standard range error, which the specified reading lets
    // out. A terminal of ours that reads typed text refuses the line instead,
    // as the device does, and puts the levels back.
    if (!mOwner->mRefuseRangeErrors) throw;
    clearOptionPairs();
    restoreState();
    errorText = kInvalidInput;
    return false;
  }
}

void VTYModel::clearOptionPairs() {
  for (ParserTreeNode* node : mOptionPairs) {
    node->mVisitedOptions.clear();
    if (node->mParent) node->mParent->mVisitedOptions.clear();
  }
  mOptionPairs.clear();
}

int VTYModel::tryLine(const std::string& line, int& modeResult, std::string& errorText) {
  modeResult = MODE_NO_CHANGE;
  mCompleteLine.clear();
  mInfoLine.clear();
  mOptionPairs.clear();
  if (!mCurrentNode && mTree && mTree->mRoot) {
    mCurrentNode = mTree->mRoot;
    changeLevels().nodes.push_back(mCurrentNode);
  }
  int status = 2;
  mOwner->mLastErrorOffset = 0;
  if (mCliMode && cliExitCommands(line, modeResult, status)) {
    mMajorLevel = mLevels->texts.size();
    return status;
  }
  bool climbed = false;
  while (!mLevels->nodes.empty() && status == 2) {
    walkLine(line, modeResult, status, errorText);
    if (status == 2) {
      mInsideBanner = false;
      climbed = true;
    }
  }
  clearOptionPairs();
  if (status != 0) {
    mCompleteLine.clear();
    mInfoLine.clear();
  } else if (climbed) {
    mNewLevel = true;
  }
  return status;
}

void VTYModel::popLevel() {
  Levels& levels = changeLevels();
  popBack(levels.nodes);
  popBack(levels.commands);
  popBack(levels.texts);
}

void VTYModel::walkLine(const std::string& line, int& modeResult, int& status, std::string& errorText) {
  mCompleteLine.clear();
  mInfoLine.clear();
  mCurrentNode = mLevels->nodes.back();
  mPrompt = promptSuffixOf(mCurrentNode);
  if (bannerStep(line)) {
    modeResult = MODE_NO_CHANGE;
    status = 0;
    errorText.clear();
    return;
  }
  size_t start = nextWord(line, 0);
  if (start == std::string::npos) {
    status = 0;
    return;
  }
  size_t end = nextSeparator(line, start + 1);
  const WordSpan first{start, (end == std::string::npos ? line.size() : end) - start};
  if (line[start] == '!') {
    status = 0;
    return;
  }
  if (mLevels->texts.empty() && wordIs(line, first, kVersionWord)) {
    status = 0;
    return;
  }
  bool isNo = false;
  auto advance = [&]() {
    start = end == std::string::npos ? std::string::npos : nextWord(line, end);
    end = start == std::string::npos ? std::string::npos : nextSeparator(line, start + 1);
  };
  if (wordIs(line, first, kNoWord)) {
    size_t next = end == std::string::npos ? std::string::npos : nextWord(line, end);
    if (next != std::string::npos) {
      isNo = true;
      advance();
    }
  }
  // Room in the record for the path at once: a node per word and the end.
  if (mCurrentCommand && start != std::string::npos) mCurrentCommand->reservePath(wordsFrom(line, start) + 1);
  bool flag = false;
  std::string key;
  std::string token;
  while (true) {
    if (start == std::string::npos) {
      ParserTreeNode* before = mCurrentNode;
      ParserTreeNode* node = lookupToken(mCurrentNode, kEndToken, flag, key, mCliMode, nullptr);
      if (node) {
        acceptToken(true, kEndToken, node, isNo, status);
        if (node->mIsOption) {
          mOptionPairs.push_back(before);
          mOptionPairs.push_back(node);
        }
      } else if (status == 1) {
        rejectToken(kEndToken, isNo, status, errorText);
      }
      break;
    }
    token.assign(line, start, end == std::string::npos ? std::string::npos : end - start);
    ParserTreeNode* node = lookupToken(mCurrentNode, token, flag, key, mCliMode, nullptr);
    if (node && node->mIsOption) {
      mOptionPairs.push_back(mCurrentNode);
      mOptionPairs.push_back(node);
    }
    if (!node && hasInterfaceWords(mCurrentNode)) node = splitInterfaceToken(token, flag, key, isNo);
    if (node) {
      acceptToken(flag, key, node, isNo, status);
    } else {
      if (start > mOwner->mLastErrorOffset) mOwner->mLastErrorOffset = start;
      if (mCliMode) {
        rejectToken("", isNo, status, errorText);
      } else {
        popLevel();
        if (mCurrentCommand) mCurrentCommand->clearVisitedOption();
        status = 2;
      }
      break;
    }
    advance();
  }
  if (status == 0) {
    finishCommand(isNo, modeResult);
  } else if (status == 1) {
    errorText = kIncomplete;
    mOwner->mLastErrorOffset = line.size();
  }
}

void VTYModel::linkToParent() {
  if (!mCurrentCommand || (mCliMode && !mOwner->mLinkCommands)) return;
  CiscoCommandLine* parent = mLevels->commands.empty() ? nullptr : mLevels->commands.back();
  mCurrentCommand->setParentCommand(parent, parent != nullptr);
  mCurrentCommand->setOrderNo(mLevels->nodes.empty() ? nullptr : mLevels->nodes.back());
}

void VTYModel::acceptToken(bool isValue, const std::string& key, ParserTreeNode* node, bool isNo, int& status) {
  recordToken(key, isValue, node, isNo);
  if (mCurrentCommand) {
    mCurrentCommand->addTreeNodes(node, key, isNo);
    if (key == kEndToken) linkToParent();
  }
  mCurrentNode = node;
  if (node->mEntersMode && !isNo) {
    Levels& levels = changeLevels();
    levels.nodes.push_back(node);
    levels.commands.push_back(mCurrentCommand);
    levels.texts.push_back(mCompleteLine);
    mPrompt = promptSuffixOf(node);
    mMajorLevel = mLevels->texts.size() - 1;
    mNewLevel = true;
  } else {
    mMajorLevel = mLevels->texts.size();
    mNewLevel = false;
  }
  status = nodeStatus(node);
}

void VTYModel::rejectToken(const std::string& token, bool isNo, int& status, std::string& errorText) {
  mNewLevel = false;
  clearExcluded(mCurrentNode);
  if (token != kEndToken) {
    popLevel();
    if (mCurrentCommand) mCurrentCommand->clearVisitedOption();
    status = 2;
    // The walker passes an empty token: no position or caret column is given.
    errorText = kInvalidInput + token;
    return;
  }
  if (isNo) {
    if (mCurrentCommand && mCurrentCommand->hasFlags(CMDBIT_NO_COMPLETE)) {
      status = 1;
      return;
    }
    status = 0;
    recordToken(kEndToken, true, nullptr, isNo);
    linkToParent();
    return;
  }
  status = 1;
}

void VTYModel::recordToken(const std::string& token, bool isValue, ParserTreeNode* node, bool isNo) {
  std::string prefix;
  const std::string* word = &token;
  if (node) {
    if (node->hasFlag(NODE_FLAG_MB) && !isNo) {
      prefix = node->mText + " ";
    } else if (node->hasFlag(NODE_FLAG_RP)) {
      word = &node->mText;
    }
  }
  // Appended piece by piece: this runs for every word of every line.
  if (token == kEndToken) {
    mInfoLine += prefix;
    mInfoLine += '\n';
    mCompleteLine += prefix;
    mCompleteLine += '\n';
    return;
  }
  if (!prefix.empty()) mInfoLine += prefix;
  if (isValue) {
    mInfoLine += '<';
    mInfoLine += *word;
    mInfoLine += '>';
  } else {
    mInfoLine += *word;
  }
  mInfoLine += ' ';
  if (!prefix.empty()) mCompleteLine += prefix;
  mCompleteLine += *word;
  mCompleteLine += ' ';
}

ParserTreeNode* VTYModel::splitInterfaceToken(const std::string& token, bool& flag, std::string& key, bool isNo) {
  size_t digit = 0;
  while (digit < token.size() && !std::isdigit(static_cast<unsigned char>(token[digit]))) ++digit;
  if (digit == 0 || digit >= token.size()) return nullptr;
  const std::string name = token.substr(0, digit);
  const std::string rest = token.substr(digit);
  ParserTreeNode* first = lookupToken(mCurrentNode, name, flag, key, mCliMode, nullptr);
  if (!first) return nullptr;
  mCurrentNode = first;
  recordToken(key, flag, first, isNo);
  if (mCurrentCommand) mCurrentCommand->addTreeNodes(first, key, isNo);
  ParserTreeNode* result = lookupToken(mCurrentNode, rest, flag, key, mCliMode, nullptr);
  key = rest;
  return result;
}

bool VTYModel::bannerStep(const std::string& line) {
  size_t lead = line.find_first_not_of(" \t");
  if (lead != std::string::npos && line.compare(lead, 4, "bann") == 0) {
    // The delimiter stands behind the second blank, counted from the line's
    // start (leading blanks count).
    size_t first = line.find(' ');
    size_t second = first == std::string::npos ? std::string::npos : line.find(' ', first + 1);
    if (second != std::string::npos && second + 1 < line.size()) mBannerDelimiter = line[second + 1];
  }
  if (mInsideBanner && line.find(mBannerDelimiter) == std::string::npos) {
    if (mNewLevel) {
      mNewLevel = false;
      mMajorLevel = mLevels->texts.size();
    }
    mCompleteLine = line + "\n";
    mInfoLine = line + "\n";
    return true;
  }
  if (std::count(line.begin(), line.end(), mBannerDelimiter) % 2 != 0) mInsideBanner = !mInsideBanner;
  return false;
}

void VTYModel::finishCommand(bool isNo, int& modeResult) {
  if (isNo) {
    mCompleteLine.insert(0, "no ");
    mInfoLine.insert(0, "no ");
    for (std::string* text : {&mCompleteLine, &mInfoLine}) {
      size_t last = text->rfind('\n');
      if (last != std::string::npos) text->erase(last + 1);
    }
  }
  const char lead = mCompleteLine.empty() ? '\0' : mCompleteLine[0];
  if (lead != 'c' && lead != 'e') return;
  if (mCompleteLine == "configure \n" || mCompleteLine == "configure terminal \n") {
    mOwner->mOutput << "Enter configuration commands, one per line." << "\n";
    modeResult = CONFIG_MODE;
  } else if (mCompleteLine == "enable \n") {
    modeResult = EXEC_MODE;
  }
}

bool VTYModel::cliExitCommands(const std::string& line, int& modeResult, int& status) {
  size_t start = line.find_first_not_of(kSeparators);
  if (start == std::string::npos) return false;
  size_t end = line.find_first_of(kSeparators, start);
  const std::string word =
      ParserToolCase::string2Lower(line.substr(start, end == std::string::npos ? std::string::npos : end - start));
  if (word == "exit") {
    Levels& levels = changeLevels();
    popBack(levels.nodes);
    popBack(levels.texts);
    // A terminal that links commands keeps its stack of level commands in
    // step, so the next command is not linked to the mode just left.
    if (mOwner->mLinkCommands) popBack(levels.commands);
    if (!mLevels->nodes.empty()) {
      mCurrentNode = mLevels->nodes.back();
      mPrompt = promptSuffixOf(mCurrentNode);
    } else {
      modeResult = MODE_EXIT;
    }
    status = 0;
    mCompleteLine = "exit";
    mInfoLine = "exit";
    return true;
  }
  if (word == "end" && mModeType == CONFIG_MODE) {
    modeResult = MODE_EXIT;
    status = 0;
    mCompleteLine = "end \n";
    mInfoLine = "end \n";
    return true;
  }
  return false;
}

}  // namespace qxparser
