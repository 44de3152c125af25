#include "ScenePlot.h"

namespace quorb {
namespace {

/// A cube with its faces at -10.
class CubicViewTest : public ScenePlot {
 protected:
  CubicViewTest() { USERFLAG.CubicView = 1; }
};

TEST_F(CubicViewTest, ARowIsProjectedOntoTheThreeFaces) {
  SetPoint(1, 50, 1, 2, 3);
  ClassGl::DrawCubic(dataXYZT, -7, -8, -9, 1, 0.1, 4);
  EXPECT_THAT(RecordedCalls(), ElementsAre("glPointSize(0.1)", "glVertex3f(-7, 2, 3)", "glVertex3f(1, -8, 3)",
                                           "glVertex3f(1, 2, -9)", "glPointSize(4)"));
}

TEST_F(CubicViewTest, ARowOutsideTheTableHasNoShadow) {
  ClassGl::DrawCubic(dataXYZT, -7, -8, -9, -1, 0.1, 4);
  ClassGl::DrawCubic(dataXYZT, -7, -8, -9, kRowBound, 0.1, 4);
  EXPECT_EQ(CountBeginning(RecordedCalls(), "glVertex3f"), 0);
}

TEST_F(CubicViewTest, TheWallsAreThreeOutlines) {
  ClassGl::DrawAxisCubic(0.1, 5);
  EXPECT_THAT(
      RecordedCalls(),
      ElementsAre("glLineWidth(0.1)", "glColor3f(0.3, 0.3, 0.3)",
                  // z = -5
                  "glBegin(GL_LINES)", "glVertex3f(5, 5, -5)", "glVertex3f(5, -5, -5)",
                  "glVertex3f(5, -5, -5)", "glVertex3f(-5, -5, -5)", "glVertex3f(-5, -5, -5)",
                  "glVertex3f(-5, 5, -5)", "glVertex3f(-5, 5, -5)", "glVertex3f(5, 5, -5)", "glEnd()",
                  // y = -5
                  "glBegin(GL_LINES)", "glVertex3f(5, -5, 5)", "glVertex3f(5, -5, -5)",
                  "glVertex3f(5, -5, -5)", "glVertex3f(-5, -5, -5)", "glVertex3f(-5, -5, -5)",
                  "glVertex3f(-5, -5, 5)", "glVertex3f(-5, -5, 5)", "glVertex3f(5, -5, 5)", "glEnd()",
                  // x = -5
                  "glBegin(GL_LINES)", "glVertex3f(-5, 5, 5)", "glVertex3f(-5, 5, -5)",
                  "glVertex3f(-5, 5, -5)", "glVertex3f(-5, -5, -5)", "glVertex3f(-5, -5, -5)",
                  "glVertex3f(-5, -5, 5)", "glVertex3f(-5, -5, 5)", "glVertex3f(-5, 5, 5)", "glEnd()"));
}

TEST_F(CubicViewTest, EachPointThrowsItsShadowsAndTheLineGoesOn) {
  NbEvents = 1;
  scene.EventsSingleValued = 1;
  SetPoint(0, 0, 1, 2, 3);
  SetPoint(1, 1, 4, 5, 6);
  TakePlotAsItIs();
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(1, 2, 3)", "glEnd()",
                                   "glBegin(GL_POINTS)", "glPointSize(0.1)", "glVertex3f(-10, 2, 3)",
                                   "glVertex3f(1, -10, 3)", "glVertex3f(1, 2, -10)", "glPointSize(0)",
                                   "glEnd()", "glBegin(GL_LINE_STRIP)", "glVertex3f(1, 2, 3)",
                                   //
                                   "glVertex3f(4, 5, 6)", "glEnd()", "glBegin(GL_POINTS)", "glPointSize(0.1)",
                                   "glVertex3f(-10, 5, 6)", "glVertex3f(4, -10, 6)", "glVertex3f(4, 5, -10)",
                                   "glPointSize(0)", "glEnd()", "glBegin(GL_LINE_STRIP)",
                                   "glVertex3f(4, 5, 6)", "glEnd()"));
}

TEST_F(CubicViewTest, TheFacesStandAtTheEndsOfTheNegativeAxes) {
  SetPoint(0, 0, 1, 2, 3);
  SetPoint(1, 1, 4, 5, 6);
  TakePlotAsItIs();
  USERFLAG.LengthAxisFactor = 0;  // 1.1
  EXPECT_EQ(CountOf(Trace(), "glVertex3f(-11, 2, 3)"), 1);
  USERFLAG.LengthAxisFactor = 0.5;
  EXPECT_EQ(CountOf(Trace(), "glVertex3f(1, -5, 3)"), 1);
}

TEST_F(CubicViewTest, APenUpRowLeavesNoShadow) {
  NbEvents = 1;
  scene.EventsSingleValued = 1;
  SetPoint(0, 0, 1, 2, 3, -1);
  SetPoint(1, 1, 4, 5, 6);
  TakePlotAsItIs();
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glEnd()",
                                   "glBegin(GL_LINE_STRIP)", "glVertex3f(4, 5, 6)", "glEnd()",
                                   "glBegin(GL_POINTS)", "glPointSize(0.1)", "glVertex3f(-10, 5, 6)",
                                   "glVertex3f(4, -10, 6)", "glVertex3f(4, 5, -10)", "glPointSize(0)",
                                   "glEnd()", "glBegin(GL_LINE_STRIP)", "glVertex3f(4, 5, 6)", "glEnd()"));
}

TEST_F(CubicViewTest, TheDotOfAMarkedEventThrowsShadowsToo) {
  SetEvent(0, 1, 1.5);
  SetEvent(1, 9, 0);
  SetPoint(0, 1, 1, 2, 3);
  TakePlotAsItIs();
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kEventColour, "glEnd()", "glBegin(GL_POINTS)",
                                   "glVertex3f(1, 2, 3)", "glPointSize(0.1)", "glVertex3f(-10, 2, 3)",
                                   "glVertex3f(1, -10, 3)", "glVertex3f(1, 2, -10)", "glPointSize(0)",
                                   "glEnd()", "glBegin(GL_LINE_STRIP)", "glVertex3f(1, 2, 3)", "glEnd()"));
}

TEST_F(CubicViewTest, ColourValuesThrowNoShadows) {
  SetPoint(0, 0, 1, 2, 3);
  SetPoint(1, 1, 4, 5, 6);
  ValColour = 1;
  ValAxis = 3;
  TakePlotAsItIs();
  EXPECT_EQ(CountOf(Trace(), "glPointSize(0.1)"), 0);
}

TEST_F(CubicViewTest, OnlyTheFullCheckCounts) {
  SetPoint(0, 0, 1, 2, 3);
  SetPoint(1, 1, 4, 5, 6);
  TakePlotAsItIs();
  EXPECT_GT(AxesList().size(), 11U);
  EXPECT_GT(Trace().size(), 5U);
  for (const double other : {0.0, 2.0}) {
    USERFLAG.CubicView = other;
    EXPECT_EQ(AxesList().size(), 11U) << "no walls";
    EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(1, 2, 3)",
                                     "glVertex3f(4, 5, 6)", "glEnd()"));
  }
}

class SeparateObjectsTest : public CubicViewTest {
 protected:
  SeparateObjectsTest() {
    PenUpMode = 1;
    TimeMin = 0;
    TimeMax = 4;
    SetPoint(0, 0, 5, 6, 7, -1);
    SetPoint(1, 4, 6, 7, 8, -1);
    SetSecondPoint(0, 1, 2, 3);
    SetSecondPoint(1, 4, 5, 6, -1);
    TakePlotAsItIs();
  }
};

TEST_F(SeparateObjectsTest, ShadowsOfSecondPointsAreTakenOneColumnToTheRight) {
  const auto trace = Trace();
  ASSERT_GT(trace.size(), 17U);
  EXPECT_THAT(std::vector(trace.begin() + 2, trace.begin() + 17),
              ElementsAre("glColor4f(1, 0, 1, 1)", "glVertex3f(1, 2, 3)", "glEnd()", "glBegin(GL_POINTS)",
                          "glPointSize(0.1)", "glVertex3f(-10, 3, 0)", "glVertex3f(2, -10, 0)",
                          "glVertex3f(2, 3, -10)", "glPointSize(0)", "glEnd()", "glBegin(GL_LINE_STRIP)",
                          "glVertex3f(1, 2, 3)",
                          // The second one's pen is up: no vertex, no shadow.
                          "glEnd()", "glBegin(GL_LINE_STRIP)", "glVertex3f(0, 0, 0)"));
}

TEST_F(SeparateObjectsTest, TheDotsThrowTheirShadowsAsDots) {
  const auto trace = Trace();
  ASSERT_GT(trace.size(), 12U);
  EXPECT_THAT(
      std::vector(trace.end() - 12, trace.end()),
      ElementsAre("glVertex3f(6, 7, 8)", "glEnd()", "glBegin(GL_POINTS)", "glPointSize(0.1)",
                  "glVertex3f(-10, 7, 8)", "glVertex3f(6, -10, 8)", "glVertex3f(6, 7, -10)", "glPointSize(0)",
                  "glEnd()", "glBegin(GL_POINTS)", "glVertex3f(6, 7, 8)", "glEnd()"));
}

}  // namespace
}  // namespace quorb
