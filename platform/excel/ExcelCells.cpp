#include "ExcelSession.h"

namespace quorb {

SheetFault ExcelSession::SheetOf(Workbook workbook, ComObject& sheet) {
  Book* book = Known(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (book->sheet.IsNothing()) {
    SheetFault fault = book->workbook.Follow(L"ActiveSheet", book->sheet);
    if (!fault.Good()) return fault;
  }
  sheet = book->sheet;
  return {};
}

SheetFault ExcelSession::CellOf(Workbook workbook, ComObject& cell) {
  Book* book = Known(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (book->cell.IsNothing()) {
    ComObject window;
    SheetFault fault = WindowOf(*book, window);
    if (fault.Good()) fault = window.Follow(L"ActiveCell", book->cell);
    if (!fault.Good()) return fault;
  }
  cell = book->cell;
  return {};
}

SheetFault ExcelSession::ActiveSheetName(Workbook workbook, std::string& name) {
  ComObject sheet;
  SheetFault fault = SheetOf(workbook, sheet);
  return fault.Good() ? sheet.GetText(L"Name", name) : fault;
}

SheetFault ExcelSession::ActiveCellText(Workbook workbook, const wchar_t* member, std::string& text) {
  ComObject cell;
  SheetFault fault = CellOf(workbook, cell);
  return fault.Good() ? cell.GetText(member, text) : fault;
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
  return fault.Good() ? cell.Put(L"Formula", formula) : fault;
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
  // A formula that is no more than a reference gives the cell.
  if (fault.Good() && result.Object() != nullptr) fault = ComObject(result.Object()).Get(L"Value", result);
  if (fault.Good()) value = result.Cell();
  return fault;
}

}  // namespace quorb
