// VTYModel: the state of one mode of a VTY (internal to the library).
//
// Holds where the walk stands: the current node, the stack of open
// configuration levels (node, opening command, rebuilt text of each), the
// prompt, the rebuilt texts of the current line, and banner state. Every
// level container has a saved twin holding the state before the current
// line (copied only when the line changes them); a failed line swaps them
// back. The model writes to its owner's output
// stream. Not thread-safe; owned by its VTY.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "grammar/LookupMemo.h"
#include "terminal/PathOrderMemo.h"
#include "terminal/VTY.h"
#include "toolkit/TextWords.h"

namespace qxparser {

class CiscoCommandLine;
class ParserTree;
class ParserTreeNode;

class VTYModel {
 public:
  VTYModel(VTY* owner, ParserTree* tree);

  void resetModel();
  void saveState();
  bool parseLine(const std::string& line, std::string& errorText, int& modeResult, bool& inBanner);
  void levelText(std::string& text, bool allLevels) const;
  // Whether levelText would give `text` (without building it).
  bool levelTextIs(const std::string& text, bool allLevels) const;
  void hookLine(const std::string& line);
  void nextWords(const std::string& line, std::vector<ConfigHint>& hints);
  void nextWordsEachLevel(const std::string& line, std::vector<ConfigHint>& hints);

  struct Levels {
    std::deque<ParserTreeNode*> nodes;
    std::deque<CiscoCommandLine*> commands;
    std::vector<std::string> texts;
  };
  // Put back the state saveState kept (after a line that failed).
  void restoreState();
  // The current levels, for a change: the first change after saveState
  // copies them into the saved twin.
  Levels& changeLevels();

  VTY* mOwner;
  ParserTree* mTree;
  ParserTreeNode* mCurrentNode = nullptr;
  CiscoCommandLine* mCurrentCommand = nullptr;
  Levels mLevelsA;
  Levels mLevelsB;
  Levels* mLevels = &mLevelsA;       // current
  Levels* mSavedLevels = &mLevelsB;  // before the current line
  bool mLevelsUnsaved = false;       // the saved twin is still to be copied
  std::string mPrompt;
  std::string mSavedPrompt;
  std::string mCompleteLine;
  // mCompleteLine with each value in angle brackets; written when a walk
  // ends well (buildInfoLine), from mValueMarks: the start and length of
  // each value word in mCompleteLine, in pairs.
  std::string mInfoLine;
  std::vector<uint32_t> mValueMarks;
  char mBannerDelimiter = '"';
  bool mInsideBanner = false;
  bool mCliMode = false;
  bool mNewLevel = false;
  bool mSavedNewLevel = false;
  uint64_t mMajorLevel = 0;
  uint64_t mSavedMajorLevel = 0;
  VTYModeType mModeType = VIEW_MODE;
  std::vector<ParserTreeNode*> mOptionPairs;
  // The words of the line being walked (kept for the next line's words).
  std::vector<WordSpan> mWords;
  std::string mToken;  // the word being looked up
  std::string mKey;    // the key it was found under
  PathOrderMemo mOrderNumbers;
  LookupMemo mLookups;

 private:
  int tryLine(const std::string& line, int& modeResult, std::string& errorText);
  void walkLine(const std::string& line, int& modeResult, int& status, std::string& errorText);
  void acceptToken(bool isValue, const std::string& key, ParserTreeNode* node, bool isNo, int& status);
  void rejectToken(const std::string& token, bool isNo, int& status, std::string& errorText);
  void recordToken(const std::string& token, bool isValue, ParserTreeNode* node, bool isNo);
  ParserTreeNode* splitInterfaceToken(const std::string& token, bool& flag, std::string& key, bool isNo);
  bool bannerStep(const std::string& line);
  void finishCommand(bool isNo, int& modeResult);
  // mInfoLine from mCompleteLine and mValueMarks.
  void buildInfoLine();
  bool cliExitCommands(const std::string& line, int& modeResult, int& status);
  void popLevel();
  void linkToParent();
  void clearOptionPairs();

  // help and completion
  ParserTreeNode* walkForHook(const std::string& line, std::string& prefix, std::string& lastWord,
                              std::vector<ParserTreeNode*>& visited, char& lastChar);
  ParserTreeNode* splitForHook(ParserTreeNode* node, const std::string& piece, std::string& key);
  void answerHelp(const std::string& lastWord, ParserTreeNode* node);
  void answerCompletion(const std::string& prefix, const std::string& lastWord, ParserTreeNode* node);
  void recordOptionPair(ParserTreeNode* from, ParserTreeNode* to);
};

// The prompt suffix of the mode that `node` opens ("" for any other node).
// Only looks: the table is shared by the terminals of every thread.
const std::string& promptSuffixOf(ParserTreeNode* node);

// Writes the listing of next words of `node` to `out`: word, tab stops, help,
// wrapped at 79 columns. Only words that `prefix` abbreviates are listed.
// True when at least one entry was printed.
bool printHelp(ParserTreeNode* node, std::ostream& out, const std::string& prefix);

}  // namespace qxparser
