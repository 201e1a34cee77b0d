// Reading configurations into command records with the shipped grammar:
// generated configurations of 1k, 10k and 100k lines, and every file of the
// public corpus. Counters: lines per second, records, and the growth of the
// heap (and of the peak resident set) per record while the records of one
// reading are alive.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <dirent.h>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/QXFileSystem.h"

namespace {

using qxparser::CiscoCommandLine;
using qxparser::QxParserUtil;

void loadOnce() {
  static bool loaded = false;
  if (loaded) return;
  QXFileSystem::SetSystemResourceFolder(std::string(VTYCONF_SOURCE_DIR) + "/resources/");
  qxparser::clearLoaderTables();
  QxParserUtil::createNewParserResource();
  loaded = true;
}

// Resident set now, from /proc (0 where that is not available).
long residentKiB() {
  std::ifstream statm("/proc/self/statm");
  long pages = 0;
  long resident = 0;
  if (!(statm >> pages >> resident)) return 0;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

long peakKiB() {
  struct rusage usage {};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

std::string ip(int n) {
  return "10." + std::to_string((n >> 16) & 255) + "." + std::to_string((n >> 8) & 255) + "." +
         std::to_string(n & 255);
}

// A switch-like configuration of about `lines` lines: access ports with a
// handful of settings each, VLANs, static routes, logging hosts and
// access-list entries.
std::string makeConfig(int lines) {
  std::string text = "hostname bench\n!\n";
  int written = 2;
  for (int i = 0; written < lines; ++i) {
    switch (i % 5) {
      case 0:
      case 1: {
        const std::string port = std::to_string(1 + (i / 48) % 8) + "/0/" + std::to_string(1 + i % 48);
        text += "interface GigabitEthernet" + port + "\n";
        text += " description user-port " + port + " jack " + std::to_string(i) + "\n";
        text += " switchport access vlan " + std::to_string(100 + i % 50) + "\n";
        text += " switchport mode access\n";
        text += " spanning-tree portfast\n";
        text += " no shutdown\n";
        text += "!\n";
        written += 7;
        break;
      }
      case 2:
        text += "vlan " + std::to_string(2 + i % 4000) + "\n name VLAN-" + std::to_string(i) + "\n!\n";
        written += 3;
        break;
      case 3:
        text += "ip route " + ip(i) + " 255.255.255.255 192.0.2." + std::to_string(1 + i % 250) + "\n";
        ++written;
        break;
      default:
        text += "access-list " + std::to_string(1 + i % 99) + " permit " + ip(i) + "\n";
        text += "logging host " + ip(i + 7) + "\n";
        written += 2;
        break;
    }
  }
  return text;
}

size_t countLines(const std::string& text) {
  return static_cast<size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

void readOnce(benchmark::State& state, const std::string& text) {
  loadOnce();
  const size_t lines = countLines(text);
  size_t records = 0;
  long growth = 0;
  double heapPerRecord = 0;
  for (auto _ : state) {
    const long before = residentKiB();
    const size_t heapBefore = mallinfo2().uordblks;
    std::vector<CiscoCommandLine*> commands;
    std::string errorText;
    int errorLine = 0;
    QxParserUtil::getCmdInfo(text, commands, errorText, errorLine);
    growth = std::max(growth, residentKiB() - before);
    heapPerRecord = commands.empty() ? 0.0
                                     : static_cast<double>(mallinfo2().uordblks - heapBefore) /
                                           static_cast<double>(commands.size());
    records = commands.size();
    state.PauseTiming();
    QxParserUtil::deleteCommands(commands);
    state.ResumeTiming();
  }
  state.counters["lines/s"] =
      benchmark::Counter(static_cast<double>(lines) * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.counters["records"] = static_cast<double>(records);
  // The peak of the whole process, grammar and input texts included.
  state.counters["peakKiB"] = static_cast<double>(peakKiB());
  state.counters["heap B/record"] = heapPerRecord;
  if (records > 0 && growth > 0) {
    state.counters["RSS B/record"] = static_cast<double>(growth) * 1024.0 / static_cast<double>(records);
  }
}

void BM_GetCmdInfoGenerated(benchmark::State& state) {
  readOnce(state, makeConfig(static_cast<int>(state.range(0))));
}

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream buffer;
  buffer << in.rdbuf();
  return buffer.str();
}

void registerCorpus() {
  const std::string folder = std::string(VTYCONF_SHARED_CORPUS_DIR) + "/public/";
  DIR* dir = opendir(folder.c_str());
  if (!dir) return;
  std::vector<std::string> names;
  while (dirent* entry = readdir(dir)) {
    const std::string name = entry->d_name;
    if (name.size() > 4 && name.compare(name.size() - 4, 4, ".cfg") == 0) names.push_back(name);
  }
  closedir(dir);
  std::sort(names.begin(), names.end());
  std::string all;
  for (const std::string& name : names) all += readFile(folder + name) + "\n";
  benchmark::RegisterBenchmark("BM_GetCmdInfoCorpus/all", [all](benchmark::State& state) { readOnce(state, all); })
      ->Unit(benchmark::kMillisecond);
  for (const std::string& name : names) {
    const std::string text = readFile(folder + name);
    benchmark::RegisterBenchmark(("BM_GetCmdInfoCorpus/" + name).c_str(),
                                 [text](benchmark::State& state) { readOnce(state, text); })
        ->Unit(benchmark::kMillisecond);
  }
}

// The largest first, so that its peak memory is not hidden by smaller runs.
BENCHMARK(BM_GetCmdInfoGenerated)->Arg(100000)->Arg(10000)->Arg(1000)->Unit(benchmark::kMillisecond);

const int kCorpusRegistered = (registerCorpus(), 0);

}  // namespace
