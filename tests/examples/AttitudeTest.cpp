#include "Attitude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quorb {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

/// v turned by the unit quaternion q = w x y z.
Vec3 Turned(const std::array<double, 4>& q, const Vec3& v) {
  const Vec3 axis = {q[1], q[2], q[3]};
  const Vec3 twice = 2 * Cross(axis, v);
  return v + q[0] * twice + Cross(axis, twice);
}

void ExpectNear(const Vec3& actual, const Vec3& expected) {
  for (std::size_t i = 0; i < 3; ++i)
    EXPECT_NEAR(actual[i], expected[i], 1e-12) << i;
}

TEST(Attitude, AxesPointAlongThrustAndOrbitNormal) {
  const OrbitState state = {{42164, 0, 0}, {0, 3, 0}};
  const BodyAxes axes = AxesAlong({0, 2, 0}, state);
  ExpectNear(axes.z, {0, 1, 0});
  ExpectNear(axes.y, {0, 0, 1});
  ExpectNear(axes.x, {-1, 0, 0} /* Y x Z */);
}

TEST(Attitude, AxesAreRightHandedWhenTheThrustLeavesTheOrbitPlane) {
  const BodyAxes axes = AxesAlong({0.3, 2, -0.5}, {{42164, 0, 0}, {0, 3, 0}});
  ExpectNear(Cross(axes.x, axes.y), axes.z);
  EXPECT_NEAR(Length(axes.y), 1, 1e-12);
  EXPECT_GT(axes.y[2], 0.9);
}

TEST(Attitude, QuaternionCarriesTheBodyAxesIntoTheFrame) {
  for (const Vec3& thrust :
       {Vec3{0, 1, 0}, Vec3{0, -1, 0}, Vec3{1, 0.1, 0}, Vec3{-1, 0.1, 0.2}, Vec3{0.1, 2, 0.9}}) {
    const BodyAxes axes = AxesAlong(thrust, {{42164, 0, 0}, {0, 3, 0.3}});
    const std::array<double, 4> q = QuaternionOf(axes);
    EXPECT_NEAR(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3], 1, 1e-12);
    EXPECT_GE(q[0], 0);
    ExpectNear(Turned(q, {1, 0, 0}), axes.x);
    ExpectNear(Turned(q, {0, 1, 0}), axes.y);
    ExpectNear(Turned(q, {0, 0, 1}), axes.z);
  }
}

TEST(Attitude, IdentityAxesGiveTheUnitQuaternion) {
  const std::array<double, 4> q = QuaternionOf({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}});
  EXPECT_DOUBLE_EQ(q[0], 1);
  EXPECT_DOUBLE_EQ(q[1], 0);
}

TEST(Attitude, SunStandsOnTheEquatorAtTheEquinoxAndHighestAtTheSolstice) {
  const Vec3 equinox = SunDirection(45736 + 9.0 / 24 + 1.0 / 1440);  // 2025-03-20 09:01 UTC
  EXPECT_NEAR(equinox[0], 1, 1e-6);
  EXPECT_NEAR(equinox[2], 0, 0.01 * kDegree);
  const Vec3 solstice = SunDirection(45829.1125);  // 2025-06-21 02:42 UTC
  EXPECT_NEAR(std::asin(solstice[2]) / kDegree, 23.44, 0.01);
  EXPECT_NEAR(Length(solstice), 1, 1e-12);
}

TEST(Attitude, ArrayAngleTurnsThePanelNormalTowardTheSun) {
  const BodyAxes axes = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  EXPECT_NEAR(ArrayAngle(axes, {0, 0, 1}), 0, 1e-12);
  EXPECT_NEAR(ArrayAngle(axes, {1, 0, 0}), 90, 1e-12);
  EXPECT_NEAR(ArrayAngle(axes, {-1, 0, 0}), 270, 1e-12);
  EXPECT_NEAR(ArrayAngle(axes, Unit({1, 5, 1})), 45, 1e-12);
}

}  // namespace
}  // namespace quorb
