#pragma once

#include <string>
#include <vector>

#include "LoaderWindow.h"
#include "RangeAnalysis.h"
#include "ReportLines.h"

namespace quorb {

/// What a specification formula means by itself.
struct FormulaReport {
  /// One `name<TAB>value` a line: the formula in step with its ranges, scale, title as given and without its
  /// keywords, what the keywords say, and each range as text, columns, rows ("first-last", empty without a
  /// range that can be read) and, where it has no time of its own, the range whose times it goes by. Numbers
  /// with 17 significant digits.
  std::string text;
  /// A range holds X, Y and Z.
  bool holdsXYZ = false;
  /// What is likely wrong with the formula, a sentence each.
  std::vector<std::string> hints;
};

/// Reads a formula as a load does, with an empty sheet behind it: a range that is given without an end stays
/// one row high. Messages are shown and log lines written as in a load. Sets `MainKeyword`, the title and the
/// flags that keywords and ranges set, and leaves the plot arrays alone.
FormulaReport ReportFormula(const std::string& formula, LoaderWindow& window);

/// Each range as ReportFormula tells it.
void ReportRanges(const PlotRanges& ranges, ReportLines& report);

}  // namespace quorb
