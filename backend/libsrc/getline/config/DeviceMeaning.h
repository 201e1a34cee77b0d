// DeviceMeaning: what a rollback between two configurations needs beyond
// the comparison by grammar path, where the device's answer differs from it.
//
// A line that a configuration states in its "no" form (" no shutdown") and
// that the other configuration holds positive (" shutdown") is the same kind
// of command to the comparison, so a fallback from the first to the second
// writes nothing for it; the device needs the positive line. `missedCommands`
// finds such lines in the sketches of two readings (ReadingSketch), `graft`
// puts records under the mode heads of another list. The functions work on
// records as DeviceTextReader returns them or on their sketches; they own
// nothing they are given. Ordered lists have AccessListMeaning, BGP neighbours
// BgpNeighbourMeaning. Same threading rule as every reading operation.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class ReadingSketch;

class DeviceMeaning {
 public:
  // The positive commands of `to` (with their mode heads, as text one blank
  // of indent per level) that `from` does not hold as they stand: those it
  // states only in their "no" form, and those whose value changed where the
  // comparison by grammar path takes the two for one command and writes only
  // the "no" of the old one (a static route given a distance). Ordered lists,
  // BGP and banners are left to their own rules.
  // Both are sketches of readings as DeviceTextReader returns them.
  static std::string missedCommands(const ReadingSketch& from, const ReadingSketch& to);

  // An "exit-address-family" line (and its kind) read with a mode block stays
  // the block's last line when a merge added commands to the block.
  static void exitLinesLast(std::vector<CiscoCommandLine*>& records);

  // A top-level "vlan N", "interface TYPE N" or "ip route ..." that a merge
  // added stands where the device shows it: before the first one of its
  // kind (same interface type) with a higher number, else behind the last
  // one of its kind.
  static void placeInNumberOrder(std::vector<CiscoCommandLine*>& records);

  // Takes out of a rollback `out` each "no X" whose X stands unchanged in both
  // `from` and `to` (sketches of the two readings; in the same mode) while
  // `to` holds no "no X": the comparison by grammar path negated a line that
  // nobody changed.
  static void dropUnchangedNegations(std::vector<CiscoCommandLine*>& out, const ReadingSketch& from,
                                     const ReadingSketch& to);

  // A setting of an interface stands ahead of the interface's sub-mode
  // blocks (a "pvc"): behind them the device would take it for a line of the
  // sub-mode. `addedOnly`: only the settings that a merge added move.
  static void settingsAheadOfSubModes(std::vector<CiscoCommandLine*>& records, bool addedOnly);

  // A command that a merge added stands ahead of the lines read behind the
  // configuration's "end" (a prompt, a capture's tail): those are no
  // configuration, and a reader stops at "end".
  static void keepBeforeEnd(std::vector<CiscoCommandLine*>& records);

  // Takes out of `config` each static route that `changes` gives again with
  // the same prefix, mask and next hop: the device replaces the route's
  // settings (distance, name, tag) with those of the new line.
  static void replaceSameRoutes(const std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config);

  // Takes out of a rollback `out` each "no ip route ..." of a route that
  // `out` gives again with other settings: the new line replaces them.
  static void dropReplacedRoutes(std::vector<CiscoCommandLine*>& out);

  // The "no" lines inside modes of `changes` that the device shows as they
  // stand ("no cdp enable" where the platform shows "cdp enable"), with their
  // mode heads, as text: a merge keeps them in the configuration.
  static std::string shownNegations(const std::vector<CiscoCommandLine*>& changes);

  // Takes out of `config` each banner of a kind that `changes` gives anew:
  // the device replaces a banner's whole text.
  static void replaceBanners(const std::vector<CiscoCommandLine*>& changes, std::vector<CiscoCommandLine*>& config);

  // The banners among `records` (a top level) by kind ("banner motd"), each
  // as the device shows it: its line, its text, its closing line.
  static std::map<std::string, std::string> bannersOf(const std::vector<CiscoCommandLine*>& records);
  // The same for records whose raw texts `rawText` gives (a record's own
  // where it has one).
  using RawTextOf = std::function<std::string_view(const CiscoCommandLine&)>;
  static std::map<std::string, std::string> bannersOf(const std::vector<CiscoCommandLine*>& records,
                                                      const RawTextOf& rawText);

  // Takes every banner line out of a rollback `out` and returns, as text,
  // what turns the banners `before` into those `after` (both as bannersOf
  // gives them): "no banner KIND" for one that goes, the whole banner for one
  // that comes or changed.
  static std::string changedBanners(std::vector<CiscoCommandLine*>& out,
                                    const std::map<std::string, std::string>& before,
                                    const std::map<std::string, std::string>& after);

  // Takes out of a rollback each command that its mode states a second time
  // (the comparison and the lines it misses may both write it).
  static void dropRepeats(std::vector<CiscoCommandLine*>& records);

  // `text` with each line that a later line of the same mode block undoes
  // ("no shutdown" behind "shutdown", or the other way round) turned into a
  // comment line of its indent: the device is left in the later line's state,
  // and the line numbers stay as they were.
  static std::string settledText(const std::string& text);
  // The same into `out`; false, with `out` untouched, where no line is undone
  // (the settled text is then `text` itself, and no copy of it is made).
  static bool settleText(const std::string& text, std::string& out);

  // Moves the records of `extra` into `into`: a mode head that `into` holds
  // already takes the children, a command it holds already is dropped, any
  // other record is appended. `extra` is
  // left empty; what it held is owned by `into` or freed.
  static void graft(std::vector<CiscoCommandLine*>& extra, std::vector<CiscoCommandLine*>& into,
                    CiscoCommandLine* parent);
};

}  // namespace qxparser
