// Merge and fallback on a pair of configuration texts (changes, then the
// configuration, cut at the split marker), in both fallback modes, with the
// library's cut at the first deep command and over every level.
#include "FuzzSupport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using qxparser::QxParserUtil;
  fuzzsupport::loadShippedGrammar();
  std::vector<std::string> parts = fuzzsupport::splitInput(fuzzsupport::asText(data, size), 2);
  const std::string& changes = parts[0];
  const std::string& config = parts[1];
  try {
    QxParserUtil::mergeConfigCmds(changes, config);
  } catch (const std::out_of_range& e) {
    fuzzsupport::expectRangeQuirk(e);
  }
  for (unsigned int mode : {0u, 1u}) {
    try {
      QxParserUtil::fallbackConfigCmds(changes, config, mode);
    } catch (const std::out_of_range& e) {
      fuzzsupport::expectRangeQuirk(e);
    }
    try {
      QxParserUtil::fallbackConfigCmdsAllLevels(changes, config, mode);
    } catch (const std::out_of_range& e) {
      fuzzsupport::expectRangeQuirk(e);
    }
  }
  return 0;
}
