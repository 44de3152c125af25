#include "OptionBar.h"

#include "Dialogs.h"
#include "LocalView.h"
#include "OptionPanel.h"
#include "OptionWindow.h"
#include "RunState.h"
#include "TextHelpers.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr double kThinning = 10;

// The check box follows the counter of clicks, not the button.
void SwitchCheck(CheckBox& box, Control& bar, Control& label, int value, int& clicks) {
  box.value = value;
  bar.visible = value == 1;
  label.visible = value == 1;
  clicks = (clicks + 1) % 2;
  box.value = clicks;
}

void OpenOrCloseOptions(int value) {
  Button& close = frmMain->Command2;
  if (value == 1) {
    close.Tag = "ToolBoptions";
    ShowOptions();
  } else {
    close.Tag.clear();
    Command2_Click();
  }
}

void RedrawInLocalFrame() {
  frmMain->HScroll1.value = 0;
  CurrentDialogs().PumpEvents();
  Command7_Click();
  CurrentDialogs().PumpEvents();
  Command7_KeyDown();
  CurrentDialogs().PumpEvents();
}

// The line of separate objects is thin.
void TogglePenUp() {
  PenUpMode = 1 - PenUpMode;
  if (PenUpMode == 1) {
    USERFLAG.ThicknessLinePlot /= kThinning;
  } else {
    USERFLAG.ThicknessLinePlot *= kThinning;
  }
}

}  // namespace

void ToolBoptions_ButtonClick(const ToolButton& button) {
  MainWindow& window = *frmMain;
  std::array<int, 3>& toggles = window.toolbarState.OptionToggles;
  const std::string key = LowerText(button.key);
  if (key == "optsat")
    SwitchCheck(window.Check3, window.HScroll10, window.Text18, button.Value(), toggles[1]);
  if (key == "optcub") SwitchCheck(window.Check9, window.HScroll8, window.Text16, button.Value(), toggles[2]);
  if (key == "optearth") window.Check1[0].value = button.Value();
  if (key == "optmoon") MoonSwitch = 1 - button.Value();
  if (key == "optopt") OpenOrCloseOptions(button.Value());
  if (key == "optw") RedrawInLocalFrame();
  if (key == "optpenup") TogglePenUp();
}

}  // namespace quorb
