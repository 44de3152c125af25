#pragma once

#include <array>

namespace quorb {

/// Mean elements of a planet's Kepler ellipse. Angles are radians, rates radians per day, times days from
/// 1900 December 31, 0 h; longitudes are on the ecliptic.
struct OrbitElements {
  const char* name = "";
  double L0 = 0.0;  // mean longitude at t = 0, and its rate
  double Ln = 0.0;
  double W0 = 0.0;  // longitude of the perihelion, and its rate
  double Wn = 0.0;
  double N0 = 0.0;  // longitude of the ascending node, and its rate
  double Nn = 0.0;
  double e = 0.0;        // eccentricity
  double i = 0.0;        // inclination
  double a = 0.0;        // semi-major axis, in units of `AstroUnit`
  int KeplerRounds = 0;  // 2 KeplerRounds + 1 steps solve Kepler's equation
};

/// How a planet looks from 1 `AstroUnit`.
struct PlanetAppearance {
  double diameter = 0.0;             // seconds of arc
  double magnitude = 0.0;            // at full phase
  std::array<double, 3> phase = {};  // coefficients of the phase in the magnitude
  int marker = 0;                    // 1 for Jupiter, 2 for Saturn
};

/// Mean longitude (radians), its rate (radians per day) and distance (radii of the planet) of a large moon of
/// Jupiter or Saturn.
struct MoonElements {
  double L0 = 0.0;
  double Ln = 0.0;
  double a = 0.0;
};

/// The unit of distance of the elements, metres: a round number.
inline constexpr double AstroUnit = 150000000000.0;

inline constexpr int kElementRows = 18;
inline constexpr int kFirstMoonRow = 18;
inline constexpr int kMoonRows = 8;

/// Elements by body number. Rows 0 and 3 are one orbit seen from its two ends: row 0 is the Sun from the
/// Earth, row 3 the Earth from the Sun. Rows 10 to 17 are empty.
extern const std::array<OrbitElements, kElementRows> ElementTable;

/// Appearance by body number, 0 to 9.
extern const std::array<PlanetAppearance, 10> AppearanceTable;

/// The moons of Jupiter and Saturn: the bodies from `kFirstMoonRow` on.
extern const std::array<MoonElements, kMoonRows> MoonTable;

}  // namespace quorb
