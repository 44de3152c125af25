#include "BodyConstants.h"

#include <cmath>

#include "Mth.h"

namespace quorb {
namespace {

using BodyTable = std::array<BodyRecord, 12>;

// The planets' focus carries this rounder value than the Sun's own record.
constexpr double kSunAsFocus = 1.32715e20;
constexpr double kEarthGM = 3.986005e14;

BodyRecord Body(const char* name, double inclination, double gm, double period, double orbitInclination,
                double eccentricity, double node, double perihelion, const char* focus, double radius,
                double rotationDays, double axisTilt) {
  BodyRecord body;
  body.Inclination = inclination;
  body.cosInclination = std::cos(DegToRad(inclination));
  body.sinInclination = std::sin(DegToRad(inclination));
  body.Name = name;
  body.GM = gm;
  body.GMFocus = kSunAsFocus;
  body.Period = period;
  body.OrbitInclination = orbitInclination;
  body.Eccentricity = eccentricity;
  body.Node = node;
  body.Perihelion = perihelion;
  body.MainFocus = focus;
  body.Radius = radius;
  body.RotationDays = rotationDays;
  body.AxisTilt = axisTilt;
  return body;
}

// clang-format off
BodyTable FilledTable() {
  BodyTable table = {{
      Body("Sun", 0, 1.3271244e20, 0, 0, 0, 0, 0, "mlkwy", 695000, 25, 0),
      Body("Mercury", 7.003, 2.20311e13, 87.969, 7.004, 0.2056, 48.35, 77.44, "Sun", 2439.7, 58.6462, 0),
      Body("Venus", 3.393636, 3.25e14, 224.701, 3.394, 0.0068, 76.72, 131.56, "Sun", 6051.8, -243.0187, 177.36),
      Body("Earth", 0, kEarthGM, 365.256, 0, 0.0167, 354.9, 102.83, "Sun", 6378.14, 0.99727, 23.45),
      Body("Moon", 5.25, 4.902e12, 27.16642546, 5.15, 0.05, 0, 0, "Earth", 1737.4, 27.32166, 6.68),
      Body("Mars", 1.850303, 4.29e13, 686.98, 1.85, 0.0934, 49.6, 335.99, "Sun", 3397.2, 1.025957, 25.19),
      Body("Jupiter", 1.308736, 1.26712767e17, 4332.71, 1.308, 0.0483, 100.47, 15.63, "Sun", 71492, 0.41354, 3.13),
      Body("Saturn", 2.492519, 3.794063e16, 10759.5, 2.488, 0.056, 113.71, 92.8, "Sun", 60268, 0.44401, 25.33),
      Body("Uranus", 0.772464, 5.7945486e15, 30685, 0.774, 0.0461, 74.06, 176.29, "Sun", 25559, -0.71833, 97.86),
      Body("Neptune", 1.779242, 6.83654e15, 60190, 1.774, 0.0097, 131.81, 1.95, "Sun", 24746, 0.67125, 28.31),
      Body("Pluto", 17.17047, 9.555e11, 90800, 17.148, 0.2482, 110.42, -135.41, "Sun", 1160, -6.3872, 122.52),
      {},
  }};
  table[0].GMFocus = 0.0;
  table[4].GMFocus = kEarthGM;
  return table;
}
// clang-format on

}  // namespace

const BodyTable& BodyConstants() {
  static const BodyTable table = FilledTable();
  return table;
}

}  // namespace quorb
