#include <numbers>

#include "Ellipse.h"
#include "ExampleFiles.h"

namespace quorb {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kStartDay = 45809.25;  // 2025-06-01 06:00
constexpr double kSecondsPerDay = 86400;

constexpr double kMoonMu = 4902.8;
constexpr double kSunMu = 1.32712440018e11;
constexpr double kMercuryMu = 22031.86;
constexpr double kVenusMu = 324858.6;
constexpr double kMarsMu = 42828.37;
constexpr double kJupiterMu = 126686534.0;

constexpr double kMoonRadius = 1737.4;
constexpr double kMercuryRadius = 2439.7;
constexpr double kVenusRadius = 6051.8;
constexpr double kMarsRadius = 3396.2;

ExampleTable Begin(const char* title, double scale) {
  ExampleTable table;
  table.sheetName = "Central body";
  table.title = title;
  table.scale = scale;
  return table;
}

/// Adds the part of an orbit between two shares of a turn from the periapsis; `day` goes on with it.
void AddArc(ExampleTable& table, const Ellipse& orbit, double from, double to, int rows, double& day) {
  const double first = PointOnEllipse(orbit, kTurn * from).seconds;
  const double start = day;
  for (int i = 0; i <= rows; ++i) {
    const EllipsePoint point = PointOnEllipse(orbit, kTurn * (from + (to - from) * i / rows));
    day = start + (point.seconds - first) / kSecondsPerDay;
    RowText text;
    for (const double coordinate : point.state.position)
      text.Number(coordinate);
    table.rows.push_back(text.Number(day).Line());
  }
}

/// Lifts the pen: the next row begins a line of its own.
void AddGap(ExampleTable& table, double day) {
  table.rows.push_back(RowText().Empty(3).Number(day).Line());
}

ExampleTable OneTurn(const char* title, double scale, const Ellipse& orbit) {
  ExampleTable table = Begin(title, scale);
  double day = kStartDay;
  AddArc(table, orbit, 0, 1, 180, day);
  return table;
}

}  // namespace

ExampleTable MoonExample() {
  return OneTurn("Orbit over the poles of the Moon moon kmday", 0.01,
                 {kMoonMu, kMoonRadius + 400, kMoonRadius + 6000, 90, 120, 270});
}

ExampleTable MercuryExample() {
  return OneTurn("Orbit over the poles of Mercury mercury kmday", 0.01,
                 {kMercuryMu, kMercuryRadius + 400, kMercuryRadius + 11000, 84, 120, 119});
}

ExampleTable VenusExample() {
  return OneTurn("Orbit over the poles of Venus venus kmday", 0.001,
                 {kVenusMu, kVenusRadius + 600, kVenusRadius + 40000, 90, 130, 80});
}

ExampleTable MarsExample() {
  ExampleTable table = Begin("Orbits over the poles of Mars mars kmday", 0.01);
  double day = kStartDay;
  AddArc(table, {kMarsMu, kMarsRadius + 500, kMarsRadius + 14000, 93, 120, 330}, 0, 1, 120, day);
  AddArc(table, {kMarsMu, kMarsRadius + 500, kMarsRadius + 6000, 93, 120, 330}, 0, 1, 120, day);
  return table;
}

ExampleTable SunExample() {
  constexpr double kEarthOrbit = 149598000;
  constexpr double kMarsPerihelion = 206650000;
  constexpr double kMarsAphelion = 249261000;
  ExampleTable table = Begin("From the Earth to Mars sun kmday", 0.000001);
  double day = kStartDay;
  AddArc(table, {kSunMu, kEarthOrbit, kEarthOrbit}, 0, 1, 120, day);
  // Half a turn from the inner orbit to the place on the outer one where that is highest.
  AddArc(table, {kSunMu, kEarthOrbit, kMarsAphelion, 1.85, 0, 0}, 0, 0.5, 90, day);
  AddGap(table, day);
  AddArc(table, {kSunMu, kMarsPerihelion, kMarsAphelion, 1.85, 0, 0}, 0.5, 1.5, 120, day);
  return table;
}

ExampleTable JupiterExample() {
  ExampleTable table = Begin("Orbits of Io, Europa, Ganymede and Callisto jupiter kmday", 0.0001);
  double day = kStartDay;
  for (const double radius : {421700.0, 671034.0, 1070412.0, 1882709.0}) {
    AddArc(table, {kJupiterMu, radius, radius, 2.2}, 0, 1, 90, day);
    if (radius < 1500000) AddGap(table, day);
  }
  return table;
}

}  // namespace quorb
