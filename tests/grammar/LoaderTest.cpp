// Definition folders through the loader: the tree it builds, the levels it
// leaves open, and the file and line of what it refuses
// (tests/data/grammar/loader.txt).
#include <gtest/gtest.h>

#include "grammar/DefinitionLoader.h"
#include "grammar/ParserException.h"
#include "grammar/ParserTree.h"
#include "support/CaseFile.h"
#include "support/TestResources.h"

using namespace qxparser;

namespace {

// The children of `node`, one a line at `depth`, with the help kept for each;
// a block (whose key is made up) by its words.
std::string dump(const ParserTreeNode* node, int depth) {
  std::string out;
  for (const auto& [key, child] : node->mChildren) {
    auto help = node->mHelp.find(key);
    std::string line = (key == "\n" ? "<cr>" : key) + ": " +
                       std::string(help == node->mHelp.end() ? std::string_view() : help->second);
    if (child->mIsComplex) {
      line = "{block";
      for (const auto& word : child->mKeywords) line += " " + word.first;
      line += "}";
    }
    out += std::string(static_cast<size_t>(depth) * 2, ' ') + line + "\n" + dump(child, depth + 1);
  }
  return out;
}

// The tree loaded from the case's files, or the loader's message.
std::string load(const testsupport::Case& c) {
  std::map<std::string, std::string> files;
  for (const char* name : {"main.cfm", "sub.cfm"}) {
    if (c.has(name)) files[name] = c[name];
  }
  testsupport::useResources(testsupport::writeResources("loader", files));
  try {
    loadKeyFiles();
    ParserTree tree("main.cfm", true);
    return dump(tree.mRoot, 0) + "open levels: " + std::to_string(tree.mNodeStack.size()) + "\n";
  } catch (const ParserException& e) {
    return std::string("error ") + e.what();
  }
}

TEST(LoaderTest, DefinitionFoldersLoadAsTheirCaseSays) {
  for (const testsupport::Case& c : testsupport::readCases("grammar/loader.txt")) {
    const std::string loaded = load(c);
    if (c.has("tree")) {
      EXPECT_EQ(loaded, c["tree"]) << c.where();
    } else {
      EXPECT_EQ(loaded.substr(0, c["error"].size() + 6), "error " + c["error"]) << c.where();
    }
  }
}

}  // namespace
