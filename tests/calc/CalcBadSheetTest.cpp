#include <gmock/gmock.h>

#include "CalcLoadFixture.h"
#include "FixedRegion.h"
#include "NumberText.h"

namespace quorb {
namespace {

using CalcBadSheet = CalcLoadFixture;

constexpr const char* kPlain = "=MAX(A2:C4)";

TEST_F(CalcBadSheet, AFormulaWithAnErrorIsStillTheSpecification) {
  const int document = OpenPlot("=LEN(\"kmday\")+MAX(A2:C4)+nosuchname");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", "=LEN(\"kmday\")+MAX(A2:C4)+nosuchname",
                                  "1.0000000000", "kmday") +
                               PlotRows());
}

TEST_F(CalcBadSheet, ErrorsAmongTheDataComeAsTheyAreShown) {
  const int document = OpenPlot(kPlain);
  Type(document, 2, 1, "=1/0");
  Type(document, 3, 2, "=NA()");
  Settle(document, "A1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kPlain, "1.0000000000", "QuorbExcelPro") +
                               Row({"[#DIV/0!]", "22", "23"}) + Row({"31", "[#N/A]", "33"}) +
                               Row({"41", "42", "43"}));
  EXPECT_EQ(LastPoint, 2);
}

TEST_F(CalcBadSheet, TextsDatesAndPercentagesAmongTheData) {
  const int document = OpenPlot(kPlain);
  ASSERT_TRUE(User().TypeText(document, 0, 2, 1, "two\tand\na \"half\"").Good());
  ASSERT_TRUE(User().TypeText(document, 0, 3, 1, "2,5").Good());
  Type(document, 2, 2, "45000.25");
  Type(document, 3, 2, "0.125");
  Type(document, 4, 2, "=TRUE()");
  ASSERT_TRUE(User().SetFormat(document, 0, "B2", "YYYY-MM-DD").Good());
  ASSERT_TRUE(User().SetFormat(document, 0, "B3", "0%").Good());
  ASSERT_TRUE(User().SetFormat(document, 0, "C2:C4", "0").Good());
  Settle(document, "A1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kPlain, "1.0000000000", "QuorbExcelPro") +
                               Row({"[two and a \"half\"]", "[45000.2500000000]", "23"}) +
                               Row({"[2,5]", "[0.1250000000]", "33"}) + Row({"41", "1", "43"}));
}

TEST_F(CalcBadSheet, MergedCellsAndWhatIsHiddenOrFilteredAwayComeAlong) {
  const int document = OpenPlot(kPlain);
  Type(document, 3, 1, "");
  ASSERT_TRUE(User().Merge(document, 0, "A2:A3").Good());
  ASSERT_TRUE(User().HideRows(document, 0, "A4:A4").Good());
  ASSERT_TRUE(User().HideColumns(document, 0, "C2:C4").Good());
  ASSERT_TRUE(User().FilterRows(document, 0, "B2:C4", 0, 30).Good());
  Settle(document, "T1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Sheet1", kPlain, "1.0000000000", "QuorbExcelPro") +
                               Row({"21", "22", "23"}) + Row({"", "32", "33"}) + Row({"41", "42", "43"}));
}

TEST_F(CalcBadSheet, AProtectedSheetIsPlottedWithAComputedTitleToo) {
  const int document = OpenPlot("=LEN(\"Orbit \"&B3)+MAX(A2:C4)");
  ASSERT_TRUE(User().Protect(document, 0).Good());
  Load();
  EXPECT_EQ(WrittenFile(),
            Header(TitleOf(document), "Sheet1", "=LEN(\"Orbit 32\")+MAX(A2:C4)", "1.0000000000", "Orbit 32") +
                PlotRows());
}

TEST_F(CalcBadSheet, ARangeThatIsTooNarrowIsToldAndTheFileBeforeStays) {
  OpenPlot("=MAX(A2:B4)");
  files_.contents[kLastFile] = "before";
  Load();
  EXPECT_EQ(files_.contents[kLastFile], "before");
  ASSERT_EQ(dialogs_.boxes.size(), 1U);
  EXPECT_THAT(dialogs_.boxes[0].prompt, testing::HasSubstr("   =MAX(A2:B4)   "));
}

TEST_F(CalcBadSheet, ATitleThatCannotBeComputedLeavesTheFormulaAsItIs) {
  const int document = OpenPlot("=LEN(NOSUCHNAME)+MAX(A2:C4)");
  Load();
  EXPECT_THAT(WrittenFile(), testing::StartsWith("\"From: \t" + TitleOf(document) + "\tSheet1\t=LEN("));
  EXPECT_THAT(WrittenFile(), testing::EndsWith(PlotRows()));
}

// The rows of the file for the first `points` points.
std::string RowsOf(const std::vector<std::string>& rows, int points) {
  std::string text;
  for (int i = 0; i < points; ++i)
    text += rows[static_cast<std::size_t>(i)];
  return text;
}

// A sheet that is filled to its end: 1,048,575 points below a heading. Their numbers have few binary digits.
TEST_F(CalcBadSheet, TheLongestSheetFits) {
  constexpr int kPoints = 1048575;
  const int document = OpenPlot("=MAX(A2:C1048576)");
  std::vector<double> numbers;
  numbers.reserve(3U * kPoints);
  for (int i = 0; i < kPoints; ++i)
    numbers.insert(numbers.end(), {i % 8192 + 0.5, -i % 4096 - 0.25, i % 1000 + 0.125});
  ASSERT_TRUE(User().TypeNumbers(document, 0, 2, 1, 3, numbers).Good());
  Settle(document, "T1");
  Load();
  std::vector<std::string> rows;
  rows.reserve(kPoints);
  for (std::size_t i = 0; i < numbers.size(); i += 3)
    rows.push_back(Field(numbers[i]) + "\t" + Field(numbers[i + 1]) + "\t" + Field(numbers[i + 2]) +
                   std::string(14, '\t') + "\r\n");
  const std::string title = TitleOf(document);
  EXPECT_TRUE(WrittenFile() == Header(title, "Sheet1", "=MAX(A2:C1048576)", "1.0000000000", "QuorbExcelPro") +
                                   RowsOf(rows, kPoints))
      << WrittenFile().substr(0, 400);
  EXPECT_EQ(LastPoint, kPoints - 1);

  // The search for the end goes down in jumps, the shortest of ten rows: from row 1,048,572 the next one
  // would leave the sheet.
  constexpr int kPointsFound = 1048571;
  files_.contents.clear();
  Type(document, 1, 20, "=MAX(A2:C2)");
  Settle(document, "T1");
  Load();
  EXPECT_TRUE(WrittenFile() == Header(title, "Sheet1", "=MAX(A2:C1048572)", "1.0000000000", "QuorbExcelPro") +
                                   RowsOf(rows, kPointsFound))
      << WrittenFile().substr(0, 400);
  EXPECT_EQ(LastPoint, kPointsFound - 1);
}

// In a German office numbers are shown with a comma, and functions have German names.
class CalcGermanSheet : public CalcLoadFixture {
 protected:
  static void SetUpTestSuite() { office_ = std::make_unique<RealOffice>("", "de-DE"); }
};

TEST_F(CalcGermanSheet, TheFileHasTheDecimalMarkOfThisProgram) {
  const int document = OpenPlot("=0.5+LEN(\"kmday \"&A3)+MAX(A2:C4)");
  Type(document, 3, 1, "2.5");
  std::string shown;
  ASSERT_TRUE(User().Shown(document, 0, 3, 1, shown).Good());
  ASSERT_EQ(shown, "2,5") << "the office does not speak German";
  Settle(document, "T1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Tabelle1", "=0.5+LEN(\"kmday 2,5\")+MAX(A2:C4)",
                                  "0.5000000000", "kmday 2,5") +
                               Row({"21", "22", "23"}) + Row({"[2.5000000000]", "32", "33"}) +
                               Row({"41", "42", "43"}));
}

TEST_F(CalcGermanSheet, WhereThatIsACommaTheFileHasCommas) {
  const FixedRegion region(",", ".");
  const int document = OpenPlot("=2+MAX(A2:C4)");
  Type(document, 3, 1, "2.5");
  Settle(document, "T1");
  Load();
  EXPECT_EQ(WrittenFile(),
            Header(TitleOf(document), "Tabelle1", "=2+MAX(A2:C4)", "2,0000000000", "QuorbExcelPro") +
                Row({"[21,0000000000]", "[22,0000000000]", "[23,0000000000]"}) +
                Row({"[2,5000000000]", "[32,0000000000]", "[33,0000000000]"}) +
                Row({"[41,0000000000]", "[42,0000000000]", "[43,0000000000]"}));
  EXPECT_DOUBLE_EQ(dataXYZT[1][1], 0.005);
}

TEST_F(CalcGermanSheet, AScaleBelowOneIsReadAsTheSheetShowsIt) {
  const FixedRegion region(",", ".");
  const int document = OpenPlot("=0.5+LEN(\"kmday \"&A3)+MAX(A2:C4)");
  Type(document, 3, 1, "2.5");
  Settle(document, "T1");
  Load();
  const std::string line = Header(TitleOf(document), "Tabelle1", "=5E-1+LEN(\"kmday 2,5\")+MAX(A2:C4)",
                                  "0,5000000000", "kmday 2,5");
  EXPECT_EQ(WrittenFile().substr(0, line.size()), line);
}

TEST_F(CalcGermanSheet, TheKeywordMayBeAFunctionOfThatLanguage) {
  window_.keyword = "SUMME";
  const int document = OpenPlot("=0.01+LEN(\"Bahn\")+SUM(A2:C4)");
  Settle(document, "A9");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Tabelle1", "=0.01+LEN(\"Bahn\")+SUMME(A2:C4)",
                                  "0.0100000000", "Bahn") +
                               PlotRows());
}

TEST_F(CalcGermanSheet, TheSelectedCellGoesBeforeOthersWithThatFunction) {
  window_.keyword = "SUMME";
  const int document = OpenPlot("=0.01+LEN(\"Bahn\")+SUM(A2:C4)");
  Type(document, 1, 2, "=SUM(B2:B4)");
  Settle(document, "T1");
  Load();
  EXPECT_EQ(WrittenFile(), Header(TitleOf(document), "Tabelle1", "=0.01+LEN(\"Bahn\")+SUMME(A2:C4)",
                                  "0.0100000000", "Bahn") +
                               PlotRows());
}

}  // namespace
}  // namespace quorb
