#pragma once

#include <limits>

#include "Vector3.h"

namespace quorb {

/// The body number of the Moon.
inline constexpr int kMoonBody = 31;

/// The last position of the Sun from the Earth and its time, and the last of the Earth from the Sun. A time
/// that is no number stands for none yet. They live as long as the program.
inline double EarthTimeSun = std::numeric_limits<double>::quiet_NaN();
inline Vector3 SunGeo;
inline double EarthTimeHelio = std::numeric_limits<double>::quiet_NaN();
inline Vector3 EarthHelio;

/// Where a body stands, to the accuracy of a drawing: `helio` from the Sun, `geo` from the Earth, in metres,
/// X toward the mean equinox of date, Z toward the pole of the ecliptic. Planets move on Kepler ellipses
/// whose mean longitude, perihelion and node change linearly; the Moon follows the largest terms of the lunar
/// theory.
///
/// `t` is in days from 1900 December 31, 0 h, which is a sheet's serial date less 366. `body`, taken to the
/// nearest whole number (halves to even), is 0 for the Sun, 1 to 9 for Mercury to Pluto (3: the Earth, whose
/// `geo` is 0 within rounding), 31 for the Moon; 10 to 17 stand at the Sun. `spare` is not read.
///
/// False, with `helio` and `geo` as they are, for any other body and for a time that is no finite number.
bool EphemerisAt(double t, double body, double spare, Vector3& helio, Vector3& geo);

}  // namespace quorb
