// Device text: the table of new, changed and kept commands (and of diffs) in
// tests/data/device_text/cases.tsv, and a merge of a change that changes
// nothing over the corpora, which must give back every line it was given.
#include <filesystem>
#include <fstream>
#include <set>

#include "ShippedGrammar.h"
#include "support/CaseFile.h"
#include "config/ConfigDiff.h"

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

}  // namespace
}  // namespace qxparser
