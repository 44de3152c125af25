#include <cmath>
#include <numbers>

#include "Ellipse.h"
#include "ExampleFiles.h"

namespace quorb {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kStartDay = 45809.25;  // 2025-06-01 06:00
constexpr double kSecondsPerDay = 86400;
constexpr double kMetres = 1000;

void AddRow(ExampleTable& table, const Vec3& position, double time) {
  RowText text;
  for (const double coordinate : position)
    text.Number(coordinate);
  table.rows.push_back(text.Number(time).Line());
}

// ---- a launch ---------------------------------------------------------------------------------------------

constexpr double kClimbTurn = 0.35;    // radians of the Earth below the climb
constexpr double kFlightTurn = 1.5;    // radians of the Earth below the whole flight
constexpr double kOrbitHeight = 1200;  // km
constexpr double kClimbSeconds = 900;
/// 2025-12-01 13:27: the Earth of that hour has the launch site below the first row.
constexpr double kLaunchDay = 45992.56042;

/// Height over the ground behind so much of the Earth: up at once, level at the end.
double HeightAt(double angle) {
  if (angle >= kClimbTurn) return kOrbitHeight;
  return kOrbitHeight * std::sin(angle / kClimbTurn * kTurn / 4);
}

/// Seconds since the launch.
double SecondsAt(double angle) {
  const double radius = kEarthRadius + kOrbitHeight;
  const double motion = std::sqrt(kEarthMu / (radius * radius * radius));
  if (angle < kClimbTurn) return kClimbSeconds * std::sqrt(angle / kClimbTurn);
  return kClimbSeconds + (angle - kClimbTurn) / motion;
}

// ---- a flight to the Moon ---------------------------------------------------------------------------------

constexpr double kMoonMu = 4902.8;
constexpr double kSeamEarthRadius = 330000;
constexpr double kSeamMoonRadius = 60000;
constexpr double kMoonOrbitRadius = 25000;

/// From near the Earth to the seam, in the Earth's frame.
double FlyToTheSeam(ExampleTable& table) {
  constexpr Ellipse kOut = {kEarthMu, 6700, 400000, 28, 15, 200};
  constexpr int kRows = 150;
  const double a = (kOut.periapsis + kOut.apoapsis) / 2;
  const double last = std::acos((1 - kSeamEarthRadius / a) / (1 - kOut.periapsis / a));
  EllipsePoint point{};
  for (int i = 0; i <= kRows; ++i) {
    point = PointOnEllipse(kOut, last * i / kRows);
    AddRow(table, point.state.position, kStartDay + point.seconds / kSecondsPerDay);
  }
  return kStartDay + point.seconds / kSecondsPerDay;
}

/// From the seam down to the Moon and two turns around it, in the Moon's frame. The descent is half of an
/// ellipse from its highest point; a burn at its end leaves the circle.
void FlyAroundTheMoon(ExampleTable& table, double seamDay) {
  constexpr Ellipse kDown = {kMoonMu, kMoonOrbitRadius, kSeamMoonRadius, 10, 40, 0};
  constexpr Ellipse kRound = {kMoonMu, kMoonOrbitRadius, kMoonOrbitRadius, 10, 40, 0};
  constexpr int kRows = 40;
  const double start = PointOnEllipse(kDown, kTurn / 2).seconds;
  double day = seamDay;
  for (int i = 0; i <= kRows; ++i) {
    const EllipsePoint point = PointOnEllipse(kDown, kTurn / 2 * (1 + static_cast<double>(i) / kRows));
    day = seamDay + (point.seconds - start) / kSecondsPerDay;
    AddRow(table, point.state.position, day);
  }
  for (int i = 1; i <= 3 * kRows; ++i) {
    const EllipsePoint point = PointOnEllipse(kRound, 2 * kTurn * i / (3 * kRows));
    AddRow(table, point.state.position, day + point.seconds / kSecondsPerDay);
  }
}

}  // namespace

ExampleTable NedExample() {
  ExampleTable table;
  table.sheetName = "North-East-Down";
  table.title = "Launch seen from its site ned 5.240 -52.7 0";
  table.scale = 0.001;
  constexpr int kRows = 240;
  constexpr double kAzimuth = 0.25;  // radians from east toward north
  for (int i = 0; i <= kRows; ++i) {
    // Closer rows in the climb.
    const double share = static_cast<double>(i) / kRows;
    const double angle = kFlightTurn * std::pow(share, 1.5);
    const double radius = kEarthRadius + HeightAt(angle);
    const double outward = radius * std::sin(angle);
    const double down = kEarthRadius - radius * std::cos(angle);
    AddRow(table, kMetres * Vec3{outward * std::sin(kAzimuth), outward * std::cos(kAzimuth), down},
           kLaunchDay * kSecondsPerDay + SecondsAt(angle));
  }
  return table;
}

ExampleTable EmSystemExample() {
  ExampleTable table;
  table.sheetName = "Earth-Moon";
  table.title = "Flight to the Moon em_system kmday";
  table.scale = 0.01;
  FlyAroundTheMoon(table, FlyToTheSeam(table));
  return table;
}

}  // namespace quorb
