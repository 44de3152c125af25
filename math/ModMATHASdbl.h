#pragma once

#include "Mth.h"
#include "Vector3.h"

namespace quorb {

/// The obliquity of the ecliptic, 23.45 degrees in radians: the one value that the whole system uses.
inline constexpr double EclipticTilt = DegToRad(23.45);

/// Julian day of the epoch of the ephemerides, 1900 December 31, 0 h.
inline constexpr double kEphemerisEpoch = 2415384.5;

/// Turns (x, y) by the angle with the cosine `c` and the sine `s`: out1 = c x - s y, out2 = s x + c y. The
/// outputs may be the inputs.
void PlaneRotate(double c, double s, double x, double y, double& out1, double& out2);

/// Turns `v` by three angles in radians: by `a1` about Z, by `a2` about X, by `a3` about Z. With the argument
/// of latitude, the inclination and the node it leads from the orbit's plane to the reference frame. `out`
/// may be `v`. The cosine and sine of each angle are kept and taken anew only when the angle changes. An
/// argument or a result that is no finite number shows "EulerIfaute" once and leaves `out` as it is.
void EulerI(const Vector3& v, double a1, double a2, double a3, Vector3& out);

/// Turns `v` from the ecliptic to the equator, by `EclipticTilt` about X. `out` may be `v`.
void EclipticToEquator(const Vector3& v, Vector3& out);

/// The calendar date of the Julian day `JD`, Julian before 15 October 1582 and Gregorian from there on; `day`
/// holds the fraction. Source: Meeus, Astronomical Algorithms, chapter 7, which takes days from 0 on. False,
/// with the outputs as they are, when the year leaves the range of an int.
bool JulianToDate(double JD, int& year, int& month, double& day);

/// The Julian day `JD` of a calendar date, and `t`, the same in days from `kEphemerisEpoch`. `day` may hold a
/// fraction. Dates up to 14 October 1582 count as Julian, the ten that the reform dropped among them; the
/// years before 1 are 0, -1 and so on. False, with the outputs as they are, when `month` is not 1 to 12.
bool DateToJulian(int year, int month, double day, double& JD, double& t);

}  // namespace quorb
