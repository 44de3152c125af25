#include "Attitude.h"

#include <algorithm>
#include <cmath>

#include "Mth.h"

namespace quorb {

namespace {

/// The value of π that attitudes are converted with, both ways.
constexpr double kShortPi = 3.14159;
/// An axis may miss the length 1 by this much.
constexpr double kAxisTolerance = 0.45;
constexpr double kBadAngle = 90;

double HalfAngle(double degrees) {
  return degrees * kShortPi / 180 / 2;
}

bool IsFinite(const Quater& q) {
  return std::ranges::all_of(q.component, [](float number) { return std::isfinite(number); });
}

bool IsFinite(const Vector3& v) {
  return std::ranges::all_of(v.component, [](double number) { return std::isfinite(number); });
}

void TakeBadAttitude(BodyState& state) {
  state.AttitudeAngle = kBadAngle;
  state.AttAxisX = 1;
  state.AttAxisY = state.AttAxisZ = 0;
  const double half = HalfAngle(kBadAngle);
  state.Q = {{static_cast<float>(std::cos(half)), static_cast<float>(std::sin(half)), 0, 0}};
}

void TurnAxis(const Vector3& axis, const Quater& q, Vector3& image) {
  Vector3 turned;
  vRotQuat(axis, q, turned);
  if (IsFinite(turned)) image = turned;
}

}  // namespace

void TakeAttitude(BodyState& state, double w, double x, double y, double z) {
  state.Q = {{static_cast<float>(MaxOf(-1.0, w)), static_cast<float>(x), static_cast<float>(y),
              static_cast<float>(z)}};
  if (!IsFinite(state.Q)) {
    TakeBadAttitude(state);
    return;
  }
  const Vector3 vectorPart{{state.Q(2), state.Q(3), state.Q(4)}};
  state.AttitudeAngle = 2 * Atn2(state.Q(1), normseule(vectorPart)) * 180 / kShortPi;
  double sine = std::sin(HalfAngle(state.AttitudeAngle));
  if (sine == 0) sine = 1;
  const Vector3 axis{{vectorPart(1) / sine, vectorPart(2) / sine, vectorPart(3) / sine}};
  if (std::abs(normseule(axis) - 1) > kAxisTolerance) {
    TakeBadAttitude(state);
    return;
  }
  state.AttAxisX = axis(1);
  state.AttAxisY = axis(2);
  state.AttAxisZ = axis(3);
}

void TurnLocalAxes(BodyState& state) {
  TurnAxis({{1, 0, 0}}, state.Q, state.SatAxisX);
  TurnAxis({{0, 1, 0}}, state.Q, state.SatAxisY);
  TurnAxis({{0, 0, 1}}, state.Q, state.SatAxisZ);
}

}  // namespace quorb
