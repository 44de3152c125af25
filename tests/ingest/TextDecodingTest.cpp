#include "TextDecoding.h"

#include <gtest/gtest.h>

#include <string>

namespace quorb {
namespace {

TEST(TextDecoding, AsciiAndValidUtf8StayAsTheyStand) {
  EXPECT_EQ(DecodeText(""), "");
  EXPECT_EQ(DecodeText("Transfer kmday"), "Transfer kmday");
  EXPECT_EQ(DecodeText("\xC3\xA9t\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x9A\x80"),
            "\xC3\xA9t\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x9A\x80");
}

TEST(TextDecoding, OtherBytesAreReadAsWindows1252) {
  EXPECT_EQ(DecodeText("\xE9t\xE9"), "\xC3\xA9t\xC3\xA9");
  EXPECT_EQ(DecodeText("10 \x80"), "10 \xE2\x82\xAC");
  EXPECT_EQ(DecodeText("\x9F\xFF"), "\xC5\xB8\xC3\xBF");
}

TEST(TextDecoding, OneStrayByteTurnsTheWholeTextToWindows1252) {
  EXPECT_EQ(DecodeText("\xC3\xA9\xE9"), "\xC3\x83\xC2\xA9\xC3\xA9");
}

TEST(TextDecoding, Character160IsANoBreakSpaceInBoth) {
  EXPECT_EQ(DecodeText("1\xA0"
                       "234"),
            "1\xC2\xA0"
            "234");
  EXPECT_EQ(DecodeText("1\xC2\xA0"
                       "234"),
            "1\xC2\xA0"
            "234");
}

TEST(TextDecoding, AFreeByteOfWindows1252KeepsItsNumber) {
  EXPECT_EQ(DecodeText("\x81"), "\xC2\x81");
}

TEST(TextDecoding, AZeroByteStays) {
  const std::string text("a\0\xE9", 3);
  EXPECT_EQ(DecodeText(text), std::string("a\0\xC3\xA9", 4));
}

TEST(TextDecoding, TellsValidUtf8) {
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_TRUE(IsUtf8("\xF4\x8F\xBF\xBF"));
  EXPECT_FALSE(IsUtf8("\x80"));
  EXPECT_FALSE(IsUtf8("a\xC3"));
  EXPECT_FALSE(IsUtf8("\xC0\xAF"));
  EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
  EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));
}

}  // namespace
}  // namespace quorb
