#pragma once

#include <GL/gl.h>

namespace quorb {

/// The width that a line of a thickness of the options is drawn with: OpenGL takes none of width 0.
inline GLfloat DrawnWidth(double thickness) {
  constexpr double kThinnestLine = 0.1;
  return static_cast<GLfloat>(thickness != 0 ? thickness : kThinnestLine);
}

}  // namespace quorb
