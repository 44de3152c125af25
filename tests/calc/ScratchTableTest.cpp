#include "ScratchTable.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

std::string Fixed(double number, char mark = '.') {
  std::string text;
  AppendFixed(number, 10, mark, text);
  return text;
}

class Sink : public BlockTextSink {
 public:
  bool Take(std::string_view piece) override {
    text += piece;
    return wanted;
  }
  std::string text;
  bool wanted = true;
};

std::string TextOf(const ScratchTable& table, const CellRectangle& rectangle) {
  Sink sink;
  EXPECT_TRUE(table.Text(rectangle, '.', sink));
  return sink.text;
}

std::shared_ptr<const CellBlock> Numbers(int rows, int columns, const std::vector<double>& numbers) {
  auto block = std::make_shared<CellBlock>();
  block->rows = rows;
  block->columns = columns;
  block->numbers = numbers;
  block->kinds.assign(numbers.size(), CellKind::number);
  return block;
}

std::shared_ptr<const CellBlock> OneText(const std::string& text) {
  auto block = std::make_shared<CellBlock>();
  block->rows = block->columns = 1;
  block->numbers = {0.0};
  block->kinds = {CellKind::text};
  block->texts = {text};
  return block;
}

TEST(ScratchTableFixed, ShowsTenDecimals) {
  EXPECT_EQ(Fixed(0.5), "0.5000000000");
  EXPECT_EQ(Fixed(-4745.38033), "-4745.3803300000");
  EXPECT_EQ(Fixed(45000), "45000.0000000000");
}

TEST(ScratchTableFixed, ShowsFifteenDigitsAndThenZeros) {
  EXPECT_EQ(Fixed(100000.14285714286), "100000.1428571430");
  EXPECT_EQ(Fixed(4745380.33), "4745380.3300000000");
  EXPECT_EQ(Fixed(123456789012345.0), "123456789012345.0000000000");
  EXPECT_EQ(Fixed(1234567890123456789.0), "1234567890123460000.0000000000");
}

TEST(ScratchTableFixed, ShowsNoSignInFrontOfNothing) {
  EXPECT_EQ(Fixed(-0.0), "0.0000000000");
  EXPECT_EQ(Fixed(-1e-12), "0.0000000000");
  EXPECT_EQ(Fixed(-1e-10), "-0.0000000001");
}

TEST(ScratchTableFixed, TakesTheDecimalMarkOfTheMachine) {
  EXPECT_EQ(Fixed(-2.5, ','), "-2,5000000000");
}

TEST(ScratchTable, ReadsRangesWithAndWithoutDollars) {
  const auto one = ParseRectangle("$C$7");
  ASSERT_TRUE(one);
  EXPECT_EQ(one->firstRow, 7);
  EXPECT_EQ(one->lastColumn, 3);
  const auto turned = ParseRectangle("ab20:AA10");
  ASSERT_TRUE(turned);
  EXPECT_EQ(turned->firstColumn, 27);
  EXPECT_EQ(turned->lastColumn, 28);
  EXPECT_EQ(turned->firstRow, 10);
  EXPECT_EQ(turned->lastRow, 20);
}

TEST(ScratchTable, RefusesWhatIsNoRange) {
  for (const char* text : {"", "A", "7", "A0", "A1048577", "A1:", ":A1", "A1:B", "A1;B2", "A1B", "ZZZZ1"})
    EXPECT_FALSE(ParseRectangle(text)) << text;
  EXPECT_FALSE(ParseColumns("A1:B2"));
  EXPECT_TRUE(ParseColumns("A:R"));
}

TEST(ScratchTable, RowsEndInCrLfAndCellsInTabs) {
  ScratchTable table;
  table.Paste(2, 1, Numbers(2, 2, {1, 2, 3, 4}));
  table.SetDecimals(1, 2, 1);
  EXPECT_EQ(TextOf(table, {1, 1, 4, 3}), "\t\t\r\n1.0\t2.0\t\r\n3.0\t4.0\t\r\n\t\t\r\n");
}

TEST(ScratchTable, ColumnsWithoutFormatShowNumbersInGeneralForm) {
  ScratchTable table;
  table.Paste(1, 1, Numbers(1, 2, {0.25, 3}));
  EXPECT_EQ(TextOf(table, {1, 1, 1, 2}), "0.25\t3\r\n");
}

TEST(ScratchTable, TheLaterPasteLiesOnTop) {
  ScratchTable table;
  table.Paste(1, 1, Numbers(1, 3, {1, 2, 3}));
  table.Paste(1, 2, Numbers(1, 1, {9}));
  EXPECT_EQ(TextOf(table, {1, 1, 1, 3}), "1\t9\t3\r\n");
}

TEST(ScratchTable, ABlockThatIsFilledInPartIsEmptyBehindThat) {
  ScratchTable table;
  table.Paste(1, 1, Numbers(2, 1, {7, 8}));
  auto partly = std::make_shared<CellBlock>(*Numbers(2, 1, {1}));
  table.Paste(1, 1, partly);
  EXPECT_EQ(TextOf(table, {1, 1, 2, 1}), "1\r\n\r\n");
}

TEST(ScratchTable, ATextKeepsItsRowWhole) {
  ScratchTable table;
  table.Paste(1, 1, OneText("a\tb\r\nc\nd\re \"f\""));
  EXPECT_EQ(TextOf(table, {1, 1, 1, 2}), "a b c d e \"f\"\t\r\n");
}

TEST(ScratchTable, AWrittenTextWithTabsStandsInQuotes) {
  ScratchTable table;
  table.Write(1, 1, "From: \t=LEN(\"x\")\t");
  EXPECT_EQ(TextOf(table, {1, 1, 1, 2}), "\"From: \t=LEN(\"\"x\"\")\t\"\t\r\n");
}

TEST(ScratchTable, AWrittenTextWithoutTabsStandsAsItIs) {
  ScratchTable table;
  table.Write(1, 2, "a \"b\"");
  EXPECT_EQ(TextOf(table, {1, 1, 1, 2}), "\ta \"b\"\r\n");
}

TEST(ScratchTable, StopsWhenTheSinkWantsNoMore) {
  ScratchTable table;
  Sink sink;
  sink.wanted = false;
  EXPECT_FALSE(table.Text({1, 1, 1048576, 17}, '.', sink));
  EXPECT_LT(sink.text.size(), 1000000U);
}

}  // namespace
}  // namespace quorb
