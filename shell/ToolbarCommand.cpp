#include "ToolbarCommand.h"

#include <array>
#include <string_view>

#include "NumberPicture.h"
#include "PlotControls.h"
#include "SaveImage.h"
#include "TextHelpers.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr std::size_t kSelectSlot = 0, kPanSlot = 1, kZoomSlot = 2;

struct ModeKey {
  std::string_view key;
  MouseMode mode;
};

constexpr std::array<ModeKey, 15> kModeKeys = {{{"select", MouseMode::select},
                                                {"pan", MouseMode::pan},
                                                {"zoom", MouseMode::zoom},
                                                {"zminus", MouseMode::zMinus},
                                                {"zplus", MouseMode::zPlus},
                                                {"lightback", MouseMode::lightBack},
                                                {"dolly", MouseMode::dolly},
                                                {"orbit", MouseMode::orbit},
                                                {"pitch", MouseMode::pitch},
                                                {"yaw", MouseMode::yaw},
                                                {"roll", MouseMode::roll},
                                                {"move", MouseMode::move},
                                                {"rotate", MouseMode::rotate},
                                                {"scale", MouseMode::scale},
                                                {"arcrotate", MouseMode::arcRotate}}};

void SetMode(MouseMode mode) {
  TheScene->EditState(static_cast<int>(mode));
}

// Slot 0 is not cleared by the other modes; they win over it, since they are applied behind it.
void ChooseSlot(std::size_t slot) {
  std::array<int, 6>& slots = frmMain->toolbarState.ModeSlots;
  for (std::size_t i = 1; i < slots.size(); ++i)
    slots[i] = 0;
  slots[slot] = 1;
}

void KeepMode(std::string_view key) {
  if (key == "select") ChooseSlot(kSelectSlot);
  if (key == "pan") ChooseSlot(kPanSlot);
  if (key == "zoom") ChooseSlot(kZoomSlot);
}

/// The axis that a key puts upward; 0 for a key that puts none.
int AxisOfKey(int keyCode) {
  switch (keyCode) {
    case 'X':
    case 'x':
      return 1;
    case 'Y':
    case 'y':
      return 2;
    case 'Z':
    case 'z':
      return 3;
    default:
      return 0;
  }
}

void FreezeRedraw() {
  ToolbarState& state = frmMain->toolbarState;
  if (state.RedrawFrozen == 0) {
    SetMode(MouseMode::frozenStart);
    double index = 0;
    TheScene->ChangeCURRINDEXI(index, index);
    frmMain->Text3.caption = "Redraw Start" + FormatPicture(index, " #0");
    state.RedrawFrozen = 1;
    return;
  }
  RedrawState = 1;
  state.RedrawFrozen = 0;
  HScroll1_Change();
}

void ToggleAnimation() {
  SetMode(MouseMode::stop);
  glxCtl1_DblClick();
}

void TurnToIso(int shift, int useIso) {
  if (shift > 0) {
    TheScene->CameraSet("isonewPlus", 2, 0);
  } else {
    TheScene->CameraSet("isonew", frmMain->toolbarState.VerticalAxis, useIso);
  }
}

void ArmOrStopMovie() {
  const bool wasArmed = USERFLAG.MovieArmed == 1.0;
  mnuFMovieSaveAs_Click();
  USERFLAG.MovieArmed = wasArmed ? 0 : 1.0;
}

void Act(const std::string& key, int shift, int useIso) {
  for (const ModeKey& mode : kModeKeys) {
    if (key == mode.key) SetMode(mode.mode);
  }
  KeepMode(key);
  if (key == "frozenstart") FreezeRedraw();
  if (key == "stop") ToggleAnimation();
  if (key == "quorbxyz") TurnToIso(shift, useIso);
  if (key == "quorbxy") TheScene->CameraSet(shift > 0 ? "projinverse" : "proj", 2, 0);
  if (key == "imagespot") mnuFSaveAs_Click();
  if (key == "movieframes") ArmOrStopMovie();
}

void ComeBackToMode() {
  const std::array<int, 6>& slots = frmMain->toolbarState.ModeSlots;
  if (slots[kSelectSlot] == 1) SetMode(MouseMode::select);
  if (slots[kPanSlot] == 1) SetMode(MouseMode::pan);
  if (slots[kZoomSlot] == 1) SetMode(MouseMode::zoom);
}

}  // namespace

void ToolbarCommand(std::string& key) {
  ToolbarState& state = frmMain->toolbarState;
  const int shift = ShiftState;
  const int axis = AxisOfKey(LastKeyCode);
  int useIso = 0;
  if (state.DispatcherReady == 0) {
    ChooseSlot(kPanSlot);
    state.DispatcherReady = 1;
    state.VerticalAxis = 3;
    useIso = 1;
  }
  if (axis > 0) {
    state.VerticalAxis = axis;
    useIso = 1;
  }
  if (useIso == 1) key = "quorbxyz";
  USERFLAG.UpdateAsked = 0;
  Act(key, shift, useIso);
  ComeBackToMode();
}

void Toolbar1_ButtonClick(const ToolButton& button) {
  if (LastKeyReleased == 1 && AxisOfKey(LastKeyCode) > 0) LastKeyCode = 0;
  std::string key = LowerText(button.key);
  ToolbarCommand(key);
}

}  // namespace quorb
