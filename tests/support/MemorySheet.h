#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "RangeAnalysis.h"

namespace quorb {

/// A sheet of a test. It keeps what it was asked.
class MemorySheet : public SheetCells {
 public:
  /// Cells that are not empty, by row and column.
  std::map<std::pair<int, int>, std::string> cells;
  double version = 16;

  int activated = 0;
  std::vector<int> rowsAsked;
  std::vector<int> columnsAsked;

  /// Fills the rows `first` to `last` of a column.
  void Fill(int column, int first, int last) {
    for (int row = first; row <= last; ++row)
      cells[{row, column}] = "1";
  }

  void ActivateSource() override { ++activated; }

  std::string CellText(int row, int column) override {
    rowsAsked.push_back(row);
    columnsAsked.push_back(column);
    const auto found = cells.find({row, column});
    return found == cells.end() ? std::string() : found->second;
  }

  double VersionNumber() override { return version; }
};

}  // namespace quorb
