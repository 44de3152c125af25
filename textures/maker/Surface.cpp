#include "Surface.h"

#include <algorithm>
#include <cmath>

namespace quorb {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;

/// A random number from -1 to 1 for a corner of the lattice.
double CornerValue(int x, int y, int z, std::uint32_t seed) {
  std::uint32_t mixed = seed * 0x9E3779B9U;
  for (const int part : {x, y, z}) {
    mixed ^= static_cast<std::uint32_t>(part) + 0x7F4A7C15U;
    mixed *= 0x85EBCA6BU;
    mixed ^= mixed >> 15U;
  }
  mixed *= 0xC2B2AE35U;
  mixed ^= mixed >> 13U;
  return static_cast<double>(mixed) / 2147483647.5 - 1;
}

double Smooth(double t) {
  return t * t * t * (t * (6 * t - 15) + 10);
}

double LatticeNoise(double x, double y, double z, std::uint32_t seed) {
  const double fx = std::floor(x), fy = std::floor(y), fz = std::floor(z);
  const int ix = static_cast<int>(fx), iy = static_cast<int>(fy), iz = static_cast<int>(fz);
  const double sx = Smooth(x - fx), sy = Smooth(y - fy), sz = Smooth(z - fz);
  double planes[2];
  for (int k = 0; k < 2; ++k) {
    const double near =
        std::lerp(CornerValue(ix, iy, iz + k, seed), CornerValue(ix + 1, iy, iz + k, seed), sx);
    const double far =
        std::lerp(CornerValue(ix, iy + 1, iz + k, seed), CornerValue(ix + 1, iy + 1, iz + k, seed), sx);
    planes[k] = std::lerp(near, far, sy);
  }
  return std::lerp(planes[0], planes[1], sz);
}

std::uint8_t Byte(double value) {
  return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
}

}  // namespace

Tint Mix(const Tint& a, const Tint& b, double share) {
  const double s = std::clamp(share, 0.0, 1.0);
  return {std::lerp(a.red, b.red, s), std::lerp(a.green, b.green, s), std::lerp(a.blue, b.blue, s)};
}

Tint Scaled(const Tint& tint, double factor) {
  return {tint.red * factor, tint.green * factor, tint.blue * factor};
}

double SmoothStep(double low, double high, double x) {
  const double t = std::clamp((x - low) / (high - low), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

Place PlaceAt(double longitude, double latitude) {
  const double cosine = std::cos(latitude * kDegree);
  return {longitude,
          latitude,
          {cosine * std::cos(longitude * kDegree), cosine * std::sin(longitude * kDegree),
           std::sin(latitude * kDegree)}};
}

double AngleBetween(const Place& a, const Place& b) {
  double product = 0;
  for (std::size_t k = 0; k < 3; ++k)
    product += a.direction[k] * b.direction[k];
  return std::acos(std::clamp(product, -1.0, 1.0)) / kDegree;
}

double Waves(const std::array<double, 3>& direction, double frequency, int octaves, std::uint32_t seed) {
  double sum = 0, height = 1, heights = 0;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += height * LatticeNoise(direction[0] * frequency, direction[1] * frequency, direction[2] * frequency,
                                 seed + static_cast<std::uint32_t>(octave));
    heights += height;
    height /= 2;
    frequency *= 2.03;
  }
  return 1.6 * sum / heights;
}

PixelImage Unrolled(const std::function<Tint(const Place&)>& tintAt) {
  PixelImage image{kPictureWidth, kPictureHeight, {}};
  image.rgb.reserve(image.At(0, kPictureHeight));
  for (int y = 0; y < kPictureHeight; ++y) {
    for (int x = 0; x < kPictureWidth; ++x) {
      const Tint tint =
          tintAt(PlaceAt((x + 0.5) * 360 / kPictureWidth - 180, 90 - (y + 0.5) * 180 / kPictureHeight));
      for (const double part : {tint.red, tint.green, tint.blue})
        image.rgb.push_back(Byte(part));
    }
  }
  return image;
}

}  // namespace quorb
