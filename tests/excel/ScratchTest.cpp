#include <windows.h>

#include "Check.h"
#include "ClipboardSetup.h"
#include "LinkFixture.h"

namespace quorb {

namespace {

PasteArguments LaterPaste() {
  return {xlPasteValues, xlPasteSpecialOperationNone, false, false};
}

EXCEL_TEST(Scratch, ANewWorkbookIsActiveAndFirst) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  std::string text;
  int count = 0;
  CHECK(at.link->ActiveWorkbookName(text).Good());
  CHECK_EQUAL(text, "Scratch1");
  CHECK(at.link->WindowsCount(count).Good());
  CHECK_EQUAL(count, 2);
  at.server.Activate("Book1.xlsx");
  CHECK(at.link->WindowCaption(1, text).Good());
  CHECK_EQUAL(text, "Scratch1");
  CHECK(at.link->WindowCaption(2, text).Good());
  CHECK_EQUAL(text, "Book1.xlsx");
}

EXCEL_TEST(Scratch, ABlockIsPouredAndItsTextTaken) {
  AttachedLink at;
  SetClipboard(CF_UNICODETEXT, L"the user's text");
  ExcelLink& link = *at.link;
  std::string source;
  CHECK(link.WorkbookWindowCaption(at.book, 1, source).Good());
  CHECK(link.WorkbooksAdd().Good());
  CHECK(link.RangeSelect("A1").Good());
  CHECK(link.SetActiveCell("From: \tsay \"é\"\t").Good());
  CHECK(link.WorkbooksActivate(source).Good());
  CHECK(link.RangeCopy("A2:C4").Good());
  CHECK(link.WorkbooksActivate("Scratch1").Good());
  CHECK(link.RangePasteSpecial("A2", {}).Good());
  CHECK(link.EndCutCopyMode().Good());
  CHECK(link.WorkbooksActivate(source).Good());
  CHECK(link.RangeCopy("B2:B4").Good());
  CHECK(link.WorkbooksActivate("Scratch1").Good());
  CHECK(link.RangePasteSpecial("D2", LaterPaste()).Good());
  CHECK(link.EndCutCopyMode().Good());
  CHECK(link.ColumnsSelect("A:R").Good());
  CHECK(link.SelectionColumnWidth(20).Good());
  CHECK(link.SelectionNumberFormat("0.0000000000").Good());
  KeptText sink;
  CHECK(link.BlockText("A1:E3", sink).Good());
  CHECK_EQUAL(sink.text,
              "\"From: \tsay \"\"é\"\"\t\"\t\t\t\t\r\n"
              "21.0000000000\t22.0000000000\t23.0000000000\t22.0000000000\t\r\n"
              "31.0000000000\t32.0000000000\t33.0000000000\t32.0000000000\t\r\n");
  CHECK_EQUAL(ClipboardText(), "the user's text");
  CHECK(link.ActiveWindowClose(false, false).Good());
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK_EQUAL(at.server.Log(),
              "Add Scratch1\n"
              "Copy Book1.xlsx A2:C4\n"
              "PasteSpecial A2 -4163 - - -\n"
              "Copy Book1.xlsx B2:B4\n"
              "PasteSpecial D2 -4163 -4142 False False\n"
              "Copy Scratch1 A1:E3\n"
              "Close Scratch1 unsaved\n");
}

EXCEL_TEST(Scratch, TabsAndLineEndsInsideCellsBecomeBlanks) {
  AttachedLink at;
  at.server.SetText(2, 1, "a\tb\n\"c\"");
  CHECK(at.link->RangeCopy("A2:B2").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->RangePasteSpecial("A2", {}).Good());
  KeptText sink;
  CHECK(at.link->BlockText("A1:B2", sink).Good());
  CHECK_EQUAL(sink.text, "\t\r\na b \"c\"\t22\r\n");
}

EXCEL_TEST(Scratch, OnlyTheScratchWorkbookIsWritten) {
  AttachedLink at;
  ExcelLink& link = *at.link;
  CHECK(link.RangeCopy("A2:C4").Good());
  CHECK_EQUAL(link.RangePasteSpecial("A9", {}).number, 1004);
  CHECK_EQUAL(link.RangeSelect("A9").number, 1004);
  CHECK_EQUAL(link.SetActiveCell("x").number, 1004);
  CHECK_EQUAL(link.SelectionColumnWidth(20).number, 1004);
  CHECK_EQUAL(link.SelectionNumberFormat("0").number, 1004);
  CHECK_EQUAL(link.ActiveWindowClose(false, false).number, 91);
  CHECK(link.WorkbooksAdd().Good());
  CHECK_EQUAL(link.RangeCopy("A1").number, 1004);
  CHECK(link.WorkbooksActivate("Book1.xlsx").Good());
  CHECK_EQUAL(link.RangePasteSpecial("A9", {}).number, 1004);
  CHECK_EQUAL(link.SetActiveCell("x").number, 1004);
  CHECK_EQUAL(link.ColumnsSelect("A:R").number, 1004);
  CHECK(link.ActiveWindowClose(false, false).Good());
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, WithoutAMarkedBlockNothingIsPasted) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK_EQUAL(at.link->RangePasteSpecial("A2", {}).number, 1004);
  CHECK_EQUAL(at.link->RangePasteSpecial("", {}).number, 1004);
  CHECK(at.link->WorkbooksActivate("Book1.xlsx").Good());
  CHECK_EQUAL(at.link->RangeCopy("A:").number, 1004);
}

EXCEL_TEST(Scratch, ANewOneClosesTheOneBefore) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK_EQUAL(at.server.Log(), "Add Scratch1\nClose Scratch1 unsaved\nAdd Scratch2\n");
}

EXCEL_TEST(Scratch, ReleasingClosesIt) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  at.link->ReleaseObject();
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, TheClipboardIsTheUsersBehindEveryOperation) {
  AttachedLink at;
  SetClipboard(CF_UNICODETEXT, L"the user's text");
  CHECK(at.link->RangeCopy("A2:C4").Good());
  CHECK_EQUAL(ClipboardText(), "the user's text");
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->RangePasteSpecial("A2", {}).Good());
  CHECK_EQUAL(ClipboardText(), "the user's text");
  at.server.Mode("refuse", "PasteSpecial", 1);
  CHECK_EQUAL(at.link->RangePasteSpecial("A2", {}).number, 1004);
  CHECK_EQUAL(ClipboardText(), "the user's text");
  CHECK(at.link->EndCutCopyMode().Good());
  CHECK_EQUAL(at.link->RangePasteSpecial("A2", {}).number, 1004);
}

EXCEL_TEST(Scratch, ABlockThatTheUserHasMarkedStaysMarked) {
  AttachedLink at;
  CHECK(at.server.Cell(2, 1).Call(L"Copy").Good());
  CHECK(at.link->EndCutCopyMode().Good());
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 50290);
  int mode = 0;
  CHECK(at.server.App().GetInteger(L"CutCopyMode", mode).Good());
  CHECK_EQUAL(mode, 1);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, OneThatTheUserHasClosedIsNoTrouble) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  ComObject workbooks, scratch;
  CHECK(at.server.App().Follow(L"Workbooks", workbooks).Good());
  const std::string name = "Scratch1";
  CHECK(workbooks.Follow(L"Item", scratch, CallArguments(name)).Good());
  CHECK(scratch.Call(L"Close").Good());
  CHECK_EQUAL(at.link->SetActiveCell("x").number, 424);
  CHECK(at.link->WorkbooksActivate("Book1.xlsx").Good());
  CHECK(at.link->WorkbooksActivate("Scratch1").Good());
  KeptText sink;
  CHECK_EQUAL(at.link->BlockText("A1:B2", sink).number, 424);
  at.link->ReleaseObject();
  CHECK(at.link->GetRunningObject().Good());
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, ABusyApplicationKeepsItUntilItCanBeClosed) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Mode("busy", "Close", 1);
  at.link->ReleaseObject();
  CHECK(at.server.State() != at.stateBefore);
  CHECK(at.link->GetRunningObject().Good());
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, ALinkMayEndBeforeItCouldBeClosed) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Mode("busy", "Close");
  at.link.reset();
  CHECK_EQUAL(at.server.Log(), "Add Scratch1\n");
}

EXCEL_TEST(Scratch, ABlockThatGotLostIsPastedAgain) {
  AttachedLink at;
  CHECK(at.link->RangeCopy("A2:A2").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Mode("busy", "PasteSpecial", 1);
  CHECK_EQUAL(at.link->RangePasteSpecial("A1", {}).number, 50290);
  CHECK(at.link->RangePasteSpecial("A1", {}).Good());
  KeptText sink;
  CHECK(at.link->BlockText("A1:B1", sink).Good());
  CHECK_EQUAL(sink.text, "21\t\r\n");
}

EXCEL_TEST(Scratch, ARefusedBlockIsLeftOut) {
  AttachedLink at;
  CHECK(at.link->RangeCopy("A2:C4").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Mode("refuse", "PasteSpecial", 1);
  const SheetFault fault = at.link->RangePasteSpecial("A2", {});
  CHECK_EQUAL(fault.number, 1004);
  CHECK_EQUAL(fault.description, "The sheet refuses PasteSpecial");
  KeptText sink;
  CHECK(at.link->BlockText("A1:B1", sink).Good());
}

EXCEL_TEST(Scratch, OneThatTheUserHasClosedGivesWayToANewOne) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  ComObject workbooks, scratch;
  CHECK(at.server.App().Follow(L"Workbooks", workbooks).Good());
  CHECK(workbooks.Follow(L"Item", scratch, CallArguments(std::string("Scratch1"))).Good());
  CHECK(scratch.Call(L"Close").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->SetActiveCell("x").Good());
  CHECK(at.link->ActiveWindowClose(false, false).Good());
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, TheWorkbookLastActivatedIsMeantWhereverTheUserGoes) {
  AttachedLink at;
  at.server.AddBook("other.xlsx");
  at.server.Activate("Book1.xlsx");
  CHECK(at.link->GetRunningObject().Good());
  ExcelLink& link = *at.link;
  const auto userGoesToOther = [&] { at.server.Activate("other.xlsx"); };
  CHECK(link.WorkbooksActivate("Book1.xlsx").Good());
  const std::string before = at.server.State();
  CHECK(link.WorkbooksAdd().Good());
  userGoesToOther();
  CHECK(link.RangeSelect("B1").Good());
  CHECK(link.SetActiveCell("head").Good());
  CHECK(link.WorkbooksActivate("Book1.xlsx").Good());
  userGoesToOther();
  CHECK(link.RangeCopy("A2:A3").Good());
  CHECK_EQUAL(link.RangePasteSpecial("A2", {}).number, 1004);
  CHECK(link.WorkbooksActivate("Scratch1").Good());
  userGoesToOther();
  CHECK(link.RangePasteSpecial("A2", {}).Good());
  CHECK(link.ColumnsSelect("A:A").Good());
  CHECK(link.SelectionNumberFormat("0.0000000000").Good());
  CHECK(link.WorkbooksActivate("Book1.xlsx").Good());
  KeptText sink;
  CHECK_EQUAL(link.BlockText("A1:B3", sink).number, 1004);
  CHECK(link.WorkbooksActivate("Scratch1").Good());
  userGoesToOther();
  CHECK(link.BlockText("A1:B3", sink).Good());
  CHECK_EQUAL(sink.text, "\thead\r\n21.0000000000\t\r\n31.0000000000\t\r\n");
  CHECK(link.ActiveWindowClose(false, false).Good());
  at.server.Activate("Book1.xlsx");
  CHECK_EQUAL(at.server.State(), before);
}

EXCEL_TEST(Scratch, TheActiveWorkbooksWindowIsFirst) {
  AttachedLink at;
  std::string text;
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->WorkbooksActivate("Book1.xlsx").Good());
  CHECK(at.link->WindowCaption(1, text).Good());
  CHECK_EQUAL(text, "Book1.xlsx");
  CHECK(at.link->WindowCaption(2, text).Good());
  CHECK_EQUAL(text, "Scratch1");
}

EXCEL_TEST(Scratch, BehindItTheWorkbookFromBeforeIsActiveAgain) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.AddBook("other.xlsx");
  CHECK(at.link->ActiveWindowClose(false, false).Good());
  Workbook book = kNoWorkbook;
  CHECK(at.link->ActiveWorkbook(book).Good());
  CHECK_EQUAL(book, at.book);
  CHECK_EQUAL(at.link->ActiveWindowClose(false, false).number, 91);
}

EXCEL_TEST(Scratch, OneThatFailsHalfwayIsNotLeftBehind) {
  AttachedLink at;
  std::string name;
  at.server.Mode("refuse", "Caption", 1);
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 1004);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK(at.link->ActiveWorkbookName(name).Good());
  CHECK_EQUAL(name, "Book1.xlsx");
}

EXCEL_TEST(Scratch, WhatFailsLeavesTheMarkAndTheOneBefore) {
  AttachedLink at;
  CHECK(at.link->RangeCopy("A2:A2").Good());
  CHECK_EQUAL(at.link->RangeCopy("A:").number, 1004);
  CHECK(at.link->WorkbooksAdd().Good());
  CHECK(at.link->RangePasteSpecial("A1", {}).Good());
  CHECK(at.server.Cell(1, 1).Call(L"Copy").Good());
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 50290);
  CHECK(at.server.App().Put(L"CutCopyMode", false).Good());
  KeptText sink;
  CHECK(at.link->BlockText("A1:A1", sink).Good());
  CHECK_EQUAL(sink.text, "21\r\n");
}

EXCEL_TEST(Scratch, ACopyThatIsRefusedLeavesTheClipboardUntouched) {
  AttachedLink at;
  SetClipboard(CF_UNICODETEXT, L"the user's text");
  CHECK(at.link->RangeCopy("A2:C4").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  const DWORD state = GetClipboardSequenceNumber();
  KeptText sink;
  at.server.Mode("busy", "Copy", 2);
  CHECK_EQUAL(at.link->RangePasteSpecial("A2", {}).number, 50290);
  CHECK_EQUAL(at.link->BlockText("A1:B2", sink).number, 50290);
  CHECK_EQUAL(GetClipboardSequenceNumber(), state);
}

EXCEL_TEST(Scratch, AClipboardThatCannotBeKeptIsNotUsed) {
  AttachedLink at;
  CHECK(at.link->RangeCopy("A2:C4").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Log();
  void* held = HoldClipboard();
  const SheetFault fault = at.link->RangePasteSpecial("A2", {});
  LetClipboardGo(held);
  CHECK_EQUAL(fault.number, kFaultClipboard);
  CHECK(fault.description.find("Clipboard") != std::string::npos);
  CHECK_EQUAL(at.server.Log(), "");
}

EXCEL_TEST(Scratch, ACopyModeThatCouldNotBeEndedEndsWithTheRelease) {
  AttachedLink at;
  CHECK(at.link->RangeCopy("A2:C4").Good());
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Mode("busy", "CutCopyMode", 1);
  CHECK_EQUAL(at.link->RangePasteSpecial("A2", {}).number, 50290);
  at.link->ReleaseObject();
  int mode = 1;
  CHECK(at.server.App().GetInteger(L"CutCopyMode", mode).Good());
  CHECK_EQUAL(mode, 0);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Scratch, WhileItIsStillInFrontTheApplicationIsBusy) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Mode("busy", "Close", 2);
  at.link->ReleaseObject();
  CHECK(at.link->GetRunningObject().Good());
  Workbook book = kNoWorkbook;
  CHECK_EQUAL(at.link->ActiveWorkbook(book).number, 50290);
  CHECK(at.link->GetRunningObject().Good());
  CHECK(at.link->ActiveWorkbook(book).Good());
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

}  // namespace

}  // namespace quorb
