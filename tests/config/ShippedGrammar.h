// Shared set-up of the tests that read real configurations: the shipped
// definition files loaded as the parser resources, the public corpus, and
// helpers to compare texts line by line.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "config/QxParserUtil.h"
#include "grammar/DefinitionLoader.h"
#include "platform/QXFileSystem.h"
#include "support/ShippedGrammarSuite.h"
#include "support/TestFiles.h"

namespace qxparser {

struct CorpusFile {
  std::string name;
  std::string text;
};

inline std::string corpusFolder() { return std::string(VTYCONF_SHARED_CORPUS_DIR) + "/public/"; }

inline std::string readWholeFile(const std::string& path) { return testsupport::readFile(path); }

// The *.cfg files of the public corpus, by name; empty when it is absent.
inline std::vector<CorpusFile> corpusFiles() {
  std::vector<CorpusFile> files;
  if (!std::filesystem::is_directory(corpusFolder())) return files;
  for (auto& [name, text] : testsupport::configFiles(corpusFolder())) files.push_back({name, text});
  return files;
}

// The lines of a text (split at newline), sorted: texts compared up to order.
inline std::vector<std::string> sortedLines(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  std::istringstream in(text);
  while (std::getline(in, line)) lines.push_back(line);
  std::sort(lines.begin(), lines.end());
  return lines;
}

using ShippedGrammarTest = testsupport::ShippedGrammarSuite;

}  // namespace qxparser
