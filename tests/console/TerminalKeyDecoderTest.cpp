#include <gtest/gtest.h>

#include "platform/PlatformOs.h"
#include "support/CaseFile.h"

namespace {

// Feeds the bytes; `flushAtEnd` stands for "no further byte came in time".
std::string decode(const std::string& bytes, bool flushAtEnd) {
  platform::TerminalKeyDecoder decoder;
  std::string keys;
  for (char byte : bytes) decoder.feed(byte, keys);
  if (flushAtEnd) decoder.flush(keys);
  return keys;
}

// The rows of tests/data/console/key_sequences.tsv.
TEST(TerminalKeyDecoderTest, SequencesBecomeTheEditorsConsoleCodes) {
  for (const std::string& row : testsupport::dataLines(testsupport::readDataFile("console/key_sequences.tsv"))) {
    const std::vector<std::string> fields = testsupport::splitFields(row);
    ASSERT_EQ(fields.size(), 2u) << row;
    EXPECT_EQ(decode(testsupport::unescaped(fields[0]), false), testsupport::unescaped(fields[1])) << row;
  }
}

TEST(TerminalKeyDecoderTest, LoneEscapeWaitsAndThenCountsAsAKey) {
  platform::TerminalKeyDecoder decoder;
  std::string keys;
  decoder.feed('\x1b', keys);
  EXPECT_TRUE(decoder.pending());
  EXPECT_EQ(keys, "");
  decoder.flush(keys);
  EXPECT_EQ(keys, "\x1b");
  EXPECT_FALSE(decoder.pending());
  EXPECT_EQ(decode("\x1b[1;", true), "") << "an unfinished sequence is dropped";
  EXPECT_EQ(decode("\x1b[" + std::string(40, '1') + "~", false), "") << "a long sequence still ends";
}

}  // namespace
