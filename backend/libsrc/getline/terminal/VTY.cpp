#include "terminal/VTY.h"

#include <memory>
#include <mutex>
#include <utility>

#include "config/CiscoCommandLine.h"
#include "config/CmdOrderTable.h"
#include "grammar/DefinitionLoader.h"
#include "grammar/InterfaceTypeOrder.h"
#include "grammar/ParserTree.h"
#include "terminal/VTYModel.h"
#include "toolkit/ParserToolCase.h"

namespace qxparser {

int VTY::mInstanceCounter = 0;
std::map<VTYModeType, ParserTree*> VTY::mTrees4Modes;

std::map<VTYModeType, ParserTree*>& gResourceTrees();

namespace {

// Whether the last good line changed the mode. Shared by all terminals of a
// thread, as the design has it: a failed line right after a mode change
// resets the model of the new mode a second time (kept on purpose). Each
// thread has its own, so that what one thread reads does not change another
// thread's reading.
thread_local bool gModeChanged = false;

// Guards mTrees4Modes, which every new terminal fills in from the loaded
// resources.
std::mutex gTreesLock;

// Where the non-empty pieces of `text` cut at carriage returns and line
// feeds stand, up to its first NUL byte, as ParserToolCase::splitString cuts
// it.
std::vector<std::pair<const char*, size_t>> lineSpans(const std::string& text) {
  std::vector<std::pair<const char*, size_t>> spans;
  const char* p = text.c_str();
  while (true) {
    while (*p == '\r' || *p == '\n') ++p;
    if (*p == '\0') return spans;
    const char* begin = p;
    while (*p != '\0' && *p != '\r' && *p != '\n') ++p;
    spans.emplace_back(begin, static_cast<size_t>(p - begin));
  }
}

bool isBlankOrEnd(const std::string& line) {
  size_t start = line.find_first_not_of(" \t");
  if (start == std::string::npos) return true;
  return line.compare(start, 3, "end") == 0;
}

}  // namespace

VTY::VTY(const std::string& hostName, bool cliMode) : mCliMode(cliMode), mHostName(hostName) {
  // The order table's filling makes terminals of its own: it runs before
  // the lock is taken, so that they can take it.
  fillDeferredCmdOrderTable();
  ParserTree* trees[3];
  {
    std::lock_guard<std::mutex> guard(gTreesLock);
    for (VTYModeType mode : {VIEW_MODE, EXEC_MODE, CONFIG_MODE}) {
      trees[mode] = gResourceTrees()[mode];
      mTrees4Modes[mode] = trees[mode];
    }
  }
  for (VTYModeType mode : {VIEW_MODE, EXEC_MODE, CONFIG_MODE}) installMode(mode, trees[mode]);
  mModeStack.push_back(VIEW_MODE);
}

VTY::VTY() : VTY("hostName", false) {}

VTY::VTY(const VTY&) : std::basic_ios<char>(), std::stringstream() {}

VTY::~VTY() { DestroyModelAll(); }

void VTY::installMode(VTYModeType mode, ParserTree* tree) {
  auto model = std::make_unique<VTYModel>(this, tree);
  model->mModeType = mode;
  mModels[mode] = model.release();
}

void VTY::DestroyModelAll() {
  for (auto& entry : mModels) {
    delete entry.second;
    entry.second = nullptr;
  }
}

VTYModel* VTY::currentModel() const {
  auto found = mModels.find(currentMode());
  return found == mModels.end() ? nullptr : found->second;
}

SharedText VTY::sharedContext(const std::string& text) {
  if (text.empty()) return SharedText();
  if (!mLastContext || *mLastContext != text) mLastContext = SharedText(text);
  return mLastContext;
}

SharedText VTY::sharedLevelText(const VTYModel& model, bool allLevels) {
  if (mLastContext && model.levelTextIs(*mLastContext, allLevels)) return mLastContext;
  std::string text;
  model.levelText(text, allLevels);
  return sharedContext(text);
}

void VTY::reset() {
  mModeStack.clear();
  mModeStack.push_back(VIEW_MODE);
  for (auto& entry : mModels) {
    if (entry.second) entry.second->resetModel();
  }
}

std::string VTY::getHostName() const { return mInBanner ? std::string() : mHostName; }

void VTY::getPrompt(std::string& text) const {
  VTYModel* model = currentModel();
  text = model ? model->mPrompt : std::string();
}

void VTY::setConfigAndDeltaFile(const std::string& file, int type) {
  mConfigFile = file;
  mType = type;
}

void VTY::getCompleteLine(std::string& text) const {
  VTYModel* model = currentModel();
  text = model ? model->mCompleteLine : std::string();
}

void VTY::getInfoLine(std::string& text) const {
  VTYModel* model = currentModel();
  text = model ? model->mInfoLine : std::string();
}

void VTY::getMajorCommands(std::string& text) const {
  VTYModel* model = currentModel();
  if (model) {
    model->levelText(text, false);
  } else {
    text.clear();
  }
}

size_t VTY::levelCount() const {
  VTYModel* model = currentModel();
  return model ? model->mLevels->nodes.size() : 0;
}

void VTY::getOutputString(std::string& text) {
  text = mOutput.str();
  mOutput.str(std::string());
  mOutput.clear();
}

bool VTY::parse(const std::string& line, bool popMode, CiscoCommandLine* command) {
  VTYModel* model = currentModel();
  if (!model) return false;
  const VTYModeType lineMode = currentMode();
  model->mCurrentCommand = command;
  int modeResult = MODE_NO_CHANGE;
  std::string errorText;
  bool inBanner = false;
  bool ok = model->parseLine(line, errorText, modeResult, inBanner);
  if (!ok && mPreferInterfaceTypes && !mLinkCommands) {
    const std::string preferred = InterfaceTypeOrder::withPreferredTypes(line);
    // The record of the refused walk holds part of a path: the second walk
    // fills one of its own, which then stands for the line.
    CiscoCommandLine second;
    model->mCurrentCommand = command ? &second : nullptr;
    std::string retryError;
    if (!preferred.empty() && model->parseLine(preferred, retryError, modeResult, inBanner)) {
      ok = true;
      if (command) *command = second;
    }
    model->mCurrentCommand = command;
  }
  mInBanner = inBanner;
  std::string kept;
  if (!ok) {
    mOutput << errorText << "\n";
    mLastError = errorText;
  } else {
    if (modeResult == EXEC_MODE || modeResult == CONFIG_MODE || modeResult == MODE_EXIT) kept = model->mCompleteLine;
    if (modeResult == MODE_EXIT && lineMode == VIEW_MODE) return true;
    if (modeResult == EXEC_MODE || modeResult == CONFIG_MODE) {
      mModeStack.push_back(static_cast<VTYModeType>(modeResult));
      if (VTYModel* next = currentModel()) {
        next->resetModel();
        next->mCompleteLine = kept;
      }
    } else if (modeResult == MODE_EXIT) {
      if (popMode && mModeStack.size() > 1) mModeStack.pop_back();
      if (VTYModel* next = currentModel()) {
        next->resetModel();
        next->mCompleteLine = kept;
      }
    }
    if (lineMode != VIEW_MODE) mLastError.clear();
    gModeChanged = modeResult != MODE_NO_CHANGE;
  }
  if (gModeChanged) {
    if (VTYModel* top = currentModel()) {
      top->resetModel();
      top->mCompleteLine = kept;
    }
  }
  return ok;
}

void VTY::execute() {
  std::string line;
  while (std::getline(*this, line)) {
    if (!line.empty() && (line.back() == '?' || line.back() == '\t')) {
      if (VTYModel* model = currentModel()) model->hookLine(line);
    } else {
      parse(line + " \n", true, nullptr);
    }
  }
}

void VTY::hook(const std::string& line) {
  if (VTYModel* model = currentModel()) model->hookLine(line);
}

bool VTY::getComLineInfo(const std::string& text, std::vector<CiscoCommandLine*>& commands, std::string& errorText,
                         int& errorLine, bool popMode) {
  // The lines as splitString cuts them; each is copied in turn into one buffer.
  const std::vector<std::pair<const char*, size_t>> lines = lineSpans(text);
  if (commands.capacity() < commands.size() + lines.size()) commands.reserve(commands.size() + 2 * lines.size());

  VTYModel* model = currentModel();
  if (!model) return false;
  bool wasNew = model->mNewLevel;
  std::string context;
  model->levelText(context, false);
  int level = 0;
  bool ok = true;
  int number = 0;
  std::string line;
  for (const auto& piece : lines) {
    line.assign(piece.first, piece.second);
    ++number;
    auto command = std::make_unique<CiscoCommandLine>();
    command->setLineNo(number);
    if (isBlankOrEnd(line)) {
      command->setFlag(CMD_TEXT);
      command->setOriginalStr(line);
      commands.push_back(command.release());
      continue;
    }
    ok = parse(line, popMode, command.get());
    if (!ok) {
      errorLine = number;
      errorText = mLastError;
      if (number == 1 || wasNew) {
        model->levelText(context, true);
        level = static_cast<int>(model->mMajorLevel) + (wasNew ? 1 : 0);
      }
      command->setLevel(level);
      command->setMajorCommands(sharedContext(context));
      size_t start = line.find_first_not_of(" \t");
      std::string shown = (start == std::string::npos ? std::string() : line.substr(start)) + "\n";
      command->setCommandTexts(shown);
      commands.push_back(command.release());
      continue;
    }
    if (number == 1 || model->mNewLevel || wasNew != model->mNewLevel) {
      model->levelText(context, false);
      level = static_cast<int>(model->mMajorLevel);
    }
    wasNew = model->mNewLevel;
    if (!model->mInfoLine.empty()) {
      setWalkedTexts(*command, *model);
      command->setMajorCommands(sharedContext(context));
      command->setLevel(level);
    } else {
      command->setFlag(CMD_TEXT);
      command->setOriginalStr(line);
    }
    commands.push_back(command.release());
  }
  return ok;
}

void VTY::findMajorCommand(std::string& configuration) {
  std::vector<std::string> lines;
  ParserToolCase::splitString(ParserToolCase::string2Lower(configuration), "\r\n", lines);
  for (const auto& line : lines) {
    if (isBlankOrEnd(line)) break;
    parse(line, true, nullptr);
  }
}

bool VTY::hintCommand(std::string& configuration, std::string& line, std::vector<ConfigHint>& hints) {
  findMajorCommand(configuration);
  if (VTYModel* model = currentModel()) model->nextWords(line + "?", hints);
  return true;
}

void VTY::getNextCmdWords(std::string& line, std::vector<ConfigHint>& hints) {
  if (VTYModel* model = currentModel()) model->nextWords(line, hints);
}

}  // namespace qxparser
