// The folder tree of scripts: scanning with and without filters and UI
// variables, the add and delete operations, and path lookup.
#include <gtest/gtest.h>

#include <memory>

#include "NoteTestSupport.h"
#include "support/CaseFile.h"
#include "notes/DRScriptFile.h"
#include "notes/DesignNoteParser.h"
#include "results/UIVariableForDR.h"

using notestest::exists;
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

TEST(DesignNoteParserTreeTest, OneTrailingSeparatorIsDropped) {
  const std::string root = makeTree("tree-sep");
  EXPECT_EQ(DesignNoteParser(root + "/", nullptr, false).getRootDirct(), root);
  EXPECT_EQ(DesignNoteParser(root + "//", nullptr, false).getRootDirct(), root + "/");
  EXPECT_TRUE(DesignNoteParser(root, nullptr, false).getScriptFiles().empty()) << "no scan, no reading";
  DesignNoteParser missing(root + "/none");
  EXPECT_TRUE(missing.getScriptFiles().empty());
  EXPECT_TRUE(missing.getSubDirects().empty());
}

TEST(DesignNoteParserTreeTest, UiRootPathIsTakenWithoutAScan) {
  const std::string root = makeTree("tree-ui");
  UIVariableForDR ui;
  ui.setRootPath("Global");
  EXPECT_EQ(DesignNoteParser(root, &ui, false).getRootDirct(), root + "/Global");
}

TEST(DesignNoteParserTreeTest, AddAndDeleteChangeDiskAndTree) {
  const std::string root = scratch("tree-add");
  DesignNoteParser tree(root);
  EXPECT_TRUE(tree.addScriptFile("n.cmf", "#x = search_line(\"a\", all);\n", "desc"));
  EXPECT_TRUE(exists(root + "/n.cmf"));
  EXPECT_TRUE(exists(root + "/n.pl"));
  EXPECT_FALSE(DRScriptFile(root + "/n.cmf").isFavourite()) << "a new script starts as no favourite: intended";
  EXPECT_FALSE(tree.addScriptFile("n.cmf", "other", "")) << "already listed";
  EXPECT_FALSE(tree.addScriptFile("e.cmf", "", ""));
  EXPECT_FALSE(tree.addScriptFile("n.txt", "x", ""));
  EXPECT_TRUE(tree.addScriptFile("p.py", "x", ""));
  EXPECT_FALSE(exists(root + "/p.py")) << "the caller provides the Python file";

  EXPECT_TRUE(tree.addSubDirect("sub"));
  EXPECT_FALSE(tree.addSubDirect("sub"));
  EXPECT_FALSE(tree.addSubDirect(""));
  EXPECT_TRUE(Pathname(root + "/sub").isDirectory());
  EXPECT_EQ(dumpTree(tree), "n.cmf\np.py\nsub/\n");

  EXPECT_TRUE(tree.delScriptFile("n.cmf"));
  EXPECT_FALSE(exists(root + "/n.cmf"));
  EXPECT_TRUE(exists(root + "/n.pl")) << "side files stay";
  EXPECT_FALSE(tree.delScriptFile("n.cmf"));
  EXPECT_TRUE(tree.delSubDirect("sub"));
  EXPECT_FALSE(exists(root + "/sub"));
  EXPECT_FALSE(tree.delSubDirect("sub"));
}

TEST(DesignNoteParserTreeTest, ScriptFullPath) {
  const std::string root = scratch("tree-path");
  writeFile(root + "/pl.pl", "x");
  writeFile(root + "/both.cmf", "x");
  writeFile(root + "/both.py", "x");
  writeFile(root + "/f.txt", "x");
  DesignNoteParser tree(root);
  const std::pair<std::string, std::string> rows[] = {
      {"x.cmf", root + "/x.cmf"},  // an extension: no check
      {"f.txt", root + "/f.txt"},  {"g.txt", ""},
      {"pl", root + "/pl.pl"},     {"both", root + "/both.cmf"},
      {"none", root + "/none.cmf"},  // nothing on disk: the .cmf path all the same
  };
  for (const auto& row : rows) EXPECT_EQ(tree.getScriptFileFullPath(row.first), row.second) << row.first;
}

}  // namespace
