#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "ClassGl.h"
#include "Controls.h"
#include "HostEvents.h"
#include "SceneWindow.h"
#include "WindowControls.h"
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

/// What the dispatcher of the tool bars keeps.
struct ToolbarState {
  std::array<int, 6> ModeSlots{};      ///< mouse mode to come back to: 0 select, 1 pan, 2 zoom
  int DispatcherReady = 0;             ///< 1 behind the first command
  int VerticalAxis = 0;                ///< axis that the next isometric view puts upward: 1 X, 2 Y, 3 Z
  int RedrawFrozen = 0;                ///< 1 while "frozenstart" holds the redraw
  std::array<int, 3> OptionToggles{};  ///< clicks, modulo 2: 1 those on optSat, 2 those on optCub
};

/// What the option panel puts aside.
struct PanelMemory {
  double panelHeight = 0;                 ///< designed height of the panel; 0 before the first Check2 click
  double windowHeight = 0;                ///< height of the window before the panel was extended
  std::array<std::string, 3> background;  ///< Text5(15..17) before the white background
  bool valZKept = false;                  ///< NbValZ was kept
  double NbValZ = 0;                      ///< its value at the first click of Check5
  double grabX = 0, grabY = 0;            ///< point of the panel that is dragged
  bool closeArmed = false;                ///< the pointer was seen outside Close since the panel opened
};

/// The controls of the main window, each with the value that the window is designed with.
struct MainWindow {
  MainWindow();

  Form form;
  ToolBar Toolbar1{16}, ToolBoptions{10};
  StatusBar StatusBar1;
  Control GlPlace;  ///< where the plot stands

  ProgressBar ProgressBar1;
  ComboBox Combo1, Combo2;
  TextBox TextTempo, Text14, Text20, Text21;
  Button Command6, Command8, Command9;

  // Panel "To run in PowerPoint".
  Panel Frame1;
  TextBox Text1;
  Button Command4, Command5;
  std::array<Picture, 2> Picture1;
  std::array<Label, 5> Label2;

  // Option panel.
  Panel Options;
  std::array<CheckBox, 11> Check1;
  CheckBox Check2, Check3, Check4, Check5, Check6, Check7, Check8, Check9, Check10, Check11;
  std::array<TextBox, 5> Text4;
  std::array<TextBox, 18> Text5;
  TextBox Text6, Text7, Text8, Text9, Text13, Text15;
  ScrollBar HScroll3;
  std::array<Label, 14> Label1;
  Button Command1, Command2, Command3;
  double sunRayLength = 0;  ///< the length that the clicks on Check1(9) run through
  PanelMemory panelMemory;

  // Strip below the plot.
  ScrollBar HScroll1, HScroll2, HScroll4, HScroll5, HScroll6, HScroll7, HScroll8, HScroll10;
  Label Text2, Text3, Text10, Text11, Text12, Text16, Text18;
  Button Command7;
  int cubicBeforeLocal = 0;  ///< value of Check9 before the local view went on
  int RedrawTouched = 0;     ///< 1 once the change routine of HScroll1 has run
  int MovieTouched = 0;      ///< the same for HScroll5
  MovieLabels movieLabels;
  bool fileTypeStored = false;  ///< the settings tell which program opens data files

  // Menus. menuBar holds those of the bar, from the left.
  std::vector<Menu*> menuBar;
  Menu mnuFile, mnuFOpen, mnuFSaveAs, mnuFMovieSaveAs, mnuFRunPowerPoint, mnuFSep1, mnuFOptions, mnuFPrint,
      mnuFSep2, mnuFExit;
  Menu mnuEdit, mnuEMove, mnuERotate, mnuEScale, mnuESep1, mnuEDelete, mnuESep2, mnuEProperties;
  Menu mnuOptions, mnuOinteractive;
  Menu mnuView, mnuVGrids, mnuVCam, mnuVReset, mnuVSep1, mnuVView, mnuVVPerspective, mnuVVTop, mnuVVLeft,
      mnuVVFront;
  Menu mnuHelp, mnuHContents, mnuHSep1, mnuHAbout;
  Menu mnuUpdateExcel;

  ToolbarState toolbarState;
  bool ExplorerShown = false;  ///< the directory of the images was opened for the user
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

/// The keys go to another window or to an open menu now, and with them the key up that the form would wait
/// for: the keys that are held count as gone up.
void LetKeysGo();

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
extern int ShiftState;             ///< modifier mask of the last key down; 0 once that key is up
extern int LastKeyCode;            ///< code of the last key down
extern int LastKeyReleased;        ///< 1 once that key has gone up
extern int PlotWidth, PlotHeight;  ///< size of the plot in pixels, as the host told it last

}  // namespace quorb
