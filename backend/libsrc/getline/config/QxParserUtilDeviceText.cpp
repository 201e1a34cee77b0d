// Merge and fallback written as device text.
#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "config/AccessListMeaning.h"
#include "config/BgpNeighbourMeaning.h"
#include "config/DeviceMeaning.h"
#include "config/DeviceTextReader.h"
#include "config/DeviceTextWriter.h"
#include "config/InterfaceRangeMeaning.h"
#include "config/NulBytes.h"
#include "config/QxParserUtil.h"
#include "config/ReadingSketch.h"
#include "config/ResultRollback.h"
#include "config/RouteFilterMeaning.h"
#include "config/SideReading.h"
#include "config/TextLines.h"
#include "config/VlanListMeaning.h"

namespace qxparser {

namespace {

// Frees the level-0 records (with their children) when it goes.
class RecordsGuard {
 public:
  explicit RecordsGuard(std::vector<CiscoCommandLine*>& records, bool result = false)
      : mRecords(records), mResult(result) {}
  RecordsGuard(const RecordsGuard&) = delete;
  RecordsGuard& operator=(const RecordsGuard&) = delete;
  ~RecordsGuard() {
    if (mResult) {
      QxParserUtil::releaseResultRecords(mRecords);
    } else {
      QxParserUtil::deleteCommands(mRecords);
    }
  }

 private:
  std::vector<CiscoCommandLine*>& mRecords;
  bool mResult;
};

// While it lives, the device-text operations free the records of their
// results before they return (see QxParserUtil::setFreeRecordsOnReturn).
class IntermediateRecords {
 public:
  IntermediateRecords() : mFreed(QxParserUtil::freeRecordsOnReturn()) { QxParserUtil::setFreeRecordsOnReturn(true); }
  IntermediateRecords(const IntermediateRecords&) = delete;
  IntermediateRecords& operator=(const IntermediateRecords&) = delete;
  ~IntermediateRecords() { QxParserUtil::setFreeRecordsOnReturn(mFreed); }

 private:
  bool mFreed;
};

std::string withoutNo(const std::string& text) {
  return text.compare(0, 3, "no ") == 0 ? text.substr(3) : text;
}

// For the commands of a result, by their full form without "no ": the
// command of a reading (the first that a reading gave) with that form, as
// its full text and the line it was typed as. Keys are views into the
// result's own texts, which stay unchanged while the rollback is written;
// only the forms the result holds are kept.
struct TypedLine {
  bool found = false;
  std::string command;
  std::string line;
};
using TypedLines = std::unordered_map<std::string_view, TypedLine>;

std::string_view withoutNoView(std::string_view view) {
  if (view.compare(0, 3, "no ") == 0) view.remove_prefix(3);
  return view;
}

// The forms of `records` (a result, all levels) that lendTypedLines asks for.
void wantTypedLines(const std::vector<CiscoCommandLine*>& records, TypedLines& lines) {
  for (const CiscoCommandLine* record : records) {
    if (record->getTreeNodeSize() != 0) lines.emplace(withoutNoView(record->getOriginalCmd()), TypedLine());
    wantTypedLines(record->getChildCommands(), lines);
  }
}

// Where each form first stands in a sketch (of a reading of a text), all
// levels, in the order the rollback looks: the top level first, then the
// commands below each, depth first; only typed commands with a grammar path.
// Made beside the comparison, so that the rollback only looks forms up.
// Eight bytes an entry (it is made while the compared readings are alive):
// the form's hash, cut to 32 bits, and the entry's place, sorted by hash
// and, within a hash, in that order; the forms themselves are compared.
class TypedLineIndex {
 public:
  TypedLineIndex() = default;
  explicit TypedLineIndex(const ReadingSketch& sketch) : mSketch(&sketch) {
    mEntries.reserve(sketch.size());
    const auto note = [this, &sketch](size_t at) {
      if (!sketch.hasPath(at) || !sketch.wasTyped(at)) return;
      mEntries.emplace_back(hashOf(withoutNoView(sketch.command(at))), static_cast<uint32_t>(at));
    };
    for (size_t at = 0; at < sketch.size(); at = sketch.end(at)) note(at);
    for (size_t top = 0; top < sketch.size(); top = sketch.end(top)) {
      for (size_t at = top + 1; at < sketch.end(top); ++at) note(at);
    }
    std::stable_sort(mEntries.begin(), mEntries.end(),
                     [](const Entry& a, const Entry& b) { return a.first < b.first; });
  }

  // Fills the wanted forms of `lines` not found yet.
  void collect(TypedLines& lines) const {
    if (mSketch == nullptr) return;
    for (auto& [form, typed] : lines) {
      if (typed.found) continue;
      const uint32_t hash = hashOf(form);
      auto at = std::lower_bound(mEntries.begin(), mEntries.end(), hash,
                                 [](const Entry& entry, uint32_t sought) { return entry.first < sought; });
      for (; at != mEntries.end() && at->first == hash; ++at) {
        if (withoutNoView(mSketch->command(at->second)) != form) continue;
        typed = TypedLine{true, std::string(mSketch->command(at->second)), mSketch->typedLine(at->second)};
        break;
      }
    }
  }

 private:
  using Entry = std::pair<uint32_t, uint32_t>;
  static uint32_t hashOf(std::string_view form) {
    return static_cast<uint32_t>(std::hash<std::string_view>()(form) >> 32);
  }

  const ReadingSketch* mSketch = nullptr;
  std::vector<Entry> mEntries;
};

// A command that an input holds as it stands comes out as that input wrote
// it; any other is spelled anew, in the words an input typed for it.
void lendTypedLines(const std::vector<CiscoCommandLine*>& records, const TypedLines& lines) {
  for (CiscoCommandLine* record : records) {
    // A banner's text keeps the line it was read from, blanks and all.
    if (record->getTreeNodeSize() == 0) continue;
    const auto found = lines.find(withoutNoView(record->getOriginalCmd()));
    const TypedLine* typed = found == lines.end() || !found->second.found ? nullptr : &found->second;
    if (typed != nullptr && typed->command == record->getOriginalCmd()) {
      record->setRawText(typed->line);
    } else {
      record->setRawText(typed == nullptr ? std::string() : typed->line);
      record->setFlags(CMDBIT_FROM_CHANGES, true);
    }
    lendTypedLines(record->getChildCommands(), lines);
  }
}

// What the rollback of one configuration to another takes from the two
// typed readings and texts alone, not from the comparison: worked out while
// both readings are at hand, and beside the comparison.
struct ReadingChanges {
  // Lines the comparison misses (see addMissedCommands).
  std::string missed;
  // Named access lists that changed: their heads, and their entries' edits.
  std::vector<std::string> namedHeads;
  std::string namedLists;
  // Numbered access lists that changed: their numbers, and the lists anew.
  std::vector<std::string> numbers;
  std::string numberedLists;
};

// A line that `from` (a reading of the first text) states only in its "no"
// form and `to` (of the second) holds positive is written too: the
// comparison takes the two for one.
void addMissedCommands(const ReadingSketch& from, const ReadingSketch& to, const ReadingChanges& changes,
                       std::vector<CiscoCommandLine*>& out) {
  DeviceMeaning::dropUnchangedNegations(out, from, to);
  const std::vector<std::string>& heads = changes.namedHeads;
  // A named list that changed is written by its entries alone.
  for (auto it = out.begin(); it != out.end();) {
    if (std::find(heads.begin(), heads.end(), (*it)->getOriginalCmd()) != heads.end()) {
      std::vector<CiscoCommandLine*> alone{*it};
      QxParserUtil::deleteCommands(alone);
      it = out.erase(it);
    } else {
      ++it;
    }
  }
  const std::string missed =
      changes.missed + changes.namedLists + DeviceMeaning::changedBanners(out, from.banners(), to.banners());
  if (missed.empty()) return;
  std::vector<CiscoCommandLine*> extra;
  RecordsGuard extraGuard(extra);
  DeviceTextReader::read(missed, extra);
  DeviceMeaning::graft(extra, out, nullptr);
}

// A numbered access list that changed is deleted and written anew: a "no"
// of one of its entries would delete it whole on the device.
void rewriteChangedLists(const ReadingChanges& changes, std::vector<CiscoCommandLine*>& out) {
  if (changes.numberedLists.empty()) return;
  std::vector<CiscoCommandLine*> gone;
  RecordsGuard goneGuard(gone);
  for (auto it = out.begin(); it != out.end();) {
    const std::string& text = (*it)->getOriginalCmd();
    const std::string bare = withoutNo(text);
    bool listed = false;
    for (const std::string& number : changes.numbers) {
      const std::string lead = "access-list " + number + " ";
      listed = listed || bare.compare(0, lead.size(), lead) == 0;
    }
    if (listed) {
      gone.push_back(*it);
      it = out.erase(it);
    } else {
      ++it;
    }
  }
  std::vector<CiscoCommandLine*> extra;
  RecordsGuard extraGuard(extra);
  DeviceTextReader::read(changes.numberedLists, extra);
  DeviceMeaning::graft(extra, out, nullptr);
}

// Takes the comment records (CMD_TEXT) out of the top level of `records`
// and frees them.
void dropComments(std::vector<CiscoCommandLine*>& records) {
  std::vector<CiscoCommandLine*> comments;
  for (CiscoCommandLine* record : records) {
    if (record->getFlag() == CMD_TEXT) comments.push_back(record);
  }
  records.erase(std::remove_if(records.begin(), records.end(),
                               [](const CiscoCommandLine* record) { return record->getFlag() == CMD_TEXT; }),
                records.end());
  QxParserUtil::deleteCommands(comments);
}

// The two texts of a rollback settled (DeviceMeaning::settleText): each is
// the text itself where no line of it is undone, else its settled copy in
// `firstSettled` or `secondSettled`. Long texts are settled at once, the
// second on a thread of its own.
std::pair<const std::string*, const std::string*> settledTexts(const std::string& first, const std::string& second,
                                                               std::string& firstSettled,
                                                               std::string& secondSettled) {
  bool secondChanged = false;
  SideReading secondSettling([&]() { secondChanged = DeviceMeaning::settleText(second, secondSettled); });
  bool firstChanged = false;
  {
    SideThread side;
    if (SideReading::worthAThread(first) && SideReading::worthAThread(second)) side.post(secondSettling);
    firstChanged = DeviceMeaning::settleText(first, firstSettled);
    secondSettling.wait();
  }
  return {firstChanged ? &firstSettled : &first, secondChanged ? &secondSettled : &second};
}

}  // namespace

struct QxParserUtil::KeptReading {
  std::shared_ptr<const std::string> form;
  ReadingSketch sketch;
};

std::string QxParserUtil::mergeConfigCmdsDeviceText(const std::string& changes, const std::string& config,
                                                    std::vector<RefusedLine>* changesRefused,
                                                    std::vector<RefusedLine>* configRefused) {
  return mergeDeviceText(changes, config, changesRefused, configRefused, nullptr);
}

std::string QxParserUtil::mergeDeviceText(const std::string& changes, const std::string& config,
                                          std::vector<RefusedLine>* changesRefused,
                                          std::vector<RefusedLine>* configRefused, KeptReading* keptConfig) {
  std::vector<CiscoCommandLine*> changeCmds;
  std::vector<CiscoCommandLine*> configCmds;
  RecordsGuard changeGuard(changeCmds, true);
  RecordsGuard configGuard(configCmds, true);
  std::set<std::string> goneNeighbours;
  // The change set as read: allowed-vlan lists resolved against the
  // configuration, whole lists and neighbours undone at once. A step that
  // changes nothing makes no copy of the text.
  const std::string* resolved = &changes;
  std::string resolvedText;
  SideReading changeReading([&]() {
    std::string lists;
    std::string neighbours;
    const std::string& listed = AccessListMeaning::wholeListChanges(*resolved, lists) ? lists : *resolved;
    const std::string& read =
        BgpNeighbourMeaning::wholeNeighbourChanges(listed, goneNeighbours, neighbours) ? neighbours : listed;
    DeviceTextReader::read(read, changeCmds, changesRefused, false);
  });
  // Records freed before returning go by the thread that read them.
  SideReading changesFreed([&]() { deleteCommands(changeCmds); });
  SideThread side;
  // A change set without allowed-vlan lists reads the same whatever the
  // configuration holds: long texts are then read at once (into lists of
  // refused lines of their own).
  const bool ownLists = changesRefused == nullptr || changesRefused != configRefused;
  const bool beside = ownLists && !VlanListMeaning::needsConfig(changes) && SideReading::worthAThread(changes) &&
                      SideReading::worthAThread(config);
  if (beside) side.post(changeReading);
  if (keptConfig == nullptr) {
    DeviceTextReader::read(config, configCmds, configRefused);
  } else {
    // Read as DeviceTextReader::read reads it; on the way, the merge form
    // (as readTyped writes it over all levels) and the sketch of the reading
    // are kept for the rollback that reads the text next.
    std::vector<CiscoCommandLine*> all;
    std::vector<RefusedLine> unwanted;
    try {
      getCmdInfoTyped(config, all, configRefused ? *configRefused : unwanted);
      std::vector<CiscoCommandLine*> topLevel;
      for (CiscoCommandLine* record : all) {
        if (record->getLevel() == 0) topLevel.push_back(record);
      }
      keptConfig->form = std::make_shared<const std::string>(mergeForm(topLevel, true));
    } catch (...) {
      deleteCommands(all);
      throw;
    }
    DeviceTextReader::settle(config, all, configCmds);
    keptConfig->sketch = ReadingSketch(configCmds, keptConfig->form);
  }
  if (!changeReading.posted() && VlanListMeaning::needsConfig(changes)) {
    resolvedText = VlanListMeaning::resolvedChanges(changes, configCmds);
    resolved = &resolvedText;
  }
  changeReading.wait();
  if (changes.empty()) return config;
  InterfaceRangeMeaning::expand(changeCmds, configCmds);
  AccessListMeaning::numberedThroughNamed(changeCmds, configCmds);
  AccessListMeaning::resequence(changeCmds, configCmds);
  RouteFilterMeaning::numberPrefixEntries(changeCmds, configCmds);
  RouteFilterMeaning::changeEntryActions(changeCmds, configCmds);
  RouteFilterMeaning::removeExactEntries(changeCmds, configCmds);
  BgpNeighbourMeaning::intoIpv4Family(changeCmds, configCmds);
  DeviceTextWriter::markFromChanges(changeCmds);
  AccessListMeaning::removeNamedEntries(changeCmds, configCmds);
  DeviceMeaning::replaceBanners(changeCmds, configCmds);
  DeviceMeaning::replaceSameRoutes(changeCmds, configCmds);
  const std::string negations = DeviceMeaning::shownNegations(changeCmds);
  mergeCiscoCommands(changeCmds, configCmds, nullptr);
  if (!negations.empty()) {
    std::vector<CiscoCommandLine*> kept;
    RecordsGuard keptGuard(kept);
    DeviceTextReader::read(negations, kept);
    DeviceTextWriter::markFromChanges(kept);
    DeviceMeaning::graft(kept, configCmds, nullptr);
  }
  BgpNeighbourMeaning::dropGoneNeighbours(configCmds, goneNeighbours);
  BgpNeighbourMeaning::groupNeighbourLines(configCmds);
  DeviceMeaning::exitLinesLast(configCmds);
  AccessListMeaning::entriesBySequence(configCmds);
  DeviceMeaning::placeInNumberOrder(configCmds);
  DeviceMeaning::keepBeforeEnd(configCmds);
  DeviceMeaning::settingsAheadOfSubModes(configCmds, true);
  std::string text = DeviceTextWriter::write(configCmds);
  if (freeRecordsOnReturn() && changeReading.posted() && side.post(changesFreed)) deleteCommands(configCmds);
  return text;
}

std::string QxParserUtil::sortConfigDeviceText(const std::string& config) {
  std::vector<CiscoCommandLine*> records;
  RecordsGuard guard(records, true);
  DeviceTextReader::read(config, records);
  dropComments(records);
  // The order of the top level comes from the order table, not from where the
  // commands stood.
  for (CiscoCommandLine* record : records) record->setLineNo(0);
  SortCiscoCommands(records);
  return DeviceTextWriter::write(records, DeviceTextWriter::kCloseEveryBlock);
}

std::string QxParserUtil::deviceText(const std::string& text) {
  std::vector<CiscoCommandLine*> records;
  RecordsGuard guard(records);
  DeviceTextReader::read(nulAsBlank(text), records);
  return DeviceTextWriter::write(records, DeviceTextWriter::kSpellAll);
}

std::string QxParserUtil::fallbackConfigCmdsDeviceText(const std::string& firstGiven, const std::string& secondGiven,
                                                       unsigned int mode, std::vector<RefusedLine>* firstRefused,
                                                       std::vector<RefusedLine>* secondRefused) {
  if (mode == 0 && ResultRollback::needed(firstGiven)) {
    // Undone through the configuration the changes give (see ResultRollback).
    // That merge is a step on the way: its records go before the rollback
    // reads, whatever the caller asked for the records of its result.
    // The merge's reading of the configuration serves the rollback, which
    // reads the same text, where the change set is at most half the
    // configuration's size: the merge holds the change set's reading beside
    // the configuration's, and with a larger change set the merge form and
    // sketch kept on top (one and a half times the text) would raise the
    // job's peak of memory.
    std::string result;
    KeptReading config;
    const bool keep = firstGiven.size() <= secondGiven.size() / 2;
    {
      IntermediateRecords freed;
      result = mergeDeviceText(firstGiven, secondGiven, firstRefused, secondRefused, keep ? &config : nullptr);
    }
    // Written line by line, the text has room to spare; it is kept while the
    // rollback reads it twice, so in its own size.
    result.shrink_to_fit();
    return rollbackDeviceText(result, secondGiven, 1, nullptr, nullptr, &config);
  }
  return rollbackDeviceText(firstGiven, secondGiven, mode, firstRefused, secondRefused, nullptr);
}

std::string QxParserUtil::rollbackDeviceText(const std::string& firstGiven, const std::string& secondGiven,
                                             unsigned int mode, std::vector<RefusedLine>* firstRefused,
                                             std::vector<RefusedLine>* secondRefused, KeptReading* keptSecond) {
  std::string firstSettled;
  std::string secondSettled;
  const auto [firstKept, secondKept] = settledTexts(firstGiven, secondGiven, firstSettled, secondSettled);
  const std::string& first = *firstKept;
  const std::string& second = *secondKept;
  // The comparison's typed readings of the two texts serve again, for the
  // typed lines and the lines the comparison leaves out: no text is read a
  // third time. (The first text's is wanted only where it is a whole
  // configuration, mode 1.) Each is brought into the form
  // DeviceTextReader::read gives and sketched by the thread that read it,
  // and freed before the texts are read again for the comparison: only the
  // sketches stay.
  std::vector<CiscoCommandLine*> firstRead;
  std::vector<CiscoCommandLine*> secondRead;
  RecordsGuard firstGuard(firstRead);
  RecordsGuard secondGuard(secondRead);
  ReadingSketch firstSketch;
  ReadingSketch secondSketch;
  // The texts as their readings saw them (a merge result's NUL indent bytes
  // as blanks), made once.
  std::string firstCopy;
  std::string secondCopy;
  const std::string& firstText = nulAsBlank(first, firstCopy);
  const std::string& secondText = nulAsBlank(second, secondCopy);
  // A reading once read (all levels) is brought into the form
  // DeviceTextReader::read gives (its top-level records) and sketched; it is
  // freed before its text is read again.
  const auto keptReading = [](const std::string& text, std::vector<CiscoCommandLine*>& records,
                              ReadingSketch& sketch) {
    TypedReading reading;
    reading.records = &records;
    reading.read = [&text, &records, &sketch](const std::shared_ptr<const std::string>& form) {
      std::vector<CiscoCommandLine*> all;
      all.swap(records);
      if (!TextLines::fits(text)) {
        DeviceTextReader::settle(text, all, records);
        sketch = ReadingSketch(records, form);
        return;
      }
      // The sketch finds each typed line in the text: the reading, freed
      // soon after, gets no copies of its lines.
      const TextLines lines(text);
      DeviceTextReader::settleByLines(lines, all, records);
      sketch = ReadingSketch(records, form, &lines);
    };
    reading.release = [&records]() { deleteTopLevel(records); };
    return reading;
  };
  Readers kept;
  // A reading kept by the merge serves where the text stands as the merge
  // read it (nothing settled, no NUL byte) and its refused lines are not
  // wanted again.
  if (keptSecond != nullptr && keptSecond->form && &second == &secondGiven && &secondText == &second &&
      secondRefused == nullptr) {
    secondSketch = std::move(keptSecond->sketch);
    kept.secondForm = std::move(keptSecond->form);
  } else {
    kept.secondTyped = keptReading(secondText, secondRead, secondSketch);
  }
  if (mode != 0) kept.firstTyped = keptReading(firstText, firstRead, firstSketch);
  // Of a configuration's rollback, what needs both readings is worked out
  // from their sketches on this thread, while the second may still be
  // reading its text again; what needs the texts alone, on the second thread
  // while this one compares.
  ReadingChanges readingChanges;
  if (mode != 0) {
    kept.bothRead = [&]() {
      readingChanges.missed = DeviceMeaning::missedCommands(firstSketch, secondSketch);
      readingChanges.namedLists =
          AccessListMeaning::changedNamedLists(firstSketch, secondSketch, readingChanges.namedHeads);
    };
  }
  TypedLineIndex firstTypedLines;
  TypedLineIndex secondTypedLines;
  SideReading numberedLists([&]() {
    if (mode != 0) {
      readingChanges.numberedLists =
          AccessListMeaning::changedNumberedLists(firstText, secondText, readingChanges.numbers);
      firstTypedLines = TypedLineIndex(firstSketch);
    }
    secondTypedLines = TypedLineIndex(secondSketch);
  });
  kept.besideComparison = &numberedLists;
  // The records the texts were compared by are freed on the second thread
  // while this one writes the rollback.
  std::vector<CiscoCommandLine*> compared;
  RecordsGuard comparedGuard(compared);
  kept.compared = &compared;
  const std::string written =
      nulAsBlank(fallbackWithReaders(first, second, mode, firstRefused, secondRefused, std::move(kept)));
  if (first.empty()) return second;
  numberedLists.wait();
  SideReading comparedFreed([&compared]() { deleteTopLevel(compared); });
  SideThread side;
  if (!SideReading::worthAThread(first) || !side.post(comparedFreed)) deleteTopLevel(compared);
  // A configuration's own spelling first: in delta mode the change set was
  // typed (`int Gi0/3`), and a command only it holds is spelt anew in the
  // device's words rather than in its abbreviations.
  TypedLines typedLines;
  std::vector<CiscoCommandLine*> out;
  RecordsGuard guard(out, true);
  DeviceTextReader::read(written, out, nullptr, true, true);
  // The writer closes each block of the top level itself; the merge writer's
  // "!" lines go.
  dropComments(out);
  if (mode != 0) {
    addMissedCommands(firstSketch, secondSketch, readingChanges, out);
    rewriteChangedLists(readingChanges, out);
  }
  BgpNeighbourMeaning::orderNeighbours(out);
  DeviceMeaning::dropRepeats(out);
  DeviceMeaning::dropReplacedRoutes(out);
  VlanListMeaning::dropReplacedLists(out);
  DeviceMeaning::settingsAheadOfSubModes(out, false);
  wantTypedLines(out, typedLines);
  secondTypedLines.collect(typedLines);
  firstTypedLines.collect(typedLines);
  lendTypedLines(out, typedLines);
  return DeviceTextWriter::write(out, DeviceTextWriter::kCloseEveryBlock);
}

}  // namespace qxparser
