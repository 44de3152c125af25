#pragma once

#include <array>
#include <cmath>

namespace quorb {

// Three numbers as a vector, for the camera of a host.

using Vector = std::array<double, 3>;

inline Vector Cross(const Vector& a, const Vector& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline double Length(const Vector& v) {
  return std::hypot(v[0], v[1], v[2]);
}

/// The vector of length 1 along `v`; a vector without length stays.
inline Vector Unit(const Vector& v) {
  const double length = Length(v);
  return length > 0 ? Vector{v[0] / length, v[1] / length, v[2] / length} : v;
}

}  // namespace quorb
