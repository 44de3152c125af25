#include "ScenePlot.h"

namespace quorb {
namespace {

class ClockTest : public ScenePlot {
 protected:
  void Tick(int times) {
    for (int tick = 0; tick < times; ++tick)
      scene.TheUpdateTimer_ThatTime();
  }
};

TEST_F(ClockTest, EachChangeOfTheIntervalReachesThePlatformInsideTheCall) {
  UpdateTimer timer;
  EXPECT_EQ(timer.Interval(), 0);
  timer.SetInterval(4);
  EXPECT_EQ(timer.Interval(), 4) << "with nobody to tell";

  std::vector<int> told;
  timer.changed = [&](int milliseconds) {
    EXPECT_EQ(timer.Interval(), milliseconds);
    told.push_back(milliseconds);
  };
  timer.SetInterval(1);
  EXPECT_THAT(told, ElementsAre(1));
  timer.SetInterval(1);
  EXPECT_THAT(told, ElementsAre(1)) << "the same again is no change";
  timer.SetInterval(0);
  timer.SetInterval(1);
  EXPECT_THAT(told, ElementsAre(1, 0, 1));
}

TEST_F(ClockTest, OneTickInFivePasses) {
  LastPoint = 1000;
  STEPPT = 10;
  Tick(4);
  EXPECT_EQ(scene.CURRINDEXI, 0);
  Tick(1);
  EXPECT_EQ(scene.CURRINDEXI, 10);
  Tick(4);
  EXPECT_EQ(scene.CURRINDEXI, 10);
  Tick(1);
  EXPECT_EQ(scene.CURRINDEXI, 20);
  EXPECT_EQ(RedrawState, 0);
  Tick(500);
  EXPECT_EQ(scene.CURRINDEXI, 1000) << "a hundred passes more";
}

TEST_F(ClockTest, StepOfZeroIsReadAsAHundred) {
  LastPoint = 1000;
  Tick(5);
  EXPECT_EQ(STEPPT, 100);
  EXPECT_EQ(scene.CURRINDEXI, 100);
}

TEST_F(ClockTest, StepLargerThanLastPointJumpsToTheLastRowInOnePassedTick) {
  LastPoint = 7;
  STEPPT = 65536;
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 7);
}

TEST_F(ClockTest, TheLastRowIsReachedExactlyAndHeld) {
  LastPoint = 25;
  STEPPT = 10;
  Tick(10);
  EXPECT_EQ(scene.CURRINDEXI, 20);
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 25);
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 25);
  EXPECT_EQ(RedrawState, 0) << "the run state stays";
}

TEST_F(ClockTest, FractionalStepsAreRoundedHalvesToEven) {
  LastPoint = 1000;
  STEPPT = 2.5;
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 2);
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 4);
}

TEST_F(ClockTest, CycleIndexWrapsAtLastPoint) {
  LastPoint = 3;
  Tick(10);
  EXPECT_EQ(scene.CycleIndex, 2);
  Tick(5);
  EXPECT_EQ(scene.CycleIndex, 0);
}

TEST_F(ClockTest, LastPointZeroLeavesCycleIndexAsItIs) {
  scene.CycleIndex = 5;
  Tick(5);
  EXPECT_EQ(scene.CycleIndex, 5);
  EXPECT_EQ(scene.CURRINDEXI, 0);
}

TEST_F(ClockTest, HeldTimeDoesNotMove) {
  LastPoint = 1000;
  RedrawState = 1;
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 0);
  EXPECT_EQ(RedrawState, 1);
  EXPECT_EQ(STEPPT, 100) << "the step is read all the same";
}

TEST_F(ClockTest, AskedChangeOfStartIsHeldByTheNextPassedTick) {
  LastPoint = 1000;
  for (const double asked : {2.0, 3.0}) {
    RedrawState = asked;
    Tick(4);
    EXPECT_EQ(RedrawState, asked);
    Tick(1);
    EXPECT_EQ(RedrawState, 1);
  }
  EXPECT_EQ(scene.CURRINDEXI, 0);
}

class WatcherTest : public ClockTest {
 protected:
  WatcherTest() {
    LastPoint = 1000000;
    STEPPT = 1;
    USERFLAG.InteractiveExcel = 1.0;
    scene.WatchSheet = [this] { watchedAt.push_back(tick); };
  }

  /// Ticks of which each has its number, from 1 on.
  void CountedTicks(int times) {
    for (int last = tick + times; tick < last;) {
      ++tick;
      Tick(1);
    }
  }

  int tick = 0;
  std::vector<int> watchedAt;
};

TEST_F(WatcherTest, TheSheetIsLookedAtEveryHundredthTick) {
  CountedTicks(400);
  EXPECT_THAT(watchedAt, ElementsAre(5, 105, 205, 305));
}

TEST_F(WatcherTest, HeldTimeLooksAtTheSheetToo) {
  RedrawState = 1;
  CountedTicks(100);
  EXPECT_THAT(watchedAt, ElementsAre(5));
}

TEST_F(WatcherTest, WithoutInteractiveNobodyLooks) {
  for (const double interactive : {0.0, 2.0}) {
    USERFLAG.InteractiveExcel = interactive;
    CountedTicks(200);
    EXPECT_THAT(watchedAt, IsEmpty());
  }
}

TEST_F(WatcherTest, ALoadKeepsTheWatcherOffWhileTheTimeRunsOn) {
  LoadBusy = 1;
  CountedTicks(200);
  EXPECT_THAT(watchedAt, IsEmpty());
  EXPECT_EQ(scene.CURRINDEXI, 40);
  LoadBusy = 0;
  CountedTicks(100);
  EXPECT_THAT(watchedAt, ElementsAre(205)) << "the count went on";
}

TEST_F(WatcherTest, AnOpenQuestionStopsTheTickBehindItsCounters) {
  USERFLAG.MovieFrameCount = 1;
  USERFLAG.MovieFrames = 20;
  USERFLAG.MovieRealTime = 1;
  RedrawState = 2;
  WatchStopped = 1;
  CountedTicks(5);
  EXPECT_EQ(RedrawState, 1);
  RedrawState = 0;
  CountedTicks(195);
  EXPECT_THAT(watchedAt, IsEmpty());
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1) << "no frame of the movie either";
  EXPECT_EQ(scene.CURRINDEXI, 39);
}

TEST_F(WatcherTest, AnAskedUpdateStopsTheCountersToo) {
  USERFLAG.UpdateAsked = 1.0;
  CountedTicks(50);
  USERFLAG.UpdateAsked = 0;
  CountedTicks(10);
  EXPECT_THAT(watchedAt, ElementsAre(55));
}

TEST_F(ClockTest, WithoutAWatcherTheTickPassesAllTheSame) {
  LastPoint = 1000;
  USERFLAG.InteractiveExcel = 1.0;
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 100);
}

TEST_F(ClockTest, OnlyPassedTicksSaveTheMovie) {
  USERFLAG.MovieFrameCount = 1;
  USERFLAG.MovieFrames = 20;
  USERFLAG.MovieRealTime = 1;  // the data stand at the time 0, so that each call saves
  Tick(4);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 1);
  Tick(1);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 2);
  Tick(4);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 2);
  Tick(1);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 3);
}

TEST_F(ClockTest, WithoutAMovieNoTickSavesAFrame) {
  USERFLAG.MovieFrames = 20;
  USERFLAG.MovieRealTime = 1;
  USERFLAG.MovieNextTime = 7;
  Tick(50);
  EXPECT_EQ(USERFLAG.MovieFrameCount, 0);
  EXPECT_EQ(USERFLAG.MovieNextTime, 7);
}

TEST_F(ClockTest, AskedUpdateStopsTheTicksUntilThePlotIsDigested) {
  LastPoint = 1000;
  USERFLAG.UpdateAsked = 1.0;
  Tick(50);
  EXPECT_EQ(scene.CURRINDEXI, 0);
  DEJARESET = 1;
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 100);
}

TEST_F(ClockTest, NegativeRowMovesUpToo) {
  LastPoint = 1000;
  scene.CURRINDEXI = -30;
  Tick(5);
  EXPECT_EQ(scene.CURRINDEXI, 70);
}

TEST_F(ClockTest, ChangeCurrIndexISetsTheRowAndLetsTheTimeRun) {
  scene.CURRINDEXI = 40;
  RedrawState = 1;
  double old = -1;
  scene.ChangeCURRINDEXI(12.5, old);
  EXPECT_EQ(scene.CURRINDEXI, 12);
  EXPECT_EQ(RedrawState, 0);
  EXPECT_EQ(old, 0);
}

TEST_F(ClockTest, ChangeCurrIndexIWithTheSameValueFreezesTheRun) {
  scene.CURRINDEXI = 40;
  double old = 60;
  scene.ChangeCURRINDEXI(60, old);
  EXPECT_EQ(RedrawState, 1);
  EXPECT_EQ(old, 40);
  EXPECT_EQ(scene.CURRINDEXI, 60);
}

TEST_F(ClockTest, ChangeCurrIndexIWithOneVariableHoldsThePresentRowAndReadsIt) {
  scene.CURRINDEXI = 40;
  double index = -1;
  scene.ChangeCURRINDEXI(index, index);
  EXPECT_EQ(RedrawState, 1);
  EXPECT_EQ(index, 40);
  EXPECT_EQ(scene.CURRINDEXI, 40);
}

TEST_F(ClockTest, ChangeCurrIndexIOutsideWholeNumbersKeepsTheRow) {
  scene.CURRINDEXI = 40;
  double old = -1;
  scene.ChangeCURRINDEXI(1e12, old);
  EXPECT_EQ(scene.CURRINDEXI, 40);
}

TEST_F(ClockTest, ChangeCurrIndexMiniLeavesTheStateUnlessTheValuesAreEqual) {
  scene.CURRINDEXMINI = 5;
  RedrawState = 1;
  double old = -1;
  scene.ChangeCURRINDEXMINI(9, old);
  EXPECT_EQ(scene.CURRINDEXMINI, 9);
  EXPECT_EQ(RedrawState, 1);
  EXPECT_EQ(old, 5);

  RedrawState = 0;
  old = -1;
  scene.ChangeCURRINDEXMINI(11, old);
  EXPECT_EQ(old, 0);

  double index = -1;
  scene.ChangeCURRINDEXMINI(index, index);
  EXPECT_EQ(RedrawState, 2);
  EXPECT_EQ(index, 11);
  EXPECT_EQ(scene.CURRINDEXMINI, 11);
}

TEST_F(ClockTest, ChangeStepSetsTheStep) {
  scene.ChangeSTEPPT(512);
  EXPECT_EQ(STEPPT, 512);
}

}  // namespace
}  // namespace quorb
