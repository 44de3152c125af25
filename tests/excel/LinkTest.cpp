#include "Check.h"
#include "LinkFixture.h"

namespace quorb {

namespace {

// ---- the application --------------------------------------------------------------------------------------

EXCEL_TEST(Link, ItAttachesToTheRunningApplication) {
  AttachedLink at;
  CHECK_EQUAL(at.attached, 0);
  std::string text;
  CHECK(at.link->Version(text).Good());
  CHECK_EQUAL(text, "16.0");
  CHECK(at.link->Name(text).Good());
  CHECK_EQUAL(text, "Test sheet");
}

EXCEL_TEST(Link, WithoutAnApplicationEveryOperationFailsWith91) {
  AttachedLink at;
  at.link->ReleaseObject();
  ExcelLink& link = *at.link;
  std::string text = "as before";
  int number = 7;
  bool flag = false;
  Workbook book = 3;
  CellValue value;
  KeptText sink;
  CHECK_EQUAL(link.Version(text).number, 91);
  CHECK_EQUAL(link.Name(text).number, 91);
  CHECK_EQUAL(link.Visible(flag).number, 91);
  CHECK_EQUAL(link.SetVisible(true).number, 91);
  CHECK_EQUAL(link.Quit().number, 91);
  CHECK_EQUAL(link.ActiveWorkbook(book).number, 91);
  CHECK_EQUAL(link.ActiveWorkbookName(text).number, 91);
  CHECK_EQUAL(link.WorkbookWindowsCount(at.book, number).number, 91);
  CHECK_EQUAL(link.WorkbookWindowCaption(at.book, 1, text).number, 91);
  CHECK_EQUAL(link.WindowsCount(number).number, 91);
  CHECK_EQUAL(link.WindowCaption(1, text).number, 91);
  CHECK_EQUAL(link.WorkbooksActivate("Book1.xlsx").number, 91);
  CHECK_EQUAL(link.WorkbooksAdd().number, 91);
  CHECK_EQUAL(link.ActiveWindowClose(false, false).number, 91);
  CHECK_EQUAL(link.ActiveSheetName(at.book, text).number, 91);
  CHECK_EQUAL(link.ActiveCellFormula(at.book, text).number, 91);
  CHECK_EQUAL(link.SetActiveCellFormula(at.book, "=1").number, 91);
  CHECK_EQUAL(link.ActiveCellValue(at.book, value).number, 91);
  CHECK_EQUAL(link.ActiveCellRow(at.book, number).number, 91);
  CHECK_EQUAL(link.ActiveCellColumn(at.book, number).number, 91);
  CHECK_EQUAL(link.FindActivate(at.book, SearchForKeyword()).number, 91);
  CHECK_EQUAL(link.ApplicationFindActivate(SearchForKeyword()).number, 91);
  CHECK_EQUAL(link.CellsValue(at.book, 1, 1, value).number, 91);
  CHECK_EQUAL(link.CellsSelect(at.book, 1, 1).number, 91);
  CHECK_EQUAL(link.EvaluateAside(at.book, "=1", value, flag).number, 91);
  CHECK_EQUAL(link.EvaluateAside(at.book, std::string(300, '='), value, flag).number, 91);
  CHECK(flag);
  CHECK_EQUAL(link.RangeCopy("A1").number, 91);
  CHECK_EQUAL(link.RangePasteSpecial("A1", {}).number, 91);
  CHECK_EQUAL(link.EndCutCopyMode().number, 91);
  CHECK_EQUAL(link.RangeSelect("A1").number, 91);
  CHECK_EQUAL(link.SetActiveCell("x").number, 91);
  CHECK_EQUAL(link.ColumnsSelect("A:R").number, 91);
  CHECK_EQUAL(link.SelectionColumnWidth(20).number, 91);
  CHECK_EQUAL(link.SelectionNumberFormat("0").number, 91);
  CHECK_EQUAL(link.BlockText("A1:B2", sink).number, 91);
  CHECK_EQUAL(text, "as before");
  CHECK_EQUAL(number, 7);
  CHECK_EQUAL(book, 3);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Link, VisibilityIsReadAndWritten) {
  AttachedLink at;
  bool visible = false;
  CHECK(at.link->Visible(visible).Good());
  CHECK(visible);
  CHECK(at.link->SetVisible(false).Good());
  CHECK(at.link->Visible(visible).Good());
  CHECK(!visible);
}

// ---- workbooks and windows --------------------------------------------------------------------------------

EXCEL_TEST(Link, TheActiveWorkbookTellsItsNameWindowSheetAndCell) {
  AttachedLink at;
  std::string text;
  int number = 0;
  CHECK(at.link->ActiveWorkbookName(text).Good());
  CHECK_EQUAL(text, "Book1.xlsx");
  CHECK(at.link->WorkbookWindowsCount(at.book, number).Good());
  CHECK_EQUAL(number, 1);
  CHECK(at.link->WorkbookWindowCaption(at.book, 1, text).Good());
  CHECK_EQUAL(text, "Book1.xlsx");
  CHECK(at.link->ActiveSheetName(at.book, text).Good());
  CHECK_EQUAL(text, "Sheet1");
  CHECK(at.link->ActiveCellRow(at.book, number).Good());
  CHECK_EQUAL(number, 3);
  CHECK(at.link->ActiveCellColumn(at.book, number).Good());
  CHECK_EQUAL(number, 2);
  CHECK(at.link->ActiveCellFormula(at.book, text).Good());
  CHECK_EQUAL(text, "32");
}

EXCEL_TEST(Link, WithoutAWorkbookThereIsNone) {
  AttachedLink at;
  FreshServer();
  CHECK(at.link->GetRunningObject().Good());
  Workbook book = 5;
  std::string text;
  int count = 5;
  CHECK(at.link->ActiveWorkbook(book).Good());
  CHECK_EQUAL(book, kNoWorkbook);
  CHECK_EQUAL(at.link->ActiveWorkbookName(text).number, 91);
  CHECK_EQUAL(at.link->ActiveCellFormula(book, text).number, 91);
  CHECK_EQUAL(at.link->FindActivate(book, SearchForKeyword()).number, 91);
  CHECK_EQUAL(at.link->ApplicationFindActivate(SearchForKeyword()).number, 1004);
  CHECK(at.link->WindowsCount(count).Good());
  CHECK_EQUAL(count, 0);
}

EXCEL_TEST(Link, TheWindowsOfAWorkbookCountAsOne) {
  AttachedLink at;
  at.server.AddBook("Two.xlsx", "Two.xlsx", 2);
  CHECK(at.link->GetRunningObject().Good());
  int count = 0;
  std::string caption;
  CHECK(at.link->ActiveWorkbook(at.book).Good());
  CHECK(at.link->WorkbookWindowsCount(at.book, count).Good());
  CHECK_EQUAL(count, 1);
  CHECK(at.link->WorkbookWindowCaption(at.book, 1, caption).Good());
  CHECK_EQUAL(caption, "Two.xlsx");
  CHECK_EQUAL(at.link->WorkbookWindowCaption(at.book, 2, caption).number, 9);
  CHECK(at.link->WindowsCount(count).Good());
  CHECK_EQUAL(count, 2);
  CHECK(at.link->WindowCaption(1, caption).Good());
  CHECK_EQUAL(caption, "Two.xlsx");
  CHECK(at.link->WindowCaption(2, caption).Good());
  CHECK_EQUAL(caption, "Book1.xlsx");
  CHECK_EQUAL(at.link->WindowCaption(3, caption).number, 9);
  CHECK_EQUAL(at.link->WindowCaption(0, caption).number, 9);
}

EXCEL_TEST(Link, TheNumberOfAWindowIsLeftOutAsNewerVersionsWriteItToo) {
  AttachedLink at;
  at.server.AddBook("Newer.xlsx", "Newer.xlsx", 2);
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->ActiveWorkbook(at.book).Good());
  std::string caption;
  CHECK(at.link->WorkbookWindowCaption(at.book, 1, caption).Good());
  CHECK_EQUAL(caption, "Newer.xlsx");
}

EXCEL_TEST(Link, ANumberThatBelongsToTheCaptionStays) {
  AttachedLink at;
  at.server.AddBook("plan.xlsx", "plan:2");
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->ActiveWorkbook(at.book).Good());
  std::string caption;
  CHECK(at.link->WorkbookWindowCaption(at.book, 1, caption).Good());
  CHECK_EQUAL(caption, "plan:2");
}

EXCEL_TEST(Link, AWorkbookIsFoundByItsNameOrItsCaption) {
  AttachedLink at;
  at.server.AddBook("plain.xlsx");
  at.server.AddBook("old.xls", "old.xls  -  Read-Only");
  at.server.Activate("Book1.xlsx");
  std::string name;
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->WorkbooksActivate("old.xls  -  Read-Only").Good());
  CHECK(at.link->ActiveWorkbookName(name).Good());
  CHECK_EQUAL(name, "old.xls");
  CHECK(at.link->WorkbooksActivate("plain.xlsx").Good());
  CHECK(at.link->ActiveWorkbookName(name).Good());
  CHECK_EQUAL(name, "plain.xlsx");
  CHECK_EQUAL(at.link->WorkbooksActivate("missing.xlsx").number, 9);
  CHECK(at.link->ActiveWorkbookName(name).Good());
  CHECK_EQUAL(name, "plain.xlsx");
}

EXCEL_TEST(Link, AWorkbookWithoutANameIsNone) {
  AttachedLink at;
  std::string name;
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK_EQUAL(at.link->WorkbooksActivate("").number, 9);
  CHECK(at.link->ActiveWorkbookName(name).Good());
  CHECK_EQUAL(name, "Scratch1");
}

EXCEL_TEST(Link, TheActiveWorkbookIsNotTakenTwice) {
  AttachedLink at;
  std::string formula;
  CHECK(at.link->FindActivate(at.book, SearchForKeyword()).number == 91);
  CHECK(at.link->ApplicationFindActivate(SearchForKeyword()).Good());
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->WorkbooksActivate("Book1.xlsx").Good());
  Workbook book = kNoWorkbook;
  CHECK(at.link->ActiveWorkbook(book).Good());
  CHECK(at.link->ActiveCellFormula(book, formula).Good());
  CHECK_EQUAL(formula, AttachedLink::kFormula);
}

EXCEL_TEST(Link, AWorkbookFromBeforeAReleaseIsNoneAnyMore) {
  AttachedLink at;
  at.link->ReleaseObject();
  CHECK(at.link->GetRunningObject().Good());
  Workbook book = kNoWorkbook;
  CHECK(at.link->ActiveWorkbook(book).Good());
  CHECK(book != at.book);
  std::string name;
  CHECK_EQUAL(at.link->ActiveSheetName(at.book, name).number, 91);
  CHECK(at.link->ActiveSheetName(book, name).Good());
}

EXCEL_TEST(Link, WhatIsActiveStaysSoWhateverTheUserClicksOn) {
  AttachedLink at;
  std::string text;
  CHECK(at.link->ActiveCellFormula(at.book, text).Good());
  at.server.AddBook("other.xlsx");
  at.server.Activate("other.xlsx");
  CHECK(at.link->ActiveWorkbookName(text).Good());
  CHECK_EQUAL(text, "Book1.xlsx");
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->ActiveWorkbookName(text).Good());
  CHECK_EQUAL(text, "other.xlsx");
}

// ---- cells ------------------------------------------------------------------------------------------------

EXCEL_TEST(Link, CellsOfEveryKindHaveTextAndNumber) {
  AttachedLink at;
  at.server.SetText(1, 1, "Orbite é 🛰");
  CHECK(at.server.Cell(1, 2).Put(L"Value", true).Good());
  CHECK(at.server.Cell(1, 3).Put(L"TestError", 2042).Good());
  CHECK(at.server.Cell(1, 4).Put(L"TestDate", 45292.5).Good());
  const auto cell = [&](int row, int column) {
    CellValue value{"as before", 9.0};
    CHECK(at.link->CellsValue(at.book, row, column, value).Good());
    return value.text + (value.number ? " is a number" : "");
  };
  CHECK_EQUAL(cell(1, 1), "Orbite é 🛰");
  CHECK_EQUAL(cell(1, 2), "TRUE is a number");
  CHECK_EQUAL(cell(1, 3), "#N/A");
  CHECK_EQUAL(cell(1, 4), "45292.5 is a number");
  CHECK_EQUAL(cell(2, 3), "23 is a number");
  CHECK_EQUAL(cell(9, 9), "");
  CellValue value;
  CHECK_EQUAL(at.link->CellsValue(at.book, 0, 0, value).number, 1004);
}

EXCEL_TEST(Link, SheetAndCellGoTogetherWhereverTheUserGoes) {
  AttachedLink at;
  std::string formula, sheet;
  CHECK(at.link->ActiveCellFormula(at.book, formula).Good());
  at.server.ShowSheet("Another");
  CHECK(at.link->ActiveSheetName(at.book, sheet).Good());
  CHECK_EQUAL(sheet, "Sheet1");
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->ActiveWorkbook(at.book).Good());
  CHECK(at.link->ActiveSheetName(at.book, sheet).Good());
  CHECK_EQUAL(sheet, "Another");
}

EXCEL_TEST(Link, AChartInFrontHasANameAndNoCell) {
  AttachedLink at;
  std::string text = "as before";
  at.server.Mode("refuse", "ActiveCell");
  CHECK(at.link->ActiveSheetName(at.book, text).Good());
  CHECK_EQUAL(text, "Sheet1");
  CHECK_EQUAL(at.link->ActiveCellFormula(at.book, text).number, 91);
  CHECK_EQUAL(at.link->SetActiveCellFormula(at.book, "=1").number, 50290);
  CHECK_EQUAL(text, "Sheet1");
}

EXCEL_TEST(Link, ASearchFindsTheFormulaAndMovesNoSelection) {
  AttachedLink at;
  const SheetFault inCell = at.link->FindActivate(at.book, SearchForKeyword());
  CHECK_EQUAL(inCell.number, 91);
  CHECK_EQUAL(at.server.Log(), "Find MAX in B3 -4123 2 True -\n");
  FindArguments arguments = SearchForKeyword();
  arguments.SearchFormat = false;
  CHECK(at.link->ApplicationFindActivate(arguments).Good());
  CHECK_EQUAL(at.server.Log(), "Find MAX in A1:XFD1048576 -4123 2 True False\n");
  std::string formula;
  int row = 0, column = 0;
  CellValue value;
  CHECK(at.link->ActiveCellFormula(at.book, formula).Good());
  CHECK_EQUAL(formula, AttachedLink::kFormula);
  CHECK(at.link->ActiveCellRow(at.book, row).Good());
  CHECK(at.link->ActiveCellColumn(at.book, column).Good());
  CHECK_EQUAL(row, 1);
  CHECK_EQUAL(column, 20);
  CHECK(at.link->ActiveCellValue(at.book, value).Good());
  CHECK_EQUAL(value.text, "31");
  CHECK(at.link->CellsSelect(at.book, 3, 2).Good());
  CHECK(at.link->ActiveCellFormula(at.book, formula).Good());
  CHECK_EQUAL(formula, "32");
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Link, AWordThatIsNowhereIs91) {
  AttachedLink at;
  FindArguments arguments;
  arguments.What = "NOWHERE";
  CHECK_EQUAL(at.link->ApplicationFindActivate(arguments).number, 91);
}

EXCEL_TEST(Link, AFormulaIsEvaluatedAside) {
  AttachedLink at;
  const auto evaluated = [&](const std::string& formula) {
    CellValue value;
    bool offered = false;
    SheetFault fault = at.link->EvaluateAside(at.book, formula, value, offered);
    return !offered ? "not offered" : fault.Good() ? value.text : std::to_string(fault.number);
  };
  CHECK_EQUAL(evaluated("=\"Orbit \"&B3"), "Orbit 32");
  CHECK_EQUAL(evaluated("=B3"), "32");
  CHECK_EQUAL(evaluated("=1/0"), "#DIV/0!");
  CHECK_EQUAL(evaluated("=Z9"), "0");
  std::string accents;
  for (int i = 0; i < 252; ++i)
    accents += "é";
  CHECK_EQUAL(evaluated("=\"" + accents + "\""), accents);
  CHECK_EQUAL(evaluated("=\"" + accents + "é\""), "not offered");
  at.server.Mode("busy", "Evaluate", 1);
  CHECK_EQUAL(evaluated("=B3"), "50290");
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK_EQUAL(at.server.Log(), "");
}

EXCEL_TEST(Link, TheActiveCellCanBeWrittenAndWrittenBack) {
  AttachedLink at;
  at.server.Select(1, 20);
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->ActiveWorkbook(at.book).Good());
  CellValue value;
  std::string before;
  CHECK(at.link->ActiveCellFormula(at.book, before).Good());
  CHECK(at.link->SetActiveCellFormula(at.book, "=\"Orbit é\"").Good());
  CHECK(at.link->ActiveCellValue(at.book, value).Good());
  CHECK_EQUAL(value.text, "Orbit é");
  CHECK(at.link->SetActiveCellFormula(at.book, AttachedLink::kFormula).Good());
  at.server.Select(3, 2);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Link, OnlyTheCellThatWasReadLastIsWritten) {
  AttachedLink at;
  std::string formula;
  CHECK_EQUAL(at.link->SetActiveCellFormula(at.book, "=1").number, 50290);
  CHECK(at.link->ActiveCellFormula(at.book, formula).Good());
  CHECK(at.link->CellsSelect(at.book, 4, 2).Good());
  CHECK_EQUAL(at.link->SetActiveCellFormula(at.book, "=1").number, 50290);
  CHECK(at.link->ApplicationFindActivate(SearchForKeyword()).Good());
  CHECK_EQUAL(at.link->SetActiveCellFormula(at.book, "=1").number, 50290);
  at.server.Mode("busy", "Formula", 1);
  CHECK_EQUAL(at.link->ActiveCellFormula(at.book, formula).number, 50290);
  CHECK_EQUAL(at.link->SetActiveCellFormula(at.book, "=1").number, 50290);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK(at.link->CellsSelect(at.book, 3, 2).Good());
  at.server.Log();
  CHECK(at.link->SetActiveCellFormula(at.book, "=1").Good());
  CHECK_EQUAL(at.server.Log(), "B3.Formula = =1\n");
}

EXCEL_TEST(Link, TheCellThatWasReadIsWrittenThoughTheUserIsElsewhere) {
  AttachedLink at;
  std::string formula;
  CHECK(at.link->ActiveCellFormula(at.book, formula).Good());
  at.server.Select(4, 3);
  at.server.Log();
  CHECK(at.link->SetActiveCellFormula(at.book, "=1").Good());
  CHECK_EQUAL(at.server.Log(), "B3.Formula = =1\n");
}

}  // namespace

}  // namespace quorb
