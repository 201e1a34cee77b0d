// Merge and fallback of large configurations on the small test grammar.
// The configuration is made here: interfaces with a description and an
// address, static routes and access-list entries; the intended configuration
// changes about one line in a hundred. Each run reports the peak resident
// set of the process so far (the largest inputs run last).
#include <benchmark/benchmark.h>

#include <string>

#include <sys/resource.h>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/QXFileSystem.h"

namespace {

using qxparser::QxParserUtil;

void loadOnce() {
  static bool loaded = false;
  if (loaded) return;
  QXFileSystem::SetSystemResourceFolder(std::string(VTYCONF_TEST_DATA_DIR) + "/config/");
  qxparser::clearLoaderTables();
  QxParserUtil::createNewParserResource();
  loaded = true;
}

std::string ip(int n) {
  return std::to_string(10 + (n >> 16) % 200) + "." + std::to_string((n >> 8) & 255) + "." + std::to_string(n & 255) +
         ".1";
}

// About `lines` lines; with `changed`, one line in a hundred differs.
std::string makeConfig(int lines, bool changed) {
  std::string text = "hostname r1\n";
  int written = 1;
  for (int i = 0; written < lines; ++i) {
    const bool change = changed && i % 25 == 0;
    switch (i % 4) {
      case 0:
        text += "interface gigabitethernet 0/" + std::to_string(i) + "\n";
        text += std::string(" description ") + (change ? "moved" : "link") + " " + std::to_string(i) + "\n";
        text += " ip address " + ip(i) + " 255.255.255.0\n";
        written += 3;
        break;
      case 1:
        text += "ip route " + ip(i) + " 255.255.255.255 " + (change ? "2.2.2.2" : "1.1.1.1") + "\n";
        ++written;
        break;
      case 2:
        text += "access-list " + std::to_string(1 + i % 199) + " permit " + ip(i) + "\n";
        ++written;
        break;
      default:
        text += "logging host " + ip(i) + "\n";
        ++written;
        break;
    }
  }
  return text;
}

void reportPeak(benchmark::State& state) {
  struct rusage usage {};
  getrusage(RUSAGE_SELF, &usage);
  state.counters["peakKiB"] = static_cast<double>(usage.ru_maxrss);
}

void BM_MergeOneLine(benchmark::State& state) {
  loadOnce();
  const std::string config = makeConfig(static_cast<int>(state.range(0)), false);
  for (auto _ : state) benchmark::DoNotOptimize(QxParserUtil::mergeConfigCmds("hostname probe\n", config));
  reportPeak(state);
}

void BM_MergeChanges(benchmark::State& state) {
  loadOnce();
  const int lines = static_cast<int>(state.range(0));
  const std::string config = makeConfig(lines, false);
  const std::string changes = makeConfig(lines, true);
  for (auto _ : state) benchmark::DoNotOptimize(QxParserUtil::mergeConfigCmds(changes, config));
  reportPeak(state);
}

// The same merge written as device text (mergeConfigCmdsDeviceText).
void BM_MergeChangesDeviceText(benchmark::State& state) {
  loadOnce();
  const int lines = static_cast<int>(state.range(0));
  const std::string config = makeConfig(lines, false);
  const std::string changes = makeConfig(lines, true);
  for (auto _ : state) benchmark::DoNotOptimize(QxParserUtil::mergeConfigCmdsDeviceText(changes, config));
  reportPeak(state);
}

// The generated pair of the size asked for: in file mode from the running
// configuration to the intended one; in delta mode (0) the whole intended
// configuration taken as the changes, undone against the running one.
void runFallback(benchmark::State& state,
                 std::string (*fallback)(const std::string&, const std::string&, unsigned int), unsigned int mode) {
  loadOnce();
  const int lines = static_cast<int>(state.range(0));
  const std::string running = makeConfig(lines, false);
  const std::string intended = makeConfig(lines, true);
  const std::string& first = mode == 0 ? intended : running;
  const std::string& second = mode == 0 ? running : intended;
  for (auto _ : state) benchmark::DoNotOptimize(fallback(first, second, mode));
  reportPeak(state);
}

void BM_FallbackFile(benchmark::State& state) { runFallback(state, &QxParserUtil::fallbackConfigCmds, 1); }
void BM_FallbackDelta(benchmark::State& state) { runFallback(state, &QxParserUtil::fallbackConfigCmds, 0); }
// Both modes over every level: the text behind the first command two levels
// inside a mode takes part too (what `vtyconf fallback` runs).
void BM_FallbackFileAllLevels(benchmark::State& state) {
  runFallback(state, &QxParserUtil::fallbackConfigCmdsAllLevels, 1);
}
void BM_FallbackDeltaAllLevels(benchmark::State& state) {
  runFallback(state, &QxParserUtil::fallbackConfigCmdsAllLevels, 0);
}

BENCHMARK(BM_MergeOneLine)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_MergeChanges)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_MergeChangesDeviceText)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_FallbackFile)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_FallbackDelta)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_FallbackFileAllLevels)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_FallbackDeltaAllLevels)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
