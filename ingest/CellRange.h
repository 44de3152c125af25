#pragma once

#include <string>
#include <string_view>

namespace quorb {

/// A range of cells as numbers. Columns count from A = 1, rows from 1.
struct RangeNumbers {
  int Ncol1 = 0;  ///< First column.
  int Ncol2 = 0;  ///< Last column; 0 when the text held one cell only.
  int num1 = 0;   ///< First row.
  int num2 = 0;   ///< Last row; 0 when the text held one cell only.

  bool operator==(const RangeNumbers&) const = default;
};

/// A range of a plot: its text and the numbers that go with it.
struct PlotRange {
  std::string text;  ///< "A2:C2000"; empty when the plot has no such range.
  RangeNumbers numbers;
  bool timeOfRangeT = false;  ///< The range has no time of its own: its rows go by the times of `rangeT`.
};

/// Reads "A2:C2000", "D2" or "aa10 : ab20" into `numbers`. Blanks and letter case do not count. The row of a
/// cell is 0 where no whole number of at most 9 digits stands behind its letters.
///
/// A text that is no range is told to the user, and `numbers` keep their values. A text that is one but not
/// in the form in which a spreadsheet writes it ("A02:C20", three letters) is told too, and its numbers stay
/// as read. "$" is not a part of a range here: it makes the numbers useless, mostly without a message.
///
/// An empty text and one of more than 100 characters without its blanks leave `numbers` as they are,
/// silently.
///
/// @return true when `numbers` were taken from the text.
bool ConvertA1LC(std::string_view range, RangeNumbers& numbers);

/// The text of one cell: `CellName(7, 27)` is "AA7". A column above 256 is told to the user and named
/// nevertheless. Empty where a letter would be no character of an 8-bit set, as far to the left of column A.
std::string CellName(double row, double col);

/// The text of a range: two cells joined by ":", or one cell when `Ncol2` is 0. Empty when a cell has no
/// name.
std::string RangeText(const RangeNumbers& numbers);

/// One cell as it was given by a person. `col` is 1.255 where the text has no letters: the whole row.
struct CellPlace {
  double row = 0;
  double col = 0;
  std::string rc;  ///< The same place as "R7C27"; the whole row is "R7C1:R7C255".
};

/// Reads the text of one cell, "AB7" or "$A$2". An empty text and one that names no cell give row and column
/// 0 and an empty `rc`. A cell outside 65536 rows and 256 columns is told to the user and given nevertheless.
CellPlace ConvertCellLC(std::string_view text);

/// The cell `delta` columns to the right: `ShiftCell("D2", 3)` is "G2".
std::string ShiftCell(std::string_view text, int delta);

/// Brings a range that was given as one row to the height of the main range, whose rows are `baseNum1` to
/// `baseNum2`, and writes the new text in place of the old one behind its "(" in `cellFormula`. Does so only
/// when `SpecFound` is 1, that is when the end of the main range was looked up in the sheet, and when the
/// range begins at or behind column A.
void UpdateRange(PlotRange& range, int SpecFound, int baseNum1, int baseNum2, std::string& cellFormula);

}  // namespace quorb
