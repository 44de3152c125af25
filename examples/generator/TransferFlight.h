#pragma once

#include <vector>

#include "Orbit.h"

namespace quorb {

/// One instant of a flight.
struct FlightRow {
  double day;  ///< Serial day.
  OrbitState state;
  bool burning;  ///< True from the start of a burn until its end, which counts as no longer burning.
  double propellantFraction;  ///< Propellant left, 1 at the beginning, never below 0.
};

/// A burn of the main engine, in serial days. Both instants are instants of rows.
struct Burn {
  double start, end;
};

/// A flight with its burns, both in the order of time.
struct Flight {
  std::vector<FlightRow> rows;
  std::vector<Burn> burns;
};

/// A transfer from an orbit of 250 km by 35,853 km height at 7 degrees to the geostationary ring: one turn
/// and a half without thrust, four burns of constant acceleration around successive apogees along
/// VelocityToGain, the last one until there is nothing to gain, then one turn of the ring. A row every ten
/// seconds.
Flight FlyTransfer();

}  // namespace quorb
