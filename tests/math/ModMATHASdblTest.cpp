#include "ModMATHASdbl.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "ScriptedDialogs.h"
#include "SoftError.h"

namespace quorb {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

void ExpectNear(const Vector3& found, const Vector3& expected, double tolerance) {
  for (int place = 1; place <= 3; ++place)
    EXPECT_NEAR(found(place), expected(place), tolerance) << "component " << place;
}

TEST(PlaneRotateTest, TurnsFromTheFirstAxisTowardTheSecond) {
  double out1 = 0.0, out2 = 0.0;
  PlaneRotate(0, 1, 1, 0, out1, out2);
  EXPECT_EQ(out1, 0.0);
  EXPECT_EQ(out2, 1.0);
  PlaneRotate(0.6, 0.8, 5, 10, out1, out2);
  EXPECT_NEAR(out1, -5.0, 1e-14);
  EXPECT_NEAR(out2, 10.0, 1e-14);
}

TEST(PlaneRotateTest, OutputsMayBeTheInputs) {
  double x = 2.0, y = 3.0;
  PlaneRotate(0, 1, x, y, x, y);
  EXPECT_EQ(x, -3.0);
  EXPECT_EQ(y, 2.0);
}

class EulerITest : public testing::Test {
 protected:
  EulerITest() { softFirst = 0.0; }
  ~EulerITest() override { softFirst = 0.0; }

  ScriptedDialogs dialogs;
  Vector3 out{{9, 9, 9}};
};

TEST_F(EulerITest, NoAnglesGiveTheVectorItself) {
  const Vector3 v{{0.1, -1e7 / 3, 1e-9}};
  EulerI(v, 0, 0, 0, out);
  EXPECT_EQ(out, v);
}

TEST_F(EulerITest, SecondAngleTurnsYToZ) {
  EulerI({{0, 1, 0}}, 0, kPi / 2, 0, out);
  ExpectNear(out, {{0, 0, 1}}, 1e-14);
}

TEST_F(EulerITest, FirstAndThirdAngleTurnXToY) {
  EulerI({{1, 0, 0}}, kPi / 2, 0, 0, out);
  ExpectNear(out, {{0, 1, 0}}, 1e-14);
  EulerI({{1, 0, 0}}, 0, 0, kPi / 2, out);
  ExpectNear(out, {{0, 1, 0}}, 1e-14);
}

TEST_F(EulerITest, ThreeAnglesActInTheirOrder) {
  // By 30 degrees: (cos 30, 1/2, 0). By 60 about X: (cos 30, 1/4, cos 30 / 2). By 90 about Z.
  EulerI({{1, 0, 0}}, kPi / 6, kPi / 3, kPi / 2, out);
  ExpectNear(out, {{-0.25, std::sqrt(0.75), std::sqrt(0.75) / 2}}, 1e-14);
}

TEST_F(EulerITest, OutputMayBeTheInput) {
  Vector3 v{{1, 2, 3}};
  EulerI(v, 0.3, 0.4, 0.5, out);
  EulerI(v, 0.3, 0.4, 0.5, v);
  EXPECT_EQ(v, out);
}

TEST_F(EulerITest, EachAngleIsTakenAnewWhenItChanges) {
  const Vector3 v{{1, 2, 3}};
  Vector3 first;
  EulerI(v, 0.3, 0.4, 0.5, first);
  for (int angle = 0; angle < 3; ++angle) {
    const double change = 0.1;
    EulerI(v, angle == 0 ? change : 0.3, angle == 1 ? change : 0.4, angle == 2 ? change : 0.5, out);
    EXPECT_NE(out, first) << angle;
    EulerI(v, 0.3, 0.4, 0.5, out);
    EXPECT_EQ(out, first) << angle;
  }
  EulerI(v, 0, 0, 0, out);
  EXPECT_EQ(out, v);
}

TEST_F(EulerITest, WhatIsNoFiniteNumberShowsTheDialogOnceAndLeavesTheOutput) {
  const Vector3 before{{9, 9, 9}};
  EulerI({{1, 2, 3}}, kNaN, 0, 0, out);
  EulerI({{1, 2, 3}}, 0, kInfinity, 0, out);
  EulerI({{1, 2, kNaN}}, 0, 0.5, 0, out);
  EulerI({{1.7e308, 1.7e308, 0}}, -kPi / 4, 0, 0, out);
  EXPECT_EQ(out, before);
  ASSERT_EQ(dialogs.boxes.size(), 4U);
  for (const auto& box : dialogs.boxes)
    EXPECT_EQ(box.prompt.substr(0, box.prompt.find(CrLf)), "EulerIfaute");
}

TEST_F(EulerITest, FaultyAngleLeavesNoTraceInTheNextCall) {
  const Vector3 v{{1, 2, 3}};
  EulerI(v, kNaN, kInfinity, kNaN, out);
  EulerI(v, 0, 0, 0, out);
  EXPECT_EQ(out, v);
}

TEST(EclipticToEquatorTest, LeavesTheXAxisAlone) {
  Vector3 out;
  EclipticToEquator({{123, 0, 0}}, out);
  EXPECT_EQ(out, (Vector3{{123, 0, 0}}));
}

TEST(EclipticToEquatorTest, TurnsByTheObliquity) {
  // cos 23.45 = 0.9174076993574882, sin 23.45 = 0.3979486313076104.
  Vector3 out;
  EclipticToEquator({{1, 10, 100}}, out);
  ExpectNear(out, {{1, 9.174076993574882 - 39.79486313076104, 3.979486313076104 + 91.74076993574882}}, 1e-12);
}

struct CalendarDay {
  double julianDay = 0.0;
  int year = 0;
  int month = 0;
  double day = 0.0;
};

// Jean Meeus, Astronomical Algorithms, chapter 7, and the two ends of the calendar reform.
const std::vector<CalendarDay> kCalendarDays = {
    {2415384.5, 1900, 12, 31.0},  {2451544.5, 2000, 1, 1.0},    {2451545.0, 2000, 1, 1.5},
    {2436116.31, 1957, 10, 4.81}, {1842713.0, 333, 1, 27.5},    {2446822.5, 1987, 1, 27.0},
    {2446966.0, 1987, 6, 19.5},   {2447187.5, 1988, 1, 27.0},   {2447332.0, 1988, 6, 19.5},
    {2415020.5, 1900, 1, 1.0},    {2305447.5, 1600, 1, 1.0},    {2305812.5, 1600, 12, 31.0},
    {2026871.8, 837, 4, 10.3},    {1676496.5, -123, 12, 31.0},  {1676497.5, -122, 1, 1.0},
    {1356001.0, -1000, 7, 12.5},  {1355866.5, -1000, 2, 29.0},  {1355671.4, -1001, 8, 17.9},
    {0.0, -4712, 1, 1.5},         {1507900.13, -584, 5, 28.63}, {2299159.5, 1582, 10, 4.0},
    {2299160.5, 1582, 10, 15.0},  {2451604.5, 2000, 3, 1.0},    {2451603.5, 2000, 2, 29.0},
};

TEST(JulianToDateTest, KnownDays) {
  for (const CalendarDay& known : kCalendarDays) {
    int year = 0, month = 0;
    double day = 0.0;
    ASSERT_TRUE(JulianToDate(known.julianDay, year, month, day));
    EXPECT_EQ(year, known.year) << known.julianDay;
    EXPECT_EQ(month, known.month) << known.julianDay;
    EXPECT_NEAR(day, known.day, 1e-8) << known.julianDay;
  }
}

TEST(JulianToDateTest, DayBeyondTheYearsOfAnIntFails) {
  int year = 1, month = 2;
  double day = 3.0;
  for (const double JD : {1e300, -1e300, 8e11, kNaN, kInfinity, -kInfinity})
    EXPECT_FALSE(JulianToDate(JD, year, month, day));
  EXPECT_EQ(year, 1);
  EXPECT_EQ(month, 2);
  EXPECT_EQ(day, 3.0);
  EXPECT_TRUE(JulianToDate(7.8e11, year, month, day));
  EXPECT_TRUE(JulianToDate(-7.8e11, year, month, day));
}

TEST(DateToJulianTest, KnownDays) {
  for (const CalendarDay& known : kCalendarDays) {
    double JD = 0.0, t = 0.0;
    ASSERT_TRUE(DateToJulian(known.year, known.month, known.day, JD, t));
    EXPECT_NEAR(JD, known.julianDay, 1e-8);
    EXPECT_NEAR(t, known.julianDay - 2415384.5, 1e-8);
  }
}

TEST(DateToJulianTest, DaysThatTheReformDroppedCountAsJulian) {
  double JD = 0.0, t = 0.0;
  DateToJulian(1582, 10, 5, JD, t);
  EXPECT_EQ(JD, 2299160.5);
  DateToJulian(1582, 10, 14, JD, t);
  EXPECT_EQ(JD, 2299169.5);
  DateToJulian(1582, 10, 15, JD, t);
  EXPECT_EQ(JD, 2299160.5);
  DateToJulian(1582, 11, 1, JD, t);
  EXPECT_EQ(JD, 2299177.5);
}

TEST(DateToJulianTest, MonthOutOfTheYearFails) {
  double JD = 1.0, t = 2.0;
  for (const int month : {0, 13, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    EXPECT_FALSE(DateToJulian(2000, month, 1, JD, t));
  EXPECT_EQ(JD, 1.0);
  EXPECT_EQ(t, 2.0);
}

TEST(DateToJulianTest, UndoesJulianToDateFromTheFirstDayOn) {
  for (double expected = -0.5; expected < 5e6; expected += 101.25) {
    int year = 0, month = 0;
    double day = 0.0, JD = 0.0, t = 0.0;
    ASSERT_TRUE(JulianToDate(expected, year, month, day));
    ASSERT_TRUE(DateToJulian(year, month, day, JD, t));
    ASSERT_EQ(JD, expected) << year << " " << month << " " << day;
  }
}

}  // namespace
}  // namespace quorb
