#include "LineDiff.h"

#include <sstream>
#include <vector>

namespace vtycli {
namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) lines.push_back(line);
  return lines;
}

struct DiffLine {
  char mark;  // ' ', '-' or '+'
  std::string text;
};

std::vector<DiffLine> align(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  const size_t n = a.size();
  const size_t m = b.size();
  // common[i][j]: length of the longest common subsequence of a[i..] and b[j..].
  std::vector<std::vector<unsigned>> common(n + 1, std::vector<unsigned>(m + 1, 0));
  for (size_t i = n; i-- > 0;) {
    for (size_t j = m; j-- > 0;) {
      common[i][j] = a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  std::vector<DiffLine> out;
  size_t i = 0;
  size_t j = 0;
  while (i < n || j < m) {
    if (i < n && j < m && a[i] == b[j]) {
      out.push_back({' ', a[i]});
      ++i;
      ++j;
    } else if (i < n && (j == m || common[i + 1][j] >= common[i][j + 1])) {
      out.push_back({'-', a[i++]});
    } else {
      out.push_back({'+', b[j++]});
    }
  }
  return out;
}

}  // namespace

std::string unifiedDiff(const std::string& before, const std::string& after, int context) {
  const std::vector<DiffLine> lines = align(linesOf(before), linesOf(after));
  const long count = static_cast<long>(lines.size());
  std::vector<bool> shown(lines.size(), false);
  for (long k = 0; k < count; ++k) {
    if (lines[static_cast<size_t>(k)].mark == ' ') continue;
    for (long c = std::max(0L, k - context); c <= std::min(count - 1, k + context); ++c) shown[static_cast<size_t>(c)] = true;
  }
  std::string out;
  bool gap = false;
  for (size_t k = 0; k < lines.size(); ++k) {
    if (!shown[k]) {
      gap = true;
      continue;
    }
    if (gap && !out.empty()) out += "...\n";
    gap = false;
    out += lines[k].mark == ' ' ? std::string("  ") : std::string(1, lines[k].mark) + " ";
    out += lines[k].text;
    out += "\n";
  }
  return out;
}

}  // namespace vtycli
