#pragma once

#include <algorithm>
#include <cstdint>

#include "PlotData.h"
#include "TwoNumbers.h"

namespace quorb {

/// The coordinates of two rows of dataXYZT.
struct TwoPoints {
  TwoNumbers x, y, z;
};

/// True when all six numbers are finite: no other gives 0 when it is multiplied by 0.
inline bool AllFinite(const TwoPoints& points) {
  const TwoNumbers nought = points.x * 0.0 + points.y * 0.0 + points.z * 0.0;
  return nought[0] == 0 && nought[1] == 0;
}

/// Writes a point into a row; a coordinate beyond a double's range is a fault, and the cell stays.
inline void StorePoint(double* cells, double x, double y, double z) {
  AssignFinite(cells[1], x);
  AssignFinite(cells[2], y);
  AssignFinite(cells[3], z);
}

/// Gives the points of rows `first` to `last` to `convert`, two at a time, and writes what it returns into
/// their rows.
template <class Convert>
void ConvertPoints(std::int64_t first, std::int64_t last, Convert convert) {
  for (std::int64_t row = first; row <= last; row += 2) {
    double* one = dataXYZT[row];
    double* other = dataXYZT[std::min(row + 1, last)];  // the last of an odd number stands twice
    const TwoPoints points = convert(TwoPoints{{one[1], other[1]}, {one[2], other[2]}, {one[3], other[3]}});
    if (AllFinite(points)) {
      one[1] = points.x[0];
      one[2] = points.y[0];
      one[3] = points.z[0];
      other[1] = points.x[1];
      other[2] = points.y[1];
      other[3] = points.z[1];
    } else {
      StorePoint(one, points.x[0], points.y[0], points.z[0]);
      StorePoint(other, points.x[1], points.y[1], points.z[1]);
    }
  }
}

}  // namespace quorb
