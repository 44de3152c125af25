#pragma once

#include <string>

#include "CellRange.h"
#include "LoaderWindow.h"
#include "Specification.h"

namespace quorb {

/// What the analysis of the ranges asks of the sheet that holds them.
class SheetCells {
 public:
  virtual ~SheetCells() = default;
  /// Brings the source workbook forward.
  virtual void ActivateSource() = 0;
  /// The cell as text; empty for an empty cell and for one that the sheet does not have.
  virtual std::string CellText(int row, int column) = 0;
  /// Version number of the spreadsheet: from 12 on a sheet has 1048576 rows, before 65536.
  virtual double VersionNumber() = 0;
};

/// The seven ranges of a plot once they are brought together.
struct PlotRanges {
  std::string cellFormula;  ///< The specification formula, in step with the ranges.
  PlotRange rangeXYZ, rangeT, rangeEvents, rangeQuater, rangeSApY, rangeSAmY, rangeValZ;
  int SpecFound = 0;      ///< 1 when the end of the main range was looked up in the sheet.
  int lastRow = 0;        ///< The largest last row of all ranges.
  std::string scaleText;  ///< The scale as the data file takes it, with 10 decimals.
};

/// The outcome of `NcolumnsUpdated`.
enum class RangesFound {
  good,
  tooNarrow,  ///< The main range can't hold X, Y and Z; the user was told. The load is to be left at once.
};

/// Turns the terms of a specification formula into ranges that go together: finds the end of a main range
/// that was given without one, splits a main range wider than 3 columns into the other ranges, brings the
/// others to the height of the main one and notes which of them have no time of their own.
///
/// The end is looked for in the Z column by jumps of 1000, 100, 10 and 1 rows: a hole of fewer than 1000 rows
/// can be jumped over, and one at a row that is looked at can end the search early.
///
/// Last rows and columns are clamped in the numbers only; a transfer of cells goes by the texts. Sets
/// `ColumnMode`, `NbQuater` (1 when there are quaternions) and USERFLAG.TimeInData. When the main range is
/// too narrow, `scaleText` stays empty and no last row or column is clamped but that of the main range, which
/// is not below its first.
///
/// @param cellFormula the formula that `specification` was read from.
/// @param ranges out: all of it.
RangesFound NcolumnsUpdated(const SpecificationText& specification, const std::string& cellFormula,
                            SheetCells& sheet, LoaderWindow& window, PlotRanges& ranges);

}  // namespace quorb
