#include "Geodesy.h"

#include <cmath>
#include <limits>

#include "Mth.h"

namespace quorb {
namespace {

constexpr double kSemiMajorAxis = 6378137.0;
constexpr double kFlattening = 1.0 / 298.257223563;
constexpr double kSquaredEccentricity = 2.0 * kFlattening - kFlattening * kFlattening;

bool IsSingle(double value) {
  return std::fabs(value) <= double{std::numeric_limits<float>::max()};
}

}  // namespace

void PolarToXYZ(double longitude, double latitude, double radius, double centreX, double centreY,
                double centreZ, double& x, double& y, double& z) {
  const double l = DegToRad(longitude);
  const double b = DegToRad(latitude);
  const double r = radius * std::cos(b);
  x = r * std::sin(l) + centreX;
  y = r * std::cos(l) + centreY;
  z = radius * std::sin(b) + centreZ;
}

int GeoToEcef(double latitude, double longitude, double height, double& X, double& Y, double& Z) {
  const double b = DegToRad(latitude);
  const double l = DegToRad(longitude);
  const double sinb = std::sin(b);
  const double N = kSemiMajorAxis / std::sqrt(1.0 - kSquaredEccentricity * sinb * sinb);
  X = (N + height) * std::cos(b) * std::cos(l);
  Y = (N + height) * std::cos(b) * std::sin(l);
  Z = (N * (1.0 - kSquaredEccentricity) + height) * sinb;
  return 1;
}

float AtanLatitude(double z, double p) {
  if (!IsSingle(z) || !IsSingle(p)) return 0.0F;
  return Atan2s(static_cast<float>(p), static_cast<float>(z));
}

NedPlace NedPlaceAt(double latitude, double longitude, double height) {
  NedPlace place;
  GeoToEcef(latitude, longitude, height, place.X, place.Y, place.Z);
  const double l = DegToRad(longitude);
  place.cosLongitude = std::cos(l);
  place.sinLongitude = std::sin(l);
  const double b = double{AtanLatitude(place.Z, std::sqrt(place.X * place.X + place.Y * place.Y))};
  place.cosLatitude = std::cos(b);
  place.sinLatitude = std::sin(b);
  return place;
}

int NedToEcef(double latitude, double longitude, double height, double north, double east, double down,
              double& X, double& Y, double& Z, double scale) {
  NedToEcef(NedPlaceAt(latitude, longitude, height), north, east, down, X, Y, Z, scale);
  return 1;
}

}  // namespace quorb
