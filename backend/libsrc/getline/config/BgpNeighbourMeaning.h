// BgpNeighbourMeaning: what the device does with the lines of a BGP
// neighbour, where a merge or a rollback by grammar path would do otherwise.
//
// A neighbour is made by its "remote-as" line (or by joining a peer group) and
// taken away whole by "no neighbor X" or "no neighbor X remote-as ...": its
// lines go from the router and from every address family. The device refuses
// "neighbor X activate" in an address family before it knows X. Lines of
// the IPv4 unicast family typed at the router's level stand in that family
// when the configuration shows it. The functions
// work on records as DeviceTextReader returns them, or on device text; they own
// nothing they are given. Same threading rule as every reading operation.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"

namespace qxparser {

class BgpNeighbourMeaning {
 public:
  // Under each "router bgp" head of a rollback `out`: a neighbour whose
  // remote-as goes is taken away whole ("no neighbor X", which the device
  // applies to its lines in every address family too), and neighbour lines
  // stand ahead of the address families, since the device refuses
  // "neighbor X activate" for a neighbour it does not know yet.
  static void orderNeighbours(std::vector<CiscoCommandLine*>& out);

  // `changes` with "no neighbor X remote-as ..." and "no neighbor GROUP
  // peer-group" cut to "no neighbor X" (the device takes the whole neighbour
  // or peer group away); the neighbours that go this way are added to `gone`.
  // Into `out`, every line closed by a line feed; false, with `out`
  // untouched, where `changes` stands as it is.
  static bool wholeNeighbourChanges(const std::string& changes, std::set<std::string>& gone, std::string& out);

  // Takes the lines of the `gone` neighbours, and of the members of `gone`
  // peer groups, out of every "router bgp" record of `config` and out of its
  // address families.
  static void dropGoneNeighbours(std::vector<CiscoCommandLine*>& config, const std::set<std::string>& gone);

  // In each "router bgp" record of a merged `config` (and in each of its
  // address families) where the merge added neighbour lines, the lines of one
  // neighbour stand together, where its first line stood: the device shows
  // them so.
  static void groupNeighbourLines(std::vector<CiscoCommandLine*>& config);

  // A "network", "aggregate-address" or "redistribute" line that `changes`
  // gives at the level of a "router bgp" whose `config` shows an IPv4
  // unicast address family goes into that family: the device shows the
  // IPv4 unicast lines there.
  static void intoIpv4Family(std::vector<CiscoCommandLine*>& changes,
                             const std::vector<CiscoCommandLine*>& config);
};

}  // namespace qxparser
