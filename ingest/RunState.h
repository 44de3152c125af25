#pragma once

#include <string>

#include "Dialogs.h"

namespace quorb {

// ---- state of one load ----------------------------------------------------------------------------------

/// 1 once Reset() has digested the data on show; 0 asks for that again.
extern int DEJARESET;
/// 1 while the points in the arrays are scaled into the view, whatever is asked for behind that.
extern int PointsAreScaled;
/// 0 makes the next frame run Reset().
extern int DEJADRAW;
/// 1 while the loader runs.
extern int LoadBusy;
/// 0 while the loader itself calls Form_Resize, else 1.
extern int ResizeArmed;
/// Source of the next load: 0 spreadsheet, 1 demonstration, 2 the named file again.
extern int FileMode;
/// 1 when a named data file is shown.
extern int CommandFileMode;
/// The data file's name as given.
extern std::string CommandFileName;
/// The data file's name as the loader resolved it.
extern std::string FILEcOMMANDnAME;
/// 1 once a load went through the spreadsheet.
extern int ExcelLinked;
/// 1 while the watcher's question is on screen.
extern int WatchStopped;
/// The specification formula of the plot on show.
extern std::string LastFormula;
/// A formula that the watcher saw but that has not led to a load; 1 while that change is pending.
extern std::string SeenFormula;
extern int FormulaArmed;
/// 1 and the text when the user typed a specification instead of writing it into the sheet.
extern int SpecTyped;
extern std::string SpecTypedText;
/// Name of the active sheet and caption of its window at the watcher's last poll.
extern std::string WatchSheetName, WatchCaption;
/// How the user answered the last question of the loader or the watcher; none clears it.
extern BoxAnswer LastAnswer;
/// 1 once the user was told that the spreadsheet runs without a workbook, until it has one again.
extern int NoWorkbookTold;
/// Number of the failure that the watcher has shown last, until it could read all again.
extern int WatchFaultTold;
/// 1 once a missing file (53) stopped the way to the spreadsheet: the named file's ending is then mended.
extern int MaybeExtError;
/// Loads that were started in this run.
extern int LoadsStarted;
/// The keyword that marks a range in the formula.
extern std::string MainKeyword;
/// The program's directory, or the place where the user chose that images go.
extern std::string AppDir;
/// Where the program and the files that ship with it stand; empty when unknown.
extern std::string ProgramDir;
/// Directory of the two fixed import files; empty for none.
extern std::string ImportDirectory;

// ---- flags of the plot ----------------------------------------------------------------------------------

/// 1 when one scale holds on all axes, 0 when each axis is scaled by itself.
extern int ISOmode;
/// 1 when the data stand in a single column, three rows a point.
extern int ColumnMode;
/// 1 when the plot is a set of separate objects.
extern int PenUpMode;
/// 1 when each of those carries a label.
extern int PenUpLabelMode;
/// 1 when the labels are drawn.
extern int PenUpLabelShow;
/// 1 when the colour values are shown; the axis of the colour scale.
extern int ValColour, ValAxis;
/// 1 when the trajectory is around the Moon.
extern int MoonFocus;
/// Central body: 1 Sun, 2 Mercury, 3 Venus, 4 Earth, 5 Mars, 6 Jupiter.
extern int FocusBody;
/// 1 when the plot is in the rotating Earth-Moon system; the distance of the two there, in metres.
extern int EMSystem;
extern double EMDistance;
/// 1 when the sheet gave quaternions with the scalar last.
extern int QuaterScalarLast;
/// True when the sheet's lengths were kilometres.
extern bool InputInKm;
/// 1 when the plot has events.
extern int FlagOptionToPlot;

// ---- state of the program -------------------------------------------------------------------------------

/// Line end of message texts.
inline constexpr const char* NL = "\r\n";
/// 1 from the start of the main window's load sequence on.
extern int StartFlag;
/// Release as nine digits.
extern std::string VersionDigits;
/// 0 draws the Moon, 1 leaves it out.
extern int MoonSwitch;
/// 1 follows the trajectory in the local frame.
extern int LocalFollow;

/// Puts the run state, the options, and the plot's counters and flags to their values at the program's start.
/// The arrays keep their contents: no row above a counter is read.
void StartRunState();

}  // namespace quorb
