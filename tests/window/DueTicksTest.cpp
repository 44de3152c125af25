#include "DueTicks.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(DueTicks, AreTheMillisecondsThatPassed) {
  EXPECT_EQ(DueTicks(1, 1, false), 1);
  EXPECT_EQ(DueTicks(40, 1, false), 40);
  EXPECT_EQ(DueTicks(40, 16, false), 2);
}

TEST(DueTicks, NoneAreDueBeforeTheInterval) {
  EXPECT_EQ(DueTicks(0, 1, false), 0);
  EXPECT_EQ(DueTicks(15, 16, false), 0);
}

TEST(DueTicks, ALongPauseIsMadeUpInPart) {
  EXPECT_EQ(DueTicks(95, 1, false), 95);
  EXPECT_EQ(DueTicks(96, 1, false), 95);
  EXPECT_EQ(DueTicks(86400000, 1, false), 95);
}

TEST(DueTicks, AClockThatWentBackGivesNone) {
  EXPECT_EQ(DueTicks(-5, 1, false), 0);
}

TEST(DueTicks, AMovieGetsOneTickATime) {
  EXPECT_EQ(DueTicks(0, 1, true), 1);
  EXPECT_EQ(DueTicks(40, 1, true), 1);
}

TEST(DueTicks, AnIntervalBelowOneGetsOneTickATime) {
  EXPECT_EQ(DueTicks(40, 0, false), 1);
}

}  // namespace
}  // namespace quorb
