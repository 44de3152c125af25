#include "HostEvents.h"

#include <algorithm>

#include "WindowFixture.h"

namespace quorb {
namespace {

class HostEventsTest : public WindowFixture {
 protected:
  HostEventsTest() {
    Load();
    ClearCalls();
  }

  /// How often a frame was asked for since the last ClearCalls.
  static std::ptrdiff_t FramesAskedFor() {
    return std::count(RecordedCalls().begin(), RecordedCalls().end(), "Redraw()");
  }

  static std::ptrdiff_t CountBeginning(const std::string& text) {
    return std::count_if(RecordedCalls().begin(), RecordedCalls().end(),
                         [&](const std::string& call) { return call.starts_with(text); });
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
  events.AnimationTick();
  EXPECT_EQ(RecordedCalls().back(), "Redraw()");
  EXPECT_EQ(FramesAskedFor(), 1);
  EXPECT_EQ(host.Tag, "Animate");
  EXPECT_EQ(OneShotView, 0);
  EXPECT_EQ(USERFLAG.PendingIsoRequest, 2.0);
}

TEST_F(HostEventsTest, TheFirstTickWithAnEmptyTagSetsTheViewOnce) {
  host.Tag = "";
  glxCtl1_TimerTick();
  const auto asked = std::find(RecordedCalls().begin(), RecordedCalls().end(), "Redraw()");
  ASSERT_GE(RecordedCalls().end() - asked, 2);
  EXPECT_EQ(*(asked + 1), "Camera.SetUp(0, 1, 0)");
  EXPECT_EQ(host.Tag, "Done one time");
  EXPECT_EQ(OneShotView, 1);
  EXPECT_EQ(USERFLAG.PendingIsoRequest, 0);

  ClearCalls();
  host.Tag = "";
  glxCtl1_TimerTick();
  EXPECT_EQ(RecordedCalls().back(), "Redraw()");
  EXPECT_EQ(host.Tag, "Done one time");
}

TEST_F(HostEventsTest, ATickBehindTheOneTimeViewOnlyAsksForAFrame) {
  host.Tag = "Done one time";
  USERFLAG.PendingIsoRequest = 2.0;
  glxCtl1_TimerTick();
  EXPECT_EQ(RecordedCalls().back(), "Redraw()");
  EXPECT_EQ(FramesAskedFor(), 1);
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

TEST_F(HostEventsTest, ATickAsksForNoFrameOnceNothingChangesAnyMore) {
  events.Draw();
  events.Draw();
  ClearCalls();
  events.AnimationTick();
  EXPECT_EQ(FramesAskedFor(), 0);
  USERFLAG.NoPlotAxis = 1;
  events.AnimationTick();
  EXPECT_EQ(FramesAskedFor(), 1);
}

// ---- mouse and keyboard -----------------------------------------------------------------------------------

TEST_F(HostEventsTest, TheTrackballComesAheadOfTheSceneAndTakesRoundedPlaces) {
  events.Resize(640, 480);
  TheScene->EditState(8);
  ClearCalls();
  events.MouseDown(1, 0, 100.4, 50.6);
  EXPECT_THAT(RecordedCalls(), ElementsAre("TrackballStart(1, 100, 51)"));
  EXPECT_EQ(TheScene->MouseDownX, 100);
  EXPECT_EQ(TheScene->MouseDownY, 51);

  ClearCalls();
  events.MouseMove(1, 0, 110, 50.6);
  ASSERT_GE(RecordedCalls().size(), 3U);
  EXPECT_EQ(RecordedCalls().front(), "TrackballMove(110, 51)");
  EXPECT_EQ(CountBeginning("Camera.Pan("), 1);
  EXPECT_EQ(RecordedCalls().back(), "Redraw()");

  ClearCalls();
  events.MouseUp(1, 0, 110, 50.6);
  EXPECT_THAT(RecordedCalls(), ElementsAre("TrackballEnd()"));
}

TEST_F(HostEventsTest, AKeyReachesTheSceneAndAsksForAFrame) {
  host.camera.position = {100, 100, 100};
  events.KeyDown(73, 0);
  EXPECT_EQ(frmMain->Check9.Tag, "REAL_ISO");
  EXPECT_EQ(FramesAskedFor(), 1);
  events.KeyDown(73, 1);
  EXPECT_EQ(frmMain->Check9.Tag, "");
}

TEST_F(HostEventsTest, ACharacterPutsTheEyeOnTheOrigin) {
  events.KeyPress("a");
  EXPECT_THAT(RecordedCalls(),
              ElementsAre("Camera.SetUp(0, 1, 0)", "Camera.SetPosition(0, 0, 0)", "Redraw()"));
}

TEST_F(HostEventsTest, ANotchOfTheWheelIsFourStepsOfTheZoom) {
  TheScene->InvRange = 0.01;
  host.camera.window[0] = -100;
  host.camera.window[1] = 100;
  host.camera.window[2] = -50;
  host.camera.window[3] = 50;
  events.Wheel(1);
  // Each step leaves 0.98 of the window: 0.98 to the fourth is 0.92236816.
  EXPECT_NEAR(host.camera.window[1], 92.236816, 1e-9);
  EXPECT_NEAR(host.camera.window[2], -46.118408, 1e-9);
  EXPECT_EQ(FramesAskedFor(), 1);
  events.Wheel(-0.25);  // one step of 1.02
  EXPECT_NEAR(host.camera.window[1], 94.08155232, 1e-9);
}

TEST_F(HostEventsTest, ADoubleClickOfTheHostTogglesTheAnimation) {
  events.DoubleClick();
  EXPECT_EQ(host.Tag, "");
  EXPECT_FALSE(host.animation.enabled);
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
