#include "FindSpecCell.h"

#include "Dialogs.h"
#include "RunState.h"
#include "TitleTerms.h"

namespace quorb {

namespace {

constexpr const char* kDemoTag = "demo";

bool HoldsKeyword(const std::string& formula) {
  return !formula.empty() && formula.find(MainKeyword) != std::string::npos;
}

bool IsZero(const CellValue& value) {
  return value.number ? *value.number == 0 : value.text.empty();
}

// A formula without the keyword is no specification: no cell is used to compute anything of it.
bool IsSpecification(const std::string& formula) {
  return !MainKeyword.empty() && HoldsKeyword(formula);
}

void ReadFormula(SheetSession& session) {
  const SheetFault fault = session.link.ActiveCellFormula(session.workbook, session.cellFormula);
  if (session.Done(fault)) {
    if (IsSpecification(session.cellFormula)) ExpandLenTerm(session);
  } else if (session.selectionMoved && fault.number == kFaultNoObject) {
    session.NoSheet = 1;  // the workbook was closed behind the search
  }
}

void FindKeyword(SheetSession& session) {
  FindArguments arguments;
  arguments.What = MainKeyword;
  const SheetFault fault = session.link.FindActivate(session.workbook, arguments);
  session.selectionMoved = session.Done(fault);
  if (fault.number != kFaultNoObject) return;
  session.ErrorNumber = kFaultNone;
  arguments.SearchFormat = false;
  session.selectionMoved = session.Done(session.link.ApplicationFindActivate(arguments));
}

void ReadNames(SheetSession& session) {
  SheetLink& link = session.link;
  int windows = 0;
  session.Done(link.WorkbookWindowsCount(session.workbook, windows));
  session.Done(link.WorkbookWindowCaption(session.workbook, windows, session.SourceBook));
  session.Done(link.ActiveSheetName(session.workbook, session.SourceSheet));
}

// False when the workbook was closed meanwhile.
bool ReadSelection(SheetSession& session) {
  const SheetFault row = session.link.ActiveCellRow(session.workbook, session.cellRow);
  session.Done(row);
  const SheetFault column = session.link.ActiveCellColumn(session.workbook, session.cellColumn);
  session.Done(column);
  const bool isClosed = row.number == kFaultNoObject || column.number == kFaultNoObject;
  return session.workbook == kNoWorkbook || !isClosed;
}

void LookAtWorkbook(SheetSession& session) {
  SheetLink& link = session.link;
  ReadNames(session);
  ReadFormula(session);
  if (!ReadSelection(session)) {
    session.NoSheet = 1;
    return;
  }
  CellValue value;
  session.Done(link.ActiveCellValue(session.workbook, value));
  if (HoldsKeyword(session.cellFormula) && !IsZero(value)) return;
  // A selection that could not be put back is not moved.
  const bool isKnown = session.cellRow > 0 && session.cellColumn > 0;
  if (session.workbook != kNoWorkbook && !isKnown) return;
  FindKeyword(session);
  session.searched = session.selectionMoved;
  ReadFormula(session);
}

// Once, or for as long as it takes when the search has moved the user's selection.
void SelectAgain(SheetSession& session) {
  const bool isKnown = session.cellRow > 0 && session.cellColumn > 0;
  if (session.workbook != kNoWorkbook && !isKnown) return;
  const auto select = [&] {
    return session.link.CellsSelect(session.workbook, session.cellRow, session.cellColumn);
  };
  if (!session.selectionMoved) {
    session.Done(select());
  } else if (session.DoneAtLast(select)) {
    session.selectionMoved = false;
  }
}

// ---- a typed specification --------------------------------------------------------------------------------

void ShowPrompt(LoaderWindow& window) {
  window.SetTextTempo(
      "Please enter the specification of the range of cells like \"=MAX(A2:C60)\" in the blue scroll textbox "
      "and  press the Enter Key.");
  window.Show(LoaderControl::TextTempo, true);
  window.Show(LoaderControl::Command6, true);
  window.SetTag(LoaderControl::Command6, "");
  LastAnswer = BoxAnswer::none;
}

void LeadToEntryBox(LoaderWindow& window) {
  CurrentDialogs().PumpEvents();
  window.SetFocus(LoaderControl::Combo1);
  window.SetFocus(LoaderControl::Command6);
  window.SetFocus(LoaderControl::Combo1);
  window.Combo1_GotFocusRoutine();
}

// The application runs with a workbook in which no cell was found.
bool LacksSpecification(const SheetSession& session) {
  return session.ErrorNumber == kFaultNoObject && session.NoSheet == 0 && !session.serverGone &&
         !HoldsKeyword(session.cellFormula);
}

// Waits for a typed specification; false when the session is worth nothing behind that.
bool WaitForSpecification(SheetSession& session) {
  LoaderWindow& window = session.window;
  UserWait wait(session);
  if (SpecTyped == 0 || SpecTypedText.empty()) ShowPrompt(window);
  SpecTyped = 1;
  if (LastAnswer != BoxAnswer::cancel) LeadToEntryBox(window);
  bool goesOn = true;
  do {
    goesOn = wait.Step();
    session.cellFormula = SpecTypedText;
  } while (session.cellFormula.empty() && goesOn);
  window.Show(LoaderControl::TextTempo, false);
  window.Show(LoaderControl::Command6, false);
  return !wait.IsOutdated();
}

// Minutes may have gone by: the user may be in another workbook by now, or have closed them all.
void LookAgain(SheetSession& session) {
  SheetLink& link = session.link;
  session.StartStage();
  session.serverGone = false;
  session.workbook = kNoWorkbook;
  session.SourceBook.clear();
  session.SourceSheet.clear();
  if (session.Done(link.GetRunningObject()) && session.Done(link.ActiveWorkbook(session.workbook))) {
    ReadNames(session);
  } else {
    session.NoSheet = 1;
  }
}

// The user's selection is left alone from here on: it may be another one behind the wait.
bool AskForSpecification(SheetSession& session) {
  if (session.selectionMoved) SelectAgain(session);
  if (!WaitForSpecification(session)) return false;
  if (!session.cellFormula.empty()) LookAgain(session);
  LastFormula = session.cellFormula;
  return true;
}

}  // namespace

bool FindSpecCell(SheetSession& session) {
  session.StartStage();
  if (session.Done(session.link.ActiveWorkbook(session.workbook))) {
    LookAtWorkbook(session);
  } else {
    session.NoSheet = 1;
  }
  session.titleTail = IsSpecification(session.cellFormula) ? TitleCellText(session) : std::string();
  if (LacksSpecification(session) && session.asksUser) return AskForSpecification(session);
  if (session.ErrorNumber == kFaultNoObject && session.NoSheet == 1) {
    session.window.SetTag(LoaderControl::Command6, kDemoTag);
  }
  LastFormula = session.cellFormula;
  SelectAgain(session);
  return true;
}

}  // namespace quorb
