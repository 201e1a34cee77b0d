#include "config/FailingLine.h"

#include <exception>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "terminal/VTY.h"

namespace qxparser {

int failingLine(const ReaderLineMap& lines, const std::string& text) {
  VTY vty("hostName", false);
  vty.parse("enable\n", true, nullptr);
  vty.parse("configure terminal \n", true, nullptr);
  // The records live until the end: a replaying terminal links each new
  // command to the command of its mode, read on an earlier line.
  std::vector<CiscoCommandLine*> records;
  int found = 0;
  for (size_t i = 0; i < lines.lineCount() && found == 0; ++i) {
    std::string errorText;
    int errorLine = 0;
    try {
      vty.getComLineInfo(lines.readerLine(text, i) + "\r\n", records, errorText, errorLine, true);
    } catch (const std::exception&) {
      found = lines.fileLineOf(static_cast<int>(i) + 1);
    }
  }
  QxParserUtil::deleteCommands(records);
  return found;
}

}  // namespace qxparser
