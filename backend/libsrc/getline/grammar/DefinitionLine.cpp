#include "grammar/DefinitionLine.h"

#include "toolkit/ToolkitText.h"

namespace qxparser {

namespace {

constexpr std::string_view kBlankField = " ";

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Each byte as the first four fields read it: lower-cased as
// ParserToolCase::string2Lower does, a tab as a blank.
struct FieldBytes {
  char map[256];
  FieldBytes() {
    for (int i = 0; i < 256; ++i) map[i] = toolkit_detail::lowerChar(static_cast<char>(i));
    map[static_cast<unsigned char>('\t')] = ' ';
  }
};

const FieldBytes& fieldBytes() {
  static const FieldBytes bytes;
  return bytes;
}

}  // namespace

void DefinitionLine::cut(std::string_view line) {
  for (std::string_view& field : mFields) field = std::string_view();
  const std::size_t size = line.size();
  const char* in = line.data();
  std::size_t start = 0;
  while (start < size && isBlank(in[start])) ++start;
  if (start == size) return;

  // The links field runs from just past the last bar (or from the start when
  // there is none) to the end; a closing line ("!") has none and may carry
  // bars in its text.
  const bool closing = in[start] == '!';
  std::size_t leftEnd = size;
  if (!closing) {
    while (leftEnd > start && in[leftEnd - 1] != '|') --leftEnd;
  }
  mBuffer.resize(size);
  char* text = &mBuffer[0];
  for (std::size_t i = leftEnd; i < size; ++i) text[i] = in[i] == '\t' ? ' ' : in[i];
  if (!closing) mFields[4] = std::string_view(text + leftEnd, size - leftEnd);

  // The first four fields, each up to a bar, read in one pass: an empty
  // field counts only between two bars, and the text ends at a NUL.
  const char* map = fieldBytes().map;
  std::size_t field = 0;
  std::size_t pos = start;  // where the current field begins
  for (std::size_t i = start; i < leftEnd; ++i) {
    const char c = map[static_cast<unsigned char>(in[i])];
    text[i] = c;
    if (c != '|' && c != '\0') continue;
    if (i > pos) {
      mFields[field++] = std::string_view(text + pos, i - pos);
    } else if (c == '|' && pos > start) {
      mFields[field++] = kBlankField;
    }
    if (c == '\0' || field == 4) return;
    pos = i + 1;
  }
  if (pos < leftEnd) mFields[field] = std::string_view(text + pos, leftEnd - pos);
}

bool DefinitionLines::next(std::string_view& line) {
  if (mStream) {
    if (!std::getline(*mStream, mLine)) return false;
    line = mLine;
  } else {
    if (mDone) return false;
    const std::size_t end = mRest.find('\n');
    if (end == std::string_view::npos) {
      mDone = true;
      if (mRest.empty()) return false;
      line = mRest;
      mRest = std::string_view();
    } else {
      line = mRest.substr(0, end);
      mRest.remove_prefix(end + 1);
    }
  }
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return true;
}

}  // namespace qxparser
