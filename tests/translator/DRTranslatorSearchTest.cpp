// The four search statements: their calls, guards, loops and group lines.
#include <gtest/gtest.h>


#include "TranslatorTestSupport.h"

using translatortest::validBody;
using V = std::vector<std::string>;

TEST(DRTranslatorSearch, RepeatedVariableIsTestedOncePerOccurrence) {
  const std::string body = validBody("#a = search_line(\"$v x $v\", all);");
  EXPECT_NE(body.find("$tempSize = @v;\nif($tempSize != @v)\n{}\nelsif($tempSize != @v)\n{}\nelse\n{\n"),
            std::string::npos)
      << body;
}

