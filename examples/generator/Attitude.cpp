#include "Attitude.h"

#include <cmath>
#include <numbers>

namespace quorb {

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kSerialDayOfJ2000 = 36526.5;

}  // namespace

BodyAxes AxesAlong(const Vec3& thrust, const OrbitState& state) {
  const Vec3 z = Unit(thrust);
  const Vec3 normal = Cross(state.position, state.velocity);
  const Vec3 x = Unit(Cross(normal, z));
  return {x, Cross(z, x), z};
}

std::array<double, 4> QuaternionOf(const BodyAxes& axes) {
  const Vec3 columns[3] = {axes.x, axes.y, axes.z};
  const auto m = [&columns](int row, int column) { return columns[column][static_cast<std::size_t>(row)]; };
  // Four times the square of each component; the largest one gives the others without loss.
  const double squares[4] = {1 + m(0, 0) + m(1, 1) + m(2, 2), 1 + m(0, 0) - m(1, 1) - m(2, 2),
                             1 - m(0, 0) + m(1, 1) - m(2, 2), 1 - m(0, 0) - m(1, 1) + m(2, 2)};
  int largest = 0;
  for (int i = 1; i < 4; ++i) {
    if (squares[i] > squares[largest]) largest = i;
  }
  const double wx = m(2, 1) - m(1, 2);
  const double wy = m(0, 2) - m(2, 0);
  const double wz = m(1, 0) - m(0, 1);
  const double xy = m(0, 1) + m(1, 0);
  const double xz = m(0, 2) + m(2, 0);
  const double yz = m(1, 2) + m(2, 1);
  const std::array<double, 4> products[4] = {
      {squares[0], wx, wy, wz}, {wx, squares[1], xy, xz}, {wy, xy, squares[2], yz}, {wz, xz, yz, squares[3]}};
  std::array<double, 4> q = products[largest];
  const double sign = q[0] < 0 ? -1 : 1;
  for (double& component : q)
    component *= sign / (2 * std::sqrt(squares[largest]));
  return q;
}

Vec3 SunDirection(double serialDay) {
  const double days = serialDay - kSerialDayOfJ2000;
  const double meanLongitude = 280.460 + 0.9856474 * days;
  const double meanAnomaly = (357.528 + 0.9856003 * days) * kDegree;
  const double longitude =
      (meanLongitude + 1.915 * std::sin(meanAnomaly) + 0.020 * std::sin(2 * meanAnomaly)) * kDegree;
  const double obliquity = (23.439 - 0.0000004 * days) * kDegree;
  return {std::cos(longitude), std::cos(obliquity) * std::sin(longitude),
          std::sin(obliquity) * std::sin(longitude)};
}

double ArrayAngle(const BodyAxes& axes, const Vec3& sun) {
  const double angle = std::atan2(Dot(sun, axes.x), Dot(sun, axes.z)) / kDegree;
  return angle < 0 ? angle + 360 : angle;
}

}  // namespace quorb
