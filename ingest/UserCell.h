#pragma once

#include <string>

#include "SheetSession.h"

namespace quorb {

/// Finds what `formula` comes to when it stands in the user's selected cell, by writing it there, reading the
/// value and writing the cell's own formula back. Nothing is written where the cell does not hold
/// `session.cellFormula` any more.
///
/// The formula is written back into that cell alone, also when the user has gone to another cell of the sheet
/// meanwhile, and not over an entry of the user's; again and again for two seconds while the spreadsheet is
/// busy, with no events let through. When that does not help, the user is shown the formula.
/// @return true when `value` was taken from the cell.
bool EvaluateInUserCell(SheetSession& session, const std::string& formula, CellValue& value);

/// One try to write the formula of `session.borrowed` back; when it goes well there is nothing borrowed any
/// more.
SheetFault ReturnBorrowedCell(SheetSession& session);

/// What waits between two tries, without letting events through; an empty function takes it back.
void SetQuietWait(std::function<void(double seconds)> wait);

}  // namespace quorb
