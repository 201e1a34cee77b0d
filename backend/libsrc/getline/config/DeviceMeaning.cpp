// Rollback lines that the comparison by grammar path leaves out.
#include "config/DeviceMeaning.h"

#include <sstream>

#include <algorithm>
#include <cctype>
#include <list>
#include <set>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "config/DeviceTextReader.h"
#include "config/MeaningText.h"
#include "config/QxParserUtil.h"
#include "config/ReadingSketch.h"

namespace qxparser {

namespace {

using meaning::freeRecord;
using meaning::startsWith;
using meaning::trimmed;

// Ordered lists and BGP have rules of their own (whole numbered lists,
// entries by sequence, neighbours): their lines are never added one by one.
bool keptWhole(std::string_view text) {
  static const char* const kinds[] = {"access-list ",        "ip access-list ", "ipv6 access-list ", "ip prefix-list ",
                                      "ipv6 prefix-list ",   "route-map ",      "router bgp ",       "object-group ",
                                      "ip as-path ",         "ip community-list ", "ip extcommunity-list ", "banner "};
  for (const char* kind : kinds) {
    if (startsWith(text, kind)) return true;
  }
  return false;
}

// The commands of one mode of `to` (entries `toAt` to `toEnd`, siblings)
// that the same mode of `from` (`fromAt` to `fromEnd`) misses; see
// missedCommands.
void collect(const ReadingSketch& from, size_t fromAt, size_t fromEnd, const ReadingSketch& to, size_t toAt,
             size_t toEnd, const std::string& heads, int depth, std::string& out) {
  const std::string indent(static_cast<size_t>(depth), ' ');
  // The commands of `from` by their text, the first of each.
  std::unordered_map<std::string_view, size_t> given;
  for (size_t at = fromAt; at < fromEnd; at = from.end(at)) {
    if (from.hasPath(at)) given.emplace(from.currentCommand(at), at);
  }
  for (size_t at = toAt; at < toEnd; at = to.end(at)) {
    if (!to.hasPath(at) || to.isNegated(at) || !to.isStored(at)) continue;
    const std::string_view command = to.command(at);
    const auto found = given.find(to.currentCommand(at));
    if (found != given.end()) {
      if (to.opensMode(at) && !keptWhole(command)) {
        const size_t same = found->second;
        collect(from, same + 1, from.end(same), to, at + 1, to.end(at),
                heads + indent + trimmed(std::string(command)) + "\n", depth + 1, out);
      }
    } else if (!to.opensMode(at) && !keptWhole(command)) {
      out += heads + indent + trimmed(std::string(command)) + "\n";
    }
  }
}

std::string lastLineOf(std::string_view raw) { return std::string(meaning::lastLine(raw)); }

}  // namespace

void DeviceMeaning::exitLinesLast(std::vector<CiscoCommandLine*>& records) {
  for (CiscoCommandLine* record : records) {
    std::vector<CiscoCommandLine*>& inner = record->getChildCommands();
    std::stable_partition(inner.begin(), inner.end(), [](const CiscoCommandLine* line) {
      if (line->getFlag() != CMD_TEXT) return true;
      const std::string& raw = line->getRawText().empty() ? line->getOriginalStr() : line->getRawText();
      const size_t lead = raw.find_first_not_of(" \t");
      return lead == std::string::npos || raw.compare(lead, 5, "exit-") != 0;
    });
    exitLinesLast(inner);
  }
}

namespace {

// The kind of a numbered top-level command and the numbers that order it
// ("" when it has no such place).
std::string numberedKind(const CiscoCommandLine& record, std::vector<long>& numbers) {
  // The text without the blanks and line end behind it, looked at in place.
  const std::string_view text = meaning::bare(record.getOriginalCmd());
  std::string_view kind;
  size_t from = 0;
  if (startsWith(text, "vlan ")) {
    kind = "vlan";
    from = 5;
  } else if (startsWith(text, "ip route ") && text.find(" vrf ") == std::string_view::npos) {
    kind = "ip route";
    from = 9;
  } else if (startsWith(text, "interface ")) {
    from = text.find_first_of("0123456789", 10);
    if (from == std::string_view::npos) return {};
    kind = text.substr(0, from);
  } else {
    return {};
  }
  const size_t end = kind == "ip route" ? text.find(' ', text.find(' ', from) + 1) : text.size();
  const std::string_view part = text.substr(from, end == std::string_view::npos ? std::string_view::npos : end - from);
  if (part.find_first_not_of("0123456789./: ") != std::string_view::npos) return {};
  long value = -1;
  for (char c : part) {
    if (c >= '0' && c <= '9') {
      value = (value < 0 ? 0 : value * 10) + (c - '0');
    } else if (value >= 0) {
      numbers.push_back(value);
      value = -1;
    }
  }
  if (value >= 0) numbers.push_back(value);
  return numbers.empty() ? std::string() : std::string(kind);
}

bool isAdded(const CiscoCommandLine& record) {
  return record.getLineNo() < 1 || record.hasFlags(CMDBIT_FROM_CHANGES);
}

}  // namespace

void DeviceMeaning::placeInNumberOrder(std::vector<CiscoCommandLine*>& records) {
  // The standing records of each kind with their numbers, in their order:
  // only added records move here, so the standing ones keep that order.
  // Records are named by their place in `records` as given.
  struct Standing {
    size_t index;
    std::vector<long> numbers;
    std::vector<long> highestSoFar;
  };
  const size_t count = records.size();
  std::unordered_map<std::string, std::vector<Standing>> standing;
  std::vector<bool> added(count);
  bool anyAdded = false;
  for (size_t i = 0; i < count; ++i) {
    const CiscoCommandLine* record = records[i];
    added[i] = isAdded(*record);
    if (added[i]) {
      anyAdded = true;
      continue;
    }
    std::vector<long> numbers;
    const std::string kind = numberedKind(*record, numbers);
    if (!kind.empty()) standing[kind].push_back({i, std::move(numbers), {}});
  }
  if (!anyAdded || standing.empty()) return;
  for (auto& entry : standing) {
    std::vector<Standing>& same = entry.second;
    for (size_t j = 0; j < same.size(); ++j) {
      same[j].highestSoFar = j == 0 || same[j - 1].highestSoFar < same[j].numbers ? same[j].numbers
                                                                                  : same[j - 1].highestSoFar;
    }
  }
  // The records in a list, so that a move shifts nothing. A standing record
  // never moves, so the standing records keep their order: numbered by it,
  // they tell on which side of an added record its anchor stands, from the
  // first standing record behind the added one.
  using List = std::list<size_t>;
  List list;
  std::vector<List::iterator> where(count);
  std::vector<size_t> standingRank(count, 0);
  size_t standingCount = 0;
  for (size_t i = 0; i < count; ++i) {
    where[i] = list.insert(list.end(), i);
    if (!added[i]) standingRank[i] = standingCount++;
  }
  const size_t none = standingCount;
  // The rank of the first standing record behind each added one (none: it
  // stands behind them all), kept up to date as added records move.
  std::vector<size_t> nextStanding(count, none);
  size_t behind = none;
  for (size_t i = count; i-- > 0;) {
    if (!added[i]) {
      behind = standingRank[i];
    } else {
      nextStanding[i] = behind;
    }
  }
  // As a walk by position over the level that takes a record out of its
  // place and puts it into another: behind a record moved further down, the
  // record that followed it is passed over.
  for (auto it = list.begin(); it != list.end();) {
    const size_t index = *it;
    const CiscoCommandLine* record = records[index];
    std::vector<long> own;
    const auto kind = !added[index] || record->hasFlags(CMDBIT_NO) ? standing.end()
                                                                   : standing.find(numberedKind(*record, own));
    if (kind == standing.end()) {
      ++it;
      continue;
    }
    const auto higher = std::upper_bound(kind->second.begin(), kind->second.end(), own,
                                         [](const std::vector<long>& number, const Standing& other) {
                                           return number < other.highestSoFar;
                                         });
    // Before the first one of its kind with a higher number, else behind
    // the last one of its kind; nothing moves when it stands there already.
    const bool before = higher != kind->second.end();
    const size_t anchor = before ? higher->index : kind->second.back().index;
    const List::iterator at = where[anchor];
    const List::iterator next = std::next(it);
    const bool inPlace = before ? next == at
                                : std::next(at) == list.end() || (it != list.begin() && std::prev(it) == at);
    if (inPlace) {
      it = next;
      continue;
    }
    const size_t anchorRank = standingRank[anchor];
    const bool forward = anchorRank >= nextStanding[index];
    const List::iterator target = before ? at : std::next(at);
    list.splice(target, list, it);
    nextStanding[index] = before ? anchorRank : anchorRank + 1;
    it = forward ? std::next(next) : next;
  }
  std::vector<CiscoCommandLine*> placed;
  placed.reserve(count);
  for (const size_t index : list) placed.push_back(records[index]);
  records.swap(placed);
}

void DeviceMeaning::dropRepeats(std::vector<CiscoCommandLine*>& records) {
  std::set<std::string> seen;
  for (auto it = records.begin(); it != records.end();) {
    CiscoCommandLine* record = *it;
    const bool leaf = record->getTreeNodeSize() > 0 && record->getChildCommands().empty();
    if (leaf && !seen.insert(trimmed(record->getOriginalCmd())).second) {
      freeRecord(record);
      it = records.erase(it);
      continue;
    }
    dropRepeats(record->getChildCommands());
    ++it;
  }
}

namespace {

// The keys (mode heads and command, one line each) that the negations of a
// rollback ask about: "no X" alone in its mode asks after X and after itself.
struct NegationKeys {
  std::unordered_set<std::string> asked;
  // Every mode that holds such a negation, with the modes around it.
  std::unordered_set<std::string> modes;
};

void askedKeys(const std::vector<CiscoCommandLine*>& records, const std::string& mode, NegationKeys& keys) {
  for (const CiscoCommandLine* record : records) {
    const std::string own = trimmed(record->getOriginalCmd());
    if (startsWith(own, "no ") && record->getChildCommands().empty()) {
      keys.asked.insert(mode + own.substr(3));
      keys.asked.insert(mode + own);
      for (size_t cut = mode.find('\n'); cut != std::string::npos; cut = mode.find('\n', cut + 1)) {
        keys.modes.insert(mode.substr(0, cut + 1));
      }
      keys.modes.insert(std::string());
    }
    askedKeys(record->getChildCommands(), mode + own + "\n", keys);
  }
}

// The asked keys that the entries of `sketch` from `begin` to `stop` (one
// mode's commands) hold: a command by its text under the texts of its mode
// heads. `key` holds the mode's text on entry and again on return; each key
// is built in it.
void heldKeys(const ReadingSketch& sketch, size_t begin, size_t stop, std::string& key, const NegationKeys& keys,
              std::unordered_set<std::string>& held) {
  const size_t mode = key.size();
  for (size_t at = begin; at < stop; at = sketch.end(at)) {
    if (!sketch.hasPath(at)) continue;
    const std::string_view text = sketch.command(at);
    key.resize(mode);
    key.append(meaning::bare(text));
    if (keys.asked.count(key)) held.insert(key);
    if (sketch.end(at) == at + 1) continue;
    key += '\n';
    if (keys.modes.count(key)) heldKeys(sketch, at + 1, sketch.end(at), key, keys, held);
  }
  key.resize(mode);
}

void dropIn(std::vector<CiscoCommandLine*>& records, const std::string& mode,
            const std::unordered_set<std::string>& before, const std::unordered_set<std::string>& after) {
  for (auto it = records.begin(); it != records.end();) {
    const std::string own = trimmed((*it)->getOriginalCmd());
    if (startsWith(own, "no ") && (*it)->getChildCommands().empty()) {
      const std::string kept = mode + own.substr(3);
      if (before.count(kept) && after.count(kept) && !after.count(mode + own)) {
        freeRecord(*it);
        it = records.erase(it);
        continue;
      }
    }
    std::vector<CiscoCommandLine*>& inner = (*it)->getChildCommands();
    const bool had = !inner.empty();
    dropIn(inner, mode + own + "\n", before, after);
    if (had && inner.empty()) {
      freeRecord(*it);
      it = records.erase(it);
      continue;
    }
    ++it;
  }
}

}  // namespace

void DeviceMeaning::dropUnchangedNegations(std::vector<CiscoCommandLine*>& out, const ReadingSketch& from,
                                           const ReadingSketch& to) {
  // Only the keys that the negations of `out` ask about are looked for.
  NegationKeys keys;
  askedKeys(out, "", keys);
  if (keys.asked.empty()) return;
  std::unordered_set<std::string> before;
  std::unordered_set<std::string> after;
  std::string key;
  heldKeys(from, 0, from.size(), key, keys, before);
  heldKeys(to, 0, to.size(), key, keys, after);
  dropIn(out, "", before, after);
}

std::string DeviceMeaning::missedCommands(const ReadingSketch& from, const ReadingSketch& to) {
  std::string out;
  collect(from, 0, from.size(), to, 0, to.size(), "", 0, out);
  return out;
}

void DeviceMeaning::graft(std::vector<CiscoCommandLine*>& extra, std::vector<CiscoCommandLine*>& into,
                          CiscoCommandLine* parent) {
  if (extra.empty()) return;
  // The texts that the records of `extra` are looked up by; of `into`, only
  // records with such a text need to be known.
  std::set<std::string, std::less<>> wantedHeads;
  std::set<std::string, std::less<>> wantedTexts;
  for (const CiscoCommandLine* record : extra) {
    if (record->getFlag() == CMD_TEXT) continue;
    if (record->hasFlags(CMDBIT_OPENS_MODE)) {
      wantedHeads.insert(record->getOriginalCmd());
    } else {
      wantedTexts.insert(trimmed(record->getOriginalCmd()));
    }
  }
  // The first mode head of `into` by its text, and the text of every record
  // of it, kept up to date as records join.
  std::unordered_map<std::string, CiscoCommandLine*> heads;
  std::unordered_set<std::string> texts;
  const auto known = [&](CiscoCommandLine* record) {
    const std::string& text = record->getOriginalCmd();
    if (record->hasFlags(CMDBIT_OPENS_MODE) && wantedHeads.count(text)) heads.emplace(text, record);
    const std::string_view bare = meaning::bare(text);
    if (wantedTexts.count(bare)) texts.emplace(bare);
  };
  for (CiscoCommandLine* record : into) known(record);
  for (CiscoCommandLine* record : extra) {
    if (record->getFlag() == CMD_TEXT) {
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
      continue;
    }
    const auto head = record->hasFlags(CMDBIT_OPENS_MODE) ? heads.find(record->getOriginalCmd()) : heads.end();
    if (head != heads.end()) {
      graft(record->getChildCommands(), head->second->getChildCommands(), head->second);
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
    } else if (!record->hasFlags(CMDBIT_OPENS_MODE) && texts.count(trimmed(record->getOriginalCmd()))) {
      // A command that `into` holds already is not written twice.
      std::vector<CiscoCommandLine*> alone{record};
      QxParserUtil::deleteCommands(alone);
    } else {
      record->setParentCommand(parent, false);
      into.push_back(record);
      known(record);
    }
  }
  extra.clear();
}

namespace {

// A command of a mode block in a text: the head line of its block (none at
// the top level), its indent and its words without "no"; all views into the
// text.
struct SettledKey {
  std::string_view head;
  size_t lead = 0;
  std::string_view words;

  bool operator==(const SettledKey& other) const {
    return lead == other.lead && head == other.head && words == other.words;
  }
};

// The line number last stored for each key: open addressing over slots that
// keep the key's hash, so that a text of many lines makes no node per line.
// The hash of a block's head is given by the caller, made once per block.
class LastLines {
 public:
  static constexpr size_t npos = static_cast<size_t>(-1);

  explicit LastLines(size_t count) {
    size_t size = 16;
    while (size < 2 * count + 2) size *= 2;
    mSlots.resize(size);
  }

  // The line stored for `key`, which the caller may change; a new slot
  // holds npos.
  size_t& line(const SettledKey& key, size_t headHash) {
    const size_t hash = std::hash<std::string_view>()(key.words) ^ (headHash * 31) ^ (key.lead * 0x9e3779b97f4a7c15ULL);
    const size_t mask = mSlots.size() - 1;
    for (size_t at = hash & mask;; at = (at + 1) & mask) {
      Slot& slot = mSlots[at];
      if (slot.line == npos) {
        slot.hash = hash;
        slot.key = key;
        return slot.line;
      }
      if (slot.hash == hash && slot.key == key) return slot.line;
    }
  }

 private:
  struct Slot {
    size_t hash = 0;
    SettledKey key;
    size_t line = npos;
  };
  std::vector<Slot> mSlots;
};

// `text` without the blanks, carriage returns and line ends behind it.
std::string_view trimmedView(std::string_view text) {
  const size_t end = text.find_last_not_of(" \r\n");
  return end == std::string_view::npos ? std::string_view() : text.substr(0, end + 1);
}

}  // namespace

std::string DeviceMeaning::settledText(const std::string& text) {
  std::string out;
  return settleText(text, out) ? out : text;
}

bool DeviceMeaning::settleText(const std::string& text, std::string& out) {
  // The lines as a line reader cuts them: at line feeds, nothing behind the
  // last one.
  std::vector<std::string_view> lines;
  for (size_t start = 0; start < text.size();) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    lines.emplace_back(text.data() + start, end - start);
    start = end + 1;
  }
  // Per mode block: the last line of each command, by its words without "no".
  // A line undone later becomes "!" at the indent of the line that undoes it.
  LastLines last(lines.size());
  std::vector<int> commentIndent(lines.size(), -1);
  std::string_view head;
  const size_t noHeadHash = std::hash<std::string_view>()(std::string_view());
  size_t headHash = noHeadHash;
  for (size_t i = 0; i < lines.size(); ++i) {
    std::string_view line = lines[i];
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    const size_t lead = line.find_first_not_of(' ');
    if (lead == std::string_view::npos || line[lead] == '!') continue;
    if (lead == 0) {
      head = line;
      headHash = std::hash<std::string_view>()(head);
    }
    const std::string_view words = trimmedView(line.substr(lead));
    const bool negated = words.compare(0, 3, "no ") == 0;
    const SettledKey key{lead == 0 ? std::string_view() : head, lead, negated ? words.substr(3) : words};
    size_t& found = last.line(key, lead == 0 ? noHeadHash : headHash);
    if (found != LastLines::npos) {
      std::string_view before = trimmedView(lines[found]);
      before.remove_prefix(std::min(before.size(), before.find_first_not_of(' ')));
      // The later line undoes the earlier one: the earlier one says nothing.
      if ((before.compare(0, 3, "no ") == 0) != negated) commentIndent[found] = static_cast<int>(lead);
    }
    found = i;
  }
  // Lines joined again as they were cut give the text back.
  if (std::find_if(commentIndent.begin(), commentIndent.end(), [](int indent) { return indent >= 0; }) ==
      commentIndent.end()) {
    return false;
  }
  out.clear();
  out.reserve(text.size() + 1);
  for (size_t i = 0; i < lines.size(); ++i) {
    if (commentIndent[i] < 0) {
      out += lines[i];
    } else {
      out.append(static_cast<size_t>(commentIndent[i]), ' ');
      out += '!';
    }
    out += '\n';
  }
  if (!text.empty() && text.back() != '\n' && !out.empty()) out.pop_back();
  return true;
}

namespace {

// "banner motd" for a banner record ("" for any other record).
std::string bannerKind(const CiscoCommandLine& record) {
  if (record.getOriginalCmd().find("banner") == std::string::npos) return std::string();
  std::istringstream words(record.getOriginalCmd());
  std::string banner, kind;
  words >> banner >> kind;
  return banner == "banner" && !kind.empty() ? banner + " " + kind : std::string();
}

// The banner as the device shows it: its line, its text, its closing line.
std::string bannerText(const CiscoCommandLine& record, const DeviceMeaning::RawTextOf& rawText) {
  const std::string_view raw = rawText(record);
  std::string text = lastLineOf(raw.empty() ? std::string_view(record.getOriginalCmd()) : raw) + "\n";
  for (const CiscoCommandLine* line : record.getChildCommands()) {
    const std::string_view lineRaw = rawText(*line);
    text += lineRaw.empty() ? std::string_view(line->getOriginalCmd()) : lineRaw;
    text += '\n';
  }
  return text;
}

}  // namespace

std::map<std::string, std::string> DeviceMeaning::bannersOf(const std::vector<CiscoCommandLine*>& records) {
  return bannersOf(records, [](const CiscoCommandLine& record) { return std::string_view(record.getRawText()); });
}

std::map<std::string, std::string> DeviceMeaning::bannersOf(const std::vector<CiscoCommandLine*>& records,
                                                            const RawTextOf& rawText) {
  std::map<std::string, std::string> banners;
  for (const CiscoCommandLine* record : records) {
    const std::string kind = bannerKind(*record);
    if (!kind.empty() && !record->hasFlags(CMDBIT_NO)) banners[kind] = bannerText(*record, rawText);
  }
  return banners;
}

void DeviceMeaning::replaceBanners(const std::vector<CiscoCommandLine*>& changes,
                                   std::vector<CiscoCommandLine*>& config) {
  std::set<std::string> given;
  for (const CiscoCommandLine* change : changes) {
    const std::string kind = bannerKind(*change);
    if (!kind.empty()) given.insert(kind);
  }
  for (auto it = config.begin(); it != config.end();) {
    if (given.count(bannerKind(**it))) {
      freeRecord(*it);
      it = config.erase(it);
    } else {
      ++it;
    }
  }
}

std::string DeviceMeaning::changedBanners(std::vector<CiscoCommandLine*>& out,
                                          const std::map<std::string, std::string>& before,
                                          const std::map<std::string, std::string>& after) {
  for (auto it = out.begin(); it != out.end();) {
    const std::string text = trimmed((*it)->getOriginalCmd());
    // "no ^C": a closing delimiter that the comparison took for a command.
    const bool stray = startsWith(text, "no ") && text.size() > 3 && text.find(' ', 3) == std::string::npos &&
                       !std::isalnum(static_cast<unsigned char>(text[3]));
    if (!bannerKind(**it).empty() || startsWith(text, "no banner ") || stray) {
      freeRecord(*it);
      it = out.erase(it);
    } else {
      ++it;
    }
  }
  std::string text;
  for (const auto& [kind, banner] : before) {
    if (!after.count(kind)) text += "no " + kind + "\n";
  }
  for (const auto& [kind, banner] : after) {
    const auto found = before.find(kind);
    if (found == before.end() || found->second != banner) text += banner;
  }
  return text;
}

void DeviceMeaning::keepBeforeEnd(std::vector<CiscoCommandLine*>& records) {
  int endLine = -1;
  for (const CiscoCommandLine* record : records) {
    const std::string& raw = record->getRawText().empty() ? record->getOriginalStr() : record->getRawText();
    if (record->getFlag() == CMD_TEXT && trimmed(lastLineOf(raw)) == "end") {
      endLine = record->getLineNo();
      break;
    }
  }
  if (endLine < 1) return;
  const auto after = std::find_if(records.begin(), records.end(), [endLine](const CiscoCommandLine* record) {
    return record->getFlag() != CMD_TEXT && record->getLineNo() > endLine;
  });
  std::stable_partition(after, records.end(), [](const CiscoCommandLine* record) { return isAdded(*record); });
}

void DeviceMeaning::settingsAheadOfSubModes(std::vector<CiscoCommandLine*>& records, bool addedOnly) {
  for (CiscoCommandLine* record : records) {
    if (!startsWith(record->getOriginalCmd(), "interface ")) continue;
    std::vector<CiscoCommandLine*>& inner = record->getChildCommands();
    const auto firstMode = std::find_if(inner.begin(), inner.end(), [addedOnly](const CiscoCommandLine* line) {
      return line->hasFlags(CMDBIT_OPENS_MODE) && !(addedOnly && isAdded(*line));
    });
    std::stable_partition(firstMode, inner.end(), [addedOnly](const CiscoCommandLine* line) {
      return (!addedOnly || isAdded(*line)) && line->getTreeNodeSize() > 0 && line->getChildCommands().empty() &&
             !line->hasFlags(CMDBIT_OPENS_MODE);
    });
  }
}

namespace {

bool isRouteOption(std::string_view word) {
  return word == "name" || word == "tag" || word == "permanent" || word == "track" || word == "global" ||
         word == "multicast" || word == "dhcp";
}

// What names a static route: "ip route [vrf V] PREFIX MASK" and the next hop
// or interface (both when given); distance, name, tag and the other options
// are its settings. "" for any other line.
std::string routeIdentity(std::string_view line) {
  // Only a line whose first word is "ip" can be a route: most lines are
  // turned away by their first letters.
  size_t lead = 0;
  while (lead < line.size() && meaning::isWordBreak(line[lead])) ++lead;
  if (line.compare(lead, 2, "ip") != 0 || lead + 2 >= line.size() || !meaning::isWordBreak(line[lead + 2])) return {};
  meaning::WordCursor words(line);
  std::string_view word;
  if (!words.next(word) || word != "ip") return {};
  if (!words.next(word) || word != "route") return {};
  std::string identity = "ip route";
  int values = 0;
  while (words.next(word)) {
    if (word == "vrf" && values == 0) {
      std::string_view name;
      words.next(name);
      identity += " vrf ";
      identity += name;
      continue;
    }
    const bool number = word.find_first_not_of("0123456789") == std::string_view::npos;
    if ((number && values >= 2) || isRouteOption(word)) break;
    identity += ' ';
    identity += word;
    ++values;
  }
  return values >= 3 ? identity : std::string();
}

}  // namespace

void DeviceMeaning::replaceSameRoutes(const std::vector<CiscoCommandLine*>& changes,
                                      std::vector<CiscoCommandLine*>& config) {
  std::set<std::string> given;
  for (const CiscoCommandLine* change : changes) {
    if (change->hasFlags(CMDBIT_NO)) continue;
    // Blanks behind a line make no word: the text need not be trimmed.
    const std::string identity = routeIdentity(change->getOriginalCmd());
    if (!identity.empty()) given.insert(identity);
  }
  if (given.empty()) return;
  // One pass that keeps the rest in order (an erase each would move the
  // level's tail once per route).
  std::vector<CiscoCommandLine*> kept;
  kept.reserve(config.size());
  for (CiscoCommandLine* record : config) {
    if (record->getTreeNodeSize() == 0) {
      kept.push_back(record);
      continue;
    }
    const std::string identity = routeIdentity(record->getOriginalCmd());
    if (!identity.empty() && given.count(identity)) {
      freeRecord(record);
    } else {
      kept.push_back(record);
    }
  }
  config.swap(kept);
}

void DeviceMeaning::dropReplacedRoutes(std::vector<CiscoCommandLine*>& out) {
  std::set<std::string> given;
  for (const CiscoCommandLine* record : out) {
    if (record->hasFlags(CMDBIT_NO)) continue;
    const std::string identity = routeIdentity(record->getOriginalCmd());
    if (!identity.empty()) given.insert(identity);
  }
  for (auto it = out.begin(); it != out.end();) {
    const std::string text = trimmed((*it)->getOriginalCmd());
    if (startsWith(text, "no ") && given.count(routeIdentity(std::string_view(text).substr(3)))) {
      freeRecord(*it);
      it = out.erase(it);
    } else {
      ++it;
    }
  }
}

namespace {

void collectShownNegations(const std::vector<CiscoCommandLine*>& records, const std::string& heads, int depth,
                    std::string& out) {
  const std::string indent(static_cast<size_t>(depth), ' ');
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() == 0) continue;
    const bool opens = record->hasFlags(CMDBIT_OPENS_MODE) && !record->hasFlags(CMDBIT_NO);
    if (!opens && !(depth > 0 && record->hasFlags(CMDBIT_NO) && record->hasFlags(CMDBIT_STORED))) continue;
    const std::string text = trimmed(record->getOriginalCmd());
    if (opens) {
      collectShownNegations(record->getChildCommands(), heads + indent + text + "\n", depth + 1, out);
    } else {
      out += heads + indent + text + "\n";
    }
  }
}

}  // namespace

std::string DeviceMeaning::shownNegations(const std::vector<CiscoCommandLine*>& changes) {
  std::string out;
  collectShownNegations(changes, "", 0, out);
  return out;
}

}  // namespace qxparser
