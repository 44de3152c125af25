#pragma once

#include <GL/gl.h>

#include <cstdint>

#include "EventWalk.h"
#include "ValueBars.h"

namespace quorb {

class ClassGl;

/// What the drawing of the trajectory keeps between frames.
struct TrajectoryState {
  EventWalk Events;
  ValueBars Bars;
  /// Shift, in rows of dataQuater, of the six rows that share a colour; and the point whose time gave the
  /// last such colour.
  std::int32_t QuaterColourShift = 0;
  std::int32_t QuaterColourRow = 0;
  /// The OpenGL primitive that joins the points.
  GLenum DrawPrimitive = GL_LINE_STRIP;
  /// The faces of the cube that the points throw their shadows on.
  double CubeFaceX = 0, CubeFaceY = 0, CubeFaceZ = 0;
  /// Sizes of the shadows' dots, as they are asked for inside glBegin.
  double DotSizeCubic = 0.1, DotSizeAfterCubic = 0;
};

/// Calls the trajectory's display list when it holds the row that the frame ends at; false when there is
/// none.
bool CallStoredTrajectory(ClassGl& scene);

/// Draws the rows CURRINDEXMINI to CURRINDEXI of the plot: with PenUpMode first the second points of its
/// rows, then the points themselves in their event colours, time colours or with their values. Rows outside
/// the arrays are left out. With CURRINDEXI below 0 no row is drawn and the camera goes to its first
/// position.
void DrawTrajectory(ClassGl& scene);

}  // namespace quorb
