#include "Ephemeris.h"

#include <array>
#include <cmath>

#include "Dialogs.h"
#include "ElementTable.h"
#include "Mth.h"
#include "QuaterRoutine.h"

namespace quorb {
namespace {

constexpr int kSunRow = 0;
constexpr int kEarthRow = 3;

/// What of a row of `ElementTable` does not change with time.
struct OrbitShape {
  double anomalyFactor = 1.0;  // √((1 + e) / (1 - e))
  double cosInclination = 1.0;
  double tanInclination = 0.0;
};

std::array<OrbitShape, kElementRows> OrbitShapes() {
  std::array<OrbitShape, kElementRows> shapes;
  for (std::size_t row = 0; row < shapes.size(); ++row) {
    const OrbitElements& orbit = ElementTable[row];
    shapes[row] = {std::sqrt((1.0 + orbit.e) / (1.0 - orbit.e)), std::cos(orbit.i), std::tan(orbit.i)};
  }
  return shapes;
}

struct PolarPoint {
  double longitude = 0.0;
  double latitude = 0.0;
  double r = 0.0;
};

Vector3 FromPolar(const PolarPoint& point) {
  const double inPlane = point.r * std::cos(point.latitude);
  return {{inPlane * std::cos(point.longitude), inPlane * std::sin(point.longitude),
           point.r * std::sin(point.latitude)}};
}

// The number of steps is fixed by the row, with no test of convergence.
double EccentricAnomaly(const OrbitElements& orbit, double M) {
  double E = M;
  for (int step = 0; step < 2 * orbit.KeplerRounds + 1; ++step)
    E = M + orbit.e * std::sin(E);
  return E;
}

PolarPoint KeplerPoint(int row, double t) {
  static const std::array<OrbitShape, kElementRows> shapes = OrbitShapes();
  const OrbitElements& orbit = ElementTable[static_cast<std::size_t>(row)];
  const OrbitShape& shape = shapes[static_cast<std::size_t>(row)];

  const double perihelion = orbit.W0 + orbit.Wn * t;
  const double M = orbit.L0 + orbit.Ln * t - perihelion;
  const double E = EccentricAnomaly(orbit, M);
  const double trueAnomaly = 2.0 * std::atan(shape.anomalyFactor * std::tan(E / 2.0));
  const double node = orbit.N0 + orbit.Nn * t;
  const double u = perihelion - node + trueAnomaly;  // argument of latitude
  double fromNode = u;
  const double cosu = std::cos(u);
  if (cosu != 0.0) fromNode = std::atan(shape.cosInclination * std::tan(u)) + (cosu < 0.0 ? kPi : 0.0);
  return {fromNode + node, std::atan(shape.tanInclination * std::sin(fromNode)),
          AstroUnit * orbit.a * (1.0 - orbit.e * std::cos(E))};
}

// The orbit that the Sun and the Earth share, so that one solution serves the two of them at the same time.
const PolarPoint& SunOrbitPoint(double t) {
  static double time = std::numeric_limits<double>::quiet_NaN();
  static PolarPoint point;
  if (t != time) point = KeplerPoint(kSunRow, t);
  time = t;
  return point;
}

// The orbit has no inclination: the point leaves the ecliptic only where the table is damaged.
void CheckInEcliptic(const Vector3& position) {
  if (std::fabs(position(3)) > 1e-12) CurrentDialogs().EndProgram();
}

void UpdateSunGeo(double t) {
  if (t == EarthTimeSun) return;
  SunGeo = FromPolar(SunOrbitPoint(t));
  CheckInEcliptic(SunGeo);
  EarthTimeSun = t;
}

void UpdateEarthHelio(double t) {
  if (t == EarthTimeHelio) return;
  PolarPoint opposite = SunOrbitPoint(t);
  opposite.longitude += kPi;
  EarthHelio = FromPolar(opposite);
  CheckInEcliptic(EarthHelio);
  EarthTimeHelio = t;
}

double MoonLongitude(double Lm, double Mm, double Ms, double D, double F) {
  return Lm + 0.1098 * std::sin(Mm) + 0.003728 * std::sin(2.0 * Mm) + 0.01149 * std::sin(2.0 * D) -
         0.003329 * std::sin(Ms) + 0.02224 * std::sin(2.0 * D - Mm) - 0.001945 * std::sin(2.0 * F) +
         0.001026 * std::sin(2.0 * D - 2.0 * Mm) + 0.0009983 * std::sin(2.0 * D - Mm - Ms) +
         0.0009903 * std::sin(2.0 * D + Mm) + 0.0008011 * std::sin(2.0 * D - Ms) +
         0.0007156 * std::sin(Mm - Ms) - 0.0005323 * std::sin(Mm + Ms) - 0.0006074 * std::sin(D);
}

double MoonLatitude(double Mm, double D, double F) {
  return 0.08995 * std::sin(F) + 0.0049 * std::sin(Mm + F) + 0.00485 * std::sin(Mm - F) +
         0.003 * std::sin(2.0 * D - F) + 0.00097 * std::sin(2.0 * D - Mm + F) +
         0.0008 * std::sin(2.0 * D - Mm - F) + 0.00057 * std::sin(2.0 * D + F);
}

Vector3 MoonGeo(double t) {
  constexpr double kEarthRadius = 6378137.0;
  const OrbitElements& sun = ElementTable[kSunRow];
  const double Ls = sun.L0 + sun.Ln * t;
  const double Ms = Ls - (sun.W0 + sun.Wn * t);
  const double Lm = 0.57999 + 0.229971503 * t;
  const double node = 4.1867 - 0.00092422 * t;
  const double Mm = 0.3193 + 0.228027133 * t;
  const double D = Lm - Ls;
  const double F = Lm - node;
  const double parallax = DegToRad(0.9508 + 0.0518 * std::cos(Mm));
  const double r = kEarthRadius / std::sin(parallax);
  return FromPolar({MoonLongitude(Lm, Mm, Ms, D, F), MoonLatitude(Mm, D, F), r});
}

}  // namespace

bool EphemerisAt(double t, double body, double /*spare*/, Vector3& helio, Vector3& geo) {
  const double number = std::nearbyint(body);
  if (!std::isfinite(t)) return false;

  if (number == kMoonBody) {
    UpdateEarthHelio(t);
    geo = MoonGeo(t);
    vaddscaled(geo, 1.0, EarthHelio, helio);
    return true;
  }
  if (!(number >= 0.0 && number < kElementRows)) return false;

  const int row = static_cast<int>(number);
  if (row == kSunRow) {
    helio = {};
    EarthTimeSun = t - 1.02;
  } else if (row == kEarthRow) {
    UpdateEarthHelio(t);
    helio = EarthHelio;
  } else {
    helio = FromPolar(KeplerPoint(row, t));
  }
  UpdateSunGeo(t);
  geo = Vector3{{helio(1) + SunGeo(1), helio(2) + SunGeo(2), helio(3)}};
  return true;
}

}  // namespace quorb
