#include "BodiesPlot.h"
#include "Box.h"

namespace quorb {
namespace {

struct PlumeCase {
  int shape;
  const char* there;
  const char* back;
  double a, b, c;
};

class PlumeTest : public BodiesPlot, public testing::WithParamInterface<PlumeCase> {
 protected:
  PlumeTest() { TakeSizeThirty(); }

  void ExpectPlume(const PlumeCase& plume) {
    ChooseShape(plume.shape);
    const auto box = CallsOfBox(plume.a, plume.b, plume.c);
    const auto calls = DrawnBehindBody();
    ASSERT_GE(calls.size(), 62U);
    EXPECT_EQ(std::vector(calls.begin(), calls.begin() + 62), Joined({{plume.there}, box, {plume.back}}));
  }
};

class IdlePlumeTest : public PlumeTest {};
class ThrustPlumeTest : public PlumeTest {};

// The rod stands against the body: its centre is the body's half size and its own away from the centre.
TEST_P(IdlePlumeTest, OutsideAnEventStretchTheRodIsAFifteenthOfTheBody) {
  ExpectPlume(GetParam());
}

TEST_P(ThrustPlumeTest, InAnEventStretchTheRodIsAsLongAsTheBody) {
  scene.Trajectory.Events.ThrustOn = 1;
  ExpectPlume(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, IdlePlumeTest,
    testing::Values(PlumeCase{0, "glTranslatef(0, 0, -6.4)", "glTranslatef(-0, -0, 6.4)", 0.6, 0.6, 6.0 / 15},
                    PlumeCase{1, "glTranslatef(3.2, 0, 0)", "glTranslatef(-3.2, -0, -0)", 3.0 / 15, 0.6, 0.6},
                    PlumeCase{2, "glTranslatef(0, 0, 32)", "glTranslatef(-0, -0, -32)", 0.6, 0.6, 2},
                    PlumeCase{3, "glTranslatef(0, 0, -3.2)", "glTranslatef(-0, -0, 3.2)", 0.6, 0.6, 3.0 / 15},
                    PlumeCase{4, "glTranslatef(0, 0, -9.6)", "glTranslatef(-0, -0, 9.6)", 0.6, 0.6, 9.0 / 15},
                    PlumeCase{5, "glTranslatef(0, 0, -3.2)", "glTranslatef(-0, -0, 3.2)", 0.6, 0.6, 3.0 / 15},
                    PlumeCase{6, "glTranslatef(0, 0, -9.6)", "glTranslatef(-0, -0, 9.6)", 0.6, 0.6,
                              9.0 / 15}));

INSTANTIATE_TEST_SUITE_P(
    Shapes, ThrustPlumeTest,
    testing::Values(PlumeCase{0, "glTranslatef(0, 0, -12)", "glTranslatef(-0, -0, 12)", 0.6, 0.6, 6},
                    PlumeCase{1, "glTranslatef(6, 0, 0)", "glTranslatef(-6, -0, -0)", 3, 0.6, 0.6},
                    PlumeCase{2, "glTranslatef(0, 0, 60)", "glTranslatef(-0, -0, -60)", 0.6, 0.6, 30},
                    PlumeCase{3, "glTranslatef(0, 0, -6)", "glTranslatef(-0, -0, 6)", 0.6, 0.6, 3},
                    PlumeCase{4, "glTranslatef(0, 0, -18)", "glTranslatef(-0, -0, 18)", 0.6, 0.6, 9},
                    PlumeCase{5, "glTranslatef(0, 0, -6)", "glTranslatef(-0, -0, 6)", 0.6, 0.6, 3},
                    PlumeCase{6, "glTranslatef(0, 0, -18)", "glTranslatef(-0, -0, 18)", 0.6, 0.6, 9}));

TEST_F(PlumeTest, AThrustAlongYPutsTheRodOnTheOppositeSide) {
  ThrustAxisZ = 0;
  ThrustAxisY = 1;
  EXPECT_EQ(DrawnBehindBody().front(), "glTranslatef(0, -3.2, 0)");
  ThrustAxisY = -1;
  EXPECT_EQ(DrawnBehindBody().front(), "glTranslatef(0, 3.2, 0)");
}

// ---- the running event ----------------------------------------------------------------------------------

class RunningEventTest : public BodiesPlot {
 protected:
  RunningEventTest() {
    const char* const texts[] = {"start", "end", "again", "over"};
    for (int row = 0; row < 4; ++row) {
      dataEventLog.time.Set(row, 0, 10 * row);
      dataEventLog.text.Set(row, texts[row]);
    }
    NbEvents = 4;
    scene.Trajectory.Events.ThrustOn = 1;
  }
};

TEST_F(RunningEventTest, TheTimesOfTheEventAreKeptAsTexts) {
  DrawnAt(15);
  EXPECT_EQ(bodies.State.EventFound, 1);
  EXPECT_EQ(bodies.State.EventFrom, "10");
  EXPECT_EQ(bodies.State.EventTo, "over");
}

TEST_F(RunningEventTest, AnEventEndsWithItsNextRowsTime) {
  DrawnAt(20);
  EXPECT_EQ(bodies.State.EventFound, 1);
  DrawnAt(20.5);
  EXPECT_EQ(bodies.State.EventFound, 2);
  EXPECT_EQ(bodies.State.EventTo, "") << "the row behind the events is empty";
}

TEST_F(RunningEventTest, ATimeOutsideAllEventsFindsNone) {
  for (const double time : {5.0, 10.0, 31.0}) {
    DrawnAt(time);
    EXPECT_EQ(bodies.State.EventFound, 0) << time;
  }
}

TEST_F(RunningEventTest, ASearchOverNoEventsEnds) {
  NbEvents = 0;
  DrawnAt(100);
  EXPECT_EQ(bodies.State.EventFound, 0);
  NbEvents = 1;
  DrawnAt(100);
  EXPECT_EQ(bodies.State.EventFound, 0);
}

TEST_F(RunningEventTest, OutsideThrustTheEventsAreNotLookedAt) {
  scene.Trajectory.Events.ThrustOn = 0;
  DrawnAt(15);
  EXPECT_EQ(bodies.State.EventFrom, "");
}

}  // namespace
}  // namespace quorb
