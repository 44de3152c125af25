#pragma once

#include <array>

namespace quorb {

/// Physical and orbital constants of a body of the solar system.
struct BodyRecord {
  double Inclination = 0.0;  // degrees
  double cosInclination = 1.0;
  double sinInclination = 0.0;
  const char* Name = "";
  double GM = 0.0;                // m³/s²
  double GMFocus = 0.0;           // GM of the main focus, m³/s²
  double Period = 0.0;            // days
  double OrbitInclination = 0.0;  // degrees
  double Eccentricity = 0.0;
  double Node = 0.0;        // degrees
  double Perihelion = 0.0;  // degrees
  const char* MainFocus = "";
  double Radius = 0.0;        // km
  double RotationDays = 0.0;  // negative for a retrograde spin
  double AxisTilt = 0.0;      // degrees
};

/// The system's book of constants: 0 the Sun, 1 to 3 Mercury to Earth, 4 the Moon, 5 to 10 Mars to Pluto. Row
/// 11 is empty. The table is filled at the first call.
const std::array<BodyRecord, 12>& BodyConstants();

}  // namespace quorb
