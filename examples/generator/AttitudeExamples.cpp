#include <cmath>
#include <numbers>

#include "Attitude.h"
#include "Ellipse.h"
#include "ExampleFiles.h"

namespace quorb {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kStartDay = 45809.25;  // 2025-06-01 06:00
constexpr double kSecondsPerDay = 86400;

/// The quaternion, scalar first, of a satellite whose Z axis points at the body that it flies around.
std::array<double, 4> LookingDown(const OrbitState& state) {
  return QuaternionOf(AxesAlong(-1.0 * state.position, state));
}

double DayOf(const EllipsePoint& point) {
  return kStartDay + point.seconds / kSecondsPerDay;
}

void AddPoint(RowText& text, const EllipsePoint& point) {
  for (const double coordinate : point.state.position)
    text.Number(coordinate);
  text.Number(DayOf(point));
}

// ---- passes over a station --------------------------------------------------------------------------------

constexpr Ellipse kPassOrbit = {kEarthMu, 9000, 16000, 50, 20, 40};
constexpr int kPassRows = 240;
constexpr int kPasses = 3;
constexpr int kPassLength = 48;  // rows

/// First row of a pass.
constexpr int PassStart(int pass) {
  return 16 + pass * kPassRows / kPasses;
}

EllipsePoint PassPoint(int row) {
  return PointOnEllipse(kPassOrbit, kTurn * row / kPassRows);
}

/// From 0 to 1 and back within a pass, 0 outside.
double Signal(int row) {
  for (int pass = 0; pass < kPasses; ++pass) {
    const double share = static_cast<double>(row - PassStart(pass)) / kPassLength;
    if (share > 0 && share < 1) return std::sin(share * std::numbers::pi);
  }
  return 0;
}

}  // namespace

ExampleTable ValzExample() {
  ExampleTable table;
  table.sheetName = "Values";
  table.title = "Signal of a satellite in three passes kmday valz";
  table.scale = 0.01;
  table.terms = 7;
  table.eventRows = std::size_t{2} * kPasses;
  for (int row = 0; row <= kPassRows; ++row) {
    const EllipsePoint point = PassPoint(row);
    RowText text;
    AddPoint(text, point);
    if (row < 2 * kPasses) {
      const bool start = row % 2 == 0;
      text.Number(DayOf(PassPoint(PassStart(row / 2) + (start ? 0 : kPassLength)))).Text(start ? "S" : "E");
    } else {
      text.Empty(2);
    }
    text.Number(DayOf(point));
    for (const double component : LookingDown(point.state))
      text.Number(component);
    text.Number(DayOf(point)).Number(0).Number(DayOf(point)).Number(0);
    text.Number(DayOf(point)).Number(Signal(row));
    table.rows.push_back(text.Line());
  }
  return table;
}

ExampleTable XyzwExample() {
  ExampleTable table;
  table.sheetName = "Attitude";
  table.title = "Satellite looking down XYZW kmday";
  table.scale = 0.01;
  table.terms = 4;
  table.eventRows = 2;
  constexpr Ellipse kOrbit = {kEarthMu, 20000, 20000, 55, 110, 0};
  constexpr int kRows = 180;
  for (int row = 0; row <= kRows; ++row) {
    const EllipsePoint point = PointOnEllipse(kOrbit, kTurn * row / kRows);
    const std::array<double, 4> q = LookingDown(point.state);
    RowText text;
    AddPoint(text, point);
    if (row < 2) {
      text.Number(DayOf(PointOnEllipse(kOrbit, kTurn * (row + 1) / 4))).Text(row == 0 ? "S" : "E");
    } else {
      text.Empty(2);
    }
    text.Number(DayOf(point)).Number(q[1]).Number(q[2]).Number(q[3]).Number(q[0]);
    table.rows.push_back(text.Line());
  }
  return table;
}

}  // namespace quorb
