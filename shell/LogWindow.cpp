#include "LogWindow.h"

#include "frmMain.h"

namespace quorb {

void ToggleLog() {
  frmMain->Text20.visible = !frmMain->Text20.visible;
}

void Text20_DblClick() {
  frmMain->Text20.visible = false;
}

}  // namespace quorb
