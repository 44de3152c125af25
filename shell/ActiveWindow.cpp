#include "ActiveWindow.h"

#include "frmMain.h"
#include "frmVideo.h"

namespace quorb {

namespace {

ProgramWindow activeWindow = ProgramWindow::none;

}  // namespace

void WindowComesForward(ProgramWindow window) {
  if (window == activeWindow) return;
  activeWindow = window;
  if (window == ProgramWindow::main && frmMain != nullptr) Form_Activate();
  if (window == ProgramWindow::movie) frmVideo().Form_Activate();
}

void ForgetActiveWindow() {
  activeWindow = ProgramWindow::none;
}

}  // namespace quorb
