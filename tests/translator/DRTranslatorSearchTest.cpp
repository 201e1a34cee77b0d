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

TEST(DRTranslatorSearch, TranslatesEachSearchStatement) {
  struct Row {
    std::string script;
    std::string body;
  };
  const Row rows[] = {
      {"#a = search_line(\"x\", all);",
       "@matchResults = (\"\") x 0;\r\n\n@a = search_line(\"x\",\"all\",\"\",\"\");\r\n;"},
      // Flag, set and name are lower-cased; a bare set gets no guard.
      {"x;\n#a = search_line(\"ip ($v)\", FIRST, Bare, NaMe);",
       "x;\n@matchResults = (\"\") x 1;\r\n\n@a = search_line(\"ip ([^ \\t\\r\\n]*)\",\"first\",bare,\"name\");\r\n"
       "@v = split (/ /, $matchResults[0]);\r\n;"},
      {"x;\n#a = search_line(\"Keep\", all, @UI_NATList, \"Quoted\");",
       "x;\n\n\nif (@ui_natlist)\n{\n@matchResults = (\"\") x 0;\r\n\n"
       "@a = search_line(\"Keep\",\"all\",\\@ui_natlist,\"quoted\");\r\n}\n;"},
      {"#r = search_paragraph_begin(\"router ($id)\", first, #Scope);",
       "\n\nif (@scope)\n{\n@matchResultsBegin = (\"\") x 1;\r\n\n"
       "@r = search_paragraph_begin(\"router ([^ \\t\\r\\n]*)\",\"first\",\\@scope,\"\");\r\n"
       "@id = split (/ /, $matchResultsBegin[0]);\r\n}\n;"},
      {"#p = search_paragraph_between(\"a $u $w\", \"b ($e)\", continuous);",
       "@matchResultsBegin = (\"\") x 0;\r\n\n@matchResultsEnd = (\"\") x 1;\r\n\n"
       "$tempSize = @u;\nif($tempSize != @u)\n{}\nelsif($tempSize != @w)\n{}\nelse\n{\n"
       "@searchset = ();\r\n@oneset = ();\r\nfor($index = 0; $index <@u; $index++)\n{\n"
       "@oneset = search_paragraph_between(\"a $u[$index] $w[$index]\",\"b ([^ \\t\\r\\n]*)\",\"continuous\",\"\",\"\");\r\n"
       "@searchset = combineLines(\\@searchset, \\@oneset);\r\n}\r\n\n"
       "@p = @searchset;\r\n}\n\n@e = split (/ /, $matchResultsEnd[0]);\r\n;"},
      // Variables of the end and middle patterns take element 0 and make no loop.
      {"#p = search_paragraph(\"interface ($name)\", \"!\", \"ip ($ip) $m\", all);",
       "@matchResultsBegin = (\"\") x 1;\r\n\n@matchResultsEnd = (\"\") x 0;\r\n\n"
       "@matchResultsMiddle = (\"\") x 1;\r\n\n"
       "@p = search_paragraph(\"interface ([^ \\t\\r\\n]*)\",\"!\",\"ip ([^ \\t\\r\\n]*) $m[0]\",\"all\",\"\",\"\");\r\n"
       "@name = split (/ /, $matchResultsBegin[0]);\r\n@ip = split (/ /, $matchResultsMiddle[0]);\r\n;"},
      // With no target the call stands as a statement; group lines follow.
      {"x;\nsearch_line(\"($g)\", all);\n",
       "x;\n@matchResults = (\"\") x 1;\r\n\nsearch_line(\"([^ \\t\\r\\n]*)\",\"all\",\"\",\"\");\r\n"
       "@g = split (/ /, $matchResults[0]);\r\n;\n"},
  };
  for (const Row& row : rows) EXPECT_EQ(validBody(row.script), row.body) << row.script;
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
