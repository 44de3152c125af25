#include "Epoch.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(Epoch, CalendarDateGivesItsSerialDay) {
  EXPECT_DOUBLE_EQ(ParseEpoch("1899-12-30T00:00:00").value(), 0);
  EXPECT_DOUBLE_EQ(ParseEpoch("1970-01-01T00:00:00").value(), 25569);
  EXPECT_DOUBLE_EQ(ParseEpoch("2025-02-26T12:00:00").value(), 45714.5);
}

TEST(Epoch, DayOfYearGivesTheSameDayAsTheCalendar) {
  EXPECT_DOUBLE_EQ(ParseEpoch("2025-057T12:00:00.000Z").value(), 45714.5);
  EXPECT_DOUBLE_EQ(ParseEpoch("2024-366T06:00:00").value(), ParseEpoch("2024-12-31T06:00:00").value());
}

TEST(Epoch, FractionOfASecondCounts) {
  EXPECT_DOUBLE_EQ(ParseEpoch("2022-11-16T09:27:08.381").value(),
                   44881 + (9 * 3600 + 27 * 60 + 8.381) / 86400);
  EXPECT_DOUBLE_EQ(ParseEpoch("2025-01-01T00:00:00.5Z").value(), 45658 + 0.5 / 86400);
}

TEST(Epoch, LeapSecondIsTheFirstSecondOfTheNextMinute) {
  EXPECT_DOUBLE_EQ(ParseEpoch("2016-12-31T23:59:60").value(), ParseEpoch("2017-01-01T00:00:00").value());
  EXPECT_DOUBLE_EQ(ParseEpoch("2016-366T23:59:60.25Z").value(), ParseEpoch("2017-001T00:00:00.25").value());
}

TEST(Epoch, BlankMayStandForTheT) {
  EXPECT_DOUBLE_EQ(ParseEpoch(" 2025-02-26 12:00:00 ").value(), 45714.5);
}

TEST(Epoch, DaysAndHoursThatDoNotExistAreRefused) {
  for (const char* text : {"2025-02-29T00:00:00", "2025-13-01T00:00:00", "2025-00-01T00:00:00",
                           "2025-01-00T00:00:00", "2025-000T00:00:00", "2025-366T00:00:00",
                           "2025-01-01T24:00:00", "2025-01-01T00:60:00", "2025-01-01T00:00:61"}) {
    EXPECT_FALSE(ParseEpoch(text).has_value()) << text;
  }
}

TEST(Epoch, OtherTextsAreRefused) {
  for (const char* text : {"", "Z", "2025", "2025-02-26", "2025-02-26T", "2025-02-26T12:00",
                           "25-02-26T12:00:00", "2025-2-26T12:00:00", "2025-02-26T12:00:00+01:00",
                           "2025-02-26T12:00:00ZZ", "2025-02-26T12:00:0x", "-025-02-26T12:00:00", "nan"}) {
    EXPECT_FALSE(ParseEpoch(text).has_value()) << text;
  }
}

}  // namespace
}  // namespace quorb
