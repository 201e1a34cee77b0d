#include "ConsoleCaret.h"

namespace vtycli {

std::string caretLine(size_t column) { return std::string(column, ' ') + "^\n"; }

std::string withCaretLine(const std::string& shown, size_t column) {
  // The message starts a line: the finished line's own newline precedes it.
  const size_t at = shown.find("\n% Invalid input detected");
  if (at == std::string::npos || column == std::string::npos) return shown;
  std::string out = shown;
  out.insert(at + 1, caretLine(column));
  return out;
}

}  // namespace vtycli
