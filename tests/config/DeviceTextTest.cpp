// Device text: the table of new, changed and kept commands (and of diffs) in
// tests/data/device_text/cases.tsv, and a merge of a change that changes
// nothing over the corpora, which must give back every line it was given.
#include <filesystem>
#include <fstream>
#include <set>

#include "ShippedGrammar.h"
#include "support/CaseFile.h"
#include "config/ConfigDiff.h"
#include "config/SideReading.h"

namespace qxparser {
namespace {

using testsupport::unescaped;

std::string run(const std::string& operation, const std::string& first, const std::string& second) {
  if (operation == "merge") return QxParserUtil::mergeConfigCmdsDeviceText(first, second);
  if (operation == "fallback-delta") return QxParserUtil::fallbackConfigCmdsDeviceText(first, second, 0);
  if (operation == "fallback-file") return QxParserUtil::fallbackConfigCmdsDeviceText(first, second, 1);
  if (operation == "sort") return QxParserUtil::sortConfigDeviceText(first);
  if (operation == "device-text") return QxParserUtil::deviceText(first);
  if (operation == "diff") return ConfigDiff::unified(ConfigDiff::compare(first, second), "A", "B", false);
  ADD_FAILURE() << "unknown operation " << operation;
  return {};
}

// The non-empty lines of a text, trailing blanks cut.
std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> out;
  size_t start = 0;
  while (start <= text.size()) {
    size_t end = text.find_first_of("\r\n", start);
    if (end == std::string::npos) end = text.size();
    std::string line = text.substr(start, end - start);
    line.erase(line.find_last_not_of(" \t") + 1);
    if (line.find_first_not_of(" \t") != std::string::npos) out.push_back(line);
    start = end + 1;
  }
  return out;
}

std::vector<std::string> corpusFolders() {
  const std::string root = VTYCONF_SHARED_CORPUS_DIR;
  return {root + "/public/", root + "-wide/"};
}

class DeviceTextTest : public ShippedGrammarTest {};

TEST_F(DeviceTextTest, TableOfCases) {
  const std::string text = testsupport::readFile(std::string(VTYCONF_TEST_DATA_DIR) + "/device_text/cases.tsv");
  ASSERT_FALSE(text.empty()) << "cases.tsv missing";
  int cases = 0;
  for (const std::string& row : testsupport::dataLines(text)) {
    const std::vector<std::string> fields = testsupport::splitFields(row);
    ASSERT_EQ(fields.size(), 5u) << row;
    SCOPED_TRACE(fields[0]);
    EXPECT_EQ(run(fields[1], unescaped(fields[2]), unescaped(fields[3])), unescaped(fields[4]));
    ++cases;
  }
  EXPECT_GT(cases, 0);
}

// With a change that changes nothing ("hostname" with the file's own name),
// every non-empty line of every file comes back, in its order, byte for byte
// up to trailing blanks; a file without a host name gets only that line more.
TEST_F(DeviceTextTest, NoOpMergeGivesEveryCorpusLineBack) {
  size_t files = 0;
  size_t distinct = 0;
  size_t kept = 0;
  for (const std::string& folder : corpusFolders()) {
    if (!std::filesystem::is_directory(folder)) continue;
    for (const auto& [name, text] : testsupport::configFiles(folder)) {
      SCOPED_TRACE(folder + name);
      std::vector<std::string> input = lines(text);
      const auto hostname = std::find_if(input.begin(), input.end(), [](const std::string& line) {
        return line.rfind("hostname ", 0) == 0;
      });
      const std::string change = hostname == input.end() ? "hostname Router\n" : *hostname + "\n";
      std::vector<std::string> output = lines(QxParserUtil::mergeConfigCmdsDeviceText(change, text));
      if (hostname == input.end()) {
        output.erase(std::remove(output.begin(), output.end(), "hostname Router"), output.end());
      }
      const std::set<std::string> want(input.begin(), input.end());
      const std::set<std::string> got(output.begin(), output.end());
      distinct += want.size();
      for (const std::string& line : want) kept += got.count(line);
      EXPECT_EQ(output, input);
      ++files;
    }
  }
  if (files == 0) GTEST_SKIP() << "no corpus at " << corpusFolders()[0] << " or " << corpusFolders()[1];
  std::cout << files << " files, " << kept << " of " << distinct << " distinct lines given back\n";
  EXPECT_EQ(kept, distinct);
}

// A configuration long enough to be read on two threads: loopbacks, access
// lists, static routes, prefix lists, VLANs, a banner, BGP neighbours and a
// named list, with one refused line. `variant` changes some of each; `typed`
// stands ahead of the closing "end".
std::string longConfiguration(int variant, const std::string& typed = std::string()) {
  std::string text = "hostname R" + std::to_string(variant) + "\n!\nbanner motd ^C\nAuthorised access only\n^C\n!\n";
  for (int i = 0; i < 420; ++i) {
    const std::string n = std::to_string(i);
    const bool changed = variant != 0 && i % 9 == 0;
    text += "interface Loopback" + n + "\n description loop " + (changed ? "moved " : "") + n + "\n";
    text += " ip address 10." + std::to_string(i / 250) + "." + std::to_string(i % 250) + ".1 255.255.255.255\n";
    text += changed ? " shutdown\n!\n" : "!\n";
    if (!(changed && i % 2 == 0)) {
      text += "access-list " + std::to_string(100 + i % 40) + " permit ip host 192.0.2." + std::to_string(i % 250) +
              " any\n";
    }
    text += "ip route 10.200." + std::to_string(i % 250) + ".0 255.255.255.0 192.0.2." + std::to_string(1 + (changed ? 1 : 0)) +
            "\n";
    text += "ip prefix-list P" + std::to_string(i % 20) + " seq " + std::to_string(5 * (i / 20 + 1)) +
            " permit 10." + std::to_string(i % 200) + ".0.0/16\n";
    if (i < 300) text += "vlan " + std::to_string(2 + i) + "\n name V" + n + (changed ? "x" : "") + "\n!\n";
  }
  text += "interface Loopback1\n no-such-command at all\n!\n";
  text += "router bgp 65000\n";
  for (int j = 1; j <= 30; ++j) {
    if (variant != 0 && j % 10 == 0) continue;
    text += " neighbor 198.51.100." + std::to_string(j) + " remote-as 6500" + std::to_string(1 + j % 3) + "\n";
  }
  text += "!\nip access-list extended WEB\n permit tcp any any eq 80\n";
  if (variant != 0) text += " permit tcp any any eq 443\n";
  return text + "!\n" + typed + "end\n";
}

std::string refusedText(const std::vector<RefusedLine>& refused) {
  std::string out;
  for (const RefusedLine& line : refused) {
    out += std::to_string(line.lineNo) + ":" + std::to_string(line.position) + ":" + line.message + ":" + line.text + "\n";
  }
  return out;
}

// The output of a merge or fallback, and its refused lines, in one text.
std::string runWithRefused(const std::string& operation, const std::string& first, const std::string& second) {
  std::vector<RefusedLine> firstRefused;
  std::vector<RefusedLine> secondRefused;
  std::string out;
  if (operation == "merge") {
    out = QxParserUtil::mergeConfigCmdsDeviceText(first, second, &firstRefused, &secondRefused);
  } else {
    out = QxParserUtil::fallbackConfigCmdsDeviceText(first, second, operation == "fallback-file" ? 1 : 0,
                                                     &firstRefused, &secondRefused);
  }
  return out + "--\n" + refusedText(firstRefused) + "--\n" + refusedText(secondRefused);
}

// Texts of 2,000 lines and more are read on two threads at once: the results,
// and the refused lines with their order, are those of one thread.
TEST_F(DeviceTextTest, LongTextsGiveOnTwoThreadsWhatOneGives) {
  const std::string running = longConfiguration(0);
  // The changed copy typed as a change set, with abbreviations at its end.
  const std::string intended = longConfiguration(1, "int Lo7\n desc typed\n no shut\n!\n");
  const auto lineCount = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
  ASSERT_GE(lineCount(running), static_cast<long>(SideReading::kLinesForThread));
  ASSERT_GE(lineCount(intended), static_cast<long>(SideReading::kLinesForThread));
  const bool allowed = SideReading::threadsAllowed();
  for (const std::string operation : {"merge", "fallback-delta", "fallback-file"}) {
    SCOPED_TRACE(operation);
    const std::string& first = operation == "fallback-file" ? running : intended;
    const std::string& second = operation == "fallback-file" ? intended : running;
    QxParserUtil::setReadingThreadsAllowed(false);
    const std::string serial = runWithRefused(operation, first, second);
    QxParserUtil::setReadingThreadsAllowed(true);
    const std::string beside = runWithRefused(operation, first, second);
    QxParserUtil::setReadingThreadsAllowed(allowed);
    EXPECT_GT(serial.size(), 100u);
    EXPECT_NE(serial.find("no-such-command"), std::string::npos) << "the refused line is reported";
    EXPECT_EQ(beside, serial);
  }
}

}  // namespace
}  // namespace qxparser
