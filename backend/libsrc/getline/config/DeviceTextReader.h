// DeviceTextReader: a configuration read so that it can be written back as
// the device shows it.
//
// The text is read as the device reads pasted text (TypedTextReader:
// abbreviations, mode exits), and every record gets the line it was read
// from (CiscoCommandLine::setRawText, by attachRawText). In addition the
// lines that carry data rather than commands are kept with the command they
// belong to, as its children: the body of a multi-line banner (closing line
// included, empty lines inside kept) with the banner command, and the data
// lines behind a command that takes data (certificate hex, public key data)
// with that command. Reading a configuration (`keepRefused`), any other line
// refused inside a mode stays with the command read before it too, so that it
// comes back where it stood; in a change set such a line is dropped, as the
// device drops it. Comment lines ("!", blank-only lines, "end") stay level-0
// records of their own, placed by their line numbers.
//
// The caller owns the records appended to `commands` (level 0 only; the rest
// hang below them) and frees them with QxParserUtil::deleteCommands. Same
// threading rule as every reading operation: readings on different threads may
// run at once.
#pragma once

#include <string>
#include <vector>

#include "config/CiscoCommandLine.h"
#include "config/TypedTextReader.h"
#include "platform/Export.h"

namespace qxparser {

class TextLines;

class VTYCONF_API DeviceTextReader {
 public:
  // Reads `text`; appends the level-0 records, and the refused lines to
  // `refused` when it is given. True when no line was refused.
  // `byIndent`: the text is one of the library's own writings, whose indent
  // is each line's level (TypedTextReader::readByIndent).
  static bool read(const std::string& text, std::vector<CiscoCommandLine*>& commands,
                   std::vector<RefusedLine>* refused = nullptr, bool keepRefused = true, bool byIndent = false);

  // The steps of `read` after the walk: `all` is a typed reading of `text`
  // (all levels, in line order, as TypedTextReader::read gives it). Its
  // level-0 records are appended to `commands`, which owns them from then on;
  // records that nobody holds are freed, and `all` is emptied.
  static void settle(const std::string& text, std::vector<CiscoCommandLine*>& all,
                     std::vector<CiscoCommandLine*>& commands, bool keepRefused = true);

  // The same without copies of the lines: the records keep no raw text (but
  // for the lines of a banner's text that had empty lines before them, which
  // keep those), and each line is found in `lines`, the lines of the text
  // that `all` was read from. For a reading that only looks lines up once it
  // is settled (ReadingSketch), and so needs none of its own.
  static void settleByLines(const TextLines& lines, std::vector<CiscoCommandLine*>& all,
                            std::vector<CiscoCommandLine*>& commands, bool keepRefused = true);

  // Gives each record of `records` (all levels, as getCmdInfo returned them
  // for `text`) the line it was read from.
  static void attachRawText(const std::string& text, const std::vector<CiscoCommandLine*>& records);

  // Moves banner bodies and lines refused inside a mode below the command
  // they belong to (see above); `records` as for attachRawText.
  static void attachDataLines(const std::vector<CiscoCommandLine*>& records, bool keepRefused);

  // The delimiter that a banner command opens its text with ('\0' when the
  // line is no banner command); the character behind the line's second blank.
  static char bannerDelimiter(const std::string& line);

 private:
  // attachDataLines with each record's line found in `lines` where given.
  static void attachDataLines(const std::vector<CiscoCommandLine*>& records, bool keepRefused,
                              const TextLines* lines);
  // Appends the level-0 records of `all` to `commands`, frees those nobody
  // holds and empties `all`.
  static void keepTopLevel(std::vector<CiscoCommandLine*>& all, std::vector<CiscoCommandLine*>& commands);
};

}  // namespace qxparser
