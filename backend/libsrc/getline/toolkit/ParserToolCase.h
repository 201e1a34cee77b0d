// ParserToolCase: static tests of typed words against grammar tokens, and the
// cutting of command and definition-line text.
//
// A class of static members used as a namespace. Nothing here holds a tree or
// a terminal. Two things are shared by the whole process: the overwrite set
// read by getCmdFlag (filled by QxParserUtil::setOverwriteCmds), and the two
// timer values. splitString cuts by the rules of strtok (and so the parser's
// callers treat it as strtok-bound); the overwrite set and the timers are
// unguarded statics, so none of this may run on two threads at once.
//
// Required behaviour kept on purpose: isValidInput throws std::out_of_range
// ("invalid string position") for a value of only zeros typed into a numeric
// range such as <1-100>; nothing in the library catches it.
#pragma once

#include <list>
#include <set>
#include <string>
#include <vector>

#include "config/CiscoCommandLineFlag.h"
#include "platform/Export.h"

namespace qxparser {

struct ParserToolCasePeer;  // test access to the private checks

class VTYCONF_API ParserToolCase {
 public:
  // ---- token validation
  static bool isValidInput(const std::string& token, const std::string& input);
  static bool isNewValidInput(const std::string& token, const std::string& input);
  static bool isAnyValidInput(const std::string& token, const std::string& input);
  static bool isValidNumber(const std::string& value, const std::string& limit);
  static bool partialMatched(const std::string& token, const std::string& input);

  // ---- cutting of text
  static bool isPvFormStr(const std::string& text);
  static void getVarFromPvFormStr(const std::string& text, std::string& out);
  static std::string string2Lower(const std::string& text);
  static void divideString(const std::string& text, std::string& left, std::string& right);
  static void parseCmdLine(const std::string& line, std::string& a, std::string& b, std::string& c,
                           std::string& d, std::string& e);
  static void testOptionToken(const std::string& token, std::string& inner, bool& open, bool& close);
  static void splitString(const std::string& text, const std::string& separators, std::vector<std::string>& out);
  static void splitString(const std::string& text, const std::string& separators, std::list<std::string*>& out);

  // ---- command-text helpers
  static std::string cleanLine(const std::string& text);
  static std::string getFirstKey(const std::string& text);
  static std::string getKeyStr(const std::string& text);
  static std::string getVariableStr(const std::string& text);
  static std::string getWholeStr(const std::string& text);
  static void filterLines(const std::string& text, std::string& out);
  static CiscoCommandLineFlag getCmdFlag(const std::string& text);
  static bool isTheSameCmd(const std::string& a, const std::string& b, bool withNo);
  static void removeMore(std::string& text);
  static bool strInCmd(const std::string& text, const std::string& prefix);
  static std::string string2CutSpace(const std::string& text);
  static void getBothAclCmdsStr(std::string& first, std::string& second);
  static bool isIpACLWithNo(const std::string& text);
  static void timerStart();
  static void timerStop();
  static double elapsedTime();

  // The process-wide overwrite set: keys (getKeyStr) of commands that
  // overwrite their predecessor. Filled by QxParserUtil::setOverwriteCmds.
  static std::set<std::string>& overwriteCmds();

  static long startTime;
  static long stopTime;

 private:
  friend struct ParserToolCasePeer;

  static bool isValidRange(const std::string& token, const std::string& input);
  static bool isValidHexRange(const std::string& token, const std::string& input);
  static bool isValidTime(const std::string& input);
  static bool isDay(const std::string& input);
  static bool isMonth(const std::string& input);
  static bool isMAC(const std::string& input);
  static bool isStringNum(const std::string& text);
  static bool isStringHexNum(const std::string& text);
  static bool isStringOnlyHexNum(const std::string& text);
};

}  // namespace qxparser
