// Shared set-up of the configuration tests: the small grammar under
// tests/data/config/ loaded as the parser resources, and helpers to read
// texts into records that free themselves.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/QXFileSystem.h"
#include "support/TestFiles.h"

namespace qxparser {

// Reaches the private members of QxParserUtil.
struct QxParserUtilPeer {
  static std::string expand(const std::vector<CiscoCommandLine*>& commands, int depth) {
    return QxParserUtil::expandMergedCmds(commands, depth);
  }
  static CiscoCommandLine* no(CiscoCommandLine* command) { return QxParserUtil::createNoCommand(command); }
  static void transform(const std::string& text, std::vector<CiscoCommandLine*>& out) {
    std::string errorText;
    int errorLine = 0;
    QxParserUtil::transformCmds(text, out, errorText, errorLine);
  }
  static void deleteTop(std::vector<CiscoCommandLine*>& commands) { QxParserUtil::deleteTopLevel(commands); }
};

// Level-0 records of a text, freed with their children.
class TopLevel {
 public:
  explicit TopLevel(const std::string& text) { QxParserUtilPeer::transform(text, mCommands); }
  ~TopLevel() { QxParserUtilPeer::deleteTop(mCommands); }
  TopLevel(const TopLevel&) = delete;
  TopLevel& operator=(const TopLevel&) = delete;
  std::vector<CiscoCommandLine*>& get() { return mCommands; }
  CiscoCommandLine* operator[](size_t i) { return mCommands.at(i); }

 private:
  std::vector<CiscoCommandLine*> mCommands;
};

class ConfigFixture : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    QXFileSystem::SetSystemResourceFolder(std::string(VTYCONF_TEST_DATA_DIR) + "/config/");
    clearLoaderTables();
    QxParserUtil::createNewParserResource();
  }
  static void TearDownTestSuite() {
    QxParserUtil::destroyParserResource();
    clearLoaderTables();
  }

  // Writes a configuration file for a search and returns its path.
  std::string writeConfig(const std::string& name, const std::string& text) {
    return testsupport::tempFile("configops_" + name, text);
  }
};

}  // namespace qxparser
