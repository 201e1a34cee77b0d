// Translation of a 1,000-line design script into a Perl program, file writing
// included.
#include <benchmark/benchmark.h>

#include <string>

#include "platform/QXFileSystem.h"
#include "translator/DRTranslator.h"

namespace {

// Ten lines of every kind of statement, repeated to the wanted length.
std::string makeScript(int lines) {
  static const char* const kBlock[] = {
      "! addresses of the chosen interfaces\n",
      "#addr = search_line(\"ip address ($ip) ($mask)\", all, @UI_InterfaceList, \"Address\");\n",
      "#peers = search_line(\"neighbor $peer remote-as ($as)\", all, #scope, Peers);\n",
      "#intf = search_paragraph(\"interface ($name)\", \"!\", \"ip vrf forwarding ($vrf)\", all);\n",
      "#both = #addr + #peers - #intf;\n",
      "if (isempty(#both - #addr)) {\n",
      "  print \"Nothing found for $name.\";\n",
      "} else {\n",
      "  print #both;\n",
      "}\n",
  };
  std::string script;
  for (int i = 0; i < lines; ++i) script += kBlock[i % 10];
  return script;
}

void BM_TranslateScript(benchmark::State& state) {
  QXFileSystem::SetSystemResourceFolder(std::string(VTYCONF_SOURCE_DIR) + "/resources/");
  const std::string script = makeScript(static_cast<int>(state.range(0)));
  const std::string program = QXFileSystem::GetTempFolder() + "bench.pl";
  for (auto _ : state) {
    DRTranslator translator(script, program);
    translator.translateScriptFile();
    if (!translator.errorText.empty()) {
      state.SkipWithError(translator.errorText.c_str());
      break;
    }
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(script.size()));
}
BENCHMARK(BM_TranslateScript)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
