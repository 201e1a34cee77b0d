// DRCheck: a fast, shallow check of the delimiters of a design script.
//
// It does not parse the language. One pass over the text keeps a stack of what
// is open (braces, square brackets, parentheses and the parts of an `if`) and
// writes its findings into a message text; the script has passed exactly when
// getErrStr() is empty. syntaxCheck() itself always returns true.
//
// A DRCheck is for one use: build it on a text, call syntaxCheck once, then read
// getErrStr as often as wanted. It owns a work copy of the text, into which
// characters are pushed back, and its stack.
//
// Threading: the error and warning counts that limit how many messages one
// check writes are process-wide and carry over from one check to the next (a
// check that found anything leaves the error count at 1, so the next check can
// tell eight errors, not nine). Only one check may run at a time in a process.
#pragma once

#include <array>
#include <memory>
#include <sstream>
#include <string>

#include "platform/Export.h"

class VTYCONF_API DRCheck {
 public:
  // Stack entry types; delimiters are named in messages by their closer.
  enum BrakType {
    BrakNone = 0,
    BrakBrace = 1,
    BrakSquare = 2,
    BrakParen = 3,
    BrakIf = 4,
    BrakIfCondition = 5,
    BrakWhileCondition = 6,  // known to the messages, pushed by no path
    BrakThen = 7,
    BrakElse = 8,
  };

  explicit DRCheck(const std::string& text);
  DRCheck(const DRCheck&) = delete;
  DRCheck& operator=(const DRCheck&) = delete;

  bool syntaxCheck();
  std::string getErrStr();

  // The next character with comments and white space reduced: a comment or a
  // run of blanks gives one blank, a run of line ends (with the blanks between
  // them) one LF. 0 at the end of the text, and again on every later call.
  int getChar();
  // Pushes c back in front of the cursor (an LF as a blank when toBlank is
  // true). Pushing back 0, the end of the text, changes nothing.
  void ungetChar(int c, bool toBlank);

  static constexpr int kStackSize = 64;

 private:
  struct Entry {
    int type;
    int value;  // always 0
    int line;
  };

  bool newBrak(int type);
  bool rmBrak(int count);
  bool checkCloser(int type);
  bool checkElse();
  int dealError(int kind);
  std::string getStrForBrakType(int type);

  // Reads one byte without any reduction; never moves past the end of the text.
  int rawChar();
  // The entry at a level; levels at kStackSize and above hold nothing and read
  // as a zero entry.
  const Entry& entryAt(int level) const;
  const Entry& top() const { return entryAt(mDepth); }
  void pop() { rmBrak(1); }
  int& countFor(int type);
  void wordStart();
  void ifStatement();
  void assignment();
  void quotedString();
  void charConstant();
  void endOfStatement();

  int mTextLength;
  int mLine;
  int mColumn;  // kept up to date, never read
  char* mCursor;
  std::unique_ptr<char[]> mWork;
  int mDepth;
  std::unique_ptr<std::array<Entry, kStackSize>> mStack;
  int mBraces;
  int mSquares;
  int mParens;
  bool mErrorSeen;
  bool mWarningSeen;
  std::ostringstream mMessages;
};
