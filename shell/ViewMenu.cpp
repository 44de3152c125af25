#include "ViewMenu.h"

#include "frmMain.h"

namespace quorb {

void mnuVGrids_Click() {
  TheScene->Grids(!TheScene->Grids());
  frmMain->mnuVGrids.checked = TheScene->Grids();
  glxCtl1->Redraw();
}

void mnuVReset_Click() {
  glxCtl1->Camera().Look(0, 0, 0, 0, 0, -1, 0, 1, 0);
  glxCtl1->Redraw();
}

}  // namespace quorb
