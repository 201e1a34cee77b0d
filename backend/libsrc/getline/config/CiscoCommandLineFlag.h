// CiscoCommandLineFlag: how a command behaves in a merge.
//
// Plain int values 1 to 6, shared by the command record and the text helpers.
#pragma once

namespace qxparser {

enum CiscoCommandLineFlag {
  CMD_NEGATED = 1,            // a "no " text (from getCmdFlag only)
  CMD_NEGATED_OVERWRITE = 2,  // the same, with its key in the overwrite set
  CMD_ADDITIVE = 3,           // default; several live side by side
  CMD_OVERWRITE = 4,          // a new command replaces the comparable old one
  CMD_MERGEABLE = 5,          // the words of a new command join the old one
  CMD_TEXT = 6                // not a command: only the original text counts
};

}  // namespace qxparser
