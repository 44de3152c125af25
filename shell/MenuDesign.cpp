#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

void DesignFileMenu(MainWindow& window) {
  window.mnuFile.caption = "&File";
  window.mnuFOpen.caption = "&Open *.qbv files";
  window.mnuFSaveAs.caption = "&SaveImage";
  window.mnuFMovieSaveAs.caption = "&MovieFrames";
  window.mnuFRunPowerPoint.caption = "&To run in PowerPoint";
  window.mnuFSep1.caption = kSeparatorCaption;
  window.mnuFOptions.caption = "&Options";
  window.mnuFPrint.caption = "&Print";
  window.mnuFPrint.visible = false;
  window.mnuFSep2.caption = kSeparatorCaption;
  window.mnuFExit.caption = "E&xit";
  window.mnuFile.entries = {&window.mnuFOpen,          &window.mnuFSaveAs, &window.mnuFMovieSaveAs,
                            &window.mnuFRunPowerPoint, &window.mnuFSep1,   &window.mnuFOptions,
                            &window.mnuFPrint,         &window.mnuFSep2,   &window.mnuFExit};
}

void DesignEditMenu(MainWindow& window) {
  window.mnuEdit.caption = "&Edit";
  window.mnuEdit.visible = false;
  window.mnuEMove.caption = "&Move";
  window.mnuERotate.caption = "&Rotate";
  window.mnuEScale.caption = "&Scale";
  window.mnuESep1.caption = kSeparatorCaption;
  window.mnuEDelete.caption = "&Delete";
  window.mnuESep2.caption = kSeparatorCaption;
  window.mnuEProperties.caption = "&Properties";
  window.mnuEdit.entries = {&window.mnuEMove,   &window.mnuERotate, &window.mnuEScale,     &window.mnuESep1,
                            &window.mnuEDelete, &window.mnuESep2,   &window.mnuEProperties};
}

void DesignViewMenu(MainWindow& window) {
  window.mnuView.caption = "&View";
  window.mnuVGrids.caption = "&Grid";
  window.mnuVCam.caption = "&Camera";
  window.mnuVReset.caption = "&Reset";
  window.mnuVSep1.caption = kSeparatorCaption;
  window.mnuVView.caption = "&View";
  window.mnuVVPerspective.caption = "&Perspecdtive";
  window.mnuVVTop.caption = "&Top";
  window.mnuVVLeft.caption = "&Left";
  window.mnuVVFront.caption = "&Front";
  for (Menu* hidden : {&window.mnuVCam, &window.mnuVReset, &window.mnuVVPerspective, &window.mnuVVTop,
                       &window.mnuVVLeft, &window.mnuVVFront}) {
    hidden->visible = false;
  }
  window.mnuView.entries = {&window.mnuVGrids, &window.mnuVCam, &window.mnuVReset, &window.mnuVSep1,
                            &window.mnuVView};
  window.mnuVView.entries = {&window.mnuVVPerspective, &window.mnuVVTop, &window.mnuVVLeft,
                             &window.mnuVVFront};
}

void DesignOtherMenus(MainWindow& window) {
  window.mnuOptions.caption = "&OptionsInteractive";
  window.mnuOinteractive.caption = "&Interactive";
  window.mnuOptions.entries = {&window.mnuOinteractive};
  window.mnuHelp.caption = "&Help";
  window.mnuHContents.caption = "&Contents";
  window.mnuHSep1.caption = kSeparatorCaption;
  window.mnuHAbout.caption = "&About";
  window.mnuHelp.entries = {&window.mnuHContents, &window.mnuHSep1, &window.mnuHAbout};
  window.mnuUpdateExcel.caption = "&UpdateExcel";
}

}  // namespace

void DesignMenus(MainWindow& window) {
  DesignFileMenu(window);
  DesignEditMenu(window);
  DesignViewMenu(window);
  DesignOtherMenus(window);
  window.menuBar = {&window.mnuFile, &window.mnuEdit, &window.mnuOptions,
                    &window.mnuView, &window.mnuHelp, &window.mnuUpdateExcel};
}

}  // namespace quorb
