// DeviceMeaning: what a rollback between two configurations needs beyond
// the comparison by grammar path, where the device's answer differs from it.
//
// A line that a configuration states in its "no" form (" no shutdown") and
// that the other configuration holds positive (" shutdown") is the same kind
// of command to the comparison, so a fallback from the first to the second
// writes nothing for it; the device needs the positive line. `missedCommands`
// finds such lines, `graft` puts records under the mode heads of another list.
// Both work on records as DeviceTextReader returns them; they own nothing they
// are given. Ordered lists have AccessListMeaning, BGP neighbours
// BgpNeighbourMeaning. Same threading rule as every reading operation.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class DeviceMeaning {
 public:
  // The positive commands of `to` (with their mode heads, as text one blank
  // of indent per level) that `from` states only in their "no" form.
  static std::string missedCommands(const std::vector<CiscoCommandLine*>& from,
                                    const std::vector<CiscoCommandLine*>& to);

  // An "exit-address-family" line (and its kind) read with a mode block stays
  // the block's last line when a merge added commands to the block.
  static void exitLinesLast(std::vector<CiscoCommandLine*>& records);

  // A top-level "vlan N", "interface TYPE N" or "ip route ..." that a merge
  // added stands where the device shows it: before the first one of its
  // kind (same interface type) with a higher number.
  static void placeInNumberOrder(std::vector<CiscoCommandLine*>& records);

  // Takes out of a rollback `out` each "no X" whose X stands unchanged in both
  // `from` and `to` (in the same mode) while `to` holds no "no X": the
  // comparison by grammar path negated a line that nobody changed.
  static void dropUnchangedNegations(std::vector<CiscoCommandLine*>& out,
                                     const std::vector<CiscoCommandLine*>& from,
                                     const std::vector<CiscoCommandLine*>& to);

  // Moves the records of `extra` into `into`: a mode head that `into` holds
  // already takes the children, any other record is appended. `extra` is
  // left empty; what it held is owned by `into` or freed.
  static void graft(std::vector<CiscoCommandLine*>& extra, std::vector<CiscoCommandLine*>& into,
                    CiscoCommandLine* parent);
};

}  // namespace qxparser
