// RouteFilterMeaning: prefix lists and route-map entries as the device edits
// them.
//
// A prefix-list entry typed without "seq" gets a number from the device: 5
// above the highest of its list, 5 for the first; the running configuration
// shows it with that number, by which a later change names it. A route-map
// entry is named by its map and sequence number: "route-map M deny 10" turns
// an existing "route-map M permit 10" into a deny entry and keeps its match
// and set lines. An as-path or community list loses one entry to "no <entry>".
// Works on records as DeviceTextReader returns them; a record
// it replaces it frees. Same threading rule as every reading operation.
#pragma once

#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class RouteFilterMeaning {
 public:
  // Gives each prefix-list entry of `changes` without "seq" the number the
  // device gives it, after the entries of `config` and the earlier changes
  // (unless `config` turns the numbers off).
  static void numberPrefixEntries(std::vector<CiscoCommandLine*>& changes,
                                  const std::vector<CiscoCommandLine*>& config);

  // "no <entry>" of an as-path or community list in `changes` takes that one
  // entry out of `config` (the comparison by grammar path would take the run
  // of entries it finds) and leaves `changes`.
  static void removeExactEntries(std::vector<CiscoCommandLine*>& changes,
                                 std::vector<CiscoCommandLine*>& config);

  // A route-map head of `changes` whose map and sequence number `config`
  // holds with the other action changes that entry's action in `config`.
  static void changeEntryActions(const std::vector<CiscoCommandLine*>& changes,
                                 std::vector<CiscoCommandLine*>& config);
};

}  // namespace qxparser
