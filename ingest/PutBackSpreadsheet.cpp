#include "PutBackSpreadsheet.h"

#include "SheetSession.h"
#include "UserCell.h"

namespace quorb {

namespace {

void PutBack(SheetSession& session) {
  session.ended = true;
  if (session.borrowed) static_cast<void>(ReturnBorrowedCell(session));
  if (session.selectionMoved) {
    static_cast<void>(session.link.CellsSelect(session.workbook, session.cellRow, session.cellColumn));
    session.selectionMoved = false;
  }
  session.output.reset();
}

}  // namespace

void PutBackSpreadsheet() {
  if (CurrentSheetSession() == nullptr) return;
  for (SheetSession* session = CurrentSheetSession(); session != nullptr; session = session->outer)
    PutBack(*session);
  SheetLink& link = CurrentSheetSession()->link;
  static_cast<void>(link.ActiveWindowClose(false, false));
  link.ReleaseObject();
}

}  // namespace quorb
