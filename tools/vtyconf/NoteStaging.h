// NoteStaging: the private copies that the note subcommands of vtyconf run on.
//
// A note is never run from the user's own files: the script is written, with
// a fresh translation, and the configuration (capture cleaned, line numbers
// kept) is written into a new folder below the process's private temporary
// folder, under fixed names. So a path with blanks, quotes, ";" or "$(...)"
// is only ever opened as a file, and no stale ".pl" beside a script is run.
// A StagedNote owns its folder and removes it when it goes out of scope.
#pragma once

#include <string>

namespace vtycli {

class StagedNote {
 public:
  StagedNote();
  ~StagedNote();
  StagedNote(const StagedNote&) = delete;
  StagedNote& operator=(const StagedNote&) = delete;

  // Copies the script. A ".py" script is copied as it is; any other is read
  // as a design script (a ".cmf" file with its header, else the whole file as
  // script text), checked and translated. False with error set when the file
  // cannot be read; false with messages set when the script fails the check
  // or the translation.
  bool stageScript(const std::string& path, std::string& error, std::string& messages);
  // Reads and cleans a configuration ("-" reads standard input); false with
  // error set when it cannot be read or written.
  bool stageConfig(const std::string& path, std::string& error);

  const std::string& folder() const { return mFolder; }
  const std::string& scriptPath() const { return mScript; }
  const std::string& configPath() const { return mConfig; }

 private:
  std::string mFolder;
  std::string mScript;
  std::string mConfig;
};

// Prints check or translation messages, one line each, as "vtyconf: NAME: TEXT".
void printNoteMessages(const std::string& name, const std::string& messages);

}  // namespace vtycli
