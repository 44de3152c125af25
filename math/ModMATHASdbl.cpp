#include "ModMATHASdbl.h"

#include <array>
#include <cmath>

#include "SoftError.h"

namespace quorb {
namespace {

struct CachedAngle {
  double angle = 0.0;
  double cosine = 1.0;
  double sine = 0.0;
};

std::array<CachedAngle, 3> EulerCache;

void Take(double angle, CachedAngle& cached) {
  if (angle == cached.angle) return;
  cached = {angle, std::cos(angle), std::sin(angle)};
}

bool IsFinite(const Vector3& v) {
  return std::isfinite(v(1)) && std::isfinite(v(2)) && std::isfinite(v(3));
}

constexpr std::array<int, 12> kMonthLengths = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

bool IsJulianDate(int year, int month, double day) {
  return year <= 1582 && (year != 1582 || month <= 10) && (year != 1582 || month != 10 || day <= 14.0);
}

}  // namespace

void PlaneRotate(double c, double s, double x, double y, double& out1, double& out2) {
  out1 = c * x - s * y;
  out2 = s * x + c * y;
}

void EulerI(const Vector3& v, double a1, double a2, double a3, Vector3& out) {
  if (!IsFinite({{a1, a2, a3}})) {
    SoftError("EulerIfaute");
    return;
  }
  auto& [first, second, third] = EulerCache;
  Take(a1, first);
  Take(a2, second);
  Take(a3, third);

  double t1 = 0.0, t2 = 0.0, t3 = 0.0;
  Vector3 turned;
  PlaneRotate(first.cosine, first.sine, v(1), v(2), t1, t2);
  PlaneRotate(second.cosine, second.sine, t2, v(3), t3, turned(3));
  PlaneRotate(third.cosine, third.sine, t1, t3, turned(1), turned(2));
  if (!IsFinite(turned)) {
    SoftError("EulerIfaute");
    return;
  }
  out = turned;
}

void EclipticToEquator(const Vector3& v, Vector3& out) {
  EulerI(v, 0.0, EclipticTilt, 0.0, out);
}

bool JulianToDate(double JD, int& year, int& month, double& day) {
  constexpr double kLastDay = 7.8e11;
  if (!(std::fabs(JD) <= kLastDay)) return false;

  const double Z = std::floor(JD + 0.5);
  const double F = JD + 0.5 - Z;
  double A = Z;
  if (Z >= 2299161.0) {
    const double alpha = std::floor((Z - 1867216.25) / 36524.25);
    A = Z + 1.0 + alpha - std::floor(alpha / 4.0);
  }
  const double B = A + 1524.0;
  const double C = std::floor((B - 122.1) / 365.25);
  const double D = std::floor(365.25 * C);
  const double E = std::floor((B - D) / 30.6001);
  day = B - D - std::floor(30.6001 * E) + F;
  month = static_cast<int>(E > 13.5 ? E - 13.0 : E - 1.0);
  year = static_cast<int>(month < 2.5 ? C - 4715.0 : C - 4716.0);
  return true;
}

bool DateToJulian(int year, int month, double day, double& JD, double& t) {
  if (month < 1 || month > 12) return false;

  const double A = day - 1.0;
  double B = -0.5;
  for (int before = 1; before < month; ++before)
    B += kMonthLengths[static_cast<std::size_t>(before - 1)];
  const double C = 365.0 * (year + 4712.0);
  const bool fromMarch = month >= 3;
  const double E = !fromMarch && year == -4712 ? 0.0 : 1.0;
  const double F = std::floor(std::fabs((year + (fromMarch ? 4712.0 : 4711.0)) / 4.0));
  double G = 0.0;
  if (!IsJulianDate(year, month, day)) {
    const double y = fromMarch ? year : year - 1.0;
    G = std::floor(y / 400.0) - std::floor(y / 100.0) + 2.0;
  }
  JD = A + B + C + F + E + G;
  t = JD - kEphemerisEpoch;
  return true;
}

}  // namespace quorb
