#include <gtest/gtest.h>

#include "platform/PlatformOs.h"

namespace {

// Feeds the bytes; `flushAtEnd` stands for "no further byte came in time".
std::string decode(const std::string& bytes, bool flushAtEnd) {
  platform::TerminalKeyDecoder decoder;
  std::string keys;
  for (char byte : bytes) decoder.feed(byte, keys);
  if (flushAtEnd) decoder.flush(keys);
  return keys;
}

TEST(TerminalKeyDecoderTest, SequencesBecomeTheEditorsConsoleCodes) {
  const struct {
    const char* bytes;
    const char* keys;
  } rows[] = {
      {"\x1b[A", "\xb8"},
      {"\x1b[B", "\xb0"},
      {"\x1b[C", "\xb3"},
      {"\x1b[D", "\xb5"},
      {"\x1bOA", "\xb8"},
      {"\x1bOD", "\xb5"},
      {"\x1b[H", "\xb9"},
      {"\x1bOH", "\xb9"},
      {"\x1b[1~", "\xb9"},
      {"\x1b[7~", "\xb9"},
      {"\x1b[F", "\xb1"},
      {"\x1b[4~", "\xb1"},
      {"\x1b[8~", "\xb1"},
      {"\x1b[3~", "\xad"},
      {"\x1b[2~", "\xae"},
      {"\x1b[1;5C", "\xb3"},
      {"\x1b[15~", ""},  // F5 is no key of the console
      {"a\x7f"
       "b",
       "a\bb"},  // the backspace key
      {"ab\x1b[Dc",
       "ab\xb5"
       "c"},
      {"\x1bx", "\x1bx"},  // ESC before a letter: the ESC key, then the letter
      {"\x1b\x1b[A", "\x1b\xb8"},
  };
  for (const auto& row : rows) EXPECT_EQ(decode(row.bytes, false), row.keys) << row.bytes + 1;
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
