#include "TextHelpers.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(TextHelpersTest, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim("\xC2\xA0"
                 "a"),
            "\xC2\xA0"
            "a");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(TextHelpersTest, UpperTextTurnsAsciiAndLatin1) {
  EXPECT_EQ(UpperText("kmday Answer 42_z"), "KMDAY ANSWER 42_Z");
  EXPECT_EQ(UpperText("répété à þ"), "RÉPÉTÉ À Þ");
}

TEST(TextHelpersTest, LowerTextTurnsAsciiAndLatin1) {
  EXPECT_EQ(LowerText("KMDAY Answer 42_Z"), "kmday answer 42_z");
  EXPECT_EQ(LowerText("RÉPÉTÉ À Þ"), "répété à þ");
}

TEST(TextHelpersTest, LettersOfOneCaseSignsAndOtherScriptsStand) {
  EXPECT_EQ(UpperText("ß÷ÿœ°€"), "ß÷ÿœ°€");
  EXPECT_EQ(LowerText("ß×ŸŒ°€"), "ß×ŸŒ°€");
  EXPECT_EQ(UpperText("\xE0"), "\xE0");
}

TEST(TextHelpersTest, Utf8SequencesOfEveryLength) {
  EXPECT_EQ(Utf8SequenceLength("a", 0), 1U);
  EXPECT_EQ(Utf8SequenceLength("xé", 1), 2U);
  EXPECT_EQ(Utf8SequenceLength("€", 0), 3U);
  EXPECT_EQ(Utf8SequenceLength("\xF0\x9F\x9B\xB0", 0), 4U);
  EXPECT_EQ(Utf8SequenceLength("\xF4\x8F\xBF\xBF", 0), 4U);
}

TEST(TextHelpersTest, BytesThatAreNoUtf8) {
  EXPECT_EQ(Utf8SequenceLength("\xA0", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("é", 1), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xC3", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xC3z", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xE2\x82", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xC1\xBF", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xE0\x9F\xBF", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xF0\x8F\xBF\xBF", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xED\xA0\x80", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xF4\x90\x80\x80", 0), 0U);
  EXPECT_EQ(Utf8SequenceLength("\xF8\x88\x80\x80\x80", 0), 0U);
}

TEST(TextHelpersTest, CharactersAreSequencesAndStrayBytes) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("été"), 3U);
  EXPECT_EQ(CharacterCount("\xE9t\xE9"), 3U);
  EXPECT_EQ(CharacterCount("€\x80"), 2U);
}

}  // namespace
}  // namespace quorb
