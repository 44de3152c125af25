#include "ExcelSession.h"

namespace quorb {

namespace {

// Two cells of one sheet.
SheetFault IsSameCell(const ComObject& cell, const ComObject& other, bool& isSame) {
  isSame = cell.Shares(other);
  if (isSame) return {};
  int row = 0, column = 0, otherRow = 0, otherColumn = 0;
  SheetFault fault = cell.GetInteger(L"Row", row);
  if (fault.Good()) fault = cell.GetInteger(L"Column", column);
  if (fault.Good()) fault = other.GetInteger(L"Row", otherRow);
  if (fault.Good()) fault = other.GetInteger(L"Column", otherColumn);
  isSame = fault.Good() && row == otherRow && column == otherColumn;
  return fault;
}

}  // namespace

// Sheet and cell go together, though the user may go to another sheet at any time: the sheet is the cell's.
// One without cells, such as a chart, has none that is active.
SheetFault ExcelSession::TakeView(Book& book) {
  if (!book.sheet.IsNothing()) return {};
  ComObject window, cell, sheet;
  SheetFault fault = WindowOf(book, window);
  if (!fault.Good()) return fault;
  fault = window.Follow(L"ActiveCell", cell);
  const bool isCell = fault.Good() && !cell.IsNothing();
  const bool isRefused = fault.number == kFaultApplication || fault.number == kFaultNoObject;
  if (!fault.Good() && !isRefused) return fault;
  fault = isCell ? cell.Follow(L"Worksheet", sheet) : book.workbook.Follow(L"ActiveSheet", sheet);
  if (!fault.Good()) return fault;
  book.sheet = sheet;
  book.cell = cell;
  return {};
}

SheetFault ExcelSession::SheetOf(Workbook workbook, ComObject& sheet) {
  Book* book = Known(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  SheetFault fault = TakeView(*book);
  if (fault.Good()) sheet = book->sheet;
  return fault;
}

SheetFault ExcelSession::CellOf(Workbook workbook, ComObject& cell) {
  Book* book = Known(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  SheetFault fault = TakeView(*book);
  if (fault.Good()) cell = book->cell;
  return fault;
}

SheetFault ExcelSession::ActiveSheetName(Workbook workbook, std::string& name) {
  ComObject sheet;
  SheetFault fault = SheetOf(workbook, sheet);
  return fault.Good() ? sheet.GetText(L"Name", name) : fault;
}

SheetFault ExcelSession::ActiveCellFormula(Workbook workbook, std::string& formula) {
  ComObject cell;
  SheetFault fault = CellOf(workbook, cell);
  if (fault.Good()) fault = cell.GetText(L"Formula", formula);
  if (fault.Good()) Known(workbook)->cellRead = cell;
  return fault;
}

SheetFault ExcelSession::ActiveCellInteger(Workbook workbook, const wchar_t* member, int& number) {
  ComObject cell;
  SheetFault fault = CellOf(workbook, cell);
  return fault.Good() ? cell.GetInteger(member, number) : fault;
}

SheetFault ExcelSession::ActiveCellValue(Workbook workbook, CellValue& value) {
  ComObject cell;
  Variant content;
  SheetFault fault = CellOf(workbook, cell);
  if (fault.Good()) fault = cell.Get(L"Value", content);
  if (fault.Good()) value = content.Cell();
  return fault;
}

SheetFault ExcelSession::SetActiveCellFormula(Workbook workbook, const std::string& formula) {
  ComObject cell;
  SheetFault fault = CellOf(workbook, cell);
  if (!fault.Good()) return fault;
  const ComObject& read = Known(workbook)->cellRead;
  if (read.IsNothing()) return FaultOf(kFaultBusy);
  bool isRead = true;
  fault = IsSameCell(cell, read, isRead);
  if (!fault.Good()) return fault;
  return isRead ? cell.Put(L"Formula", formula) : FaultOf(kFaultBusy);
}

// ---- searching --------------------------------------------------------------------------------------------

// The cell that is found becomes the active one of this program; the user's selection stays.
SheetFault ExcelSession::FindIn(const ComObject& cells, Workbook workbook, const FindArguments& arguments) {
  CallArguments named;
  named.Add(L"What", arguments.What)
      .Add(L"LookIn", arguments.LookIn)
      .Add(L"LookAt", arguments.LookAt)
      .Add(L"MatchCase", arguments.MatchCase);
  if (arguments.SearchFormat) named.Add(L"SearchFormat", *arguments.SearchFormat);
  ComObject found;
  SheetFault fault = cells.Follow(L"Find", found, named);
  if (!fault.Good()) return fault;
  if (found.IsNothing()) return FaultOf(kFaultNoObject);
  if (Book* book = Known(workbook)) book->cell = found;
  return {};
}

SheetFault ExcelSession::FindActivate(Workbook workbook, const FindArguments& arguments) {
  ComObject cell, cells;
  SheetFault fault = CellOf(workbook, cell);
  if (fault.Good()) fault = cell.Follow(L"Cells", cells);
  return fault.Good() ? FindIn(cells, workbook, arguments) : fault;
}

SheetFault ExcelSession::ApplicationFindActivate(const FindArguments& arguments) {
  SheetFault fault = TakeActive();
  if (!fault.Good()) return fault;
  ComObject sheet, cells;
  if (Known(active_) == nullptr) {
    sheet = app_;
  } else {
    fault = SheetOf(active_, sheet);
  }
  if (fault.Good()) fault = sheet.Follow(L"Cells", cells);
  return fault.Good() ? FindIn(cells, active_, arguments) : fault;
}

// ---- single cells -----------------------------------------------------------------------------------------

SheetFault ExcelSession::CellsValue(Workbook workbook, int row, int column, CellValue& value) {
  ComObject sheet, cells, cell;
  Variant content;
  SheetFault fault = SheetOf(workbook, sheet);
  if (fault.Good()) fault = sheet.Follow(L"Cells", cells);
  if (fault.Good()) fault = cells.Follow(L"Item", cell, CallArguments(row).Add(column));
  if (fault.Good()) fault = cell.Get(L"Value", content);
  if (fault.Good()) value = content.Cell();
  return fault;
}

SheetFault ExcelSession::CellsSelect(Workbook workbook, int row, int column) {
  ComObject sheet, cells, cell;
  SheetFault fault = SheetOf(workbook, sheet);
  if (fault.Good()) fault = sheet.Follow(L"Cells", cells);
  if (fault.Good()) fault = cells.Follow(L"Item", cell, CallArguments(row).Add(column));
  if (fault.Good()) Known(workbook)->cell = cell;
  return fault;
}

SheetFault ExcelSession::Evaluate(Workbook workbook, const std::string& formula, CellValue& value) {
  ComObject sheet;
  Variant result;
  SheetFault fault = SheetOf(workbook, sheet);
  if (fault.Good()) fault = sheet.Get(L"Evaluate", result, CallArguments(formula));
  if (!fault.Good()) return fault;
  // A formula that is no more than a reference gives the cell; an empty one counts as 0.
  const bool isReference = result.Object() != nullptr;
  if (isReference) fault = ComObject(result.Object()).Get(L"Value", result);
  if (!fault.Good()) return fault;
  const bool isEmpty = isReference && result.Held().vt == VT_EMPTY;
  value = isEmpty ? Variant(0).Cell() : result.Cell();
  return {};
}

}  // namespace quorb
