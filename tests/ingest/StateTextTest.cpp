#include "StateText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  LineWalk walk(text);
  while (walk.Next())
    lines.push_back(std::to_string(walk.Number()) + std::string(walk.Line()));
  return lines;
}

TEST(StateText, LineEndsAtCarriageReturnLineFeedOrBoth) {
  EXPECT_THAT(LinesOf("a\r\nb\nc\rd"), ElementsAre("1a", "2b", "3c", "4d"));
  EXPECT_THAT(LinesOf("a\n\nb\n"), ElementsAre("1a", "2", "3b"));
  EXPECT_THAT(LinesOf(""), ElementsAre());
}

TEST(StateText, OffsetIsTracedToItsLine) {
  const std::string_view text = "ab\r\nc\n\nd";
  EXPECT_EQ(LineOfOffset(text, 0), 1U);
  EXPECT_EQ(LineOfOffset(text, 3), 1U);
  EXPECT_EQ(LineOfOffset(text, 4), 2U);
  EXPECT_EQ(LineOfOffset(text, 6), 3U);
  EXPECT_EQ(LineOfOffset(text, 7), 4U);
  EXPECT_EQ(LineOfOffset(text, 99), 4U);
  EXPECT_EQ(LineOfOffset("", 0), 1U);
}

TEST(StateText, WordsAreSplitAtRunsOfBlanksAndTabs) {
  EXPECT_THAT(SplitWords("  a \t bc  d "), ElementsAre("a", "bc", "d"));
  EXPECT_THAT(SplitWords(" \t "), ElementsAre());
}

TEST(StateText, NumberTakesTheWholeField) {
  EXPECT_DOUBLE_EQ(ParseNumberField(" -5167.4525798095301 ").value(), -5167.4525798095301);
  EXPECT_DOUBLE_EQ(ParseNumberField("+1.5E3").value(), 1500);
  EXPECT_DOUBLE_EQ(ParseNumberField(".5").value(), 0.5);
  for (const char* text : {"", " ", "+", "+-1", "1,5", "1.5x", "1 2", "0x10", "abc", "1.5D3"}) {
    EXPECT_FALSE(ParseNumberField(text).has_value()) << text;
  }
}

TEST(StateText, NumberThatIsNotFiniteIsRefused) {
  for (const char* text : {"nan", "NaN", "-nan", "inf", "-Infinity", "1e400"}) {
    EXPECT_FALSE(ParseNumberField(text).has_value()) << text;
  }
}

TEST(StateText, MessageQuotesAreCutAndHoldNoControlCharacters) {
  EXPECT_EQ(QuotedForMessage("a\tb"), "\"a b\"");
  EXPECT_EQ(QuotedForMessage(std::string(50, 'x')), "\"" + std::string(40, 'x') + "...\"");
}

TEST(StateText, FullTableTakesNoFurtherState) {
  StateTable table;
  table.time.resize(kMaxStates - 1);
  table.x = table.y = table.z = table.time;
  const StateFields fields = {"2025-001T00:00:00", "1", "2", "3"};
  EXPECT_EQ(AppendState(fields, EpochForm::epoch, table).what, "");
  const StateFault fault = AppendState(fields, EpochForm::epoch, table);
  EXPECT_EQ(fault.what,
            "more than 1048575 states, which is all that a data file holds: thin them out or split the file");
  EXPECT_EQ(table.time.size(), kMaxStates);
  EXPECT_EQ(table.z.size(), kMaxStates);
}

}  // namespace
}  // namespace quorb
