#include "AutomationFixture.h"

namespace quorb {
namespace {

using AutomationCallsTest = AutomationFixture;

// ---- what is shown anew -----------------------------------------------------------------------------------

TEST_F(AutomationCallsTest, StoredPointsAreScaledIntoTheViewOnce) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  EXPECT_THAT(Point(1), ElementsAre(0, 40, 0));
  EXPECT_EQ(FactorScale, 2);
  EXPECT_EQ(Settle(), 2);
  // The farthest point, at 40, comes to 80.
  EXPECT_THAT(Point(0), ElementsAre(40, 0, 0));
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
}

TEST_F(AutomationCallsTest, ANegativeFactorTurnsThePlotRound) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, -2).Good());
  EXPECT_THAT(Point(1), ElementsAre(0, -40, 0));
  Settle();
  EXPECT_THAT(Point(0), ElementsAre(-40, 0, 0));
  EXPECT_THAT(Point(1), ElementsAre(0, -80, 0));
  EXPECT_EQ(FactorScale, -4);
}

TEST_F(AutomationCallsTest, OnePointWithOneEventIsAPlot) {
  StartAndShow();
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n", 1).Good());
  ASSERT_TRUE(calls.GlrayonXls("a", "0\t20\t0\r\n", 2).Good());
  ASSERT_EQ(LastPoint + NbEvents, 0);
  EXPECT_EQ(TheScene->CURRINDEXI, 0) << "before any frame: behind the last point stands another plot";
  EXPECT_LE(TheScene->CycleIndex, 0);
  EXPECT_EQ(Settle(), 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
  EXPECT_EQ(DEJADRAW, 1);
}

TEST_F(AutomationCallsTest, TheCameraAndTheTimeStay) {
  StartAndShow();
  glxCtl1->Camera().SetPosition(5, 6, 7);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(9), 1).Good());
  ASSERT_TRUE(TheScene->FrameIsDue());
  events.Draw();
  EXPECT_THAT(Eye(), ElementsAre(5, 6, 7));
  EXPECT_EQ(TheScene->CURRINDEXI, 3) << "what was shown is shown; the time goes on from there";
  Settle();
  EXPECT_EQ(TheScene->CURRINDEXI, 8);
}

TEST_F(AutomationCallsTest, PointsBeforeTheFirstFrameOfALoadGetItsView) {
  StartAndShow();
  DEJADRAW = DEJARESET = 0;
  LoadPlot();
  glxCtl1->Camera().SetPosition(5, 6, 7);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  EXPECT_THAT(Eye(), ElementsAre(0, 0, 480));
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
}

TEST_F(AutomationCallsTest, ALoadBehindPointsThatWereNotDrawnYetGetsItsOwnView) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  DEJADRAW = DEJARESET = 0;
  LoadPlot();
  glxCtl1->Camera().SetPosition(5, 6, 7);
  events.Draw();
  EXPECT_THAT(Eye(), ElementsAre(0, 0, 480));
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
}

TEST_F(AutomationCallsTest, StagedRowsChangeNothingOnShow) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0).Good());
  EXPECT_FALSE(TheScene->FrameIsDue());
  EXPECT_EQ(calls.GlrayonXls("a", Rows(65), 1).number, kFaultOutOfBounds);
  ASSERT_TRUE(calls.GlrayonXls("b", "1\t2\t3", 1).Good()) << "no row ends";
  EXPECT_FALSE(TheScene->FrameIsDue());
  EXPECT_EQ(DEJARESET, 1);
  EXPECT_EQ(LastPoint, 3);
}

TEST_F(AutomationCallsTest, TheSamePointsAgainAreDrawnAgain) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  ASSERT_TRUE(calls.GlrayonXls("a", "0\t0\t10\r\n0\t20\t0\r\n", 2).Good());
  EXPECT_EQ(Settle(), 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 0, 40));
}

TEST_F(AutomationCallsTest, TimesAreShownAndScaleNothing) {
  StartAndShow();
  USERFLAG.TimeInData = 0;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  ASSERT_TRUE(calls.GlrayonXlsT("a", "7.5\r\n8.5\r\n", 3).Good());
  EXPECT_EQ(Settle(), 2);
  EXPECT_EQ(dataXYZT[1][0], 8.5);
  EXPECT_EQ(USERFLAG.TimeInData, 1);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
}

TEST_F(AutomationCallsTest, EventsAreShownAndScaleNothing) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE\r\n3\tS\r\n", 1).Good());
  EXPECT_EQ(Settle(), 2);
  EXPECT_EQ(NbEvents, 2);
  EXPECT_EQ(FactorScale, 4);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(TheScene->EventsSingleValued, 0) << "a start and an end";
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tS\r\n3\tS\r\n", 1).Good());
  EXPECT_EQ(Settle(), 2) << "as many events as before";
  EXPECT_EQ(TheScene->EventsSingleValued, 1);
}

TEST_F(AutomationCallsTest, EventsBeforeTheFrameLeaveThePointsTheirScale) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE\r\n", 1).Good());
  Settle();
  EXPECT_EQ(FactorScale, 4) << "the plot does not hang on when a frame was drawn";
}

TEST_F(AutomationCallsTest, EventsWhoseMessageLetsAFramePassLeaveItsScale) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  BoxOfTest box;
  box.whileUp = [&] { events.Draw(); };
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE" + std::string(65000, ' ') + "\r\n", 1).Good());
  ASSERT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(NbEvents, 1);
  Settle();
  EXPECT_EQ(FactorScale, 4);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
}

TEST_F(AutomationCallsTest, APlotOfOneColumnEnds) {
  StartAndShow();
  ColumnMode = 1;
  USERFLAG.NoPlotEarth = 1.0;  // whatever the panel says
  ASSERT_EQ(frmMain->Check1[0].value, 0);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0.5).Good());
  EXPECT_EQ(ColumnMode, 0);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 0);
}

TEST_F(AutomationCallsTest, PushedPointsAreOneLine) {
  StartAndShow();
  ASSERT_EQ(dataXYZT[2][4], -1);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(4), 1).Good());
  EXPECT_EQ(dataXYZT[2][4], 0);
}

TEST_F(AutomationCallsTest, TheSheetIsNotWatchedWhileAMessageIsUp) {
  StartAndShow();
  BoxOfTest box;
  box.whileUp = [] { EXPECT_EQ(WatchStopped, 1); };
  ASSERT_TRUE(calls.GlrayonXls("a", std::string(65001, ' '), 0).Good());
  EXPECT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(WatchStopped, 0);
}

TEST_F(AutomationCallsTest, WhatTheUserMadeSeparateStaysSo) {
  StartAndShow();
  const double thickness = USERFLAG.ThicknessLinePlot;
  PressPenUp();
  ASSERT_EQ(PenUpMode, 1);
  NbQuater = 4;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0.5).Good());
  EXPECT_EQ(PenUpMode, 1);
  EXPECT_EQ(NbQuater, 4) << "they are attitudes";
  PressPenUp();
  EXPECT_EQ(PenUpMode, 0);
  EXPECT_DOUBLE_EQ(USERFLAG.ThicknessLinePlot, thickness);
}

TEST_F(AutomationCallsTest, APlotOfSeparateObjectsEnds) {
  std::string& plot = files.contents["/data/orbit.qbv"];
  plot.replace(plot.find("Test km"), 7, "Test penup");
  Start();
  Settle();
  ASSERT_EQ(PenUpMode, 1);
  PenUpLabelMode = 1;
  NbQuater = 4;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  EXPECT_EQ(PenUpMode, 0);
  EXPECT_EQ(PenUpLabelMode, 0);
  EXPECT_EQ(NbQuater, 0);
  NbQuater = 4;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  EXPECT_EQ(NbQuater, 4) << "the attitude of a line stays";
}

TEST_F(AutomationCallsTest, TheScaleTellsWhetherTheEarthIsShown) {
  StartAndShow();
  ASSERT_EQ(ISOmode, 1);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  EXPECT_EQ(ISOmode, 0);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 1);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0.5).Good());
  EXPECT_EQ(ISOmode, 1);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 0);
}

TEST_F(AutomationCallsTest, TheFirstRowStaysAtItsShareOfThePlot) {
  StartAndShow();
  frmMain->HScroll4.value = 667;
  ASSERT_EQ(TheScene->CURRINDEXMINI, 2);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(10), 1).Good());
  EXPECT_EQ(TheScene->CURRINDEXMINI, 6);
}

TEST_F(AutomationCallsTest, AHeldRowBehindTheLastPointGoesToIt) {
  StartAndShow();
  RedrawState = 1;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  events.Draw();
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
}

TEST_F(AutomationCallsTest, FramesAreAskedForByTheAnimationAlone) {
  StartAndShow();
  host.animation.enabled = true;
  ClearCalls();
  for (int i = 0; i < 100; ++i)
    ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  EXPECT_EQ(Redraws(), 0);
  EXPECT_TRUE(TheScene->FrameIsDue());
  host.animation.enabled = false;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  EXPECT_EQ(Redraws(), 1) << "nothing else would";
  ASSERT_TRUE(calls.InterFaceXls("a", "Other title", 1).Good());
  EXPECT_EQ(Redraws(), 2);
}

// ---- what a client reads ----------------------------------------------------------------------------------

TEST_F(AutomationCallsTest, ThePlotOnShowIsTold) {
  StartAndShow();
  ASSERT_TRUE(calls.InterFaceXls("a", "Flight", 1).Good());
  const PlotOnShow plot = PresentPlot();
  EXPECT_EQ(plot.title, "Flight");
  EXPECT_EQ(plot.lastPoint, 3);
  EXPECT_EQ(plot.nbEvents, 1);
  EXPECT_EQ(plot.flagOptionToPlot, 1);
  EXPECT_EQ(plot.factorScale, 0.02);
}

}  // namespace
}  // namespace quorb
