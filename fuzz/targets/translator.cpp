// A design script translated into a program. The program file is written into
// the private temporary folder and overwritten by the next input.
#include "FuzzSupport.h"
#include "translator/DRTranslator.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::string program = QXFileSystem::GetTempFolder() + "fuzz_translated.pl";
  static bool ready = (fuzzsupport::useShippedResources(), true);
  (void)ready;
  DRTranslator translator(fuzzsupport::asText(data, size), program);
  translator.translateScriptFile();
  // A message always ends with its line number, a full stop and CR LF.
  const std::string& messages = translator.errorText;
  if (!messages.empty() && (messages.size() < 3 || messages.compare(messages.size() - 3, 3, ".\r\n") != 0)) {
    fuzzsupport::fail("message without its ending: " + messages);
  }
  return 0;
}
