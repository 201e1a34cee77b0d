// Key streams through the console loop (parser_main) with the shipped
// grammar: the first byte chooses the screen width (21 or more), every further
// byte is one key press. The loop must answer every key (the one exception
// allowed is the range quirk of a zero typed into a numeric range) and keep
// its prompt inside the prompt buffer.
#include <memory>

#include "FuzzSupport.h"
#include "main.h"
#include "terminal/VTY.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  fuzzsupport::loadShippedGrammar();
  auto vty = std::make_unique<qxparser::VTY>("R1", true);
  auto editor = std::make_unique<GetLineData>();
  const int width = 21 + data[0] % 180;
  vtysh_console_init(vty.get(), editor.get(), width, "-");
  std::string delta;
  for (size_t i = 1; i < size; ++i) {
    char buffer[2] = {static_cast<char>(data[i]), '\0'};
    std::string output;
    try {
      parser_main(vty.get(), editor.get(), buffer, output, &delta);
    } catch (const std::out_of_range& e) {
      fuzzsupport::expectRangeQuirk(e);
    }
    if (std::string(vtysh_prompt(vty.get())).size() > 1023) fuzzsupport::fail("the prompt passed its buffer");
  }
  GetLineData::getline_init(nullptr, nullptr);
  return 0;
}
