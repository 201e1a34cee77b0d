#include "results/DRResultTree.h"

#include <climits>
#include <cstdlib>
#include <fstream>
#include <memory>

#include "platform/PlatformOs.h"
#include "platform/StlHelper.h"

namespace {

const char kNumberMark[] = ":::";
const char kTagOpen[] = "!#tag#";
const char kTagClose[] = "!#tag_close#";
const char kLineNumbers[] = "#LineNumbers#";
constexpr size_t kLineNumbersLength = sizeof(kLineNumbers) - 1;

// atoi without its undefined behaviour: leading white space, an optional sign,
// digits; out-of-range values are clamped to int.
int toInt(const std::string& text) {
  long long value = std::strtoll(text.c_str(), nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

int addClamped(int a, int b) {
  long long sum = static_cast<long long>(a) + b;
  if (sum > INT_MAX) return INT_MAX;
  if (sum < INT_MIN) return INT_MIN;
  return static_cast<int>(sum);
}

// One line of a text stream: CR LF on disk is LF in memory, so the CR in front
// of a line end is dropped.
bool readLine(std::istream& in, std::string& line) {
  if (!std::getline(in, line)) return false;
  if (!in.eof() && !line.empty() && line.back() == '\r') line.pop_back();
  return true;
}

}  // namespace

LineFormat::LineFormat(const std::string& line) {
  std::string work = line.substr(0, line.find('\0'));
  for (char& c : work) {
    if (c == '\x08') c = ' ';
  }
  size_t mark = work.find(kNumberMark);
  if (mark == std::string::npos) {
    mText = work;
    return;
  }
  mLineNumber = toInt(work.substr(0, mark));
  std::string rest = work.substr(mark + 3);

  bool hasCount = rest.find(kLineNumbers) != std::string::npos;
  size_t at = rest.find(kTagClose);
  size_t markerLength = 0;
  if (at != std::string::npos && hasCount) {
    mTagKind = LineTagClose;
    markerLength = sizeof(kTagClose) - 1;
  } else {
    at = rest.find(kTagOpen);
    if (at == std::string::npos || !hasCount) {
      mText = rest;
      return;
    }
    mTagKind = LineTagOpen;
    markerLength = sizeof(kTagOpen) - 1;
  }

  // The byte in front of the marker separates it from the text and is dropped;
  // a marker at the very start has no such byte, and the text keeps it all.
  mText = at == 0 ? rest : rest.substr(0, at - 1);
  size_t behind = at + markerLength;
  size_t count = rest.find(kLineNumbers, behind);
  std::string tag = rest.substr(behind, count == std::string::npos ? std::string::npos : count - behind);
  if (!tag.empty()) mText += " !" + tag;
  // With no "#LineNumbers#" behind the marker the count position wraps round
  // to 12, the place just short of a leading "#LineNumbers#".
  size_t countAt = count == std::string::npos ? kLineNumbersLength - 1 : count + kLineNumbersLength;
  mLineCount = countAt < rest.size() ? toInt(rest.substr(countAt)) : 0;
}

LineFormat::~LineFormat() { delete mChildren; }

DRResultTree::DRResultTree(const std::string& path) { genResultTree(path); }

DRResultTree::~DRResultTree() {
  for (LineFormat* line : mLines) delete line;
}

bool DRResultTree::genResultTree(const std::string& path) {
  if (platform::access(path, 0) != 0) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in) return false;
  std::string buffer;
  for (;;) {
    if (buffer.empty() && !readLine(in, buffer)) break;
    auto line = std::make_unique<LineFormat>(buffer);
    buffer.clear();
    if (line->mTagKind == LineTagOpen || line->mTagKind == LineTagClose) {
      line->mChildren =
          genResultTree(in, buffer, addClamped(line->mLineNumber, line->mLineCount), line->mLineCount);
    }
    mLines.push_back(line.release());
  }
  return true;
}

DRResultTree* DRResultTree::genResultTree(std::istream& in, std::string& buffer, int limit, int count) {
  if (in.bad() || count < 1) return nullptr;
  std::unique_ptr<DRResultTree> tree(new DRResultTree());
  int taken = 0;
  for (;;) {
    // A line handed back by a deeper group is taken even when the count is
    // reached: the count is only looked at before reading a new line.
    if (buffer.empty()) {
      if (taken >= count) return tree.release();
      if (!readLine(in, buffer)) return tree.release();
    }
    ++taken;
    auto line = std::make_unique<LineFormat>(buffer);
    if (line->mLineNumber > limit) return tree.release();
    buffer.clear();
    if (line->mTagKind == LineTagOpen || line->mTagKind == LineTagClose) {
      line->mChildren =
          genResultTree(in, buffer, addClamped(line->mLineNumber, line->mLineCount), line->mLineCount);
    }
    tree->mLines.push_back(line.release());
  }
}

void DRResultTree::getAllLines(std::map<int, std::string>& lines) const {
  for (const LineFormat* line : mLines) {
    if (line == nullptr) continue;
    if (line->mLineNumber > 0) lines.emplace(line->mLineNumber, line->mText);
    if (line->mChildren != nullptr) line->mChildren->getAllLines(lines);
  }
}

std::string DRResultTree::dump() const {
  std::string out;
  dumpInto(out, 0);
  return out;
}

void DRResultTree::dumpInto(std::string& out, int depth) const {
  for (const LineFormat* line : mLines) {
    out.append(static_cast<size_t>(depth) * 2, ' ');
    out += std::to_string(line->mLineNumber) + "|" + std::to_string(line->mLineCount) + "|" +
           std::to_string(line->mTagKind) + "|" + line->mText + "\n";
    if (line->mChildren != nullptr) {
      line->mChildren->dumpInto(out, depth + 1);
    } else if (line->mTagKind != LineTagNone) {
      out.append(static_cast<size_t>(depth + 1) * 2, ' ');
      out += "(no children)\n";
    }
  }
}
