// The delimiter check of a design script.
#include "FuzzSupport.h"
#include "results/DRCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  DRCheck check(fuzzsupport::asText(data, size));
  if (!check.syntaxCheck()) fuzzsupport::fail("syntaxCheck returned false");
  std::string first = check.getErrStr();
  if (check.getErrStr() != first) fuzzsupport::fail("getErrStr changed between two reads");
  return 0;
}
