// One line into one record, for readers that walk a text themselves (the
// reading of typed text steers modes between lines, which getComLineInfo,
// holding one model for the whole text, cannot follow).
#include "config/CiscoCommandLine.h"
#include "terminal/VTY.h"
#include "terminal/VTYModel.h"

namespace qxparser {

std::string VTY::innermostLevelText() const {
  VTYModel* model = currentModel();
  if (!model || model->mLevels->texts.empty()) return std::string();
  return model->mLevels->texts.back();
}

bool VTY::hintCommandEachLevel(std::string& configuration, const std::string& line, std::vector<ConfigHint>& hints) {
  findMajorCommand(configuration);
  if (VTYModel* model = currentModel()) model->nextWordsEachLevel(line + "?", hints);
  if (VTYModel* model = currentModel()) model->resetModel();
  return !hints.empty();
}

void VTY::setCliMode(bool cliMode) {
  mCliMode = cliMode;
  for (auto& entry : mModels) {
    if (entry.second) entry.second->mCliMode = cliMode;
  }
}

void VTY::setWalkedTexts(CiscoCommandLine& command, const VTYModel& model) {
  // The info line is the complete line unless a value was marked: then the
  // record holds the text once.
  if (model.mInfoLine == model.mCompleteLine) {
    command.setCommandTexts(model.mCompleteLine);
    return;
  }
  command.setCurrentCommand(model.mInfoLine);
  command.setOriginalCmd(model.mCompleteLine);
}

bool VTY::parseRecordLine(const std::string& line, CiscoCommandLine& command) {
  const bool ok = parse(line, true, &command);
  VTYModel* model = currentModel();
  const int level = model ? static_cast<int>(model->mMajorLevel) : 0;
  if (!ok) {
    size_t start = line.find_first_not_of(" \t");
    const std::string shown = (start == std::string::npos ? std::string() : line.substr(start)) + "\n";
    // Right behind a line that opened a mode, the refused line stands inside
    // that mode, as getComLineInfo places it.
    const bool opened = model && model->mNewLevel;
    command.setLevel(level + (opened ? 1 : 0));
    command.setMajorCommands(model ? sharedLevelText(*model, opened) : SharedText());
    command.setCommandTexts(shown);
    return false;
  }
  if (model && !model->mInfoLine.empty()) {
    setWalkedTexts(command, *model);
    command.setMajorCommands(sharedLevelText(*model, false));
    command.setLevel(level);
  } else {
    command.setFlag(CMD_TEXT);
    command.setOriginalStr(line);
  }
  return true;
}

}  // namespace qxparser
