#include "PlotControls.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class PlotControlsTest : public WindowFixture {
 protected:
  PlotControlsTest() : window(Load()) { LastPoint = 20000; }

  std::string RedrawLabel() const { return window.Text3.caption.Get(); }
  std::string SpeedLabel() const { return window.Text2.caption.Get(); }

  MainWindow& window;
};

// ---- HScroll1 ---------------------------------------------------------------------------------------------

TEST_F(PlotControlsTest, TheRedrawBarSetsTheLastRowInTenThousandthsOfThePlot) {
  window.HScroll1.value = 5000;
  EXPECT_EQ(TheScene->CURRINDEXI, 10000);
  EXPECT_EQ(RedrawLabel(), "Redraw  5000");
  EXPECT_EQ(RedrawState, 0);
}

TEST_F(PlotControlsTest, ARowBetweenTwoIsTheNearestEvenOne) {
  LastPoint = 5;
  window.HScroll1.value = 5000;  // row 2.5
  EXPECT_EQ(TheScene->CURRINDEXI, 2);
}

TEST_F(PlotControlsTest, TheRedrawBarDraggedTo0JumpsTo1) {
  window.HScroll1.value = 0;
  EXPECT_EQ(window.HScroll1.value, 1);
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
  EXPECT_EQ(RedrawLabel(), "Redraw  0");
}

TEST_F(PlotControlsTest, TheFirstTouchSetsTheSpeedTo1) {
  EXPECT_EQ(window.HScroll2.value, 9);
  std::vector<int> speeds;
  window.HScroll2.refresh = [&] { speeds.push_back(window.HScroll2.value); };
  window.HScroll1.value = 5000;
  EXPECT_THAT(speeds, ElementsAre(7, 0));
  EXPECT_EQ(STEPPT, 1);
  EXPECT_EQ(SpeedLabel(), "Redraw speed 1");
}

TEST_F(PlotControlsTest, EveryLaterTouchSetsTheSpeedTo1Too) {
  window.HScroll1.value = 5000;
  std::vector<int> speeds;
  window.HScroll2.value = 4;
  window.HScroll2.refresh = [&] { speeds.push_back(window.HScroll2.value); };
  window.HScroll1.value = 6000;
  EXPECT_THAT(speeds, ElementsAre(0));
  EXPECT_EQ(STEPPT, 1);
}

TEST_F(PlotControlsTest, TheLoadSequencesOwnRunIsNoTouch) {
  EXPECT_EQ(window.HScroll2.value, 9);
  EXPECT_EQ(STEPPT, 512);
}

TEST_F(PlotControlsTest, ABarThatIsSetByTheProgramLeavesAtOnce) {
  window.HScroll1.Tag = "update";
  window.HScroll1.value = 5000;
  EXPECT_EQ(RedrawLabel(), "Redraw  10000");
  EXPECT_EQ(window.HScroll2.value, 9);
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
}

TEST_F(PlotControlsTest, WhileTheTimeIsHeldTheBarShowsTheHeldRow) {
  TheScene->CURRINDEXI = 5000;
  RedrawState = 1;
  window.HScroll1.value = 100;
  EXPECT_EQ(window.HScroll1.value, 2500);
  EXPECT_EQ(TheScene->CURRINDEXI, 5000);
  EXPECT_EQ(window.HScroll1.Tag, "");
  EXPECT_EQ(RedrawLabel(), "Redraw  2500");
  EXPECT_EQ(RedrawState, 0);
}

TEST_F(PlotControlsTest, TheLabelOfAHeldRowShowsItsRoundedPlace) {
  LastPoint = 3;
  TheScene->CURRINDEXI = 2;
  RedrawState = 1;
  window.HScroll1.value = 100;
  EXPECT_EQ(window.HScroll1.value, 6667);
  EXPECT_EQ(RedrawLabel(), "Redraw  6667");
}

TEST_F(PlotControlsTest, APlotWithoutPointsGivesTheRow0) {
  LastPoint = 0;
  TheScene->CURRINDEXI = 7;
  window.HScroll1.value = 5000;
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
  RedrawState = 1;
  window.HScroll1.value = 100;
  EXPECT_EQ(RedrawLabel(), "Redraw  0");
  EXPECT_EQ(window.HScroll1.value, 100);
}

// ---- HScroll2 ---------------------------------------------------------------------------------------------

TEST_F(PlotControlsTest, TheDesignedSpeedIs512) {
  HScroll2_Change();
  EXPECT_EQ(STEPPT, 512);
  EXPECT_EQ(SpeedLabel(), "Redraw speed 512");
}

TEST_F(PlotControlsTest, TheSpeedBarAt16GivesASpeedOf65536) {
  window.HScroll2.value = 16;
  EXPECT_EQ(STEPPT, 65536);
  EXPECT_EQ(SpeedLabel(), "Redraw speed 65536");
}

TEST_F(PlotControlsTest, TheSpeedBarPutsItsMinimumBackTo0) {
  window.HScroll2.min = 3;
  window.HScroll2.value = 4;
  EXPECT_EQ(window.HScroll2.min, 0);
  EXPECT_EQ(STEPPT, 16);
}

TEST_F(PlotControlsTest, ASpeedOutsideTheBarIsRefused) {
  window.HScroll2.value = 17;
  EXPECT_EQ(window.HScroll2.value, 9);
  EXPECT_EQ(STEPPT, 512);
}

// ---- HScroll4 ---------------------------------------------------------------------------------------------

TEST_F(PlotControlsTest, TheStartBarSetsTheFirstRowInThousandthsOfThePlot) {
  window.HScroll4.value = 250;
  EXPECT_EQ(TheScene->CURRINDEXMINI, 5000);
  EXPECT_EQ(window.Text10.caption.Get(), "Starting 250");
  EXPECT_EQ(RedrawState, 0);
}

TEST_F(PlotControlsTest, TheStartBarDraggedTo0JumpsTo1) {
  window.HScroll4.value = 5;
  window.HScroll4.value = 0;
  EXPECT_EQ(window.HScroll4.value, 1);
  EXPECT_EQ(TheScene->CURRINDEXMINI, 0);
  EXPECT_EQ(window.Text10.caption.Get(), "Starting 0");
}

TEST_F(PlotControlsTest, WhileTheTimeIsHeldTheStartStaysAndItsLabelTellsIt) {
  TheScene->CURRINDEXMINI = 4000;
  RedrawState = 1;
  window.HScroll4.value = 900;
  EXPECT_EQ(TheScene->CURRINDEXMINI, 4000);
  EXPECT_EQ(window.Text10.caption.Get(), "Starting 200");
  EXPECT_EQ(RedrawState, 2) << "the next tick holds the time again";
}

// ---- HScroll5 and HScroll6 --------------------------------------------------------------------------------

TEST_F(PlotControlsTest, TheFramesBarSetsTheNumberOfFrames) {
  window.HScroll5.value = 30;
  EXPECT_EQ(USERFLAG.MovieFrames, 30);
  EXPECT_EQ(window.Text11.caption.Get(), "0 / 30 Frames ");
  EXPECT_EQ(
      window.Text11.toolTip.Get(),
      "Before or During a movie process, use this scrollbar to increase the number of Frames (default is "
      "20)");
  EXPECT_EQ(window.MovieTouched, 1);
}

TEST_F(PlotControlsTest, TheFramesBarAt0Gives20Frames) {
  window.HScroll5.value = 0;
  EXPECT_EQ(USERFLAG.MovieFrames, 20);
  USERFLAG.MovieFrameCount = 7;
  window.HScroll5.value = 900;
  EXPECT_EQ(USERFLAG.MovieFrames, 900);
  EXPECT_EQ(window.Text11.caption.Get(), "7 / 900 Frames ");
  window.HScroll5.value = 901;
  EXPECT_EQ(USERFLAG.MovieFrames, 20);
}

TEST_F(PlotControlsTest, TheSecondTouchOfTheFramesBarSlowsTheRedrawDown) {
  window.HScroll5.value = 30;
  EXPECT_EQ(window.HScroll2.value, 9);
  window.HScroll5.value = 31;
  EXPECT_EQ(window.HScroll2.value, 0);
}

TEST_F(PlotControlsTest, TheFrameTimeBarSetsTenthsOfASecond) {
  window.HScroll6.value = 2;
  EXPECT_EQ(USERFLAG.MovieFrameTime, 0.3);
  EXPECT_EQ(window.Text12.caption.Get(), ".3 seconds between Frames");
  window.HScroll6.value = 16;
  EXPECT_EQ(USERFLAG.MovieFrameTime, 1.7);
  EXPECT_EQ(window.Text12.caption.Get(), "1.7 seconds between Frames");
  EXPECT_EQ(
      window.Text12.toolTip.Get(),
      "Before or During a movie process, use this scrollbar to change the rate of the Frames (in seconds), "
      "default is 0.3 s");
}

// ---- bad input --------------------------------------------------------------------------------------------

TEST_F(PlotControlsTest, BarsDrivenToBothEndsWhileALoadRunsLeaveTheScenesRowsInside) {
  LoadBusy = 1;
  USERFLAG.SynchroExcelComplete = 0;
  for (const int rows : {0, 1, kRowBound - 1, 1099999}) {
    LastPoint = rows;
    for (ScrollBar* bar : {&window.HScroll1, &window.HScroll2, &window.HScroll4, &window.HScroll7}) {
      bar->value = bar->max;
      bar->value = bar->min;
    }
    EXPECT_GE(TheScene->CURRINDEXI, 0);
    EXPECT_LE(TheScene->CURRINDEXI, rows);
    EXPECT_GE(TheScene->CURRINDEXMINI, 0);
    EXPECT_LE(TheScene->CURRINDEXMINI, rows);
    TheScene->Draw();
  }
}

TEST_F(PlotControlsTest, BarsDrivenToBothEndsInsideALoadLeaveThePlotThatTheFileHas) {
  std::string rows;
  for (int row = 0; row < 50; ++row)
    rows += std::to_string(row) + "\t2\t3\t4\r\n";
  files.contents["/data/bars.qbv"] =
      "From: \tBook\tSheet\t=0.5+LEN(\"Bars\")+MAX(A2:C51)+MAX(D2:D51)\t1.0\tTitle\tDate\tmark\t\r\n" + rows;
  CommandFileMode = 1;
  CommandFileName = "/data/bars.qbv";
  int driven = 0;
  dialogs.onPump = [&] {
    if (LoadBusy == 1) ++driven;
    for (ScrollBar* bar :
         {&window.HScroll1, &window.HScroll2, &window.HScroll3, &window.HScroll4, &window.HScroll5,
          &window.HScroll6, &window.HScroll7, &window.HScroll8, &window.HScroll10}) {
      bar->value = bar->max;
      bar->value = bar->min;
    }
    TheScene->Draw();
  };
  DEJADRAW = DEJARESET = FileMode = 0;
  LoadPlot();
  dialogs.onPump = nullptr;
  EXPECT_GT(driven, 0);
  EXPECT_EQ(LastPoint, 49);
  EXPECT_DOUBLE_EQ(dataXYZT[49][1], 0.0245);  // 49 metres in kilometres, times the scale
  TheScene->Draw();
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

// ---- design -----------------------------------------------------------------------------------------------

TEST_F(PlotControlsTest, TheBarsAreDesignedWithTheirBounds) {
  const MainWindow designed;
  const ScrollBar* const bars[] = {&designed.HScroll1, &designed.HScroll2, &designed.HScroll3,
                                   &designed.HScroll8, &designed.HScroll10};
  std::vector<std::vector<int>> numbers;
  for (const ScrollBar* bar : bars)
    numbers.push_back({bar->min, bar->max, bar->largeChange, bar->value});
  EXPECT_THAT(numbers, ElementsAre(ElementsAre(0, 10000, 100, 10000), ElementsAre(0, 16, 3, 9),
                                   ElementsAre(0, 32000, 320, 0), ElementsAre(0, 32000, 100, 10000),
                                   ElementsAre(0, 32000, 1000, 10000)));
  EXPECT_EQ(designed.Text2.toolTip.Get(), "Increase or decrease the speed of the dynamic plot");
  EXPECT_EQ(designed.Text3.toolTip.Get(),
            "Redraw  feature: new dynamic plot redrawn from the point you select up to the last one");
  const ScrollBar* const others[] = {&designed.HScroll4, &designed.HScroll5, &designed.HScroll6,
                                     &designed.HScroll7};
  numbers.clear();
  for (const ScrollBar* bar : others)
    numbers.push_back({bar->min, bar->max, bar->largeChange, bar->value, bar->visible.Get() ? 1 : 0});
  EXPECT_THAT(numbers, ElementsAre(ElementsAre(0, 1000, 100, 0, 1), ElementsAre(0, 1000, 100, 1000, 0),
                                   ElementsAre(0, 16, 3, 9, 0), ElementsAre(0, 100, 10, 1, 1)));
  EXPECT_EQ(designed.Text10.caption.Get(), "Starting");
  EXPECT_EQ(designed.Text10.toolTip.Get(), "Starting feature: Trace start from the point you select");
  EXPECT_EQ(designed.Text11.caption.Get(), "Movie");
  EXPECT_EQ(designed.Text11.toolTip.Get(), "Movie feature: number of frames");
  EXPECT_EQ(designed.Text12.caption.Get(), "Time between frames");
  EXPECT_EQ(designed.Text12.toolTip.Get(), "Increase or decrease the time between frame for movie");
  EXPECT_EQ(designed.Command7.caption.Get(), "View local");
  EXPECT_EQ(
      designed.Command7.toolTip.Get(),
      "Use a trajectory point (set by the scroll bar) as centre instead of the origin 0,0,0.  For "
      "continuous moving press the key W while this command has the focus. press again W for coming back");
  EXPECT_EQ(designed.Text16.caption.Get(), "CubicView range and Axis length");
  EXPECT_EQ(designed.Text18.caption.Get(), "Size satellite");
}

}  // namespace
}  // namespace quorb
