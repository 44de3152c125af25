#include <string>

#include "LoaderLink.h"
#include "LocalView.h"
#include "NumberText.h"
#include "OptionPanel.h"
#include "PlotControls.h"
#include "SatelliteControls.h"
#include "SheetControls.h"
#include "frmMain.h"

namespace quorb {

namespace {

void DesignPanel(MainWindow& window) {
  window.Options.visible = false;
  const char* const captions[] = {"no Plot Earth...", "no Colour Axis X", "Large Characters ", "no Plot Axis",
                                  "no Logo Label ",   "no Origin Label",  "no Time Moving",    "Interactive",
                                  "Moon x10",         "No Sun ray",       "Earth-moon"};
  for (std::size_t i = 0; i < window.Check1.size(); ++i)
    window.Check1[i].caption = captions[i];
  window.Check1[8].value.Design(1);
  window.Check1[10].visible = false;
  window.Check3.caption = "Satellite";
  window.Check4.caption = "Solar panel";
  window.Check4.visible = false;
  window.Check5.caption = "Valz";
  window.Check5.visible = false;
  window.Check6.caption = "Sat. Axis";
  window.Check6.value.Design(1);
  window.Check6.visible = false;
  window.Check6.toolTip = "Shows the local satellite axis Xsat Red,  Ysat  Green and  Zsat Blue";
  window.Check8.caption = "thrusters";
  window.Check8.toolTip = "Thrusters location x y z (n times)  and orientation x y z  (n times)";
  window.Combo2.text.Design("GEO satcom");
  window.Combo2.toolTip = "Select the shape of Satellite or Launcher with the number of solar arrays, etc.";
  window.Text13.visible = false;
  window.Text15.text.Design("km");
  window.Check9.caption = "Cubic View";
  window.Check9.Tag = "REAL_ISO";
  window.Check10.caption = "m";
  window.Check11.caption = "Only thrust or Whole orbit";
  window.Check11.visible = false;
  for (std::size_t i = 0; i < 4; ++i)
    window.Text4[i].text.Design("1");
  window.Text4[4].text.Design(WithDecimalMark("1.5"));
  window.Text4[4].visible = false;
  const char* const colours[] = {"40",  "80", "120", "128", "128", "128", "0",  "255", "0",
                                 "255", "0",  "0",   "50",  "100", "150", "10", "20",  "70"};
  for (std::size_t i = 0; i < window.Text5.size(); ++i) {
    window.Text5[i].text.Design(colours[i]);
    window.Text5[i].visible = false;
  }
  window.Text7.text.Design("Earthgeo.jpg");
  window.Text8.text.Design("Moonjpg.jpg");
  window.Text9.text.Design("MAX");
  window.Text9.visible = false;
  window.Command1.caption = "Save";
  window.Command2.caption = "Close";
  window.Command3.caption = "Factory Settings";
}

void DesignPanelLabels(MainWindow& window) {
  const char* const captions[] = {"Thickness LinePlot ",
                                  "Length Axis Factor",
                                  "Thickness LineAxis",
                                  "X,Y,Z position Factor",
                                  "Colour of : ",
                                  "Axis labels",
                                  "Axis",
                                  "Plot Nominal",
                                  "Plot Events",
                                  "Sphere",
                                  "BackGround",
                                  "Directory for the images saved",
                                  "Satellite  size"};
  for (std::size_t i = 0; i < window.Label1.size(); ++i)
    window.Label1[i].caption = captions[i];
  window.Label1[12].visible = false;
}

void DesignBar(ScrollBar& bar, int max, int largeChange, int value, bool visible) {
  bar.max = max;
  bar.largeChange = largeChange;
  bar.value.Design(value);
  bar.visible = visible;
}

void DesignStrip(MainWindow& window) {
  DesignBar(window.HScroll1, 10000, 100, 10000, true);
  DesignBar(window.HScroll2, 16, 3, 9, true);
  DesignBar(window.HScroll3, 32000, 320, 0, false);
  DesignBar(window.HScroll4, 1000, 100, 0, true);
  DesignBar(window.HScroll5, 1000, 100, 1000, false);
  DesignBar(window.HScroll6, 16, 3, 9, false);
  DesignBar(window.HScroll7, 100, 10, 1, true);
  DesignBar(window.HScroll8, 32000, 100, 10000, true);
  DesignBar(window.HScroll10, 32000, 1000, 10000, true);
  window.Text2.caption = "Redraw speed";
  window.Text2.toolTip = "Increase or decrease the speed of the dynamic plot";
  window.Text3.caption = "Redraw";
  window.Text3.toolTip =
      "Redraw  feature: new dynamic plot redrawn from the point you select up to the last one";
  window.Text10.caption = "Starting";
  window.Text10.toolTip = "Starting feature: Trace start from the point you select";
  window.Text11.caption = "Movie";
  window.Text11.toolTip = "Movie feature: number of frames";
  window.Text11.visible = false;
  window.Text12.caption = "Time between frames";
  window.Text12.toolTip = "Increase or decrease the time between frame for movie";
  window.Text12.visible = false;
  window.Command7.caption = "View local";
  window.Command7.toolTip =
      "Use a trajectory point (set by the scroll bar) as centre instead of the origin 0,0,0.  For continuous "
      "moving press the key W while this command has the focus. press again W for coming back";
  window.Text16.caption = "CubicView range and Axis length";
  window.Text18.caption = "Size satellite";
}

void DesignMenus(MainWindow& window) {
  window.mnuFile.caption = "&File";
  window.mnuFExit.caption = "E&xit";
  window.mnuEdit.caption = "&Edit";
  window.mnuEdit.visible = false;
  window.mnuOptions.caption = "&OptionsInteractive";
  window.mnuOinteractive.caption = "&Interactive";
  window.mnuView.caption = "&View";
  window.mnuHelp.caption = "&Help";
  window.mnuUpdateExcel.caption = "&UpdateExcel";
}

void DesignFrame(MainWindow& window) {
  window.Command6.caption = "Run Demo";
  window.Command6.visible = false;
  window.TextTempo.visible = false;
  window.Text20.visible = false;
  window.Text14.visible = false;
  window.ProgressBar1.visible = false;
  window.ProgressBar1.Width = 200 * kTwipsPerPixel;
  window.StatusBar1.Height = 24 * kTwipsPerPixel;
  window.TextTempo.Height = 20 * kTwipsPerPixel;
  window.Command6.Height = 24 * kTwipsPerPixel;
}

void TieTexts(MainWindow& window) {
  for (std::size_t i = 0; i < window.Text4.size(); ++i) {
    window.Text4[i].text.changed = [i] { Text4_Change(static_cast<int>(i)); };
  }
  window.Text6.text.changed = Text6_Change;
  window.Text7.text.changed = Text7_Change;
  window.Text8.text.changed = Text8_Change;
  window.Text9.text.changed = Text9_Change;
}

void TieControls(MainWindow& window) {
  for (std::size_t i = 0; i < window.Check1.size(); ++i) {
    window.Check1[i].value.changed = [i] { Check1_Click(static_cast<int>(i)); };
  }
  window.Check3.value.changed = Check3_Click;
  window.Check4.value.changed = Check4_Click;
  window.Check6.value.changed = Check6_Click;
  window.Check8.value.changed = Check8_Click;
  window.Check9.value.changed = Check9_Click;
  window.Combo2.text.changed = Combo2_Click;
  window.Check10.value.changed = Check10_Click;
  window.HScroll1.value.changed = HScroll1_Change;
  window.HScroll2.value.changed = HScroll2_Change;
  window.HScroll3.value.changed = HScroll3_Change;
  window.HScroll4.value.changed = HScroll4_Change;
  window.HScroll5.value.changed = HScroll5_Change;
  window.HScroll6.value.changed = HScroll6_Change;
  window.HScroll7.value.changed = HScroll7_Change;
  window.HScroll8.value.changed = HScroll8_Change;
  window.HScroll10.value.changed = HScroll10_Change;
  window.Combo1.entered = Combo1_Entered;
  window.Combo1.keyDown = Combo1_KeyDown;
  window.Combo1.gotFocus = Combo1_GotFocusRoutine;
  window.mnuFExit.clicked = Form_Unload;
  window.mnuOinteractive.clicked = mnuOinteractive_Click;
  window.Command6.clicked = Command6_Click;
  window.mnuUpdateExcel.clicked = mnuUpdateExcel_Click;
  window.Command7.clicked = Command7_Click;
  window.Command7.keyPressed = Command7_KeyDown;
}

}  // namespace

MainWindow::MainWindow() {
  DesignPanel(*this);
  DesignPanelLabels(*this);
  DesignStrip(*this);
  DesignMenus(*this);
  DesignFrame(*this);
}

void CreateMainWindow() {
  frmMain = std::make_unique<MainWindow>();
  TieTexts(*frmMain);
  TieControls(*frmMain);
  SetLoaderWindow(&LoaderLinkOfWindow());
}

}  // namespace quorb
