// The delimiter check walks the script once. getChar reduces comments and white
// space, the main loop of syntaxCheck pushes and pops stack entries, and a few
// small readers (word start, `if`, `else`, strings, character constants) look
// ahead and push what they read too far back into the work copy. Pushback only
// ever writes over a byte that was already read.
//
// Two guards go beyond the plain algorithm: the cursor never moves past the end
// of the text (a comment, string or constant that runs into it leaves every
// later read at the end), and levels at 64 and above, which are counted but
// never written, read as empty entries.
#include "results/DRCheck.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

#include "results/DRCheckCounters.h"

namespace drcheck_detail {

int& errorCount() {
  static int count = 0;
  return count;
}

int& warningCount() {
  static int count = 0;
  return count;
}

}  // namespace drcheck_detail

namespace {

constexpr int kWarning = 0;
constexpr int kError = 1;
constexpr int kFatal = 2;
constexpr int kMaxMessages = 9;

bool isAlnum(int c) { return c != 0 && std::isalnum(static_cast<unsigned char>(c)) != 0; }

bool isSpace(int c) { return c != 0 && std::isspace(static_cast<unsigned char>(c)) != 0; }

}  // namespace

DRCheck::DRCheck(const std::string& text)
    : mTextLength(static_cast<int>(text.size())),
      mLine(1),
      mColumn(0),
      mCursor(nullptr),
      mWork(new char[text.size() + 1]),
      mDepth(0),
      mStack(new std::array<Entry, kStackSize>()),
      mBraces(0),
      mSquares(0),
      mParens(0),
      mErrorSeen(false),
      mWarningSeen(false) {
  if (!text.empty()) std::memcpy(mWork.get(), text.data(), text.size());
  mWork[text.size()] = '\0';
  mCursor = mWork.get();
  mStack->fill(Entry{0, 0, 0});
}

std::string DRCheck::getErrStr() { return mMessages.str(); }

int DRCheck::rawChar() {
  int c = static_cast<unsigned char>(*mCursor);
  if (c != 0) ++mCursor;
  return c;
}

void DRCheck::ungetChar(int c, bool toBlank) {
  if (c == 0 || mCursor == mWork.get()) return;
  --mCursor;
  if (toBlank && c == '\n') c = ' ';
  *mCursor = static_cast<char>(c);
}

int DRCheck::getChar() {
  int c = rawChar();
  if (c == '!') {
    do {
      c = rawChar();
    } while (c != 0 && c != '\n');
    if (c == 0) return ' ';
    ++mLine;
    mColumn = 0;
    for (c = rawChar(); isSpace(c); c = rawChar()) {
      if (c == '\n') {
        ++mLine;
        mColumn = 0;
      } else if (c == '\t') {
        mColumn = (mColumn + 8) & ~7;
      } else {
        ++mColumn;
      }
    }
    ungetChar(c, false);
    return ' ';
  }
  if (c == ' ' || c == '\t') {
    do {
      c = rawChar();
    } while (c == ' ' || c == '\t');
    if (c != '\n') {
      ungetChar(c, false);
      return ' ';
    }
  }
  if (c == '\n') {
    ++mLine;
    mColumn = 0;
    for (c = rawChar(); c == ' ' || c == '\t' || c == '\n'; c = rawChar()) {
      if (c == ' ') {
        ++mColumn;
      } else if (c == '\t') {
        mColumn = (mColumn + 8) & ~7;
      } else {
        ++mLine;
        mColumn = 0;
      }
    }
    ungetChar(c, false);
    return '\n';
  }
  if (c != 0) ++mColumn;
  return c;
}

const DRCheck::Entry& DRCheck::entryAt(int level) const {
  static const Entry kEmpty{0, 0, 0};
  if (level < 0 || level >= kStackSize) return kEmpty;
  return (*mStack)[static_cast<size_t>(level)];
}

bool DRCheck::newBrak(int type) {
  if (type == BrakNone) {
    mDepth = 0;
    (*mStack)[0] = Entry{0, 0, 0};
    return true;
  }
  ++mDepth;
  if (mDepth >= kStackSize) {
    mMessages << "***stack overflow";
    return false;
  }
  (*mStack)[static_cast<size_t>(mDepth)] = Entry{type, 0, mLine};
  return true;
}

bool DRCheck::rmBrak(int count) {
  if (mDepth < count) return false;
  mDepth -= count;
  return true;
}

int& DRCheck::countFor(int type) {
  if (type == BrakBrace) return mBraces;
  if (type == BrakSquare) return mSquares;
  return mParens;
}

int DRCheck::dealError(int kind) {
  int& errors = drcheck_detail::errorCount();
  int& warnings = drcheck_detail::warningCount();
  if (kind == kFatal) {
    mErrorSeen = true;
    errors = 1;
    return 1;
  }
  if (kind == kError) {
    mErrorSeen = true;
    if (errors < 0) return 0;
    if (errors < kMaxMessages) {
      ++errors;
      return 1;
    }
    errors = -1;
    mMessages << "Other error messages being suppressed.\n";
    return 0;
  }
  if (kind == kWarning) {
    mWarningSeen = true;
    if (warnings < 0) return 0;
    if (errors + warnings < kMaxMessages) {
      ++warnings;
      return 1;
    }
    warnings = -1;
    mMessages << "Further warning messages being suppressed.\n";
    return 0;
  }
  return 0;
}

std::string DRCheck::getStrForBrakType(int type) {
  switch (type) {
    case BrakBrace:
      return "}";
    case BrakSquare:
      return "]";
    case BrakParen:
      return ")";
    case BrakIf:
      return "if";
    case BrakIfCondition:
      return "if-condition";
    case BrakWhileCondition:
      return "while-condition";
    case BrakThen:
      return "then";
    case BrakElse:
      return "else";
    default:
      return "";
  }
}

bool DRCheck::checkCloser(int type) {
  if (top().type == type) {
    pop();
    return true;
  }
  int found = 0;
  for (int level = mDepth; level >= 1; --level) {
    if (entryAt(level).type == type) {
      found = level;
      break;
    }
  }
  if (found == 0) {
    --countFor(type);
    if (dealError(kError)) {
      mMessages << "Muddle detected at unmatched closing " << getStrForBrakType(type) << " line " << mLine
                << ".\n";
    }
    return true;
  }
  if (dealError(kError)) mMessages << "Missing closers detected line " << mLine << ".\n";
  for (int above = mDepth - found; above > 0; --above) {
    const Entry entry = top();
    if (dealError(kError)) {
      mMessages << "\tMissing closing " << getStrForBrakType(entry.type) << " opened line " << entry.line
                << ".\n";
    }
    if (entry.type == BrakBrace || entry.type == BrakSquare || entry.type == BrakParen)
      ++countFor(entry.type);
    pop();
  }
  pop();
  return true;
}

bool DRCheck::checkElse() {
  int c;
  do {
    c = getChar();
  } while (c == ' ' || c == '\n');
  if (c == 'e') {
    c = getChar();
    if (c == 'l') {
      c = getChar();
      if (c == 's') {
        c = getChar();
        if (c == 'e') {
          c = rawChar();
          if (!isAlnum(c)) {
            ungetChar(c, false);
            if (top().type == BrakThen && mDepth >= 1) pop();
            if (top().type == BrakIf && mDepth >= 1) pop();
            newBrak(BrakElse);
            return true;
          }
        }
      }
    }
  }
  // Only the last character read comes back; a partial "els" is lost.
  ungetChar(c, true);
  ungetChar(' ', false);
  if (top().type != BrakIf) return true;
  pop();
  while (top().type == BrakElse && mDepth > 0) pop();
  if (top().type == BrakThen && mDepth > 0) {
    pop();
    checkElse();
  }
  return true;
}

void DRCheck::endOfStatement() {
  while (top().type == BrakElse && mDepth > 0) pop();
  if (top().type == BrakThen && mDepth > 0) {
    pop();
    checkElse();
  }
}

void DRCheck::wordStart() {
  int c = getChar();
  if (c == 'e') {
    ungetChar(c, false);
    checkElse();
    return;
  }
  if (c == 'i') {
    c = getChar();
    if (c == 'f') {
      c = rawChar();
      if (!isAlnum(c)) {
        ungetChar(c, false);
        ifStatement();
        return;
      }
    }
  }
  ungetChar(c, true);
}

void DRCheck::ifStatement() {
  newBrak(BrakIf);
  int c;
  do {
    c = getChar();
  } while (c == ' ' || c == '\n');
  if (c == '(') {
    // The "(" goes back so that the main loop pushes its BrakParen on top of
    // the condition: a well-formed condition stands as if, if-condition, ).
    newBrak(BrakIfCondition);
    ungetChar(c, false);
    return;
  }
  if (dealError(kError)) mMessages << "Bad if (no condition) line " << mLine << ".\n";
  pop();
  ungetChar(c, false);
}

void DRCheck::assignment() {
  if (mDepth < 1) return;
  int below = entryAt(mDepth - 1).type;
  if (below != BrakIfCondition && below != BrakWhileCondition) return;
  int c = getChar();
  if (c == '=') return;
  ungetChar(c, true);
  if (dealError(kError)) mMessages << "Assignment instead of equals in conditional, line " << mLine << ".\n";
}

void DRCheck::quotedString() {
  bool complained = false;
  for (;;) {
    int c = rawChar();
    if (c == 0) {
      if (dealError(kFatal)) mMessages << "*Error: '\"' quoted string not ended by end of file.\n";
      return;
    }
    if (c == '\n') {
      if (!complained && dealError(kFatal)) {
        mMessages << "*Error: '\"' quoted string not ended by line " << mLine << ".\n";
      }
      complained = true;
      ++mLine;
    } else if (c == '\\') {
      rawChar();
    } else if (c == '"') {
      return;
    }
  }
}

void DRCheck::charConstant() {
  int c = rawChar();
  if (c == '\'') return;
  if (c == '\\') {
    c = rawChar();
    if (std::isdigit(c) && c != 0) {
      for (int more = 0; more < 2; ++more) {
        c = rawChar();
        if (!(std::isdigit(c) && c != 0)) break;
      }
    } else {
      c = rawChar();
    }
  } else {
    c = rawChar();
  }
  if (c != '\'') ungetChar(c, false);
}

bool DRCheck::syntaxCheck() {
  for (int c = getChar(); c != 0; c = getChar()) {
    switch (c) {
      case '\n':
      case ' ':
        wordStart();
        break;
      case '"':
        quotedString();
        break;
      case '\'':
        charConstant();
        break;
      case '(':
        newBrak(BrakParen);
        break;
      case '[':
        newBrak(BrakSquare);
        break;
      case '{':
        newBrak(BrakBrace);
        break;
      case ')':
        checkCloser(BrakParen);
        if (top().type == BrakIfCondition) {
          pop();
          newBrak(BrakThen);
        } else if (top().type == BrakWhileCondition && mDepth > 0) {
          pop();
        }
        break;
      case ']':
        checkCloser(BrakSquare);
        break;
      case '}':
        checkCloser(BrakBrace);
        endOfStatement();
        break;
      case ';':
        ungetChar(' ', false);
        endOfStatement();
        break;
      case '=':
        assignment();
        break;
      default:
        break;
    }
  }

  while (mDepth > 0) {
    const Entry entry = top();
    mMessages << "*Unclosed parenthesis at EOF: " << getStrForBrakType(entry.type) << " opened on line "
              << entry.line << ".\n";
    if (entry.type == BrakBrace || entry.type == BrakSquare || entry.type == BrakParen)
      ++countFor(entry.type);
    pop();
  }

  bool imbalance = mBraces != 0 || mSquares != 0 || mParens != 0;
  if (!imbalance && !mErrorSeen) return true;
  mErrorSeen = true;
  drcheck_detail::errorCount() = 1;
  mMessages << "Summary:\n";
  // Surplus closers are told as "too few" with 0: that is the wording of the
  // message, kept as callers know it.
  const struct {
    int count;
    const char* what;
  } lines[] = {{mBraces, " braces.\n"}, {mSquares, " square brackets.\n"}, {mParens, " parentheses.\n"}};
  for (const auto& line : lines) {
    if (line.count != 0)
      mMessages << std::abs(line.count) << " too few " << (line.count > 0 ? "1" : "0") << line.what;
  }
  if (mErrorSeen && !imbalance) mMessages << "\tPossible error(s), but no net delimiter imbalance.\n";
  return true;
}
