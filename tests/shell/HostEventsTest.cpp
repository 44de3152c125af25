#include "HostEvents.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class HostEventsTest : public WindowFixture {
 protected:
  HostEventsTest() {
    Load();
    ClearCalls();
  }

  HostEvents& events = HostEventsOfWindow();
};

TEST_F(HostEventsTest, InitialiseAsksForADepthBuffer) {
  events.Initialise();
  EXPECT_THAT(RecordedCalls(), ElementsAre("SetDepthBuffer(true)"));
}

TEST_F(HostEventsTest, ContextReadyPreparesOpenGl) {
  events.ContextReady();
  ASSERT_FALSE(RecordedCalls().empty());
  EXPECT_EQ(RecordedCalls().front(), "glClearColor(0.0390625, 0.078125, 0.2734375, 1)");
  EXPECT_NE(GlQuadric, nullptr);
}

TEST_F(HostEventsTest, ResizeReachesTheSceneAndKeepsTheSizeOfThePlot) {
  events.Resize(640, 480);
  EXPECT_EQ(TheScene->ViewWidth, 640);
  EXPECT_EQ(TheScene->ViewHeight, 480);
  EXPECT_EQ(PlotWidth, 640);
  EXPECT_EQ(PlotHeight, 480);
}

TEST_F(HostEventsTest, DrawRunsAFrame) {
  events.Draw();
  EXPECT_THAT(RecordedCalls(), testing::Contains("glClear(GL_DEPTH_BUFFER_BIT)"));
}

TEST_F(HostEventsTest, OverlayPrintsTheTitle) {
  MessageUserToPlot = "Transfer";
  events.Overlay();
  EXPECT_THAT(RecordedCalls(), ElementsAre("PrintText(8, 3, \"   Transfer\")"));
}

TEST_F(HostEventsTest, ADoubleClickSwitchesARunningAnimationOff) {
  EXPECT_EQ(host.Tag, "Animate");
  glxCtl1_DblClick();
  EXPECT_EQ(host.Tag, "");
  EXPECT_FALSE(host.animation.enabled);
  EXPECT_THAT(RecordedCalls(), ElementsAre("Animation.SetEnabled(false)", "Animation.Update()"));
}

TEST_F(HostEventsTest, ADoubleClickWithAnEmptyTagSwitchesTheAnimationOn) {
  host.Tag = "";
  glxCtl1_DblClick();
  EXPECT_EQ(host.Tag, "Animate");
  EXPECT_THAT(RecordedCalls(), ElementsAre("Animation.SetEnabled(true)", "Animation.Update()"));
}

TEST_F(HostEventsTest, ADoubleClickBehindTheOneTimeViewSwitchesOff) {
  host.Tag = "Done one time";
  glxCtl1_DblClick();
  EXPECT_EQ(host.Tag, "");
  EXPECT_FALSE(host.animation.enabled);
}

TEST_F(HostEventsTest, ATickOfARunningAnimationOnlyAsksForAFrame) {
  USERFLAG.PendingIsoRequest = 2.0;
  glxCtl1_TimerTick();
  EXPECT_THAT(RecordedCalls(), ElementsAre("Redraw()"));
  EXPECT_EQ(host.Tag, "Animate");
  EXPECT_EQ(OneShotView, 0);
  EXPECT_EQ(USERFLAG.PendingIsoRequest, 2.0);
}

TEST_F(HostEventsTest, TheFirstTickWithAnEmptyTagSetsTheViewOnce) {
  host.Tag = "";
  glxCtl1_TimerTick();
  ASSERT_GE(RecordedCalls().size(), 2U);
  EXPECT_EQ(RecordedCalls()[0], "Redraw()");
  EXPECT_EQ(RecordedCalls()[1], "Camera.SetUp(0, 1, 0)");
  EXPECT_EQ(host.Tag, "Done one time");
  EXPECT_EQ(OneShotView, 1);
  EXPECT_EQ(USERFLAG.PendingIsoRequest, 0);

  ClearCalls();
  host.Tag = "";
  glxCtl1_TimerTick();
  EXPECT_THAT(RecordedCalls(), ElementsAre("Redraw()"));
  EXPECT_EQ(host.Tag, "Done one time");
}

TEST_F(HostEventsTest, ATickBehindTheOneTimeViewOnlyAsksForAFrame) {
  host.Tag = "Done one time";
  USERFLAG.PendingIsoRequest = 2.0;
  glxCtl1_TimerTick();
  EXPECT_THAT(RecordedCalls(), ElementsAre("Redraw()"));
  EXPECT_EQ(USERFLAG.PendingIsoRequest, 2.0);
}

TEST_F(HostEventsTest, APendingRequestSetsTheViewOnceMore) {
  host.Tag = "";
  OneShotView = 1;
  USERFLAG.PendingIsoRequest = 2.0;
  glxCtl1_TimerTick();
  EXPECT_THAT(RecordedCalls(), testing::Contains("Camera.SetUp(0, 1, 0)").Times(1));
  EXPECT_EQ(USERFLAG.PendingIsoRequest, 3.0);
  EXPECT_EQ(host.Tag, "Done one time");
}

TEST_F(HostEventsTest, UnloadingTheWindowEndsTheProgramAndSavesNothing) {
  const auto stored = settings.entries;
  Form_Unload();
  EXPECT_EQ(dialogs.ended, 1);
  EXPECT_EQ(settings.entries, stored);
  EXPECT_THAT(RecordedCalls(), IsEmpty());
}

}  // namespace
}  // namespace quorb
