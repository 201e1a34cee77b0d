// Script files (.cmf) through DRScriptFile: the input is read as a file from
// disk, written back (which checks the script and translates it into the ".pl"
// beside it) and read again. A file without any "!!!" header text has no
// header, so its whole text is the context and must survive the round trip.
#include "FuzzSupport.h"
#include "notes/DRScriptFile.h"

namespace {

// What a text-mode read makes of the bytes: CR LF becomes LF.
std::string asRead(const std::string& bytes) {
  std::string text;
  for (size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') continue;
    text.push_back(bytes[i]);
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzzsupport::useShippedResources();
  const std::string bytes = fuzzsupport::asText(data, size);
  const std::string path = fuzzsupport::writeTemp("fuzz_script.cmf", bytes);
  DRScriptFile script(path);
  const std::string copy = QXFileSystem::GetTempFolder() + "fuzz_script_copy.cmf";
  if (!script.saveScriptFile(copy)) fuzzsupport::fail("a script could not be written to the temporary folder");
  DRScriptFile again(copy);
  if (bytes.find("!!!") == std::string::npos) {
    if (script.getContext() != asRead(bytes)) fuzzsupport::fail("a file without header lost text on reading");
    if (again.getContext() != script.getContext()) fuzzsupport::fail("the context changed in a write and read");
    if (!again.getDescription().empty()) fuzzsupport::fail("an empty description came back with text");
  }
  if (again.isFavourite() != script.isFavourite()) fuzzsupport::fail("the favourite mark changed in a round trip");
  DRScriptFile::delScriptFile(path);
  DRScriptFile::delScriptFile(copy);
  return 0;
}
