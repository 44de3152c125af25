#include <gmock/gmock.h>

#include "CalcLoadFixture.h"

namespace quorb {
namespace {

using CalcLoad = CalcLoadFixture;

constexpr const char* kFormula = "=0.01+LEN(\"Orbit kmday\")+MAX(A2:C4)";
constexpr const char* kScale = "0.0100000000";
constexpr const char* kNoScale = "1.0000000000";

TEST_F(CalcLoad, TheSelectedCellHoldsTheFormula) {
  const int document = OpenPlot(kFormula);
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kFormula, kScale, "Orbit kmday") + PlotRows());
  EXPECT_EQ(LastPoint, 2);
  EXPECT_DOUBLE_EQ(dataXYZT[1][2], 0.32);
  EXPECT_THAT(dialogs_.boxes, testing::IsEmpty());
}

TEST_F(CalcLoad, TheSelectionStaysOnSeveralCellsElsewhere) {
  const int document = OpenPlot(kFormula);
  Settle(document, "C9:E30");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kFormula, kScale, "Orbit kmday") + PlotRows());
}

TEST_F(CalcLoad, TheFormulaIsFoundFarAwayBehindTextsThatLookLikeIt) {
  const int document = OpenPlot(kFormula, 700, 40);
  ASSERT_TRUE(User().TypeText(document, 0, 1, 5, "=MAX(A1:C1)").Good());
  Type(document, 6, 1, "MAX(A2:C2) is what the plot shows");
  Type(document, 7, 1, "=MIN(A2:C4)");
  Settle(document, "A7");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kFormula, kScale, "Orbit kmday") + PlotRows());
}

TEST_F(CalcLoad, OfTwoSheetsTheOneOnShowIsPlotted) {
  const int document = OpenPlot("=MAX(A2:C3)");
  ASSERT_TRUE(User().AddSheet(document, "Été 2").Good());
  ASSERT_TRUE(User().TypeNumbers(document, 1, 2, 1, 3, {1, 2, 3, 4, 5, 6}).Good());
  Type(document, 9, 9, "=MAX(A2:C3)", 1);
  ASSERT_TRUE(User().ShowSheet(document, 1).Good());
  Settle(document, "A1", 1);
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Été 2", "=MAX(A2:C3)", kNoScale, "QuorbExcelPro") +
                               Row({"1", "2", "3"}) + Row({"4", "5", "6"}));
}

TEST_F(CalcLoad, OfTwoDocumentsTheOneInFrontIsPlotted) {
  const int first = OpenPlot(kFormula);
  OpenPlot("=MAX(A2:C3)");
  ASSERT_TRUE(User().ToFront(first).Good());
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(first), "Sheet1", kFormula, kScale, "Orbit kmday") + PlotRows());
}

TEST_F(CalcLoad, BehindATextDocumentTheSheetIsPlotted) {
  const int document = OpenPlot(kFormula);
  ASSERT_TRUE(User().ToFront(OpenText()).Good());
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kFormula, kScale, "Orbit kmday") + PlotRows());
}

TEST_F(CalcLoad, ATitleMayBeComputedFromACell) {
  const int document = OpenPlot("=LEN(\"Orbit \" & B3)+MAX(A2:C4)");
  Load();
  EXPECT_EQ(WrittenFile(),
            Header(TitleOf(document), "Sheet1", "=LEN(\"Orbit 32\")+MAX(A2:C4)", kNoScale, "Orbit 32") +
                PlotRows());
}

TEST_F(CalcLoad, ATitleMayBeComputedByAFunction) {
  const int document = OpenPlot("=0.5+LEN(CONCATENATE(\"kmday \";$B$3;UPPER(\" x\"))) + MAX(A2:C4)");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", "=0.5+LEN(\"kmday 32 X\")+MAX(A2:C4)",
                                  "0.5000000000", "kmday 32 X") +
                               PlotRows());
}

TEST_F(CalcLoad, ASpecificationMayBeTyped) {
  const int document = OpenPlot("");
  window_.onPause = [] { SpecTypedText = "=2+LEN(\"Typed\")+MAX(A3:C4)"; };
  Load();
  // The table is as high as the last row that a range names.
  EXPECT_EQ(WrittenFile(),
            Header(TitleOf(document), "Sheet1", "=2+LEN(\"Typed\")+MAX(A3:C4)", "2.0000000000", "Typed") +
                Row({"31", "32", "33"}) + Row({"41", "42", "43"}) + Row({}));
  EXPECT_THAT(window_.textTempo, testing::StartsWith("Please enter the specification"));
}

TEST_F(CalcLoad, WithoutASpecificationTheFileBeforeStays) {
  OpenPlot("");
  files_.contents[kLastFile] = "before";
  window_.onPause = [this] { window_.SetTag(LoaderControl::Command6, "demo"); };
  Load();
  EXPECT_EQ(files_.contents[kLastFile], "before");
}

TEST_F(CalcLoad, TheEndOfRangesOfOneRowIsLookedUp) {
  const int document = OpenPlot("=MAX(A2:C2)+MAX(D2:D2)+MAX(E2:F2)");
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 4, 3, {7, 8, 1, 9, 10, 0}).Good());
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", "=MAX(A2:C4)+MAX(D2:D4)+MAX(E2:F4)", kNoScale,
                                  "QuorbExcelPro") +
                               Row({"21", "22", "23", "7", "8", "1"}) +
                               Row({"31", "32", "33", "9", "10", "0"}) + Row({"41", "42", "43"}));
}

// Columns of A to O, two rows: hundreds tell the row, the rest the column.
std::vector<double> WideBlock() {
  std::vector<double> numbers;
  for (const int row : {100, 200})
    for (int column = 1; column <= 15; ++column)
      numbers.push_back(row + column);
  return numbers;
}

std::vector<std::string> Fields(int row, int first, int last) {
  std::vector<std::string> fields;
  for (int column = first; column <= last; ++column)
    fields.push_back(std::to_string(row + column));
  return fields;
}

TEST_F(CalcLoad, OneWideRangeHoldsAllTerms) {
  const int document = OpenPlot("=MAX(A2:O3)");
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 1, 15, WideBlock()).Good());
  ASSERT_TRUE(User().SetModified(document, false).Good());
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", "=MAX(A2:O3)", kNoScale, "QuorbExcelPro") +
                               Row(Fields(100, 1, 15)) + Row(Fields(200, 1, 15)));
}

TEST_F(CalcLoad, BehindAWideRangeComesTheColourValue) {
  const int document = OpenPlot("=MAX(A2:O3)+MAX(W2:X3)");
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 1, 15, WideBlock()).Good());
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 23, 2, {116, 117, 216, 217}).Good());
  Load();
  EXPECT_EQ(WrittenFile(),
            Header(TitleOf(document), "Sheet1", "=MAX(A2:O3)+MAX(W2:X3)", kNoScale, "QuorbExcelPro") +
                Row(Fields(100, 1, 17)) + Row(Fields(200, 1, 17)));
}

// The terms stand in another order in the sheet, and are not of one height.
TEST_F(CalcLoad, SevenTermsWithTheirOwnTimes) {
  const std::string formula =
      "=MAX(Z2:AB4)+MAX(AC2:AC4)+MAX(A2:B2)+MAX(F2:J3)+MAX(C2:D3)+MAX(L2:M4)+MAX(P5:Q6)";
  const int document = OpenSheet();
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 26, 4, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}).Good());
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 1, 4, {50, 1, 60, 61, 0, 0, 62, 63}).Good());
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 6, 5, {70, 71, 72, 73, 74, 75, 76, 77, 78, 79}).Good());
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 12, 2, {80, 81, 82, 83, 84, 85}).Good());
  ASSERT_TRUE(User().TypeNumbers(document, 0, 5, 16, 2, {90, 91, 92, 93}).Good());
  Type(document, 1, 20, formula);
  Settle(document, "T1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", formula, kNoScale, "QuorbExcelPro") +
                               Row({"1", "2", "3", "4", "50", "1", "70", "71", "72", "73", "74", "60", "61",
                                    "80", "81", "90", "91"}) +
                               Row({"5", "6", "7", "8", "", "", "75", "76", "77", "78", "79", "62", "63",
                                    "82", "83", "92", "93"}) +
                               Row({"9", "10", "11", "12", "", "", "", "", "", "", "", "", "", "84", "85"}) +
                               Row({}) + Row({}));
}

TEST_F(CalcLoad, SevenTermsWithTheTimeOfThePoints) {
  const std::string formula = "=MAX(A2:C3)+MAX(D2:D3)+MAX(E2:E3)+MAX(F2:I3)+MAX(J2:J3)+MAX(K2:K3)+MAX(L2:L3)";
  const int document = OpenSheet();
  ASSERT_TRUE(User()
                  .TypeNumbers(document, 0, 2, 1, 12, {11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22,
                                                       31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42})
                  .Good());
  Type(document, 1, 20, formula);
  Settle(document, "T1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", formula, kNoScale, "QuorbExcelPro") +
                               Row({"11", "12", "13", "14", "14", "15", "14", "16", "17", "18", "19", "14",
                                    "20", "14", "21", "14", "22"}) +
                               Row({"31", "32", "33", "34", "34", "35", "34", "36", "37", "38", "39", "34",
                                    "40", "34", "41", "34", "42"}));
}

}  // namespace
}  // namespace quorb
