#include "AutomationFixture.h"
#include "MemorySpreadsheet.h"
#include "SheetSession.h"
#include "SheetWatcher.h"

namespace quorb {
namespace {

using AutomationBusyTest = AutomationFixture;

TEST_F(AutomationBusyTest, CallsBeforeTheFirstLoadAreRefused) {
  Load("/data/orbit.qbv");
  ExpectRefused();
  Form_Activate();
  EXPECT_TRUE(calls.InterFaceXls("a", "Other", 1).Good());
  EXPECT_EQ(MessageUserToPlot, "Other");
  EXPECT_EQ(FlagOptionToPlot, 1);
}

TEST_F(AutomationBusyTest, CallsWhileTheSpreadsheetIsInUseAreRefused) {
  StartAndShow();
  SetSpreadsheetInUse(true);
  ExpectRefused();
  SetSpreadsheetInUse(false);
  EXPECT_FALSE(calls.Busy());
}

TEST_F(AutomationBusyTest, CallsFromWithinALoadAreRefusedAndStageNothing) {
  Load("/data/orbit.qbv");
  bool asked = false;
  dialogs.onPump = [&] {
    asked = true;
    ExpectRefused();
  };
  Form_Activate();
  dialogs.onPump = nullptr;
  EXPECT_TRUE(asked);
  EXPECT_EQ(LastLoad().rows, 4);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(1), 1).Good());
  EXPECT_EQ(LastPoint, 0);
}

TEST_F(AutomationBusyTest, CallsFromWithinAFrameAreRefused) {
  StartAndShow();
  int asked = 0;
  TheScene->BodiesShown = std::make_unique<AskingBodies>([&] {
    ++asked;
    ExpectRefused();
  });
  events.Draw();
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(calls.Busy());
  TheScene->BodiesShown.reset();
}

TEST_F(AutomationBusyTest, ALoadThatWasLeftEarlyKeepsNobodyOut) {
  StartAndShow();
  MemorySpreadsheet sheet;
  sheet.AddBook("Book1.xlsx").SetFormula(1, 1, "=MAX(A2:B4)", 31);
  LoadFromSheet();
  ASSERT_EQ(LoadBusy, 1) << "the range is too narrow";
  ASSERT_EQ(USERFLAG.SynchroExcelComplete, 0.0);
  EXPECT_FALSE(calls.Busy());
  ExpectTwoPointsAreShown();
  EXPECT_EQ(LoadBusy, 1) << "the watcher keeps still as before";
}

TEST_F(AutomationBusyTest, TimesAndEventsBehindALoadThatWasLeftEarlyScaleNothing) {
  StartAndShow();
  MemorySpreadsheet sheet;
  sheet.AddBook("Book1.xlsx").SetFormula(1, 1, "=MAX(A2:B4)", 31);
  for (const bool pushesTimes : {true, false}) {
    LoadFromSheet();
    ASSERT_EQ(DEJARESET, 0);
    if (pushesTimes) {
      ASSERT_TRUE(calls.GlrayonXlsT("a", "1\r\n2\r\n3\r\n4\r\n", 1).Good());
    } else {
      ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE\r\n", 1).Good());
    }
    EXPECT_EQ(DEJARESET, 1) << "the points in place are scaled already";
    Settle();
    EXPECT_THAT(Point(0), ElementsAre(20, 0, 0));
    EXPECT_EQ(FactorScale, 0.02);
  }
}

TEST_F(AutomationBusyTest, FactorySettingsKeepNobodyOut) {
  StartAndShow();
  Command3_Click();
  ASSERT_EQ(USERFLAG.SynchroExcelComplete, 0.0);
  EXPECT_FALSE(calls.Busy());
  ExpectTwoPointsAreShown();
}

TEST_F(AutomationBusyTest, PointsEndTheWaitForASpecification) {
  Load("");
  events.Initialise();
  events.ContextReady();
  events.Resize(640, 480);
  MemorySpreadsheet sheet;
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  int waits = 0;
  dialogs.pumpLimit = 1000;
  dialogs.onPump = [&] {
    if (!frmMain->Command6.visible || SpreadsheetInUse() || LoadBusy == 0) return;
    EXPECT_FALSE(calls.Busy());
    if (++waits == 1) {
      EXPECT_TRUE(calls.InterFaceXls("a", "Pushed", 0).Good());
      EXPECT_TRUE(calls.GlrayonXls("a", "10\t0\t0\r\n", 0).Good()) << "staged: the wait goes on";
      EXPECT_EQ(LoadBusy, 1);
    } else {
      EXPECT_TRUE(calls.GlrayonXls("a", "0\t20\t0\r\n", 2).Good());
      EXPECT_EQ(LoadBusy, 0);
    }
  };
  Form_Activate();
  EXPECT_EQ(waits, 2);
  EXPECT_EQ(LoadsStarted, 2) << "the load that waited sees that it is outdated";
  EXPECT_FALSE(frmMain->Command6.visible);
  EXPECT_FALSE(frmMain->TextTempo.visible);
  EXPECT_FALSE(frmMain->ProgressBar1.visible);
  EXPECT_FALSE(calls.Busy());
  EXPECT_EQ(MessageUserToPlot, "Pushed");
  Settle();
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
}

TEST_F(AutomationBusyTest, AWaitThatPointsHaveEndedDoesNotComeBackWhileTheSheetIsWatched) {
  Load("");
  events.Initialise();
  events.ContextReady();
  events.Resize(640, 480);
  MemorySpreadsheet sheet;
  sheet.AddBook("Plot.xlsx").SetFormula(1, 1, "=MAX(A2:C4)", 31);
  Form_Activate();
  frmMain->Check1[7].value = 1;
  ASSERT_EQ(USERFLAG.InteractiveExcel, 1.0);
  for (int poll = 0; poll < 3; ++poll)
    WatchSheet();
  sheet.AddBook("Empty.xlsx").SetNumber(1, 1, 5);
  int waits = 0;
  dialogs.pumpLimit = 1000;
  dialogs.onPump = [&] {
    if (!frmMain->Command6.visible || SpreadsheetInUse() || LoadBusy == 0) return;
    ++waits;
    EXPECT_TRUE(calls.InterFaceXls("a", "Pushed", 1).Good());
    EXPECT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  };
  WatchSheet();
  ASSERT_EQ(waits, 1);
  Settle();
  const int loads = LoadsStarted;
  for (int poll = 0; poll < 200; ++poll)
    WatchSheet();
  EXPECT_EQ(waits, 1);
  EXPECT_EQ(LoadsStarted, loads);
  EXPECT_EQ(MessageUserToPlot, "Pushed");
  EXPECT_EQ(FlagOptionToPlot, 1);
  EXPECT_EQ(DEJADRAW, 1);
  EXPECT_EQ(LastPoint, 1);
  dialogs.onPump = nullptr;
  for (const char* const formula : {"=MAX(A2:C4)", "=MAX(A2:C5)"}) {
    sheet.books.front().SetFormula(1, 1, formula, 31);
    WatchSheet();
  }
  EXPECT_EQ(LoadsStarted, loads + 1) << "the second change of the cell loads, as ever";
}

TEST_F(AutomationBusyTest, ALoadWithinTheWaitOfAnotherRefusesCalls) {
  Load("");
  MemorySpreadsheet sheet;
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  int asked = 0;
  dialogs.pumpLimit = 1000;
  dialogs.onPump = [&] {
    if (LoadsStarted == 2 && LoadBusy == 1) {
      ++asked;
      ExpectRefused();
    } else if (LoadsStarted == 1 && frmMain->Command6.visible && !SpreadsheetInUse()) {
      CommandFileName = "/data/orbit.qbv";
      CommandFileMode = 1;
      DEJADRAW = DEJARESET = FileMode = 0;
      LoadPlot();
    }
  };
  Form_Activate();
  EXPECT_GE(asked, 1);
  EXPECT_EQ(LoadsStarted, 2);
  EXPECT_EQ(LastPoint, 3);
  EXPECT_FALSE(calls.Busy());
}

TEST_F(AutomationBusyTest, CallsWhileTheMessageOfAnotherIsUpAreRefused) {
  StartAndShow();
  BoxOfTest box;
  box.whileUp = [&] { ExpectRefused(); };
  ASSERT_TRUE(calls.GlrayonXls("b", kTwoPoints + std::string(65000, ' '), 1).Good());
  ASSERT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(box.boxes[0].prompt, "Overflow");
  EXPECT_FALSE(calls.Busy());
  EXPECT_EQ(LastPoint, 1);
}

TEST_F(AutomationBusyTest, AClientThatGoesWhileItsMessageIsUpIsReadToTheEnd) {
  StartAndShow();
  BoxOfTest box;
  box.whileUp = [&] { calls.Forget("b"); };
  ASSERT_TRUE(calls.GlrayonXls("b", kTwoPoints + std::string(65000, ' '), 1).Good());
  ASSERT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(calls.Clients(), 0U);
}

TEST_F(AutomationBusyTest, EachClientCountsItsOwnRowsUntilItGoes) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(60), 0).Good());
  EXPECT_EQ(calls.GlrayonXls("a", Rows(5), 1).number, kFaultOutOfBounds);
  EXPECT_TRUE(calls.GlrayonXls("b", Rows(5), 0).Good());
  EXPECT_EQ(calls.Clients(), 2U);
  calls.Forget("a");
  EXPECT_EQ(calls.Clients(), 1U);
  EXPECT_TRUE(calls.GlrayonXls("a", Rows(5), 1).Good());
  EXPECT_EQ(LastPoint, 4);
}

}  // namespace
}  // namespace quorb
