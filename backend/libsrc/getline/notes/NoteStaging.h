// NoteStaging: the private copies that a note is run on.
//
// A note is never run from the user's own files: the script is written, with
// a fresh translation, and the configuration is written into a new folder
// below the process's private temporary folder, under fixed names. So a path
// with blanks, quotes, ";" or "$(...)" is only ever opened as a file, and no
// stale ".pl" beside a script is run. A NoteStaging owns its folder and
// removes it when it goes out of scope. One object per run; no shared state.
#pragma once

#include <string>

#include "platform/Export.h"

class VTYCONF_API NoteStaging {
 public:
  NoteStaging();
  ~NoteStaging();
  NoteStaging(const NoteStaging&) = delete;
  NoteStaging& operator=(const NoteStaging&) = delete;

  // Copies the script. A ".py" script is copied as it is; any other is read
  // as a design script (a ".cmf" file with its header, else the whole file as
  // script text), checked and translated. False with error set when the file
  // cannot be read; false with messages set when the script fails the check
  // or the translation.
  bool stageScript(const std::string& path, std::string& error, std::string& messages);
  // Writes the configuration text as it is; false with error set when it
  // cannot be written.
  bool stageConfigText(const std::string& text, std::string& error);

  const std::string& folder() const { return mFolder; }
  const std::string& scriptPath() const { return mScript; }
  const std::string& configPath() const { return mConfig; }

 private:
  std::string mFolder;
  std::string mScript;
  std::string mConfig;
};
