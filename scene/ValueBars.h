#pragma once

#include <cstdint>

#include "glCtl.h"

namespace quorb {

/// The colour values of dataValZ beside the rows that a frame draws.
struct ValueBars {
  /// Row of dataValZ that the walk stands at.
  std::int32_t ValZRow = 0;
  /// The value at which a bar has no length.
  double ValZBase = 0;
  /// Limits of the colour scale.
  double ValZMaxLimit = 1;
  double ValZMinLimit = 0;
  /// Length of a bar in scene units per unit of value.
  double BarScale = 0;
  /// 1 when the time stepped to last lies between two rows of dataValZ.
  int ValZFound = 0;
  /// 1 colours the line itself by the values instead of drawing bars: everywhere when ValZInThrust is 1 too,
  /// else in event stretches only. ValZInThrust 1 draws bars everywhere. The option panel does not reach
  /// them.
  int WholeOrbit = 0;
  int ValZInThrust = 0;
  /// From the point to the tip of the row's bar, in scene units.
  float BarVector[3] = {0, 0, 0};
};

/// Puts the walk back to the first value, and scales the bars to the plot's range, for a new frame.
void StartValueBars(ValueBars& bars, double range);

/// Draws one row of five cells (dataXYZT) inside the open line: by its value's colour, or as a bar out and
/// back.
/// @param thrustOn 1 in an event stretch.
void DrawValueRow(ValueBars& bars, int thrustOn, const double* row);

/// Writes the last row's value and the limits in the corner of the view.
void DrawValueText(const ValueBars& bars, glCtl& host);

}  // namespace quorb
