#include "LoaderLink.h"
#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

void DesignFrame(MainWindow& window) {
  window.Combo1.toolTip =
      "By default, the specification is taken from Excel. When none, please write here the spec like "
      "\"=MAX(A2:C60)\" and  press the Enter Key.";
  window.Command6.caption = "Run Demo";
  window.Command8.caption = "IconList";
  window.Command9.caption = "IconList";
  for (Button* hidden : {&window.Command6, &window.Command8, &window.Command9})
    hidden->visible = false;
  window.TextTempo.visible = false;
  window.Text20.visible = false;
  window.ProgressBar1.Width = 200 * kTwipsPerPixel;
  window.StatusBar1.Height = 24 * kTwipsPerPixel;
  window.TextTempo.Height = 20 * kTwipsPerPixel;
  window.Command6.Height = 24 * kTwipsPerPixel;
}

}  // namespace

MainWindow::MainWindow() {
  DesignOptionPanel(*this);
  DesignStrip(*this);
  DesignMenus(*this);
  DesignToolbars(*this);
  DesignSlideShowPanel(*this);
  DesignFrame(*this);
}

void CreateMainWindow() {
  frmMain = std::make_unique<MainWindow>();
  TieControls(*frmMain);
  SetLoaderWindow(&LoaderLinkOfWindow());
}

}  // namespace quorb
