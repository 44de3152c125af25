#include "Help.h"

#include "HelpPages.h"
#include "MemorySpreadsheet.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

constexpr const char* kDemo = "/opt/quorb/QuorbExcelProDemo.qbv";
constexpr const char* kNamed = "/data/plot.qbv";
constexpr const char* kHeader =
    "From: \tBook1\tSheet1\t=0.01+LEN(\"kmday\")+MAX(A2:C9)+MAX(D2:D9)\t\t\tDate 2024/05/06 "
    "07:08:09\tmark\t\r\n";

/// A window with options of the user's own, the demonstration file, and a named file of two points.
class HelpTest : public WindowFixture {
 protected:
  HelpTest() : window(Load()) {
    files.contents[kDemo] = kHeader + std::string("1\t2\t3\t0\t\r\n4\t5\t6\t1\t\r\n7\t8\t9\t2\t\r\n");
    files.contents[kNamed] = kHeader + std::string("10\t20\t30\t0\t\r\n40\t50\t60\t1\t\r\n");
    ImageDirRefresh();
    FirstActivated = 1;
    window.Check1[3].value = 1;
    window.Text4[0].text = "3";
    window.Text5[15].text = "200";
    window.Check9.value = 1;
    window.Check10.value = 1;
    window.HScroll3.value = 77;
    window.Combo2.text = "CubeSat";
    OptionsRead();
    dialogs.boxes.clear();
  }

  /// Loads the named file, as File/Open does.
  void OpenNamedFile() {
    CommandFileName = kNamed;
    CommandFileMode = 1;
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
    dialogs.boxes.clear();
  }

  /// Goes through the help and leaves its last page with a button.
  void Help(BoxAnswer lastAnswer) {
    dialogs.answers = {BoxAnswer::ok, BoxAnswer::ok, BoxAnswer::ok, lastAnswer};
    mnuHContents_Click();
    EXPECT_THAT(dialogs.answers, IsEmpty());
  }

  /// The options that the panel holds, and nothing of the run.
  static std::vector<double> Options() {
    return {USERFLAG.NoPlotAxis,    USERFLAG.ThicknessLinePlot, USERFLAG.ColourBackground.red,
            USERFLAG.CubicView,     USERFLAG.InMetres,          USERFLAG.SatelliteSize,
            USERFLAG.ShowSatellite, USERFLAG.SolarPanelToSun,   USERFLAG.SatelliteShape};
  }

  MainWindow& window;
  const std::vector<double> own = {1, 3, 200, 1, 1, 77, 0, 0, 3};
};

TEST_F(HelpTest, FourPagesAreShownInARow) {
  OpenNamedFile();
  FileMode = 2;
  Help(BoxAnswer::cancel);
  ASSERT_EQ(dialogs.boxes.size(), 4u);
  for (int page = 1; page <= 4; ++page) {
    const auto& box = dialogs.boxes[static_cast<std::size_t>(page) - 1];
    EXPECT_EQ(box.title, HelpTitle(page));
    EXPECT_EQ(box.prompt, HelpText(page));
    EXPECT_EQ(box.style, page < 4 ? kBoxOk + kBoxInformationIcon : kBoxOkCancel + 0);
  }
}

TEST_F(HelpTest, AboutIsOneBox) {
  mnuHAbout_Click();
  ASSERT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_EQ(dialogs.boxes[0].title, AboutTitle());
  EXPECT_EQ(dialogs.boxes[0].prompt, AboutText());
  EXPECT_EQ(dialogs.boxes[0].style, kBoxOk + kBoxInformationIcon);
}

TEST_F(HelpTest, TheEntriesOfTheMenuRunThem) {
  EXPECT_EQ(window.mnuHContents.caption, "&Contents");
  EXPECT_EQ(window.mnuHAbout.caption, "&About");
  window.mnuHAbout.clicked();
  EXPECT_EQ(dialogs.boxes.size(), 1u);
  window.mnuHContents.clicked();
  EXPECT_GE(dialogs.boxes.size(), 5u);
}

TEST_F(HelpTest, OkRunsTheDemonstrationWithFactoryOptions) {
  OpenNamedFile();
  ASSERT_EQ(LastPoint, 1);
  ASSERT_EQ(Options(), own);
  USERFLAG.SatelliteModelReady = 1;
  Help(BoxAnswer::ok);
  EXPECT_EQ(DemoShown, 1);
  EXPECT_EQ(FileMode, 1);
  EXPECT_EQ(LastPoint, 2);
  EXPECT_EQ(dataXYZT[2][3], 9 * 0.01);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);
  EXPECT_EQ(USERFLAG.NoPlotAxis, 0);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
  EXPECT_EQ(USERFLAG.ColourBackground.red, 10);
  EXPECT_EQ(USERFLAG.CubicView, 0);
  EXPECT_EQ(USERFLAG.InMetres, 0);
  EXPECT_EQ(USERFLAG.SatelliteSize, 0) << "the plot is far smaller than the divisor 615,000";
  EXPECT_EQ(USERFLAG.ShowSatellite, 1);
  EXPECT_EQ(USERFLAG.SolarPanelToSun, 1);
  EXPECT_EQ(USERFLAG.SatelliteShape, 0);
  EXPECT_EQ(window.Text4[0].text.Get(), "1");
  ASSERT_EQ(dialogs.boxes.size(), 5u);
  EXPECT_EQ(dialogs.boxes[4].prompt, "The demo will be shown.");
}

TEST_F(HelpTest, TheSpacecraftIsMadeAnewBehindEitherAnswer) {
  OpenNamedFile();
  FileMode = 2;
  USERFLAG.SatelliteModelReady = 1;
  const int loads = LoadsStarted;
  Help(BoxAnswer::cancel);
  ASSERT_EQ(LoadsStarted, loads) << "a load would make it anew too";
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);

  USERFLAG.SatelliteModelReady = 1;
  Help(BoxAnswer::ok);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);
  EXPECT_EQ(USERFLAGsaved.SatelliteModelReady, 0) << "the options that come back want it made anew too";
}

TEST_F(HelpTest, CancelBringsTheOptionsAndTheNamedFileBack) {
  OpenNamedFile();
  Help(BoxAnswer::ok);
  Help(BoxAnswer::cancel);
  EXPECT_EQ(DemoShown, 0);
  EXPECT_EQ(FileMode, 2);
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(dataXYZT[1][3], 60 * 0.01);
  EXPECT_EQ(Options(), own);
  EXPECT_EQ(window.Check1[3].value, 1);
  EXPECT_EQ(window.Text4[0].text.Get(), "3");
  EXPECT_EQ(window.Text5[15].text.Get(), "200");
  EXPECT_EQ(window.Check3.value, 0);
  EXPECT_EQ(window.Check9.value, 1);
  EXPECT_EQ(window.HScroll3.value, 77);
  EXPECT_EQ(window.Combo2.text.Get(), "CubeSat");
  EXPECT_EQ(StoredUse(SingleSettingKey(3)), "77");
  EXPECT_EQ(StoredUse(SingleSettingKey(4)), "0");
}

TEST_F(HelpTest, OkTwiceInARowKeepsTheOptionsOfTheUser) {
  OpenNamedFile();
  Help(BoxAnswer::ok);
  Help(BoxAnswer::ok);
  EXPECT_EQ(DemoShown, 1);
  EXPECT_EQ(USERFLAGsaved.ThicknessLinePlot, 3);
  EXPECT_EQ(USERFLAGsaved.ColourBackground.red, 200);
  Help(BoxAnswer::cancel);
  EXPECT_EQ(Options(), own);
}

TEST_F(HelpTest, CancelTwiceInARowLoadsOnce) {
  OpenNamedFile();
  Help(BoxAnswer::ok);
  Help(BoxAnswer::cancel);
  const int loads = LoadsStarted;
  Help(BoxAnswer::cancel);
  EXPECT_EQ(LoadsStarted, loads) << "FileMode is 2";
  EXPECT_EQ(Options(), own);
}

TEST_F(HelpTest, CancelWithoutADemonstrationReloadsAPlotOfTheSpreadsheet) {
  MemorySpreadsheet sheet;
  MemoryBook& book = sheet.AddBook("Book1.xlsx");
  for (int row = 2; row <= 4; ++row) {
    for (int column = 1; column <= 3; ++column)
      book.SetNumber(row, column, row * 10 + column);
  }
  book.SetFormula(1, 20, "=0.01+LEN(\"Orbit kmday\")+MAX(A2:C4)", 31);
  book.Select(1, 20);
  DEJADRAW = DEJARESET = FileMode = CommandFileMode = 0;
  LoadPlot();
  ASSERT_EQ(LastPoint, 2);
  ASSERT_EQ(dataXYZT[2][3], 43 * 0.01);
  book.SetNumber(4, 3, 77);
  DEJADRAW = DEJARESET = 1;
  const int loads = LoadsStarted;
  Help(BoxAnswer::cancel);
  EXPECT_EQ(LoadsStarted, loads + 1);
  EXPECT_EQ(FileMode, 0);
  EXPECT_EQ(DEJADRAW, 0);
  EXPECT_EQ(DEJARESET, 0);
  EXPECT_EQ(dataXYZT[2][3], 77 * 0.01);
  EXPECT_EQ(Options(), own);
}

TEST_F(HelpTest, ARayOfTheSunKeepsItsLengthCounter) {
  window.Check1[9].value = 1;
  window.Check1[9].value = 0;
  const double length = window.sunRayLength;
  ASSERT_EQ(length, 2);
  Help(BoxAnswer::ok);
  Help(BoxAnswer::cancel);
  EXPECT_EQ(window.sunRayLength, length);
}

}  // namespace
}  // namespace quorb
