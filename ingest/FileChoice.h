#pragma once

#include <string>
#include <vector>

#include "LoaderWindow.h"

namespace quorb {

/// Names of the plot files.
struct PlotFileNames {
  std::string NameTempo;      ///< the file of the last load from the spreadsheet
  std::string NameTempoDemo;  ///< the demonstration file that ships with the program
  std::string ShippedDemo;    ///< the same beside the program, where `AppDir` is another place; else empty
};

/// The names in `AppDir`, which gets a directory mark behind when it has none, and in `ProgramDir`.
PlotFileNames BuildPlotFileNames();

/// The files that a plot without a named file comes from, the first that is there: that of the last load from
/// the spreadsheet unless FileMode is 1, then the demonstration.
std::vector<std::string> PlotFilesInTurn();

/// Chooses the file that a load reads and opens it as channel 1: the named file when FileMode is 2 or
/// CommandFileMode is 1; else the file of the last load from the spreadsheet; the demonstration file when
/// that one is missing or FileMode is 1. `ErrorNumber` is that of the last opening. True when the load has
/// announced the demonstration to the user, which it does when no file was there or FileMode is 1.
bool ChooseFile(const PlotFileNames& names, int& ErrorNumber, LoaderWindow& window);

}  // namespace quorb
