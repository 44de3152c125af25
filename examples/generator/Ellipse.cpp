#include "Ellipse.h"

#include <cmath>
#include <numbers>

namespace quorb {

namespace {

constexpr double kDegree = std::numbers::pi / 180;

Vec3 TurnedAboutZ(const Vec3& v, double degrees) {
  const double c = std::cos(degrees * kDegree);
  const double s = std::sin(degrees * kDegree);
  return {c * v[0] - s * v[1], s * v[0] + c * v[1], v[2]};
}

}  // namespace

Vec3 Tilted(const Vec3& vector, double aboutX, double aboutZ) {
  const double c = std::cos(aboutX * kDegree);
  const double s = std::sin(aboutX * kDegree);
  return TurnedAboutZ({vector[0], c * vector[1] - s * vector[2], s * vector[1] + c * vector[2]}, aboutZ);
}

EllipsePoint PointOnEllipse(const Ellipse& ellipse, double eccentricAnomaly) {
  const double a = (ellipse.periapsis + ellipse.apoapsis) / 2;
  const double e = 1 - ellipse.periapsis / a;
  const double b = a * std::sqrt(1 - e * e);
  const double motion = std::sqrt(ellipse.mu / (a * a * a));
  const double c = std::cos(eccentricAnomaly);
  const double s = std::sin(eccentricAnomaly);
  const double rate = motion / (1 - e * c);
  const auto placed = [&ellipse](const Vec3& inPlane) {
    return Tilted(TurnedAboutZ(inPlane, ellipse.argument), ellipse.inclination, ellipse.node);
  };
  return {(eccentricAnomaly - e * s) / motion,
          {placed({a * (c - e), b * s, 0}), placed({-a * s * rate, b * c * rate, 0})}};
}

}  // namespace quorb
