#include "NoteStaging.h"

#include <fstream>
#include <iostream>

#include "ConfigInput.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QX128Guid.h"
#include "platform/QXFileSystem.h"

namespace vtycli {

StagedNote::StagedNote()
    : mFolder(QXFileSystem::GetTempFolder() + "run-" + QX128Guid(true).ToUUIDString(false)) {
  platform::makeDir(mFolder);
}

StagedNote::~StagedNote() { Pathname(mFolder).removeFile(true); }

bool StagedNote::stageScript(const std::string& path, std::string& error, std::string& messages) {
  if (platform::access(path, 4) != 0 || Pathname(path).isDirectory()) {
    error = path + ": cannot read the script";
    return false;
  }
  if (DRScriptFile::getScriptType(Pathname(path).file(), nullptr) == ScriptTypePython) {
    mScript = mFolder + platform::kPathSeparator + "note.py";
    if (!platform::copyFile(path, mScript, false)) {
      error = path + ": cannot copy the script";
      return false;
    }
    return true;
  }
  DRScriptFile source(path);
  mScript = mFolder + platform::kPathSeparator + "note.cmf";
  DRScriptFile copy(source.getContext(), source.getDescription(), source.isFavourite());
  if (!copy.saveScriptFile(mScript)) {
    error = mScript + ": cannot write the script";
    return false;
  }
  if (!Pathname(mFolder + platform::kPathSeparator + "note.pl").exists()) {
    messages = DesignNoteParser::checkScriptFile(source.getContext());
    if (messages.empty()) messages = "the script gives no program (a comment or text runs into its end)\n";
    return false;
  }
  return true;
}

bool StagedNote::stageConfig(const std::string& path, std::string& error) {
  std::string text;
  if (!readInput(path, text)) {
    error.clear();  // readInput has told the user already
    return false;
  }
  mConfig = mFolder + platform::kPathSeparator + "config.txt";
  std::ofstream out(mConfig, std::ios::binary | std::ios::trunc);
  out << text;
  out.close();
  if (!out) {
    error = mConfig + ": cannot write the configuration";
    return false;
  }
  return true;
}

void printNoteMessages(const std::string& name, const std::string& messages) {
  std::size_t start = 0;
  while (start < messages.size()) {
    std::size_t end = messages.find('\n', start);
    if (end == std::string::npos) end = messages.size();
    std::string line = messages.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) std::cerr << "vtyconf: " << name << ": " << line << "\n";
    start = end + 1;
  }
}

}  // namespace vtycli
