#include "ViewData.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(ViewData, TellsTheCursorOfEachSheet) {
  const std::string text = "100/60/0;1;tw:738;2/4/0/0/0/0/2/0/0/0/0;6/9/0/0/0/0/2/0/0/0/0";
  int row = 0, column = 0;
  CursorCell(text, 0, row, column);
  EXPECT_EQ(row, 5);
  EXPECT_EQ(column, 3);
  CursorCell(text, 1, row, column);
  EXPECT_EQ(row, 10);
  EXPECT_EQ(column, 7);
}

TEST(ViewData, LongSheetsPartTheirNumbersByPlus) {
  int row = 0, column = 0;
  CursorCell("100/60/0;0;tw:270;16+1048574+0+0+0+0+2+0+0+0+0", 0, row, column);
  EXPECT_EQ(row, 1048575);
  EXPECT_EQ(column, 17);
}

TEST(ViewData, TheSheetsThatWereNotShownYetHaveEmptyParts) {
  const std::string text = "100/60/0;2;tw:270;;;5/7/0/0/0/0/2/0/0/0/0";
  int row = 0, column = 0;
  CursorCell(text, 2, row, column);
  EXPECT_EQ(row, 8);
  EXPECT_EQ(column, 6);
  for (const int sheet : {0, 1, 3}) {
    row = column = 9;
    CursorCell(text, sheet, row, column);
    EXPECT_EQ(row, 1) << sheet;
    EXPECT_EQ(column, 1) << sheet;
  }
}

TEST(ViewData, AnEmptyPartStandsBetweenOthersToo) {
  int row = 0, column = 0;
  CursorCell("100/60/0;2;tw:270;1/2/0/0/0/0/2/0/0/0/0;;5/7/0/0/0/0/2/0/0/0/0", 2, row, column);
  EXPECT_EQ(row, 8);
  EXPECT_EQ(column, 6);
}

TEST(ViewData, TheWidthOfTheTabBarMayBeMissing) {
  int row = 0, column = 0;
  CursorCell("100/60/0;1;;3/4/0/0/0/0/2/0/0/0/0", 1, row, column);
  EXPECT_EQ(row, 5);
  EXPECT_EQ(column, 4);
}

TEST(ViewData, WithoutAnEntryTheCursorIsAtTheBeginning) {
  int row = 9, column = 9;
  CursorCell("", 0, row, column);
  EXPECT_EQ(row, 1);
  EXPECT_EQ(column, 1);
}

TEST(ViewData, TheProductsNameAndTheWindowsNumberAreCutOff) {
  EXPECT_EQ(CaptionOfTitle("orbit.ods - LibreOffice Calc", "orbit.ods"), "orbit.ods");
  EXPECT_EQ(CaptionOfTitle("orbit.ods \u2014 LibreOffice Calc", "orbit.ods"), "orbit.ods");
  EXPECT_EQ(CaptionOfTitle("orbit.ods : 2 - LibreOffice Calc", "orbit.ods"), "orbit.ods");
  EXPECT_EQ(CaptionOfTitle("a - b.ods (read-only) - LibreOffice Calc", "a - b.ods"), "a - b.ods (read-only)");
}

TEST(ViewData, ATitleWithoutProductStays) {
  EXPECT_EQ(CaptionOfTitle("a - b.ods", "a - b.ods"), "a - b.ods");
  EXPECT_EQ(CaptionOfTitle("", ""), "");
}

}  // namespace
}  // namespace quorb
