#include "notes/NoteStaging.h"

#include <fstream>

#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QX128Guid.h"
#include "platform/QXFileSystem.h"

NoteStaging::NoteStaging()
    : mFolder(QXFileSystem::GetTempFolder() + "run-" + QX128Guid(true).ToUUIDString(false)) {
  platform::makeDir(mFolder);
}

NoteStaging::~NoteStaging() { Pathname(mFolder).removeFile(true); }

bool NoteStaging::stageScript(const std::string& path, std::string& error, std::string& messages) {
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

bool NoteStaging::stageConfigText(const std::string& text, std::string& error) {
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
