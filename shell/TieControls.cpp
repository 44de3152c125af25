#include "ExtendedPanel.h"
#include "Help.h"
#include "LocalView.h"
#include "LogWindow.h"
#include "OpenFile.h"
#include "OptionBar.h"
#include "OptionPanel.h"
#include "OptionWindow.h"
#include "PlotControls.h"
#include "SatelliteControls.h"
#include "SaveImage.h"
#include "SheetControls.h"
#include "SlideShow.h"
#include "ToolbarCommand.h"
#include "ToolbarLayout.h"
#include "ViewMenu.h"
#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

void TieChecks(MainWindow& window) {
  for (std::size_t i = 0; i < window.Check1.size(); ++i)
    window.Check1[i].value.changed = [i] { Check1_Click(static_cast<int>(i)); };
  window.Check2.value.changed = Check2_Click;
  window.Check3.value.changed = Check3_Click;
  window.Check4.value.changed = Check4_Click;
  window.Check5.value.changed = Check5_Click;
  window.Check6.value.changed = Check6_Click;
  window.Check7.value.changed = Check7_Click;
  window.Check8.value.changed = Check8_Click;
  window.Check9.value.changed = Check9_Click;
  window.Check10.value.changed = Check10_Click;
}

void TiePanel(MainWindow& window) {
  for (std::size_t i = 0; i < window.Text4.size(); ++i)
    window.Text4[i].text.changed = [i] { Text4_Change(static_cast<int>(i)); };
  window.Text6.text.changed = Text6_Change;
  window.Text7.text.changed = Text7_Change;
  window.Text7.clicked = [] { frmMain->Text7.SetFocus(); };
  window.Text8.text.changed = Text8_Change;
  window.Text8.clicked = [] { frmMain->Text8.SetFocus(); };
  window.Text9.text.changed = Text9_Change;
  window.Combo2.text.changed = Combo2_Click;
  window.Command1.clicked = Command1_Click;
  window.Command2.clicked = Command2_Click;
  window.Command2.pointerMoved = Command2_MouseMove;
  window.Command2.pointerLeft = Options_MouseMove;
  window.Command3.clicked = Command3_Click;
  window.Options.pointerMoved = Options_MouseMove;
  window.Options.dragStarted = Options_DragStart;
  window.Options.draggedOver = Options_DragOver;
}

void TieStrip(MainWindow& window) {
  window.HScroll1.value.changed = HScroll1_Change;
  window.HScroll2.value.changed = HScroll2_Change;
  window.HScroll3.value.changed = HScroll3_Change;
  window.HScroll4.value.changed = HScroll4_Change;
  window.HScroll5.value.changed = HScroll5_Change;
  window.HScroll6.value.changed = HScroll6_Change;
  window.HScroll7.value.changed = HScroll7_Change;
  window.HScroll8.value.changed = HScroll8_Change;
  window.HScroll10.value.changed = HScroll10_Change;
  window.Command7.clicked = Command7_Click;
  window.Command7.keyPressed = Command7_KeyDown;
}

void TieFrame(MainWindow& window) {
  window.Combo1.entered = Combo1_Entered;
  window.Combo1.keyDown = Combo1_KeyDown;
  window.Combo1.gotFocus = Combo1_GotFocusRoutine;
  window.Command6.clicked = Command6_Click;
  window.StatusBar1.panelClicked = ShowOptions;
  window.StatusBar1.doubleClicked = ToggleLog;
  window.Text20.doubleClicked = Text20_DblClick;
  window.Text21.doubleClicked = ToggleLog;
  window.Command4.clicked = Command4_Click;
  window.Command5.clicked = Command5_Click;
  window.Frame1.pointerMoved = Frame1_MouseMove;
}

void TieToolbars(MainWindow& window) {
  window.Toolbar1.buttonClicked = Toolbar1_ButtonClick;
  window.Toolbar1.order.changed = SaveToolbarLayout;
  window.Toolbar1.doubleClicked = SaveToolbarLayout;
  window.ToolBoptions.buttonClicked = ToolBoptions_ButtonClick;
}

void TieMenus(MainWindow& window) {
  window.mnuFOpen.clicked = mnuFOpen_Click;
  window.mnuFSaveAs.clicked = mnuFSaveAs_Click;
  window.mnuFMovieSaveAs.clicked = mnuFMovieSaveAs_Click;
  window.mnuFRunPowerPoint.clicked = mnuFRunPowerPoint_Click;
  window.mnuFOptions.clicked = ShowOptions;
  window.mnuFExit.clicked = Form_Unload;
  window.mnuHContents.clicked = mnuHContents_Click;
  window.mnuHAbout.clicked = mnuHAbout_Click;
  window.mnuOinteractive.clicked = mnuOinteractive_Click;
  window.mnuVGrids.clicked = mnuVGrids_Click;
  window.mnuVReset.clicked = mnuVReset_Click;
  window.mnuUpdateExcel.clicked = mnuUpdateExcel_Click;
}

}  // namespace

void TieControls(MainWindow& window) {
  TieChecks(window);
  TiePanel(window);
  TieStrip(window);
  TieFrame(window);
  TieToolbars(window);
  TieMenus(window);
}

}  // namespace quorb
