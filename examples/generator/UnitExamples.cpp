#include <numbers>

#include "Ellipse.h"
#include "ExampleFiles.h"

namespace quorb {

namespace {

constexpr Ellipse kOrbit = {kEarthMu, kEarthRadius + 600, kEarthRadius + 39750, 63.4, 60, 270};
constexpr double kStartDay = 45809.25;  // 2025-06-01 06:00
constexpr double kSecondsPerDay = 86400;
constexpr int kRows = 180;

/// One turn, with lengths and times in the units of which a kilometre and a day make so many.
ExampleTable OneTurn(const char* units, double lengthsPerKilometre, double timesPerDay) {
  ExampleTable table;
  table.sheetName = "Units";
  table.title = std::string("Long orbit over the north ") + units;
  table.scale = 0.01;
  for (int i = 0; i <= kRows; ++i) {
    const EllipsePoint point = PointOnEllipse(kOrbit, 2 * std::numbers::pi * i / kRows);
    RowText text;
    for (const double coordinate : point.state.position)
      text.Number(coordinate * lengthsPerKilometre);
    text.Number((kStartDay + point.seconds / kSecondsPerDay) * timesPerDay);
    table.rows.push_back(text.Line());
  }
  return table;
}

}  // namespace

ExampleTable MetresSecondsExample() {
  return OneTurn("metres seconds", 1000, kSecondsPerDay);
}

ExampleTable KmExample() {
  return OneTurn("km", 1, kSecondsPerDay);
}

ExampleTable KmdayExample() {
  return OneTurn("kmday", 1, 1);
}

}  // namespace quorb
