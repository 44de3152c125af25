#include "AutomationCalls.h"

#include <algorithm>

#include "HostEvents.h"
#include "MemorySpreadsheet.h"
#include "SheetSession.h"
#include "SheetWatcher.h"
#include "TextHelpers.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

using testing::HasSubstr;

/// Runs something while a box is up.
class BoxOfTest : public ScriptedDialogs {
 public:
  std::function<void()> whileUp;
  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
    const BoxAnswer answer = ScriptedDialogs::MessageBox(prompt, title, style);
    if (whileUp) whileUp();
    return answer;
  }
};

/// Bodies that do something in the middle of a frame.
class AskingBodies : public SceneBodies {
 public:
  explicit AskingBodies(std::function<void()> act) : act_(std::move(act)) {}
  void Start() override { act_(); }
  void DrawSunRay() override {}
  void DrawSatellite() override {}
  void SunAndLight() override {}
  void DrawCentralBody() override {}
  void DrawMoon() override {}
  void AddToKey(std::vector<double>& /*numbers*/) const override {}

 private:
  std::function<void()> act_;
};

/// The window on a file of four points at the scale 0.01, the third behind a lifted pen, all of it drawn.
class AutomationCallsTest : public WindowFixture {
 protected:
  AutomationCallsTest() {
    files.contents["/data/orbit.qbv"] =
        "From: \tBook\tSheet\t=0.01+LEN(\"Test km\")+MAX(A2:C5)+MAX(D2:D5)\t0.0100000000\tTest km\tDate "
        "\tmark\t\r\n"
        "1000\t0\t0\t0\r\n"
        "0\t2000\t0\t86400\r\n"
        "\t3000\t0\t172800\r\n"
        "4000\t0\t0\t259200\r\n";
  }

  void Start() {
    Load("/data/orbit.qbv");
    events.Initialise();
    events.ContextReady();
    events.Resize(640, 480);
    Form_Activate();
  }
  void StartAndShow() {
    Start();
    Settle();
    ASSERT_EQ(TheScene->CURRINDEXI, 3);
    ASSERT_EQ(FactorScale, 0.02);
  }

  /// Frames and ticks until no frame is due; how many frames there were.
  int Settle() {
    int frames = 0;
    for (; frames < 20 && TheScene->FrameIsDue(); ++frames) {
      events.Draw();
      for (int tick = 0; tick < 5; ++tick)
        TheScene->TheUpdateTimer_ThatTime();
    }
    return frames;
  }

  static std::string Rows(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
      text += "1\t2\t3\r\n";
    return text;
  }
  static std::vector<double> Point(int row) { return {dataXYZT[row][1], dataXYZT[row][2], dataXYZT[row][3]}; }
  static std::vector<float> Eye() {
    std::vector<float> eye(3);
    glxCtl1->Camera().GetPosition(eye[0], eye[1], eye[2]);
    return eye;
  }
  static long Redraws() { return std::count(RecordedCalls().begin(), RecordedCalls().end(), "Redraw()"); }

  static void PressPenUp() {
    auto& bar = frmMain->ToolBoptions;
    for (int position = 1; position <= bar.Positions(); ++position) {
      if (LowerText(bar.Button(position).key) == "optpenup") bar.buttonClicked(bar.Button(position));
    }
  }

  void ExpectRefused() {
    const std::string title = MessageUserToPlot;
    const std::vector<double> before = Point(0);
    const int due = DEJADRAW;
    EXPECT_TRUE(calls.Busy());
    EXPECT_EQ(calls.InterFaceXls("a", "Other", 1).number, kFaultBusy);
    EXPECT_EQ(calls.GlrayonXls("a", Rows(1), 1).number, kFaultBusy);
    EXPECT_EQ(calls.GlrayonXls("a", Rows(1), 0).number, kFaultBusy);
    EXPECT_EQ(calls.GlrayonXlsT("a", "5\r\n", 1).number, kFaultBusy);
    EXPECT_EQ(calls.GlEventsXls("a", "5\tS\r\n", 1).number, kFaultBusy);
    EXPECT_EQ(MessageUserToPlot, title);
    EXPECT_EQ(Point(0), before);
    EXPECT_EQ(DEJADRAW, due);
  }

  static void LoadFromSheet() {
    CommandFileMode = 0;
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
  }

  /// The farther one, at 40 from the origin, comes to 80.
  void ExpectTwoPointsAreShown() {
    ASSERT_TRUE(calls.GlrayonXls("a", "10\t0\t0\r\n0\t20\t0\r\n", 2).Good());
    Settle();
    EXPECT_EQ(LastPoint, 1);
    EXPECT_THAT(Point(0), ElementsAre(40, 0, 0));
    EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
    EXPECT_EQ(FactorScale, 4);
    EXPECT_EQ(DEJADRAW, 1);
    EXPECT_EQ(TheScene->CURRINDEXI, 1);
  }

  HostEvents& events = HostEventsOfWindow();
  AutomationCalls calls;
};

constexpr const char* kTwoPoints = "10\t0\t0\r\n0\t20\t0\r\n";

// ---- which calls are refused ------------------------------------------------------------------------------

TEST_F(AutomationCallsTest, CallsBeforeTheFirstLoadAreRefused) {
  Load("/data/orbit.qbv");
  ExpectRefused();
  Form_Activate();
  EXPECT_TRUE(calls.InterFaceXls("a", "Other", 1).Good());
  EXPECT_EQ(MessageUserToPlot, "Other");
  EXPECT_EQ(FlagOptionToPlot, 1);
}

TEST_F(AutomationCallsTest, CallsWhileTheSpreadsheetIsInUseAreRefused) {
  StartAndShow();
  SetSpreadsheetInUse(true);
  ExpectRefused();
  SetSpreadsheetInUse(false);
  EXPECT_FALSE(calls.Busy());
}

TEST_F(AutomationCallsTest, CallsFromWithinALoadAreRefusedAndStageNothing) {
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

TEST_F(AutomationCallsTest, CallsFromWithinAFrameAreRefused) {
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

TEST_F(AutomationCallsTest, ALoadThatWasLeftEarlyKeepsNobodyOut) {
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

TEST_F(AutomationCallsTest, TimesAndEventsBehindALoadThatWasLeftEarlyScaleNothing) {
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

TEST_F(AutomationCallsTest, FactorySettingsKeepNobodyOut) {
  StartAndShow();
  Command3_Click();
  ASSERT_EQ(USERFLAG.SynchroExcelComplete, 0.0);
  EXPECT_FALSE(calls.Busy());
  ExpectTwoPointsAreShown();
}

TEST_F(AutomationCallsTest, PointsEndTheWaitForASpecification) {
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

TEST_F(AutomationCallsTest, AWaitThatPointsHaveEndedDoesNotComeBackWhileTheSheetIsWatched) {
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

TEST_F(AutomationCallsTest, ALoadWithinTheWaitOfAnotherRefusesCalls) {
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

TEST_F(AutomationCallsTest, CallsWhileTheMessageOfAnotherIsUpAreRefused) {
  StartAndShow();
  BoxOfTest box;
  box.whileUp = [&] { ExpectRefused(); };
  ASSERT_TRUE(calls.GlrayonXls("b", kTwoPoints + std::string(65000, ' '), 1).Good());
  ASSERT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(box.boxes[0].prompt, "Overflow");
  EXPECT_FALSE(calls.Busy());
  EXPECT_EQ(LastPoint, 1);
}

TEST_F(AutomationCallsTest, AClientThatGoesWhileItsMessageIsUpIsReadToTheEnd) {
  StartAndShow();
  BoxOfTest box;
  box.whileUp = [&] { calls.Forget("b"); };
  ASSERT_TRUE(calls.GlrayonXls("b", kTwoPoints + std::string(65000, ' '), 1).Good());
  ASSERT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(calls.Clients(), 0U);
}

TEST_F(AutomationCallsTest, EachClientCountsItsOwnRowsUntilItGoes) {
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

// ---- what is shown anew -----------------------------------------------------------------------------------

TEST_F(AutomationCallsTest, StoredPointsAreScaledIntoTheViewOnce) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  EXPECT_THAT(Point(1), ElementsAre(0, 40, 0));
  EXPECT_EQ(FactorScale, 2);
  EXPECT_EQ(Settle(), 2);
  // The farthest point, at 40, comes to 80.
  EXPECT_THAT(Point(0), ElementsAre(40, 0, 0));
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
}

TEST_F(AutomationCallsTest, ANegativeFactorTurnsThePlotRound) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, -2).Good());
  EXPECT_THAT(Point(1), ElementsAre(0, -40, 0));
  Settle();
  EXPECT_THAT(Point(0), ElementsAre(-40, 0, 0));
  EXPECT_THAT(Point(1), ElementsAre(0, -80, 0));
  EXPECT_EQ(FactorScale, -4);
}

TEST_F(AutomationCallsTest, OnePointWithOneEventIsAPlot) {
  StartAndShow();
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n", 1).Good());
  ASSERT_TRUE(calls.GlrayonXls("a", "0\t20\t0\r\n", 2).Good());
  ASSERT_EQ(LastPoint + NbEvents, 0);
  EXPECT_EQ(TheScene->CURRINDEXI, 0) << "before any frame: behind the last point stands another plot";
  EXPECT_LE(TheScene->CycleIndex, 0);
  EXPECT_EQ(Settle(), 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
  EXPECT_EQ(DEJADRAW, 1);
}

TEST_F(AutomationCallsTest, TheCameraAndTheTimeStay) {
  StartAndShow();
  glxCtl1->Camera().SetPosition(5, 6, 7);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(9), 1).Good());
  ASSERT_TRUE(TheScene->FrameIsDue());
  events.Draw();
  EXPECT_THAT(Eye(), ElementsAre(5, 6, 7));
  EXPECT_EQ(TheScene->CURRINDEXI, 3) << "what was shown is shown; the time goes on from there";
  Settle();
  EXPECT_EQ(TheScene->CURRINDEXI, 8);
}

TEST_F(AutomationCallsTest, PointsBeforeTheFirstFrameOfALoadGetItsView) {
  StartAndShow();
  DEJADRAW = DEJARESET = 0;
  LoadPlot();
  glxCtl1->Camera().SetPosition(5, 6, 7);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  EXPECT_THAT(Eye(), ElementsAre(0, 0, 480));
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
}

TEST_F(AutomationCallsTest, ALoadBehindPointsThatWereNotDrawnYetGetsItsOwnView) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  DEJADRAW = DEJARESET = 0;
  LoadPlot();
  glxCtl1->Camera().SetPosition(5, 6, 7);
  events.Draw();
  EXPECT_THAT(Eye(), ElementsAre(0, 0, 480));
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
}

TEST_F(AutomationCallsTest, StagedRowsChangeNothingOnShow) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0).Good());
  EXPECT_FALSE(TheScene->FrameIsDue());
  EXPECT_EQ(calls.GlrayonXls("a", Rows(65), 1).number, kFaultOutOfBounds);
  ASSERT_TRUE(calls.GlrayonXls("b", "1\t2\t3", 1).Good()) << "no row ends";
  EXPECT_FALSE(TheScene->FrameIsDue());
  EXPECT_EQ(DEJARESET, 1);
  EXPECT_EQ(LastPoint, 3);
}

TEST_F(AutomationCallsTest, TheSamePointsAgainAreDrawnAgain) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  ASSERT_TRUE(calls.GlrayonXls("a", "0\t0\t10\r\n0\t20\t0\r\n", 2).Good());
  EXPECT_EQ(Settle(), 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 0, 40));
}

TEST_F(AutomationCallsTest, TimesAreShownAndScaleNothing) {
  StartAndShow();
  USERFLAG.TimeInData = 0;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  ASSERT_TRUE(calls.GlrayonXlsT("a", "7.5\r\n8.5\r\n", 3).Good());
  EXPECT_EQ(Settle(), 2);
  EXPECT_EQ(dataXYZT[1][0], 8.5);
  EXPECT_EQ(USERFLAG.TimeInData, 1);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(FactorScale, 4);
}

TEST_F(AutomationCallsTest, EventsAreShownAndScaleNothing) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  Settle();
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE\r\n3\tS\r\n", 1).Good());
  EXPECT_EQ(Settle(), 2);
  EXPECT_EQ(NbEvents, 2);
  EXPECT_EQ(FactorScale, 4);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
  EXPECT_EQ(TheScene->EventsSingleValued, 0) << "a start and an end";
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tS\r\n3\tS\r\n", 1).Good());
  EXPECT_EQ(Settle(), 2) << "as many events as before";
  EXPECT_EQ(TheScene->EventsSingleValued, 1);
}

TEST_F(AutomationCallsTest, EventsBeforeTheFrameLeaveThePointsTheirScale) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE\r\n", 1).Good());
  Settle();
  EXPECT_EQ(FactorScale, 4) << "the plot does not hang on when a frame was drawn";
}

TEST_F(AutomationCallsTest, EventsWhoseMessageLetsAFramePassLeaveItsScale) {
  StartAndShow();
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  BoxOfTest box;
  box.whileUp = [&] { events.Draw(); };
  ASSERT_TRUE(calls.GlEventsXls("a", "1\tS\r\n2\tE" + std::string(65000, ' ') + "\r\n", 1).Good());
  ASSERT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(NbEvents, 1);
  Settle();
  EXPECT_EQ(FactorScale, 4);
  EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
}

TEST_F(AutomationCallsTest, APlotOfOneColumnEnds) {
  StartAndShow();
  ColumnMode = 1;
  USERFLAG.NoPlotEarth = 1.0;  // whatever the panel says
  ASSERT_EQ(frmMain->Check1[0].value, 0);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0.5).Good());
  EXPECT_EQ(ColumnMode, 0);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 0);
}

TEST_F(AutomationCallsTest, PushedPointsAreOneLine) {
  StartAndShow();
  ASSERT_EQ(dataXYZT[2][4], -1);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(4), 1).Good());
  EXPECT_EQ(dataXYZT[2][4], 0);
}

TEST_F(AutomationCallsTest, TheSheetIsNotWatchedWhileAMessageIsUp) {
  StartAndShow();
  BoxOfTest box;
  box.whileUp = [] { EXPECT_EQ(WatchStopped, 1); };
  ASSERT_TRUE(calls.GlrayonXls("a", std::string(65001, ' '), 0).Good());
  EXPECT_EQ(box.boxes.size(), 1U);
  EXPECT_EQ(WatchStopped, 0);
}

TEST_F(AutomationCallsTest, WhatTheUserMadeSeparateStaysSo) {
  StartAndShow();
  const double thickness = USERFLAG.ThicknessLinePlot;
  PressPenUp();
  ASSERT_EQ(PenUpMode, 1);
  NbQuater = 4;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0.5).Good());
  EXPECT_EQ(PenUpMode, 1);
  EXPECT_EQ(NbQuater, 4) << "they are attitudes";
  PressPenUp();
  EXPECT_EQ(PenUpMode, 0);
  EXPECT_DOUBLE_EQ(USERFLAG.ThicknessLinePlot, thickness);
}

TEST_F(AutomationCallsTest, APlotOfSeparateObjectsEnds) {
  std::string& plot = files.contents["/data/orbit.qbv"];
  plot.replace(plot.find("Test km"), 7, "Test penup");
  Start();
  Settle();
  ASSERT_EQ(PenUpMode, 1);
  PenUpLabelMode = 1;
  NbQuater = 4;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  EXPECT_EQ(PenUpMode, 0);
  EXPECT_EQ(PenUpLabelMode, 0);
  EXPECT_EQ(NbQuater, 0);
  NbQuater = 4;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  EXPECT_EQ(NbQuater, 4) << "the attitude of a line stays";
}

TEST_F(AutomationCallsTest, TheScaleTellsWhetherTheEarthIsShown) {
  StartAndShow();
  ASSERT_EQ(ISOmode, 1);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  EXPECT_EQ(ISOmode, 0);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 1);
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 0.5).Good());
  EXPECT_EQ(ISOmode, 1);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 0);
}

TEST_F(AutomationCallsTest, TheFirstRowStaysAtItsShareOfThePlot) {
  StartAndShow();
  frmMain->HScroll4.value = 667;
  ASSERT_EQ(TheScene->CURRINDEXMINI, 2);
  ASSERT_TRUE(calls.GlrayonXls("a", Rows(10), 1).Good());
  EXPECT_EQ(TheScene->CURRINDEXMINI, 6);
}

TEST_F(AutomationCallsTest, AHeldRowBehindTheLastPointGoesToIt) {
  StartAndShow();
  RedrawState = 1;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 1).Good());
  events.Draw();
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
}

TEST_F(AutomationCallsTest, FramesAreAskedForByTheAnimationAlone) {
  StartAndShow();
  host.animation.enabled = true;
  ClearCalls();
  for (int i = 0; i < 100; ++i)
    ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  EXPECT_EQ(Redraws(), 0);
  EXPECT_TRUE(TheScene->FrameIsDue());
  host.animation.enabled = false;
  ASSERT_TRUE(calls.GlrayonXls("a", kTwoPoints, 2).Good());
  EXPECT_EQ(Redraws(), 1) << "nothing else would";
  ASSERT_TRUE(calls.InterFaceXls("a", "Other title", 1).Good());
  EXPECT_EQ(Redraws(), 2);
}

// ---- what a client reads ----------------------------------------------------------------------------------

TEST_F(AutomationCallsTest, ThePlotOnShowIsTold) {
  StartAndShow();
  ASSERT_TRUE(calls.InterFaceXls("a", "Flight", 1).Good());
  const PlotOnShow plot = PresentPlot();
  EXPECT_EQ(plot.title, "Flight");
  EXPECT_EQ(plot.lastPoint, 3);
  EXPECT_EQ(plot.nbEvents, 1);
  EXPECT_EQ(plot.flagOptionToPlot, 1);
  EXPECT_EQ(plot.factorScale, 0.02);
}

}  // namespace
}  // namespace quorb
