// AccessListMeaning: how the device edits its ordered lists, where a merge or
// a rollback by grammar path would give another list.
//
// A numbered access list is one setting to the device: "no access-list N"
// followed by anything deletes the whole list, and a list that changed is
// written anew (`wholeListChanges`, `changedNumberedLists`). A named list is
// edited entry by entry: "no <entry>" and "no <sequence>" take one entry, an
// entry with a sequence number stands by its number (`removeNamedEntries`,
// `entriesBySequence`, `changedNamedLists`). The functions work on records as
// DeviceTextReader returns them, on their sketches (ReadingSketch) or on
// device text; they own nothing they are given. A numbered list edited in its
// named form ("ip access-list extended 101") and "ip access-list resequence"
// are applied to the configuration's list (`numberedThroughNamed`,
// `resequence`). Same threading rule as every reading operation.
#pragma once

#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class ReadingSketch;

class AccessListMeaning {
 public:
  // `changes` with every top-level "no access-list N ..." of a numbered list
  // cut to "no access-list N", which is what the device does with it, and
  // every line closed by a line feed.
  // Into `out`; false, with `out` untouched, where `changes` stands as it is.
  static bool wholeListChanges(const std::string& changes, std::string& out);

  // For each numbered access list that `first` holds and `second` holds with
  // other entries (or in another order): "no access-list N" and the entries of
  // `second`. The numbers go to `numbers`.
  static std::string changedNumberedLists(const std::string& first, const std::string& second,
                                          std::vector<std::string>& numbers);

  // In each named access list of `records`, an entry that a merge added with
  // a sequence number stands before the first entry of a higher number (an
  // entry without one has the number the device gave it: 10, 20, ...).
  static void entriesBySequence(std::vector<CiscoCommandLine*>& records);

  // "no <entry>" in a named access list of `changes` takes away that one entry
  // of the same list in `config` (with or without its sequence number), not
  // the run of entries that the comparison by grammar path finds; the change
  // is then used up and leaves `changes`.
  static void removeNamedEntries(std::vector<CiscoCommandLine*>& changes,
                                 std::vector<CiscoCommandLine*>& config);

  // For each named access list that `from` and `to` both hold with other
  // entries: its head, "no <entry>" for each entry that goes and each entry
  // that comes, as text. The heads go to `heads` (their full form).
  static std::string changedNamedLists(const ReadingSketch& from, const ReadingSketch& to,
                                       std::vector<std::string>& heads);

  // Each "ip access-list standard|extended N" block of `changes` that edits a
  // numbered list becomes "no access-list N" and the entries the list has
  // after the edits, in its numbered form (the form the device shows). The
  // entries of the list in `config` count 10, 20, ... for the block's
  // sequence numbers.
  static void numberedThroughNamed(std::vector<CiscoCommandLine*>& changes,
                                   const std::vector<CiscoCommandLine*>& config);

  // "ip access-list resequence NAME START STEP" in `changes` renumbers the
  // entries of that named list of `config` (when they show their numbers)
  // and leaves `changes`.
  static void resequence(std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config);
};

}  // namespace qxparser
