#include "SpinAngles.h"

#include <gtest/gtest.h>

#include <limits>

namespace quorb {
namespace {

constexpr double kMarch21Of2003 = 37701;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double ReferenceSpinAt(double days, int moonFocus = 0) {
  double angle = 777;
  ReferenceSpin(days, moonFocus, angle);
  return angle;
}

double SiderealAngleAt(double days) {
  double angle = 777;
  SiderealAngle(days, angle);
  return angle;
}

FrameTime InsideOfPlot(double days) {
  return {days, 5, 0, 10};
}

double TurnedTo(double days) {
  double angle = 777;
  TurnCentralBody(InsideOfPlot(days), 0, 0, angle);
  return angle;
}

double MoonTurnedTo(double days) {
  double angle = 777;
  TurnMoon(InsideOfPlot(days), angle);
  return angle;
}

TEST(ReferenceSpinTest, Is130DegreesBackOn21March2003) {
  EXPECT_EQ(ReferenceSpinAt(kMarch21Of2003), -130);
}

// A day is 1.002738 sidereal days: 360.9856 degrees. -130 + 360.9856 = 230.9856, a whole 231.
TEST(ReferenceSpinTest, GoesOnByNearlyADegreeADayInWholeDegrees) {
  EXPECT_EQ(ReferenceSpinAt(kMarch21Of2003 + 1), 231);
}

// -130 - 360.9856 = -490.9856, -491; less one turn, with its sign, -131.
TEST(ReferenceSpinTest, KeepsItsSignWhenWholeTurnsGo) {
  EXPECT_EQ(ReferenceSpinAt(kMarch21Of2003 - 1), -131);
}

// -130 + 27.32166 / 4 x 360 / 27.32166 = -40; a whole turn behind it is not taken out.
TEST(ReferenceSpinTest, OfTheMoonTurnsIn27Point32166Days) {
  EXPECT_NEAR(ReferenceSpinAt(kMarch21Of2003 + 27.32166 / 4, 1), -40, 1e-9);
  EXPECT_NEAR(ReferenceSpinAt(kMarch21Of2003 + 27.32166, 1), 230, 1e-9);
}

// 7299.5 days x 360.985647 degrees, less 130, are 2,634,884.75 degrees: 7319 turns and 45 degrees.
TEST(ReferenceSpinTest, Is45DegreesAtNoonOf15March2023) {
  EXPECT_EQ(ReferenceSpinAt(45000.5), 45);
}

TEST(ReferenceSpinTest, OfTheMoonKeepsTheAngleAtATimeThatIsNone) {
  EXPECT_EQ(ReferenceSpinAt(kNaN, 1), 777);
  EXPECT_EQ(ReferenceSpinAt(1e300, 1), 777);
}

TEST(ReferenceSpinTest, KeepsTheAngleWhenDegreesLeave32Bits) {
  EXPECT_EQ(ReferenceSpinAt(1e8), 777);
  EXPECT_EQ(ReferenceSpinAt(kNaN), 777);
}

TEST(TurnCentralBodyTest, BringsTheReferenceAngleIntoOneTurn) {
  EXPECT_EQ(TurnedTo(kMarch21Of2003), 230);
  EXPECT_EQ(TurnedTo(kMarch21Of2003 - 1), 229);
}

TEST(TurnCentralBodyTest, IsOneDegreeAtTheFirstRow) {
  double angle = 777;
  TurnCentralBody({kMarch21Of2003, 3, 3, 10}, 0, 0, angle);
  EXPECT_EQ(angle, 1);
}

TEST(TurnCentralBodyTest, GoesByStepsAtTheEndOfTheDataWhileAMovieRuns) {
  double angle = 100;
  TurnCentralBody({kMarch21Of2003, 10, 0, 10}, 0, 3, angle);
  EXPECT_EQ(angle, 104);
  TurnCentralBody({kMarch21Of2003, 10, 0, 10}, 1, 3, angle);
  EXPECT_EQ(angle, 105);
}

TEST(TurnCentralBodyTest, FollowsTheTimeForAMovieOfTwoSecondsAFrame) {
  double angle = 100;
  TurnCentralBody({kMarch21Of2003, 10, 0, 10}, 0, 2, angle);
  EXPECT_EQ(angle, 230);
}

// 359.127 + 4 = 363.127; its hundredths 363.12; less a turn 3.12.
TEST(TurnCentralBodyTest, LosesATurnAndThousandthsAbove360) {
  double angle = 359.127;
  TurnCentralBody({kMarch21Of2003, 10, 0, 10}, 0, 3, angle);
  EXPECT_NEAR(angle, 3.12, 1e-12);
}

TEST(TurnCentralBodyTest, Keeps360) {
  double angle = 356;
  TurnCentralBody({kMarch21Of2003, 10, 0, 10}, 0, 3, angle);
  EXPECT_EQ(angle, 360);
}

// Modified Julian day 52719, 0.43215606 centuries from 1960: 100.152475 + 0.332501 + 0.000072 + 360 x
// 0.2156057 = 178.1031 degrees, which the almanac gives too (11 h 52 min 25 s). 90 more: 268.1031.
TEST(SiderealAngleTest, IsTheAlmanacsSiderealTimeAnd90Degrees) {
  EXPECT_NEAR(SiderealAngleAt(kMarch21Of2003), 268.1031, 1e-4);
}

// A quarter of a day is 90.2464 degrees more: 268.3495, less a turn -91.6505; 90 more: -1.6505.
TEST(SiderealAngleTest, AddsTheTimeOfDayAndStaysBetweenMinus90And270) {
  EXPECT_NEAR(SiderealAngleAt(kMarch21Of2003 + 0.25), -1.6505, 1e-4);
}

// 1 January 2000, 12 h: 280.4606 degrees by the almanac; less a turn -79.5394; 90 more: 10.4606.
TEST(SiderealAngleTest, AgreesWithTheAlmanacAtNoonOf1January2000) {
  EXPECT_NEAR(SiderealAngleAt(36526.5), 10.4606, 1e-3);
}

// 15 October 1582 is the day behind the Julian 4 October, which a Gregorian count puts 11 days before it.
TEST(SiderealAngleTest, CountsDatesBeforeTheReformInTheJulianCalendar) {
  constexpr double kOctober15Of1582 = -115858;
  const double difference = SiderealAngleAt(kOctober15Of1582) - SiderealAngleAt(kOctober15Of1582 - 11);
  EXPECT_NEAR(difference, 0.98565, 1e-4);
}

// There a day is 0.98565 degrees more again.
TEST(SiderealAngleTest, CountsPlainDaysBeforeTheYear100) {
  constexpr double kSeam = -657072;
  EXPECT_NEAR(SiderealAngleAt(kSeam - 1) - SiderealAngleAt(kSeam - 2), 0.98565, 1e-4);
}

TEST(SiderealAngleTest, KeepsTheAngleForNoDate) {
  EXPECT_EQ(SiderealAngleAt(kNaN), 777);
  EXPECT_EQ(SiderealAngleAt(std::numeric_limits<double>::infinity()), 777);
  EXPECT_EQ(SiderealAngleAt(2958466), 777);
}

TEST(TurnMoonTest, Is180DegreesOn21March2003) {
  EXPECT_EQ(MoonTurnedTo(kMarch21Of2003), 180);
}

// 6.875 days are a quarter of 27.5: 90 + 180. 20.625 days are three quarters: 270 + 180 - 360 = 90.
TEST(TurnMoonTest, TurnsIn27AndAHalfDays) {
  EXPECT_EQ(MoonTurnedTo(kMarch21Of2003 + 6.875), 270);
  EXPECT_EQ(MoonTurnedTo(kMarch21Of2003 + 20.625), 90);
}

// -20.625 days: -270 + 180 = -90, plus a turn 270.
TEST(TurnMoonTest, Is0HalfATurnBeforeTheReference) {
  EXPECT_EQ(MoonTurnedTo(kMarch21Of2003 - 13.75), 0);
}

TEST(TurnMoonTest, GainsATurnBelow0) {
  EXPECT_EQ(MoonTurnedTo(kMarch21Of2003 - 20.625), 270);
}

TEST(TurnMoonTest, Is0AtTheLastRowAnd1AtTheFirst) {
  double angle = 777;
  TurnMoon({kMarch21Of2003, 10, 0, 10}, angle);
  EXPECT_EQ(angle, 0);
  TurnMoon({kMarch21Of2003, 10, 10, 10}, angle);
  EXPECT_EQ(angle, 1);
}

}  // namespace
}  // namespace quorb
