#pragma once

#include <string>
#include <vector>

#include "LoaderWindow.h"

namespace quorb {

/// What a load would take from the running spreadsheet.
struct SheetReport {
  /// One `name<TAB>value` a line, as far as the sheet could be read: Application, Version, Workbook, Window,
  /// Sheet, SelectedCell, SpecificationCell, Formula, FactorScale, Title, each range as ReportFormula tells
  /// it, and Rows, the height of the main range.
  std::string text;
  /// Why the sheet does not plot, in words that end a sentence; empty when it does.
  std::string reason;
  /// What is likely wrong with the formula, a sentence each.
  std::vector<std::string> hints;
};

/// Looks at the running spreadsheet as a load does, without asking the user for anything. With `outputName`
/// the data file is written there; without, nothing is written.
SheetReport ReportSheet(LoaderWindow& window, const std::string& outputName = "");

}  // namespace quorb
