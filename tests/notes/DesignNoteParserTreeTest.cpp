// The folder tree of scripts: scanning with and without filters and UI
// variables (its root, add, delete and path calls are rows of
// notes/side_files.tsv).
#include <gtest/gtest.h>

#include <memory>

#include "NoteTestSupport.h"
#include "support/CaseFile.h"
#include "notes/DesignNoteParser.h"
#include "results/UIVariableForDR.h"

using notestest::scratch;
using notestest::writeFile;

namespace {

// A canonical text of a tree: "folder/" lines and script names, indented.
std::string dumpTree(const DesignNoteParser& tree, int depth = 0) {
  std::string out;
  const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
  for (const auto& name : tree.getScriptFiles()) out += indent + name + "\n";
  for (const auto& sub : tree.getSubDirects()) {
    out += indent + sub.first + "/\n";
    out += dumpTree(*sub.second, depth + 1);
  }
  return out;
}

// root: a.cmf b.py c.pl notes.txt .hidden.cmf, Global/{g.cmf, deep/{d.cmf}}, Map/{m.cmf}, .git/{x.cmf}
std::string makeTree(const std::string& name) {
  const std::string root = scratch(name);
  for (const char* f : {"/a.cmf", "/b.py", "/c.pl", "/notes.txt", "/.hidden.cmf"}) writeFile(root + f, "x");
  for (const char* d : {"/Global", "/Global/deep", "/Map", "/.git"}) platform::makeDir(root + d);
  for (const char* f : {"/Global/g.cmf", "/Global/deep/d.cmf", "/Map/m.cmf", "/.git/x.cmf"}) writeFile(root + f, "x");
  return root;
}

// The scans of tests/data/notes/trees.txt.
TEST(DesignNoteParserTreeTest, ScansFindTheTreeTheirCaseSays) {
  const std::string root = makeTree("tree-scan");
  for (const testsupport::Case& c : testsupport::readCases("notes/trees.txt")) {
    const DesignNoteParser::NameSet folders{c.get("folders")}, names{c.get("names")};
    UIVariableForDR ui;
    ui.setRootPath(c.get("ui root"));
    DesignNoteParser tree(root, c.has("ui root") ? &ui : nullptr, true, c.has("folders") ? &folders : nullptr,
                          c.has("names") ? &names : nullptr);
    EXPECT_EQ(dumpTree(tree), c["tree"]) << c.where();
    EXPECT_EQ(tree.getRootDirct(), root + c["root"]) << c.where();
  }
}

}  // namespace
