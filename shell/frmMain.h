#pragma once

#include <array>
#include <memory>
#include <string>

#include "ClassGl.h"
#include "Controls.h"
#include "HostEvents.h"
#include "SceneWindow.h"
#include "glCtl.h"

namespace quorb {

/// A label's texts, put aside.
struct KeptLabel {
  std::string caption, toolTip;
};

/// The labels that a movie puts aside.
struct MovieLabels {
  bool kept = false;
  KeptLabel Text2, Text3;
};

/// The controls of the main window, each with the value that the window is designed with.
struct MainWindow {
  MainWindow();

  Label form;  ///< the window itself: its caption, and the size of its inside in twips
  Control Toolbar1, ToolBoptions, StatusBar1, GlPlace;  ///< GlPlace is where the plot stands

  ProgressBar ProgressBar1;
  ComboBox Combo1, Combo2;
  TextBox TextTempo, Text14, Text20, Text21;
  Button Command6;
  Button imagespot;

  // Option panel.
  Control Options;
  std::array<CheckBox, 11> Check1;
  CheckBox Check3, Check4, Check5, Check6, Check8, Check9, Check10, Check11;
  std::array<TextBox, 5> Text4;
  std::array<TextBox, 18> Text5;
  TextBox Text6, Text7, Text8, Text9, Text13, Text15;
  ScrollBar HScroll3;
  std::array<Label, 13> Label1;
  Button Command1, Command2, Command3;
  double sunRayLength = 0;  ///< the length that the clicks on Check1(9) run through

  // Strip below the plot.
  ScrollBar HScroll1, HScroll2, HScroll4, HScroll5, HScroll6, HScroll7, HScroll8, HScroll10;
  Label Text2, Text3, Text10, Text11, Text12, Text16, Text18;
  Button Command7;
  int cubicBeforeLocal = 0;  ///< value of Check9 before the local view went on
  int RedrawTouched = 0;     ///< 1 once the change routine of HScroll1 has run
  int MovieTouched = 0;      ///< the same for HScroll5
  MovieLabels movieLabels;
  bool fileTypeStored = false;  ///< the settings tell which program opens data files

  Menu mnuFile, mnuFExit, mnuEdit, mnuView, mnuHelp, mnuUpdateExcel, mnuOptions, mnuOinteractive;
};

/// The main window; null before Form_Load.
extern std::unique_ptr<MainWindow> frmMain;
/// The one host control and the one scene; set during Form_Load.
extern glCtl* glxCtl1;
extern std::unique_ptr<ClassGl> TheScene;

/// Makes the window with its designed values, and ties every control to its routine.
void CreateMainWindow();

/// The window's load sequence: command line, options, lists, scene, start of the host. `commandLine` is the
/// whole text behind the program's name. Asks the user when the option Interactive is stored.
void Form_Load(const std::string& commandLine, glCtl& host);

/// The window is shown for the first time or comes back from another window of the program. The first one
/// loads the plot.
void Form_Activate();

/// Lays out the plot and what stands around it, in the inside of the window.
void Form_Resize();

/// A key goes down: the form sees it before its controls. `KeyCode` is set to 0 when it has been dealt with.
void Form_KeyDown(int& KeyCode, int Shift);
void Form_KeyUp(int KeyCode, int Shift);

/// The window is being closed: the program ends at once, nothing is saved.
void Form_Unload();

// ---- events of the host control -------------------------------------------------------------------------

/// The events that the host sends: they reach the scene, and the plot's size is kept.
HostEvents& HostEventsOfWindow();

/// The main window as the scene sees it.
SceneWindow& SceneWindowOfWindow();

/// Toggles the animation of the host.
void glxCtl1_DblClick();

/// The animation tick: asks for a frame; sets the isometric view once, when the animation is off.
void glxCtl1_TimerTick();

// ---- run state of the window ----------------------------------------------------------------------------

extern int FirstActivated;         ///< 1 once the first activation has loaded the data
extern int OneShotView;            ///< 1 once the first isometric view was set by the animation tick
extern int ShiftState;             ///< modifier mask of the last key down; key up clears it
extern int LastKeyCode;            ///< code of the last key down
extern int PlotWidth, PlotHeight;  ///< size of the plot in pixels, as the host told it last

}  // namespace quorb
