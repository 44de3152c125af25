#include "BodiesPlot.h"
#include "Box.h"
#include "ScriptedDialogs.h"

namespace quorb {
namespace {

class SatelliteTest : public BodiesPlot {
 protected:
  /// The size at which the model is drawn.
  double DrawnSize() {
    Drawn();
    return bodies.State.SatSize;
  }

  /// Where a line from the centre ends: the last vertex of each strip.
  std::vector<std::string> LineEnds() {
    std::vector<std::string> ends;
    const std::vector<std::string> calls = Drawn();
    for (std::size_t i = 0; i + 3 < calls.size(); ++i) {
      if (calls[i] == "glBegin(GL_LINE_STRIP)") ends.push_back(calls[i + 3]);
    }
    return ends;
  }

  ScriptedDialogs dialogs;
};

// ---- order ----------------------------------------------------------------------------------------------

TEST_F(SatelliteTest, ASatelliteWithoutArraysIsDrawnInItsOrder) {
  TakeSizeThirty();
  ChooseShape(3);
  SetPoint(0, 5, 1, 2, 3);
  const auto body = CallsOfBox(3, 3, 3);
  const auto plume = CallsOfBox(0.6, 0.6, 0.2);
  EXPECT_EQ(Drawn(),
            Joined({{"NewMaterial()", "Material.SetFace(1028)", "Material.SetAmbient(0.1, 0.1, 0.1, 1)",
                     "Material.SetDiffuse(0.5, 1, 1, 1)", "Material.SetSpecular(0.6, 0.8, 0.8, 1)",
                     "Material.SetSpecExp(120)", "glTranslatef(1, 2, 3)", "glRotatef(90, 1, 0, 0)",
                     "glDisable(GL_LIGHTING)", "glColor4f(0, 1, 1, 0.8)"},
                    body,
                    {"glTranslatef(0, 0, -3.2)"},
                    plume,
                    {"glTranslatef(-0, -0, 3.2)"}}));
}

TEST_F(SatelliteTest, TheMaterialIsAskedForOnce) {
  Drawn();
  const auto second = Drawn();
  EXPECT_EQ(CountOf(second, "NewMaterial()"), 0);
  EXPECT_EQ(CountOf(second, "Material.SetSpecExp(120)"), 1);
}

TEST_F(SatelliteTest, APointOutsideTheTableLeavesTheSatelliteWhereItWas) {
  SetPoint(0, 5, 1, 2, 3);
  Drawn();
  scene.CURRINDEXI = -1;
  EXPECT_EQ(CountOf(Drawn(), "glTranslatef(1, 2, 3)"), 1);
  EXPECT_EQ(bodies.State.CurrentTime, 5);
}

// ---- attitude -------------------------------------------------------------------------------------------

TEST_F(SatelliteTest, OneAttitudeServesTheTimesBeforeIt) {
  SetQuarterTurn(0, 10);
  DrawnAt(5);
  EXPECT_EQ(bodies.State.QuaterIndex, 0);
  EXPECT_NEAR(bodies.State.AttitudeAngle, 90.000076, 1e-5);
  EXPECT_NEAR(bodies.State.AttAxisZ, 1, 1e-6);
}

TEST_F(SatelliteTest, BehindTheLastAttitudeTheModelTakesTheBadOne) {
  SetQuarterTurn(0, 1);
  SetQuarterTurn(1, 10);
  EXPECT_EQ(CountOf(DrawnAt(11), "glRotatef(90, 1, 0, 0)"), 1);
  EXPECT_EQ(bodies.State.QuaterIndex, 2);
}

TEST_F(SatelliteTest, TheRowFoundIsUsedAsItStands) {
  SetQuarterTurn(0, 1);
  SetQuaternion(1, 10, std::sqrt(0.75), 0.5, 0, 0);
  DrawnAt(9.99);
  EXPECT_NEAR(bodies.State.AttAxisZ, 1, 1e-6);
  EXPECT_EQ(bodies.State.AttAxisX, 0);
}

TEST_F(SatelliteTest, TheRowsStartAnewWhenTheIndexGoesBack) {
  SetQuarterTurn(0, 1);
  SetQuarterTurn(1, 10);
  SetPlusYAngle(0, 1, 0);
  SetPlusYAngle(1, 10, 0);
  SetMinusYAngle(0, 1, 0);
  SetMinusYAngle(1, 10, 0);
  SetPoint(0, 5, 0, 0, 0);
  SetPoint(1, 11, 0, 0, 0);
  scene.CURRINDEXI = 1;
  Drawn();
  EXPECT_EQ(bodies.State.QuaterIndex, 2);
  EXPECT_EQ(bodies.State.SApYIndex, 2);
  EXPECT_EQ(bodies.State.SAmYIndex, 2);
  scene.CURRINDEXI = 0;
  Drawn();
  EXPECT_EQ(bodies.State.QuaterIndex, 0);
  EXPECT_EQ(bodies.State.SApYIndex, 0);
  EXPECT_EQ(bodies.State.SAmYIndex, 0);
}

TEST_F(SatelliteTest, TheFirstFrameWithoutASunShowsNoMessage) {
  TakeSizeThirty();
  Drawn();
  EXPECT_EQ(bodies.State.BestSunAngle, 0);
  EXPECT_TRUE(dialogs.boxes.empty());
}

// ---- size -----------------------------------------------------------------------------------------------

TEST_F(SatelliteTest, WithAttitudesTheSizeFollowsTheBody) {
  scene.Range = 1000;
  SetQuarterTurn(0, 1);
  FactorScale = 10;
  USERFLAG.ShowSatellite = 1;
  EXPECT_DOUBLE_EQ(DrawnSize(), 11.95875) << "6378 x 10 x 3 x 1 / 32000 x 2";
  USERFLAG.SatelliteSize = 9;
  EXPECT_DOUBLE_EQ(DrawnSize(), 119.5875);
  MoonFocus = 1;
  EXPECT_DOUBLE_EQ(DrawnSize(), 32.5875) << "1738 x 10 x 3 x 10 / 32000 x 2";
}

TEST_F(SatelliteTest, UnshownTheSizeOfTheOptionsCancelsOut) {
  scene.Range = 1000;
  SetQuarterTurn(0, 1);
  FactorScale = 0.001;
  USERFLAG.SatelliteSize = 9;
  EXPECT_DOUBLE_EQ(DrawnSize(), 19.134) << "6378 x 0.001 x 3 x 10 / 20 x 2";
}

TEST_F(SatelliteTest, WithoutAttitudesTheSizeFollowsTheRange) {
  TakeSizeThirty();
  USERFLAG.SatelliteSize = 4;
  scene.Range = 32;
  FactorScale = 100;
  EXPECT_DOUBLE_EQ(DrawnSize(), 13.5) << "32 x 100 x 3 x (8 + 1) / 6400";
  EXPECT_EQ(bodies.State.BodyRadius, 32);
}

TEST_F(SatelliteTest, InAPlotOfSeparateObjectsTheSizeFollowsTheRange) {
  TakeSizeThirty();
  SetQuarterTurn(0, 1);
  PenUpMode = 1;
  EXPECT_EQ(DrawnSize(), 30);
}

TEST_F(SatelliteTest, GreyWithoutAttitudesTheSizeFollowsTheBody) {
  scene.Range = 1000;
  FactorScale = 10;
  USERFLAG.ShowSatellite = 2;
  EXPECT_DOUBLE_EQ(DrawnSize(), 11.95875);
}

TEST_F(SatelliteTest, AModelThatWouldFillThePlotIsAThousandTimesSmallerAndTellsTheUnit) {
  std::vector<bool> shown;
  bodies.ShowText15 = [&](bool visible) { shown.push_back(visible); };
  TakeSizeThirty();
  USERFLAG.LengthAxisFactor = 0.234375;
  EXPECT_EQ(DrawnSize(), 30) << "twice the axis length, 15, is not exceeded";
  USERFLAG.LengthAxisFactor = 0.234;
  EXPECT_DOUBLE_EQ(DrawnSize(), 0.03);
  EXPECT_DOUBLE_EQ(bodies.State.SatHalfZ, 0.006);
  EXPECT_THAT(shown, ElementsAre(false, true));
}

TEST_F(SatelliteTest, ASizeThatIsNoNumberLeavesTheModelAsItWas) {
  TakeSizeThirty();
  Drawn();
  USERFLAG.SatelliteSize = -4;
  EXPECT_EQ(DrawnSize(), 30);
}

TEST_F(SatelliteTest, ALauncherIsTenTimesLongerThanWideAndHasNoArrays) {
  TakeSizeThirty();
  ChooseShape(2);
  const auto body = CallsOfBox(3, 3, 30);
  const auto calls = Drawn();
  const auto start = std::find(calls.begin(), calls.end(), "glColor4f(0, 1, 1, 0.8)") + 1;
  EXPECT_EQ(std::vector(start, start + kCallsOfBox), body);
  EXPECT_EQ(CountOf(calls, "glBegin(GL_POLYGON)"), 12) << "body and plume";
  EXPECT_EQ(CountOf(calls, "glPushMatrix()"), 0);
}

// ---- local axes -----------------------------------------------------------------------------------------

TEST_F(SatelliteTest, ALocalAxisIsALineFromWhiteToItsColour) {
  TakeSizeThirty();
  ShowSatAxes = 1;
  USERFLAG.ThicknessLineAxis = 2;
  const auto calls = Drawn();
  const auto first = std::find(calls.begin(), calls.end(), "glNewList(0, GL_COMPILE)");
  ASSERT_NE(first, calls.end());
  EXPECT_THAT(std::vector(first + 1, first + 10),
              ElementsAre("glLineWidth(2)", "glColor3f(1, 1, 1)", "glBegin(GL_LINE_STRIP)",
                          "glVertex3f(0, 0, 0)", "glColor4f(1, 0.3, 0.3, 0.6)", "glVertex3f(15, 0, 0)",
                          "glEnd()", "glEndList()", "glLineWidth(2)"));
  EXPECT_EQ(CountOf(calls, "glColor4f(0.3, 1, 0.3, 0.6)"), 1);
  EXPECT_EQ(CountOf(calls, "glColor4f(0.3, 0.3, 1, 0.6)"), 1);
}

TEST_F(SatelliteTest, TheYAxisClearsTheArraysOfTheShapesThatHaveThemThere) {
  TakeSizeThirty();
  ShowSatAxes = 1;
  const char* const ends[][2] = {
      {"glVertex3f(0, 45, 0)", "glVertex3f(0, 0, 18)"}, {"glVertex3f(0, 34.5, 0)", "glVertex3f(0, 0, 13.5)"},
      {"glVertex3f(0, 15, 0)", "glVertex3f(0, 0, 90)"}, {"glVertex3f(0, 15, 0)", "glVertex3f(0, 0, 9)"},
      {"glVertex3f(0, 15, 0)", "glVertex3f(0, 0, 27)"}, {"glVertex3f(0, 24, 0)", "glVertex3f(0, 0, 9)"}};
  for (int shape = 0; shape < 6; ++shape) {
    ChooseShape(shape);
    EXPECT_THAT(LineEnds(), ElementsAre("glVertex3f(15, 0, 0)", ends[shape][0], ends[shape][1])) << shape;
  }
  ChooseShape(6);
  EXPECT_THAT(LineEnds(), ElementsAre("glVertex3f(15, 0, 0)", "glVertex3f(0, 15, 0)", "glVertex3f(0, 0, 27)",
                                      "glVertex3f(0, 0, 0)"))
      << "the last one is the line to the Sun";
}

// ---- when frames differ ---------------------------------------------------------------------------------

TEST_F(SatelliteTest, FramesDifferByTheSunAngleOnlyWhileArraysHunt) {
  const auto key = [&] {
    std::vector<double> numbers;
    bodies.AddToKey(numbers);
    return numbers;
  };
  USERFLAG.ShowSatellite = 1;
  const auto before = key();
  bodies.State.BestSunAngle = 12;
  EXPECT_EQ(key(), before);
  USERFLAG.SolarPanelToSun = 1;
  EXPECT_NE(key(), before);
  ChooseShape(6);
  const auto mounted = key();
  bodies.State.BestSunAngle = 13;
  EXPECT_EQ(key(), mounted);
  ShowSatAxes = 1;
  EXPECT_NE(key(), mounted);
}

TEST_F(SatelliteTest, TheRandomNumbersAreTheSameInEveryRunAndLieBetweenZeroAndOne) {
  Bodies first{scene}, second{scene};
  double least = 1, greatest = 0;
  for (int i = 0; i < 1000; ++i) {
    const double number = first.Random();
    ASSERT_EQ(number, second.Random());
    least = std::min(least, number);
    greatest = std::max(greatest, number);
  }
  EXPECT_GE(least, 0);
  EXPECT_LT(least, 0.1);
  EXPECT_GT(greatest, 0.9);
  EXPECT_LE(greatest, 1);
}

}  // namespace
}  // namespace quorb
