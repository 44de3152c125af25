#include "LineReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesOf(std::string_view text) {
  LineReader reader(text);
  std::vector<std::string> lines;
  for (std::string_view line; reader.Next(line);)
    lines.emplace_back(line);
  return lines;
}

TEST(LineReader, ALineEndsAtCrLfAtLfAndAtALoneCr) {
  EXPECT_THAT(LinesOf("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
}

TEST(LineReader, ALineEndBehindTheLastLineMakesNoFurtherLine) {
  EXPECT_THAT(LinesOf("a\r\n"), ElementsAre("a"));
  EXPECT_THAT(LinesOf("a\n"), ElementsAre("a"));
  EXPECT_THAT(LinesOf("a\r"), ElementsAre("a"));
}

TEST(LineReader, EmptyLinesAreLines) {
  EXPECT_THAT(LinesOf("\r\n\r\na\r\n\r\n"), ElementsAre("", "", "a", ""));
  EXPECT_THAT(LinesOf("\n\r"), ElementsAre("", ""));
  EXPECT_THAT(LinesOf("\r\r\n\n"), ElementsAre("", "", ""));
}

TEST(LineReader, AnEmptyTextHasNoLine) {
  EXPECT_THAT(LinesOf(""), IsEmpty());
  EXPECT_TRUE(LineReader("").AtEnd());
  EXPECT_TRUE(LineReader().AtEnd());
}

TEST(LineReader, TheEndIsKnownOnceTheLastLineIsRead) {
  LineReader reader("a\r\nb\r\n");
  std::string_view line;
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_TRUE(reader.Next(line));
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_TRUE(reader.Next(line));
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_FALSE(reader.Next(line));
  EXPECT_EQ(line, "b");
}

TEST(LineReader, AZeroByteIsAPartOfItsLine) {
  const std::string text("a\0b\nc", 5);
  EXPECT_THAT(LinesOf(text), ElementsAre(std::string("a\0b", 3), "c"));
}

TEST(LineReader, AFileOfLoneCrIsWalkedOnce) {
  std::string text;
  for (int i = 0; i < 2000000; ++i)
    text += "1\r";
  LineReader reader(text);
  int count = 0;
  for (std::string_view line; reader.Next(line);)
    count += line == "1" ? 1 : 0;
  EXPECT_EQ(count, 2000000);
}

}  // namespace
}  // namespace quorb
