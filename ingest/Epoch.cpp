#include "Epoch.h"

#include <algorithm>
#include <charconv>
#include <chrono>

#include "StateText.h"

namespace quorb {

namespace {

constexpr int kSerialDayOf1970 = 25569;
constexpr double kSecondsPerDay = 86400;

/// Takes a number of exactly `digits` digits off the front; false when there is none.
bool TakeDigits(std::string_view& rest, std::size_t digits, int& value) {
  if (rest.size() < digits) return false;
  if (rest.substr(0, digits).find_first_not_of("0123456789") != std::string_view::npos) return false;
  std::from_chars(rest.data(), rest.data() + digits, value);
  rest.remove_prefix(digits);
  return true;
}

/// Takes one of the characters of `marks` off the front.
bool TakeMark(std::string_view& rest, std::string_view marks) {
  if (rest.empty() || marks.find(rest.front()) == std::string_view::npos) return false;
  rest.remove_prefix(1);
  return true;
}

/// Takes "yyyy-mm-dd" or "yyyy-ddd" off the front and gives its days since 1970-01-01.
std::optional<int> TakeDate(std::string_view& rest) {
  int year = 0;
  if (!TakeDigits(rest, 4, year) || !TakeMark(rest, "-")) return std::nullopt;
  const std::chrono::year calendarYear(year);
  int dayOfYear = 0;
  if (TakeDigits(rest, 3, dayOfYear)) {
    if (dayOfYear < 1 || dayOfYear > (calendarYear.is_leap() ? 366 : 365)) return std::nullopt;
    const std::chrono::sys_days first = calendarYear / std::chrono::January / 1;
    return static_cast<int>(first.time_since_epoch().count()) + dayOfYear - 1;
  }
  int month = 0;
  int day = 0;
  if (!TakeDigits(rest, 2, month) || !TakeMark(rest, "-") || !TakeDigits(rest, 2, day)) return std::nullopt;
  const std::chrono::year_month_day date(calendarYear, std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  if (!date.ok()) return std::nullopt;
  return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count());
}

/// Takes "hh:mm:ss" with an optional fraction off the front and gives the seconds of the day.
std::optional<double> TakeTimeOfDay(std::string_view& rest) {
  int hour = 0;
  int minute = 0;
  int second = 0;
  if (!TakeDigits(rest, 2, hour) || !TakeMark(rest, ":") || !TakeDigits(rest, 2, minute) ||
      !TakeMark(rest, ":") || !TakeDigits(rest, 2, second) || hour > 23 || minute > 59 || second > 60) {
    return std::nullopt;
  }
  double fraction = 0;
  if (!rest.empty() && rest.front() == '.') {
    const std::size_t end = std::min(rest.find_first_not_of("0123456789", 1), rest.size());
    if (end > 1) std::from_chars(rest.data(), rest.data() + end, fraction);
    rest.remove_prefix(end);
  }
  return hour * 3600 + minute * 60 + second + fraction;
}

}  // namespace

std::optional<double> ParseEpoch(std::string_view text) {
  std::string_view rest = TrimSpace(text);
  const std::optional<int> days = TakeDate(rest);
  if (!days || !TakeMark(rest, "T ")) return std::nullopt;
  const std::optional<double> seconds = TakeTimeOfDay(rest);
  if (!seconds) return std::nullopt;
  TakeMark(rest, "Z");
  if (!rest.empty()) return std::nullopt;
  return *days + kSerialDayOf1970 + *seconds / kSecondsPerDay;
}

}  // namespace quorb
