#include "ScenePlot.h"

namespace quorb {
namespace {

class TrajectoryTest : public ScenePlot {
 protected:
  /// Points at (row, 0, 0), a day apart.
  void TakeLine(int rows) {
    for (int row = 0; row < rows; ++row)
      SetPoint(row, row, row, 0, 0);
    TakePlotAsItIs();
  }
};

TEST_F(TrajectoryTest, ALineWithoutEventsIsNominal) {
  NbEvents = 1;
  scene.EventsSingleValued = 1;
  TakeLine(3);
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(0, 0, 0)",
                                   "glVertex3f(1, 0, 0)", "glVertex3f(2, 0, 0)", "glEnd()"));
}

TEST_F(TrajectoryTest, TheListIsOpenedAsOpenGlRefusesIt) {
  TakeLine(3);
  const auto frame = Frame();
  const auto at = std::find(frame.begin(), frame.end(), "glDeleteLists(0, 1)");
  ASSERT_GT(frame.end() - at, 4);
  EXPECT_THAT(std::vector(at, at + 4), ElementsAre("glDeleteLists(0, 1)", "glNewList(0, GL_COMPILE)",
                                                   "glColor3f(0, 1, 1)", kNominalColour));
  EXPECT_EQ(scene.glLISTE.BrokenLineIndex, 2) << "the row that the frame ends at";
  EXPECT_EQ(Trace().size(), 6U) << "the second frame draws afresh";
}

TEST_F(TrajectoryTest, AStoredListOfTheSameLastRowIsCalledAndTheDrawingEnds) {
  SetValue(0, 0, 0.5);
  SetValue(1, 5, 1);
  ValColour = 1;
  TakeLine(3);
  scene.glLISTE.BrokenLine = 1000000;
  scene.glLISTE.BrokenLineIndex = 2;
  const auto frame = Frame();
  ASSERT_GT(frame.size(), 2U);
  EXPECT_THAT(std::vector(frame.end() - 2, frame.end()),
              ElementsAre("glShadeModel(GL_FLAT)", "glCallList(1000000)"));
  EXPECT_EQ(USERFLAG.MovieDataTime, 0);
}

TEST_F(TrajectoryTest, AStoredListOfAnotherLastRowIsMadeAnew) {
  TakeLine(3);
  scene.glLISTE.BrokenLine = 1000000;
  scene.glLISTE.BrokenLineIndex = 1;
  const auto frame = Frame();
  EXPECT_EQ(CountBeginning(frame, "glCallList"), 0);
  EXPECT_EQ(CountOf(frame, "glDeleteLists(1000000, 1)"), 1);
  EXPECT_EQ(CountOf(frame, "glNewList(1000000, GL_COMPILE)"), 1);
  EXPECT_EQ(scene.glLISTE.BrokenLineIndex, 2);
}

TEST_F(TrajectoryTest, StartAndEndColourTheirStretch) {
  SetEvent(0, 1, 1);
  SetEvent(1, 3, 0);
  TakeLine(5);
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(0, 0, 0)",
                                   kEventColour, "glVertex3f(1, 0, 0)", "glVertex3f(2, 0, 0)",
                                   "glVertex3f(3, 0, 0)", kNominalColour, "glVertex3f(4, 0, 0)", "glEnd()"));
}

TEST_F(TrajectoryTest, SingleValuedEventsToggle) {
  scene.EventsSingleValued = 1;
  SetEvent(0, 1, 1);
  SetEvent(1, 3, 1);
  TakeLine(5);
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(0, 0, 0)",
                                   kEventColour, "glVertex3f(1, 0, 0)", "glVertex3f(2, 0, 0)", kNominalColour,
                                   "glVertex3f(3, 0, 0)", "glVertex3f(4, 0, 0)", "glEnd()"));
}

TEST_F(TrajectoryTest, AMarkedEventLeavesADot) {
  SetEvent(0, 1, 1.5);
  SetEvent(1, 1.5, 0);
  SetEvent(2, 9, 1);
  TakeLine(3);
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(0, 0, 0)",
                                   kEventColour, "glEnd()", "glBegin(GL_POINTS)", "glVertex3f(1, 0, 0)",
                                   "glEnd()", "glBegin(GL_LINE_STRIP)", "glVertex3f(1, 0, 0)", kNominalColour,
                                   "glVertex3f(2, 0, 0)", "glEnd()"));
}

TEST_F(TrajectoryTest, APenUpRowStartsANewStripAndGetsNoVertexItself) {
  NbEvents = 1;
  scene.EventsSingleValued = 1;
  TakeLine(4);
  dataXYZT.Set(2, 4, -1);
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(0, 0, 0)",
                                   "glVertex3f(1, 0, 0)", "glEnd()", "glBegin(GL_LINE_STRIP)",
                                   "glVertex3f(3, 0, 0)", "glEnd()"));
}

TEST_F(TrajectoryTest, FirstRowAboveLastRowDrawsNoRow) {
  TakeLine(5);
  scene.CURRINDEXI = 1;
  scene.CURRINDEXMINI = 2;
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", "glEnd()"));
}

TEST_F(TrajectoryTest, OnlyTheRowsFromFirstToLastAreDrawn) {
  TakeLine(5);
  scene.CURRINDEXMINI = 1;
  scene.CURRINDEXI = 2;
  EXPECT_THAT(Trace(), ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glVertex3f(1, 0, 0)",
                                   "glVertex3f(2, 0, 0)", "glEnd()"));
}

TEST_F(TrajectoryTest, NegativeLastRowDrawsNothingAndPutsTheCameraBackInEveryFrame) {
  TakeLine(5);
  scene.CURRINDEXI = -1;
  scene.CURRINDEXMINI = -5;
  for (int frame = 0; frame < 2; ++frame) {
    const auto calls = Frame();
    const auto at = std::find(calls.begin(), calls.end(), "Camera.SetFar(1000)");
    ASSERT_GT(calls.end() - at, 12);
    EXPECT_THAT(
        std::vector(at, at + 13),
        ElementsAre("Camera.SetFar(1000)", "Camera.SetNear(-1000)", "Camera.SetField(180)",
                    "Camera.SetUp(0, 0, 1)", "Camera.SetTarget(0, 0, 0)", "Camera.SetPosition(80, 80, 80)",
                    "Camera.SetProjection(1)", "glDeleteLists(0, 1)", "glNewList(0, GL_COMPILE)",
                    "glColor3f(0, 1, 1)", kNominalColour, "glBegin(GL_LINE_STRIP)", "glEnd()"));
  }
}

TEST_F(TrajectoryTest, RowsOutsideTheArraysAreLeftOut) {
  TakeLine(2);
  scene.CURRINDEXMINI = kRowBound - 1;
  scene.CURRINDEXI = kRowBound + 100;
  EXPECT_EQ(CountBeginning(Trace(), "glVertex3f"), 1);
  scene.CURRINDEXMINI = -3;
  scene.CURRINDEXI = 1;
  EXPECT_EQ(CountBeginning(Trace(), "glVertex3f"), 2);
}

TEST_F(TrajectoryTest, TheDrawnTimeIsThatOfTheLastRow) {
  TakeLine(5);
  dataXYZT.Set(3, 4, -1);
  scene.CURRINDEXI = 3;
  Frame();
  EXPECT_EQ(USERFLAG.MovieDataTime, 3) << "its pen is up, so no vertex told the time";
}

TEST_F(TrajectoryTest, ColourValuesDrawTheLegendAndTheBars) {
  SetEvent(0, 1, 1);
  SetEvent(1, 9, 0);
  SetValue(0, 0, 0.5);
  SetValue(1, 5, 1);
  ValColour = 1;
  ValAxis = 3;
  TakeLine(3);
  dataXYZT.Set(2, 4, -1);
  scene.Range = 12;
  const auto trace = Trace();
  ASSERT_EQ(trace.size(), 68U + 16);
  EXPECT_EQ(trace[0], "glPointSize(8)");
  EXPECT_EQ(trace[3], "glVertex3f(0, 0, -19)") << "1 + 12 - 32";
  EXPECT_THAT(std::vector(trace.begin() + 68, trace.end()),
              ElementsAre("glBegin(GL_LINE_STRIP)", kNominalColour, "glColor4f(0, 0.99609375, 0, 0.7)",
                          "glVertex3f(0, 0, 0)", "glColor3f(0, 1, 0.5)", "glVertex3f(0, 0, 0)",
                          "glVertex3f(0, 0, 0)", kEventColour, "glColor4f(0.99609375, 0, 0, 0.7)",
                          "glVertex3f(1, 0, 0)", "glColor3f(0, 1, 0.5)", "glVertex3f(1, 0, 2.05)",
                          "glVertex3f(1, 0, 0)", "glEnd()", "glBegin(GL_LINE_STRIP)", "glEnd()"));
}

class PenUpTest : public TrajectoryTest {
 protected:
  PenUpTest() {
    PenUpMode = 1;
    TimeMin = 0;
    TimeMax = 4;
    SetPoint(0, 0, 5, 0, 0, -1);
    SetPoint(1, 2, 6, 0, 0, -1);
    SetSecondPoint(0, 1, 2, 3);
    SetSecondPoint(1, 4, 5, 6, -1);
    TakePlotAsItIs();
  }
};

TEST_F(PenUpTest, SecondPointsAreLinesAndPointsAreDotsInTimeColours) {
  USERFLAG.ThicknessLineAxis = 2;
  const auto trace = Trace();
  ASSERT_EQ(trace.size(), 8U + 68 + 64 + 6);
  // The row behind the counter is drawn too; the time 0 is the foot of the ramp.
  EXPECT_THAT(
      std::vector(trace.begin(), trace.begin() + 8),
      ElementsAre("glLineWidth(2)", "glBegin(GL_LINE_STRIP)", "glColor4f(1, 0, 1, 1)", "glVertex3f(1, 2, 3)",
                  "glEnd()", "glBegin(GL_LINE_STRIP)", "glVertex3f(0, 0, 0)", "glEnd()"));
  EXPECT_EQ(trace[8], "glPointSize(3)");
  EXPECT_THAT(
      std::vector(trace.end() - 7, trace.end()),
      ElementsAre("glPointSize(8)", "glBegin(GL_POINTS)", "glColor4f(1, 0, 1, 1)", "glVertex3f(5, 0, 0)",
                  "glColor4f(0, 1, 0.5, 1)", "glVertex3f(6, 0, 0)", "glEnd()"));
  EXPECT_EQ(scene.Trajectory.QuaterColourRow, 0);
}

TEST_F(PenUpTest, TheSatelliteIsSwitchedOff) {
  USERFLAG.ShowSatellite = 1;
  Frame();
  EXPECT_EQ(USERFLAG.ShowSatellite, 0);
}

TEST_F(PenUpTest, EverySixthSecondPointTakesTheColourOfTheNextPoint) {
  for (int row = 0; row < 7; ++row) {
    SetPoint(row, row * 2.0, row, 0, 0, -1);
    SetSecondPoint(row, row, 0, 0);
  }
  TakePlotAsItIs();
  const auto trace = Trace();
  // Row 6 has the time 2 of point 1, the middle of the ramp. Row 7 stands behind the counter.
  EXPECT_THAT(
      std::vector(trace.begin() + 2, trace.begin() + 12),
      ElementsAre("glColor4f(1, 0, 1, 1)", "glVertex3f(0, 0, 0)", "glVertex3f(1, 0, 0)",
                  "glVertex3f(2, 0, 0)", "glVertex3f(3, 0, 0)", "glVertex3f(4, 0, 0)", "glVertex3f(5, 0, 0)",
                  "glColor4f(0, 1, 0.5, 1)", "glVertex3f(6, 0, 0)", "glVertex3f(0, 0, 0)"));
  EXPECT_EQ(scene.Trajectory.QuaterColourRow, 1);
}

TEST_F(PenUpTest, MoreSecondPointsThanTwiceThePointsKeepOneColour) {
  SetSecondPoint(2, 7, 8, 9);
  const auto trace = Trace();
  EXPECT_THAT(std::vector(trace.begin(), trace.begin() + 3),
              ElementsAre("glLineWidth(1)", "glBegin(GL_LINE_STRIP)", "glVertex3f(1, 2, 3)"));
}

TEST_F(PenUpTest, ACounterAtTheRowBoundStopsAtTheLastRow) {
  NbQuater = kRowBound;
  LastPoint = 0;
  scene.CURRINDEXI = 0;
  EXPECT_EQ(CountBeginning(Trace(), "glVertex3f"), kRowBound - 1 + 3 * 32 + 1)
      << "all rows but the lifted one";
}

TEST_F(PenUpTest, LabelsStandAtTheirPoints) {
  PenUpLabelMode = 1;
  dataPenUpLabel.Set(1, "Kourou");
  scene.FontOutline = 4;
  EXPECT_EQ(CountBeginning(Trace(), "Text.Draw3D"), 0) << "not shown";
  PenUpLabelShow = 1;
  const auto trace = Trace();
  // The colour is that of the axis labels: 40 x 65536 + 80 x 256 + 120.
  EXPECT_THAT(
      std::vector(trace.end() - 7, trace.end()),
      ElementsAre("glColor4f(1, 0, 1, 1)", "Text.Draw3D(4, \" \", 5, 0, 0, 6, 2642040)",
                  "glVertex3f(5, 0, 0)", "glColor4f(0, 1, 0.5, 1)",
                  "Text.Draw3D(4, \" Kourou\", 6, 0, 0, 6, 2642040)", "glVertex3f(6, 0, 0)", "glEnd()"));
}

TEST_F(PenUpTest, FlatTimeLimitsAreRaisedOnceForAll) {
  TimeMin = 2;
  TimeMax = 2;
  Frame();
  EXPECT_EQ(TimeMax, 3);
}

}  // namespace
}  // namespace quorb
