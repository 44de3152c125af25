#pragma once

#include <GL/gl.h>

#include <cmath>
#include <cstdint>

#include "UserFlag.h"

namespace quorb {

/// Option colours run to 255 and are divided by this, so that full white stays just below 1.
inline constexpr double kColourDivisor = 256;
/// Alpha of the trajectory's line.
inline constexpr double kTraceAlpha = 0.6;

/// Sets the drawing colour from an option colour.
inline void SetOptionColour(const OptionColour& colour, double alpha) {
  glColor4f(static_cast<GLfloat>(colour.red / kColourDivisor),
            static_cast<GLfloat>(colour.green / kColourDivisor),
            static_cast<GLfloat>(colour.blue / kColourDivisor), static_cast<GLfloat>(alpha));
}

/// Sets the colour that the host clears the view with, opaque.
inline void SetClearColour(const OptionColour& colour) {
  glClearColor(static_cast<GLfloat>(colour.red / kColourDivisor),
               static_cast<GLfloat>(colour.green / kColourDivisor),
               static_cast<GLfloat>(colour.blue / kColourDivisor), 1);
}

/// An option colour as R x 65536 + G x 256 + B, the form that the host's texts take; 0 for one outside 32
/// bits.
inline int PackedColour(const OptionColour& colour) {
  const double packed = colour.red * 65536 + colour.green * 256 + colour.blue;
  return std::abs(packed) <= INT32_MAX ? static_cast<int>(packed) : 0;
}

/// A vertex at three consecutive numbers.
inline void PlaceVertex(const double* xyz) {
  glVertex3f(static_cast<GLfloat>(xyz[0]), static_cast<GLfloat>(xyz[1]), static_cast<GLfloat>(xyz[2]));
}

}  // namespace quorb
