// NoteStaging: the private copies that the note subcommands of vtyconf run on.
//
// StagedNote is the library's NoteStaging (see notes/NoteStaging.h) that also
// reads a configuration file for the program: the capture is cleaned and the
// file's line numbers kept, and every left-out line is reported on standard
// error. A StagedNote owns its folder and removes it when it goes out of scope.
#pragma once

#include <string>

#include "notes/NoteStaging.h"

namespace vtycli {

class StagedNote : public ::NoteStaging {
 public:
  // Reads and cleans a configuration ("-" reads standard input); false with
  // error set when it cannot be read or written.
  bool stageConfig(const std::string& path, std::string& error);
};

// Prints check or translation messages, one line each, as "vtyconf: NAME: TEXT".
void printNoteMessages(const std::string& name, const std::string& messages);

}  // namespace vtycli
