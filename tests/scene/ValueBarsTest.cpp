#include "ValueBars.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

class ValueBarsTest : public ScenePlot {
 protected:
  ValueBarsTest() {
    ValAxis = 3;
    StartValueBars(bars, 12);
  }

  /// The calls for one row at (1, 2, 6).
  std::vector<std::string> Row(double time, int thrustOn) {
    const double row[5] = {time, 1, 2, 6, 0};
    ClearCalls();
    DrawValueRow(bars, thrustOn, row);
    return RecordedCalls();
  }

  ValueBars bars;
};

TEST_F(ValueBarsTest, BarsAreScaledToTheRange) {
  EXPECT_DOUBLE_EQ(bars.BarScale, 4.1);  // 12 x 2.05 / 1 / 6
  EXPECT_EQ(bars.ValZBase, 0);
}

TEST_F(ValueBarsTest, EqualLimitsAreMadeOneApart) {
  bars.ValZMinLimit = 3;
  bars.ValZMaxLimit = 3;
  StartValueBars(bars, 12);
  EXPECT_EQ(bars.ValZMaxLimit, 4);
  EXPECT_EQ(bars.ValZBase, 3);
  bars.ValZMinLimit = -5;
  bars.ValZMaxLimit = -1;
  StartValueBars(bars, 12);
  EXPECT_EQ(bars.ValZBase, -1);
}

TEST_F(ValueBarsTest, ABarGoesOutToItsTipAndBackDuringThrust) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  EXPECT_THAT(Row(1, 1),
              ElementsAre("glColor4f(0.99609375, 0, 0, 0.7)", "glVertex3f(1, 2, 6)", "glColor3f(0, 1, 0.5)",
                          "glVertex3f(1, 2, 8.05)", "glVertex3f(1, 2, 6)"));
  EXPECT_EQ(bars.ValZFound, 1);
}

TEST_F(ValueBarsTest, OutsideThrustABarHasNoLength) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  EXPECT_THAT(Row(1, 0), ElementsAre("glColor4f(0, 0.99609375, 0, 0.7)", "glVertex3f(1, 2, 6)",
                                     "glColor3f(0, 1, 0.5)", "glVertex3f(1, 2, 6)", "glVertex3f(1, 2, 6)"));
}

TEST_F(ValueBarsTest, BarsStandAlongTheAxisOfTheScale) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  ValAxis = 1;
  EXPECT_EQ(Row(1, 1)[3], "glVertex3f(3.05, 2, 6)");
  ValAxis = 2;
  EXPECT_EQ(Row(1, 1)[3], "glVertex3f(1, 4.05, 6)");
  ValAxis = 0;
  EXPECT_EQ(Row(1, 1)[3], "glVertex3f(1, 2, 6)");
}

TEST_F(ValueBarsTest, ValueInThrustSwitchDrawsBarsEverywhere) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  bars.ValZInThrust = 1;
  EXPECT_EQ(Row(1, 0)[3], "glVertex3f(1, 2, 8.05)");
}

TEST_F(ValueBarsTest, WholeOrbitColoursTheLineByTheValues) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  bars.WholeOrbit = 1;
  bars.ValZInThrust = 1;
  const auto coloured =
      ElementsAre("glShadeModel(GL_SMOOTH)", "glColor4f(0, 1, 0.5, 1)", "glVertex3f(1, 2, 6)");
  EXPECT_THAT(Row(1, 0), coloured);
  bars.ValZInThrust = 0;
  EXPECT_THAT(Row(1, 1), coloured);
  EXPECT_THAT(Row(1, 0),
              ElementsAre("glShadeModel(GL_SMOOTH)",
                          "glColor4f(" + ArgumentText(12 / 255.0F) + ", " + ArgumentText(24 / 255.0F) + ", " +
                              ArgumentText(84 / 255.0F) + ", 1)",
                          "glVertex3f(1, 2, 6)"));
}

TEST_F(ValueBarsTest, TheWalkFollowsTheTimes) {
  SetValue(0, 1, 0.1);
  SetValue(1, 2, 0.2);
  SetValue(2, 3, 0.3);
  Row(0.5, 0);
  EXPECT_EQ(bars.ValZFound, 0);
  EXPECT_EQ(bars.ValZRow, 0);
  Row(1, 0);
  EXPECT_EQ(bars.ValZFound, 1);
  EXPECT_EQ(bars.ValZRow, 0);
  Row(2.5, 0);
  EXPECT_EQ(bars.ValZFound, 1);
  EXPECT_EQ(bars.ValZRow, 1);
}

TEST_F(ValueBarsTest, PastTheLastValueTheWalkStopsAtTheCounter) {
  SetValue(0, 1, 0.1);
  SetValue(1, 2, 0.2);
  Row(50, 0);
  EXPECT_EQ(bars.ValZFound, 0);
  EXPECT_EQ(bars.ValZRow, 2);
}

TEST_F(ValueBarsTest, ACounterAtTheRowBoundStopsAtTheLastRow) {
  NbValZ = kRowBound;
  Row(50, 0);
  EXPECT_EQ(bars.ValZRow, kRowBound - 1);
  EXPECT_EQ(bars.ValZFound, 0);
}

TEST_F(ValueBarsTest, ValueTextTellsTheValueAndTheLimits) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  ValColour = 1;
  Row(1, 0);
  ClearCalls();
  DrawValueText(bars, host);
  EXPECT_THAT(RecordedCalls(), ElementsAre("PrintText(8, 43, \"Value : 1.    limits:  0.  to 1.  \")",
                                           "PrintText(8, 60, \" , shown during thrust.\")"));
}

TEST_F(ValueBarsTest, ValueTextIsLeftOutWhereItDoesNotHold) {
  SetValue(0, 0, 0.5);
  SetValue(1, 2, 1);
  ValColour = 1;
  Row(1, 0);
  ClearCalls();
  USERFLAG.NoTimeMoving = 1;
  DrawValueText(bars, host);
  USERFLAG.NoTimeMoving = 0;
  ValColour = 0;
  DrawValueText(bars, host);
  ValColour = 1;
  bars.ValZFound = 0;
  DrawValueText(bars, host);
  EXPECT_THAT(RecordedCalls(), IsEmpty());
}

}  // namespace
}  // namespace quorb
