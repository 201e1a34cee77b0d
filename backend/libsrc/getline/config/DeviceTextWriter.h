// DeviceTextWriter: configuration records written as the device shows them.
//
// The counterpart of the merge writer (expandMergedCmds) for text that is
// compared with "show running-config" or pasted into a device:
// - a record that still says what was read (CiscoCommandLine::isAsRead) and
//   does not come from a change set comes out as it was read, byte for byte;
// - a record of a change set (CMDBIT_FROM_CHANGES), or one a merge changed,
//   in the device's spelling (DeviceSpelling), indented one blank per level,
//   an "exit-..." line at the level of the mode it leaves;
// - a line without a grammar path (banner text, certificate data, a refused
//   line) as it was read;
// - comment records ("!", blank-only lines, "end") at their line numbers:
//   each comes out ahead of the first record read after it;
// - a mode block that a merge added at the top level ends with "!"; an
//   address family that a change set brought in is set apart by "!" at its
//   indent and ends with "exit-address-family", as the device prints it.
// No NUL byte, no trailing blank on a spelled line.
//
// Pure function of the records; the caller keeps ownership. markFromChanges
// sets the change-set bit on records, their nested commands and children.
#pragma once

#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "platform/Export.h"

namespace qxparser {

class VTYCONF_API DeviceTextWriter {
 public:
  enum Option : unsigned int {
    kNone = 0,
    // "!" behind every mode block of the top level, not only new ones (for
    // records whose comment lines were left out, as a sort does).
    kCloseEveryBlock = 1,
    // Spell every command anew, whatever was read (for records read from a
    // text of the merge writer's form).
    kSpellAll = 2
  };

  // The level-0 `commands`, with everything below them.
  static std::string write(const std::vector<CiscoCommandLine*>& commands, unsigned int options = kNone);
  // One record's line without its children: indent, text, "\n".
  static std::string writeLine(const CiscoCommandLine& record, int depth, unsigned int options = kNone);
  // The same line appended to `out`.
  static void appendLine(std::string& out, const CiscoCommandLine& record, int depth,
                         unsigned int options = kNone);
  // Sets CMDBIT_FROM_CHANGES on each record, its nested commands and its
  // children at every depth.
  static void markFromChanges(const std::vector<CiscoCommandLine*>& commands);
};

}  // namespace qxparser
