#include "SystemDayClock.h"

#include <ctime>

namespace quorb {

namespace {

constexpr double kSecondsPerHour = 3600;
constexpr double kSecondsPerMinute = 60;

double SecondsSinceMidnight() {
  using std::chrono::system_clock;
  const system_clock::time_point now = system_clock::now();
  const std::time_t whole = system_clock::to_time_t(now);
  const double fraction = std::chrono::duration<double>(now - system_clock::from_time_t(whole)).count();
  std::tm local = {};
  if (localtime_r(&whole, &local) == nullptr) return fraction;
  return local.tm_hour * kSecondsPerHour + local.tm_min * kSecondsPerMinute + local.tm_sec + fraction;
}

}  // namespace

SystemDayClock::SystemDayClock() : start_(SecondsSinceMidnight()), made_(std::chrono::steady_clock::now()) {}

double SystemDayClock::Seconds() const {
  return start_ + std::chrono::duration<double>(std::chrono::steady_clock::now() - made_).count();
}

}  // namespace quorb
