#include "Relief.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace quorb {

namespace {

constexpr double kPixelsPerDegree = kPictureWidth / 360.0;
constexpr double kDegree = 3.14159265358979323846 / 180;

std::size_t Cell(int x, int y) {
  const int round = ((x % kPictureWidth) + kPictureWidth) % kPictureWidth;
  return static_cast<std::size_t>(std::clamp(y, 0, kPictureHeight - 1)) * kPictureWidth +
         static_cast<std::size_t>(round);
}

/// Height at a distance from a crater's centre, in radii: a bowl, its rim at 1, and a slope out to 2.
double CraterHeight(double distance) {
  if (distance < 1) return -1 + 1.35 * distance * distance * distance;
  const double fall = 2 - distance;
  return fall > 0 ? 0.35 * fall * fall * fall : 0;
}

/// How far to the east and west a circle of `reach` degrees around a place goes at a latitude, at most:
/// degrees.
double WidestAt(double latitude, const Place& centre, double reach) {
  const double cosines = std::cos(latitude * kDegree) * std::cos(centre.latitude * kDegree);
  const double sine = std::sin(reach / 2 * kDegree);
  return sine * sine < cosines ? 2 * std::asin(sine / std::sqrt(cosines)) / kDegree : 180;
}

}  // namespace

Relief::Relief() : heights(static_cast<std::size_t>(kPictureWidth) * kPictureHeight) {}

void Relief::AddCrater(const Place& centre, double radius, double depth) {
  const double reach = 2 * radius;
  const int middle = static_cast<int>((centre.longitude + 180) * kPixelsPerDegree);
  const int top = static_cast<int>((90 - centre.latitude - reach) * kPixelsPerDegree);
  const int bottom = static_cast<int>((90 - centre.latitude + reach) * kPixelsPerDegree) + 1;
  for (int y = std::max(top, 0); y <= std::min(bottom, kPictureHeight - 1); ++y) {
    const double latitude = 90 - (y + 0.5) / kPixelsPerDegree;
    const double widest = WidestAt(latitude, centre, reach);
    const int half = std::min(static_cast<int>(widest * kPixelsPerDegree) + 1, kPictureWidth / 2);
    for (int x = middle - half; x < middle + half; ++x) {
      const Place place = PlaceAt((x + 0.5) / kPixelsPerDegree - 180, latitude);
      heights[Cell(x, y)] +=
          static_cast<float>(depth * radius * CraterHeight(AngleBetween(centre, place) / radius));
    }
  }
}

void Relief::AddCraters(int count, double smallest, double largest, double depth, std::uint32_t seed) {
  std::mt19937 random(seed);
  const auto share = [&random] { return static_cast<double>(random()) / 4294967296.0; };
  for (int k = 0; k < count; ++k) {
    const double longitude = share() * 360 - 180;
    const double latitude = std::asin(share() * 2 - 1) / kDegree;
    const double radius = std::min(largest, smallest / std::pow(1 - share(), 0.6));
    AddCrater(PlaceAt(longitude, latitude), radius, depth);
  }
}

double Relief::Shade(const Place& place) const {
  const int x = static_cast<int>((place.longitude + 180) * kPixelsPerDegree);
  const int y = static_cast<int>((90 - place.latitude) * kPixelsPerDegree);
  // Eastern neighbours come nearer together toward the poles.
  const double columns = std::round(1 / std::max(std::cos(place.latitude * kDegree), 0.01));
  const int apart = std::min(64, static_cast<int>(columns));
  const double rise = heights[Cell(x + apart, y)] - heights[Cell(x - apart, y)];
  return 1 + std::clamp(rise, -0.55, 0.55);
}

}  // namespace quorb
