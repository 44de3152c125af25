#include "SpreadsheetSession.h"

#include "Dialogs.h"
#include "ExportToFile.h"
#include "FindSpecCell.h"
#include "PlotData.h"
#include "RunState.h"
#include "SourceCells.h"
#include "Specification.h"
#include "SpecificationHistory.h"

namespace quorb {

namespace {

// ---- attaching --------------------------------------------------------------------------------------------

bool OpensSpreadsheetNow() {
  const std::string prompt =
      std::string("You can open your Excel speadsheet NOW, and after click on OK.  ") + NL +
      "Else, click on Cancel to show, if exist, the previous plot, or the original demo.";
  LastAnswer = CurrentDialogs().MessageBox(prompt, "Excel not running!", kBoxOkCancel);
  return LastAnswer == BoxAnswer::ok;
}

// Asks the user at the first failure; the second one means that no application runs.
int Attach(SheetSession& session) {
  SheetFault fault = session.link.GetRunningObject();
  if (fault.Good()) return kFaultNone;
  if (fault.number == kFaultFileNotFound) MaybeExtError = 1;
  session.window.ShowProgress(false);
  const bool tryAgain = OpensSpreadsheetNow();
  session.window.ShowProgress(true);
  if (!tryAgain) return kFaultNoApplication;
  fault = session.link.GetRunningObject();
  return fault.Good() ? kFaultNone : kFaultNoApplication;
}

// ---- the specification ------------------------------------------------------------------------------------

void TellNoSpecification(const std::string& cellFormula) {
  CurrentDialogs().MessageBox(
      "Warning: an Excel sheet may already be open without a correct specification for QuorbExcelPro:    " +
          cellFormula +
          "   . You should open only the one with a correct specification or "
          "you can write or use a previous specification in the scolling textbox",
      "Information", kBoxInformationIcon);
}

bool SpecificationHolds(const SpecificationText& specification, const std::string& cellFormula) {
  return !specification.rangeXYZ.empty() && cellFormula.find(MainKeyword) != std::string::npos;
}

// One way from the formula to the data file.
SheetReading PourSpecification(SheetSession& session) {
  const bool isSound = session.IsSound();
  if (session.NoSheet == 0 && session.cellFormula.empty() && isSound) {
    TellNoSpecification(session.cellFormula);
  }
  NbQuater = 0;
  const SpecificationText specification = Extraction_info(session.cellFormula, session.titleTail);
  if (session.AddRetries == 0) RecordSpecification(session.cellFormula);
  if (!SpecificationHolds(specification, session.cellFormula)) return {};
  if (!isSound) {
    session.window.AppendLog(
        "The spreadsheet was busy: its specification may not be whole, nothing is taken");
    return {};
  }
  session.StartStage();
  SourceCells cells(session);
  PlotRanges ranges;
  const RangesFound found =
      NcolumnsUpdated(specification, session.cellFormula, cells, session.window, ranges);
  session.cellFormula = ranges.cellFormula;
  if (found == RangesFound::tooNarrow) return {true, 0};
  if (ranges.rangeXYZ.numbers.num1 < 1) {
    session.window.AppendLog("The range " + ranges.rangeXYZ.text +
                             " names no rows that can be read, nothing is taken");
    return {};
  }
  if (cells.Failed() || !session.IsSound()) {
    session.window.AppendLog("The end of the data could not be looked up in the sheet, nothing is taken");
    return {};
  }
  ExportToFile(session, ranges, specification);
  return {false, session.fileWritten ? ranges.SpecFound : 0};
}

// Until the next try; false when there is none because the user has had enough.
bool WaitForNextTry(SheetSession& session) {
  LoaderWindow& window = session.window;
  if (session.AddRetries == 1) window.SetTag(LoaderControl::Command6, "");
  window.Show(LoaderControl::Command6, true);
  UserWait wait(session);
  const bool goesOn = wait.Step();
  window.Show(LoaderControl::Command6, false);
  return goesOn;
}

}  // namespace

SheetReading ReadSpreadsheet(LoaderWindow& window) {
  SheetLink& link = CurrentSheetLink();
  const SheetUse use(link);
  SheetSession session(link, window);
  session.ErrorNumber = Attach(session);
  ExcelLinked = 1;
  session.Done(link.Version(session.ExcelVersion));
  session.NoSheet = 0;
  if (!FindSpecCell(session)) return {};
  session.AddRetries = 0;
  SheetReading reading = PourSpecification(session);
  while (!reading.leavesLoad && ScratchIsSource(session) && WaitForNextTry(session)) {
    reading = PourSpecification(session);
  }
  return reading;
}

}  // namespace quorb
