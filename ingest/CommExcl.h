#pragma once

#include <string>

#include "LoaderWindow.h"
#include "Specification.h"

namespace quorb {

/// The one road for data: pours the running spreadsheet into the data file, unless another file is wanted,
/// chooses the file, reads its header and its rows into the plot arrays, and conditions them. It takes no
/// argument; it works from the run state (CommandFileMode, CommandFileName, FileMode). Ranges in the sheet
/// that cannot hold a plot end it early: LoadBusy then stays 1. A call while the sheet is poured does
/// nothing. Callers set DEJADRAW and DEJARESET to 0, and FileMode, before. Nothing is reported but to the log
/// and in message boxes: a failed statement is skipped and the load goes on.
void LoadPlot();

/// True from the first statement of a load to its last, however it ends, but for the time in which it waits
/// for the user's specification or for a workbook of the user's.
bool LoadIsUnderWay();

/// Ends the load that waits for the user, if one does: another plot than its own was put into the arrays. To
/// be called behind that. No specification is waited for from then on.
void GiveUpWaitingLoad();

/// Whether the load with this number, that of LoadsStarted within it, was given up so, and none began since.
bool LoadWasGivenUp(int load);

/// What the last load made of its file.
struct LoadOutcome {
  int ErrorNumber = 0;              ///< failure of the last opening, 0 for none
  bool headerRead = false;          ///< a header with something behind it was there
  int rows = 0;                     ///< rows that the file gave
  bool penUp = false;               ///< the title makes separate objects of them
  SpecificationText specification;  ///< scale, title and ranges as the formula gives them
};
const LoadOutcome& LastLoad();

/// Why the last load gave no rows, in words that end a sentence.
std::string NoRowsReason();

/// Sets the main window that loads report to. The caller keeps the ownership; it must outlive every load.
void SetLoaderWindow(LoaderWindow* window);

}  // namespace quorb
