#include "UserCell.h"

#include <chrono>
#include <thread>
#include <utility>

#include "CellRange.h"
#include "Dialogs.h"

namespace quorb {

namespace {

std::function<void(double)> quietWait;

void WaitQuietly(double seconds) {
  if (quietWait) return quietWait(seconds);
  std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

/// The active cell of the source workbook.
struct ActiveCell {
  std::string sheetName;
  int row = 0, column = 0;
  std::string formula;
};

SheetFault ReadPlace(const SheetSession& session, ActiveCell& cell) {
  SheetLink& link = session.link;
  SheetFault fault = link.ActiveSheetName(session.workbook, cell.sheetName);
  if (fault.Good()) fault = link.ActiveCellRow(session.workbook, cell.row);
  if (fault.Good()) fault = link.ActiveCellColumn(session.workbook, cell.column);
  return fault;
}

// A user who moves meanwhile counts as a spreadsheet that is busy: place and formula would not go together.
SheetFault ReadActiveCell(const SheetSession& session, ActiveCell& cell) {
  SheetFault fault = ReadPlace(session, cell);
  if (fault.Good()) fault = session.link.ActiveCellFormula(session.workbook, cell.formula);
  ActiveCell after;
  if (fault.Good()) fault = ReadPlace(session, after);
  if (!fault.Good()) return fault;
  const bool stayed =
      after.sheetName == cell.sheetName && after.row == cell.row && after.column == cell.column;
  return stayed ? SheetFault() : FaultOf(kFaultBusy);
}

bool IsThere(const ActiveCell& cell, const BorrowedCell& borrowed) {
  return cell.sheetName == borrowed.sheetName && cell.row == borrowed.row && cell.column == borrowed.column;
}

// What stands in the cell is what was lent, and no entry of the user's.
bool HoldsLent(const ActiveCell& cell, const BorrowedCell& borrowed) {
  return cell.formula == borrowed.lent || cell.formula == borrowed.lentRead;
}

SheetFault ReturnHere(const SheetSession& session, const BorrowedCell& borrowed, const ActiveCell& cell) {
  if (!HoldsLent(cell, borrowed)) return {};
  return session.link.SetActiveCellFormula(session.workbook, borrowed.formula);
}

// The user is elsewhere on the sheet: the cell becomes the active one for a moment.
SheetFault ReturnFromElsewhere(const SheetSession& session, const BorrowedCell& borrowed,
                               const ActiveCell& user) {
  SheetFault fault = session.link.CellsSelect(session.workbook, borrowed.row, borrowed.column);
  if (!fault.Good()) return fault;
  ActiveCell now;
  fault = ReadActiveCell(session, now);
  if (fault.Good()) fault = IsThere(now, borrowed) ? ReturnHere(session, borrowed, now) : FaultOf(kFaultBusy);
  static_cast<void>(session.link.CellsSelect(session.workbook, user.row, user.column));
  return fault;
}

SheetFault TryReturn(const SheetSession& session, const BorrowedCell& borrowed) {
  ActiveCell now;
  SheetFault fault = ReadActiveCell(session, now);
  if (!fault.Good()) return fault;
  if (IsThere(now, borrowed)) return ReturnHere(session, borrowed, now);
  const bool onItsSheet = now.sheetName == borrowed.sheetName;
  return onItsSheet ? ReturnFromElsewhere(session, borrowed, now) : FaultOf(kFaultBusy);
}

void TellFormula(const BorrowedCell& borrowed) {
  CurrentDialogs().MessageBox("The spreadsheet did not take a formula back into its cell " +
                                  CellName(borrowed.row, borrowed.column) + " on the sheet " +
                                  borrowed.sheetName +
                                  ". If another one stands there now, please write:  " + borrowed.formula,
                              "Error", kBoxStopIcon);
}

void ReturnAtLast(SheetSession& session) {
  SheetFault fault = ReturnBorrowedCell(session);
  for (int tries = 1; !fault.Good() && tries < TriesBehind(fault.number); ++tries) {
    WaitQuietly(kPauseBetweenTries);
    fault = ReturnBorrowedCell(session);
  }
  if (session.Done(fault) || !session.borrowed) return;
  TellFormula(*session.borrowed);
  static_cast<void>(ReturnBorrowedCell(session));
  session.borrowed.reset();
}

}  // namespace

void SetQuietWait(std::function<void(double seconds)> wait) {
  quietWait = std::move(wait);
}

SheetFault ReturnBorrowedCell(SheetSession& session) {
  if (!session.borrowed) return {};
  const BorrowedCell borrowed = *session.borrowed;  // the program may end, and return it, at any step below
  SheetFault fault = TryReturn(session, borrowed);
  if (fault.Good()) session.borrowed.reset();
  return fault;
}

bool EvaluateInUserCell(SheetSession& session, const std::string& formula, CellValue& value) {
  SheetLink& link = session.link;
  ActiveCell cell;
  if (!session.Done(ReadActiveCell(session, cell)) || cell.formula != session.cellFormula) return false;
  const BorrowedCell lent{cell.sheetName, cell.row, cell.column, cell.formula, formula, formula};
  session.borrowed = lent;
  if (!session.Done(link.SetActiveCellFormula(session.workbook, formula))) {
    session.borrowed.reset();
    return false;
  }
  ActiveCell now;
  bool isRead = session.Done(ReadActiveCell(session, now)) && IsThere(now, lent);
  if (isRead && session.borrowed) session.borrowed->lentRead = now.formula;
  CellValue found;
  isRead = session.Done(link.ActiveCellValue(session.workbook, found)) && isRead;
  ActiveCell after;
  isRead = session.Done(ReadActiveCell(session, after)) && IsThere(after, lent) && isRead;
  ReturnAtLast(session);
  if (isRead) value = found;
  return isRead;
}

}  // namespace quorb
