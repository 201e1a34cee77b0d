// Internal to the library (not installed): a result tree turned back into one
// text, the work of DesignNoteParser::BuildSyntaxStringFromTree, which forwards
// its arguments here unchanged.
//
// Each numbered top-level line opens a block that holds the line and its
// subordinate lines and is closed by a line "!"; every line ends in CR LF.
// closeLines receives, for each top-level line with a closed tag, the one-based
// number of that line as counted by lineCounter. text, closeLines and
// lineCounter belong to the caller and are added to. The separator written in
// front of a block that follows an unnumbered line is not counted, so from then
// on the counter runs one line behind the text; callers rely on that count.
// Returns false only for a null tree.
#pragma once

#include <list>
#include <string>

class DRResultTree;

namespace results {

bool buildSyntaxStringFromTree(const DRResultTree* tree, int depth, std::string& text,
                               std::list<int>& closeLines, int& lineCounter);

}  // namespace results
