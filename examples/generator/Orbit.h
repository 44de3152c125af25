#pragma once

#include <array>

namespace quorb {

/// Earth's gravitational parameter, km^3/s^2.
inline constexpr double kEarthMu = 398600.4418;

/// Earth's equatorial radius, km.
inline constexpr double kEarthRadius = 6378.137;

/// Radius of the geostationary ring, km.
inline constexpr double kGeostationaryRadius = 42164.0;

/// Three components along the axes of the equatorial frame.
using Vec3 = std::array<double, 3>;

Vec3 operator+(const Vec3& a, const Vec3& b);
Vec3 operator-(const Vec3& a, const Vec3& b);
Vec3 operator*(double factor, const Vec3& a);
double Dot(const Vec3& a, const Vec3& b);
Vec3 Cross(const Vec3& a, const Vec3& b);
double Length(const Vec3& a);

/// `a` divided by its length, which must not be 0.
Vec3 Unit(const Vec3& a);

/// Where a satellite is and how it moves: km and km/s in the Earth's equatorial frame.
struct OrbitState {
  Vec3 position;
  Vec3 velocity;
};

/// Size and shape of the two-body orbit of a state.
struct OrbitShape {
  double semiMajorAxis;  ///< km
  double eccentricity;
  double inclination;  ///< radians
};

/// The shape of a bound orbit around the Earth.
OrbitShape ShapeOf(const OrbitState& state);

/// The state at the perigee of an orbit with its perigee on the descending node, on the -X axis.
/// Radii in km, inclination in radians.
OrbitState StateAtPerigee(double perigeeRadius, double apogeeRadius, double inclination);

/// Seconds of one turn of the orbit, 2 pi sqrt(a^3 / mu).
double PeriodOf(const OrbitState& state);

/// Seconds until the next apogee, from Kepler's equation; less than one period.
double SecondsToApogee(const OrbitState& state);

/// The velocity of a circular orbit in the equator plane, eastward, through this position.
Vec3 EquatorialCircularVelocity(const Vec3& position);

/// The direction in which to burn for the geostationary ring: from the velocity to that of the circular orbit
/// in the equator plane through the same place.
Vec3 VelocityToGain(const OrbitState& state);

/// The state `seconds` later under the Earth's point-mass gravity and a thrust of `acceleration` km/s^2 along
/// VelocityToGain; one step of the classical Runge-Kutta method of order four.
OrbitState Advance(const OrbitState& state, double acceleration, double seconds);

}  // namespace quorb
