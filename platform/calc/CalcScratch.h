#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "CalcLink.h"
#include "ScratchTable.h"

namespace quorb {

/// The scratch workbook of a link to Calc: its table, and what of the user's is marked to be pasted into it.
struct CalcLink::Scratch {
  std::string caption;
  bool active = true;
  ScratchTable table;
  CellRectangle selection;
  std::optional<CellRectangle> columns;
  SheetFault broken;  // The office was lost while it was read for the table.
  Workbook markedBook = kNoWorkbook;
  std::optional<CellRectangle> marked;
  // A range that is pasted more than once is read once.
  std::map<std::pair<Workbook, std::string>, std::shared_ptr<const CellBlock>> read;
  std::string markedText;
};

/// The failure of an operation that a workbook is not meant for.
inline SheetFault Refused(const char* description) {
  return {kFaultApplication, description};
}

/// True for a cell that a sheet has.
inline bool IsCell(int row, int column) {
  return row >= 1 && column >= 1 && row <= ScratchTable::kMostRows && column <= ScratchTable::kMostColumns;
}

}  // namespace quorb
