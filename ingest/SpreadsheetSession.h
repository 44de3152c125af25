#pragma once

#include "LoaderWindow.h"

namespace quorb {

/// How a load goes on behind the spreadsheet.
enum class SheetReading {
  readFile,   ///< With the data file, which was written or left as it was.
  leaveLoad,  ///< Not at all: the ranges cannot hold a plot, and the user was told.
};

/// Pours the ranges of the specification in the running spreadsheet (CurrentSheetLink()) into the data file.
/// When no spreadsheet runs, the user may open one and have that tried once more. Without a spreadsheet, a
/// workbook or a specification the data file stays as it was. Failures on the way are passed over: nothing of
/// the user's workbook changes, and no scratch workbook stays open. Sets ExcelLinked, LastFormula and what
/// NcolumnsUpdated sets.
SheetReading ReadSpreadsheet(LoaderWindow& window);

}  // namespace quorb
