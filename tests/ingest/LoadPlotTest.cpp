#include <filesystem>

#include "CommExcl.h"
#include "DataFile.h"
#include "Keywords.h"
#include "LoadFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using LoadPlotTest = LoadFixture;

TEST_F(LoadPlotTest, TheLogTellsEveryStep) {
  const std::string header = Header(Formula("0.01 + ", "Transfer kmday", 2));
  Load(header + "1\t2\t3\t4\r\n");
  EXPECT_THAT(
      window.log,
      ElementsAre("NameTempo$ /app/_QuorbExcelPro.qbv", "ccdir$ " + std::filesystem::current_path().string(),
                  "FILEcOMMANDnAME$ /data/plot.qbv", "/data/plot.qbv is open",
                  " The demo will be shown False",
                  "frmMain.LinInputW  1, lin$ 'Line Input #1, lin " + header.substr(0, header.size() - 2),
                  "Extraction_info cellFormula " + Formula("0.01 + ", "Transfer kmday", 2),
                  " Check SpecialCasesPermutUnitsmoon rangeXYZ$ A2:C9"));
}

TEST_F(LoadPlotTest, TheStepsOfTheWindowComeInTheirOrder) {
  USERFLAG.UpdateAsked = 1.0;
  std::vector<std::string> states;
  window.onCall = [&](const std::string& call) {
    states.push_back(call + " complete " + std::to_string(static_cast<int>(USERFLAG.SynchroExcelComplete)) +
                     " busy " + std::to_string(LoadBusy) + " resize " + std::to_string(ResizeArmed) +
                     " update " + std::to_string(static_cast<int>(USERFLAG.UpdateAsked)) + " bar " +
                     std::to_string(window.progressVisible));
  };
  LoadRows("1\t2\t3\r\n");
  EXPECT_THAT(states, ElementsAre("Command2_Click complete 0 busy 0 resize 1 update 1 bar 0",
                                  "Form_Resize complete 0 busy 1 resize 0 update 0 bar 1",
                                  "CameraSet isonew 2 0 complete 0 busy 0 resize 1 update 0 bar 0",
                                  "CameraSet isonew 2 0 complete 0 busy 0 resize 1 update 0 bar 0",
                                  "Command2_Click complete 0 busy 0 resize 1 update 0 bar 0"));
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
  EXPECT_EQ(window.speed, 9);
  EXPECT_FALSE(window.progressVisible);
  EXPECT_EQ(window.progress.back(), 90);
}

TEST_F(LoadPlotTest, AColumnPlotTakesTheBodiesOffAndLeavesThePanelAlone) {
  USERFLAG.ShowSatellite = 1.0;
  LoadRows(Lines({"1", "2", "3"}), "column kmday");
  EXPECT_THAT(window.calls,
              ElementsAre("Command2_Click", "Form_Resize", "CameraSet isonew 2 0", "CameraSet isonew 2 0"));
  EXPECT_EQ(USERFLAG.NoPlotEarth, 1.0);
  EXPECT_EQ(USERFLAG.ShowSatellite, 0.0);
}

TEST_F(LoadPlotTest, ALoadBehindAColumnPlotClearsItsPoints) {
  LoadRows(Lines({"1", "2", "3", "4", "5", "6"}), "column kmday");
  ASSERT_EQ(LastPoint, 1);
  ASSERT_THAT(Point(1), ElementsAre(0, 4, 5, 6, 0));
  window.calls.clear();
  DEJADRAW = 1;
  FILEcOMMANDnAME = kName;
  files.contents[kName] = Header(Formula("", "kmday")) + "9\t9\t9\r\n";
  LoadPlot();
  EXPECT_EQ(DEJADRAW, 0);
  EXPECT_THAT(Point(0), ElementsAre(0, 9, 9, 9, 0));
  EXPECT_THAT(Point(1), ElementsAre(0, 0, 0, 0, 0));
  EXPECT_THAT(window.calls,
              ElementsAre("Form_Resize", "CameraSet isonew 2 0", "CameraSet isonew 2 0", "Command2_Click"));
}

TEST_F(LoadPlotTest, TheMainKeywordIsReadFromThePanelAtEachLoad) {
  window.keyword = "  SUM ";
  Load(Header("=3 + SUM(A2:C9)") + "1\t2\t3\r\n");
  EXPECT_EQ(MainKeyword, "SUM");
  EXPECT_EQ(LastLoad().specification.rangeXYZ, "A2:C9");
  window.keyword = "MOYENNE";
  Load(Header("=3 + MAX(A2:C9)") + "1\t2\t3\r\n");
  EXPECT_EQ(MainKeyword, "MAX");
  EXPECT_EQ(LastLoad().specification.rangeXYZ, "A2:C9");
}

TEST_F(LoadPlotTest, TheWholeCommandLineIsTheName) {
  files.contents["/data/my own orbit.qbv"] = Header(Formula("", "kmday")) + "1\t2\t3\r\n";
  LoadNamed("/data/my own orbit.qbv");
  EXPECT_EQ(FILEcOMMANDnAME, "/data/my own orbit.qbv");
  EXPECT_EQ(LastLoad().rows, 1);
  LoadNamed("\"/data/my own orbit.qbv\"");
  EXPECT_EQ(LastLoad().rows, 1);
}

TEST_F(LoadPlotTest, AFormulaOfARangeAloneIsNoPlotToScale) {
  Load(Header("=MAX(A2:C60)") + "1\t2\t3\r\n4\t5\t6\r\n");
  EXPECT_EQ(ISOmode, 0);
  EXPECT_EQ(FactorScale, 1);
  EXPECT_EQ(LastPoint, 1);
}

// Every word at once, each in the spelling that it is looked for: the later rows of each table win.
TEST_F(LoadPlotTest, ATitleOfEveryKeywordLoads) {
  std::string title = "All";
  for (const std::string_view word : SearchedKeywords())
    title += " " + std::string(word);
  Load(Header(Formula("0.5 + ", title, 1)) + "1\t2\t3\r\n4\t5\t6\r\n");
  EXPECT_EQ(ColumnMode, 1);
  EXPECT_EQ(PenUpMode + PenUpLabelMode, 2);
  EXPECT_EQ(FocusBody, 6) << "jupiter is last";
  EXPECT_EQ(MoonFocus, 1);
  EXPECT_EQ(EMSystem, 1);
  EXPECT_EQ(USERFLAG.NedInput, 1.0);
  EXPECT_EQ(QuaterScalarLast, 1);
  EXPECT_EQ(LoadBusy, 0);
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
}

TEST_F(LoadPlotTest, AFormulaOf100000CharactersLoads) {
  Load(Header(Formula("0.5 + ", std::string(100000, 'x'), 1)) + "1\t2\t3\r\n");
  EXPECT_EQ(MessageUserToPlot.size(), 100000U);
  std::string terms = "=0.5";
  for (int term = 0; term < 9000; ++term)
    terms += "+MAX(A2:C9)";
  Load(Header(terms) + "1\t2\t3\r\n");
  EXPECT_EQ(FactorScale, 0.5);
  EXPECT_EQ(LastPoint, 0);
}

TEST_F(LoadPlotTest, RowsBehindTheBoundAreToldInTheLog) {
  std::string rows;
  for (int row = 0; row < kRowBound; ++row)
    rows += "1\t2\t3\t4\r\n";
  const auto told = [this] {
    return std::count(
        window.log.begin(), window.log.end(),
        "The data file has more rows than the 1048576 that a plot takes: the rows behind them are "
        "left out.");
  };
  LoadRows(rows);
  EXPECT_EQ(told(), 0);
  LoadRows(rows + "1\t2\t3\t4\r\n");
  EXPECT_EQ(told(), 1);
}

TEST_F(LoadPlotTest, TheFileIsClosedAtTheEnd) {
  LoadRows("1\t2\t3\r\n");
  EXPECT_EQ(files.open, 0);
}

TEST_F(LoadPlotTest, WithoutAWindowNothingHappens) {
  SetLoaderWindow(nullptr);
  LoadRows("1\t2\t3\r\n");
  EXPECT_THAT(files.asked, IsEmpty());
}

// ---- header ---------------------------------------------------------------------------------------------

TEST_F(LoadPlotTest, TitleAndScaleOfTheFormulaGoBeforeThoseOfTheFields) {
  Load(Header(Formula("2 + ", "Own title kmday"), "5.0000000000", "Field title") + "1\t1\t1\r\n");
  EXPECT_EQ(MessageUserToPlot, "Own title");
  EXPECT_EQ(FactorScale, 2);
  EXPECT_EQ(dataXYZT[0][1], 2);
}

TEST_F(LoadPlotTest, AFormulaWithoutQuotesTakesTheTitleOfTheField) {
  Load(Header("= 2 + MAX(A2:C9)", "5.0000000000", "Field title kmday") + "1\t1\t1\r\n");
  EXPECT_EQ(MessageUserToPlot, "Field title");
  EXPECT_EQ(dataXYZT[0][1], 2);
}

TEST_F(LoadPlotTest, AFormulaWhoseScaleReadsZeroTakesTheScaleOfTheField) {
  Load(Header("=MAX(A2:C9)", "5.0000000000", "kmday") + "1\t1\t1\r\n");
  EXPECT_EQ(FactorScale, 5);
  EXPECT_EQ(dataXYZT[0][1], 5);
  EXPECT_EQ(ISOmode, 1);
}

TEST_F(LoadPlotTest, EmptyFieldsCountForNothing) {
  Load(Header("=MAX(A2:C9)") + "1000\t1\t1\r\n");
  EXPECT_EQ(MessageUserToPlot, "QuorbExcelPro");
  EXPECT_EQ(FactorScale, 1);
  EXPECT_EQ(dataXYZT[0][1], 1);
}

TEST_F(LoadPlotTest, TwoQuotesInTheFormulaAreATitle) {
  Load(Header("= 2 + LEN(\"\") + MAX(A2:C9)", "", "Field title") + "1\t1\t1\r\n");
  EXPECT_EQ(MessageUserToPlot, "");
}

TEST_F(LoadPlotTest, QuotesDoubledAndPlainQuotesLoadAlike) {
  const std::string rows = Lines({"1\t2\t3\t4", "5\t6\t7\t8"});
  Load(Header(Formula("2 + ", "Leg kmday", 2)) + rows);
  const std::vector<std::vector<double>> plain = {Point(0), Point(1)};
  const std::string plainTitle = MessageUserToPlot;
  LoadRows(Lines({"0\t0\t0\t0", "0\t0\t0\t0"}));

  Load(
      "\"From: \tB\tS\t= 2 + LEN(\"\"Leg kmday\"\") + MAX(A2:C9) + MAX(D2:D9)\t2.0000000000\tLeg "
      "kmday\tDate\tm\t\"\r\n" +
      rows);
  EXPECT_EQ(Point(0), plain[0]);
  EXPECT_EQ(Point(1), plain[1]);
  EXPECT_EQ(plainTitle, "Leg");
  EXPECT_EQ(MessageUserToPlot, "Leg");
  EXPECT_EQ(FactorScale, 2);
  EXPECT_EQ(LastLoad().specification.rangeXYZ, "A2:C9");
  EXPECT_EQ(LastLoad().specification.rangeT, "D2:D9");
}

TEST_F(LoadPlotTest, AHeaderWithoutAFormulaKeepsTheDefaultsAndTheRowsAreRead) {
  Load("no header at all\r\n1000\t2000\t3000\t86400\r\n");
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(1, 1, 2, 3, 0));
  EXPECT_EQ(MessageUserToPlot, "QuorbExcelPro");
  EXPECT_EQ(FactorScale, 1);
  EXPECT_EQ(LastFormula, "");
  EXPECT_TRUE(window.HasLog("Extraction_info cellFormula "));
  EXPECT_TRUE(window.HasLog(" Check SpecialCasesPermutUnitsmoon rangeXYZ$ "));
}

TEST_F(LoadPlotTest, ADamagedFormulaKeepsWhatItHas) {
  Load(Header("= 2 + LEN(\"Half + MAX(A2:C9") + "1000\t2000\t3000\r\n");
  EXPECT_EQ(MessageUserToPlot, "QuorbExcelPro");
  EXPECT_EQ(FactorScale, 2);
  EXPECT_EQ(LastLoad().specification.rangeXYZ, "");
  EXPECT_EQ(dataXYZT[0][1], 2);
}

TEST_F(LoadPlotTest, ATitleInTheOldCodePageIsReadInUtf8) {
  Load(Header(Formula("", "\xC9t\xE9 kmday")) + "1\t2\t3\r\n");
  EXPECT_EQ(MessageUserToPlot, "\xC3\x89t\xC3\xA9");
}

TEST_F(LoadPlotTest, TimeInDataTellsWhetherATimeRangeWasSpecified) {
  LoadRows("1\t2\t3\t4\r\n", "kmday", 2);
  EXPECT_EQ(USERFLAG.TimeInData, 1.0);
  LoadRows("1\t2\t3\t4\r\n", "kmday", 1);
  EXPECT_EQ(USERFLAG.TimeInData, 0.0);
}

TEST_F(LoadPlotTest, TrailingBlanksOfTheTitleGoOnceAtTheEnd) {
  LoadRows("1\t2\t3\r\n", "Transfer kmday");
  EXPECT_EQ(MessageUserToPlot, "Transfer");
}

TEST_F(LoadPlotTest, NothingOfAnEarlierTitleLasts) {
  LoadRows(Lines({"1\t2\t3\t4\t5\tx\t7\t8\t9"}), "penuplabel valz lamdor moon sun xyzw kmday", 4);
  EXPECT_EQ(PenUpLabelMode + PenUpMode + ValColour + MoonFocus, 4);
  LoadRows("1000\t2\t3\r\n", "Plain");
  EXPECT_EQ(PenUpLabelMode + PenUpMode + ValColour + MoonFocus + QuaterScalarLast + ColumnMode + EMSystem, 0);
  EXPECT_EQ(FocusBody, 4);
  EXPECT_EQ(USERFLAG.LogoScale, 0.0);
  EXPECT_EQ(ValAxis, 3);
  EXPECT_FALSE(InputInKm);
  EXPECT_EQ(dataXYZT[0][1], 1);
}

TEST_F(LoadPlotTest, APenUpLabelPlotClearsTheCubicView) {
  window.controls[LoaderControl::Check9].value = 1;
  LoadRows("1\t2\t3\r\n", "kmday");
  EXPECT_EQ(window.Value(LoaderControl::Check9), 1);
  LoadRows("1\t2\t3\r\n", "penuplabel");
  EXPECT_EQ(window.Value(LoaderControl::Check9), 0);
}

// ---- no rows --------------------------------------------------------------------------------------------

class NoRowsTest : public LoadFixture {
 protected:
  void ExpectBuiltInPlot() {
    constexpr double kRadius = 10.5 * 29242.77201;
    EXPECT_EQ(LastLoad().rows, 0);
    EXPECT_EQ(LastPoint, 0);
    EXPECT_THAT(Point(1), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_THAT(Point(7), ElementsAre(0, kRadius, 0, 0, 0));
    EXPECT_EQ(FactorScale, 1.0 / 1000);
    EXPECT_EQ(ISOmode, 1);
    EXPECT_EQ(NbEvents, 0);
    EXPECT_EQ(LoadBusy, 0);
    EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
    EXPECT_EQ(files.open, 0);
  }
};

TEST_F(NoRowsTest, NoDataAtAllOnTheFirstRunGivesTheBuiltInPlot) {
  LoadPlot();
  ExpectBuiltInPlot();
  ASSERT_THAT(dialogs.boxes, SizeIs(2));
  EXPECT_EQ(dialogs.boxes[0].title, "Excel not running!");
  EXPECT_EQ(dialogs.boxes[1].title, "Demo default");
  EXPECT_EQ(LastLoad().ErrorNumber, 53);
  EXPECT_FALSE(LastLoad().headerRead);
  EXPECT_EQ(NoRowsReason(), "File not found");
}

TEST_F(NoRowsTest, AMissingNamedFileGivesTheBuiltInPlot) {
  LoadNamed("/data/none.qbv");
  ExpectBuiltInPlot();
  EXPECT_TRUE(window.HasLog("/data/none.qbv is NOT open, error:53 File not found"));
}

TEST_F(NoRowsTest, TheTitleOfThePlotBeforeSaysNothingToAPlotWithoutAHeader) {
  LoadRows("1\t2\t3\t4\t\t\t4\t1\t2\t3\t4\r\n", "Attitude ESA Valz moon", 4);
  ASSERT_EQ(dataQuater[0][1], 4);
  LoadNamed("/data/missing.qbv");
  EXPECT_EQ(dataQuater[0][1], 4) << "turned once only";
  EXPECT_EQ(MessageUserToPlot, "");
  EXPECT_EQ(ValColour + MoonFocus + QuaterScalarLast, 0);
}

TEST_F(NoRowsTest, ADirectoryAndAForbiddenFileGiveTheBuiltInPlot) {
  files.failures["/data"] = 75;
  LoadNamed("/data");
  ExpectBuiltInPlot();
  EXPECT_TRUE(window.HasLog("/data is NOT open, error:75 Path/File access error"));
  EXPECT_EQ(NoRowsReason(), "Path/File access error");
  files.failures["/data"] = 70;
  LoadNamed("/data");
  ExpectBuiltInPlot();
  EXPECT_TRUE(window.HasLog("/data is NOT open, error:70 Permission denied"));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(NoRowsTest, AnEmptyFileGivesTheBuiltInPlot) {
  Load("");
  ExpectBuiltInPlot();
  EXPECT_TRUE(window.HasLog("/data/plot.qbv is open"));
  EXPECT_EQ(NoRowsReason(), "it has no line behind its header");
}

TEST_F(NoRowsTest, AFileWithAHeaderAndNothingElseCountsAsNoDataAndIsNotParsed) {
  Load(Header(Formula("2 + ", "Own title")));
  ExpectBuiltInPlot();
  EXPECT_THAT(window.log, Not(testing::Contains(testing::StartsWith("Extraction_info"))));
  EXPECT_EQ(MessageUserToPlot, "");
  EXPECT_EQ(LastLoad().specification.rangeXYZ, "");
}

TEST_F(NoRowsTest, AHeaderWithEmptyLinesBehindItIsParsedAndGivesNoRow) {
  Load(Header(Formula("2 + ", "Own title")) + "\r\n\r\n");
  EXPECT_EQ(LastLoad().rows, 0);
  EXPECT_TRUE(LastLoad().headerRead);
  EXPECT_EQ(NoRowsReason(), "every line behind its header is empty");
  EXPECT_EQ(FactorScale, 1.0 / 1000);
  EXPECT_EQ(ISOmode, 1);
  EXPECT_EQ(MessageUserToPlot, "Own title");
}

TEST_F(NoRowsTest, TheBuiltInPlotKeepsTheLastPointOfThePlotBefore) {
  LoadRows(Lines({"1\t1\t1", "2\t2\t2", "3\t3\t3"}));
  LoadNamed("/data/none.qbv");
  EXPECT_EQ(LastPoint, 2);
}

TEST_F(NoRowsTest, BinaryRubbishIsReadWithoutHarm) {
  std::string rubbish;
  std::uint32_t state = 1;
  for (int i = 0; i < 200000; ++i) {
    state = state * 1664525U + 1013904223U;
    rubbish += static_cast<char>(state >> 24U);
  }
  Load(rubbish);
  EXPECT_EQ(LastPoint, LastLoad().rows - 1);
  EXPECT_GT(LastPoint, 0);
  EXPECT_EQ(LoadBusy, 0);
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
}

TEST_F(NoRowsTest, AHeaderOfTenMegabytesIsReadWithoutHarm) {
  Load(std::string(10000000, 'x') + "\r\n1000\t2\t3\r\n");
  EXPECT_EQ(LastLoad().rows, 1);
  EXPECT_EQ(dataXYZT[0][1], 1);
}

TEST_F(NoRowsTest, AFileThatLostItsHeaderIsToldInTheLog) {
  files.shrunk = true;
  Load(std::string(1000, '\0'));
  ExpectBuiltInPlot();
  EXPECT_EQ(window.log.back(),
            "The data file became shorter while it was read: rows are missing behind row 0. Load it again.");
}

}  // namespace
}  // namespace quorb
