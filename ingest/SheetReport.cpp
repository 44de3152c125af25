#include "SheetReport.h"

#include "CellRange.h"
#include "ExportToFile.h"
#include "FileAccess.h"
#include "FindSpecCell.h"
#include "FormulaHints.h"
#include "FormulaReport.h"
#include "RunState.h"
#include "SourceCells.h"
#include "Specification.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

std::string WithNumber(const std::string& words, int number) {
  return words + " (" + std::to_string(number) + ")";
}

// Application and workbook; false when there is none.
bool ReportApplication(SheetSession& session, SheetReport& result, ReportLines& report) {
  const SheetFault attached = session.link.GetRunningObject();
  if (!attached.Good()) {
    result.reason =
        attached.number == kFaultNoApplication
            ? "no spreadsheet is running"
            : WithNumber("the spreadsheet does not answer: " + attached.description, attached.number);
    return false;
  }
  std::string name;
  session.Done(session.link.Name(name));
  report.Text("Application", name);
  session.Done(session.link.Version(session.ExcelVersion));
  report.Text("Version", session.ExcelVersion);
  std::string workbook;
  const SheetFault fault = session.link.ActiveWorkbookName(workbook);
  report.Text("Workbook", workbook);
  if (fault.Good()) return true;
  result.reason = fault.number == kFaultNoObject
                      ? "the spreadsheet has no workbook open"
                      : WithNumber("the spreadsheet cannot be read: " + fault.description, fault.number);
  return false;
}

// Empty for a cell that is not known.
std::string NameOfCell(int row, int column) {
  return row > 0 && column > 0 ? CellName(row, column) : std::string();
}

bool FindsAgain(SheetSession& session) {
  FindArguments arguments;
  arguments.What = MainKeyword;
  if (session.Done(session.link.FindActivate(session.workbook, arguments))) return true;
  arguments.SearchFormat = false;
  return session.Done(session.link.ApplicationFindActivate(arguments));
}

// The specification's cell, where the search has found it elsewhere than under the selection.
std::string SpecificationCell(SheetSession& session) {
  if (!session.searched) return NameOfCell(session.cellRow, session.cellColumn);
  session.selectionMoved = FindsAgain(session);
  if (!session.selectionMoved) return {};
  int row = 0;
  int column = 0;
  const bool isRead = session.Done(session.link.ActiveCellRow(session.workbook, row)) &&
                      session.Done(session.link.ActiveCellColumn(session.workbook, column));
  session.selectionMoved = !session.DoneAtLast(
      [&] { return session.link.CellsSelect(session.workbook, session.cellRow, session.cellColumn); });
  return isRead ? NameOfCell(row, column) : std::string();
}

bool HoldsSpecification(const SheetSession& session) {
  return session.cellFormula.find(MainKeyword) != std::string::npos;
}

std::string WhyNoCell(const SheetSession& session) {
  if (session.busySeen) return "the spreadsheet is busy: a cell is being edited, or a dialog is open";
  const bool isRead = session.ErrorNumber == kFaultNone || session.ErrorNumber == kFaultNoObject;
  if (!isRead) {
    return WithNumber("the spreadsheet cannot be read: " + FaultText(session.ErrorNumber),
                      session.ErrorNumber);
  }
  return "no formula on the sheet \"" + session.SourceSheet + "\" holds the keyword " + MainKeyword;
}

// Nobody is there to type a specification.
bool ReportCell(SheetSession& session, SheetReport& result, ReportLines& report) {
  session.asksUser = false;
  FindSpecCell(session);
  const bool isFound = HoldsSpecification(session);
  report.Text("Window", session.SourceBook);
  report.Text("Sheet", session.SourceSheet);
  report.Text("SelectedCell", NameOfCell(session.cellRow, session.cellColumn));
  report.Text("SpecificationCell", isFound ? SpecificationCell(session) : "");
  report.Text("Formula", session.cellFormula);
  if (isFound) return true;
  result.reason = WhyNoCell(session);
  return false;
}

bool ReportPlot(SheetSession& session, const SpecificationText& specification, PlotRanges& ranges,
                SheetReport& result, ReportLines& report) {
  result.hints = FormulaHints(session.cellFormula, specification);
  SourceCells cells(session);
  const RangesFound found =
      NcolumnsUpdated(specification, session.cellFormula, cells, session.window, ranges);
  report.Number("FactorScale", specification.scale);
  report.Text("Title", specification.title);
  ReportRanges(ranges, report);
  const RangeNumbers& main = ranges.rangeXYZ.numbers;
  const bool isReadable = main.Ncol1 > 0 && main.num1 > 0;
  report.Number("Rows", isReadable ? main.num2 - main.num1 + 1 : 0);
  if (specification.rangeXYZ.empty() || !isReadable) {
    result.reason = "the formula names no range that holds X, Y and Z";
  } else if (found == RangesFound::tooNarrow) {
    result.reason = "the range " + ranges.rangeXYZ.text + " is too narrow to hold X, Y and Z";
  } else if (cells.Failed() || !session.IsSound()) {
    result.reason = WithNumber("the sheet could not be read whole: " + FaultText(session.ErrorNumber),
                               session.ErrorNumber);
  }
  return result.reason.empty();
}

void WriteFile(SheetSession& session, const PlotRanges& ranges, const SpecificationText& specification,
               SheetReport& result) {
  ExportToFile(session, ranges, specification);
  if (session.fileWritten) return;
  result.reason = "the data file " + session.outputName + " was not written: " + session.whyNotWritten;
}

}  // namespace

SheetReport ReportSheet(LoaderWindow& window, const std::string& outputName) {
  SheetReport result;
  ReportLines report;
  MainKeyword = Trim(window.MainKeywordText());
  SheetLink& link = CurrentSheetLink();
  const SheetUse use(link);
  SheetSession session(link, window);
  if (!outputName.empty()) session.outputName = outputName;
  const bool isFound = ReportApplication(session, result, report) && ReportCell(session, result, report);
  if (isFound) {
    const SpecificationText specification = Extraction_info(session.cellFormula, session.titleTail);
    PlotRanges ranges;
    const bool plots = ReportPlot(session, specification, ranges, result, report);
    if (plots && !outputName.empty()) WriteFile(session, ranges, specification, result);
  }
  result.text = report.Take();
  return result;
}

}  // namespace quorb
