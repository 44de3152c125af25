#include "Mth.h"

#include <algorithm>
#include <cmath>

#include "NumberPicture.h"
#include "SoftError.h"
#include "TextHelpers.h"

namespace quorb {

double Acos(double c) {
  const double pi = 4.0 * std::atan(1.0);
  if (c == 1.0) return 0.0;
  if (c == -1.0) return pi;

  const double clamped = c < 0.0 ? pi : 0.0;
  const double beyond = std::fabs(c) - 1.0;
  if (beyond >= 0.0 && beyond < 4e-16) return clamped;
  if (beyond >= 4e-16 && beyond < 9e-16) {
    SoftError("_Acos arrondi faute Abs(cc) - 1# < 400E-18      " +
              FormatPicture(1.0 - std::fabs(c), "##0.0E+00"));
    return clamped;
  }
  if (!(beyond < 0.0)) {
    SoftError("Acosfaute Acos d'un cos > 1 ? -> arrondi à 1 " + GeneralNumber(c));
    return clamped;
  }
  return std::atan(-c / std::sqrt(1.0 - c * c)) + 4.0 * std::atan(1.0) / 2.0;
}

double AtnPos(double t) {
  const double a = std::atan(t);
  return a < 0.0 ? a + k2Pi : a;
}

double Atn2(double x, double y) {
  if (x == 0.0) return y >= 0.0 ? kPi / 2.0 : 3.0 * kPi / 2.0;
  const double quotient = y / x;
  if (!std::isfinite(quotient)) {
    SoftError("Atn2faute");
    return 0.0;
  }
  double r = AtnPos(quotient);
  if (x < 0.0) r = y > 0.0 ? r - kPi : r + kPi;
  return r < 0.0 ? r + k2Pi : r;
}

float Atan2s(float x, float y) {
  if (y == 0.0F) return x >= 0.0F ? 0.0F : static_cast<float>(kPi);
  const double sign = y > 0.0F ? 1.0 : -1.0;
  if (x == 0.0F) return static_cast<float>(sign * kPi / 2.0);
  const float quotient = y / x;
  if (x > 0.0F) return static_cast<float>(std::atan(static_cast<double>(quotient)));
  return static_cast<float>(sign * (kPi - std::atan(static_cast<double>(std::fabs(quotient)))));
}

double Atan2c(double x, double y) {
  if (x == 0.0) return kPi / 2.0;
  double a = std::atan(y / x);
  if (x < 0.0) a += kPi;
  if (x < 0.0 && y < 0.0) a -= k2Pi;
  return a;
}

double DegPos(double a) {
  if (std::fabs(a) <= 4.45e-16) return 0.0;
  const double deg = RadToDeg(a);
  if (!std::isfinite(deg)) {
    SoftError("degfaute" + GeneralNumber(a));
    return 0.0;
  }
  const double turns = std::floor(deg / 360.0);
  const double rounded = std::nearbyint(deg / 360.0);
  const double base = rounded > turns ? turns : turns - 1.0;
  const double rest = deg - 360.0 * base;
  const double whole = std::floor(rest);
  const double est = (rest - whole) + std::fmod(whole, 360.0);

  if (est < 0.0 || est >= 360.0) SoftError("DegEst < 0 Or DegEst >= 360");
  if (est == 360.0) SoftError("DegEst = 360");
  const double e = (360.0 * turns + est) / 180.0 * kPi - a;
  if (std::fabs(e) > 1e-7) SoftError("Deg Verification inverse" + FormatSig(e, 5));
  return est;
}

double DegSigned(double a) {
  const double deg = DegPos(DegToRad(a));
  return deg > 180.0 ? deg - 360.0 : deg;
}

std::string UpTrim(std::string_view text) {
  return UpperText(Trim(text));
}

std::string FormatDegrees(double a) {
  return FormatPicture(a, " #,##0.000 \\° ");
}

std::string FormatSig(double x, int n) {
  if (x == 0.0) return FormatPicture(x, " 0. ");
  if (!std::isfinite(x)) return GeneralNumber(x);

  const int e = static_cast<int>(std::floor(std::log10(std::fabs(x))));
  const double unit = std::pow(10.0, e - n);
  double v = std::copysign(std::floor(std::fabs(x) / unit + 0.5) * unit, x);
  if (!std::isfinite(v))
    v = x;  // at the ends of the range the unit, or the rounded value, is none of a double

  const bool plain = -(n / 2.0 + 1.0) <= e && e - n <= n / 2.0;
  const int p = plain ? e : ((e % 3) + 3) % 3;
  const int first = p < 0 ? p - n : std::min(p - n, 0);
  const int last = p < 0 ? 0 : p;
  std::string pattern;
  for (int position = first; position <= last; ++position) {
    pattern += position == 0 ? "0." : "#";
  }
  if (!plain) pattern += "E+00";
  return FormatPicture(v, pattern + "  ; -" + pattern + " ");
}

}  // namespace quorb
