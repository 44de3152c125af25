#include "SpinAngles.h"

#include <chrono>
#include <cmath>

#include "ModMATHASdbl.h"
#include "Mth.h"

namespace quorb {

namespace {

/// 21 March 2003, the day of the reference angle.
constexpr double kReferenceDay = 37701;
constexpr double kReferenceAngle = -130;
constexpr double kTurn = 360;
constexpr double kSecondsPerDay = 86400;
constexpr double kSiderealDaySeconds = 86164.09;
constexpr double kMoonTurnDays = 27.32166;
/// The drawn Moon's own turn is a little slower.
constexpr double kDrawnMoonTurnDays = 27.5;
constexpr double kLargestWholeNumber = 2147483647;

/// Julian day of the serial date 0.
constexpr double kSerialEpoch = 2415018.5;
constexpr double kModifiedJulianEpoch = 2400000.5;
/// First serial date that goes through the calendar, 29 December 100, and the end of 31 December 9999.
constexpr double kFirstCalendarDay = -657072;
constexpr double kCalendarEnd = 2958466;
/// Longer ago the expression for the sidereal time has no exact angle left.
constexpr double kFirstDay = -1e9;

/// An angle above 360 degrees loses a turn and what lies behind 1 / `parts` of a degree; one below 0 gains a
/// turn.
double InOneTurn(double angle, double parts) {
  if (angle > kTurn) angle = std::floor(parts * angle) / parts - kTurn;
  if (angle < 0) angle += kTurn;
  return angle;
}

/// The Julian day of 0 h of the serial date `days`, through the calendar that dates are shown in.
bool CalendarJulianDay(double days, double& julianDay) {
  using std::chrono::day;
  using std::chrono::month;
  using std::chrono::year;
  constexpr std::chrono::sys_days kSerialZero = year(1899) / month(12) / day(30);
  const std::chrono::year_month_day date(kSerialZero + std::chrono::days(static_cast<int>(std::floor(days))));
  double ephemerisTime = 0;
  return DateToJulian(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                      static_cast<unsigned>(date.day()), julianDay, ephemerisTime);
}

/// Mean sidereal time at Greenwich at 0 h, in degrees, not brought into one turn.
double SiderealTimeAtMidnight(double modifiedJulianDay) {
  constexpr double kYear1960 = 36934.5;
  constexpr double kDaysPerCentury = 36525;
  const double centuries = (modifiedJulianDay - kYear1960) / kDaysPerCentury;
  const double years = 100 * centuries;
  return 100.152475 + 0.7694 * centuries + 0.0003871 * centuries * centuries +
         kTurn * (years - std::floor(years));
}

}  // namespace

void ReferenceSpin(double days, int moonFocus, double& angle) {
  if (moonFocus == 1) {
    if (!(std::abs(days) < kLargestWholeNumber)) return;
    angle = kReferenceAngle + (days - kReferenceDay) * kTurn / kMoonTurnDays;
    return;
  }
  const double degrees =
      kReferenceAngle + (days - kReferenceDay) * kTurn * kSecondsPerDay / kSiderealDaySeconds;
  const double whole = std::nearbyint(degrees);
  if (std::abs(whole) <= kLargestWholeNumber) angle = std::fmod(whole, kTurn);
}

void TurnCentralBody(const FrameTime& time, int moonFocus, double movieFrameTime, double& angle) {
  constexpr double kEarthStep = 4, kMoonStep = 1;
  if (movieFrameTime > 2 && time.row == time.lastRow) {
    angle += moonFocus == 1 ? kMoonStep : kEarthStep;
  } else {
    ReferenceSpin(time.days, moonFocus, angle);
  }
  if (time.row == time.firstRow) angle = 1;
  constexpr double kHundredths = 100;
  angle = InOneTurn(angle, kHundredths);
}

void SiderealAngle(double days, double& angle) {
  constexpr double kDegreesPerSecond = kTurn / 86164.0905;
  if (!(days >= kFirstDay && days < kCalendarEnd)) return;
  const double seconds = (days - std::floor(days)) * kSecondsPerDay;
  double julianDay = kSerialEpoch + days;
  if (days >= kFirstCalendarDay && !CalendarJulianDay(days, julianDay)) return;
  const double midnight = SiderealTimeAtMidnight(std::floor(julianDay - kModifiedJulianEpoch));
  const double siderealTime = DegPos(DegToRad(midnight)) + kDegreesPerSecond * seconds;
  constexpr double kGreenwichOfPicture = 90;
  angle = DegSigned(siderealTime) + kGreenwichOfPicture;
}

void TurnMoon(const FrameTime& time, double& angle) {
  const double turns = (time.days - kReferenceDay) / kDrawnMoonTurnDays;
  if (time.row == time.lastRow) {
    angle = 0;
  } else if (std::isfinite(turns)) {
    angle = (turns - std::trunc(turns)) * kTurn + kTurn / 2;
  }
  if (time.row == time.firstRow) angle = 1;
  constexpr double kTenThousandths = 10000;
  angle = InOneTurn(angle, kTenThousandths);
}

}  // namespace quorb
