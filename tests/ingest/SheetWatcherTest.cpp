#include "WatcherFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SheetWatcherTest = WatcherFixture;

// ---- when it looks ----------------------------------------------------------------------------------------

TEST_F(SheetWatcherTest, ItDoesNotLookBeforeALoadThroughTheSpreadsheet) {
  EXPECT_EQ(Poll(), 0);
  EXPECT_THAT(sheet.calls, IsEmpty());
}

TEST_F(SheetWatcherTest, ItDoesNotLookWhileALoadRunsOrAFileIsOnShow) {
  Settle();
  for (int* const flag : {&LoadBusy, &FileMode, &CommandFileMode}) {
    *flag = 1;
    EXPECT_EQ(Poll(), 0);
    *flag = 0;
  }
  FileMode = 2;
  EXPECT_EQ(Poll(), 0);
  EXPECT_THAT(sheet.calls, IsEmpty());
}

TEST_F(SheetWatcherTest, OnePollAsksTheseAndNoMore) {
  Settle();
  EXPECT_EQ(Poll(), 0);
  EXPECT_THAT(sheet.calls, ElementsAre("GetRunningObject", "Name", "ActiveWorkbookName", "ActiveWorkbook",
                                       "WorkbookWindowsCount", "WorkbookWindowCaption 1", "ActiveSheetName",
                                       "ActiveCellFormula"));
  EXPECT_FALSE(sheet.isAttached);
  EXPECT_EQ(dialogs.pumps, 2) << "those of the two loads alone";
}

TEST_F(SheetWatcherTest, TheFirstPollOfARunAlwaysLoads) {
  LoadFromSheet();
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(WatchSheetName, "Sheet1");
  EXPECT_EQ(WatchCaption, "Book1.xlsx");
  EXPECT_EQ(LastFormula, kPlain);
  EXPECT_EQ(FormulaArmed, 0);
  EXPECT_EQ(Poll(), 0);
}

// ---- the states -------------------------------------------------------------------------------------------

TEST_F(SheetWatcherTest, CalmAndTheSameTextStaysCalm) {
  Settle();
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(FormulaArmed, 0);
}

TEST_F(SheetWatcherTest, CalmAndAnotherSpecificationLoadsAtOnce) {
  Settle();
  book_->SetFormula(kFormulaRow, kFormulaColumn, "=2+LEN(\"kmday\")+MAX(A2:C3)", 4);
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(FormulaArmed, 0);
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(LastFormula, "=2+LEN(\"kmday\")+MAX(A2:C3)");
  EXPECT_EQ(Poll(), 0);
}

TEST_F(SheetWatcherTest, CalmAndATextWithoutTheKeywordArms) {
  Settle();
  book_->Select(5, 5);
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(FormulaArmed, 1);
  EXPECT_EQ(SeenFormula, "five");
  EXPECT_EQ(LastFormula, kPlain);
}

TEST_F(SheetWatcherTest, ArmedAndTheReferenceTextAgainStaysArmed) {
  Settle();
  book_->Select(5, 5);
  Poll();
  book_->Select(kFormulaRow, kFormulaColumn);
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(FormulaArmed, 1);
  EXPECT_EQ(SeenFormula, "five");
}

TEST_F(SheetWatcherTest, ArmedAndTheNotedTextStaysArmed) {
  Settle();
  book_->Select(5, 5);
  Poll();
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(FormulaArmed, 1);
}

TEST_F(SheetWatcherTest, ArmedAndAThirdTextLoadsAndIsCalmAgain) {
  Settle();
  book_->Select(5, 5);
  Poll();
  book_->Select(6, 6);
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(FormulaArmed, 0);
  EXPECT_EQ(LastFormula, "six") << "what the cell held at this poll, though the load found the specification";
  EXPECT_EQ(book_->activeRow, 6);
  EXPECT_EQ(Poll(), 0);
}

TEST_F(SheetWatcherTest, TwoEmptyCellsLookAlike) {
  Settle();
  book_->Select(30, 1);
  EXPECT_EQ(Poll(), 0);
  book_->Select(31, 1);
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(FormulaArmed, 1);
}

TEST_F(SheetWatcherTest, AnEditOfASelectedDataCellIsSeenAsAChange) {
  Settle();
  book_->Select(2, 1);
  Poll();
  book_->SetNumber(2, 1, 77);
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(dataXYZT[0][1], 77);
}

TEST_F(SheetWatcherTest, AnotherSheetLoadsAtThisPoll) {
  Settle();
  book_->sheetName = "Sheet2";
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(WatchSheetName, "Sheet2");
  EXPECT_EQ(FormulaArmed, 0);
  EXPECT_EQ(Poll(), 0);
}

TEST_F(SheetWatcherTest, AnotherWorkbookLoadsAtThisPollFromItsOwnSpecification) {
  Settle();
  MemoryBook& other = AddPlotBook("=3+LEN(\"kmday\")+MAX(A2:C3)", "Other.xlsx");
  other.SetNumber(2, 1, 5);
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(WatchCaption, "Other.xlsx");
  EXPECT_EQ(dataXYZT[0][1], 15);
  EXPECT_EQ(LastPoint, 1);
}

TEST_F(SheetWatcherTest, TheSentinelsStandWhileTheLoadBegins) {
  Settle();
  book_->sheetName = "Sheet2";
  std::string last, seen;
  int armed = 0;
  window.onCall = [&](const std::string&) {
    if (!last.empty()) return;
    last = LastFormula;
    seen = SeenFormula;
    armed = FormulaArmed;
  };
  Poll();
  EXPECT_EQ(last, "kkkkkkkkkkkkkkkkkkk");
  EXPECT_EQ(seen, "oooooooooooooooooo");
  EXPECT_EQ(armed, 1);
}

TEST_F(SheetWatcherTest, AReloadClearsTheFlagsBeforeItLoads) {
  Settle();
  DEJADRAW = DEJARESET = 1;
  FlagOptionToPlot = 1;
  std::vector<int> flags;
  window.onCall = [&](const std::string&) {
    if (flags.empty()) flags = {DEJADRAW, DEJARESET, FileMode, FlagOptionToPlot};
  };
  book_->sheetName = "Sheet2";
  Poll();
  EXPECT_THAT(flags, ElementsAre(0, 0, 0, 0));
}

TEST_F(SheetWatcherTest, AReloadLeavesTheReferenceToALoadThatBeganWhileItWaited) {
  Settle();
  book_->SetText(kFormulaRow, kFormulaColumn, "seven");
  ASSERT_EQ(Poll(), 0);
  book_->SetText(kFormulaRow, kFormulaColumn, "eight");
  window.onPause = [&] {
    window.onPause = nullptr;
    book_->SetFormula(kFormulaRow, kFormulaColumn, kFormula, 31);
    LoadFromSheet();
  };
  EXPECT_EQ(Poll(), 2);
  EXPECT_EQ(LastFormula, kFormula);
}

// ---- the command ------------------------------------------------------------------------------------------

TEST_F(SheetWatcherTest, AnUpdateLoadsWithoutALook) {
  Settle();
  USERFLAG.InteractiveExcel = 0.0;
  for (const int state : {0, 1}) {
    FormulaArmed = state;
    sheet.calls.clear();
    USERFLAG.UpdateAsked = 1.0;
    EXPECT_EQ(Poll(), 1);
    EXPECT_EQ(sheet.CallCount("Name"), 0);
    EXPECT_EQ(FormulaArmed, 0);
    EXPECT_EQ(LastFormula, "");
    EXPECT_EQ(USERFLAG.UpdateAsked, 0.0);
  }
}

TEST_F(SheetWatcherTest, AnUpdateEndsTheStillnessBehindARangeTooNarrow) {
  Settle();
  book_->SetFormula(kFormulaRow, kFormulaColumn, "=MAX(A2:B4)", 4);
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(LoadBusy, 1);
  EXPECT_EQ(Poll(), 0);
  book_->SetFormula(kFormulaRow, kFormulaColumn, kPlain, 4);
  EXPECT_EQ(Poll(), 0);
  USERFLAG.UpdateAsked = 1.0;
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(LoadBusy, 0);
  EXPECT_EQ(LastPoint, 2);
}

TEST_F(SheetWatcherTest, WithTheOptionOffAPollLoads) {
  Settle();
  USERFLAG.InteractiveExcel = 0.0;
  EXPECT_EQ(Poll(), 1);
}

// ---- a typed specification --------------------------------------------------------------------------------

TEST_F(SheetWatcherTest, ATypedSpecificationIsLoadedOnce) {
  Settle();
  book_->Select(5, 5);
  SpecTyped = 1;
  SpecTypedText = "=4+LEN(\"kmday\")+MAX(A2:C3)";
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(LastFormula, SpecTypedText);
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(Poll(), 0);
}

TEST_F(SheetWatcherTest, ATypedSpecificationIsNotLookedAtWhenASpecificationIsSelected) {
  Settle();
  SpecTyped = 1;
  SpecTypedText = "=MAX(A2:C3)";
  EXPECT_EQ(Poll(), 0);
  book_->Select(5, 5);
  SeenFormula = "=MAX(A2:C9)";
  FormulaArmed = 1;
  EXPECT_EQ(Poll(), 1) << "by the cell, which differs from both";
}

TEST_F(SheetWatcherTest, ATypedSpecificationGivesWayToTheOneThatWasSelected) {
  Settle();
  book_->Select(5, 5);
  EXPECT_EQ(Poll(), 0);
  book_->Select(6, 6);
  EXPECT_EQ(Poll(), 1);
  ASSERT_EQ(LastFormula, "six");
  SpecTyped = 1;
  SpecTypedText = "=MAX(A2:C3)";
  book_->Select(kFormulaRow, kFormulaColumn);
  EXPECT_EQ(Poll(), 0) << "a specification is selected";
  EXPECT_EQ(FormulaArmed, 1);
  EXPECT_EQ(SeenFormula, kPlain);
  sheet.Vanish();
  EXPECT_EQ(Poll(), 0) << "one was seen last";
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  SeenFormula = "five";
  dialogs.answers = {BoxAnswer::cancel};
  EXPECT_EQ(Poll(), 1) << "none was";
}

}  // namespace
}  // namespace quorb
