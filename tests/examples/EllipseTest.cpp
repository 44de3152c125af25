#include "Ellipse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quorb {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr Ellipse kEllipse = {kEarthMu, 7000, 42000, 28, 60, 200};

void ExpectNear(const Vec3& actual, const Vec3& expected, double tolerance) {
  for (std::size_t i = 0; i < 3; ++i)
    EXPECT_NEAR(actual[i], expected[i], tolerance) << i;
}

TEST(Ellipse, TiltTurnsAboutXThenAboutZ) {
  ExpectNear(Tilted({0, 1, 0}, 90, 0), {0, 0, 1}, 1e-15);
  ExpectNear(Tilted({1, 0, 0}, 90, 90), {0, 1, 0}, 1e-15);
  ExpectNear(Tilted({0, 1, 0}, 0, 90), {-1, 0, 0}, 1e-15);
}

TEST(Ellipse, PeriapsisStandsOnTheNodeWithoutAnArgument) {
  const EllipsePoint point = PointOnEllipse({kEarthMu, 7000, 7000, 90, 90}, 0);
  EXPECT_DOUBLE_EQ(point.seconds, 0);
  ExpectNear(point.state.position, {0, 7000, 0}, 1e-9);
  ExpectNear(Unit(point.state.velocity), {0, 0, 1}, 1e-12);
}

TEST(Ellipse, StatesHaveTheShapeThatWasAsked) {
  for (const double anomaly : {0.0, 1.0, kPi, 5.0, 9.0}) {
    const OrbitShape shape = ShapeOf(PointOnEllipse(kEllipse, anomaly).state);
    EXPECT_NEAR(shape.semiMajorAxis, 24500, 1e-6);
    EXPECT_NEAR(shape.eccentricity, 35.0 / 49, 1e-12);
    EXPECT_NEAR(shape.inclination, 28 * kPi / 180, 1e-12);
  }
}

TEST(Ellipse, TimesAreThoseOfKeplersEquation) {
  const OrbitState periapsis = PointOnEllipse(kEllipse, 0).state;
  EXPECT_NEAR(PointOnEllipse(kEllipse, 2 * kPi).seconds, PeriodOf(periapsis), 1e-6);
  const EllipsePoint point = PointOnEllipse(kEllipse, 1.2);
  OrbitState flown = periapsis;
  for (int i = 0; i < 1000; ++i)
    flown = Advance(flown, 0, point.seconds / 1000);
  ExpectNear(flown.position, point.state.position, 1e-4);
  ExpectNear(flown.velocity, point.state.velocity, 1e-7);
}

}  // namespace
}  // namespace quorb
