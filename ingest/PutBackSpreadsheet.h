#pragma once

namespace quorb {

/// Leaves the spreadsheet as the user knows it when the program ends while a load is in the midst of it: a
/// borrowed cell gets its formula and the user their selection back, the scratch workbook is closed, the
/// data file that was begun is given up, and the application is released. Each is tried once, and no events
/// are let through. Does nothing when no load is there; safe to be called at any place where events run.
void PutBackSpreadsheet();

}  // namespace quorb
