// ResultRollback: change sets whose rollback is found from the configuration
// they give rather than from their own lines.
//
// Some lines mean more to the device than they say: "interface range" edits
// each member, "default interface" takes away lines it does not name, a
// numbered access list edited in its named form changes entries by sequence
// numbers the running configuration never shows, "ip access-list resequence"
// renumbers, "no neighbor GROUP peer-group" takes the members with the group,
// and an access list's entries stand where the whole list puts them.
// Undoing such a change set line by line cannot return; undoing the
// configuration it gives can. Plain functions on text; no shared state.
#pragma once

#include <string>

namespace qxparser {

class ResultRollback {
 public:
  // Whether `changes` holds a line whose effect only the configuration it
  // gives shows.
  static bool needed(const std::string& changes);
};

}  // namespace qxparser
