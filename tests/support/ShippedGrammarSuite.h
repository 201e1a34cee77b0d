// A test suite over the shipped definition files (resources/ of the source
// tree unless VTYCONF_RESOURCES names another folder), loaded once per suite,
// and the helpers its tests share: whether the terminal refused a record, the
// lines of a text and the ".cfg" files of a folder.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/QXFileSystem.h"
#include "support/TestFiles.h"

namespace testsupport {

inline std::string shippedResources() {
  const char* env = std::getenv("VTYCONF_RESOURCES");
  if (env != nullptr && *env != '\0') return env;
  return std::string(VTYCONF_SOURCE_DIR) + "/resources/";
}

class ShippedGrammarSuite : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    setenv("VTYCONF_RESOURCES", shippedResources().c_str(), 1);
    QXFileSystem::SetSystemResourceFolder(shippedResources());
    qxparser::clearLoaderTables();
    qxparser::QxParserUtil::createNewParserResource();
  }
  static void TearDownTestSuite() {
    qxparser::QxParserUtil::destroyParserResource();
    qxparser::clearLoaderTables();
  }
};

// Whether the path of a record reached the end of a command; a "no" line may
// also stop early where the grammar lets it.
inline bool readToTheEnd(const qxparser::CiscoCommandLine& record) {
  if (record.getTreeNodeSize() == 0) return false;
  for (const auto& entry : record.getTreeNodes()) {
    if (entry.words.count("\n") != 0) return true;
  }
  return record.hasFlags(qxparser::CMDBIT_NO) && !record.hasFlags(qxparser::CMDBIT_NO_COMPLETE);
}

// A command the terminal refused: mode exits (text records) are not refused.
inline bool isRefused(const qxparser::CiscoCommandLine& record) {
  return record.getFlag() != qxparser::CMD_TEXT && !readToTheEnd(record);
}

// The non-empty lines of a text, without a trailing carriage return.
inline std::vector<std::string> textLines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) out.push_back(line);
  }
  return out;
}

// The ".cfg" files of a folder, by name, with their text.
inline std::vector<std::pair<std::string, std::string>> configFiles(const std::filesystem::path& folder) {
  std::vector<std::pair<std::string, std::string>> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".cfg") {
      files.emplace_back(entry.path().filename().string(), readFile(entry.path().string()));
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

// All records of a text, in line order (a reading of the whole text as a file).
inline std::vector<qxparser::CiscoCommandLine*> readRecords(const std::string& text) {
  std::vector<qxparser::CiscoCommandLine*> records;
  std::string errorText;
  int errorLine = 0;
  qxparser::QxParserUtil::getCmdInfo(text, records, errorText, errorLine);
  return records;
}

}  // namespace testsupport
