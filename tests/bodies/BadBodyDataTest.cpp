#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

#include "BodiesPlot.h"
#include "BodyTextures.h"
#include "RowSearch.h"
#include "ScriptedDialogs.h"

namespace quorb {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kMarch21Of2003 = 37701;

/// A scene with everything on, over data that no sheet should have.
class BadBodyDataTest : public BodiesPlot {
 protected:
  BadBodyDataTest() {
    auto owned = std::make_unique<Bodies>(scene);
    shown = owned.get();
    shown->Random = [] { return 0.5; };
    scene.BodiesShown = std::move(owned);
    SetPoint(0, kMarch21Of2003, 7000, 0, 0);
    SetPoint(1, kMarch21Of2003 + 1, 0, 7000, 0);
    TakePlotAsItIs();
    scene.Range = 7000;
    ISOmode = 1;
    USERFLAG.TimeInData = USERFLAG.ShowSatellite = USERFLAG.SolarPanelToSun = 1;
    ShowSatAxes = 1;
  }
  ~BadBodyDataTest() override {
    std::memset(static_cast<void*>(&dataQuater), 0, sizeof(double) * 5 * filledRows);
  }

  /// Attitudes of a turn of 90 degrees about Z in every row, one a day from day 0 on.
  void FillAllRows() {
    filledRows = kRowBound;
    for (std::int64_t row = 0; row < kRowBound; ++row) {
      double* cells = dataQuater[row];
      cells[0] = static_cast<double>(row);
      cells[1] = cells[4] = std::sqrt(0.5);
    }
    NbQuater = kRowBound;
  }

  /// Three frames, of which every number is one.
  void ExpectFiniteFrames() {
    for (int frame = 0; frame < 3; ++frame) {
      const std::vector<std::string> calls = Frame();
      for (const std::string& call : calls) {
        ASSERT_EQ(call.find("nan"), std::string::npos) << call;
        ASSERT_EQ(call.find("inf"), std::string::npos) << call;
      }
      ASSERT_EQ(CountBeginning(calls, "gluSphere"), 2);
    }
    for (const auto& box : dialogs.boxes)
      ADD_FAILURE() << box.title << ": " << box.prompt;
  }

  Bodies* shown = nullptr;
  std::size_t filledRows = 0;
  ScriptedDialogs dialogs;
};

// ---- quaternions ----------------------------------------------------------------------------------------

TEST_F(BadBodyDataTest, QuaternionsThatAreNoneStandTurnedBy90DegreesAboutX) {
  const double attitudes[][4] = {{0, 0, 0, 0},
                                 {kNan, 0, 0, 1},
                                 {0, kNan, 0, 0},
                                 {kNan, kNan, kNan, kNan},
                                 {kInfinity, 0, 0, 1},
                                 {0, 0, 0, -kInfinity},
                                 {1e300, 0, 0, 1e300},
                                 {0, 1e300, 1e300, 1e300},
                                 {0, 0, 0, -1e300},
                                 {0, 1e-300, 0, 1e-300},
                                 {0, 3e38, 3e38, 3e38},
                                 {0, 0, 0, 2},
                                 {std::sqrt(3), 1, 0, 0},
                                 {1, 0, 0, 0},
                                 {-1, 0, 0, 0}};
  for (const auto& q : attitudes) {
    SetQuaternion(0, 0, q[0], q[1], q[2], q[3]);
    SetQuaternion(1, 1e9, 0, 0, 0, 0);
    ExpectFiniteFrames();
    EXPECT_EQ(CountOf(Frame(), "glRotatef(90, 1, 0, 0)"), 1) << q[0] << ' ' << q[1] << ' ' << q[2];
  }
}

// A turn of 60 degrees about Z, 1.3 times too long: the axis is stretched, the angle is right.
TEST_F(BadBodyDataTest, AQuaternionOfLengthThirteenTenthsIsDrawnAsItStands) {
  SetQuaternion(0, 0, 1.3 * std::sqrt(0.75), 0, 0, 1.3 * 0.5);
  SetQuaternion(1, 1e9, 0, 0, 0, 0);
  ExpectFiniteFrames();
  EXPECT_NEAR(shown->State.AttitudeAngle, 60.00005, 1e-4);
  EXPECT_NEAR(shown->State.AttAxisZ, 1.3, 1e-6);
}

// ---- tables ---------------------------------------------------------------------------------------------

TEST_F(BadBodyDataTest, WithoutAttitudesTheModelStandsInTheBadOne) {
  ExpectFiniteFrames();
  EXPECT_EQ(shown->State.QuaterIndex, 0);
  EXPECT_EQ(shown->State.AttitudeAngle, 90);
}

TEST_F(BadBodyDataTest, ATableOfOneRowServesTheTimesBeforeItAlone) {
  SetQuarterTurn(0, kMarch21Of2003 + 1.5);
  ExpectFiniteFrames();
  EXPECT_EQ(shown->State.QuaterIndex, 0);
  EXPECT_NEAR(shown->State.AttAxisZ, 1, 1e-6);
  dataQuater.Set(0, 0, kMarch21Of2003);
  ExpectFiniteFrames();
  EXPECT_EQ(shown->State.QuaterIndex, 1) << "a row without data";
  EXPECT_EQ(shown->State.AttAxisX, 1);
}

TEST_F(BadBodyDataTest, AFullTableIsReadUpToItsLastRowAndNotBehindIt) {
  FillAllRows();
  SetPoint(1, kRowBound - 1.5, 7000, 0, 0);
  ExpectFiniteFrames();
  EXPECT_EQ(shown->State.QuaterIndex, kRowBound - 2);
  EXPECT_NEAR(shown->State.AttAxisZ, 1, 1e-6);
  SetPoint(1, kRowBound + 5.0, 7000, 0, 0);
  ExpectFiniteFrames();
  EXPECT_EQ(shown->State.QuaterIndex, kRowBound);
  EXPECT_EQ(shown->State.AttAxisX, 1) << "the bad attitude of a row without data";
}

// A frame moves the row as far as the time goes on, wherever it stands.
TEST_F(BadBodyDataTest, TheSearchCostsTheSameAtTheEndOfTheDataAsAtTheirStart) {
  FillAllRows();
  for (const double start : {1.0, kRowBound - 1002.0}) {
    SetPoint(1, start + 0.5, 7000, 0, 0);
    scene.Draw();
    ASSERT_EQ(shown->State.QuaterIndex, start);
    for (int frame = 1; frame <= 1000; ++frame) {
      SetPoint(1, start + frame + 0.5, 7000, 0, 0);
      const std::int64_t before = shown->State.QuaterIndex;
      shown->DrawSatellite();
      ASSERT_EQ(shown->State.QuaterIndex - before, 1);
    }
    ClearCalls();
  }
}

TEST_F(BadBodyDataTest, BehindTheEndTheRowStandsStillInEveryFrame) {
  FillAllRows();
  SetPoint(1, kRowBound + 5.0, 7000, 0, 0);
  for (int frame = 0; frame < 5; ++frame) {
    Frame();
    EXPECT_EQ(shown->State.QuaterIndex, kRowBound);
  }
}

TEST_F(BadBodyDataTest, CountersThatAreNotThoseOfTheTableReadRowsWithoutData) {
  SetQuarterTurn(0, 0);
  for (const double count : {-1.0, 0.0, 3.0, static_cast<double>(kRowBound)}) {
    NbQuater = NbSApY = NbSAmY = count;
    ExpectFiniteFrames();
    EXPECT_GE(shown->State.QuaterIndex, -1);
    EXPECT_LE(shown->State.QuaterIndex, kRowBound);
  }
}

// ---- the search -----------------------------------------------------------------------------------------

/// What the search is told to do, with its steps counted.
struct CountedSearch {
  std::int64_t row = 0;
  std::int64_t steps = 0;

  void Run(std::int64_t count, double t) {
    const auto timeAt = [](std::int64_t at) { return dataSApY.Holds(at) ? dataSApY[at][0] : 0; };
    const auto holds = [&] { return timeAt(row) <= t && t <= timeAt(row + 1); };
    if (timeAt(row) <= t) {
      for (; row <= count && !holds(); ++steps)
        ++row;
      row = std::min(row, count);
    } else {
      for (; row >= 1 && !holds(); ++steps)
        --row;
      row = std::max<std::int64_t>(row, 0);
    }
  }
};

TEST_F(BadBodyDataTest, ASearchOverAnyTimesEndsWithinTheTableInAtMostOneStepARow) {
  const double times[][8] = {{8, 7, 6, 5, 4, 3, 2, 1},
                             {1, 1, 1, 1, 1, 1, 1, 1},
                             {1, 9, 2, 8, 3, 7, 4, 6},
                             {kNan, 1, kNan, 2, 3, kNan, kNan, 4},
                             {-5, -9, -1, -7, 0, 0, -2, -3},
                             {kInfinity, 1, -kInfinity, 2, 3, 4, 5, 6},
                             {1e300, -1e300, 1e300, 0, 0, 1, 1, 1}};
  constexpr int kCount = 8;
  for (const auto& column : times) {
    for (int row = 0; row < kCount; ++row)
      SetPlusYAngle(row, column[row], 0);
    for (const double t : {-6.0, -1.5, 0.0, 0.5, 1.0, 2.5, 6.5, 9.5, 1e300, kNan, kInfinity, -kInfinity}) {
      for (std::int64_t from = 0; from <= kCount; ++from) {
        CountedSearch told{from};
        told.Run(kCount, t);
        EXPECT_LE(told.steps, kCount + 1);
        EXPECT_EQ(FindRow(dataSApY, kCount, from, t), told.row) << t << " from " << from;
      }
    }
  }
}

TEST_F(BadBodyDataTest, AFullTableOfDescendingTimesIsGoneThroughOnceAndThenStandsStill) {
  FillAllRows();
  for (std::int64_t row = 0; row < kRowBound; ++row)
    dataQuater[row][0] = static_cast<double>(kRowBound - row);
  SetPoint(1, kRowBound + 0.5, 7000, 0, 0);
  for (int frame = 0; frame < 100; ++frame) {
    shown->DrawSatellite();
    ASSERT_EQ(shown->State.QuaterIndex, kRowBound);
  }
  ClearCalls();
}

// ---- times and places of the plot -----------------------------------------------------------------------

TEST_F(BadBodyDataTest, TimesThatNoCalendarHoldsAreDrawn) {
  for (const double days : {-1e6, -657073.0, 0.0, 2958466.0, 1e9, 1e300, -1e9, -1e12, -1e16, -1e300}) {
    SetPoint(1, days, 7000, 0, 0);
    SCOPED_TRACE(days);
    ExpectFiniteFrames();
  }
}

TEST_F(BadBodyDataTest, TimesThatAreNoNumbersAreDrawn) {
  for (const double days : {kNan, kInfinity, -kInfinity}) {
    SetPoint(1, days, 7000, 0, 0);
    ExpectFiniteFrames();
  }
}

TEST_F(BadBodyDataTest, ArrayAnglesThatAreNoAnglesAreDrawn) {
  USERFLAG.SolarPanelToSun = 0;
  SetQuarterTurn(0, 0);
  SetQuarterTurn(1, 1e9);
  for (const double angle : {1e9, -1e30, 1e300, std::nan(""), 0.0}) {
    SetPlusYAngle(0, 0, angle);
    SetPlusYAngle(1, 1e9, angle);
    SetMinusYAngle(0, 0, angle);
    SetMinusYAngle(1, 1e9, angle);
    ExpectFiniteFrames();
  }
}

}  // namespace
}  // namespace quorb
