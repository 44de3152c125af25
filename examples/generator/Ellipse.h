#pragma once

#include "Orbit.h"

namespace quorb {

/// A closed two-body orbit around any body: radii in km, angles in degrees.
struct Ellipse {
  double mu;  ///< Gravitational parameter of the body, km^3/s^2.
  double periapsis, apoapsis;
  double inclination = 0;
  double node = 0;      ///< Right ascension of the ascending node.
  double argument = 0;  ///< Angle from the node to the periapsis.
};

/// A place on an ellipse with its time.
struct EllipsePoint {
  double seconds;  ///< Since the periapsis.
  OrbitState state;
};

/// The point at an eccentric anomaly in radians, which may go on over several turns.
EllipsePoint PointOnEllipse(const Ellipse& ellipse, double eccentricAnomaly);

/// `vector` turned about X, then about Z; degrees.
Vec3 Tilted(const Vec3& vector, double aboutX, double aboutZ);

}  // namespace quorb
