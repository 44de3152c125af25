#pragma once

namespace quorb {

// Boxes in the current matrix. Each corner takes the colour of its octant. All sides are wound
// counterclockwise as seen from outside.

/// A box centred on the origin with the half sizes a, b, c along X, Y, Z.
void monolythe(double a, double b, double c);

/// The same box moved along the one axis whose offset is not 0, by twice the offset and its own half size: an
/// offset of half another box's half size lays it against that box. With offsets on two axes it stays at the
/// origin.
void monolitheNonCenter(double a, double b, double c, double ox, double oy, double oz);

/// One side of a box: k is 1, 2, 3 for the side on +X, +Y, +Z and -1, -2, -3 for the opposite one; any other
/// draws nothing. `a` is the half size along the side's own axis, `b` and `c` are those along the two axes
/// that follow it in the round X, Y, Z.
void face(int k, double a, double b, double c);

/// 1, -1 or 0 for 0.
inline int SignOf(double value) {
  return (value > 0 ? 1 : 0) - (value < 0 ? 1 : 0);
}

}  // namespace quorb
