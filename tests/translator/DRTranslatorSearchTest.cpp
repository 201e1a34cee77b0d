// The four search statements: their calls, guards, loops and group lines.
#include <gtest/gtest.h>

#include <sstream>

#include "TranslatorTestSupport.h"

using translatortest::translate;
using translatortest::validBody;
using V = std::vector<std::string>;

namespace {
// The lines of a body without their CR and without empty lines.
V nonEmptyLines(const std::string& body) {
  V lines;
  std::istringstream in(body);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}
}  // namespace

TEST(DRTranslatorSearch, LineSearchWithGuardLoopAndGroupComesOutExactly) {
  const std::string body = validBody("#l = search_line(\"a ($x) $y\", all, #s, \"n\");");
  EXPECT_EQ(body,
            "\n\nif (@s)\n{\n@matchResults = (\"\") x 1;\r\n\n"
            "$tempSize = @y;\nif($tempSize != @y)\n{}\nelse\n{\n@searchset = ();\r\n@oneset = ();\r\n"
            "for($index = 0; $index <@y; $index++)\n{\n"
            "@oneset = search_line(\"a ([^ \\t\\r\\n]*) $y[$index]\",\"all\",\\@s,\"n\");\r\n"
            "@searchset = combineLines(\\@searchset, \\@oneset);\r\n}\r\n\n"
            "@l = @searchset;\r\n}\n\n@x = split (/ /, $matchResults[0]);\r\n}\n;");
  const V expected = {
      "if (@s)",
      "{",
      "@matchResults = (\"\") x 1;",
      "$tempSize = @y;",
      "if($tempSize != @y)",
      "{}",
      "else",
      "{",
      "@searchset = ();",
      "@oneset = ();",
      "for($index = 0; $index <@y; $index++)",
      "{",
      "@oneset = search_line(\"a ([^ \\t\\r\\n]*) $y[$index]\",\"all\",\\@s,\"n\");",
      "@searchset = combineLines(\\@searchset, \\@oneset);",
      "}",
      "@l = @searchset;",
      "}",
      "@x = split (/ /, $matchResults[0]);",
      "}",
      ";",
  };
  EXPECT_EQ(nonEmptyLines(body), expected);
}

TEST(DRTranslatorSearch, RepeatedVariableIsTestedOncePerOccurrence) {
  const std::string body = validBody("#a = search_line(\"$v x $v\", all);");
  EXPECT_NE(body.find("$tempSize = @v;\nif($tempSize != @v)\n{}\nelsif($tempSize != @v)\n{}\nelse\n{\n"),
            std::string::npos)
      << body;
}

TEST(DRTranslatorSearch, RefusesWrongArgumentCountsAndFlags) {
  struct Row {
    std::string script;
    std::string message;
  };
  const Row rows[] = {
      {"#a = search_line(\"x\", all, #s, \"n\", 5);", "Function has wrong argument number on code line 1.\r\n"},
      {"#a = search_line(\"x\");", "Function has wrong argument number on code line 1.\r\n"},
      {"#a = search_paragraph_begin(\"x\", all, #s, \"n\", 5);",
       "Function has wrong argument number on code line 1.\r\n"},
      {"#a = search_paragraph_between(\"a\", all);", "Function has wrong argument number on code line 1.\r\n"},
      {"#a = search_paragraph(\"a\", \"b\", all);", "Function has wrong argument number on code line 1.\r\n"},
      {"#a = search_line(\"x\", \"all\");", "Function has wrong flag argument on code line 1.\r\n"},
      {"#a = search_paragraph(\"a\", \"b\", \"c\", most);", "Function has wrong flag argument on code line 1.\r\n"},
      // The line is where the reader stands: behind the closing bracket.
      {"$a = $b;\n#c = search_line(\"x\",\nFIRST, #s,\n\"n\", 1\n);\n",
       "Function has wrong argument number on code line 5.\r\n"},
      {"#a = search_line \"x\";", "Function lacks left bracket on code line 1.\r\n"},
      {"#a = search_line(\"x\", all)", "Function lacks right bracket on code line 1.\r\n"},
  };
  for (const Row& row : rows) {
    auto t = translate(row.script);
    EXPECT_EQ(t.message, row.message) << row.script;
    EXPECT_EQ(t.body, "") << row.script;
  }
}
