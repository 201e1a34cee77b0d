// TypedTextReader: configuration text read the way the device reads text
// pasted at its console.
//
// A stored configuration is replayed word for word (getCmdInfo); what people
// type is not: keywords and interface types are abbreviated and written in
// any case (`int Gi0/1`, `no shut`), and the text steers the terminal with
// `configure terminal`, `exit`, `exit-address-family`, `end` and `do`. This
// reader walks such text on a terminal in CLI mode that links every command
// to the command of its mode, so an abbreviated line yields the very record
// (grammar path, canonical text, level, parent) that the full words yield.
// Lines that steer the terminal, comments and blank lines become CMD_TEXT
// records; they are no commands. A refused line still gets its record
// without a path (as getCmdInfo gives one) and is listed with its position.
//
// Where a short interface type names several types (`Po1`: port-channel and
// pos), a refused line is read once more with the type the device prefers
// (InterfaceTypeOrder).
//
// Records belong to the caller (all levels are returned, as by getCmdInfo).
// Readings on different threads may run at once (each has its own terminal).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Export.h"

namespace qxparser {

class CiscoCommandLine;

// A line the device would refuse, or one it would read otherwise than written
// (a NUL byte read as a blank). The line number counts the non-empty lines of
// the text, as the records' line numbers do.
struct RefusedLine {
  int lineNo = 0;
  std::string text;       // the line as written
  size_t position = 0;    // byte offset of the word where the walk stopped
  std::string message;    // the terminal's answer, such as "% Invalid input detected at ^"
};

class VTYCONF_API TypedTextReader {
 public:
  // Reads `text`; appends one record per non-empty line to `commands` and
  // every refused line to `refused`. True when no line was refused.
  static bool read(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                   std::vector<RefusedLine>& refused);
  // The same for text whose indent is its level (one blank per level, as the
  // library's writers write): a line indented less than the mode it follows
  // leaves that mode first, as an "exit" would, so every line stands at the
  // level written and not where a climb from the level before would find it.
  static bool readByIndent(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                           std::vector<RefusedLine>& refused);
  // The same as read, with the records handed over a block at a time and
  // then freed: `take` gets the records of all levels read since its last
  // call, in reading order, whenever no mode that could take more of them is
  // open (and the rest at the end). For callers that look at each record once
  // (counts, checks, a listing) and need not hold a large text's records.
  static bool readInBlocks(const std::string& text, std::vector<RefusedLine>& refused,
                           const std::function<void(const std::vector<CiscoCommandLine*>&)>& take);
  // The same, on a terminal named `hostName`, also giving for every record
  // the prompt at which its line was typed ("R1(config-if)#").
  static bool readWithPrompts(const std::string& text, const std::string& hostName,
                              std::vector<CiscoCommandLine*>& commands, std::vector<RefusedLine>& refused,
                              std::vector<std::string>& prompts);

};

}  // namespace qxparser
