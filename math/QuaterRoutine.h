#pragma once

#include <array>
#include <cstddef>

#include "Vector3.h"

namespace quorb {

/// A quaternion in single precision, addressed 1 to 4: place 1 is the scalar part w, places 2 to 4 are the
/// vector part x, y, z.
struct Quater {
  std::array<float, 4> component{};

  float& operator()(int place) { return component[static_cast<std::size_t>(place - 1)]; }
  float operator()(int place) const { return component[static_cast<std::size_t>(place - 1)]; }

  bool operator==(const Quater&) const = default;
};

/// A 3 by 3 matrix in single precision, addressed (row, column) from 1.
struct Mat3 {
  std::array<float, 9> element{};

  float& operator()(int row, int column) { return element[Place(row, column)]; }
  float operator()(int row, int column) const { return element[Place(row, column)]; }

  bool operator==(const Mat3&) const = default;

 private:
  static std::size_t Place(int row, int column) {
    return static_cast<std::size_t>(3 * (row - 1) + column - 1);
  }
};

// In `vscale`, `vaddscaled` and `vcross` the output may be one of the inputs.

/// destination = source.
void vcopy(const Vector3& source, Vector3& destination);

/// out = k a.
void vscale(const Vector3& a, double k, Vector3& out);

/// out = k a + b.
void vaddscaled(const Vector3& a, double k, const Vector3& b, Vector3& out);

/// out = a x b.
void vcross(const Vector3& a, const Vector3& b, Vector3& out);

/// The scalar product of `a` and `b`.
double vDot(const Vector3& a, const Vector3& b);

/// The length of `a`; 0 with the swallowed warning "_normfaute norme nulle " when the sum of the squares is
/// 0, 0 with the dialog "normfaute" when that sum is no finite number.
double norm(const Vector3& a);

/// The length of `a`, with no warning on 0; 0 with the dialog "normseulefaute" when the sum of the squares is
/// no finite number.
double normseule(const Vector3& a);

/// Brings `a` to length 1. A length of 0 shows "normafaute normalise vecteur nul = nul " and leaves `a` as it
/// is; so does a length that `normseule` cannot form, behind its own dialog. A length that misses 1 by more
/// than 1e-11 afterwards, as that of a vector around 1e-162, shows
/// "normafaute normalise anormal en normant " (with the blank at its end).
void norma(Vector3& a);

/// The matrix M(q) of the active rotation v' = q v q*, from body axes to reference axes: column 1 is the
/// image of the body's X axis. `q` is not normalised; a `q` of another length than 1 gives a matrix that is
/// no rotation.
void ConvQuaterToMat(const Quater& q, Mat3& m);

/// out = M(q) v, summed in double precision over the single-precision matrix. `out` must not be `v`: it is
/// written while `v` is still read.
void vRotQuat(const Vector3& v, const Quater& q, Vector3& out);

}  // namespace quorb
