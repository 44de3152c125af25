#pragma once

#include <string>

#include "LoaderWindow.h"

namespace quorb {

/// Names of the plot files in the program's directory.
struct PlotFileNames {
  std::string NameTempo;      ///< the file of the last load from the spreadsheet
  std::string NameTempoDemo;  ///< the demonstration file that ships with the program
};

/// The names in `AppDir`, which gets a directory mark behind when it has none.
PlotFileNames BuildPlotFileNames();

/// Chooses the file that a load reads and opens it as channel 1: the named file when FileMode is 2 or
/// CommandFileMode is 1; else the file of the last load from the spreadsheet; the demonstration file when
/// that one is missing or FileMode is 1. `ErrorNumber` is that of the last opening. True when the load has
/// announced the demonstration to the user, which it does when no file was there or FileMode is 1.
bool ChooseFile(const PlotFileNames& names, int& ErrorNumber, LoaderWindow& window);

}  // namespace quorb
