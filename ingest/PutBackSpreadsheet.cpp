#include "PutBackSpreadsheet.h"

#include "SheetSession.h"
#include "UserCell.h"

namespace quorb {

namespace {

// Only the session that began last is attached: another one's cells and workbooks are not known any more.
void PutBackSheet(SheetSession& session) {
  if (session.borrowed) static_cast<void>(ReturnBorrowedCell(session));
  if (session.selectionMoved) {
    static_cast<void>(session.link.CellsSelect(session.workbook, session.cellRow, session.cellColumn));
    session.selectionMoved = false;
  }
}

}  // namespace

void PutBackSpreadsheet() {
  if (CurrentSheetSession() == nullptr) return;
  for (SheetSession* session = CurrentSheetSession(); session != nullptr; session = session->outer) {
    session->ended = true;
    session->output.reset();
  }
  PutBackSheet(*CurrentSheetSession());
  SheetLink& link = CurrentSheetSession()->link;
  static_cast<void>(link.ActiveWindowClose(false, false));
  link.ReleaseObject();
}

}  // namespace quorb
