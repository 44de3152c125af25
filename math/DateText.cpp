#include "DateText.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace quorb {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kFirstDay = -693593;  // 1 January of the year 1
constexpr double kLastDay = 2958466;   // 1 January of the year 10000
constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

std::string DateAndTimeText(double days) {
  if (!(days >= kFirstDay && days < kLastDay)) return {};
  using namespace std::chrono;
  const auto rounded = static_cast<std::int64_t>(std::floor(days * kSecondsPerDay + 0.5));
  const sys_days origin = year(1899) / December / 30;
  const sys_seconds moment = origin + seconds(rounded);
  const sys_days midnight = floor<std::chrono::days>(moment);
  const year_month_day date(midnight);
  const auto minuteOfDay = duration_cast<minutes>(moment - midnight).count();
  char text[48];
  const int length = std::snprintf(text, sizeof text, " %02u  %s %04d %02d:%02d ", unsigned{date.day()},
                                   kMonths[unsigned{date.month()} - 1], int{date.year()},
                                   static_cast<int>(minuteOfDay / 60), static_cast<int>(minuteOfDay % 60));
  return {text, static_cast<std::size_t>(length)};
}

std::string TimeOfDayText(double days) {
  if (!std::isfinite(days)) return {};
  const double seconds = (days - std::floor(days)) * kSecondsPerDay;
  const auto hundredths = std::min<std::int64_t>(std::llround(seconds * 100), 8639999);
  char text[32];
  const int length =
      std::snprintf(text, sizeof text, " %02d:%02d:%02d.%02d ", static_cast<int>(hundredths / 360000),
                    static_cast<int>(hundredths / 6000 % 60), static_cast<int>(hundredths / 100 % 60),
                    static_cast<int>(hundredths % 100));
  return {text, static_cast<std::size_t>(length)};
}

}  // namespace quorb
