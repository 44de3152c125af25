#include "SolarArrays.h"

#include "BodiesPlot.h"
#include "Box.h"

namespace quorb {
namespace {

// ---- plates and masts, at the size 30 -------------------------------------------------------------------

class ArrayPlatesTest : public BodiesPlot {
 protected:
  ArrayPlatesTest() { TakeSizeThirty(); }

  /// What is drawn behind the plume.
  std::vector<std::string> Arrays() {
    const auto calls = DrawnBehindBody();
    return {calls.begin() + kCallsOfBox + 2, calls.end()};
  }

  /// What gives way to the surfaces drawn before.
  static std::vector<std::string> Behind(const std::vector<std::string>& calls) {
    return Joined({{"glPolygonOffset(1, 1)", "glEnable(GL_POLYGON_OFFSET_FILL)"},
                   calls,
                   {"glDisable(GL_POLYGON_OFFSET_FILL)"}});
  }
};

TEST_F(ArrayPlatesTest, TwoArraysStandOnMastsOnBothSides) {
  const auto plate = CallsOfBox(3, 12, 0.3);
  const auto mast = CallsOfBox(0.3, 4.5, 0.3);
  const auto crossMast = Behind(CallsOfBox(0.3, 9, 0.3));
  EXPECT_EQ(Arrays(), Joined({{"glPushMatrix()", "glRotatef(0, 0, 1, 0)", "glTranslatef(0, 21, 0)"},
                              plate,
                              {"glTranslatef(-0, -21, -0)", "glPopMatrix()", "glTranslatef(0, 4.5, 0)"},
                              mast,
                              {"glTranslatef(0, -4.5, 0)"},
                              crossMast,
                              {"glPushMatrix()", "glRotatef(0, 0, 1, 0)", "glTranslatef(0, -21, 0)"},
                              plate,
                              {"glTranslatef(-0, 21, -0)", "glPopMatrix()"}}));
}

TEST_F(ArrayPlatesTest, ASingleArrayStandsOnThePlusYSide) {
  ChooseShape(1);
  const auto plate = CallsOfBox(3, 9, 0.3);
  const auto mast = CallsOfBox(0.3, 3.75, 0.3);
  EXPECT_EQ(Arrays(), Joined({{"glPushMatrix()", "glRotatef(0, 0, 1, 0)", "glTranslatef(0, 16.5, 0)"},
                              plate,
                              {"glTranslatef(-0, -16.5, -0)", "glPopMatrix()", "glTranslatef(0, 3.75, 0)"},
                              mast,
                              {"glTranslatef(0, -3.75, 0)"}}));
}

TEST_F(ArrayPlatesTest, ShapesWithoutArraysShowNone) {
  for (const int shape : {2, 3, 4}) {
    ChooseShape(shape);
    EXPECT_THAT(Arrays(), IsEmpty()) << shape;
  }
}

TEST_F(ArrayPlatesTest, TheBodyMountedPlateLiesOnTheMinusXSideWithALineToTheSun) {
  ChooseShape(6);
  bodies.State.RayScale = 0.01;
  bodies.State.SunPoint = {1000, 2000, 3000, 1};
  USERFLAG.SolarPanelToSun = 1;
  const auto plate = CallsOfBox(0.3, 15, 9);
  EXPECT_EQ(Arrays(),
            Joined({{"glPushMatrix()", "glRotatef(0, 0, 1, 0)"},
                    Behind(Joined({{"glTranslatef(-3, 0, 0)"}, plate, {"glTranslatef(3, -0, -0)"}})),
                    {"glNewList(0, GL_COMPILE)", "glLineWidth(7)", "glColor3f(1, 0, 1)",
                     "glBegin(GL_LINE_STRIP)", "glVertex3f(0, 0, 0)", "glColor4f(1, 1, 0, 0.6)",
                     "glVertex3f(10, 20, 30)", "glEnd()", "glEndList()", "glLineWidth(1)", "glPopMatrix()",
                     "glTranslatef(0, 6, 0)", "glTranslatef(0, -6, 0)"}}));
}

TEST_F(ArrayPlatesTest, AnArrayTurnedToTheSunShowsItsNormal) {
  ChooseShape(5);
  USERFLAG.SolarPanelToSun = 1;
  USERFLAG.ThicknessLineAxis = 2;
  const auto calls = Arrays();
  const auto line = std::find(calls.begin(), calls.end(), "glNewList(0, GL_COMPILE)");
  ASSERT_NE(line, calls.end());
  EXPECT_THAT(std::vector(line + 1, line + 11),
              ElementsAre("glLineWidth(6)", "glColor3f(0.5, 0.5, 0.5)", "glBegin(GL_LINE_STRIP)",
                          "glVertex3f(0, 0, 0)", "glColor4f(1, 1, 0, 0.6)", "glVertex3f(0, 0, -3)", "glEnd()",
                          "glEndList()", "glLineWidth(2)", "glPopMatrix()"));
  EXPECT_EQ(CountOf(calls, "glNewList(0, GL_COMPILE)"), 1) << "on the plus Y side only";
}

// ---- angles ---------------------------------------------------------------------------------------------

/// A plot from day 1 to day 10, at day 5, with a quarter turn about Z.
class ArrayAnglesTest : public BodiesPlot {
 protected:
  ArrayAnglesTest() {
    SetQuarterTurn(0, 1);
    SetQuarterTurn(1, 10);
    SetPoint(0, 5, 0, 0, 0);
  }
  static void SetPlusYAngles() {
    SetPlusYAngle(0, 1, 30);
    SetPlusYAngle(1, 10, 50);
  }
  static void SetMinusYAngles() {
    SetMinusYAngle(0, 1, -20);
    SetMinusYAngle(1, 10, -40);
  }
  /// 45 degrees from local Z toward local X, which the quarter turn leads to Y.
  void TurnToSun() {
    USERFLAG.SolarPanelToSun = 1;
    bodies.State.SunFromBody = {{0, 1e11, 1e11}};
  }
};

TEST_F(ArrayAnglesTest, EachArrayTurnsByItsOwnAngleTheMinusYOneTheOtherWay) {
  SetPlusYAngles();
  SetMinusYAngles();
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(30, 0, 1, 0)", "glRotatef(-20, 0, -1, 0)"));
}

TEST_F(ArrayAnglesTest, BothTurnByThePlusYAngleWhereTheOtherHasNone) {
  SetPlusYAngles();
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(30, 0, 1, 0)", "glRotatef(30, 0, 1, 0)"));
}

TEST_F(ArrayAnglesTest, MinusYAnglesAloneTurnTheMinusYArrayOnly) {
  SetMinusYAngles();
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(0, 0, 1, 0)", "glRotatef(-20, 0, -1, 0)"));
}

TEST_F(ArrayAnglesTest, WithoutAnglesBothStayAtZero) {
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(0, 0, 1, 0)", "glRotatef(0, 0, 1, 0)"));
}

TEST_F(ArrayAnglesTest, TheSunWinsOverTheData) {
  SetPlusYAngles();
  SetMinusYAngles();
  TurnToSun();
  const auto turns = ArrayTurns();
  EXPECT_NEAR(bodies.State.BestSunAngle, 45, 1e-4);
  const std::string turn =
      "glRotatef(" + ArgumentText(static_cast<float>(bodies.State.BestSunAngle)) + ", 0, 1, 0)";
  EXPECT_THAT(turns, ElementsAre(turn, turn));
}

TEST_F(ArrayAnglesTest, TheSunIsHuntedByFiveDegreesEitherWay) {
  TurnToSun();
  bodies.Random = [] { return 0.0; };
  Drawn();
  EXPECT_NEAR(bodies.State.BestSunAngle, 40, 1e-4);
  bodies.Random = [] { return 1.0; };
  Drawn();
  EXPECT_NEAR(bodies.State.BestSunAngle, 50, 1e-4);
}

TEST_F(ArrayAnglesTest, TheAngleToTheSunRunsFromZeroTo360) {
  TurnToSun();
  bodies.State.SunFromBody = {{0, -1e11, 1e11}};
  Drawn();
  EXPECT_NEAR(bodies.State.BestSunAngle, 315, 1e-4);
  bodies.State.SunFromBody = {{0, 0, -1e11}};
  Drawn();
  EXPECT_NEAR(bodies.State.BestSunAngle, 180, 1e-4);
}

TEST_F(ArrayAnglesTest, ASunBeyondSinglePrecisionLeavesTheAngle) {
  TurnToSun();
  Drawn();
  bodies.State.SunFromBody = {{0, 1e300, 1e300}};
  Drawn();
  EXPECT_NEAR(bodies.State.BestSunAngle, 45, 1e-4);
}

TEST_F(ArrayAnglesTest, BehindTheLastAttitudeTheDataDropOut) {
  SetPlusYAngles();
  SetMinusYAngles();
  SetPlusYAngle(2, 20, 70);
  SetMinusYAngle(2, 20, 80);
  SetPoint(0, 11, 0, 0, 0);
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(0, 0, 1, 0)", "glRotatef(0, 0, 1, 0)"));
  EXPECT_EQ(bodies.State.SApYIndex, 1) << "the angles themselves would hold";
}

TEST_F(ArrayAnglesTest, TheBodyMountedPlateNeverTurns) {
  ChooseShape(6);
  SetPlusYAngles();
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(0, 0, 1, 0)"));
  TurnToSun();
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(0, 0, 1, 0)"));
}

TEST_F(ArrayAnglesTest, ASingleArrayTurnsByThePlusYAngle) {
  ChooseShape(1);
  SetPlusYAngles();
  SetMinusYAngles();
  EXPECT_THAT(ArrayTurns(), ElementsAre("glRotatef(30, 0, 1, 0)"));
}

}  // namespace
}  // namespace quorb
