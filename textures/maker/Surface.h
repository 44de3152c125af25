#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "Image.h"

namespace quorb {

inline constexpr int kPictureWidth = 2048;
inline constexpr int kPictureHeight = 1024;

/// Red, green, blue from 0 to 1.
struct Tint {
  double red = 0, green = 0, blue = 0;
};

/// From `a` at share 0 to `b` at share 1; shares outside count as the nearest of the two.
Tint Mix(const Tint& a, const Tint& b, double share);
Tint Scaled(const Tint& tint, double factor);

/// 0 below `low`, 1 above `high`, smooth between.
double SmoothStep(double low, double high, double x);

/// A place on a sphere: degrees to the east and north, and the unit vector, whose Z axis is the north pole.
struct Place {
  double longitude = 0, latitude = 0;
  std::array<double, 3> direction{};
};
Place PlaceAt(double longitude, double latitude);

/// Angle between two places, in degrees.
double AngleBetween(const Place& a, const Place& b);

/// Random waves on the sphere, about -1 to 1, that go round without a seam: `octaves` sizes from `frequency`
/// waves a radius on, each half as large and high as the one before. Equal seeds give equal waves.
double Waves(const std::array<double, 3>& direction, double frequency, int octaves, std::uint32_t seed);

/// A picture of a sphere, unrolled: longitude -180 at its left edge, 180 at its right, the north pole at its
/// top.
PixelImage Unrolled(const std::function<Tint(const Place&)>& tintAt);

}  // namespace quorb
