#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quorb {

/// A rectangle of cells, rows and columns from 1, both ends in it.
struct CellRectangle {
  int firstRow = 1, firstColumn = 1, lastRow = 1, lastColumn = 1;

  int Rows() const { return lastRow - firstRow + 1; }
  int Columns() const { return lastColumn - firstColumn + 1; }
};

/// What stands in one cell of a block.
enum class CellKind : unsigned char { empty, number, text };

/// The values of a block of cells, row by row. Only as many cells as the sheet uses need be filled: those
/// behind the last one are empty.
struct CellBlock {
  int rows = 0, columns = 0;
  std::vector<CellKind> kinds;     ///< One a cell.
  std::vector<double> numbers;     ///< One a cell: the number, or the place of the cell's text in `texts`.
  std::vector<std::string> texts;  ///< UTF-8.
};

}  // namespace quorb
