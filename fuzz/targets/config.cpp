// A configuration text read into command records with the shipped grammar,
// as every reading, merge and query operation begins.
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using qxparser::CiscoCommandLine;
  using qxparser::QxParserUtil;
  fuzzsupport::loadShippedGrammar();
  const std::string text = fuzzsupport::asText(data, size);
  std::vector<CiscoCommandLine*> commands;
  std::string errorText;
  int errorLine = 0;
  try {
    QxParserUtil::getCmdInfo(text, commands, errorText, errorLine);
    for (CiscoCommandLine* command : commands) {
      if (!command) fuzzsupport::fail("getCmdInfo returned a null record");
    }
  } catch (const std::out_of_range& e) {
    fuzzsupport::expectRangeQuirk(e);
  }
  QxParserUtil::deleteCommands(commands);
  return 0;
}
