// Loading the grammar and looking up one word in it. The full IOS grammar
// (resources/) is what a caller loads at start-up; the small fixture grammar
// of the terminal tests shows the fixed cost of a load. Every load leaves its
// nodes in the process-wide pool (they are never freed), so the load
// benchmarks run a fixed, small number of iterations.
#include <benchmark/benchmark.h>

#include <string>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "grammar/NodeLookup.h"
#include "grammar/ParserTree.h"
#include "platform/QXFileSystem.h"
#include "terminal/VTY.h"

namespace {

using qxparser::ParserTreeNode;
using qxparser::QxParserUtil;

const std::string kShippedResources = std::string(VTYCONF_SOURCE_DIR) + "/resources/";
const std::string kFixtureResources = std::string(VTYCONF_TEST_DATA_DIR) + "/terminal/";

// A fresh load: the loader's process-wide tables (shared includes, mode
// files, key tables) are emptied first, or a second load would reuse them.
void loadFrom(const std::string& folder) {
  QXFileSystem::SetSystemResourceFolder(folder);
  qxparser::clearLoaderTables();
  QxParserUtil::createNewParserResource();
}

void BM_LoadShippedGrammar(benchmark::State& state) {
  for (auto _ : state) {
    loadFrom(kShippedResources);
    benchmark::ClobberMemory();
  }
  QxParserUtil::destroyParserResource();
}
BENCHMARK(BM_LoadShippedGrammar)->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_LoadFixtureGrammar(benchmark::State& state) {
  for (auto _ : state) {
    loadFrom(kFixtureResources);
    benchmark::ClobberMemory();
  }
  QxParserUtil::destroyParserResource();
}
BENCHMARK(BM_LoadFixtureGrammar)->Unit(benchmark::kMicrosecond)->Iterations(200);

// The configuration root of the shipped grammar, loaded once for all lookups.
ParserTreeNode* configRoot() {
  static ParserTreeNode* root = [] {
    loadFrom(kShippedResources);
    qxparser::VTY vty("hostName", false);  // fills the trees shared by every terminal
    return qxparser::VTY::mTrees4Modes[qxparser::CONFIG_MODE]->getRoot();
  }();
  return root;
}

// The node behind "interface", whose child takes the interface KeyFile words.
ParserTreeNode* interfaceNode() {
  bool flag = false;
  std::string key;
  return qxparser::lookupToken(configRoot(), "interface", flag, key, false, nullptr);
}

void lookupLoop(benchmark::State& state, ParserTreeNode* node, const std::string& token, bool abbreviate,
                bool expectHit) {
  if (node == nullptr) {
    state.SkipWithError("the grammar has no such node");
    return;
  }
  bool flag = false;
  std::string key;
  if ((qxparser::lookupToken(node, token, flag, key, abbreviate, nullptr) != nullptr) != expectHit) {
    state.SkipWithError(("unexpected lookup result for " + token).c_str());
    return;
  }
  for (auto _ : state) {
    ParserTreeNode* found = qxparser::lookupToken(node, token, flag, key, abbreviate, nullptr);
    benchmark::DoNotOptimize(found);
  }
}

void BM_LookupLiteral(benchmark::State& state) { lookupLoop(state, configRoot(), "interface", false, true); }
BENCHMARK(BM_LookupLiteral);

void BM_LookupAbbreviation(benchmark::State& state) { lookupLoop(state, configRoot(), "interf", true, true); }
BENCHMARK(BM_LookupAbbreviation);

void BM_LookupKeyFileWord(benchmark::State& state) {
  lookupLoop(state, interfaceNode(), "gigabitethernet", false, true);
}
BENCHMARK(BM_LookupKeyFileWord);

// A word that no child takes: every pattern step runs, in both cases, and
// the lookup is tried a second time.
void BM_LookupPlaceholderMiss(benchmark::State& state) {
  lookupLoop(state, interfaceNode(), "nosuchinterface", false, false);
}
BENCHMARK(BM_LookupPlaceholderMiss);

}  // namespace
