#include "Orbit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quorb {
namespace {

TEST(Orbit, PerigeeStateHasTheShapeThatWasAsked) {
  const OrbitShape shape = ShapeOf(StateAtPerigee(6628.137, 42164.137, 0.1));
  EXPECT_NEAR(shape.semiMajorAxis, 24396.137, 1e-6);
  EXPECT_NEAR(shape.eccentricity, 17768.0 / 24396.137, 1e-12);
  EXPECT_NEAR(shape.inclination, 0.1, 1e-12);
}

TEST(Orbit, PeriodOfTheRingIsASiderealDay) {
  EXPECT_NEAR(PeriodOf(StateAtPerigee(42164.17, 42164.17, 0)), 86164.1, 0.1);
}

TEST(Orbit, ApogeeIsHalfAPeriodAfterPerigee) {
  const OrbitState perigee = StateAtPerigee(7000, 42000, 0.2);
  EXPECT_NEAR(SecondsToApogee(perigee), PeriodOf(perigee) / 2, 1e-6);
}

TEST(Orbit, CoastReachesTheApogeeWhenKeplersEquationSays) {
  OrbitState state = StateAtPerigee(7000, 42000, 0.2);
  for (int i = 0; i < 100; ++i)
    state = Advance(state, 0, 10);
  const double rest = SecondsToApogee(state);
  const int steps = static_cast<int>(rest / 10);
  for (int i = 0; i < steps; ++i)
    state = Advance(state, 0, 10);
  state = Advance(state, 0, rest - 10 * steps);
  EXPECT_NEAR(Length(state.position), 42000, 1e-3);
  EXPECT_NEAR(Dot(state.position, state.velocity), 0, 0.1);
}

TEST(Orbit, CoastOfOneTurnComesBack) {
  const OrbitState start = StateAtPerigee(6628.137, 42164.137, 0.1);
  const double period = PeriodOf(start);
  const int steps = static_cast<int>(period / 10);
  OrbitState state = start;
  for (int i = 0; i < steps; ++i)
    state = Advance(state, 0, 10);
  state = Advance(state, 0, period - 10 * steps);
  EXPECT_LT(Length(state.position - start.position), 0.01);
}

TEST(Orbit, ThrustOfOneStepAddsItsVelocityAlongTheGain) {
  const OrbitState start = StateAtPerigee(42164, 42164, 0.1);
  const OrbitState pushed = Advance(start, 1e-4, 1);
  const OrbitState free = Advance(start, 0, 1);
  const Vec3 change = pushed.velocity - free.velocity;
  EXPECT_NEAR(Length(change), 1e-4, 1e-9);
  EXPECT_NEAR(Dot(Unit(change), Unit(VelocityToGain(start))), 1, 1e-6);
}

TEST(Orbit, CircularVelocityIsEastwardInTheEquatorPlane) {
  const Vec3 velocity = EquatorialCircularVelocity({42164, 0, 100});
  EXPECT_DOUBLE_EQ(velocity[0], 0);
  EXPECT_NEAR(velocity[1], std::sqrt(398600.4418 / std::hypot(42164, 100)), 1e-12);
  EXPECT_DOUBLE_EQ(velocity[2], 0);
}

}  // namespace
}  // namespace quorb
