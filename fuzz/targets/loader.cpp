// Definition files and KeyFiles through the loader. The input is cut at the
// split marker into the top file "main.cfm", a second file "sub.cfm" that the
// first may link ("@sub.cfm") or include ("&sub.cfm"), and a KeyFile "keys"
// ("&keys"). A malformed file must end in ParserException, nothing else.
#include <memory>

#include "FuzzSupport.h"
#include "grammar/DefinitionLoader.h"
#include "grammar/NodePool.h"
#include "grammar/ParserException.h"
#include "grammar/ParserTree.h"

namespace {

const std::string& resourceRoot() {
  static const std::string root = [] {
    std::string dir = QXFileSystem::GetTempFolder() + "fuzz_resources";
    platform::makeDir(dir);
    platform::makeDir(dir + "/files");
    platform::makeDir(dir + "/files/keyfiles");
    return dir + "/";
  }();
  return root;
}

void forgetGrammar() {
  qxparser::clearLoaderTables();
  qxparser::NodePool::releaseAll();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace qxparser;
  std::vector<std::string> parts = fuzzsupport::splitInput(fuzzsupport::asText(data, size), 3);
  const std::string& root = resourceRoot();
  fuzzsupport::writeTemp("fuzz_resources/files/main.cfm", parts[0]);
  fuzzsupport::writeTemp("fuzz_resources/files/sub.cfm", parts[1]);
  fuzzsupport::writeTemp("fuzz_resources/files/keyfiles/keys", parts[2]);
  QXFileSystem::SetSystemResourceFolder(root);
  forgetGrammar();
  try {
    loadKeyFiles();
    auto tree = std::make_unique<ParserTree>("main.cfm", true);
    if (!tree->mRoot) fuzzsupport::fail("a loaded tree has no root");
    if (!tree->mNodeStack.empty()) fuzzsupport::fail("nodes left open after a successful load");
  } catch (const ParserException& e) {
    if (e.text().empty()) fuzzsupport::fail("ParserException without a text");
  }
  forgetGrammar();
  return 0;
}
