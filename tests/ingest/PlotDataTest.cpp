#include "PlotData.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace quorb {
namespace {

TEST(PlotData, TablesHaveTheRowsOfAWorksheet) {
  EXPECT_EQ(kRowBound, 1048576);
  EXPECT_EQ(sizeof(dataXYZT.cell), 1048576U * 5 * 8);
  EXPECT_EQ(sizeof(dataEvents.cell), 1048576U * 2 * 8);
  EXPECT_EQ(sizeof(dataQuater.cell), 1048576U * 5 * 8);
  EXPECT_EQ(sizeof(dataSApY.cell), 1048576U * 2 * 8);
  EXPECT_EQ(sizeof(dataSAmY.cell), 1048576U * 2 * 8);
  EXPECT_EQ(sizeof(dataValZ.cell), 1048576U * 2 * 8);
}

TEST(PlotData, ACellIsWrittenAndReadInItsPlaceUpToTheLastRow) {
  EXPECT_TRUE(dataSApY.Set(1048575, 1, 2.5));
  EXPECT_EQ(dataSApY[1048575][1], 2.5);
  EXPECT_TRUE(dataSApY.Holds(0));
  EXPECT_TRUE(dataSApY.Holds(1048575));
  dataSApY.Set(1048575, 1, 0);
}

TEST(PlotData, AnIndexOutsideTheBoundsChangesNothing) {
  dataSApY.Set(1048575, 1, 7);
  dataSApY.Set(0, 0, 8);
  EXPECT_FALSE(dataSApY.Set(1048576, 0, 1));
  EXPECT_FALSE(dataSApY.Set(-1, 0, 1));
  EXPECT_FALSE(dataSApY.Set(0, 2, 1));
  EXPECT_FALSE(dataSApY.Set(0, -1, 1));
  EXPECT_FALSE(dataSApY.Set(INT64_MAX, 0, 1));
  EXPECT_FALSE(dataSApY.Holds(1048576));
  EXPECT_FALSE(dataSApY.Holds(-1));
  EXPECT_EQ(dataSApY[1048575][1], 7);
  EXPECT_EQ(dataSApY[0][0], 8);
  dataSApY.Set(1048575, 1, 0);
  dataSApY.Set(0, 0, 0);
}

TEST(PlotData, ANumberCellThatWasNeverAssignedReadsAsZero) {
  static NumberTable<2> fresh;
  EXPECT_EQ(fresh[0][0], 0);
  EXPECT_EQ(fresh[1048575][1], 0);
}

class TextColumnTest : public testing::Test {
 protected:
  std::unique_ptr<TextColumn> column = std::make_unique<TextColumn>();
};

TEST_F(TextColumnTest, TextsOfRowsStayApart) {
  EXPECT_TRUE(column->Set(0, "first"));
  EXPECT_TRUE(column->Set(2, "third"));
  EXPECT_EQ((*column)[0], "first");
  EXPECT_EQ((*column)[1], "");
  EXPECT_EQ((*column)[2], "third");
}

TEST_F(TextColumnTest, ALaterTextOverwrites) {
  column->Set(0, "a long first text");
  column->Set(0, "b");
  EXPECT_EQ((*column)[0], "b");
  column->Set(0, "");
  EXPECT_EQ((*column)[0], "");
}

TEST_F(TextColumnTest, ATextMayHoldAnyByte) {
  const std::string bytes("a\0b", 3);
  column->Set(0, bytes);
  column->Set(1, "\xC3\xA9");
  EXPECT_EQ((*column)[0], bytes);
  EXPECT_EQ((*column)[1], "\xC3\xA9");
}

TEST_F(TextColumnTest, EqualTextsInARowAndInAlternationAllRead) {
  for (int row = 0; row < 100; ++row)
    column->Set(row, row / 10 % 2 == 0 ? "0" : "1");
  for (int row = 0; row < 100; ++row)
    EXPECT_EQ((*column)[row], row / 10 % 2 == 0 ? "0" : "1") << row;
}

TEST_F(TextColumnTest, ARowOutsideTheBoundsIsNotWrittenAndReadsEmpty) {
  EXPECT_TRUE(column->Set(1048575, "last"));
  EXPECT_FALSE(column->Set(1048576, "x"));
  EXPECT_FALSE(column->Set(-1, "x"));
  EXPECT_EQ((*column)[1048575], "last");
  EXPECT_EQ((*column)[1048576], "");
  EXPECT_EQ((*column)[-1], "");
}

TEST_F(TextColumnTest, RestartForgetsEveryText) {
  column->Set(3, "old");
  column->Restart();
  EXPECT_EQ((*column)[3], "");
  column->Set(1, "new");
  EXPECT_EQ((*column)[1], "new");
  EXPECT_EQ((*column)[3], "");
}

TEST(RaiseFlatMaximum, ZeroAndZeroGivesOne) {
  double maximum = 0;
  RaiseFlatMaximum(maximum, 0);
  EXPECT_EQ(maximum, 1);
}

TEST(RaiseFlatMaximum, AnotherFlatValueGrowsByOneHundredth) {
  double maximum = 5;
  RaiseFlatMaximum(maximum, 5);
  EXPECT_DOUBLE_EQ(maximum, 5.05);
}

TEST(RaiseFlatMaximum, ASpanThatIsNotFlatStays) {
  double maximum = 3;
  RaiseFlatMaximum(maximum, 2);
  EXPECT_EQ(maximum, 3);
}

}  // namespace
}  // namespace quorb
