// DRResultTree and LineFormat: the result of a design-note run, read back from
// the result file that the note's program wrote.
//
// Every line of the file has one of four forms: any text without ":::"
// (unnumbered), "N:::T" (plain), or "N:::T" followed by one separating byte and
// "!#tag#A#LineNumbers#K" (open tag) or "!#tag_close#A#LineNumbers#K" (closed
// tag). A tagged line owns the lines that follow it while their numbers stay
// within N + K, and at most K of them; groups nest by the same rule.
//
// Ownership: a tree owns its LineFormat lines, a line owns its subordinate tree
// (mChildren, null when it has none). Neither is copyable. A tree is complete
// when its constructor returns and is never changed afterwards, so a finished
// tree may be read from several threads.
#pragma once

#include <istream>
#include <map>
#include <string>
#include <vector>

#include "platform/Export.h"

class DRResultTree;

// Tag kinds of a result line.
enum LineTagKind {
  LineTagNone = 0,
  LineTagOpen = 1,   // "!#tag#"
  LineTagClose = 2,  // "!#tag_close#"
};

// One line of a result: a plain record whose fields its readers use directly.
class VTYCONF_API LineFormat {
 public:
  // Parses one result line (without its line end). Text that fits no form is
  // taken as an unnumbered or plain line; parsing cannot fail.
  explicit LineFormat(const std::string& line);
  ~LineFormat();
  LineFormat(const LineFormat&) = delete;
  LineFormat& operator=(const LineFormat&) = delete;

  std::string mText;
  int mLineNumber = -1;  // the number in front of ":::", -1 when there is none
  int mLineCount = 0;    // the number behind "#LineNumbers#"
  int mTagKind = LineTagNone;
  DRResultTree* mChildren = nullptr;  // owned
};

class VTYCONF_API DRResultTree {
 public:
  using LineList = std::vector<LineFormat*>;

  // Reads the result file at path; a missing or unreadable file gives an empty
  // tree.
  explicit DRResultTree(const std::string& path);
  ~DRResultTree();
  DRResultTree(const DRResultTree&) = delete;
  DRResultTree& operator=(const DRResultTree&) = delete;

  // The top level of this tree.
  const LineList& getLines() const { return mLines; }
  // Adds the number and text of every numbered line (number above 0) of this
  // tree, depth first, to lines. Existing entries are kept, so gathering
  // several trees into one map keeps the first text of each number.
  void getAllLines(std::map<int, std::string>& lines) const;
  // True when the top level holds no line.
  bool isEmpty() const { return mLines.empty(); }

  // A canonical text of the tree for tests and tools: one line for each
  // LineFormat, indented by two blanks per level, as
  // "<number>|<count>|<kind>|<text>", with "(no children)" under a tagged line
  // whose group is null.
  std::string dump() const;

 private:
  DRResultTree() = default;

  bool genResultTree(const std::string& path);
  // Reads one group of at most count lines numbered up to limit. A line that
  // lies beyond the limit stays in buffer for the level above. Returns null
  // for a count below 1 or a stream gone bad; the caller owns the result.
  static DRResultTree* genResultTree(std::istream& in, std::string& buffer, int limit, int count);
  void dumpInto(std::string& out, int depth) const;

  LineList mLines;
};
