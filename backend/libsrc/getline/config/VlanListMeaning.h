// VlanListMeaning: what "switchport trunk allowed vlan" does on the device.
// The plain form replaces the interface's whole list, "add" and "remove"
// change it, and the device shows the result as one list (runs of three or
// more as a range). The comparison by grammar path merges value lists, so a
// change set is rewritten ahead of a merge into the list the device ends with.
// Stateless; same threading rule as every reading operation.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class VlanListMeaning {
 public:
  // `changes` with each "switchport trunk allowed vlan [add|remove] LIST"
  // line of an interface written as the whole list the interface of `config`
  // ends with; the interface's own allowed-vlan lines leave `config`.
  static std::string resolvedChanges(const std::string& changes, std::vector<CiscoCommandLine*>& config);
  // Whether resolvedChanges looks at `config` for `changes`: without an
  // allowed-vlan line it gives `changes` back and leaves `config` alone.
  static bool needsConfig(const std::string& changes);

  // In each interface of a rollback `out` that sets its allowed list anew,
  // the "no" of the old list goes: the plain form replaces the list already.
  static void dropReplacedLists(std::vector<CiscoCommandLine*>& out);

  // The numbers of a list such as "10,20,30-40" (false when it is none).
  static bool parse(const std::string& list, std::set<int>& numbers);

  // A list as the device shows it: "10,20,30-40".
  static std::string written(const std::set<int>& numbers);
};

}  // namespace qxparser
