// FuzzSupport: what every fuzz target shares.
//
// Each target defines LLVMFuzzerTestOneInput and is linked either with the
// fuzzing engine or with ReplayMain.cpp, which feeds it files (and the hostile
// inputs of tests/data/fuzz/hostile_inputs.tsv) one by one. The helpers here
// cut one input into several texts, write texts into the process's private
// temporary folder and load the shipped grammar once per process. Nothing here is thread-safe; a
// target runs one input at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "platform/PlatformOs.h"
#include "platform/QXFileSystem.h"

namespace fuzzsupport {

// Where one input is cut into several texts (merge and fallback take two, the
// loader three). It stands in the dictionaries of those targets.
constexpr const char* kSplitMarker = "\n%%\n";

inline std::string asText(const uint8_t* data, size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

// Cuts `text` at each marker into at most `parts` pieces (the last piece keeps
// any further marker); missing pieces are empty.
inline std::vector<std::string> splitInput(const std::string& text, size_t parts) {
  std::vector<std::string> out;
  const std::string marker = kSplitMarker;
  size_t start = 0;
  while (out.size() + 1 < parts) {
    size_t at = text.find(marker, start);
    if (at == std::string::npos) break;
    out.push_back(text.substr(start, at - start));
    start = at + marker.size();
  }
  out.push_back(text.substr(start));
  while (out.size() < parts) out.emplace_back();
  return out;
}

// A finding that no exception reports: print it and stop, so that the
// engine records the input.
[[noreturn]] inline void fail(const std::string& what) {
  std::fprintf(stderr, "fuzz invariant broken: %s\n", what.c_str());
  std::fflush(stderr);
  std::abort();
}

// The one exception that a numeric range placeholder is allowed to raise: a
// value of only zeros ends the check with std::out_of_range, text "invalid
// string position". Any other out_of_range is a fault of its own.
inline void expectRangeQuirk(const std::out_of_range& e) {
  if (std::string(e.what()) != "invalid string position") fail(std::string("unexpected out_of_range: ") + e.what());
}

// Writes text to a file below the private temporary folder; returns its path.
inline std::string writeTemp(const std::string& name, const std::string& text) {
  std::string path = QXFileSystem::GetTempFolder() + name;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  return path;
}

// The resource folder of the source tree (grammar, runtime of notes).
inline void useShippedResources() { QXFileSystem::SetSystemResourceFolder(VTYCONF_FUZZ_RESOURCES); }

// The shipped grammar, compiled once per process.
inline void loadShippedGrammar() {
  static bool loaded = false;
  if (loaded) return;
  useShippedResources();
  qxparser::QxParserUtil::createNewParserResource();
  loaded = true;
}

}  // namespace fuzzsupport
