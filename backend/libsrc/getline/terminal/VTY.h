// VTY: the emulated terminal of one device.
//
// A VTY holds one model for each of the three top modes (view, execution,
// configuration), a stack that says which mode is current, an input stream
// (the object itself: execute() reads it) and an output stream in which the
// device's answers collect (taken with getOutputString). Lines go in through
// parse(); a whole configuration through getComLineInfo(). The grammar trees
// are shared by every VTY (mTrees4Modes, filled by createNewParserResource);
// everything that changes as lines go through lives in the VTY, or, for the
// walker's scratch on grammar nodes, with the thread (ThreadWordSet).
//
// Records passed to parse() stay owned by the caller. A VTY is used by one
// thread at a time; VTYs on different threads may work at once over the
// same loaded grammar (see "Readings on two threads" in the library guide),
// as long as nothing loads or destroys the resources meanwhile.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "config/SharedText.h"
#include "platform/Export.h"

namespace qxparser {

class CiscoCommandLine;
class ParserTree;
class VTYModel;

// The three modes; 3 (no change) and 4 (leave the mode) are results of a
// line only and are never pushed as modes.
enum VTYModeType { VIEW_MODE = 0, EXEC_MODE = 1, CONFIG_MODE = 2, MODE_NO_CHANGE = 3, MODE_EXIT = 4 };

// One answer of a hint query: the prompt suffix of the level that gave it and
// the help text printed for that level.
struct ConfigHint {
  std::string prompt;
  std::string hintText;
};

class VTYCONF_API VTY : public std::stringstream {
 public:
  VTY(const std::string& hostName, bool cliMode);
  VTY();
  ~VTY() override;

  // Back to mode 0 with one level in every model; keeps the output stream,
  // the last error and the removed interfaces.
  void reset();
  // The host name, or an empty string while a banner is open.
  std::string getHostName() const;
  // vtyconf's own: the name the prompt shows from now on (a console that
  // follows `hostname`).
  void setHostName(const std::string& name) { mHostName = name; }
  void getPrompt(std::string& text) const;
  int getType() const { return mType; }
  std::string getConfigFile() const { return mConfigFile; }
  void setConfigAndDeltaFile(const std::string& file, int type);
  bool runningCLIMode() const { return mCliMode; }
  void getCompleteLine(std::string& text) const;
  void getInfoLine(std::string& text) const;
  void getMajorCommands(std::string& text) const;
  // Takes everything collected in the output stream and empties it.
  void getOutputString(std::string& text);
  void registerDeltaCmd(const std::string& text) { mAllConfigCmds = text; }
  std::string getAllConfigCmds() const { return mAllConfigCmds; }
  void registerRemovedInterface(const std::string& name) { mRemovedInterfaces.push_back(name); }
  const std::vector<std::string>& removedInterface() const { return mRemovedInterfaces; }

  // Feeds one line (no line end needed). `command` may be null; it receives
  // the path of the line. False when the line failed; the error text is then
  // in the output and in lastError().
  bool parse(const std::string& line, bool popMode, CiscoCommandLine* command);
  // Reads the VTY's own input stream to its end.
  void execute();
  // Help ("?" as last character) or completion (a tab) for a line.
  void hook(const std::string& line);
  // Replays a whole configuration; appends one new record per non-empty
  // line (the caller owns them, with their children) and goes on after a
  // failure. errorText/errorLine keep the last failure.
  bool getComLineInfo(const std::string& text, std::vector<CiscoCommandLine*>& commands, std::string& errorText,
                      int& errorLine, bool popMode);
  void findMajorCommand(std::string& configuration);
  bool hintCommand(std::string& configuration, std::string& line, std::vector<ConfigHint>& hints);
  // Asks every level for the next words; consumes the levels (reset after).
  void getNextCmdWords(std::string& line, std::vector<ConfigHint>& hints);
  // vtyconf's own: as hintCommand, each level asked on its own, so that a
  // level without an answer does not silence the levels above it.
  bool hintCommandEachLevel(std::string& configuration, const std::string& line, std::vector<ConfigHint>& hints);

  // vtyconf additions for callers that want to see the state.
  VTYModeType currentMode() const { return mModeStack.empty() ? VIEW_MODE : mModeStack.back(); }
  const std::string& lastError() const { return mLastError; }
  bool inBanner() const { return mInBanner; }
  // Number of open configuration levels of the current mode (1 at its root).
  size_t levelCount() const;
  // The rebuilt text of the command that opened the innermost level ("" at
  // the root of a mode).
  std::string innermostLevelText() const;
  // vtyconf's own, for reading text as it is typed: a terminal in CLI mode
  // does not link a finished command to the command of its mode or give it
  // an order number; with this set it does, as a replaying terminal does.
  void setLinkCommands(bool link) { mLinkCommands = link; }
  // vtyconf's own, for a console (a terminal that links no records): a line refused
  // for an ambiguous short interface type (`int Po1`) is walked once more
  // with the type the device prefers (InterfaceTypeOrder). Off by default.
  void setPreferInterfaceTypes(bool prefer) { mPreferInterfaceTypes = prefer; }
  // vtyconf's own: a line that raises the standard range error (a value of
  // only zeros in a numeric range) is refused like any other wrong word,
  // with the levels as they were, instead of letting the error out.
  void setRefuseRangeErrors(bool refuse) { mRefuseRangeErrors = refuse; }
  // vtyconf's own: switches CLI mode between lines, for every mode's model
  // (the reading of typed text tries whole words first, as a stored
  // configuration is replayed, and abbreviations after that).
  void setCliMode(bool cliMode);
  bool linksCommands() const { return mLinkCommands; }
  // vtyconf's own: one line into `command`, filled as getComLineInfo fills
  // the record of a line (texts, context, level; CMD_TEXT with the raw line
  // when the line holds no command), except that level and context are those
  // of this line alone, read after it, so a caller may change modes between
  // lines. False when the line failed; the record then has no path, its
  // level is that of the current mode and its texts are the line as typed.
  bool parseRecordLine(const std::string& line, CiscoCommandLine& command);
  // Byte offset, in the last line given to parse(), of the word at which the
  // walk stopped when the line failed (the farthest over the levels tried);
  // the line's length for an incomplete command.
  size_t lastErrorOffset() const { return mLastErrorOffset; }

  // Kept for callers that count terminals; nothing changes it.
  static int mInstanceCounter;
  // The trees of the loaded resources; a new VTY brings it up to date (under
  // a lock), and it must not be changed while terminals work.
  static std::map<VTYModeType, ParserTree*> mTrees4Modes;

 private:
  friend class VTYModel;
  VTY(const VTY&);
  void installMode(VTYModeType mode, ParserTree* tree);
  void DestroyModelAll();
  VTYModel* currentModel() const;
  // The context text for a record: the one handed out last when it is the
  // same text, so that the records of one mode share it.
  SharedText sharedContext(const std::string& text);
  // The same for the level text of `model` (VTYModel::levelText).
  SharedText sharedLevelText(const VTYModel& model, bool allLevels);
  // The command texts a walk of `model` gives `command` (info line and
  // complete line).
  static void setWalkedTexts(CiscoCommandLine& command, const VTYModel& model);

  std::stringstream mOutput;
  std::string mConfigFile;
  int mType = 0;
  bool mInBanner = false;
  bool mCliMode = false;
  bool mLinkCommands = false;
  bool mPreferInterfaceTypes = false;
  bool mRefuseRangeErrors = false;
  size_t mLastErrorOffset = 0;
  std::string mHostName;
  std::string mAllConfigCmds;
  std::string mLastError;
  std::map<VTYModeType, VTYModel*> mModels;
  std::deque<VTYModeType> mModeStack;
  std::vector<std::string> mRemovedInterfaces;
  SharedText mLastContext;
};

}  // namespace qxparser
