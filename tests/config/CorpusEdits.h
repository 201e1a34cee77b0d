// CorpusEdits: a configuration B made from a corpus configuration A by the
// edits people make every day: descriptions, addresses, shut and no shut,
// access-list entries added and removed, static routes, BGP neighbours, OSPF
// networks, logging, NTP and SNMP, the hostname, interface settings removed.
// Each seed picks its own targets among the file's own lines (the n-th
// interface, the n-th list), so the same file always gets the same edits and
// three seeds edit three different places of it.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace qxparser {
namespace corpusedits {

using Lines = std::vector<std::string>;

inline bool starts(const std::string& text, const std::string& lead) { return text.compare(0, lead.size(), lead) == 0; }
inline bool isEnd(const std::string& line) { return line.compare(0, 3, "end") == 0 && line.find_first_not_of(' ', 3) == std::string::npos; }
inline bool top(const std::string& line) { return !line.empty() && line[0] != ' ' && line[0] != '!'; }

// The index behind the block that the top-level line `at` opens.
inline size_t blockEnd(const Lines& lines, size_t at) {
  size_t end = at + 1;
  while (end < lines.size() && !lines[end].empty() && lines[end][0] == ' ') ++end;
  return end;
}

// The top-level lines that start with `lead`.
inline std::vector<size_t> heads(const Lines& lines, const std::string& lead) {
  std::vector<size_t> found;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (top(lines[i]) && starts(lines[i], lead)) found.push_back(i);
  }
  return found;
}

// The `seed`-th of `found` (cycling), or npos.
inline size_t pick(const std::vector<size_t>& found, int seed) {
  return found.empty() ? std::string::npos : found[static_cast<size_t>(seed) % found.size()];
}

// Lines marked for removal are emptied to "\x01" and left out at the end.
const char kGone[] = "\x01";

inline void editInterface(Lines& lines, int seed) {
  std::vector<size_t> interfaces = heads(lines, "interface ");
  const size_t at = pick(interfaces, seed + 1);
  if (at == std::string::npos) return;
  const size_t end = blockEnd(lines, at);
  bool described = false, shut = false;
  size_t removable = std::string::npos;
  for (size_t i = at + 1; i < end; ++i) {
    std::string& line = lines[i];
    if (line.compare(line.find_first_not_of(' ') == std::string::npos ? 0 : line.find_first_not_of(' '), 12,
                     "description ") == 0) {
      line += " (edited)";
      described = true;
    } else if (line == " shutdown" && seed != 1) {
      line = kGone;
      shut = true;
    } else if (line == " no shutdown" && seed != 1) {
      line = " shutdown";
      shut = true;
    } else if (seed == 1 && starts(line, " ip address ") && line.find(" 10.") != std::string::npos &&
               line.find("secondary") == std::string::npos) {
      line = " ip address 10.250.250.1 255.255.255.252";
    } else if (!starts(line, " no ") && !starts(line, " ip address") && line.find(' ', 1) != std::string::npos) {
      removable = i;
    }
  }
  if (seed == 2 && removable != std::string::npos) lines[removable] = kGone;
  std::string added;
  if (!described) added += " description edited\n";
  if (!shut && seed != 1) added += " shutdown\n";
  if (!added.empty()) lines[at] += "\n" + added.substr(0, added.size() - 1);
}

// Numbered lists: seed 0 adds a list, seed 1 takes an entry out of one, seed 2
// appends an entry. Named lists: an entry goes (seed 1) or comes (seed 2).
inline void editLists(Lines& lines, int seed, std::string& extras) {
  std::vector<size_t> numbered = heads(lines, "access-list ");
  if (seed == 0) extras += "access-list 187 permit ip host 192.0.2.9 any\n";
  if (seed == 1 && numbered.size() > 1) lines[numbered[numbered.size() / 2]] = kGone;
  if (seed == 2 && !numbered.empty()) {
    const std::string& last = lines[numbered.back()];
    const std::string list = last.substr(0, last.find(' ', 12));
    const long number = std::strtol(list.c_str() + 12, nullptr, 10);
    const bool extended = number >= 100 && number < 200;
    lines[numbered.back()] += "\n" + list + (extended ? " permit ip host 192.0.2.8 any" : " permit 192.0.2.8");
  }
  const size_t named = pick(heads(lines, "ip access-list extended "), seed);
  if (named == std::string::npos || seed == 0) return;
  const size_t end = blockEnd(lines, named);
  if (seed == 1 && end - named > 2) lines[named + 1] = kGone;
  // A new entry without a sequence number goes behind the others.
  if (seed == 2) lines[end - 1] += "\n permit tcp host 192.0.2.7 any eq 443";
}

inline void editRouting(Lines& lines, int seed, std::string& extras) {
  std::vector<size_t> routes = heads(lines, "ip route ");
  if (seed == 0 && !routes.empty()) lines[routes.front()] = kGone;
  if (seed == 1) extras += "ip route 198.51.100.0 255.255.255.0 192.0.2.1\n";
  if (seed == 2 && !routes.empty() && lines[routes.back()].find(" vrf ") == std::string::npos) {
    lines[routes.back()] += " 250";
  }
  const size_t bgp = pick(heads(lines, "router bgp "), 0);
  if (bgp != std::string::npos && seed == 0) lines[bgp] += "\n neighbor 192.0.2.77 remote-as 64999";
  if (bgp != std::string::npos && seed == 2) {
    lines[bgp] += "\n neighbor 192.0.2.78 remote-as 64998\n neighbor 192.0.2.78 description added";
  }
  const size_t ospf = pick(heads(lines, "router ospf "), seed);
  if (ospf == std::string::npos) return;
  if (seed != 1) {
    lines[ospf] += "\n network 192.0.2.64 0.0.0.63 area 0";
    return;
  }
  for (size_t i = ospf + 1; i < blockEnd(lines, ospf); ++i) {
    if (starts(lines[i], " network ")) {
      lines[i] = kGone;
      break;
    }
  }
}

inline void editManagement(Lines& lines, int seed, std::string& extras) {
  if (seed == 0) extras += "logging host 192.0.2.200\nntp server 192.0.2.123\n";
  if (seed == 2) extras += "snmp-server community edited RO\n";
  bool logging = false, ntp = false;
  for (std::string& line : lines) {
    if (seed == 0 && starts(line, "hostname ")) line += "-B";
    if (seed == 1 && !logging && starts(line, "logging host ")) {
      line = kGone;
      logging = true;
    }
    if (seed == 1 && !ntp && starts(line, "ntp server ")) {
      line = kGone;
      ntp = true;
    }
    if (seed == 2 && starts(line, "snmp-server community ") && line.size() > 3 &&
        line.compare(line.size() - 3, 3, " RO") == 0) {
      line = line.substr(0, line.size() - 3) + " RW";
      return;
    }
  }
}

// B made from `a` by the edits of `seed` (0, 1 or 2).
inline std::string edited(const std::string& a, int seed) {
  Lines lines;
  std::istringstream in(a);
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  std::string extras;
  editInterface(lines, seed);
  editLists(lines, seed, extras);
  editRouting(lines, seed, extras);
  editManagement(lines, seed, extras);
  std::string out;
  bool placed = false;
  // Behind the last block, ahead of "end" (or of a banner that the file
  // leaves open at its end, whose text would take them).
  const std::vector<size_t> banners = heads(lines, "banner ");
  const size_t before = banners.empty() ? std::string::npos : banners.back();
  for (size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    if (line == kGone) continue;
    if (!placed && (isEnd(line) || (i == before && std::none_of(lines.begin(), lines.end(), isEnd)))) {
      out += extras;
      placed = true;
    }
    out += line + "\n";
  }
  return placed ? out : out + extras;
}

}  // namespace corpusedits
}  // namespace qxparser
