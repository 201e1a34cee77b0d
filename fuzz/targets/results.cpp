// A result file read back into a result tree.
#include <map>

#include "FuzzSupport.h"
#include "results/DRResultTree.h"

namespace {

size_t countLines(const DRResultTree* tree) {
  if (!tree) return 0;
  size_t n = 0;
  for (const LineFormat* line : tree->getLines()) n += 1 + countLines(line->mChildren);
  return n;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text = fuzzsupport::asText(data, size);
  const std::string path = fuzzsupport::writeTemp("fuzz_result.txt", text);
  DRResultTree tree(path);
  std::map<int, std::string> lines;
  tree.getAllLines(lines);
  tree.dump();

  // Every line of the file lands in the tree exactly once; only an empty line
  // that ends a group of a negative limit may fall out between two levels.
  size_t fileLines = 0, nonEmptyLines = 0;
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    ++fileLines;
    // CR LF arrives as LF: a line of one CR before its LF is empty.
    const bool crOnly = end == start + 1 && text[start] == '\r' && end < text.size();
    if (end > start && !crOnly) ++nonEmptyLines;
    start = end + 1;
  }
  const size_t treeLines = countLines(&tree);
  if (treeLines > fileLines || treeLines < nonEmptyLines) {
    fuzzsupport::fail("result tree holds " + std::to_string(treeLines) + " lines of a file of " +
                      std::to_string(fileLines) + " (" + std::to_string(nonEmptyLines) + " not empty)");
  }
  return 0;
}
