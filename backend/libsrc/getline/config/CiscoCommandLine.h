// CiscoCommandLine: one parsed line of a device configuration.
//
// A record knows what was typed, what it means in terms of the grammar (its
// path of nodes with the words that matched each), and where it stands: its
// mode level, the commands that opened the modes around it, its parent and
// children. Commands are compared by their grammar paths, so records may only
// be compared while the grammar that made them is loaded.
//
// Ownership: the caller of a reading operation owns the returned records. A
// record owns its nested option commands (subCommands; the destructor deletes
// them) and its childCommands, but frees the children only in
// delOnlyChildCmds and the list deletions of the merge: the destructor does
// not. A copy keeps (copies of) the children; assignment leaves childCommands
// alone. Not thread-safe.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "config/CiscoCommandLineFlag.h"
#include "config/CmdPath.h"
#include "config/SharedText.h"
#include "platform/Export.h"

namespace qxparser {

class ParserTreeNode;

enum CiscoCommandBits : unsigned int {
  CMDBIT_NO = 0x1,                 // entered in its "no" form
  CMDBIT_STORED = 0x2,             // appears in a running configuration
  CMDBIT_OPENS_MODE = 0x4,         // a node of the path opens a mode
  CMDBIT_REMOVED = 0x8,            // marked for removal by a merge or fallback
  CMDBIT_NO_ENDS_ANYWHERE = 0x10,  // a "no" command that passed an "ne" node
  CMDBIT_NO_COMPLETE = 0x20,       // a "no" command that may not end here yet
  CMDBIT_SUB = 0x40,               // a nested command in subCommands
  CMDBIT_CONFLICT = 0x80,          // a node of the path has "cf"
  // vtyconf's own: the record was read from a change set (or copied from one),
  // so a device-text writer spells it anew instead of repeating what was read.
  CMDBIT_FROM_CHANGES = 0x100
};

class VTYCONF_API CiscoCommandLine {
 public:
  CiscoCommandLine();
  CiscoCommandLine(const CiscoCommandLine& other);
  CiscoCommandLine& operator=(const CiscoCommandLine& other);
  ~CiscoCommandLine();

  int getLevel() const { return level; }
  // Levels are mode depths, a handful deep; one beyond what the record holds
  // is refused (std::out_of_range).
  void setLevel(int value);
  int getLineNo() const { return lineNo; }
  void setLineNo(int value) { lineNo = value; }
  int getOrderNo() const { return orderNo; }
  void setOrderNo(int value) { orderNo = value; }
  CiscoCommandLineFlag getFlag() const { return static_cast<CiscoCommandLineFlag>(flag); }
  void setFlag(CiscoCommandLineFlag value) { flag = static_cast<uint16_t>(value); }
  unsigned int getFlags() const { return flags; }

  const std::string& getCurrentCommand() const {
    if (mCurrentIsOriginal) return originalCmd;
    return mRare ? mRare->currentCommand : noText();
  }
  void setCurrentCommand(const std::string& text) {
    mCurrentIsOriginal = false;
    if (mRare || !text.empty()) rare().currentCommand = text;
  }
  const std::string& getOriginalCmd() const { return originalCmd; }
  void setOriginalCmd(const std::string& text) {
    keepReadForm();
    keepCurrentCommand();
    originalCmd = text;
  }
  // vtyconf's own: both texts set to `text` at once, as a reading gives them
  // (the walk's two texts are the same); the record holds it once.
  void setCommandTexts(const std::string& text) {
    keepReadForm();
    originalCmd = text;
    if (mRare) std::string().swap(mRare->currentCommand);
    mCurrentIsOriginal = true;
  }
  const std::string& getOriginalStr() const;
  void setOriginalStr(const std::string& text);
  void getMajorCmdStr(std::string& out) const {
    if (majorCmdStr) {
      out = *majorCmdStr;
    } else {
      out.clear();
    }
  }
  void setMajorCommands(const std::string& text);
  // The same text, shared with the records that stand in the same modes (the
  // text is never changed in place).
  void setMajorCommands(SharedText text) { majorCmdStr = std::move(text); }
  std::vector<std::string> getMajorCommands() const;
  // vtyconf's own: the line as it was read, with any empty lines that stood
  // before it ("\n" each). Setting it remembers originalCmd as well, so that
  // isAsRead() tells whether the record still says what was read.
  const std::string& getRawText() const { return mRawText; }
  void setRawText(const std::string& text) {
    mRawText = text;
    forgetReadForm();
  }
  void setRawText(std::string&& text) {
    mRawText = std::move(text);
    forgetReadForm();
  }
  bool isAsRead() const {
    return !mRawText.empty() && (!mRare || !mRare->readForm || originalCmd == *mRare->readForm);
  }

  std::vector<CiscoCommandLine*>& getChildCommands() { return childCommands; }
  const std::vector<CiscoCommandLine*>& getChildCommands() const { return childCommands; }
  // Appends all descendants, depth first, each ahead of its own children.
  void getAllChildCommands(std::vector<CiscoCommandLine*>& out) const;
  CiscoCommandLine* getParentCommand() const { return parentCommand; }
  CmdPathView getTreeNodes() const { return CmdPathView(mPath, mPathSize); }
  const std::map<ParserTreeNode*, CiscoCommandLine*>& getSubCommands() const;
  int getTreeNodeSize() const { return mPathSize; }

  void setFlags(unsigned int bits, bool recursive);
  // Clears bits (vtyconf's own counterpart of setFlags, used by merges).
  void clearFlags(unsigned int bits) { flags &= ~bits; }
  bool hasFlags(unsigned int bits) const { return (flags & bits) != 0; }
  void setNoCompleteCmd(bool value);
  void setParentCommand(CiscoCommandLine* parent, bool addToChildren);
  void flagTheCmd();
  void clearVisitedOption();
  void delOnlyChildCmds();

  // Room for a path of `nodes` nodes (a hint of the terminal's walk).
  void reservePath(size_t nodes);
  // Extends the path by a matched word (called by the terminal's walk).
  void addTreeNodes(ParserTreeNode* node, const std::string& word, bool isNo);
  // Takes the order number from the command-order table for the mode opened
  // by modeNode; does nothing while the table is empty.
  void setOrderNo(ParserTreeNode* modeNode);
  // Rebuilds originalCmd from the path and returns it.
  const std::string& genCommandStr();

  bool isComparable(const CiscoCommandLine* other) const;
  bool isConflictWith(CiscoCommandLine* other) const;
  bool isNoable(const CiscoCommandLine* no) const;
  bool isExactlyMatch(CiscoCommandLine* other) const;
  bool mergeCommand(CiscoCommandLine* other);

 private:
  using SubCommands = std::map<ParserTreeNode*, CiscoCommandLine*>;

  void enterNode(ParserTreeNode* node, const std::string& word);
  void takeFlagFrom(const ParserTreeNode* node);
  // The path's block: entries [0, mPathSize) built, room for mPathCapacity.
  CmdPathEntry* pathEnd() { return mPath + mPathSize; }
  // A new last element, built empty (the block grows when full).
  CmdPathEntry& appendPathEntry();
  // Room for `capacity` elements in a new block, the elements moved over.
  void regrowPath(size_t capacity);
  // The elements destroyed; the block stays (keep) or goes.
  void clearPath(bool keep);
  void copyPathFrom(const CiscoCommandLine& other);
  SubCommands& ownSubCommands();
  // The texts of `other`'s rare block (line text, read form, a current
  // command of its own), as copies.
  void copyTexts(const CiscoCommandLine& other);
  // What few records hold, in one block that only they allocate: the text of
  // a line that is no command (made when set), the nested option commands
  // (made with the first), the form originalCmd had when the text was read
  // (kept only once originalCmd is about to change; until then it is
  // originalCmd itself), and the current command where it is not originalCmd
  // (a reading gives both the same text; they part when originalCmd changes).
  struct Rare {
    std::string currentCommand;
    std::unique_ptr<std::string> originalStr;
    std::unique_ptr<std::string> readForm;
    std::unique_ptr<SubCommands> subCommands;
    CiscoCommandLine* currentSubCommand = nullptr;
  };
  Rare& rare() {
    if (!mRare) mRare = std::make_unique<Rare>();
    return *mRare;
  }
  void keepReadForm() {
    if (mRawText.empty() || (mRare && mRare->readForm)) return;
    rare().readForm = std::make_unique<std::string>(originalCmd);
  }
  void forgetReadForm() {
    if (mRare) mRare->readForm.reset();
  }
  CiscoCommandLine* currentSub() const { return mRare ? mRare->currentSubCommand : nullptr; }
  // Before originalCmd changes: a current command that was the original one
  // keeps the text it had.
  void keepCurrentCommand() {
    if (!mCurrentIsOriginal) return;
    mCurrentIsOriginal = false;
    if (!originalCmd.empty()) rare().currentCommand = originalCmd;
  }
  // The empty text a getter answers with where the record holds none.
  static const std::string& noText();

  // The small members stand together, in as few bytes as their values need,
  // so that a record (136 bytes) takes a malloc block of 144.
  int lineNo = 0;
  int orderNo = 0;
  // The rebuilt texts of the commands that opened the modes around this one
  // (null when there are none).
  SharedText majorCmdStr;
  std::string originalCmd;
  // The CMDBIT_* bits (all nine of them); bits beyond are not kept.
  uint16_t flags : 9;
  // A CiscoCommandLineFlag (1 to 6).
  uint16_t flag : 3;
  // vtyconf's own: the current command is originalCmd (setCommandTexts);
  // otherwise it is the Rare block's (empty where there is no block).
  uint16_t mCurrentIsOriginal : 1;
  int16_t level = 0;
  // The path (see mPath): its length and room. Each node appears once in a
  // path (a repeated node adds words to its element), so a path is never
  // longer than the grammar has nodes; the loader's grammars stay far below
  // the 65535 these hold, and a longer path is refused (std::length_error).
  uint16_t mPathSize = 0;
  uint16_t mPathCapacity = 0;
  CiscoCommandLine* parentCommand = nullptr;
  std::vector<CiscoCommandLine*> childCommands;
  // The path's elements in a block of their own (null while it has none).
  CmdPathEntry* mPath = nullptr;
  // vtyconf's own (copied and assigned with the strings above).
  std::string mRawText;
  std::unique_ptr<Rare> mRare;
};

}  // namespace qxparser
