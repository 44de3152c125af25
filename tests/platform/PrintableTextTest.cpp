#include "PrintableText.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(PrintableText, DecodesUtf8OfEveryLength) {
  EXPECT_EQ(PrintableText("aé€😀"), (std::u32string{U'a', 0xE9, 0x20AC, 0x1F600}));
}

TEST(PrintableText, ControlCharactersAreBlanks) {
  EXPECT_EQ(PrintableText(std::string("a\tb\r\nc\0d", 8)), U"a b  c d");
}

TEST(PrintableText, ByteThatIsNoUtf8IsAQuestionMark) {
  EXPECT_EQ(PrintableText("caf\xE9"), U"caf?");
  EXPECT_EQ(PrintableText("\xE9t\xE9"), U"?t?");
  EXPECT_EQ(PrintableText("\x80"), U"?");
}

TEST(PrintableText, OverlongSurrogateAndTooLargeAreNoUtf8) {
  EXPECT_EQ(PrintableText("\xC0\x80"), U"??");
  EXPECT_EQ(PrintableText("\xE0\x80\x80"), U"???");
  EXPECT_EQ(PrintableText("\xED\xA0\x80"), U"???");
  EXPECT_EQ(PrintableText("\xF4\x90\x80\x80"), U"????");
}

TEST(PrintableText, EndsBehindAThousandCharacters) {
  EXPECT_EQ(PrintableText(std::string(5000, 'x')).size(), 1000U);
}

}  // namespace
}  // namespace quorb
