#include "NoteOutput.h"

#include "results/DRResultTree.h"

namespace vtycli {

std::string indentedTree(const DRResultTree& tree, int depth) {
  std::string out;
  for (const LineFormat* line : tree.getLines()) {
    if (line == nullptr) continue;
    out += std::string(static_cast<std::size_t>(depth) * 2, ' ');
    if (line->mLineNumber > 0) out += std::to_string(line->mLineNumber) + ": ";
    out += line->mText;
    out += "\n";
    if (line->mChildren != nullptr) out += indentedTree(*line->mChildren, depth + 1);
  }
  return out;
}

}  // namespace vtycli
