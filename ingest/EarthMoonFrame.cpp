#include <algorithm>
#include <cmath>
#include <cstdint>

#include "Ephemeris.h"
#include "ModMATHASdbl.h"
#include "PlotData.h"
#include "QuaterRoutine.h"
#include "RowPairs.h"
#include "RunState.h"
#include "SpecialPlots.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr double kUnusedArgument = 4;
/// Days from the sheet's day 0 to that of the ephemeris.
constexpr double kEphemerisShift = 366;
constexpr double kMetresPerKilometre = 1000;
/// The seam is where the distance goes to more than twice or to less than half.
constexpr double kSquaredJump = 2.0 * 2.0;

/// Three axes at right angles.
struct Frame {
  Vector3 x, y, z;
};

/// The last row of the first arc and the first row of the second.
struct Seam {
  std::int64_t before = 0;
  std::int64_t behind = 0;
};

std::int64_t PointRows() {
  return std::clamp<std::int64_t>(std::int64_t{LastPoint} + 1, 0, kRowBound);
}

/// A point without the scale; the zero vector for a row that the plot does not have.
Vector3 PointAt(std::int64_t row, double scale) {
  if (row < 0 || row >= PointRows()) return {};
  const double* cells = dataXYZT[row];
  return {{cells[1] / scale, cells[2] / scale, cells[3] / scale}};
}

Vector3 Difference(const Vector3& to, const Vector3& from) {
  Vector3 difference;
  vaddscaled(from, -1, to, difference);
  return difference;
}

/// X along the vector, Y across it in the plane of X and Y.
Frame FrameAlong(Vector3 direction) {
  Frame frame;
  frame.x = direction;
  norma(frame.x);
  const Vector3 pole{{0, 0, 1}};
  vcross(pole, frame.x, frame.y);
  norma(frame.y);
  vcross(frame.x, frame.y, frame.z);
  norma(frame.z);
  return frame;
}

TwoNumbers Along(const Vector3& axis, const TwoPoints& points) {
  return axis(1) * points.x + axis(2) * points.y + axis(3) * points.z;
}

/// The points as a frame sees them, shifted there.
TwoPoints Seen(const Frame& frame, const TwoPoints& points, const Vector3& shift) {
  return {Along(frame.x, points) + shift(1), Along(frame.y, points) + shift(2),
          Along(frame.z, points) + shift(3)};
}

/// Square of the distance from the centre, as the cells stand: the scale changes no ratio.
double SquaredDistance(const double* cells) {
  return cells[1] * cells[1] + cells[2] * cells[2] + cells[3] * cells[3];
}

Seam FindSeam() {
  double previous = SquaredDistance(dataXYZT[0]);
  const std::int64_t rows = PointRows();
  for (std::int64_t row = 1; row < rows; ++row) {
    const double distance = SquaredDistance(dataXYZT[row]);
    const bool jumps = distance > kSquaredJump * previous || distance * kSquaredJump < previous;
    if (jumps && previous > 0) return {row - 1, row};
    previous = distance;
  }
  return {};
}

double MoonDistance(double day) {
  Vector3 helio, geo, moon;
  EphemerisAt(day - kEphemerisShift, kMoonBody, kUnusedArgument, helio, geo);
  EulerI(geo, 0, EclipticTilt, 0, moon);
  return norm(moon);
}

void MoveRows(std::int64_t first, std::int64_t last, const Frame& frame, const Vector3& shift, double scale) {
  ConvertPoints(first, last, [frame, shift, scale](const TwoPoints& points) {
    const TwoPoints seen = Seen(frame, {points.x / scale, points.y / scale, points.z / scale}, shift);
    return TwoPoints{seen.x * scale, seen.y * scale, seen.z * scale};
  });
}

/// Each arc goes into the frame of its own motion at the seam, and the second one to where the first one
/// ends. Gives the place of the second arc's centre. Without a seam the second arc starts at the first row's
/// place.
Vector3 JoinArcs(const Seam& seam, double scale) {
  const std::int64_t lastRow = PointRows() - 1;
  const Frame first = FrameAlong(Difference(PointAt(seam.before, scale), PointAt(seam.before - 1, scale)));
  const Frame second =
      FrameAlong(Difference(PointAt(seam.before + 2, scale), PointAt(seam.before + 1, scale)));
  MoveRows(0, std::min(seam.before, lastRow), first, {}, scale);
  Vector3 centre = PointAt(seam.before, scale);
  if (seam.behind > seam.before) {
    const Vector3 start = PointAt(seam.behind, scale);
    const Vector3 inSecond = {{vDot(second.x, start), vDot(second.y, start), vDot(second.z, start)}};
    centre = Difference(centre, inSecond);
  }
  MoveRows(seam.before + 1, lastRow, second, centre, scale);
  return centre;
}

}  // namespace

void EarthMoonFrame(double scale) {
  USERFLAG.EMView = 1.0;
  const Seam seam = FindSeam();
  EMDistance = MoonDistance(dataXYZT[seam.before][0]);
  const Vector3 moon = JoinArcs(seam, scale);
  EMDistance = norm(moon) * kMetresPerKilometre;
  const Frame toMoon = FrameAlong(moon);
  ConvertPoints(0, PointRows() - 1, [toMoon](const TwoPoints& points) { return Seen(toMoon, points, {}); });
}

}  // namespace quorb
