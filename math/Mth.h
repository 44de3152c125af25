#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorb {

/// π and 2π of this system, to 15 digits; data and pictures are matched to these values, so no library value
/// stands for them.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double k2Pi = 6.28318530717958;

// Each guarded function clamps a mere rounding fault and hands a real one to `SoftError`; when that returns,
// the function returns its clamped or partial value. Callers need no test.

/// Arccosine of `c`, in radians, 0 to π. Up to 4e-16 beyond ±1 the value is clamped, up to 9e-16 likewise
/// with the swallowed warning "_Acos arrondi faute ...", beyond that with "Acosfaute ...". NaN is a fault and
/// gives 0.
double Acos(double c);

/// Angle of the point (x, y), x first, in radians, 0 to 2π; (0, 0) gives π/2. A quotient y / x that is no
/// finite number is the fault "Atn2faute" and gives 0.
double Atn2(double x, double y);

/// Arctangent of `t` brought into 0 to 2π, radians.
double AtnPos(double t);

/// Angle of the point (x, y), x first, in radians, -π to π, in single precision; (0, 0) gives 0.
float Atan2s(float x, float y);

/// Angle of the point (x, y), x first, in radians, -π to π. On x = 0 it is π/2 whatever y is.
double Atan2c(double x, double y);

/// Degrees in 0 to 360, 360 excluded, of an angle in radians. Whole and fractional degrees are kept apart, so
/// that whole turns cost no digits. Faults: "DegEst < 0 Or DegEst >= 360", "DegEst = 360", "Deg Verification
/// inverse ...", "degfaute ..." (no finite angle, gives 0).
double DegPos(double a);

/// Degrees in -180 to 180 of an angle in degrees; 180 stays 180.
double DegSigned(double a);

constexpr double RadToDeg(double a) {
  return a / kPi * 180.0;
}
constexpr double DegToRad(double a) {
  return a * kPi / 180.0;
}

/// The value of the 32 bits of `n` read as an unsigned number.
constexpr double ulongToDouble(std::int32_t n) {
  return n >= 0 ? n : n + 4294967296.0;
}

/// The greater of two values; the second when they are equal.
template <typename T>
constexpr T MaxOf(const T& a, const T& b) {
  return a > b ? a : b;
}

/// The lesser of two values; the second when they are equal.
template <typename T>
constexpr T MinOf(const T& a, const T& b) {
  return a < b ? a : b;
}

/// `x` brought into `low` to `high`; `low` wins where the bounds cross.
constexpr double Clamp(double x, double low, double high) {
  return MaxOf(MinOf(x, high), low);
}

/// The text in upper case, without leading and trailing blanks.
std::string UpTrim(std::string_view text);

/// The text of `a`, in degrees, with three decimals: " 1,234.500 ° ".
std::string FormatDegrees(double a);

/// The text of `x` with about `n` significant digits (it keeps n + 1), for messages and legends, blanks
/// around it included. With e the decimal exponent of `x`, the form is plain when -(n/2 + 1) ≤ e and e - n ≤
/// n/2, and scientific elsewhere. The number of decimals follows e: 1234.5 to 3 figures is "1235.  ", 1.5 is
/// "2.  ".
std::string FormatSig(double x, int n);

}  // namespace quorb
