#include "DateText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorb {
namespace {

TEST(DateText, GivesDateAndTimeOfASerialDay) {
  EXPECT_EQ(DateAndTimeText(45714.5), " 26  Feb 2025 12:00 ");
  EXPECT_EQ(DateAndTimeText(0), " 30  Dec 1899 00:00 ");
  EXPECT_EQ(DateAndTimeText(60), " 28  Feb 1900 00:00 ");
}

TEST(DateText, RoundsToTheNearestSecondAndCutsTheSeconds) {
  EXPECT_EQ(DateAndTimeText(45714 + (3600.0 + 59.4) / 86400), " 26  Feb 2025 01:00 ");
  EXPECT_EQ(DateAndTimeText(45714 + (3600.0 + 59.6) / 86400), " 26  Feb 2025 01:01 ");
}

TEST(DateText, ADayOutsideTheCalendarHasNoText) {
  EXPECT_EQ(DateAndTimeText(1e300), "");
  EXPECT_EQ(DateAndTimeText(std::numeric_limits<double>::quiet_NaN()), "");
  EXPECT_EQ(DateAndTimeText(-693593), " 01  Jan 0001 00:00 ");
  EXPECT_EQ(DateAndTimeText(2958465), " 31  Dec 9999 00:00 ");
  EXPECT_EQ(DateAndTimeText(2958466), "");
}

TEST(DateText, TimeOfDayHasSecondsToTwoPlaces) {
  EXPECT_EQ(TimeOfDayText(0.5), " 12:00:00.00 ");
  EXPECT_EQ(TimeOfDayText(1.25 / 86400), " 00:00:01.25 ");
  EXPECT_EQ(TimeOfDayText(-0.25), " 18:00:00.00 ");
}

TEST(DateText, TimeOfDayNeverReachesTheNextDay) {
  EXPECT_EQ(TimeOfDayText(1 - 1e-9), " 23:59:59.99 ");
  EXPECT_EQ(TimeOfDayText(std::numeric_limits<double>::infinity()), "");
}

}  // namespace
}  // namespace quorb
