// What merge and rollback mean on the device: the table of device behaviour in
// tests/data/device_meaning/ (base, change, the running configuration the
// device shows after it, the rollback that returns), and a round trip over the
// corpora: B made from A by a few everyday edits, and the rollback from B to A
// applied to B must give A again (compared as stored commands).
#include <dirent.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>

#include "ShippedGrammar.h"
#include "support/CaseFile.h"
#include "config/DeviceTextReader.h"
#include "config/ResultRollback.h"
#include "CorpusEdits.h"

namespace qxparser {
namespace {

using testsupport::unescaped;

// Lines that state a default, shown by some platforms only (shown_defaults.txt).
const std::set<std::string>& shownDefaults() {
  static const std::set<std::string> lines = [] {
    std::set<std::string> read;
    std::ifstream in(std::string(VTYCONF_TEST_DATA_DIR) + "/device_meaning/shown_defaults.txt");
    for (std::string line; std::getline(in, line);) {
      if (!line.empty() && line[0] != '#') read.insert(line);
    }
    return read;
  }();
  return lines;
}

void collect(const std::vector<CiscoCommandLine*>& records, const std::string& mode,
             std::vector<std::string>& out) {
  for (const CiscoCommandLine* record : records) {
    // Data lines (a banner's text) stand below their command.
    if (record->getTreeNodeSize() == 0 && !mode.empty() && !record->getRawText().empty()) {
      out.push_back(mode + record->getRawText());
      continue;
    }
    if (record->getTreeNodeSize() == 0 || !(record->getFlags() & CMDBIT_STORED)) continue;
    std::string command = record->getOriginalCmd();
    command.erase(command.find_last_not_of(" \r\n") + 1);
    if (shownDefaults().count(command)) continue;
    out.push_back(mode + command);
    const size_t first = out.size();
    collect(record->getChildCommands(), mode + command + " > ", out);
    // Entries of an access list count in their order.
    if (command.find("access-list ") != std::string::npos && command.find("access-list ") <= 5) {
      std::string order = "order of " + mode + command + ":";
      for (size_t i = first; i < out.size(); ++i) order += " | " + out[i];
      out.push_back(order);
    }
  }
}

// The entries of each numbered access list, the VLANs and the interfaces, in
// their order.
void numberedOrder(std::vector<std::string>& out) {
  std::map<std::string, std::string> lists;
  for (const std::string& line : out) {
    if (line.compare(0, 5, "vlan ") == 0 && line.find(" > ") == std::string::npos) lists["vlan"] += " | " + line;
    if (line.compare(0, 10, "interface ") == 0 && line.find(" > ") == std::string::npos) {
      lists["interface"] += " | " + line;
    }
    if (line.compare(0, 12, "access-list ") != 0) continue;
    lists[line.substr(0, line.find(' ', 12))] += " | " + line;
  }
  for (const auto& [list, entries] : lists) out.push_back("order of " + list + ":" + entries);
}

// The stored commands of a text, each behind the heads of its modes, sorted.
std::vector<std::string> stored(const std::string& text) {
  std::vector<CiscoCommandLine*> records;
  DeviceTextReader::read(text, records);
  std::vector<std::string> out;
  collect(records, "", out);
  numberedOrder(out);
  QxParserUtil::deleteCommands(records);
  std::sort(out.begin(), out.end());
  return out;
}

std::string rollback(const std::string& from, const std::string& to) {
  return QxParserUtil::fallbackConfigCmdsDeviceText(from, to, 1);
}

// Whether `got` and `want` hold the same commands; `why` (when given) gets
// those that differ, each behind `label`.
bool same(const std::vector<std::string>& got, const std::vector<std::string>& want, const std::string& label,
          std::string* why) {
  if (why) {
    for (const auto& c : got) if (!std::binary_search(want.begin(), want.end(), c)) *why += "  " + label + "extra: " + c + "\n";
    for (const auto& c : want) if (!std::binary_search(got.begin(), got.end(), c)) *why += "  " + label + "missing: " + c + "\n";
  }
  return got == want;
}

// Whether the rollback from `from` to `to`, applied to `from`, gives `to`.
bool returns(const std::string& from, const std::string& to) {
  return same(stored(QxParserUtil::mergeConfigCmdsDeviceText(rollback(from, to), from)), stored(to), "", nullptr);
}

// The names in `folder` that start with `prefix` and end with `suffix`, sorted.
std::vector<std::string> filesOf(const std::string& folder, const std::string& prefix, const std::string& suffix) {
  std::vector<std::string> names;
  if (DIR* dir = opendir(folder.c_str())) {
    while (dirent* entry = readdir(dir)) {
      const std::string name = entry->d_name;
      if (name.size() >= prefix.size() + suffix.size() && name.compare(0, prefix.size(), prefix) == 0 &&
          name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0) {
        names.push_back(name);
      }
    }
    closedir(dir);
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Columns: name, reference, base, change, running, rollback (escaped text).
std::vector<std::vector<std::string>> table(const std::string& file) {
  std::vector<std::vector<std::string>> rows;
  const std::string text = testsupport::readFile(std::string(VTYCONF_TEST_DATA_DIR) + "/device_meaning/" + file);
  for (const std::string& row : testsupport::dataLines(text)) {
    std::vector<std::string> fields = testsupport::splitFields(row);
    for (size_t i = 2; i < fields.size(); ++i) fields[i] = unescaped(fields[i]);
    rows.push_back(fields);
  }
  return rows;
}

// The failures of one case, empty when the device's answer is given.
std::string failures(const std::vector<std::string>& c) {
  if (c.size() != 6) return "needs 6 columns";
  std::string why;
  if (stored(QxParserUtil::mergeConfigCmdsDeviceText(c[3], c[2])) != stored(c[4])) why += " merge;";
  if (stored(QxParserUtil::mergeConfigCmdsDeviceText(c[5], c[4])) != stored(c[2])) why += " stated rollback;";
  if (!returns(c[4], c[2])) why += " computed rollback: " + rollback(c[4], c[2]);
  return why;
}

class DeviceMeaningTest : public ShippedGrammarTest {};

// Every cases*.tsv of the folder: one file per family of commands.
TEST_F(DeviceMeaningTest, TableOfDeviceBehaviour) {
  size_t count = 0;
  for (const std::string& file : filesOf(std::string(VTYCONF_TEST_DATA_DIR) + "/device_meaning/", "cases", ".tsv")) {
    for (const auto& c : table(file)) {
      ++count;
      EXPECT_EQ(failures(c), "") << file << ": " << c[0];
    }
  }
  std::cout << count << " device behaviour cases\n";
  EXPECT_GE(count, 290u) << "device_meaning/cases*.tsv missing";
}

// Device behaviour not given yet: reported, not failed on.
TEST_F(DeviceMeaningTest, KnownFailuresReported) {
  int given = 0;
  const auto rows = table("known_failures.tsv");
  for (const auto& c : rows) {
    const std::string why = failures(c);
    if (why.empty()) ++given;
    std::cout << "[known failure] " << c[0] << (why.empty() ? ": now given, move it to cases.tsv" : ":" + why)
              << "\n";
  }
  std::cout << given << " of " << rows.size() << " known failures now given\n";
}

// Files whose fallback to themselves is not empty, with the reason
// (self_fallback_exceptions.txt: file name, tab, reason).
std::set<std::string> selfFallbackExceptions() {
  std::set<std::string> names;
  const std::string text =
      testsupport::readFile(std::string(VTYCONF_TEST_DATA_DIR) + "/device_meaning/self_fallback_exceptions.txt");
  for (const std::string& row : testsupport::dataLines(text)) names.insert(row.substr(0, row.find('\t')));
  return names;
}

std::string trimmedText(std::string text) {
  text.erase(0, text.find_first_not_of(' '));
  text.erase(text.find_last_not_of(" \r") + 1);
  return text;
}

bool blank(const std::string& text) { return text.find_first_not_of(" !\n") == std::string::npos; }

// Per folder: the share of pairs (A, B) whose file rollback gives B, the
// share whose delta rollback gives A back, each with the floor that holds
// today, and the fallback of each file to itself (empty unless listed).
// Figures when the floors were set: public 175 and 175 of 177 pairs, wide
// 851 and 854 of 858.
TEST_F(DeviceMeaningTest, RoundTripOverCorpora) {
  const std::string root = VTYCONF_SHARED_CORPUS_DIR;
  struct Folder {
    std::string path;
    double fileFloor, deltaFloor;
  };
  const std::vector<Folder> folders = {{root + "/public/", 0.98, 0.98}, {root + "-wide/", 0.99, 0.99}};
  const auto exceptions = selfFallbackExceptions();
  const bool list = getenv("VTYCONF_ROUND_TRIP_LIST") != nullptr;
  for (const Folder& folder : folders) {
    const auto names = filesOf(folder.path, "", ".cfg");
    if (names.empty()) {
      std::cout << "skipped: no corpus in " << folder.path << "\n";
      continue;
    }
    int pairs = 0, back = 0, undone = 0;
    for (const std::string& name : names) {
      const std::string a = readWholeFile(folder.path + name);
      const bool listed = exceptions.count(name) != 0;
      const std::string self = rollback(a, a);
      EXPECT_TRUE(blank(self) || listed) << name << ": fallback to itself:\n" << self;
      EXPECT_FALSE(blank(self) && listed) << name << ": listed in self_fallback_exceptions.txt, now empty";
      const auto storedA = stored(a);
      for (int seed = 0; seed < 3; ++seed) {
        // B from A by the file rollback, and A back from it by the delta
        // rollback of that change set.
        const std::string b = corpusedits::edited(a, seed);
        const std::string changes = rollback(a, b);
        std::vector<RefusedLine> refused;
        const std::string merged = QxParserUtil::mergeConfigCmdsDeviceText(changes, a, &refused);
        // The device takes every line of a rollback where it stands, but for
        // a line that B itself holds and the device refuses there too.
        std::vector<RefusedLine> refusedInB;
        QxParserUtil::mergeConfigCmdsDeviceText("", b, nullptr, &refusedInB);
        std::set<std::string> givenRefused;
        for (const RefusedLine& line : refusedInB) givenRefused.insert(trimmedText(line.text));
        for (const RefusedLine& line : refused) {
          if (givenRefused.count(trimmedText(line.text))) continue;
          ADD_FAILURE() << name << " seed " << seed << ": rollback line " << line.lineNo << " refused: " << line.text;
        }
        const std::string undo = QxParserUtil::fallbackConfigCmdsDeviceText(changes, a, 0);
        std::string why;
        const bool fileOk = same(stored(merged), stored(b), "", &why);
        const bool deltaOk = same(stored(QxParserUtil::mergeConfigCmdsDeviceText(undo, merged)), storedA, "delta ", &why);
        ++pairs;
        back += fileOk;
        undone += deltaOk;
        if (list && !why.empty()) std::cout << "does not return: " << name << " seed " << seed << "\n" << why;
      }
    }
    const double fileShare = static_cast<double>(back) / pairs;
    const double deltaShare = static_cast<double>(undone) / pairs;
    std::cout << folder.path << ": " << pairs << " pairs, file " << back << " (" << fileShare << "), delta " << undone
              << " (" << deltaShare << ")\n";
    EXPECT_GE(fileShare, folder.fileFloor) << folder.path;
    EXPECT_GE(deltaShare, folder.deltaFloor) << folder.path;
  }
}

// A change set undone through the configuration it gives is undone as the
// file rollback from the merged text to the configuration: the merge's own
// reading of the configuration, which that rollback takes over where the
// change set is small, gives what reading the text again gives. Figure when
// the floor was set: 100 such change sets in the public folder.
TEST_F(DeviceMeaningTest, DeltaThroughTheResultIsTheRollbackOfTheMergedText) {
  const std::string folder = std::string(VTYCONF_SHARED_CORPUS_DIR) + "/public/";
  const auto names = filesOf(folder, "", ".cfg");
  if (names.empty()) GTEST_SKIP() << "no corpus in " << folder;
  int throughResult = 0;
  for (const std::string& name : names) {
    const std::string a = readWholeFile(folder + name);
    for (int seed = 0; seed < 3; ++seed) {
      const std::string changes = rollback(a, corpusedits::edited(a, seed));
      if (!ResultRollback::needed(changes)) continue;
      ++throughResult;
      const std::string merged = QxParserUtil::mergeConfigCmdsDeviceText(changes, a);
      EXPECT_EQ(QxParserUtil::fallbackConfigCmdsDeviceText(changes, a, 0),
                QxParserUtil::fallbackConfigCmdsDeviceText(merged, a, 1))
          << name << " seed " << seed;
    }
  }
  std::cout << folder << ": " << throughResult << " change sets undone through their result\n";
  EXPECT_GT(throughResult, 50) << "change sets undone through their result";
}

}  // namespace
}  // namespace qxparser
