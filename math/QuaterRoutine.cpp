#include "QuaterRoutine.h"

#include <cmath>

#include "SoftError.h"

namespace quorb {
namespace {

double SumOfSquares(const Vector3& a) {
  return a(1) * a(1) + a(2) * a(2) + a(3) * a(3);
}

double Square(float component) {
  return double{component} * double{component};
}

// The product of two components is rounded to single precision before it is summed.
double Product(float a, float b) {
  return double{a * b};
}

}  // namespace

void vcopy(const Vector3& source, Vector3& destination) {
  destination = source;
}

void vscale(const Vector3& a, double k, Vector3& out) {
  const Vector3 vScratch{{k * a(1), k * a(2), k * a(3)}};
  out = vScratch;
}

void vaddscaled(const Vector3& a, double k, const Vector3& b, Vector3& out) {
  const Vector3 vScratch{{k * a(1) + b(1), k * a(2) + b(2), k * a(3) + b(3)}};
  out = vScratch;
}

void vcross(const Vector3& a, const Vector3& b, Vector3& out) {
  const Vector3 vScratch{{a(2) * b(3) - a(3) * b(2), a(3) * b(1) - a(1) * b(3), a(1) * b(2) - a(2) * b(1)}};
  out = vScratch;
}

double vDot(const Vector3& a, const Vector3& b) {
  return a(1) * b(1) + a(2) * b(2) + a(3) * b(3);
}

double norm(const Vector3& a) {
  const double s = SumOfSquares(a);
  if (s == 0.0) {
    SoftError("_normfaute norme nulle ");
    return 0.0;
  }
  if (!std::isfinite(s)) {
    SoftError("normfaute");
    return 0.0;
  }
  return std::sqrt(s);
}

double normseule(const Vector3& a) {
  const double s = SumOfSquares(a);
  if (!std::isfinite(s)) {
    SoftError("normseulefaute");
    return 0.0;
  }
  return std::sqrt(s);
}

void norma(Vector3& a) {
  const double n = normseule(a);
  if (n == 0.0) {
    SoftError("normafaute normalise vecteur nul = nul ");
    return;
  }
  a = Vector3{{a(1) / n, a(2) / n, a(3) / n}};
  if (std::fabs(norm(a) - 1.0) > 1e-11) SoftError("normafaute normalise anormal en normant ");
}

void ConvQuaterToMat(const Quater& q, Mat3& m) {
  const float w = q(1), x = q(2), y = q(3), z = q(4);
  const double xx = Square(x), yy = Square(y), zz = Square(z);
  const double xy = Product(x, y), xz = Product(x, z), yz = Product(y, z);
  const double wx = Product(w, x), wy = Product(w, y), wz = Product(w, z);
  m(1, 1) = static_cast<float>(1.0 - 2.0 * (yy + zz));
  m(1, 2) = static_cast<float>(2.0 * (xy - wz));
  m(1, 3) = static_cast<float>(2.0 * (xz + wy));
  m(2, 1) = static_cast<float>(2.0 * (xy + wz));
  m(2, 2) = static_cast<float>(1.0 - 2.0 * (xx + zz));
  m(2, 3) = static_cast<float>(2.0 * (yz - wx));
  m(3, 1) = static_cast<float>(2.0 * (xz - wy));
  m(3, 2) = static_cast<float>(2.0 * (yz + wx));
  m(3, 3) = static_cast<float>(1.0 - 2.0 * (xx + yy));
}

void vRotQuat(const Vector3& v, const Quater& q, Vector3& out) {
  Mat3 m;
  ConvQuaterToMat(q, m);
  for (int i = 1; i <= 3; ++i) {
    out(i) = 0.0;
    for (int j = 1; j <= 3; ++j)
      out(i) += double{m(i, j)} * v(j);
  }
}

}  // namespace quorb
