#include "RangeAnalysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "FakeLoaderWindow.h"
#include "MemorySheet.h"
#include "PlotData.h"
#include "PrintRange.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr int kColumnC = 3;

class RangeAnalysisTest : public testing::Test {
 protected:
  RangeAnalysisTest() { StartRunState(); }
  ~RangeAnalysisTest() override { StartRunState(); }

  RangesFound Analyse(const std::string& formula) {
    return NcolumnsUpdated(Extraction_info(formula, ""), formula, sheet, window, ranges);
  }

  /// A formula of ranges alone.
  RangesFound AnalyseTerms(const std::vector<std::string>& terms) {
    std::string formula = "=1";
    for (const std::string& term : terms)
      formula += "+MAX(" + term + ")";
    return Analyse(formula);
  }

  /// The row at which the search for the end of "A2:C2" stops.
  int EndOfData() {
    EXPECT_EQ(AnalyseTerms({"A2:C2"}), RangesFound::good);
    return ranges.rangeXYZ.numbers.num2;
  }

  std::vector<std::string> Texts() const {
    return {ranges.rangeXYZ.text,  ranges.rangeT.text,    ranges.rangeEvents.text, ranges.rangeQuater.text,
            ranges.rangeSApY.text, ranges.rangeSAmY.text, ranges.rangeValZ.text};
  }

  MemorySheet sheet;
  FakeLoaderWindow window;
  ScriptedDialogs dialogs;
  PlotRanges ranges;
};

// ---- the plain case ---------------------------------------------------------------------------------------

TEST_F(RangeAnalysisTest, SevenWholeRangesStayAsTheyAre) {
  EXPECT_EQ(Analyse("=0.01+LEN(\"T\")+MAX(A2:C9)+MAX(D2:D9)+MAX(E2:F9)+MAX(G2:K9)+MAX(L2:M9)+MAX(N2:O9)+"
                    "MAX(P2:Q12)"),
            RangesFound::good);
  EXPECT_EQ(Texts(),
            (std::vector<std::string>{"A2:C9", "D2:D9", "E2:F9", "G2:K9", "L2:M9", "N2:O9", "P2:Q12"}));
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 3, 2, 9}));
  EXPECT_EQ(ranges.rangeT.numbers, (RangeNumbers{4, 4, 2, 9}));
  EXPECT_EQ(ranges.rangeEvents.numbers, (RangeNumbers{5, 6, 2, 9}));
  EXPECT_EQ(ranges.rangeQuater.numbers, (RangeNumbers{7, 11, 2, 9}));
  EXPECT_EQ(ranges.rangeSApY.numbers, (RangeNumbers{12, 13, 2, 9}));
  EXPECT_EQ(ranges.rangeSAmY.numbers, (RangeNumbers{14, 15, 2, 9}));
  EXPECT_EQ(ranges.rangeValZ.numbers, (RangeNumbers{16, 17, 2, 12}));
  for (const PlotRange* range :
       {&ranges.rangeEvents, &ranges.rangeQuater, &ranges.rangeSApY, &ranges.rangeSAmY, &ranges.rangeValZ})
    EXPECT_FALSE(range->timeOfRangeT) << range->text;
  EXPECT_EQ(ranges.SpecFound, 0);
  EXPECT_EQ(ranges.lastRow, 12);
  EXPECT_EQ(ranges.scaleText, "0.0100000000");
  EXPECT_EQ(USERFLAG.TimeInData, 1.0);
  EXPECT_EQ(NbQuater, 1.0);
  EXPECT_TRUE(sheet.rowsAsked.empty());
  EXPECT_EQ(window.progress, std::vector<double>{10});
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(RangeAnalysisTest, EveryGivenRangeIsLogged) {
  AnalyseTerms({"A2:C9", "D2:D9", "E2:F9", "G2:K9", "L2:M9", "N2:O9", "P2:Q9"});
  EXPECT_EQ(window.log, (std::vector<std::string>{" part NcolumnsUpdated rangeXYZ$A2:C9",
                                                  " part rangeT$ D2:D9", " part rangeEvents$ E2:F9",
                                                  " part rangeQuater$ G2:K9", " part rangeSApY$ L2:M9",
                                                  " part rangeSAmY$ N2:O9", " part rangeValZ$ P2:Q9"}));
  window.log.clear();
  AnalyseTerms({"A2:C9"});
  EXPECT_EQ(window.log, std::vector<std::string>{" part NcolumnsUpdated rangeXYZ$A2:C9"});
}

TEST_F(RangeAnalysisTest, WithoutTheTimeTermThereIsNoTimeInTheData) {
  USERFLAG.TimeInData = 1.0;
  AnalyseTerms({"A2:C9"});
  EXPECT_EQ(USERFLAG.TimeInData, 0.0);
  EXPECT_EQ(NbQuater, 0.0);
}

TEST_F(RangeAnalysisTest, ASecondAnalysisKeepsNothingOfTheFirst) {
  AnalyseTerms({"A2:C9", "D2:D99", "E2"});
  AnalyseTerms({"A2:C9"});
  EXPECT_EQ(ranges.lastRow, 9);
  EXPECT_EQ(ranges.rangeT.numbers, RangeNumbers());
  EXPECT_FALSE(ranges.rangeEvents.timeOfRangeT);
}

// ---- the search for the end -------------------------------------------------------------------------------

TEST_F(RangeAnalysisTest, TheEndOfFiveThousandRowsIsFoundAndWrittenIntoTheFormula) {
  sheet.Fill(kColumnC, 1, 5000);
  EXPECT_EQ(Analyse("=MAX(A2:C2)+MAX(D2)"), RangesFound::good);
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 3, 2, 5000}));
  EXPECT_EQ(ranges.rangeXYZ.text, "A2:C5000");
  EXPECT_EQ(ranges.cellFormula, "=MAX(A2:C5000)+MAX(D2)");
  EXPECT_EQ(ranges.rangeT.text, "D2:D5000");
  EXPECT_EQ(ranges.SpecFound, 1);
  EXPECT_EQ(ranges.lastRow, 5000);
  EXPECT_EQ(sheet.activated, 1);
}

// Jumps of 1000 to the first empty cell at 5002, back by 100 to 4902, on by 10 to 5002, back by 1 to 5000.
TEST_F(RangeAnalysisTest, TheSearchLooksAtFewRowsOfTheZColumn) {
  sheet.Fill(kColumnC, 1, 5000);
  EndOfData();
  std::vector<int> expected = {2, 1002, 2002, 3002, 4002, 5002, 5002, 4902};
  for (int row = 4902; row <= 5002; row += 10)
    expected.push_back(row);
  for (int row = 5002; row >= 5000; --row)
    expected.push_back(row);
  EXPECT_EQ(sheet.rowsAsked, expected);
  EXPECT_EQ(std::count(sheet.columnsAsked.begin(), sheet.columnsAsked.end(), kColumnC),
            static_cast<long>(expected.size()));
}

TEST_F(RangeAnalysisTest, EveryLengthWithoutHolesIsFoundToTheRow) {
  for (const int end : {2, 3, 11, 12, 13, 101, 102, 103, 999, 1001, 1002, 1003, 2345, 12345}) {
    sheet.cells.clear();
    sheet.Fill(kColumnC, 1, end);
    EXPECT_EQ(EndOfData(), end);
  }
}

TEST_F(RangeAnalysisTest, AHoleBetweenTheRowsLookedAtIsJumpedOver) {
  sheet.Fill(kColumnC, 1, 500);
  sheet.Fill(kColumnC, 990, 1500);
  EXPECT_EQ(EndOfData(), 1500);
}

// Row 1002 is empty, so the search goes back by 100: 902 is filled, by 10 the first empty one is 1002.
TEST_F(RangeAnalysisTest, AHoleAtARowLookedAtEndsTheSearch) {
  sheet.Fill(kColumnC, 1, 1000);
  sheet.Fill(kColumnC, 1003, 5000);
  EXPECT_EQ(EndOfData(), 1000);
}

TEST_F(RangeAnalysisTest, AnEmptyColumnEndsWhereItStarts) {
  EXPECT_EQ(EndOfData(), 2);
  EXPECT_EQ(ranges.rangeXYZ.text, "A2:C2");
  EXPECT_EQ(ranges.SpecFound, 1);
}

TEST_F(RangeAnalysisTest, ARangeWithAnEndIsNotLookedUp) {
  AnalyseTerms({"A2:C3"});
  EXPECT_EQ(sheet.activated, 0);
  EXPECT_TRUE(sheet.rowsAsked.empty());
  EXPECT_EQ(ranges.SpecFound, 0);
}

// The last jumps of 1000 and of 10 that stay inside the sheet end at 65002 and at 65532.
TEST_F(RangeAnalysisTest, TheSearchStopsAtTheLimitOfTheSheet) {
  sheet.Fill(kColumnC, 1, 70000);
  sheet.version = 11;
  EXPECT_EQ(EndOfData(), 65532);
  EXPECT_LT(*std::max_element(sheet.rowsAsked.begin(), sheet.rowsAsked.end()), 65536);
  sheet.version = 12;
  EXPECT_EQ(EndOfData(), 70000);
}

TEST_F(RangeAnalysisTest, ASingleCellIsThreeColumnsFromThere) {
  sheet.Fill(kColumnC, 1, 50);
  EXPECT_EQ(Analyse("=MAX(A2)+MAX(D2)"), RangesFound::good);
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 3, 2, 50}));
  EXPECT_EQ(ranges.rangeXYZ.text, "A2:C50");
  EXPECT_EQ(ranges.cellFormula, "=MAX(A2:C50)+MAX(D2)");
}

TEST_F(RangeAnalysisTest, OneRowOfTheOtherRangesFollowsTheEndThatWasFound) {
  sheet.Fill(kColumnC, 1, 50);
  Analyse("=MAX(A2:C2)+MAX(D2:D2)+MAX(E2)+MAX(G2)+MAX(L3:M3)+MAX(N2:O20)+MAX(P2:Q2)");
  EXPECT_EQ(Texts(),
            (std::vector<std::string>{"A2:C50", "D2:D50", "E2:E50", "G2:J50", "L3:M51", "N2:O20", "P2:Q50"}));
  EXPECT_EQ(ranges.cellFormula,
            "=MAX(A2:C50)+MAX(D2:D50)+MAX(E2:E50)+MAX(G2:J50)+MAX(L3:M51)+MAX(N2:O20)+MAX(P2:Q50)");
  EXPECT_EQ(ranges.lastRow, 51);
}

// ---- one range for all ------------------------------------------------------------------------------------

class WideRangeTest : public RangeAnalysisTest {
 protected:
  /// The ranges of "A2:<column>9" with the terms "R2:R9" to "W2:W9" behind it.
  std::vector<std::string> TextsOfWide(const std::string& lastColumn) {
    EXPECT_EQ(AnalyseTerms({"A2:" + lastColumn + "9", "R2:R9", "S2:S9", "T2:T9", "U2:U9", "V2:V9", "W2:W9"}),
              RangesFound::good);
    EXPECT_EQ(ranges.rangeXYZ.text, "A2:C9");
    EXPECT_EQ(ranges.rangeT.text, "D2:D9");
    return {ranges.rangeEvents.text, ranges.rangeQuater.text, ranges.rangeSApY.text, ranges.rangeSAmY.text,
            ranges.rangeValZ.text};
  }

  using FiveTexts = std::vector<std::string>;
};

TEST_F(WideRangeTest, OneMoreColumnEndsBehindTheTime) {
  EXPECT_EQ(TextsOfWide("D"), (FiveTexts{"R2:R9", "S2:S9", "T2:T9", "U2:U9", "W2:W9"}));
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 4, 2, 9}));
}

TEST_F(WideRangeTest, ThreeMoreColumnsEndBehindTheEvents) {
  EXPECT_EQ(TextsOfWide("F"), (FiveTexts{"E2:F9", "R2:R9", "S2:S9", "T2:T9", "W2:W9"}));
}

TEST_F(WideRangeTest, EightMoreColumnsEndBehindTheQuaternions) {
  EXPECT_EQ(TextsOfWide("K"), (FiveTexts{"E2:F9", "G2:K9", "R2:R9", "S2:S9", "W2:W9"}));
}

TEST_F(WideRangeTest, TenMoreColumnsEndBehindTheFirstArray) {
  EXPECT_EQ(TextsOfWide("M"), (FiveTexts{"E2:F9", "G2:K9", "L2:M9", "R2:R9", "W2:W9"}));
}

TEST_F(WideRangeTest, TwelveMoreColumnsEndBehindTheSecondArray) {
  EXPECT_EQ(TextsOfWide("O"), (FiveTexts{"E2:F9", "G2:K9", "L2:M9", "N2:O9", "R2:R9"}));
}

TEST_F(WideRangeTest, AllColumnsYieldNoColourValues) {
  EXPECT_EQ(AnalyseTerms({"A2:Q9"}), RangesFound::good);
  EXPECT_EQ(Texts(), (std::vector<std::string>{"A2:C9", "D2:D9", "E2:F9", "G2:K9", "L2:M9", "N2:O9", ""}));
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 16, 2, 9}));
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(WideRangeTest, AnyOtherWidthTakesTheFixedPlaces) {
  for (const char* lastColumn : {"E", "G", "H", "I", "J", "L", "N", "P"})
    EXPECT_EQ(TextsOfWide(lastColumn), (FiveTexts{"E2:F9", "G2:K9", "L2:M9", "N2:O9", "W2:W9"}))
        << lastColumn;
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(WideRangeTest, MoreColumnsAreToldAndCutOff) {
  for (const char* lastColumn : {"R", "AZ"}) {
    dialogs.boxes.clear();
    TextsOfWide(lastColumn);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].prompt,
              "Specification QuorbExcel: too many columns, truncated to :3 + 1 + 2 + 5 + 2 + 2 + 2");
    EXPECT_EQ(dialogs.boxes[0].title, "");
    EXPECT_EQ(dialogs.boxes[0].style, kBoxInformationIcon);
    EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 16, 2, 9}));
  }
}

TEST_F(WideRangeTest, TermsThatAreNotThereLeaveTheirRangesEmpty) {
  AnalyseTerms({"A2:D9"});
  EXPECT_EQ(Texts(), (std::vector<std::string>{"A2:C9", "D2:D9", "", "", "", "", ""}));
  EXPECT_EQ(NbQuater, 0.0);
}

TEST_F(WideRangeTest, OneWideRowFollowsTheEndThatWasFound) {
  sheet.Fill(kColumnC, 1, 2000);
  Analyse("=MAX(A2:O2)");
  EXPECT_EQ(ranges.cellFormula, "=MAX(A2:O2000)");
  EXPECT_EQ(Texts(), (std::vector<std::string>{"A2:C2000", "D2:D2000", "E2:F2000", "G2:K2000", "L2:M2000",
                                               "N2:O2000", ""}));
}

TEST_F(WideRangeTest, TheFixedPlacesStartAtTheFirstColumn) {
  AnalyseTerms({"Y4:AN8"});
  EXPECT_EQ(Texts(),
            (std::vector<std::string>{"Y4:AA8", "AB4:AB8", "AC4:AD8", "AE4:AI8", "AJ4:AK8", "AL4:AM8", ""}));
}

// ---- the other ranges -------------------------------------------------------------------------------------

TEST_F(RangeAnalysisTest, ASingleTimeCellHasTheHeightOfTheMainRange) {
  Analyse("=MAX(A5:C105)+MAX(D2)");
  EXPECT_EQ(ranges.rangeT.text, "D2:D102");
  EXPECT_EQ(ranges.rangeT.numbers, (RangeNumbers{4, 4, 2, 102}));
  EXPECT_EQ(ranges.cellFormula, "=MAX(A5:C105)+MAX(D2)");
}

TEST_F(RangeAnalysisTest, ASingleColumnGoesByTheTimesOfThePoints) {
  AnalyseTerms({"A2:C9", "D2:D9", "E2:E9", "G2:J9", "L2:L9", "N2", "P2:P9"});
  for (const PlotRange* range :
       {&ranges.rangeEvents, &ranges.rangeQuater, &ranges.rangeSApY, &ranges.rangeSAmY, &ranges.rangeValZ})
    EXPECT_TRUE(range->timeOfRangeT) << range->text;
  EXPECT_EQ(ranges.rangeSAmY.text, "N2");
  EXPECT_EQ(ranges.rangeSAmY.numbers, (RangeNumbers{14, 14, 2, 2}));
}

TEST_F(RangeAnalysisTest, ASingleQuaternionCellIsFourColumnsOfOneRow) {
  Analyse("=MAX(A2:C9)+MAX(D2:D9)+MAX(E2:F9)+MAX(G2)");
  EXPECT_EQ(ranges.rangeQuater.numbers, (RangeNumbers{7, 10, 2, 2}));
  EXPECT_EQ(ranges.rangeQuater.text, "G2:J2");
  EXPECT_TRUE(ranges.rangeQuater.timeOfRangeT);
  EXPECT_EQ(ranges.cellFormula, "=MAX(A2:C9)+MAX(D2:D9)+MAX(E2:F9)+MAX(G2)");
}

TEST_F(RangeAnalysisTest, OnlyFourColumnsAreAQuaternionWithoutTime) {
  AnalyseTerms({"A2:C9", "D2:D9", "E2:F9", "G2:I9"});
  EXPECT_FALSE(ranges.rangeQuater.timeOfRangeT);
}

TEST_F(RangeAnalysisTest, WideAndReversedRangesAreClampedInTheirNumbersOnly) {
  AnalyseTerms({"A9:C2", "D9:K2", "H2:E9", "G2:Z9", "L2:Z9", "N2:Z9", "P2:Z9"});
  EXPECT_EQ(Texts(),
            (std::vector<std::string>{"A9:C2", "D9:K2", "H2:E9", "G2:Z9", "L2:Z9", "N2:Z9", "P2:Z9"}));
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 3, 9, 9}));
  EXPECT_EQ(ranges.rangeT.numbers, (RangeNumbers{4, 7, 9, 9}));
  EXPECT_EQ(ranges.rangeEvents.numbers, (RangeNumbers{8, 8, 2, 9}));
  EXPECT_EQ(ranges.rangeQuater.numbers, (RangeNumbers{7, 11, 2, 9}));
  EXPECT_EQ(ranges.rangeSApY.numbers, (RangeNumbers{12, 13, 2, 9}));
  EXPECT_EQ(ranges.rangeSAmY.numbers, (RangeNumbers{14, 15, 2, 9}));
  EXPECT_EQ(ranges.rangeValZ.numbers, (RangeNumbers{16, 17, 2, 9}));
}

TEST_F(RangeAnalysisTest, WideEventsAreClampedToThreeColumns) {
  AnalyseTerms({"A2:C9", "D2:D9", "E2:K9"});
  EXPECT_EQ(ranges.rangeEvents.numbers, (RangeNumbers{5, 7, 2, 9}));
}

// ---- a range that can't hold X, Y and Z -------------------------------------------------------------------

TEST_F(RangeAnalysisTest, ANarrowMainRangeIsToldAndEndsTheAnalysis) {
  EXPECT_EQ(Analyse("=0.5+MAX(A2:B9)"), RangesFound::tooNarrow);
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].prompt,
            "Warning: an Excel sheet is already open without a correct specification for QuorbExcelPro:    "
            "=0.5+MAX(A2:B9)   . You should open only the one with a correct specification or you can write "
            "or use a previous specification in the scolling textbox");
  EXPECT_EQ(dialogs.boxes[0].title, "Information");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxInformationIcon);
  EXPECT_TRUE(window.progress.empty());
  EXPECT_EQ(ranges.scaleText, "");
}

TEST_F(RangeAnalysisTest, APlotInOneColumnNeedsOneColumn) {
  EXPECT_EQ(Analyse("=LEN(\"My Column\")+MAX(B2:B10)"), RangesFound::good);
  EXPECT_EQ(ColumnMode, 1);
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{2, 2, 2, 10}));
  EXPECT_TRUE(dialogs.boxes.empty());
  Analyse("=MAX(A2:C9)");
  EXPECT_EQ(ColumnMode, 0);
}

TEST_F(RangeAnalysisTest, AReversedMainRangeIsNarrow) {
  EXPECT_EQ(AnalyseTerms({"D2:A9"}), RangesFound::tooNarrow);
}

// ---- bad input --------------------------------------------------------------------------------------------

TEST_F(RangeAnalysisTest, AMainRangeThatIsNoneIsToldAndStaysInTheFormula) {
  EXPECT_EQ(Analyse("=MAX(A:C)+MAX(D:D)"), RangesFound::good);
  EXPECT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(ranges.cellFormula, "=MAX(A:C)+MAX(D:D)");
  EXPECT_EQ(ranges.rangeXYZ.text, "A:C");
  EXPECT_EQ(ranges.rangeT.text, "D:D");
  EXPECT_EQ(ranges.lastRow, 0);
}

TEST_F(RangeAnalysisTest, DollarSignsPassWithoutAMessageAndWithoutUse) {
  EXPECT_EQ(Analyse("=MAX($A$2:$C$9)+MAX($D$2)+MAX($E$2)+MAX($G$2)"), RangesFound::good);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(ranges.cellFormula, "=MAX($A$2:$C$9)+MAX($D$2)+MAX($E$2)+MAX($G$2)");
  EXPECT_EQ(ranges.rangeT.text, "$D$2");
  EXPECT_EQ(ranges.rangeQuater.text, "$G$2");
}

TEST_F(RangeAnalysisTest, AWideRangeWithDollarSignsIsNotSplitAndTheOtherTermsStay) {
  Analyse("=MAX($A$2:$Z$9)+MAX(D2:D9)");
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(ranges.rangeXYZ.text, "$A$2:$Z$9");
  EXPECT_EQ(ranges.rangeT.text, "D2:D9");
  EXPECT_EQ(ranges.rangeT.numbers, (RangeNumbers{4, 4, 2, 9}));
}

TEST_F(RangeAnalysisTest, RowZeroStaysAndEndsTheSearchAtOnce) {
  sheet.Fill(kColumnC, 1, 50);
  EXPECT_EQ(AnalyseTerms({"A0:C0"}), RangesFound::good);
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{1, 3, 0, 0}));
}

TEST_F(RangeAnalysisTest, AStartBehindTheSheetEndsTheSearchAtOnce) {
  EXPECT_EQ(AnalyseTerms({"A999999999:C999999999", "D999999999"}), RangesFound::good);
  EXPECT_EQ(ranges.rangeXYZ.numbers.num2, 999999999);
  EXPECT_LE(sheet.rowsAsked.size(), 8U);
}

TEST_F(RangeAnalysisTest, ColumnsBehindTheOldLimitGoOn) {
  EXPECT_EQ(AnalyseTerms({"IW2:IY9"}), RangesFound::good);
  EXPECT_EQ(ranges.rangeXYZ.numbers, (RangeNumbers{257, 259, 2, 9}));
  EXPECT_EQ(dialogs.boxes.size(), 2U);
}

TEST_F(RangeAnalysisTest, ATermOfAHundredThousandCharactersIsPassedOver) {
  EXPECT_EQ(AnalyseTerms({"A2:C9", std::string(100000, 'D')}), RangesFound::good);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(ranges.rangeT.numbers, RangeNumbers());
  EXPECT_EQ(USERFLAG.TimeInData, 1.0);
}

}  // namespace
}  // namespace quorb
