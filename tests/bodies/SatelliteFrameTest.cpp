#include <memory>

#include "BodiesPlot.h"

namespace quorb {
namespace {

class SatelliteFrameTest : public BodiesPlot {
 protected:
  SatelliteFrameTest() {
    auto owned = std::make_unique<Bodies>(scene);
    shown = owned.get();
    scene.BodiesShown = std::move(owned);
    SetPoint(0, 5, 1, 2, 3);
    TakePlotAsItIs();
  }

  bool IsDrawn() { return CountOf(Frame(), "glColor4f(0, 1, 1, 0.8)") == 1; }

  Bodies* shown = nullptr;
};

TEST_F(SatelliteFrameTest, TheSatelliteStandsBeforeTheTrajectoryAndLeavesItsMatrixAsItWas) {
  USERFLAG.ShowSatellite = 1;
  ChooseShape(3);
  const auto calls = Frame();
  const auto place = std::find(calls.begin(), calls.end(), "glTranslatef(1, 2, 3)");
  ASSERT_NE(place, calls.end());
  const auto open = std::find(std::make_reverse_iterator(place), calls.rend(), "glPushMatrix()");
  ASSERT_NE(open, calls.rend());
  EXPECT_EQ(*(open - 1), "NewMaterial()");
  const auto close = std::find(place, calls.end(), "glPopMatrix()");
  ASSERT_NE(close, calls.end());
  EXPECT_EQ(*(close + 1), "glLineWidth(1)") << "the trajectory has its own width, not that of the axes";
  EXPECT_EQ(*(close + 2), "glPointSize(1)");
  EXPECT_TRUE((close + 3)->starts_with("glClearColor"));
}

TEST_F(SatelliteFrameTest, WithAttitudesItIsShownInTheLocalFrameToo) {
  EXPECT_FALSE(IsDrawn());
  USERFLAG.ShowSatellite = 1;
  EXPECT_TRUE(IsDrawn());
  USERFLAG.NedInput = 1;
  EXPECT_FALSE(IsDrawn());
  SetQuarterTurn(0, 1);
  EXPECT_TRUE(IsDrawn());
  PenUpMode = 1;
  EXPECT_FALSE(IsDrawn());
}

TEST_F(SatelliteFrameTest, ShownIsWhatRoundsToAnotherNumberThanZero) {
  USERFLAG.ShowSatellite = 0.5;
  EXPECT_FALSE(IsDrawn()) << "halves round to the even number";
  USERFLAG.ShowSatellite = 0.6;
  EXPECT_TRUE(IsDrawn());
}

TEST_F(SatelliteFrameTest, FramesAreDueAsLongAsTheArraysHunt) {
  USERFLAG.ShowSatellite = 1;
  Frame();
  Frame();
  EXPECT_FALSE(scene.FrameIsDue());
  USERFLAG.SolarPanelToSun = 1;
  for (int frame = 0; frame < 3; ++frame) {
    EXPECT_TRUE(scene.FrameIsDue());
    Frame();
  }
}

TEST_F(SatelliteFrameTest, TheThrustIsThatOfTheFrameBefore) {
  USERFLAG.ShowSatellite = 1;
  SetEvent(0, 1, 1);
  SetEvent(1, 9, 0);
  Frame();
  EXPECT_EQ(shown->State.InThrust, 0);
  Frame();
  EXPECT_EQ(shown->State.InThrust, 1);
}

}  // namespace
}  // namespace quorb
