#pragma once

#include <string>
#include <vector>

namespace quorb {

/// A menu entry and where it stands: the name of the menu that opens it, empty for the menu bar.
struct MenuRow {
  std::string place, name, caption;
  bool visible = true;
};

/// All entries, menu by menu, from the left and from the top.
inline std::vector<MenuRow> MenuRows() {
  return {
      {"", "mnuFile", "&File", true},
      {"mnuFile", "mnuFOpen", "&Open *.qbv files", true},
      {"mnuFile", "mnuFSaveAs", "&SaveImage", true},
      {"mnuFile", "mnuFMovieSaveAs", "&MovieFrames", true},
      {"mnuFile", "mnuFRunPowerPoint", "&To run in PowerPoint", true},
      {"mnuFile", "mnuFSep1", "-", true},
      {"mnuFile", "mnuFOptions", "&Options", true},
      {"mnuFile", "mnuFPrint", "&Print", false},
      {"mnuFile", "mnuFSep2", "-", true},
      {"mnuFile", "mnuFExit", "E&xit", true},
      {"", "mnuEdit", "&Edit", false},
      {"mnuEdit", "mnuEMove", "&Move", true},
      {"mnuEdit", "mnuERotate", "&Rotate", true},
      {"mnuEdit", "mnuEScale", "&Scale", true},
      {"mnuEdit", "mnuESep1", "-", true},
      {"mnuEdit", "mnuEDelete", "&Delete", true},
      {"mnuEdit", "mnuESep2", "-", true},
      {"mnuEdit", "mnuEProperties", "&Properties", true},
      {"", "mnuOptions", "&OptionsInteractive", true},
      {"mnuOptions", "mnuOinteractive", "&Interactive", true},
      {"", "mnuView", "&View", true},
      {"mnuView", "mnuVGrids", "&Grid", true},
      {"mnuView", "mnuVCam", "&Camera", false},
      {"mnuView", "mnuVReset", "&Reset", false},
      {"mnuView", "mnuVSep1", "-", true},
      {"mnuView", "mnuVView", "&View", true},
      {"mnuVView", "mnuVVPerspective", "&Perspecdtive", false},
      {"mnuVView", "mnuVVTop", "&Top", false},
      {"mnuVView", "mnuVVLeft", "&Left", false},
      {"mnuVView", "mnuVVFront", "&Front", false},
      {"", "mnuHelp", "&Help", true},
      {"mnuHelp", "mnuHContents", "&Contents", true},
      {"mnuHelp", "mnuHSep1", "-", true},
      {"mnuHelp", "mnuHAbout", "&About", true},
      {"", "mnuUpdateExcel", "&UpdateExcel", true},
  };
}

/// A position of a tool bar; one with an empty key is a separator.
struct ButtonRow {
  int position;
  std::string key, toolTip;
  int image;
};

inline std::vector<ButtonRow> ViewButtonRows() {
  return {
      {1, "select", "Move with left button, Orient with right", 7},
      {2, "pan", "Pan with Left button, Try the Right button !", 10},
      {3, "zoom", "Zoom with Left button, Try the Right button !", 4},
      {4, "", "", 0},
      {5, "zminus", "Zoom out", 5},
      {6, "zplus", "Zoom in", 6},
      {7, "", "", 0},
      {8, "lightback", "Change the background color.", 149},
      {9, "stop",
       "Enable or disable the automatic rotation  motion given by the left click.  Use first the left click "
       "to "
       "stop.",
       105},
      {10, "frozenstart", "To stop the Redraw", 84},
      {11, "", "", 0},
      {12, "quorbxyz",
       "Fix the orientation ISO (backward with CTRL key); press key X Y or Z to fix the vertical axis", 66},
      {13, "quorbxy", "Various orientations (backward with CTRL key)", 258},
      {14, "", "", 0},
      {15, "imagespot", "Save Image with timestamp in the directory (see options) ", 27},
      {16, "movieframes",
       "Save Movie Frames with timestamp in the directory (Adjust the settings and click again here to start "
       "the "
       "movie)",
       48},
  };
}

inline std::vector<ButtonRow> OptionButtonRows() {
  return {
      {1, "optSat", "Satellite with sides coloured differently", 1},
      {2, "optCub", "Cubic view with 3DD and 2D projections on 3 planes", 2},
      {3, "optEarth", "Show earth or not", 96},
      {4, "", "", 0},
      {5, "optMoon", "Show Moon with amplification or not", 92},
      {6, "", "", 0},
      {7, "optW", "Local frame at current position with redraw", 165},
      {8, "", "", 0},
      {9, "optOpt", "Show the Option menu or not", 104},
      {10, "optPenup", "PenUp or not", 0},
  };
}

}  // namespace quorb
