// Helpers shared by the tests: scratch resource folders with definition files
// written from strings, and loading the fixture grammars.
#pragma once

#include <fstream>
#include <map>
#include <string>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/Pathname.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"
#include "support/TestFiles.h"

namespace testsupport {

// Writes files below <root>/files/ (names may hold "keyfiles/x").
inline std::string writeResources(const std::string& name, const std::map<std::string, std::string>& files) {
  std::string root = scratchFolder(name);
  platform::makeDir(root + "files");
  platform::makeDir(root + "files/keyfiles");
  platform::makeDir(root + "files/commandorder");
  platform::makeDir(root + "files/commandflag");
  for (const auto& f : files) {
    std::ofstream out(root + "files/" + f.first, std::ios::binary);
    out << f.second;
  }
  return root;
}

// Points the library at `root` and forgets everything loaded before.
inline void useResources(const std::string& root) {
  qxparser::QxParserUtil::destroyParserResource();
  qxparser::clearLoaderTables();
  QXFileSystem::SetSystemResourceFolder(root);
}

inline std::string fixtureResources(const std::string& subsystem) {
  return std::string(VTYCONF_TEST_DATA_DIR) + "/" + subsystem + "/";
}

}  // namespace testsupport
