#include "DataFile.h"
#include "LoadFixture.h"
#include "PlotReport.h"

namespace quorb {
namespace {

using testing::ElementsAre;

// ---- rows -----------------------------------------------------------------------------------------------

using ReadRowsTest = LoadFixture;

TEST_F(ReadRowsTest, ARowFillsThePointInKilometresAndDays) {
  LoadRows("1\t2\t3\t4\r\n");
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(4, 1, 2, 3, 0));
}

TEST_F(ReadRowsTest, MetresAndSecondsAreTheDefault) {
  LoadRows("1000\t2000\t-3000\t43200\r\n", "Plain");
  EXPECT_THAT(Point(0), ElementsAre(0.5, 1, 2, -3, 0));
}

TEST_F(ReadRowsTest, TheScaleMultipliesPositionsOnly) {
  Load(Header(Formula("2 + ", "kmday", 2)) + "1\t2\t3\t4\r\n");
  EXPECT_THAT(Point(0), ElementsAre(4, 2, 4, 6, 0));
}

TEST_F(ReadRowsTest, KilometresWithSeconds) {
  LoadRows("1\t2\t3\t86400\r\n", "km");
  EXPECT_THAT(Point(0), ElementsAre(1, 1, 2, 3, 0));
}

TEST_F(ReadRowsTest, ASheetOf1048576RowsFitsExactly) {
  std::string rows;
  for (int i = 0; i < 1048576; ++i)
    rows += "1\n";
  rows.replace(rows.size() - 2, 2, "7\n");
  LoadRows(rows);
  EXPECT_EQ(LastPoint, 1048575);
  EXPECT_EQ(dataXYZT[1048575][1], 7);
}

TEST_F(ReadRowsTest, PastTheRowBoundCellsAreSkippedAndCountersMove) {
  const std::string row = "1\t2\t3\t4\t5\tS\t7\t8\t9\t10\t11\t12\t13\t14\t15\t16\t17\n";
  std::string rows;
  for (int i = 0; i < 1100000; ++i)
    rows += row;
  LoadRows(rows, "kmday", 7);
  EXPECT_EQ(LastPoint, 1099999);
  EXPECT_EQ(NbEvents, 1100000);
  EXPECT_EQ(NbQuater, 1100000);
  EXPECT_EQ(NbSApY, 1100000);
  EXPECT_EQ(NbSAmY, 1100000);
  EXPECT_EQ(NbValZ, 1100000);
  EXPECT_THAT(Point(1048575), ElementsAre(4, 1, 2, 3, 0));
  EXPECT_EQ(dataQuater[1048575][4], 11);
  EXPECT_EQ(dataEventLog.text[1048575], "1");
  EXPECT_EQ(dataEventLog.text[1048576], "");
  EXPECT_EQ(ValZMax, 17 * 1.01);
  EXPECT_EQ(LoadBusy, 0);
}

TEST_F(ReadRowsTest, ANewLoadWithFewerRowsLeavesOldRowsInPlace) {
  LoadRows(Lines({"1\t1\t1\t1", "2\t2\t2\t2", "3\t3\t3\t3"}));
  LoadRows(Lines({"9\t9\t9\t9"}));
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(9, 9, 9, 9, 0));
  EXPECT_THAT(Point(2), ElementsAre(3, 3, 3, 3, 0));
  EXPECT_EQ(RowsReport("dataXYZT"), "9\t9\t9\t9\t0\n");
}

TEST_F(ReadRowsTest, ARowWithOnlyThreeFieldsHasTimeZero) {
  LoadRows(Lines({"1\t2\t3\t4"}));
  LoadRows(Lines({"1\t2\t3"}));
  EXPECT_THAT(Point(0), ElementsAre(0, 1, 2, 3, 0));
}

TEST_F(ReadRowsTest, ARowWithTwoFieldsKeepsTheCellsThatItDoesNotHave) {
  LoadRows(Lines({"1\t2\t3\t4"}));
  LoadRows(Lines({"8\t9"}));
  EXPECT_THAT(Point(0), ElementsAre(4, 8, 9, 3, 0));
}

TEST_F(ReadRowsTest, ATrailingEmptyLineAddsNoPoint) {
  LoadRows("1\t2\t3\r\n4\t5\t6\r\n\r\n");
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(LastLoad().rows, 2);
}

TEST_F(ReadRowsTest, AnEmptyLineBetweenRowsMakesNoRow) {
  LoadRows("1\t2\t3\r\n\r\n\n4\t5\t6\r\n");
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(dataXYZT[1][1], 4);
}

TEST_F(ReadRowsTest, ATrailingRowOfTabsAddsAPenUpPointAtTheOrigin) {
  LoadRows("1\t2\t3\t4\r\n\t\t\t\r\n");
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(1), ElementsAre(0, 0, 0, 0, -1));
}

TEST_F(ReadRowsTest, ALineOfBlanksIsARowAndNoPenUp) {
  LoadRows("1\t2\t3\t4\r\n  \r\n");
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(dataXYZT[1][1], 0);
  EXPECT_EQ(dataXYZT[1][4], 0);
}

TEST_F(ReadRowsTest, AnEmptyXCellGivesPenUpAndTheRowStillCountsAsAPoint) {
  LoadRows(Lines({"1\t2\t3\t4", "\t5\t6\t7", "8\t9\t10\t11"}));
  EXPECT_EQ(LastPoint, 2);
  EXPECT_THAT(Point(1), ElementsAre(7, 0, 5, 6, -1));
  EXPECT_EQ(dataXYZT[0][4], 0);
  EXPECT_EQ(dataXYZT[2][4], 0);
}

TEST_F(ReadRowsTest, AFileWithACommaAsDecimalMarkLoadsTheSameNumbers) {
  LoadRows(Lines({"1.2500000000\t-2.5000000000\t1234567.1250000000\t0.5000000000"}));
  const std::vector<double> withPoint = Point(0);
  LoadRows(Lines({"0\t0\t0\t0"}));
  LoadRows(Lines({"1,2500000000\t-2,5000000000\t1234567,1250000000\t0,5000000000"}));
  EXPECT_EQ(Point(0), withPoint);
  EXPECT_THAT(withPoint, ElementsAre(0.5, 1.25, -2.5, 1234567.125, 0));
}

TEST_F(ReadRowsTest, AFieldThatIsNotANumberGivesWhatItCanAndTheRowStays) {
  LoadRows(Lines({"abc\t12x\tNaN\t1e400", "1\t2\t3\t4"}));
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(0), ElementsAre(0, 0, 12, 0, 0));
}

TEST_F(ReadRowsTest, MoreThanTwentyFieldsAreDropped) {
  std::string row = "1";
  for (int field = 2; field <= 25; ++field)
    row += "\t" + std::to_string(field);
  LoadRows(Lines({row, "8\t8\t8\t8"}), "kmday", 7);
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(7, 8, 9, 10, 11));
  EXPECT_THAT(Row(dataSApY, 0), ElementsAre(12, 13));
  EXPECT_THAT(Row(dataSAmY, 0), ElementsAre(14, 15));
  EXPECT_THAT(Row(dataValZ, 0), ElementsAre(16, 17));
}

TEST_F(ReadRowsTest, AZeroByteInALineDoesNotEndIt) {
  LoadRows(std::string("1\0\t2\t3\t4\r\n5\t6\t7\t8\r\n", 19));
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(0), ElementsAre(4, 1, 2, 3, 0));
  EXPECT_THAT(Point(1), ElementsAre(8, 5, 6, 7, 0));
}

TEST_F(ReadRowsTest, FilesOfLoneLineEndsLoadAlike) {
  const std::string header = Header(Formula("", "kmday", 2));
  for (const std::string end : {"\r\n", "\n", "\r"}) {
    LoadRows(Lines({"0\t0\t0\t0"}));
    Load(header.substr(0, header.size() - 2) + end + "1\t2\t3\t4" + end + "5\t6\t7\t8" + end);
    EXPECT_EQ(LastPoint, 1);
    EXPECT_THAT(Point(0), ElementsAre(4, 1, 2, 3, 0));
    EXPECT_THAT(Point(1), ElementsAre(8, 5, 6, 7, 0));
  }
}

TEST_F(ReadRowsTest, TenMegabytesOnOneLineAreOneRow) {
  LoadRows(std::string(10000000, '7') + "\t2\t3\t4\r\n1\t1\t1\t1\r\n");
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(0), ElementsAre(4, 0, 2, 3, 0));
  LoadRows(std::string(10000000, '\t') + "\r\n");
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(0, 0, 0, 0, -1));
}

// ---- the other tables -----------------------------------------------------------------------------------

TEST_F(ReadRowsTest, EveryTableHasItsColumns) {
  LoadRows(Lines({"1\t2\t3\t86400\t172800\tS\t86400\t0.1\t0.2\t0.3\t0.4\t43200\t10\t21600\t20\t86400\t5",
                  "1\t2\t3\t86400\t259200\tE\t86400\t0.5\t0.6\t0.7\t0.8\t43200\t30\t21600\t40\t86400\t6"}),
           "km", 7);
  EXPECT_THAT(Row(dataEvents, 0), ElementsAre(2, 1));
  EXPECT_THAT(Row(dataEvents, 1), ElementsAre(3, 0));
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(1, 0.1, 0.2, 0.3, 0.4));
  EXPECT_THAT(Row(dataQuater, 1), ElementsAre(1, 0.5, 0.6, 0.7, 0.8));
  EXPECT_THAT(Row(dataSApY, 1), ElementsAre(0.5, 30));
  EXPECT_THAT(Row(dataSAmY, 1), ElementsAre(0.25, 40));
  EXPECT_THAT(Row(dataValZ, 1), ElementsAre(1, 6));
  EXPECT_EQ(NbEvents, 2);
  EXPECT_EQ(NbQuater, 2);
  EXPECT_EQ(NbSApY, 2);
  EXPECT_EQ(NbSAmY, 2);
  EXPECT_EQ(NbValZ, 2);
}

TEST_F(ReadRowsTest, QuaternionsAndColourValuesCountEveryRowThatHasTheFields) {
  LoadRows(Lines({"1\t2\t3\t4\t\t\t5\t1\t0\t0\t0\t6\t7\t8\t9\t10\t11", "1\t2\t3\t4\t\t\t\t\t\t\t\t\t\t\t\t\t",
                  "1\t2\t3\t4\t\t\t\t\t\t\t\t\t\t\t\t\t"}),
           "kmday", 7);
  EXPECT_EQ(NbQuater, 3);
  EXPECT_EQ(NbValZ, 3);
  EXPECT_EQ(NbSApY, 1);
  EXPECT_EQ(NbSAmY, 1);
  EXPECT_THAT(Row(dataQuater, 2), ElementsAre(0, 0, 0, 0, 0));
}

TEST_F(ReadRowsTest, AHoleInTheTimesOfAnArrayCutsItsTail) {
  const std::string head = "1\t2\t3\t4\t\t\t\t\t\t\t\t";
  LoadRows(Lines({head + "1\t10\t1\t60", head + "\t20\t\t70", head + "3\t30\t3\t80"}), "kmday", 6);
  EXPECT_EQ(NbSApY, 2);
  EXPECT_EQ(NbSAmY, 2);
  EXPECT_THAT(Row(dataSApY, 1), ElementsAre(0, 20));
  EXPECT_THAT(Row(dataSApY, 2), ElementsAre(3, 30));
}

TEST_F(ReadRowsTest, ARowThatEndsWithinATableStillCounts) {
  LoadRows(Lines({"1\t2\t3\t4\t5\t1\t6\t1\t0\t0\t0\t7\t8\t9", "1\t2\t3\t4\t5\t1\t6\t1\t0\t0\t0\t7",
                  "1\t2\t3\t4\t5\t1\t6\t0.5"}),
           "kmday", 6);
  EXPECT_EQ(NbQuater, 3);
  EXPECT_THAT(Row(dataQuater, 2), ElementsAre(6, 0.5, 0, 0, 0));
  EXPECT_EQ(NbSApY, 2);
  EXPECT_EQ(NbSAmY, 1);
}

TEST_F(ReadRowsTest, ColourValuesAreReadOnlyWithTheirRange) {
  const std::string row = "1\t2\t3\t4\t\t\t\t\t\t\t\t\t\t\t\t5\t6";
  LoadRows(Lines({row}), "kmday", 6);
  EXPECT_EQ(NbValZ, 0);
  EXPECT_THAT(Row(dataValZ, 0), ElementsAre(0, 0));
  LoadRows(Lines({row}), "kmday", 7);
  EXPECT_EQ(NbValZ, 1);
  EXPECT_THAT(Row(dataValZ, 0), ElementsAre(5, 6));
}

// ---- events ---------------------------------------------------------------------------------------------

TEST_F(ReadRowsTest, Events11100KeepRowsForThe1st2ndAnd4thChange) {
  LoadRows(Lines({"1\t1\t1\t1\t10\t1", "1\t1\t1\t1\t20\t1", "1\t1\t1\t1\t30\t1", "1\t1\t1\t1\t40\t0",
                  "1\t1\t1\t1\t50\t0"}),
           "kmday", 3);
  EXPECT_THAT(Row(dataEvents, 0), ElementsAre(10, 1));
  EXPECT_THAT(Row(dataEvents, 1), ElementsAre(20, 1));
  EXPECT_THAT(Row(dataEvents, 2), ElementsAre(40, 0));
  EXPECT_EQ(NbEvents, 5);
  EXPECT_EQ(FlagOptionToPlot, 1);
}

TEST_F(ReadRowsTest, TheRowBehindTheLastChangeHoldsTheLastEventRow) {
  LoadRows(Lines({"1\t1\t1\t1\t10\t1", "1\t1\t1\t1\t20\t1", "1\t1\t1\t1\t30\t0", "1\t1\t1\t1\t40\t0"}),
           "kmday", 3);
  EXPECT_THAT(Row(dataEvents, 2), ElementsAre(30, 0));
  EXPECT_THAT(Row(dataEvents, 3), ElementsAre(40, 0));
}

TEST_F(ReadRowsTest, TheLogKeepsEveryEventRow) {
  LoadRows(Lines({"1\t1\t1\t1\t10\tS", "1\t1\t1\t1\t20\tS", "1\t1\t1\t1\t\t", "1\t1\t1\t1\t40\t Burn "}),
           "kmday", 3);
  EXPECT_EQ(NbEvents, 4);
  const double times[] = {10, 20, 0, 40};
  const char* const texts[] = {"1", "1", "0", "Burn"};
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(dataEventLog.time[row][0], times[row]);
    EXPECT_EQ(dataEventLog.text[row], texts[row]);
  }
}

TEST_F(ReadRowsTest, AnEmptyEventTimeMakesNoChange) {
  LoadRows(Lines({"1\t1\t1\t1\t10\tS", "1\t1\t1\t1\t\tE", "1\t1\t1\t1\t30\tE"}), "kmday", 3);
  EXPECT_THAT(Row(dataEvents, 0), ElementsAre(10, 1));
  // The blank row's text was already noted as the last one, so the row behind it is no change.
  EXPECT_THAT(Row(dataEvents, 1), ElementsAre(30, 0));
  EXPECT_EQ(NbEvents, 3);
}

TEST_F(ReadRowsTest, ARowOfExactlyFiveFieldsIsAnEventWithoutText) {
  LoadRows(Lines({"1\t1\t1\t1\t9\tS", "1\t1\t1\t1\t9\tE"}), "kmday", 3);
  LoadRows(Lines({"1\t1\t1\t1\t10", "1\t1\t1\t1\t20"}), "kmday", 3);
  EXPECT_EQ(NbEvents, 2);
  EXPECT_EQ(dataEvents[0][0], 10);
  EXPECT_EQ(dataEvents[1][0], 20);
  EXPECT_EQ(dataEventLog.text[0], "");
  EXPECT_EQ(dataEventLog.text[1], "");
}

TEST_F(ReadRowsTest, APlotWithoutEventsHasNbEventsOneAndTwoRowsOfZero) {
  LoadRows(Lines({"1\t1\t1\t1\t10\tS", "1\t1\t1\t1\t20\tS"}), "kmday", 3);
  LoadRows(Lines({"1\t1\t1\t1", "1\t1\t1\t1"}));
  EXPECT_EQ(NbEvents, 1);
  EXPECT_THAT(Row(dataEvents, 0), ElementsAre(0, 0));
  EXPECT_THAT(Row(dataEvents, 1), ElementsAre(0, 0));
}

TEST_F(ReadRowsTest, AnEarlierPlotsEventsDoNotReachIntoTheNewOnes) {
  LoadRows(Lines({"1\t1\t1\t1\t10\t1", "1\t1\t1\t1\t20\t2", "1\t1\t1\t1\t30\t3", "1\t1\t1\t1\t40\t4"}),
           "kmday", 3);
  LoadRows(Lines({"1\t1\t1\t1\t50\t5", "1\t1\t1\t1\t60\t6", "1\t1\t1\t1\t70\t6", "1\t1\t1\t1\t\t"}), "kmday",
           3);
  EXPECT_EQ(NbEvents, 4);
  EXPECT_THAT(Row(dataEvents, 1), ElementsAre(60, 6));
  EXPECT_THAT(Row(dataEvents, 2), ElementsAre(0, 0));
  EXPECT_THAT(Row(dataEvents, 3), ElementsAre(0, 0));
}

// ---- modes ----------------------------------------------------------------------------------------------

TEST_F(ReadRowsTest, ColumnModeWithNineLinesGivesThreePointsAndTheTimeStillMovesPerLine) {
  std::vector<std::string> rows;
  for (int i = 1; i <= 9; ++i)
    rows.push_back(std::to_string(i) + "\t77\t88\t" + std::to_string(100 + i));
  LoadRows(Lines(rows), "column kmday", 2);
  EXPECT_EQ(ColumnMode, 1);
  EXPECT_EQ(LastPoint, 2);
  for (int point = 0; point < 3; ++point) {
    EXPECT_EQ(dataXYZT[point][1], 3 * point + 1);
    EXPECT_EQ(dataXYZT[point][2], 3 * point + 2);
    EXPECT_EQ(dataXYZT[point][3], 3 * point + 3);
  }
  for (int row = 0; row < 9; ++row)
    EXPECT_EQ(dataXYZT[row][0], 101 + row);
}

TEST_F(ReadRowsTest, ColumnModeScalesPositions) {
  Load(Header(Formula("2 + ", "column")) + Lines({"1000", "2000", "3000"}));
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(dataXYZT[0][1], 2);
  EXPECT_EQ(dataXYZT[0][2], 4);
  EXPECT_EQ(dataXYZT[0][3], 6);
}

TEST_F(ReadRowsTest, InPenUpModeEveryRowIsAPenUpRowWithASecondPoint) {
  LoadRows(Lines({"1\t2\t3\t4\t\t\t5\t6\t7", "1\t2\t3\t4\t\t\t\t6\t7"}), "penup kmday", 4);
  EXPECT_EQ(PenUpMode, 1);
  EXPECT_EQ(dataXYZT[0][4], -1);
  EXPECT_EQ(dataXYZT[1][4], -1);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(5, 6, 7, 0, 0));
  EXPECT_THAT(Row(dataQuater, 1), ElementsAre(0, 6, 7, -1, 0));
}

TEST_F(ReadRowsTest, InPenUpModeWithKilometresSecondPointsKeepTheirRawValuesAndWithMetresTheyAreScaled) {
  const std::string row = Lines({"1000\t2000\t3000\t4\t\t\t5000\t6000\t7000"});
  Load(Header(Formula("2 + ", "penup km", 4)) + row);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(5000, 6000, 7000, 0, 0));
  Load(Header(Formula("2 + ", "penup", 4)) + row);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(10, 12, 14, 0, 0));
}

TEST_F(ReadRowsTest, InPenUpModeTimesOfPointsAndEventsAreNotDividedAndThoseOfTheArraysAre) {
  LoadRows(Lines({"1\t2\t3\t86400\t86400\tS\t86400\t1\t1\t1\t1\t86400\t9\t172800\t9\t86400\t9"}), "penup km",
           7);
  EXPECT_EQ(dataXYZT[0][0], 86400);
  EXPECT_EQ(dataEvents[0][0], 86400);
  EXPECT_EQ(dataEventLog.time[0][0], 86400);
  EXPECT_EQ(dataQuater[0][0], 86400);
  EXPECT_EQ(dataSApY[0][0], 1);
  EXPECT_EQ(dataSAmY[0][0], 2);
  EXPECT_EQ(dataValZ[0][0], 1);
}

TEST_F(ReadRowsTest, PenUpLabelModeKeepsALabelForEachPoint) {
  LoadRows(Lines({"1\t2\t3\t4\t5\tParis", "1\t2\t3\t4\t5\t Caf\xE9 ", "1\t2\t3\t4"}), "penuplabel kmday", 3);
  EXPECT_EQ(PenUpLabelMode, 1);
  EXPECT_EQ(PenUpMode, 1);
  EXPECT_EQ(dataPenUpLabel[0], "Paris");
  EXPECT_EQ(dataPenUpLabel[1], " Caf\xC3\xA9 ");
  EXPECT_EQ(dataPenUpLabel[2], "");
}

TEST_F(ReadRowsTest, LabelsOfAnEarlierPlotAreGone) {
  LoadRows(Lines({"1\t2\t3\t4\t5\tParis", "1\t2\t3\t4\t5\tRome"}), "penuplabel kmday", 3);
  LoadRows(Lines({"1\t2\t3\t4", "1\t2\t3\t4"}), "penuplabel kmday", 3);
  EXPECT_EQ(dataPenUpLabel[0], "");
  EXPECT_EQ(dataPenUpLabel[1], "");
}

TEST_F(ReadRowsTest, WithoutPenUpLabelModeThereAreNoLabels) {
  LoadRows(Lines({"1\t2\t3\t4\t5\tParis"}), "kmday", 3);
  EXPECT_EQ(dataPenUpLabel[0], "");
}

// ---- progress and lost parts ----------------------------------------------------------------------------

TEST_F(ReadRowsTest, TheProgressBarMovesAboutSixtyTimesOverTheHeightOfTheRange) {
  std::string rows;
  for (int i = 0; i < 6001; ++i)
    rows += "1\t2\t3\r\n";
  Load(Header("=MAX(A2:C6002)") + rows);
  // A move at every 101st row: 59 of them in 6001 rows, from 31 to 89, and 90 behind the rows.
  ASSERT_EQ(window.progress.size(), 60U);
  EXPECT_EQ(window.progress.front(), 31);
  EXPECT_EQ(window.progress[58], 89);
  EXPECT_EQ(window.progress.back(), 90);
}

TEST_F(ReadRowsTest, TheProgressBarStaysBelow100) {
  std::string rows;
  for (int i = 0; i < 1000; ++i)
    rows += "1\t2\t3\r\n";
  Load(Header("=MAX(A2:C2)") + rows);
  ASSERT_EQ(window.progress.size(), 70U);
  EXPECT_EQ(window.progress[68], 99);
  EXPECT_EQ(window.progress.back(), 90);
}

TEST_F(ReadRowsTest, ARowThatReachesIntoALostPartIsNotStored) {
  files.shrunk = true;
  LoadRows(std::string("1\t2\t3\t4\r\n5\t6\t7\t8\r\n9\t1\0\0\0\0\0\0", 27));
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(LastLoad().rows, 2);
  EXPECT_THAT(
      window.log.back(),
      "The data file became shorter while it was read: rows are missing behind row 2. Load it again.");
}

TEST_F(ReadRowsTest, ARowWhoseBytesWentWhileItWasSplitIsNotStored) {
  files.lostPart = true;
  LoadRows(Lines({"1\t2\t3\t4", "5\t6\t7\t8"}));
  EXPECT_EQ(LastLoad().rows, 0);
  EXPECT_THAT(
      window.log.back(),
      "The data file became shorter while it was read: rows are missing behind row 0. Load it again.");
  EXPECT_EQ(LoadBusy, 0);
}

}  // namespace
}  // namespace quorb
