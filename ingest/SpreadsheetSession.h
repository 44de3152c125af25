#pragma once

#include "LoaderWindow.h"

namespace quorb {

/// What a load takes from the spreadsheet beside the data file, which was written or left as it was.
struct SheetReading {
  bool leavesLoad = false;  ///< The ranges cannot hold a plot, and the user was told: the load ends here.
  int SpecFound = 0;        ///< 1 when the file was written and the end of its main range looked up.
};

/// Pours the ranges of the specification in the running spreadsheet (CurrentSheetLink()) into the data file.
/// When no spreadsheet runs, the user may open one and have that tried once more. Without a spreadsheet, a
/// workbook or a specification the data file stays as it was. Failures on the way are passed over: nothing of
/// the user's workbook changes, and no scratch workbook stays open. Sets ExcelLinked, LastFormula and what
/// NcolumnsUpdated sets.
SheetReading ReadSpreadsheet(LoaderWindow& window);

}  // namespace quorb
