#include "OptionWindow.h"

#include <algorithm>

#include "Mth.h"
#include "OptionPanel.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr double kStripThatStays = 600;

}  // namespace

void BringOptionsInside() {
  const Form& form = frmMain->form;
  Panel& panel = frmMain->Options;
  panel.Left = Clamp(panel.Left, kStripThatStays - panel.Width, form.Width - kStripThatStays);
  panel.Top = Clamp(panel.Top, 0, std::max(form.Height - kStripThatStays, 0.0));
}

void ShowOptions() {
  BringOptionsInside();
  frmMain->panelMemory.closeArmed = false;
  frmMain->Options.visible = true;
  frmMain->Options.BringToFront();
}

void Options_DragStart(double x, double y) {
  frmMain->panelMemory.grabX = x;
  frmMain->panelMemory.grabY = y;
}

void Options_DragOver(double x, double y) {
  Panel& panel = frmMain->Options;
  panel.Left = panel.Left + x - frmMain->panelMemory.grabX;
  panel.Top = panel.Top + y - frmMain->panelMemory.grabY;
  BringOptionsInside();
}

void Options_MouseMove() {
  frmMain->panelMemory.closeArmed = true;
}

void Command2_MouseMove() {
  if (!frmMain->panelMemory.closeArmed) return;
  frmMain->panelMemory.closeArmed = false;
  Command2_Click();
}

}  // namespace quorb
