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

// A character of kSeparators, tested a character at a time (the library's
// searches look through the separators for every character). Every separator
// is a blank or a control character: most characters are told apart by the
// first comparison.
bool isSeparator(char c) {
  return static_cast<unsigned char>(c) <= ' ' && (c == ' ' || c == '\t' || c == '\r' || c == '\n');
}

// The words of `line` in one scan (a walk reads every word once, and wants
// to know at once how many there are).
void cutWords(const std::string& line, std::vector<WordSpan>& words) {
  words.clear();
  const char* const text = line.data();
  const size_t size = line.size();
  size_t i = 0;
  while (true) {
    while (i < size && isSeparator(text[i])) ++i;
    if (i == size) return;
    const size_t start = i;
    while (i < size && !isSeparator(text[i])) ++i;
    words.push_back(WordSpan{start, i - start});
  }
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
  cutWords(line, mWords);
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
  mValueMarks.clear();
  mCurrentNode = mLevels->nodes.back();
  mPrompt = promptSuffixOf(mCurrentNode);
  if (bannerStep(line)) {
    modeResult = MODE_NO_CHANGE;
    status = 0;
    errorText.clear();
    return;
  }
  const std::vector<WordSpan>& words = mWords;
  if (words.empty()) {
    status = 0;
    return;
  }
  if (line[words[0].start] == '!') {
    status = 0;
    return;
  }
  if (mLevels->texts.empty() && wordIs(line, words[0], kVersionWord)) {
    status = 0;
    return;
  }
  bool isNo = false;
  size_t at = 0;
  if (words.size() > 1 && wordIs(line, words[0], kNoWord)) {
    isNo = true;
    at = 1;
  }
  // Room in the record for the path at once: a node per word and the end.
  if (mCurrentCommand) mCurrentCommand->reservePath(words.size() - at + 1);
  bool flag = false;
  // Buffers kept from line to line: a long word costs no allocation.
  std::string& key = mKey;
  std::string& token = mToken;
  while (true) {
    if (at == words.size()) {
      ParserTreeNode* before = mCurrentNode;
      ParserTreeNode* node = lookupToken(mCurrentNode, kEndToken, flag, key, mCliMode, nullptr, &mLookups);
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
    const WordSpan& word = words[at];
    token.assign(line, word.start, word.length);
    ParserTreeNode* node = lookupToken(mCurrentNode, token, flag, key, mCliMode, nullptr, &mLookups);
    if (node && node->mIsOption) {
      mOptionPairs.push_back(mCurrentNode);
      mOptionPairs.push_back(node);
    }
    if (!node && hasInterfaceWords(mCurrentNode)) node = splitInterfaceToken(token, flag, key, isNo);
    if (node) {
      acceptToken(flag, key, node, isNo, status);
    } else {
      if (word.start > mOwner->mLastErrorOffset) mOwner->mLastErrorOffset = word.start;
      if (mCliMode) {
        rejectToken("", isNo, status, errorText);
      } else {
        popLevel();
        if (mCurrentCommand) mCurrentCommand->clearVisitedOption();
        status = 2;
      }
      break;
    }
    ++at;
  }
  if (status == 0) {
    buildInfoLine();
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
  ParserTreeNode* mode = mLevels->nodes.empty() ? nullptr : mLevels->nodes.back();
  if (lookupPlansEnabled()) {
    mOrderNumbers.setOrderNo(*mCurrentCommand, mode);
  } else {
    mCurrentCommand->setOrderNo(mode);
  }
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
  // A node's text written in front of the token is followed by a blank.
  const std::string* prefix = nullptr;
  const std::string* word = &token;
  if (node) {
    if (node->hasFlag(NODE_FLAG_MB) && !isNo) {
      prefix = &node->mText;
    } else if (node->hasFlag(NODE_FLAG_RP)) {
      word = &node->mText;
    }
  }
  // Only the complete line is written word by word; the info line is the
  // same text with each value in angle brackets, made once the line is read
  // (buildInfoLine) from the places of the values noted here.
  if (prefix) {
    mCompleteLine.append(*prefix);
    mCompleteLine.push_back(' ');
  }
  if (token == kEndToken) {
    mCompleteLine.push_back('\n');
    return;
  }
  if (isValue) {
    mValueMarks.push_back(static_cast<uint32_t>(mCompleteLine.size()));
    mValueMarks.push_back(static_cast<uint32_t>(word->size()));
  }
  mCompleteLine.append(*word);
  mCompleteLine.push_back(' ');
}

void VTYModel::buildInfoLine() {
  mInfoLine.clear();
  mInfoLine.reserve(mCompleteLine.size() + mValueMarks.size());
  size_t at = 0;
  for (size_t mark = 0; mark + 1 < mValueMarks.size(); mark += 2) {
    const size_t start = mValueMarks[mark];
    const size_t length = mValueMarks[mark + 1];
    mInfoLine.append(mCompleteLine, at, start - at);
    mInfoLine.push_back('<');
    mInfoLine.append(mCompleteLine, start, length);
    mInfoLine.push_back('>');
    at = start + length;
  }
  mInfoLine.append(mCompleteLine, at, std::string::npos);
}

ParserTreeNode* VTYModel::splitInterfaceToken(const std::string& token, bool& flag, std::string& key, bool isNo) {
  size_t digit = 0;
  while (digit < token.size() && !std::isdigit(static_cast<unsigned char>(token[digit]))) ++digit;
  if (digit == 0 || digit >= token.size()) return nullptr;
  const std::string name = token.substr(0, digit);
  const std::string rest = token.substr(digit);
  ParserTreeNode* first = lookupToken(mCurrentNode, name, flag, key, mCliMode, nullptr, &mLookups);
  if (!first) return nullptr;
  mCurrentNode = first;
  recordToken(key, flag, first, isNo);
  if (mCurrentCommand) mCurrentCommand->addTreeNodes(first, key, isNo);
  ParserTreeNode* result = lookupToken(mCurrentNode, rest, flag, key, mCliMode, nullptr, &mLookups);
  key = rest;
  return result;
}

bool VTYModel::bannerStep(const std::string& line) {
  const size_t size = line.size();
  size_t lead = 0;
  while (lead < size && (line[lead] == ' ' || line[lead] == '\t')) ++lead;
  if (size - lead >= 4 && line.compare(lead, 4, "bann", 4) == 0) {
    // The delimiter stands behind the second blank, counted from the line's
    // start (leading blanks count).
    size_t first = line.find(' ');
    size_t second = first == std::string::npos ? std::string::npos : line.find(' ', first + 1);
    if (second != std::string::npos && second + 1 < size) mBannerDelimiter = line[second + 1];
  }
  // Whether the delimiter is on the line at all, and whether the line opens
  // or closes a banner: counted only where it is there (most lines lack it).
  const size_t firstDelimiter = line.find(mBannerDelimiter);
  const auto delimiters =
      firstDelimiter == std::string::npos ? 0 : std::count(line.begin() + firstDelimiter, line.end(), mBannerDelimiter);
  if (mInsideBanner && delimiters == 0) {
    if (mNewLevel) {
      mNewLevel = false;
      mMajorLevel = mLevels->texts.size();
    }
    mCompleteLine = line + "\n";
    mInfoLine = line + "\n";
    return true;
  }
  if (delimiters % 2 != 0) mInsideBanner = !mInsideBanner;
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
