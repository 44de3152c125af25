#include "FindSpecCell.h"

#include "SheetFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FindSpecCellTest : public SheetFixture {
 protected:
  FindSpecCellTest() { MainKeyword = "MAX"; }

  bool Find() {
    static_cast<void>(sheet.GetRunningObject());
    sheet.calls.clear();
    session.ErrorNumber = 77;
    return FindSpecCell(session);
  }

  SheetSession session{sheet, window};
};

TEST_F(FindSpecCellTest, ASelectedSpecificationIsTakenInTheToldOrder) {
  AddPlotBook("=MAX(A2:C4)");
  EXPECT_TRUE(Find());
  EXPECT_THAT(sheet.calls, ElementsAre("ActiveWorkbook", "WorkbookWindowsCount", "WorkbookWindowCaption 1",
                                       "ActiveSheetName", "ActiveCellFormula", "ActiveCellRow",
                                       "ActiveCellColumn", "ActiveCellValue", "CellsSelect 1 20"));
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
  EXPECT_EQ(session.SourceBook, "Book1.xlsx");
  EXPECT_EQ(session.SourceSheet, "Sheet1");
  EXPECT_EQ(session.titleTail, "");
  EXPECT_EQ(session.cellRow, 1);
  EXPECT_EQ(session.cellColumn, 20);
  EXPECT_EQ(session.ErrorNumber, 0);
  EXPECT_EQ(session.NoSheet, 0);
  EXPECT_EQ(LastFormula, "=MAX(A2:C4)");
}

TEST_F(FindSpecCellTest, ASelectionOfSeveralCellsStays) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  for (const auto& [row, column] : {std::pair(3, 2), std::pair(kFormulaRow, kFormulaColumn)}) {
    book.Select(row, column);
    book.selection = "B2:T9";
    const std::string before = sheet.UserState();
    Find();
    EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
    EXPECT_EQ(sheet.UserState(), before);
  }
}

TEST_F(FindSpecCellTest, WithAnotherCellSelectedTheKeywordIsSearchedAndTheSelectionPutBack) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  book.Select(3, 2);
  Find();
  EXPECT_THAT(sheet.calls, ElementsAre("ActiveWorkbook", "WorkbookWindowsCount", "WorkbookWindowCaption 1",
                                       "ActiveSheetName", "ActiveCellFormula", "ActiveCellRow",
                                       "ActiveCellColumn", "ActiveCellValue", "FindActivate MAX -4123 2 True",
                                       "ActiveCellFormula", "CellsSelect 3 2"));
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
  EXPECT_EQ(LastFormula, "=MAX(A2:C4)");
  EXPECT_EQ(book.activeRow, 3);
  EXPECT_EQ(book.activeColumn, 2);
}

TEST_F(FindSpecCellTest, ASelectedFormulaWithTheValueZeroLeadsToTheFirstCellWithTheKeyword) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  book.SetFormula(9, 9, "=MAX(E2:G4)", 0);
  book.Select(9, 9);
  Find();
  EXPECT_EQ(sheet.CallCount("FindActivate"), 1);
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
  EXPECT_EQ(book.activeRow, 9);
}

TEST_F(FindSpecCellTest, ThatFirstCellMayBeTheSelectedOne) {
  MemoryBook& book = sheet.AddBook("Book1.xlsx");
  book.SetFormula(1, 1, "=MAX(A2:C4)", 0);
  Find();
  EXPECT_EQ(sheet.CallCount("FindActivate"), 1);
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
}

TEST_F(FindSpecCellTest, TheKeywordIsSearchedWithItsCase) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  book.SetText(1, 1, "Max of all");
  book.Select(3, 2);
  Find();
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
}

TEST_F(FindSpecCellTest, WhatTheSheetDoesNotFindIsSearchedOnTheApplication) {
  AddPlotBook("=MAX(A2:C4)").Select(3, 2);
  sheet.faults["FindActivate"] = FaultOf(kFaultNoObject);
  Find();
  EXPECT_EQ(sheet.calls[9], "ApplicationFindActivate MAX -4123 2 True False");
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C4)");
  EXPECT_EQ(session.ErrorNumber, 0);
  EXPECT_THAT(window.pauses, IsEmpty());
}

TEST_F(FindSpecCellTest, AnotherFailureOfTheSearchIsNotSearchedAgain) {
  AddPlotBook("=MAX(A2:C4)").Select(3, 2);
  sheet.faults["FindActivate"] = FaultOf(kFaultBusy);
  Find();
  EXPECT_EQ(sheet.CallCount("ApplicationFindActivate"), 0);
  EXPECT_EQ(session.ErrorNumber, 50290);
  EXPECT_THAT(window.pauses, IsEmpty());
}

TEST_F(FindSpecCellTest, AMovedSelectionIsPutBackAlsoWhenTheSheetIsBusyForAWhile) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  book.Select(3, 2);
  int refusals = 7;
  sheet.onCall = [&](const std::string& call, int) {
    return call == "CellsSelect 3 2" && refusals-- > 0 ? FaultOf(kFaultBusy) : SheetFault();
  };
  Find();
  EXPECT_EQ(book.activeRow, 3);
  EXPECT_EQ(window.pauses, std::vector<double>(7, 0.1));
}

TEST_F(FindSpecCellTest, ASelectionThatWasNotMovedIsPutBackOnce) {
  AddPlotBook("=MAX(A2:C4)");
  sheet.faults["CellsSelect"] = FaultOf(kFaultBusy);
  Find();
  EXPECT_EQ(sheet.CallCount("CellsSelect"), 1);
  EXPECT_THAT(window.pauses, IsEmpty());
}

TEST_F(FindSpecCellTest, ASelectionThatIsNotKnownIsNotMoved) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  book.Select(3, 2);
  for (const char* operation : {"ActiveCellRow", "ActiveCellColumn"}) {
    sheet.faults.clear();
    sheet.faults[operation] = FaultOf(kFaultBusy);
    static_cast<void>(sheet.GetRunningObject());
    SheetSession busy(sheet, window);
    EXPECT_TRUE(FindSpecCell(busy));
    EXPECT_EQ(sheet.CallCount("FindActivate"), 0);
    EXPECT_EQ(book.activeRow, 3);
  }
}

// ---- a typed specification --------------------------------------------------------------------------------

TEST_F(FindSpecCellTest, WithoutACellWithTheKeywordASpecificationIsAskedFor) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  LastAnswer = BoxAnswer::cancel;
  window.SetTag(LoaderControl::Command6, "");
  int waits = 0;
  std::vector<std::string> shown;
  window.onPause = [&] {
    shown.push_back(window.textTempo);
    EXPECT_TRUE(window.controls[LoaderControl::TextTempo].visible);
    EXPECT_TRUE(window.controls[LoaderControl::Command6].visible);
    if (++waits == 3) SpecTypedText = "=MAX(A2:C60)";
  };
  EXPECT_TRUE(Find());
  EXPECT_EQ(shown.front(),
            "Please enter the specification of the range of cells like \"=MAX(A2:C60)\" in the blue scroll "
            "textbox and  press the Enter Key.");
  EXPECT_THAT(window.pauses, ElementsAre(0.1, 0.1, 0.1));
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C60)");
  EXPECT_EQ(LastFormula, "=MAX(A2:C60)");
  EXPECT_EQ(SpecTyped, 1);
  EXPECT_EQ(LastAnswer, BoxAnswer::none);
  EXPECT_EQ(dialogs.pumps, 1);
  EXPECT_THAT(window.calls,
              ElementsAre("focus Combo1", "focus Command6", "focus Combo1", "Combo1_GotFocusRoutine"));
  EXPECT_FALSE(window.controls[LoaderControl::TextTempo].visible);
  EXPECT_FALSE(window.controls[LoaderControl::Command6].visible);
  EXPECT_EQ(sheet.CallCount("CellsSelect"), 0) << "the user may be elsewhere by now";
}

TEST_F(FindSpecCellTest, BehindRunDemoThePromptComesAgain) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  window.onPause = [this] { window.SetTag(LoaderControl::Command6, "demo"); };
  Find();
  EXPECT_EQ(SpecTyped, 1);
  window.textTempo.clear();
  window.pauses.clear();
  window.onPause = [this] {
    EXPECT_TRUE(window.controls[LoaderControl::Command6].visible);
    EXPECT_EQ(window.Tag(LoaderControl::Command6), "") << "the press of before is forgotten";
    if (window.pauses.size() == 3) SpecTypedText = "=MAX(A2:C9)";
  };
  Find();
  EXPECT_NE(window.textTempo, "");
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C9)");
}

TEST_F(FindSpecCellTest, WhatIsInFrontBehindTheWaitIsTheSource) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  MemoryBook* other = nullptr;
  window.onPause = [&] {
    other = &sheet.AddBook("Other.xlsx", "Data");
    SpecTypedText = "=MAX(A2:C9)";
  };
  Find();
  EXPECT_EQ(session.SourceBook, "Other.xlsx");
  EXPECT_EQ(session.SourceSheet, "Data");
  EXPECT_EQ(session.workbook, other->id);
  EXPECT_EQ(session.NoSheet, 0);
  EXPECT_EQ(session.ErrorNumber, 0);
}

TEST_F(FindSpecCellTest, ASheetThatIsSwitchedDuringTheWaitIsNamed) {
  MemoryBook& book = sheet.AddBook("Book1.xlsx");
  book.SetNumber(1, 1, 5);
  window.onPause = [&] {
    book.sheetName = "Sheet2";
    SpecTypedText = "=MAX(A2:C9)";
  };
  Find();
  EXPECT_EQ(session.SourceSheet, "Sheet2");
}

TEST_F(FindSpecCellTest, AnOfficeThatIsClosedDuringTheWaitLeavesTheOldFile) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  PutLastFile();
  window.onPause = [this] {
    sheet.Vanish();
    SpecTypedText = "=MAX(A2:C9)";
  };
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("RangeCopy"), 0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
}

TEST_F(FindSpecCellTest, AWorkbookThatIsClosedAtOnceAsksNobody) {
  AddPlotBook("=MAX(A2:C4)").Select(3, 2);
  sheet.onCall = [this](const std::string& call, int) {
    if (call == "WorkbookWindowsCount") sheet.books.clear();
    return SheetFault();
  };
  EXPECT_TRUE(Find());
  EXPECT_EQ(session.NoSheet, 1);
  EXPECT_THAT(window.pauses, IsEmpty());
}

TEST_F(FindSpecCellTest, AnApplicationThatWentAwayAsksNobody) {
  AddPlotBook("=MAX(A2:C4)").Select(3, 2);
  sheet.keepsLostNumber = false;
  for (const int number : {-2147417848, -2147023170}) {
    for (int call = 0; call < 9; ++call) {
      sheet.onCall = [=](const std::string&, int index) {
        return index < call ? SheetFault() : FaultOf(index == call ? number : kFaultNoObject);
      };
      SheetSession lost(sheet, window);
      static_cast<void>(sheet.GetRunningObject());
      sheet.isAttached = true;
      sheet.calls.clear();
      EXPECT_TRUE(FindSpecCell(lost));
      EXPECT_THAT(window.pauses, IsEmpty()) << number << " at " << call;
    }
  }
}

TEST_F(FindSpecCellTest, AnEmptyKeywordComputesNothing) {
  MainKeyword = "";
  AddPlotBook("=LEN(\"Orbit \"&B3)+MAX(A2:C4)");
  Find();
  EXPECT_EQ(sheet.CallCount("SetActiveCellFormula"), 0);
  EXPECT_EQ(sheet.CallCount("CellsValue"), 0);
}

TEST_F(FindSpecCellTest, AFormulaWithoutTheKeywordGivesNoTitle) {
  MemoryBook& book = AddPlotBook("=MAX(A2:C4)");
  book.cells.clear();
  book.SetFormula(3, 2, "=LEN(\"Orbit \"&B9)", 5);
  book.Select(3, 2);
  window.onPause = [] { SpecTypedText = "=MAX(A2:C9)"; };
  Find();
  EXPECT_EQ(sheet.CallCount("CellsValue"), 0);
}

TEST_F(FindSpecCellTest, RunDemoEndsTheWaiting) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  window.onPause = [this] {
    if (window.pauses.size() == 2) window.SetTag(LoaderControl::Command6, "demo");
  };
  EXPECT_TRUE(Find());
  EXPECT_EQ(window.pauses.size(), 2);
  EXPECT_EQ(session.cellFormula, "");
  EXPECT_FALSE(window.controls[LoaderControl::Command6].visible);
}

TEST_F(FindSpecCellTest, ASpecificationThatWasTypedBeforeIsTakenWithoutThePrompt) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  SpecTyped = 1;
  SpecTypedText = "=MAX(A2:C9)";
  LastAnswer = BoxAnswer::ok;
  Find();
  EXPECT_EQ(window.textTempo, "");
  EXPECT_EQ(LastAnswer, BoxAnswer::ok);
  EXPECT_THAT(window.pauses, ElementsAre(0.1));
  EXPECT_EQ(session.cellFormula, "=MAX(A2:C9)");
}

TEST_F(FindSpecCellTest, BehindACancelTheEntryBoxDoesNotTakeTheFocus) {
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  SpecTyped = 1;
  SpecTypedText = "=MAX(A2:C9)";
  LastAnswer = BoxAnswer::cancel;
  Find();
  EXPECT_THAT(window.calls, IsEmpty());
  EXPECT_EQ(dialogs.pumps, 0);
}

TEST_F(FindSpecCellTest, ATypedSpecificationPlotsTheActiveSheet) {
  MemoryBook& book = sheet.AddBook("Book1.xlsx", "Data");
  for (int column = 1; column <= 3; ++column)
    book.SetNumber(2, column, column);
  SpecTyped = 1;
  SpecTypedText = "=1+LEN(\"kmday\")+MAX(A2:C2)+MAX(D2:D3)";
  LoadFromSheet();
  EXPECT_THAT(Point(0), ElementsAre(0, 1, 2, 3, 0));
  EXPECT_EQ(WrittenFile(), WrittenHeader("=1+LEN(\"kmday\")+MAX(A2:C2)+MAX(D2:D3)", "1.0000000000", "kmday",
                                         "Book1.xlsx\tData") +
                               WrittenRow({Cell(1), Cell(2), Cell(3)}) + WrittenRow({}));
}

TEST_F(FindSpecCellTest, WithoutAnApplicationNobodyIsAskedAndRunDemoCountsAsPressed) {
  EXPECT_TRUE(FindSpecCell(session));
  EXPECT_EQ(session.NoSheet, 1);
  EXPECT_EQ(session.ErrorNumber, 91);
  EXPECT_EQ(window.Tag(LoaderControl::Command6), "demo");
  EXPECT_EQ(LastFormula, "");
  EXPECT_THAT(window.pauses, IsEmpty());
  EXPECT_THAT(sheet.calls, ElementsAre("ActiveWorkbook", "CellsSelect 0 0"));
}

TEST_F(FindSpecCellTest, AWorkbookThatCannotBeReachedAsksNobody) {
  AddPlotBook();
  for (const int number : {50290, 1004, -2147418111, -2147023170, 13}) {
    SheetSession busy(sheet, window);
    static_cast<void>(sheet.GetRunningObject());
    sheet.faults["ActiveWorkbook"] = FaultOf(number);
    EXPECT_TRUE(FindSpecCell(busy));
    EXPECT_EQ(busy.NoSheet, 1) << number;
    EXPECT_THAT(window.pauses, IsEmpty()) << number;
  }
}

}  // namespace
}  // namespace quorb
