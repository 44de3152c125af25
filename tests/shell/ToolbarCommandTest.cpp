#include "ToolbarCommand.h"

#include "Movie.h"
#include "WindowFixture.h"
#include "frmVideo.h"

namespace quorb {
namespace {

using testing::Contains;
using testing::Not;

constexpr int kControl = 2;

/// The first command of the run, which turns the view, has been given.
class ToolbarCommandTest : public WindowFixture {
 protected:
  ToolbarCommandTest() : window(Load()) {
    std::string first;
    ToolbarCommand(first);
    ClearCalls();
  }

  /// A click of the user on the button of this key.
  void Click(const std::string& key) {
    for (int position = 1; position <= window.Toolbar1.Positions(); ++position) {
      ToolButton& button = window.Toolbar1.Button(position);
      if (button.key == key) return window.Toolbar1.buttonClicked(button);
    }
    FAIL() << "no button " << key;
  }

  static std::string Pointer(int shape) { return "SetMousePointer(" + std::to_string(shape) + ", \"\")"; }

  MainWindow& window;
};

// ---- the first command ------------------------------------------------------------------------------------

TEST_F(ToolbarCommandTest, TheVeryFirstCommandIsTheIsometricViewWithZUpwardInTheModePan) {
  for (const char* first : {"", "zoom", "quorbxy", "imagespot"}) {
    Load();
    ClearCalls();
    std::string key = first;
    ToolbarCommand(key);
    EXPECT_EQ(key, "quorbxyz") << first;
    EXPECT_THAT(RecordedCalls(), Contains("Camera.SetUp(0, 0, 1)"));
    EXPECT_EQ(TheScene->CameraSteps.ViewAxis, 3);
    EXPECT_EQ(TheScene->EditState(), 8);
    EXPECT_THAT(frmMain->toolbarState.ModeSlots, ElementsAre(0, 1, 0, 0, 0, 0));
    EXPECT_EQ(frmMain->toolbarState.DispatcherReady, 1);
  }
}

TEST_F(ToolbarCommandTest, AKeyThatIsDownAtTheFirstCommandChoosesTheAxis) {
  Load();
  LastKeyCode = 'Y';
  std::string key;
  ToolbarCommand(key);
  EXPECT_EQ(TheScene->CameraSteps.ViewAxis, 2);
}

// ---- mouse modes ------------------------------------------------------------------------------------------

TEST_F(ToolbarCommandTest, TheModesStay) {
  Click("zoom");
  EXPECT_EQ(TheScene->EditState(), 6);
  EXPECT_THAT(RecordedCalls(), ElementsAre(Pointer(200), Pointer(200)));
  Click("pan");
  EXPECT_EQ(TheScene->EditState(), 8);
  Click("select");
  EXPECT_EQ(TheScene->EditState(), 1);
  EXPECT_THAT(window.toolbarState.ModeSlots, ElementsAre(1, 0, 0, 0, 0, 0));
}

TEST_F(ToolbarCommandTest, TheOtherModesWinOverSelectWhichStays) {
  Click("select");
  Click("zoom");
  EXPECT_THAT(window.toolbarState.ModeSlots, ElementsAre(1, 0, 1, 0, 0, 0));
  ClearCalls();
  std::string key;
  ToolbarCommand(key);
  EXPECT_THAT(RecordedCalls(), ElementsAre(Pointer(0), Pointer(200)));
  EXPECT_EQ(TheScene->EditState(), 6);
}

TEST_F(ToolbarCommandTest, AStepOfTheWindowInTheModeZoomLeavesZoomInForce) {
  Click("zoom");
  const double width = TheScene->OrthoHalfWidth;
  Click("zminus");
  EXPECT_EQ(TheScene->OrthoHalfWidth, 3 * width);
  EXPECT_EQ(TheScene->EditState(), 6);
  Click("zplus");
  EXPECT_EQ(TheScene->OrthoHalfWidth, width);
  EXPECT_EQ(TheScene->EditState(), 6);
}

TEST_F(ToolbarCommandTest, KeysThatNoButtonCarriesSetTheirModeForAMoment) {
  const std::pair<const char*, int> keys[] = {{"dolly", 202},  {"orbit", 207}, {"pitch", 204},
                                              {"yaw", 205},    {"roll", 206},  {"move", 210},
                                              {"rotate", 211}, {"scale", 212}, {"arcrotate", 203}};
  for (const auto& [name, pointer] : keys) {
    ClearCalls();
    std::string key = name;
    ToolbarCommand(key);
    EXPECT_EQ(key, name);
    EXPECT_THAT(RecordedCalls(), ElementsAre(Pointer(pointer), Pointer(201)));
  }
}

TEST_F(ToolbarCommandTest, AnUnknownKeyOnlyComesBackToTheMode) {
  std::string key = "ZOOM";
  ToolbarCommand(key);
  EXPECT_EQ(key, "ZOOM");
  EXPECT_THAT(RecordedCalls(), ElementsAre(Pointer(201)));
}

TEST_F(ToolbarCommandTest, TheBackgroundBecomesWhiteAndComesBack) {
  Click("lightback");
  EXPECT_EQ(TheScene->WhiteBack, 1);
  EXPECT_THAT(RecordedCalls(), Contains("glClearColor(1, 1, 1, 0)"));
  Click("lightback");
  EXPECT_EQ(TheScene->WhiteBack, 0);
}

TEST_F(ToolbarCommandTest, EveryCommandWithdrawsAPendingReload) {
  USERFLAG.UpdateAsked = 1.0;
  Click("pan");
  EXPECT_EQ(USERFLAG.UpdateAsked, 0);
}

// ---- views ------------------------------------------------------------------------------------------------

TEST_F(ToolbarCommandTest, TheOrientationButtonKeepsTheAxisOfTheKeys) {
  Click("quorbxyz");
  EXPECT_THAT(RecordedCalls(), Contains("Camera.SetUp(0, 0, 1)"));
  for (const auto& [code, up] :
       {std::pair(120, "Camera.SetUp(1, 0, 0)"), std::pair(89, "Camera.SetUp(0, 1, 0)"),
        std::pair(121, "Camera.SetUp(0, 1, 0)"), std::pair(90, "Camera.SetUp(0, 0, 1)"),
        std::pair(122, "Camera.SetUp(0, 0, 1)"), std::pair(88, "Camera.SetUp(1, 0, 0)")}) {
    ClearCalls();
    LastKeyCode = code;
    std::string key;
    ToolbarCommand(key);
    EXPECT_EQ(key, "quorbxyz");
    EXPECT_THAT(RecordedCalls(), Contains(up)) << code;
  }
  Form_KeyUp('X', 0);
  ClearCalls();
  Click("quorbxyz");
  EXPECT_THAT(RecordedCalls(), Contains("Camera.SetUp(1, 0, 0)"));
}

TEST_F(ToolbarCommandTest, AnAxisKeyThatIsHeldTurnsEveryCommandIntoItsView) {
  LastKeyCode = 'X';
  Click("zoom");
  EXPECT_THAT(RecordedCalls(), Contains("Camera.SetUp(1, 0, 0)"));
  EXPECT_EQ(TheScene->EditState(), 8);
}

TEST_F(ToolbarCommandTest, AnAxisKeyThatHasGoneUpLeavesTheButtonsAlone) {
  int code = 'X';
  Form_KeyDown(code, 0);
  Form_KeyUp('X', 0);
  ClearCalls();
  Click("zoom");
  EXPECT_EQ(TheScene->EditState(), 6);
  EXPECT_THAT(RecordedCalls(), Not(Contains("Camera.SetUp(1, 0, 0)")));
}

TEST_F(ToolbarCommandTest, WithControlTheOrientationGoesOverTheCorners) {
  ShiftState = kControl;
  Click("quorbxyz");
  EXPECT_THAT(RecordedCalls(), Contains("Camera.SetPosition(-100, 100, 100)"));
}

TEST_F(ToolbarCommandTest, TheProjectionsGoForwardAndWithControlBackward) {
  Click("quorbxy");
  EXPECT_EQ(TheScene->CameraSteps.ProjStep, 1);
  Click("quorbxy");
  EXPECT_EQ(TheScene->CameraSteps.ProjStep, 2);
  ShiftState = kControl;
  Click("quorbxy");
  EXPECT_EQ(TheScene->CameraSteps.ProjStep, 1);
}

// ---- time -------------------------------------------------------------------------------------------------

TEST_F(ToolbarCommandTest, TheRedrawFreezesAtItsRow) {
  LastPoint = 1000;
  TheScene->CURRINDEXI = 250;
  Click("frozenstart");
  EXPECT_EQ(RedrawState, 1);
  EXPECT_EQ(TheScene->CURRINDEXI, 250);
  EXPECT_EQ(window.Text3.caption.Get(), "Redraw Start 250");
  EXPECT_EQ(window.toolbarState.RedrawFrozen, 1);
  EXPECT_THAT(RecordedCalls(), ElementsAre(Pointer(0), Pointer(201)));
}

TEST_F(ToolbarCommandTest, TheSecondPressRunsOnFromThere) {
  LastPoint = 1000;
  TheScene->CURRINDEXI = 250;
  Click("frozenstart");
  Click("frozenstart");
  EXPECT_EQ(RedrawState, 0);
  EXPECT_EQ(TheScene->CURRINDEXI, 250);
  EXPECT_EQ(window.HScroll1.value, 2500);
  EXPECT_EQ(window.Text3.caption.Get(), "Redraw  2500");
  EXPECT_EQ(window.toolbarState.RedrawFrozen, 0);
}

TEST_F(ToolbarCommandTest, StopTogglesTheAnimation) {
  EXPECT_EQ(host.Tag, "Animate");
  Click("stop");
  EXPECT_EQ(host.Tag, "");
  EXPECT_FALSE(host.animation.enabled);
  EXPECT_THAT(RecordedCalls(),
              ElementsAre(Pointer(0), "Animation.SetEnabled(false)", "Animation.Update()", Pointer(201)));
  Click("stop");
  EXPECT_EQ(host.Tag, "Animate");
  EXPECT_TRUE(host.animation.enabled);
}

// ---- movies -----------------------------------------------------------------------------------------------

TEST_F(ToolbarCommandTest, TheMovieButtonShowsTheSettingsAndThenStops) {
  frmVideo().form.visible = false;
  Click("movieframes");
  EXPECT_TRUE(frmVideo().form.visible);
  EXPECT_EQ(USERFLAG.MovieArmed, 1.0);
  USERFLAG.MovieFrameCount = 7;
  USERFLAG.MovieNextTime = 12;
  Click("movieframes");
  EXPECT_EQ(USERFLAG.MovieArmed, 0);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(USERFLAG.MovieNextTime, 0);
  Click("movieframes");
  EXPECT_EQ(USERFLAG.MovieArmed, 1.0);
}

TEST_F(ToolbarCommandTest, TheImageButtonSavesAnImage) {
  frmMain->ExplorerShown = true;
  Click("imagespot");
  EXPECT_THAT(RecordedCalls(), Contains("ShowBusy(true)"));
}

}  // namespace
}  // namespace quorb
