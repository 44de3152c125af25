#pragma once

#include "SheetSession.h"

namespace quorb {

/// Finds the cell with the specification formula in the active workbook: the selected cell when it holds
/// `MainKeyword` and its value is not 0, else the first cell that holds it. Fills the session's workbook,
/// captions, `cellFormula` with its title computed, and `titleTail`, sets LastFormula, and puts the user's
/// selection back.
///
/// When the application runs but no cell holds the keyword, the user is asked for a specification, and the
/// call waits until one was typed (SpecTypedText) or "Run Demo" was pressed, with events let through.
/// `NoSheet` is 1 when no workbook can be reached; then nobody is asked.
///
/// @return false when another load ran meanwhile: the session is then worth nothing.
bool FindSpecCell(SheetSession& session);

}  // namespace quorb
