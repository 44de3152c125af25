#include "ToolbarCommand.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

constexpr int kShift = 1, kControl = 2, kAlt = 4;
constexpr int kAltKey = 18;

/// The dispatcher of the tool bars has had its first call, which turns the view.
class FormKeysTest : public WindowFixture {
 protected:
  FormKeysTest() {
    Load();
    std::string noButton;
    ToolbarCommand(noButton);
    frmMain->GlPlace.takeFocus = [this] { ++focused; };
    ClearCalls();
  }

  /// Presses a key and gives its code as the form left it.
  static int Press(int code, int shift = 0) {
    Form_KeyDown(code, shift);
    return code;
  }

  int focused = 0;
};

TEST_F(FormKeysTest, AKeyDownIsKeptWithItsModifiers) {
  EXPECT_EQ(Press(66, kShift + kControl), 66);
  EXPECT_EQ(LastKeyCode, 66);
  EXPECT_EQ(ShiftState, 3);
}

TEST_F(FormKeysTest, AKeyUpClearsTheModifiersAndKeepsTheCode) {
  Press(66, kShift);
  Form_KeyUp(66, kShift);
  EXPECT_EQ(ShiftState, 0);
  EXPECT_EQ(LastKeyCode, 66);
}

// Alt goes down in the window, and up in the menu or the window that it opened.
TEST_F(FormKeysTest, KeysThatGoElsewhereCountAsGoneUp) {
  Press(kAltKey, kAlt);
  LetKeysGo();
  EXPECT_EQ(ShiftState, 0);
  EXPECT_EQ(LastKeyReleased, 1);
  EXPECT_EQ(LastKeyCode, kAltKey);
}

TEST_F(FormKeysTest, BehindKeysThatWentElsewhereTheProjectionsGoForward) {
  std::string projections = "quorbxy";
  TheScene->CameraSteps.ProjStep = 1;
  Press(kAltKey, kAlt);
  LetKeysGo();
  ToolbarCommand(projections);
  EXPECT_EQ(TheScene->CameraSteps.ProjStep, 2);
}

TEST_F(FormKeysTest, EnterClosesTheOpenPanelAsItsCloseButtonDoes) {
  frmMain->Options.visible = true;
  frmMain->Text4[0].text.Design("3");
  USERFLAG.SatelliteModelReady = 1.0;
  EXPECT_EQ(Press(13), 13);
  EXPECT_FALSE(frmMain->Options.visible);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 3);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);
  EXPECT_EQ(LastKeyCode, 0);
}

TEST_F(FormKeysTest, EnterWithoutThePanelIsAKeyLikeAnother) {
  USERFLAG.SatelliteModelReady = 1.0;
  Press(13);
  EXPECT_EQ(LastKeyCode, 13);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 1.0);
}

TEST_F(FormKeysTest, PageKeysAndArrowsGiveThePlotTheFocus) {
  for (const int code : {33, 34, 37, 38, 39, 40})
    Press(code);
  EXPECT_EQ(focused, 6);
}

TEST_F(FormKeysTest, EndHomeAndOtherKeysLeaveTheFocus) {
  for (const int code : {13, 32, 35, 36, 41, 65})
    Press(code);
  EXPECT_EQ(focused, 0);
}

TEST_F(FormKeysTest, TTogglesTheFollowingAndIsCleared) {
  EXPECT_EQ(Press(84), 0);
  EXPECT_EQ(LocalFollow, 1);
  EXPECT_EQ(LastKeyCode, 84);
  EXPECT_EQ(Press(84), 0);
  EXPECT_EQ(LocalFollow, 0);
}

TEST_F(FormKeysTest, IWithoutAModifierAsksForTheCornersOfTheCube) {
  frmMain->Check9.Tag = "";
  EXPECT_EQ(Press(73), 73);
  EXPECT_EQ(frmMain->Check9.Tag, "REAL_ISO");
  EXPECT_THAT(RecordedCalls(), testing::Contains("Camera.SetUp(0, 0, 1)"));
  // The second step over the corners: quadrant 2 is (-1, -1) round the axis Z.
  EXPECT_THAT(RecordedCalls(), testing::Contains("Camera.SetPosition(-100, -100, 100)"));
}

TEST_F(FormKeysTest, IWithAModifierTakesTheCornersBack) {
  EXPECT_EQ(frmMain->Check9.Tag, "REAL_ISO");
  Press(73, kShift);
  EXPECT_EQ(frmMain->Check9.Tag, "");
  EXPECT_THAT(RecordedCalls(), testing::Contains("Camera.SetPosition(100, 0, 100)"));
}

TEST_F(FormKeysTest, OtherKeysLeaveTheViewAndPutTheMouseModeBack) {
  for (const int code : {13, 32, 40, 65, 84})
    Press(code);
  EXPECT_THAT(RecordedCalls(), testing::Each("SetMousePointer(201, \"\")"));
  EXPECT_EQ(RecordedCalls().size(), 5U);
}

TEST_F(FormKeysTest, XYAndZPutTheirAxisUpward) {
  const std::pair<int, const char*> keys[] = {
      {'X', "Camera.SetUp(1, 0, 0)"}, {'Y', "Camera.SetUp(0, 1, 0)"}, {'Z', "Camera.SetUp(0, 0, 1)"}};
  for (const auto& [key, up] : keys) {
    ClearCalls();
    EXPECT_EQ(Press(key), key);
    EXPECT_THAT(RecordedCalls(), testing::Contains(up)) << key;
  }
}

TEST_F(FormKeysTest, AKeyOnTheWayToTheSpecificationReachesTheViewToo) {
  frmMain->Combo1.gotFocus();
  Press('X');
  EXPECT_THAT(RecordedCalls(), testing::Contains("Camera.SetUp(1, 0, 0)"));
}

TEST_F(FormKeysTest, EveryKeyWithdrawsAPendingReload) {
  USERFLAG.UpdateAsked = 1.0;
  Press('A');
  EXPECT_EQ(USERFLAG.UpdateAsked, 0);
}

}  // namespace
}  // namespace quorb
