// The loader's own line cutting against ParserToolCase::parseCmdLine, on odd
// lines (tests/data/grammar/definition_lines.txt, escapes as in C) and on
// every line of the shipped definition files.
#include <gtest/gtest.h>

#include <filesystem>

#include "grammar/DefinitionLine.h"
#include "support/CaseFile.h"
#include "support/ShippedGrammarSuite.h"
#include "toolkit/ParserToolCase.h"

using namespace qxparser;

namespace {

void expectCutAsParseCmdLine(DefinitionLine& cut, const std::string& line, const std::string& where) {
  std::string a, b, c, d, e;
  ParserToolCase::parseCmdLine(line, a, b, c, d, e);
  cut.cut(line);
  EXPECT_EQ(std::vector<std::string>({a, b, c, d, e}),
            std::vector<std::string>({std::string(cut.token()), std::string(cut.help()), std::string(cut.flags()),
                                      std::string(cut.text()), std::string(cut.links())}))
      << where << ": " << line;
}

TEST(DefinitionLineTest, LinesAreCutAsParseCmdLineCutsThem) {
  // One object for all lines: what a longer line left in its buffer must not
  // show through in a shorter one.
  DefinitionLine cut;
  for (const std::string& row : testsupport::dataLines(testsupport::readDataFile("grammar/definition_lines.txt"))) {
    expectCutAsParseCmdLine(cut, testsupport::unescaped(row), "definition_lines.txt");
  }
  const std::filesystem::path folder = std::filesystem::path(testsupport::shippedResources()) / "files";
  if (!std::filesystem::exists(folder)) GTEST_SKIP() << "no definition files at " << folder;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".cfm") continue;
    const std::string text = testsupport::readFile(entry.path().string());
    DefinitionLines lines(text);
    std::string_view line;
    while (lines.next(line)) expectCutAsParseCmdLine(cut, std::string(line), entry.path().filename().string());
  }
}

}  // namespace
