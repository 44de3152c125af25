#pragma once

#include <array>

#include "Orbit.h"

namespace quorb {

/// The body's axes as unit vectors of the equatorial frame, right-handed.
struct BodyAxes {
  Vec3 x, y, z;
};

/// The axes with Z along `thrust` and Y as near to the normal of the orbit plane as that allows. `thrust` is
/// no zero vector and not along that normal.
BodyAxes AxesAlong(const Vec3& thrust, const OrbitState& state);

/// The unit quaternion w x y z, w not negative, of the rotation that carries body components into the frame:
/// the image of the body's X axis is `axes.x`, and so on.
std::array<double, 4> QuaternionOf(const BodyAxes& axes);

/// The unit vector from the Earth to the Sun in the equatorial frame at a serial day, within 0.01 degrees in
/// this century: the low-precision formulas of the Astronomical Almanac.
Vec3 SunDirection(double serialDay);

/// The angle in degrees, 0 to 360, about the body's +Y axis that turns a panel whose normal is +Z toward the
/// Sun.
double ArrayAngle(const BodyAxes& axes, const Vec3& sun);

}  // namespace quorb
