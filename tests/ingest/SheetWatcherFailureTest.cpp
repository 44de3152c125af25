#include "WatcherFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SheetWatcherFailureTest = WatcherFixture;

// ---- the spreadsheet is closed ----------------------------------------------------------------------------

TEST_F(SheetWatcherFailureTest, AClosedSpreadsheetIsPassedOverInSilence) {
  Settle();
  sheet.Vanish();
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(Poll(), 0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 3);
}

TEST_F(SheetWatcherFailureTest, BehindAnOkAttachingIsTriedTwice) {
  Settle();
  sheet.Vanish();
  LastAnswer = BoxAnswer::ok;
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 2);
  LastAnswer = BoxAnswer::cancel;
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 3);
}

TEST_F(SheetWatcherFailureTest, WithTheSpreadsheetClosedATypedSpecificationStillLoads) {
  Settle();
  sheet.Vanish();
  SpecTyped = 1;
  SpecTypedText = "=MAX(A2:C3)";
  dialogs.answers = {BoxAnswer::cancel};
  EXPECT_EQ(Poll(), 1);
  EXPECT_THAT(BoxTitles(), ElementsAre("Excel not running!"));
  EXPECT_EQ(Poll(), 0);
}

TEST_F(SheetWatcherFailureTest, ASpreadsheetThatComesBackIsWatchedAgain) {
  Settle();
  const std::list<MemoryBook> before = sheet.books;
  sheet.Vanish();
  Poll();
  sheet.isRunning = true;
  sheet.books = before;
  EXPECT_EQ(Poll(), 0);
  sheet.books.front().SetFormula(kFormulaRow, kFormulaColumn, "=2+LEN(\"kmday\")+MAX(A2:C3)", 4);
  EXPECT_EQ(Poll(), 1);
}

// ---- failures ---------------------------------------------------------------------------------------------

TEST_F(SheetWatcherFailureTest, ThesePassInSilenceAtEveryCall) {
  Settle();
  book_->sheetName = "Sheet2";
  for (const int number : {424, -2147417848, -2147418111, -2147023170, 50290}) {
    for (int call = 1; call < 8; ++call) {
      sheet.calls.clear();
      sheet.onCall = [=](const std::string&, int index) {
        return index == call ? FaultOf(number) : SheetFault();
      };
      EXPECT_EQ(Poll(), 0) << number << " at " << call;
      EXPECT_THAT(sheet.calls, testing::SizeIs(call + 1)) << "nothing more is asked";
      EXPECT_FALSE(sheet.isAttached);
      EXPECT_EQ(WatchStopped, 0);
      EXPECT_EQ(WatchSheetName, "Sheet1");
    }
  }
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  sheet.onCall = nullptr;
  EXPECT_EQ(Poll(), 1) << "the next poll tries again";
}

TEST_F(SheetWatcherFailureTest, ABusySpreadsheetIsNoClosedOne) {
  Settle();
  SpecTyped = 1;
  SpecTypedText = "=MAX(A2:C3)";
  for (const int number : {-2147418111, 50290}) {
    sheet.faults["GetRunningObject"] = FaultOf(number);
    EXPECT_EQ(Poll(), 0) << "the typed specification is not looked at";
    EXPECT_EQ(LastFormula, kPlain);
    EXPECT_EQ(FormulaArmed, 0);
    EXPECT_EQ(WatchStopped, 0);
  }
  sheet.faults.clear();
  EXPECT_EQ(Poll(), 0) << "the next poll finds what it knows";
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SheetWatcherFailureTest, ABusySpreadsheetDoesNotMakeTheQuestionComeAgain) {
  Settle();
  sheet.books.clear();
  dialogs.answers = {BoxAnswer::cancel};
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(dialogs.boxes.size(), 2U);
  sheet.faults["GetRunningObject"] = FaultOf(50290);
  EXPECT_EQ(Poll(), 0);
  sheet.faults.clear();
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(dialogs.boxes.size(), 2U);
}

TEST_F(SheetWatcherFailureTest, FileFailuresGoOnWithTheNextStatement) {
  Settle();
  for (const int number : {53, 52}) {
    for (const char* operation : {"Name", "ActiveWorkbookName"}) {
      sheet.faults.clear();
      sheet.faults[operation] = FaultOf(number);
      book_->sheetName += "x";
      EXPECT_EQ(Poll(), 1) << number << operation;
    }
  }
  sheet.faults.clear();
  sheet.faults["ActiveCellFormula"] = FaultOf(53);
  EXPECT_EQ(Poll(), 0) << "a cell that was not read is no change";
  EXPECT_EQ(FormulaArmed, 0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SheetWatcherFailureTest, OtherFailuresAreShown) {
  Settle();
  const int releases = sheet.releases;
  sheet.faults["ActiveSheetName"] = {13, "Type mismatch"};
  EXPECT_EQ(Poll(), 0);
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].prompt, "Type mismatch");
  EXPECT_EQ(dialogs.boxes[0].title, "Error");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxStopIcon);
  EXPECT_GT(sheet.releases, releases);
  EXPECT_EQ(FormulaArmed, 0);
  EXPECT_EQ(LastFormula, kPlain);
}

TEST_F(SheetWatcherFailureTest, AFailureThatComesAtEveryPollIsShownOnce) {
  Settle();
  class Polling : public ScriptedDialogs {
   public:
    BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
      EXPECT_EQ(WatchStopped, 1);
      WatchSheet();
      return ScriptedDialogs::MessageBox(prompt, title, style);
    }
  } polling;
  sheet.faults["ActiveSheetName"] = {13, "Type mismatch"};
  for (int poll = 0; poll < 3; ++poll) {
    Poll();
    EXPECT_EQ(WatchStopped, 0);
  }
  EXPECT_EQ(polling.boxes.size(), 1U);
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 3) << "none within the box";
  sheet.faults["ActiveSheetName"] = {5, "Invalid call"};
  Poll();
  EXPECT_EQ(polling.boxes.size(), 2U) << "another one is shown";
  sheet.faults.clear();
  Poll();
  sheet.faults["ActiveSheetName"] = {5, "Invalid call"};
  Poll();
  EXPECT_EQ(polling.boxes.size(), 3U) << "and so is one behind a good poll";
  SetDialogs(&dialogs);
}

// ---- no workbook ------------------------------------------------------------------------------------------

TEST_F(SheetWatcherFailureTest, WithoutAWorkbookTheUserIsAskedOnce) {
  Settle();
  sheet.books.clear();
  int stopped = -1;
  class Asking : public ScriptedDialogs {
   public:
    explicit Asking(int& stoppedThere) : stopped_(stoppedThere) {}
    BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
      if (stopped_ == -1) stopped_ = WatchStopped;
      return ScriptedDialogs::MessageBox(prompt, title, style);
    }

   private:
    int& stopped_;
  } asking(stopped);
  asking.answers = {BoxAnswer::cancel};
  EXPECT_EQ(Poll(), 0);
  ASSERT_EQ(asking.boxes.size(), 2U);
  EXPECT_EQ(asking.boxes[0].prompt,
            "The Excel Worksheet do not answer. Do you want to quit Excel (recommended) ?");
  EXPECT_EQ(asking.boxes[0].title, "Excel Still running in the memory");
  EXPECT_EQ(asking.boxes[0].style, kBoxOkCancel);
  EXPECT_EQ(stopped, 1);
  EXPECT_EQ(asking.boxes[1].prompt,
            "Close Excel or use  the keys \"Control+Alt+Supp\" and in the task window, terminate the process "
            "Excel");
  EXPECT_EQ(asking.boxes[1].title, "Help");
  EXPECT_EQ(asking.boxes[1].style, kBoxStopIcon);
  EXPECT_EQ(WatchStopped, 0);
  EXPECT_EQ(sheet.quits, 0);
  EXPECT_FALSE(sheet.isAttached);
  EXPECT_EQ(Poll(), 0);
  EXPECT_EQ(asking.boxes.size(), 2U) << "not again";
  AddPlotBook(kPlain);
  Poll();
  sheet.books.clear();
  asking.answers = {BoxAnswer::cancel};
  Poll();
  EXPECT_EQ(asking.boxes.size(), 4U) << "for a new loss again";
}

TEST_F(SheetWatcherFailureTest, OnOkTheSpreadsheetIsEndedAndThePlotLoaded) {
  Settle();
  sheet.books.clear();
  dialogs.answers = {BoxAnswer::ok, BoxAnswer::cancel};
  DEJADRAW = DEJARESET = 1;
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(sheet.quits, 1);
  EXPECT_THAT(BoxTitles(), ElementsAre("Excel Still running in the memory", "Excel not running!"));
  EXPECT_EQ(WatchStopped, 0);
  EXPECT_EQ(DEJADRAW + DEJARESET, 0);
  EXPECT_EQ(LastPoint, 2) << "from the file of the load before";
}

TEST_F(SheetWatcherFailureTest, AHiddenSpreadsheetWithoutAWorkbookIsShown) {
  Settle();
  sheet.books.clear();
  sheet.isVisible = false;
  EXPECT_EQ(Poll(), 0);
  EXPECT_TRUE(sheet.isVisible);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(WatchStopped, 0);
  EXPECT_FALSE(sheet.isAttached);
}

TEST_F(SheetWatcherFailureTest, NobodyIsAskedToQuitAnApplicationThatHasAWorkbook) {
  Settle();
  dialogs.otherwise = BoxAnswer::ok;
  for (const char* operation : {"ActiveWorkbook", "WorkbookWindowsCount", "WorkbookWindowCaption",
                                "ActiveSheetName", "ActiveCellFormula"}) {
    sheet.faults.clear();
    sheet.faults[operation] = FaultOf(kFaultNoObject);
    for (int poll = 0; poll < 3; ++poll)
      EXPECT_EQ(Poll(), 0) << operation;
    EXPECT_FALSE(sheet.isAttached);
    EXPECT_EQ(WatchStopped, 0);
  }
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(sheet.quits, 0);
}

TEST_F(SheetWatcherFailureTest, AWorkbookThatCannotBeReadIsNoEndOfALoss) {
  Settle();
  const std::list<MemoryBook> books = sheet.books;
  sheet.books.clear();
  dialogs.otherwise = BoxAnswer::cancel;
  Poll();
  EXPECT_EQ(dialogs.boxes.size(), 2U);
  sheet.books = books;
  sheet.faults["ActiveCellFormula"] = FaultOf(kFaultNoObject);
  Poll();
  sheet.books.clear();
  Poll();
  EXPECT_EQ(dialogs.boxes.size(), 2U);
}

TEST_F(SheetWatcherFailureTest, NoPollRunsInsideALoad) {
  Settle();
  book_->sheetName = "Sheet2";
  dialogs.onPump = [] { WatchSheet(); };
  window.onPause = [] {
    USERFLAG.UpdateAsked = 1.0;
    WatchSheet();
  };
  EXPECT_EQ(Poll(), 1);
  EXPECT_EQ(LastFormula, kPlain);
}

}  // namespace
}  // namespace quorb
