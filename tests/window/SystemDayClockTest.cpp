#include "SystemDayClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <thread>

namespace quorb {
namespace {

TEST(SystemDayClock, TellsTheLocalTimeOfDay) {
  const SystemDayClock clock;
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  ASSERT_NE(localtime_r(&now, &local), nullptr);
  const double expected = local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec;
  // Modulo a day, for a run over midnight.
  EXPECT_LE(std::abs(std::remainder(clock.Seconds() - expected, 86400)), 1.5);
  EXPECT_GE(clock.Seconds(), 0);
}

TEST(SystemDayClock, GoesOnWithFractions) {
  const SystemDayClock clock;
  const double before = clock.Seconds();
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  const double passed = clock.Seconds() - before;
  EXPECT_GE(passed, 0.05);
  EXPECT_LT(passed, 5);
}

}  // namespace
}  // namespace quorb
