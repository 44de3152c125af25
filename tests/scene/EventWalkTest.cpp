#include "EventWalk.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

class EventWalkTest : public ScenePlot {
 protected:
  EventWalkTest() { StartEventWalk(walk); }

  /// The colour calls of a step to time `t`.
  std::vector<std::string> Step(double t) {
    ClearCalls();
    StepEvent(walk, extent, t);
    return RecordedCalls();
  }

  static void ExpectColour(double value, const std::string& call) {
    ClearCalls();
    ColourByValue(value);
    EXPECT_THAT(RecordedCalls(), ElementsAre(call)) << value;
  }

  EventWalk walk;
  PlotExtent extent;
};

TEST_F(EventWalkTest, ZeroIsNominalOneIsTheEventColour) {
  ExpectColour(0, kNominalColour);
  ExpectColour(1e-6, kNominalColour);
  ExpectColour(1, kEventColour);
  ExpectColour(1 + 9e-7, kEventColour);
  ExpectColour(0.5, kEventColour);
}

TEST_F(EventWalkTest, AnEventValueOfOneAndAHalfDrawsInTheEventColour) {
  ExpectColour(1.5, kEventColour);
}

TEST_F(EventWalkTest, AValueOfFortyGetsTheTopOfTheRampWithAlphaSixTenths) {
  ColourByValue(40);
  ASSERT_EQ(RecordedCalls().size(), 1U);
  float red = 0, green = 1, blue = 1, alpha = 0;
  ASSERT_EQ(std::sscanf(RecordedCalls()[0].c_str(), "glColor4f(%f, %f, %f, %f)", &red, &green, &blue, &alpha),
            4);
  EXPECT_EQ(red, 1);
  EXPECT_NEAR(green, 5e-8, 1e-9);
  EXPECT_EQ(blue, 0);
  EXPECT_EQ(alpha, 0.6F);
}

TEST_F(EventWalkTest, OtherValuesStandOnTheRampFromZeroToThirtyTwo) {
  ExpectColour(16, "glColor4f(0, 1, 0.5, 0.6)");
  ExpectColour(-16, "glColor4f(0, 1, 0.5, 0.6)");
  ExpectColour(2, "glColor4f(0.6875, 0, 1, 0.6)");  // 5 x 2 / 32 = 0.3125
}

TEST_F(EventWalkTest, NoEventsAndATimePastAllZeroRowsKeepsTheNominalColour) {
  extent.EventsSingleValued = 1;
  EXPECT_EQ(NbEvents, 0);
  EXPECT_THAT(Step(37701.5), ElementsAre(kNominalColour));
  EXPECT_THAT(Step(37702.5), IsEmpty());
  EXPECT_EQ(walk.ThrustOn, 0);
  EXPECT_EQ(walk.EventPos, 0);
}

TEST_F(EventWalkTest, SingleValuedRowsArePairsOfStartAndEnd) {
  extent.EventsSingleValued = 1;
  for (int row = 0; row < 4; ++row)
    SetEvent(row, row + 1, 1);
  EXPECT_THAT(Step(0), ElementsAre(kNominalColour));
  EXPECT_THAT(Step(0.5), IsEmpty());
  EXPECT_THAT(Step(1), ElementsAre(kEventColour));
  EXPECT_EQ(walk.ThrustOn, 1);
  EXPECT_THAT(Step(1.5), IsEmpty());
  EXPECT_EQ(walk.ThrustOn, 1);
  EXPECT_THAT(Step(2), ElementsAre(kNominalColour)) << "the end itself is outside";
  EXPECT_EQ(walk.EventPos, 2);
  EXPECT_EQ(walk.ThrustOn, 0);
  EXPECT_THAT(Step(2.5), IsEmpty());
  EXPECT_THAT(Step(3), ElementsAre(kEventColour));
  EXPECT_THAT(Step(9), ElementsAre(kNominalColour));
  EXPECT_EQ(walk.EventPos, 2) << "the last pair is kept";
  EXPECT_EQ(walk.RowMark, 0);
}

TEST_F(EventWalkTest, StartsAndEndsColourTheStretchBetweenThem) {
  SetEvent(0, 1, 1);
  SetEvent(1, 3, 0);
  EXPECT_THAT(Step(0), ElementsAre(kNominalColour));
  EXPECT_THAT(Step(1), ElementsAre(kEventColour));
  EXPECT_EQ(walk.ThrustOn, 1);
  EXPECT_THAT(Step(2), IsEmpty());
  EXPECT_THAT(Step(3), IsEmpty()) << "the row at the end still belongs to the stretch";
  EXPECT_EQ(walk.ThrustOn, 1);
  EXPECT_THAT(Step(3.5), ElementsAre(kNominalColour));
  EXPECT_EQ(walk.ThrustOn, 0);
  EXPECT_THAT(Step(4), IsEmpty());
}

TEST_F(EventWalkTest, TheWalkMovesByTwoRowsAndLooksOneBack) {
  SetEvent(0, 1, 1);
  SetEvent(1, 2, 0);
  SetEvent(2, 3, 1);
  SetEvent(3, 4, 0);
  Step(0);
  EXPECT_THAT(Step(2.5), IsEmpty()) << "row 1 ended the stretch that no row fell into";
  EXPECT_EQ(walk.EventPos, 2);
  EXPECT_THAT(Step(2.7), IsEmpty()) << "in front of row 2 the value of row 1 holds";
  EXPECT_THAT(Step(3.5), ElementsAre(kEventColour));
  EXPECT_THAT(Step(5), ElementsAre(kNominalColour));
}

TEST_F(EventWalkTest, PastTheLastEventItsValueHolds) {
  SetEvent(0, 1, 0);
  SetEvent(1, 2, 1);
  SetEvent(2, 3, 16);
  Step(0);
  EXPECT_THAT(Step(2.5), ElementsAre(kEventColour));
  EXPECT_EQ(walk.EventPos, 2);
  // Behind the counter stands a row of zeros: it is taken first, and then the last event's value.
  EXPECT_THAT(Step(4), ElementsAre(kNominalColour, "glColor4f(0, 1, 0.5, 0.6)"));
  EXPECT_EQ(walk.EventValue, 16);
}

TEST_F(EventWalkTest, ValuesWithAFractionMarkTheirRows) {
  SetEvent(0, 1, 1.5);
  SetEvent(1, 2, 0);
  SetEvent(2, 3, 1);
  SetEvent(3, 9, 0);
  Step(0);
  EXPECT_EQ(walk.RowMark, 0);
  EXPECT_THAT(Step(1), ElementsAre(kEventColour));
  EXPECT_EQ(walk.RowMark, 1);
  Step(2);
  EXPECT_EQ(walk.RowMark, 1);
  Step(2.5);
  EXPECT_EQ(walk.RowMark, 0);
}

TEST_F(EventWalkTest, TheRowInFrontOfTheWalkMarksToo) {
  SetEvent(0, 1, 1);
  SetEvent(1, 2, 2.5);
  SetEvent(2, 4, 1);
  SetEvent(3, 9, 0);
  Step(3);
  EXPECT_EQ(walk.RowMark, 1);
  EXPECT_EQ(walk.EventPos, 2);
  Step(3.5);
  EXPECT_EQ(walk.EventValue, 2.5);
  EXPECT_EQ(walk.RowMark, 1);
}

TEST_F(EventWalkTest, EventsForcedLeavesNoMark) {
  extent.EventsForced = 1;
  SetEvent(0, 1, 1.5);
  SetEvent(1, 2, 0);
  Step(1);
  EXPECT_EQ(walk.EventValue, 1.5);
  EXPECT_EQ(walk.RowMark, 0);
}

TEST_F(EventWalkTest, SettledTimesAreThoseThatChangeNothing) {
  SetEvent(0, 1, 1);
  SetEvent(1, 3, 0);
  EXPECT_FALSE(IsSettled(walk, 0)) << "a new frame begins with a step";
  Step(0);
  EXPECT_TRUE(IsSettled(walk, 0.9));
  EXPECT_FALSE(IsSettled(walk, 1));
  Step(1);
  EXPECT_TRUE(IsSettled(walk, 2.9));
  EXPECT_FALSE(IsSettled(walk, 0.9));
  EXPECT_FALSE(IsSettled(walk, 3));
  Step(3);
  EXPECT_FALSE(IsSettled(walk, 3));
  Step(4);
  EXPECT_TRUE(IsSettled(walk, 5));
}

TEST_F(EventWalkTest, SeekStopsOneRowInFrontOfTheFirstLaterEvent) {
  for (int row = 0; row < 4; ++row)
    SetEvent(row, row + 1, 1 - row % 2);
  SetPoint(0, 2.5, 0, 0, 0);
  SeekFirstEvent(walk, extent);
  EXPECT_EQ(walk.EventPos, 1);

  StartEventWalk(walk);
  SetPoint(0, 0.5, 0, 0, 0);
  SeekFirstEvent(walk, extent);
  EXPECT_EQ(walk.EventPos, 0);

  StartEventWalk(walk);
  SetPoint(0, 99, 0, 0, 0);
  SeekFirstEvent(walk, extent);
  EXPECT_EQ(walk.EventPos, 3) << "no later event: the last row";
}

TEST_F(EventWalkTest, SeekLeavesPairsAtTheirFirstRow) {
  extent.EventsSingleValued = 1;
  for (int row = 0; row < 4; ++row)
    SetEvent(row, row + 1, 1);
  SetPoint(0, 2.5, 0, 0, 0);
  SeekFirstEvent(walk, extent);
  EXPECT_EQ(walk.EventPos, 0);
}

TEST_F(EventWalkTest, RowsOutsideTheTableChangeNoColour) {
  NbEvents = kRowBound + 10;
  for (const int single : {0, 1}) {
    extent.EventsSingleValued = single;
    StartEventWalk(walk);
    walk.EventPos = kRowBound - 1;
    EXPECT_THAT(Step(5), IsEmpty());
    EXPECT_EQ(walk.EventPos, kRowBound - 1);
  }
}

}  // namespace
}  // namespace quorb
