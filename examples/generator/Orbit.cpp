#include "Orbit.h"

#include <cmath>
#include <numbers>

namespace quorb {

namespace {

constexpr Vec3 kNorth = {0, 0, 1};

/// The rate of change of a state: its velocity and its acceleration.
OrbitState RateOf(const OrbitState& state, double thrustAcceleration) {
  const double radius = Length(state.position);
  Vec3 acceleration = -kEarthMu / (radius * radius * radius) * state.position;
  if (thrustAcceleration > 0) acceleration = acceleration + thrustAcceleration * Unit(VelocityToGain(state));
  return {state.velocity, acceleration};
}

OrbitState Moved(const OrbitState& state, double seconds, const OrbitState& rate) {
  return {state.position + seconds * rate.position, state.velocity + seconds * rate.velocity};
}

}  // namespace

Vec3 operator+(const Vec3& a, const Vec3& b) {
  return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

Vec3 operator-(const Vec3& a, const Vec3& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

Vec3 operator*(double factor, const Vec3& a) {
  return {factor * a[0], factor * a[1], factor * a[2]};
}

double Dot(const Vec3& a, const Vec3& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vec3 Cross(const Vec3& a, const Vec3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double Length(const Vec3& a) {
  return std::sqrt(Dot(a, a));
}

Vec3 Unit(const Vec3& a) {
  return 1 / Length(a) * a;
}

OrbitShape ShapeOf(const OrbitState& state) {
  const Vec3 momentum = Cross(state.position, state.velocity);
  const double energyTerm = 2 / Length(state.position) - Dot(state.velocity, state.velocity) / kEarthMu;
  const Vec3 eccentricity = 1 / kEarthMu * Cross(state.velocity, momentum) - Unit(state.position);
  return {1 / energyTerm, Length(eccentricity), std::acos(momentum[2] / Length(momentum))};
}

OrbitState StateAtPerigee(double perigeeRadius, double apogeeRadius, double inclination) {
  const double semiMajorAxis = (perigeeRadius + apogeeRadius) / 2;
  const double speed = std::sqrt(kEarthMu * (2 / perigeeRadius - 1 / semiMajorAxis));
  return {{-perigeeRadius, 0, 0}, {0, -speed * std::cos(inclination), -speed * std::sin(inclination)}};
}

double PeriodOf(const OrbitState& state) {
  const double a = ShapeOf(state).semiMajorAxis;
  return 2 * std::numbers::pi * std::sqrt(a * a * a / kEarthMu);
}

double SecondsToApogee(const OrbitState& state) {
  const double a = ShapeOf(state).semiMajorAxis;
  const double sineTerm = Dot(state.position, state.velocity) / std::sqrt(kEarthMu * a);  // e sin E
  const double cosineTerm = 1 - Length(state.position) / a;                               // e cos E
  const double meanAnomaly = std::atan2(sineTerm, cosineTerm) - sineTerm;
  return (std::numbers::pi - meanAnomaly) / (2 * std::numbers::pi) * PeriodOf(state);
}

Vec3 EquatorialCircularVelocity(const Vec3& position) {
  return std::sqrt(kEarthMu / Length(position)) * Unit(Cross(kNorth, position));
}

Vec3 VelocityToGain(const OrbitState& state) {
  return EquatorialCircularVelocity(state.position) - state.velocity;
}

OrbitState Advance(const OrbitState& state, double acceleration, double seconds) {
  const OrbitState k1 = RateOf(state, acceleration);
  const OrbitState k2 = RateOf(Moved(state, seconds / 2, k1), acceleration);
  const OrbitState k3 = RateOf(Moved(state, seconds / 2, k2), acceleration);
  const OrbitState k4 = RateOf(Moved(state, seconds, k3), acceleration);
  const Vec3 velocity = k1.position + 2 * k2.position + 2 * k3.position + k4.position;
  const Vec3 change = k1.velocity + 2 * k2.velocity + 2 * k3.velocity + k4.velocity;
  return Moved(state, seconds / 6, {velocity, change});
}

}  // namespace quorb
