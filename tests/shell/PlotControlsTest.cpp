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
  EXPECT_EQ(designed.Text16.caption.Get(), "CubicView range and Axis length");
  EXPECT_EQ(designed.Text18.caption.Get(), "Size satellite");
}

}  // namespace
}  // namespace quorb
