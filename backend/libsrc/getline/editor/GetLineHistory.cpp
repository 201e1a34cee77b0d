// History of GetLineData: a ring of the last lines and an optional history
// file that is cut back when it grows long.
//
// The ring has kHistSize slots; the slot at mHistLast always holds "" (the line
// being typed), so kHistSize - 1 lines can be recalled. The file is read and
// cut in the chunks that a C line reader with a fixed buffer would return (at
// most 255 bytes a line when loading, 511 when cutting), so a very long line
// counts as several.
#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "editor/GetLineData.h"

namespace {

constexpr const char* kSaveFailed = "\n*** Error: hist_save() failed on malloc\n";

// Cuts text into lines as fgets with a buffer of `size` bytes reads them.
std::vector<std::string> fgetsChunks(const std::string& text, std::size_t size) {
  std::vector<std::string> chunks;
  std::size_t at = 0;
  while (at < text.size()) {
    std::size_t n = 0;
    while (at + n < text.size() && n < size - 1) {
      n++;
      if (text[at + n - 1] == '\n') break;
    }
    chunks.push_back(text.substr(at, n));
    at += n;
  }
  return chunks;
}

bool readFile(const std::string& path, std::string& text) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  return true;
}

}  // namespace

void GetLineData::hist_init() {
  if (mHistFileLines != 0) return;
  for (auto& slot : mHist) slot.reset();
  mHist[0] = std::string();
  mHistPos = 0;
  mHistLast = 0;
}

std::string GetLineData::hist_save(const char* line) {
  try {
    std::string text(line);
    if (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
  } catch (const std::bad_alloc&) {
    gl_error(kSaveFailed);
  }
}

void GetLineData::Gl_histinit(const char* fileName) {
  mHistFileLines = 0;
  hist_init();
  if (fileName == nullptr || std::strcmp(fileName, "-") == 0) return;
  mHistFileName.assign(fileName, std::min<std::size_t>(std::strlen(fileName), 255));
  int count = 1;
  std::string text;
  if (readFile(mHistFileName, text)) {
    for (const std::string& line : fgetsChunks(text, 256)) {
      Gl_histadd(line.c_str());
      count++;
    }
  } else {
    std::ofstream create(mHistFileName, std::ios::binary);
  }
  mHistFileLines = count;
}

void GetLineData::Gl_histadd(const char* line) {
  const char* p = line;
  while (*p == ' ' || *p == '\t' || *p == '\n') p++;
  if (*p != '\0') {
    std::size_t len = std::strlen(line);
    if (len > 0 && line[len - 1] == '\n') len--;
    // A repeat of the line added last is not added again.
    if (!(mPrevLine.size() == len && mPrevLine.compare(0, len, line, len) == 0)) {
      mHist[mHistLast] = hist_save(line);
      mPrevLine = *mHist[mHistLast];
      mHistLast = (mHistLast + 1) % kHistSize;
      mHist[mHistLast] = std::string();

      if (mHistFileLines != 0) {
        std::ofstream out(mHistFileName, std::ios::binary | std::ios::app);
        if (out) {
          out << line << '\n';
          if (out.flush()) mHistFileLines++;
        }
      }
      if (mHistFileLines > kHistFileMax) {
        std::string text;
        if (readFile(mHistFileName, text)) {
          std::vector<std::string> chunks = fgetsChunks(text, 512);
          std::string rest;
          mHistFileLines = 1;
          for (std::size_t i = kHistTrimLines; i < chunks.size(); i++) rest += chunks[i];
          // The count is raised once, not for each line kept: the file is
          // allowed to grow by another 98 lines before it is cut again.
          if (chunks.size() > static_cast<std::size_t>(kHistTrimLines)) mHistFileLines++;
          std::ofstream out(mHistFileName, std::ios::binary | std::ios::trunc);
          out << rest;
        }
      }
    }
  }
  mHistPos = mHistLast;
}

const char* GetLineData::hist_next() {
  if (mHistPos != mHistLast) {
    mHistPos = (mHistPos + 1) % kHistSize;
    if (mHist[mHistPos]) return mHist[mHistPos]->c_str();
  }
  beep();
  return "";
}

const char* GetLineData::hist_prev() {
  int prev = (mHistPos - 1 + kHistSize) % kHistSize;
  if (mHist[mHistPos] && prev != mHistLast) {
    mHistPos = prev;
    if (mHist[mHistPos]) return mHist[mHistPos]->c_str();
  }
  beep();
  return "";
}
