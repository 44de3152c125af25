#include "ScenePlot.h"

namespace quorb {
namespace {

class AxesTest : public ScenePlot {
 protected:
  AxesTest() { scene.Range = 10; }
};

// ---- the list -----------------------------------------------------------------------------------------

TEST_F(AxesTest, TheListHoldsTheThreeAxes) {
  EXPECT_THAT(AxesList(), ElementsAre("glBegin(GL_LINES)", "glColor3f(0.5, 0.5, 0.5)", "glVertex3f(0, 0, 0)",
                                      "glVertex3f(0, 0, 10)", "glVertex3f(0, 0, 0)", "glVertex3f(0, 10, 0)",
                                      "glColor3f(1, 1, 0)", "glVertex3f(0, 0, 0)", "glVertex3f(10, 0, 0)",
                                      "glEnd()", "glColor3f(1, 1, 0)"));
}

TEST_F(AxesTest, TheFirstFrameCallsNoList) {
  EXPECT_EQ(CountBeginning(Frame(), "glCallList"), 0);
  EXPECT_EQ(CountBeginning(RecordedCalls(), "ReturnList"), 0);
  EXPECT_GT(scene.glLISTE.Axes, 0U);
}

TEST_F(AxesTest, EachFrameCallsTheListOfTheOneBeforeGivesItBackAndTakesANewNumber) {
  Frame();
  for (int frame = 0; frame < 3; ++frame) {
    const std::string before = std::to_string(scene.glLISTE.Axes);
    const auto calls = Frame();
    const std::string now = std::to_string(scene.glLISTE.Axes);
    ASSERT_NE(now, before);
    const auto at = std::find(calls.begin(), calls.end(), "glCallList(" + before + ")");
    ASSERT_GT(calls.end() - at, 4);
    EXPECT_THAT(std::vector(at - 1, at + 5),
                ElementsAre("glLineWidth(1)", "glCallList(" + before + ")", "ReturnList(" + before + ")",
                            "glGenLists(1)", "glNewList(" + now + ", GL_COMPILE)", "glBegin(GL_LINES)"));
    EXPECT_EQ(CountBeginning(calls, "glCallList"), 1);
    EXPECT_EQ(CountOf(calls, "glDeleteLists(0, 1)"), 1) << "that of the trajectory";
    EXPECT_EQ(CountBeginning(calls, "glDeleteLists"), 1) << "none of the axes is deleted in a frame";
  }
}

TEST_F(AxesTest, WithoutAxesTheListIsEmptyAndTheFirstFrameStillShowsTheOldOne) {
  Frame();
  const std::string shown = std::to_string(scene.glLISTE.Axes);
  USERFLAG.NoPlotAxis = 1;
  USERFLAG.NedInput = 1;
  USERFLAG.CubicView = 1;
  EXPECT_THAT(AxesList(), ElementsAre("glBegin(GL_LINES)", "glEnd()"));
  EXPECT_EQ(CountOf(RecordedCalls(), "glCallList(" + shown + ")"), 1);

  const std::string empty = std::to_string(scene.glLISTE.Axes);
  EXPECT_EQ(CountOf(Frame(), "glCallList(" + empty + ")"), 1);
}

// ---- lengths and colours --------------------------------------------------------------------------------

TEST_F(AxesTest, TheLengthFactorSetsTheAxes) {
  USERFLAG.LengthAxisFactor = 2.5;
  const auto longer = AxesList();
  EXPECT_EQ(CountOf(longer, "glVertex3f(25, 0, 0)"), 1);
  EXPECT_EQ(CountOf(longer, "glVertex3f(0, 25, 0)"), 1);
  EXPECT_EQ(CountOf(longer, "glVertex3f(0, 0, 25)"), 1);
}

TEST_F(AxesTest, LengthFactorZeroFallsBackToElevenTenths) {
  USERFLAG.LengthAxisFactor = 0;
  const auto calls = AxesList();
  EXPECT_EQ(CountOf(calls, "glVertex3f(11, 0, 0)"), 1);
  EXPECT_EQ(CountOf(calls, "glVertex3f(0, 11, 0)"), 1);
  EXPECT_EQ(CountOf(calls, "glVertex3f(0, 0, 11)"), 1);
}

TEST_F(AxesTest, TheBrandedZAxisIsHalfAsLongAgain) {
  USERFLAG.LogoScale = 1;
  scene.Range = 5000;  // times 0.0002, the branded factor
  EXPECT_THAT(AxesList(), ElementsAre("glBegin(GL_LINES)", "glColor3f(0.5, 0, 0.5)", "glVertex3f(0, 0, 0)",
                                      "glVertex3f(0, 0, 1.5)", "glVertex3f(0, 0, 0)", "glVertex3f(0, 1, 0)",
                                      "glVertex3f(0, 0, 0)", "glVertex3f(1, 0, 0)", "glEnd()"));
}

TEST_F(AxesTest, AnUncolouredXAxisHasTheColourOfTheOthers) {
  USERFLAG.NoColourAxisX = 1;
  USERFLAG.ColourAxis = {64, 128, 255};
  EXPECT_THAT(AxesList(),
              ElementsAre("glBegin(GL_LINES)", "glColor3f(0.25, 0.5, 0.99609375)", "glVertex3f(0, 0, 0)",
                          "glVertex3f(0, 0, 10)", "glVertex3f(0, 0, 0)", "glVertex3f(0, 10, 0)",
                          "glVertex3f(0, 0, 0)", "glVertex3f(10, 0, 0)", "glEnd()"));
}

TEST_F(AxesTest, TheCubeStandsBehindTheAxes) {
  USERFLAG.CubicView = 1;
  const auto calls = AxesList();
  ASSERT_EQ(calls.size(), 10U + 2 + 3 * 10 + 1);
  EXPECT_THAT(std::vector(calls.begin() + 9, calls.begin() + 14),
              ElementsAre("glEnd()", "glLineWidth(0.1)", "glColor3f(0.3, 0.3, 0.3)", "glBegin(GL_LINES)",
                          "glVertex3f(10, 10, -10)"));
  EXPECT_EQ(calls.back(), "glColor3f(1, 1, 0)");
}

// ---- the local centre -----------------------------------------------------------------------------------

class LocalCentreTest : public AxesTest {
 protected:
  LocalCentreTest() {
    SetPoint(0, 0, 1, 2, 3);
    SetPoint(1, 1, 4, 5, 6);
    SetPoint(2, 2, 7, 8, 9);
    TakePlotAsItIs();
    USERFLAG.NedInput = 1;
  }

  /// The last call of the list of axes.
  std::string Shift(double centre) {
    USERFLAG.LocalCentreIndex = centre;
    return AxesList().back();
  }
};

TEST_F(LocalCentreTest, MinusOneCentresTheRowThatTheFrameEndsAt) {
  EXPECT_EQ(Shift(-1), "glTranslatef(-7, -8, -9)");
  scene.CURRINDEXI = 1;
  EXPECT_EQ(Shift(-1), "glTranslatef(-4, -5, -6)");
}

TEST_F(LocalCentreTest, AnyOtherIndexIsTheRowItself) {
  EXPECT_EQ(Shift(0), "glTranslatef(-1, -2, -3)");
  EXPECT_EQ(Shift(1), "glTranslatef(-4, -5, -6)");
}

TEST_F(LocalCentreTest, ARowOutsideTheArraysShiftsNothing) {
  EXPECT_EQ(Shift(kRowBound), "glColor3f(1, 1, 0)");
  EXPECT_EQ(Shift(-2), "glColor3f(1, 1, 0)");
  scene.CURRINDEXI = -1;
  EXPECT_EQ(Shift(-1), "glColor3f(1, 1, 0)");
}

TEST_F(LocalCentreTest, OnlyTheLocalFrameIsShifted) {
  for (const double other : {0.0, 2.0}) {
    USERFLAG.NedInput = other;
    EXPECT_EQ(Shift(1), "glColor3f(1, 1, 0)");
  }
}

// ---- a line from the centre -----------------------------------------------------------------------------

TEST_F(AxesTest, ALineFromTheCentreIsDrawnAtOnceInItsTwoColours) {
  USERFLAG.ThicknessLineAxis = 2;
  scene.AddAxisFromCenter(3, 1, 0.5F, 0, 0, 0.25F, 1, 4, -5, 6.5);
  EXPECT_THAT(RecordedCalls(),
              ElementsAre("glNewList(0, GL_COMPILE)", "glLineWidth(3)", "glColor3f(1, 0.5, 0)",
                          "glBegin(GL_LINE_STRIP)", "glVertex3f(0, 0, 0)", "glColor4f(0, 0.25, 1, 0.6)",
                          "glVertex3f(4, -5, 6.5)", "glEnd()", "glEndList()", "glLineWidth(2)"));
}

}  // namespace
}  // namespace quorb
