#include "ScenePlot.h"

namespace quorb {
namespace {

class FrameTest : public ScenePlot {
 protected:
  /// Two points, (0, 0, 0) and (0, 0, 40), with the scale 0.25.
  void LoadSmallPlot() {
    SetPoint(0, 10, 0, 0, 0);
    SetPoint(1, 11, 0, 0, 40);
    NbEvents = 1;
    FactorScale = 0.25;
  }
};

TEST_F(FrameTest, FirstFrameOfAPlotDigestsItAndDrawsInOrder) {
  LoadSmallPlot();
  USERFLAG.TimeInData = 1;
  const auto frame = Frame();
  EXPECT_THAT(
      frame,
      ElementsAre(
          // The plot is digested: range 80, and the light and the camera follow it.
          "Lights(1).SetAmbient(0, 1, 1, 1)", "Lights(1).SetDiffuse(1, 0, 1, 1)",
          "Lights(1).SetSpecular(1, 1, 0, 1)", "Lights(1).SetPosition(8, 24, 120)",
          "Lights(1).SetEnabled(true)", "Camera.SetField(180)", "Camera.SetPosition(0, 0, 480)",
          // Head of the frame.
          "Animation.Update()", "glPushMatrix()", "Text.Draw3D(0, \"QuorbExcelPro\", 80, 0, 0, 1, 16733610)",
          "Text.DrawBitmap(0, \"X \", 52, 0, 0, 2642040)", "Text.DrawBitmap(0, \"Y \", 0, 52, 0, 2642040)",
          "Text.DrawBitmap(0, \"Z \", 0, 0, 52, 2642040)", "glPopMatrix()", "glClear(GL_DEPTH_BUFFER_BIT)",
          "glDisable(GL_LIGHTING)", "glEnable(GL_BLEND)",
          // The axes, of the length 80, whose list nothing calls yet.
          "glLineWidth(1)", "glGenLists(1)",
          "glNewList(" + std::to_string(scene.glLISTE.Axes) + ", GL_COMPILE)", "glBegin(GL_LINES)",
          "glColor3f(0.5, 0.5, 0.5)", "glVertex3f(0, 0, 0)", "glVertex3f(0, 0, 80)", "glVertex3f(0, 0, 0)",
          "glVertex3f(0, 80, 0)", "glColor3f(1, 1, 0)", "glVertex3f(0, 0, 0)", "glVertex3f(80, 0, 0)",
          "glEnd()", "glColor3f(1, 1, 0)", "glEndList()", "glLineWidth(1)", "glPointSize(1)",
          // The trajectory, at its first row.
          "glClearColor(0.0390625, 0.078125, 0.2734375, 1)", "glClearDepth(1)", "glShadeModel(GL_SMOOTH)",
          "glShadeModel(GL_FLAT)", "glDeleteLists(0, 1)", "glNewList(0, GL_COMPILE)", "glColor3f(0, 1, 1)",
          kNominalColour, "glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(0, 0, 0)", "glEnd()",
          "glEndList()",
          // The time 10 is a midnight.
          "PrintText(8, 23, \" 00:00:00.00 \")"));
  EXPECT_EQ(DEJADRAW, 1);
  EXPECT_EQ(DEJARESET, 1);
  EXPECT_TRUE(scene.ResetDone);
  EXPECT_EQ(FactorScale, 0.5);
}

TEST_F(FrameTest, TheTimeOfAFrameIsThatOfItsLastRowThoughItsPenIsUp) {
  LoadSmallPlot();
  dataXYZT.Set(0, 4, -1);
  Frame();
  ASSERT_EQ(scene.CURRINDEXI, 0);
  EXPECT_EQ(USERFLAG.MovieDataTime, 10);
}

TEST_F(FrameTest, ASecondDrawAfterALoadDoesNotScaleTheDataASecondTime) {
  LoadSmallPlot();
  Frame();
  EXPECT_EQ(dataXYZT[1][3], 80);
  EXPECT_EQ(CountBeginning(Frame(), "Lights(1)"), 0);
  EXPECT_EQ(dataXYZT[1][3], 80);
  EXPECT_EQ(FactorScale, 0.5);
}

TEST_F(FrameTest, ARedrawOfDigestedDataSetsTheSceneAndLeavesTheData) {
  LoadSmallPlot();
  Frame();
  DEJADRAW = 0;
  scene.CURRINDEXI = 1;
  EXPECT_EQ(CountOf(Frame(), "Camera.SetPosition(0, 0, 480)"), 1);
  EXPECT_EQ(dataXYZT[1][3], 80);
  EXPECT_EQ(scene.CURRINDEXI, 0);
}

TEST_F(FrameTest, AnEmptyPlotNeverRunsResetAndIsStillDrawn) {
  const auto frame = Frame();
  EXPECT_EQ(CountBeginning(frame, "Lights(1)"), 0);
  EXPECT_EQ(DEJADRAW, 0);
  EXPECT_EQ(DEJARESET, 0);
  EXPECT_EQ(CountOf(frame, "Text.Draw3D(0, \"QuorbExcelPro\", 100, 0, 0, 1, 16733610)"), 1);
  EXPECT_EQ(CountOf(frame, "Text.DrawBitmap(0, \"X \", 65, 0, 0, 2642040)"), 1);
  EXPECT_EQ(CountOf(frame, "glVertex3f(100, 0, 0)"), 1) << "the X axis";
}

TEST_F(FrameTest, APlotThatIsBeingLoadedIsNotDigested) {
  LoadSmallPlot();
  USERFLAG.SynchroExcelComplete = 0.0;
  EXPECT_EQ(CountBeginning(Frame(), "Lights(1)"), 0);
  EXPECT_EQ(DEJADRAW, 0);
  EXPECT_EQ(DEJARESET, 0);
  EXPECT_EQ(dataXYZT[1][3], 40);
  EXPECT_FALSE(scene.ResetDone);
}

TEST_F(FrameTest, WhileALoadRunsDigestedDataStillSetTheScene) {
  LoadSmallPlot();
  Frame();
  DEJADRAW = 0;
  USERFLAG.SynchroExcelComplete = 0.0;
  scene.CURRINDEXI = 1;
  EXPECT_EQ(CountOf(Frame(), "Camera.SetPosition(0, 0, 480)"), 1);
  EXPECT_EQ(scene.CURRINDEXI, 0);
  EXPECT_EQ(DEJADRAW, 0) << "the next frame does so again";
  EXPECT_EQ(dataXYZT[1][3], 80);
}

TEST_F(FrameTest, DigestingStartsTheTime) {
  LoadSmallPlot();
  scene.CURRINDEXI = 7;
  scene.CycleIndex = 7;
  scene.TimerInterval = 3;
  int platformInterval = 0;
  scene.TheUpdateTimer.changed = [&](int milliseconds) { platformInterval = milliseconds; };
  Frame();
  EXPECT_EQ(scene.CURRINDEXI, 0);
  EXPECT_EQ(scene.CycleIndex, 0);
  EXPECT_EQ(scene.TheUpdateTimer.Interval(), 3);
  EXPECT_EQ(platformInterval, 3);
}

TEST_F(FrameTest, WithoutATimerThePlotStandsAtItsStartFraction) {
  for (int row = 0; row < 11; ++row)
    SetPoint(row, row, row, 0, 0);
  scene.TimerInterval = 0;
  scene.StartFraction = 0.25;
  Frame();
  EXPECT_EQ(scene.CURRINDEXI, 2) << "2.5, halves to even";
  EXPECT_EQ(scene.CycleIndex, 2);
  EXPECT_EQ(scene.TheUpdateTimer.Interval(), 0);
}

TEST_F(FrameTest, GridsAreDrawnAtTheHeadOfTheFrame) {
  EXPECT_FALSE(scene.Grids());
  scene.Grids(true);
  EXPECT_TRUE(scene.Grids());
  const auto frame = Frame();
  EXPECT_EQ(frame[0], "Animation.Update()");
  EXPECT_EQ(frame[1], "DrawGrids()");
}

TEST_F(FrameTest, LogoTextIsDrawnUnlessSwitchedOff) {
  const char* logo = "Text.Draw3D(0, \"QuorbExcelPro\", 100, 0, 0, 1, 16733610)";
  EXPECT_EQ(CountOf(Frame(), logo), 1);
  USERFLAG.NoLogoLabel = 1;
  EXPECT_EQ(CountOf(Frame(), logo), 0);
}

TEST_F(FrameTest, VernalTextStandsOnTheXAxisOfAPlotToScale) {
  ISOmode = 1;
  USERFLAG.NoColourAxisX = 1;
  FactorScale = 0.01;
  scene.FontOutline = 5;
  const auto frame = Frame();
  EXPECT_EQ(frame[2], "Text.Draw3D(5, \"VernaL\", 69.78137, 0, 0, 3, 16733610)");
  EXPECT_EQ(frame[3], "Text.Draw3D(5, \"QuorbExcelPro\", 100, 0, 0, 1, 16733610)");

  USERFLAG.NoOriginLabel = 1;
  EXPECT_EQ(CountBeginning(Frame(), "Text.Draw3D(5, \"VernaL\""), 0);
  USERFLAG.NoOriginLabel = 0;
  USERFLAG.NoPlotEarth = 1;
  EXPECT_EQ(CountBeginning(Frame(), "Text.Draw3D(5, \"VernaL\""), 0);
  USERFLAG.NoPlotEarth = 0;
  ISOmode = 0;
  EXPECT_EQ(CountBeginning(Frame(), "Text.Draw3D(5, \"VernaL\""), 0);
}

TEST_F(FrameTest, WidthsOfZeroAreDrawnAsATenth) {
  USERFLAG.ThicknessLineAxis = 0;
  USERFLAG.ThicknessLinePlot = 0;
  const auto frame = Frame();
  EXPECT_EQ(CountOf(frame, "glLineWidth(0.1)"), 2);
  EXPECT_EQ(CountOf(frame, "glPointSize(0.1)"), 1);
}

TEST_F(FrameTest, PointsOfSeparateObjectsAreFifteenTimesAsLarge) {
  PenUpMode = 1;
  USERFLAG.ThicknessLinePlot = 2;
  EXPECT_EQ(CountOf(Frame(), "glPointSize(30)"), 1);
  USERFLAG.ThicknessLinePlot = 0;
  EXPECT_EQ(CountOf(Frame(), "glPointSize(0.1)"), 1);
}

TEST_F(FrameTest, LogoScaleForcesTheBrandedLookOnEveryFrame) {
  USERFLAG.LogoScale = 0.5;
  const auto frame = Frame();
  EXPECT_EQ(CountOf(frame, "glLineWidth(18)"), 1);
  EXPECT_EQ(CountOf(frame, "glLineWidth(3)"), 1);
  EXPECT_EQ(CountOf(frame, "glClearColor(0.99609375, 0.99609375, 0.99609375, 1)"), 1);
  EXPECT_EQ(USERFLAG.NoColourAxisX, 1);
  EXPECT_EQ(USERFLAG.LargeCharacters, 1);
  EXPECT_EQ(USERFLAG.NoLogoLabel, 1);
  EXPECT_EQ(USERFLAG.NoOriginLabel, 1);
  EXPECT_EQ(USERFLAG.NoTimeMoving, 1);
  EXPECT_EQ(USERFLAG.ColourAxis.red, 128);
  EXPECT_EQ(USERFLAG.ColourAxis.green, 0);
  EXPECT_EQ(USERFLAG.ColourAxis.blue, 128);
  EXPECT_EQ(USERFLAG.ColourAxisLabels.red, 40);
  EXPECT_EQ(USERFLAG.ColourAxisLabels.blue, 255);
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 0.0002);
  USERFLAG.ThicknessLinePlot = 9;
  EXPECT_EQ(CountOf(Frame(), "glLineWidth(3)"), 1);
}

TEST_F(FrameTest, LengthAxisFactorZeroFallsBackToElevenTenths) {
  scene.Range = 50;
  USERFLAG.LengthAxisFactor = 0;
  EXPECT_DOUBLE_EQ(scene.AxisLength(), 55);
  USERFLAG.LengthAxisFactor = 2;
  EXPECT_DOUBLE_EQ(scene.AxisLength(), 100);
}

TEST_F(FrameTest, TextsFollowTheTrajectoryInTheirOrderAndTheLegendIsLast) {
  SetPoint(0, 0, 0, 0, 0);
  SetPoint(1, 1, 1, 0, 0);
  SetValue(0, 0, 0.5);
  SetValue(1, 5, 1);
  ValColour = 1;
  ValAxis = 3;
  FlagOptionToPlot = 1;
  TakePlotAsItIs();
  const auto frame = Frame();
  ASSERT_GT(frame.size(), 12U);
  EXPECT_THAT(std::vector(frame.end() - 12, frame.end() - 5),
              ElementsAre("glEndList()", "PrintText(8, 43, \"Value : 1.    limits:  0.  to 1.  \")",
                          "PrintText(8, 60, \" , shown during thrust.\")",
                          "Text.Draw3D(0, \"QuorbExcelPro  31  Dec 1899 00:00 \", 1, 0, 0, 0.5, 2642040)",
                          "Text.Draw3D(0, \"0 , 0 , 0 , \", 0, 0, 0, 1.5, 2642040)",
                          "PrintText(8, 23, \" 00:00:00.00 \")",
                          "Text.DrawBitmap(0, \"  \", 0, 0, -11, 16711935)"));  // (10 - 32) / 2
}

}  // namespace
}  // namespace quorb
