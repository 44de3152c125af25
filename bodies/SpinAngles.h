#pragma once

#include <cstdint>

namespace quorb {

/// Where a frame stands in the plot.
struct FrameTime {
  /// Time of the frame's row, a serial date in days.
  double days = 0;
  /// The frame's last row, its first row, and the last row of the plot.
  std::int32_t row = 0, firstRow = 0, lastRow = 0;
};

/// The central body's spin angle in degrees at a serial date: -130 on 21 March 2003. The Earth turns in a
/// sidereal day; the angle is a rounded whole number (halves to even) from -359 to 359. With `moonFocus` 1
/// the Moon turns in 27.32166 days, and the angle grows without bound.
/// @param angle out; left as it is when the whole number of degrees leaves 32 bits.
void ReferenceSpin(double days, int moonFocus, double& angle);

/// Moves the central body's spin angle to this frame: by a step of 4 degrees (1 for the Moon) at the end of
/// the data while `movieFrameTime` is above 2, else to that of the frame's time; to 1 at the frame's first
/// row. Behind it an angle above 360 or below 0 has one turn less or more.
void TurnCentralBody(const FrameTime& time, int moonFocus, double movieFrameTime, double& angle);

/// The angle in degrees that puts the meridian of Greenwich of the Earth's picture where it stands among the
/// stars at a serial date: the mean sidereal time plus 90, since an unturned picture has Greenwich on the
/// negative Y axis. -90 to 270. Source: Newcomb's expression for 0 h, counted from 1960.
///
/// Dates are Gregorian, as a sheet counts them, and in the Julian calendar before 15 October 1582; before the
/// year 100 the serial date is a plain count of days.
/// @param angle out; left as it is for a date that is no number, lies beyond the year 9999 or before the day
/// -1e9.
void SiderealAngle(double days, double& angle);

/// The Moon's spin angle in degrees: a turn in 27.5 days, 180 on 21 March 2003; 0 at the plot's last row and
/// 1 at the frame's first row. 0 to 360.
/// @param angle out; left as it is when the time is no number.
void TurnMoon(const FrameTime& time, double& angle);

}  // namespace quorb
