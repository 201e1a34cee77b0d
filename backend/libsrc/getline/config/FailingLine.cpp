#include "config/FailingLine.h"

#include <exception>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "terminal/VTY.h"

namespace qxparser {

int failingLine(const ReaderLineMap& lines) {
  VTY vty("hostName", false);
  vty.parse("enable\n", true, nullptr);
  vty.parse("configure terminal \n", true, nullptr);
  for (size_t i = 0; i < lines.readerLines.size(); ++i) {
    std::vector<CiscoCommandLine*> records;
    std::string errorText;
    int errorLine = 0;
    bool raised = false;
    try {
      vty.getComLineInfo(lines.readerLines[i] + "\r\n", records, errorText, errorLine, true);
    } catch (const std::exception&) {
      raised = true;
    }
    QxParserUtil::deleteCommands(records);
    if (raised) return lines.fileLineOf(static_cast<int>(i) + 1);
  }
  return 0;
}

}  // namespace qxparser
