#include "results/SyntaxStringBuilder.h"

#include "results/DRResultTree.h"

namespace results {

namespace {

const char kBlockEnd[] = "!\r\n";

bool endsWith(const std::string& text, const std::string& tail) {
  return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

}  // namespace

bool buildSyntaxStringFromTree(const DRResultTree* tree, int depth, std::string& text,
                               std::list<int>& closeLines, int& lineCounter) {
  if (tree == nullptr) return false;
  const DRResultTree::LineList lines = tree->getLines();
  for (const LineFormat* line : lines) {
    if (line == nullptr) continue;
    bool numberedTop = depth == 0 && line->mLineNumber != -1;
    if (numberedTop && text.size() > 3 && !endsWith(text, kBlockEnd)) text += kBlockEnd;
    text += line->mText;
    text += "\r\n";
    ++lineCounter;
    if (depth == 0 && line->mTagKind == LineTagClose) closeLines.push_back(lineCounter);
    if (line->mChildren != nullptr) {
      buildSyntaxStringFromTree(line->mChildren, depth + 1, text, closeLines, lineCounter);
    }
    if (numberedTop) {
      text += kBlockEnd;
      ++lineCounter;
    }
  }
  return true;
}

}  // namespace results
