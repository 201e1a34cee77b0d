// CommandDump: one canonical text form of CiscoCommandLine records, for
// people and for comparisons in tests.
//
// A record is written as one line: its text indented by two blanks for each
// level, a tab, and in brackets the line number, the order number, the merge
// flag and the names of the set marks:
//   "  ip address 10.0.0.1 255.255.255.0\t[5 order 12 overwrite stored]"
// and its child commands follow, each on its own line, indented by their own
// level. The text is the plain form of the command (originalCmd), or for a
// line that is no command the line as it stood, without line end or leading
// blanks.
//
// Static members only; nothing is kept between calls, records are only read.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API CommandDump {
 public:
  // Maps a record's line number to the number shown; null shows it as it is.
  using LineMap = std::function<int(int)>;

  // "negated", "negated-overwrite", "additive", "overwrite", "mergeable", "text".
  static const char* flagName(CiscoCommandLineFlag flag);
  // Names of the set bits of `flags`, lowest bit first: "no", "stored",
  // "mode", "removed", "no-ends-anywhere", "no-incomplete", "sub", "conflict".
  static std::vector<std::string> markNames(const CiscoCommandLine& record);
  // The command's text without line end, trailing blanks and leading blanks.
  static std::string commandText(const CiscoCommandLine& record);
  // Appends the record's own line (with "\n"), then, when withChildren is
  // set, the lines of its child commands, depth first.
  static void dumpCommand(const CiscoCommandLine& record, std::string& out, bool withChildren = true,
                          const LineMap& lineOf = nullptr);
  // Appends every record of the list that has no parent, with its children:
  // the whole configuration once, in the order of the list.
  static void dumpCommands(const std::vector<CiscoCommandLine*>& records, std::string& out,
                           const LineMap& lineOf = nullptr);
};

}  // namespace qxparser
