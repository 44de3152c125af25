#include <algorithm>
#include <cmath>

#include "BodyPictures.h"

namespace quorb {

namespace {

using Direction = std::array<double, 3>;

/// The direction moved by waves, so that what is drawn from it swirls; `upward` is the share of it along the
/// axis.
Direction Swirled(const Direction& d, double strength, double frequency, double upward, std::uint32_t seed) {
  return {d[0] + strength * Waves(d, frequency, 4, seed), d[1] + strength * Waves(d, frequency, 4, seed + 50),
          d[2] + upward * strength * Waves(d, frequency, 4, seed + 100)};
}

/// A belt or zone of clouds: its middle latitude and the colour there.
struct Band {
  double latitude;
  Tint tint;
};

constexpr Band kJupiterBands[] = {
    {-90, {0.48, 0.43, 0.40}}, {-68, {0.56, 0.50, 0.45}}, {-54, {0.72, 0.65, 0.57}},
    {-46, {0.62, 0.52, 0.44}}, {-38, {0.83, 0.77, 0.69}}, {-30, {0.86, 0.80, 0.72}},
    {-24, {0.88, 0.82, 0.73}}, {-19, {0.62, 0.43, 0.31}}, {-10, {0.66, 0.47, 0.34}},
    {-6, {0.88, 0.82, 0.72}},  {0, {0.92, 0.87, 0.79}},   {6, {0.88, 0.80, 0.68}},
    {9, {0.60, 0.39, 0.27}},   {16, {0.66, 0.46, 0.33}},  {20, {0.86, 0.79, 0.69}},
    {26, {0.89, 0.84, 0.75}},  {31, {0.70, 0.58, 0.48}},  {37, {0.81, 0.74, 0.66}},
    {46, {0.66, 0.58, 0.51}},  {58, {0.61, 0.55, 0.49}},  {90, {0.47, 0.43, 0.41}}};

Tint BandTint(double latitude) {
  const Band* north = std::begin(kJupiterBands) + 1;
  while (north + 1 != std::end(kJupiterBands) && north->latitude < latitude)
    ++north;
  const Band& south = north[-1];
  return Mix(south.tint, north->tint, SmoothStep(south.latitude, north->latitude, latitude));
}

/// 1 in the middle of the red spot, 0 outside it.
double RedSpot(const Place& place) {
  constexpr double kLongitude = -60, kLatitude = -22.5, kHalfWidth = 10, kHalfHeight = 6;
  const double x = (place.longitude - kLongitude) / kHalfWidth;
  const double y = (place.latitude - kLatitude) / kHalfHeight;
  return 1 - SmoothStep(0.6, 1.2, std::hypot(x, y));
}

}  // namespace

PixelImage SunPicture() {
  return Unrolled([](const Place& place) {
    const Direction swirled = Swirled(place.direction, 0.05, 6, 1, 61);
    const double grains = 0.5 + 0.5 * Waves(swirled, 30, 5, 67);
    const double regions = SmoothStep(0.1, 0.9, Waves(swirled, 3, 4, 71));
    Tint tint = Mix({0.93, 0.42, 0.05}, {1.0, 0.83, 0.32}, grains);
    tint = Mix(tint, {1.0, 0.95, 0.66}, 0.7 * regions * grains);
    // Spots keep to two belts on both sides of the equator.
    const double belt = 1 - SmoothStep(6, 14, std::abs(std::abs(place.latitude) - 17));
    const double spot = SmoothStep(0.64, 0.84, belt * Waves(swirled, 9, 3, 73));
    return Mix(tint, {0.35, 0.12, 0.02}, spot);
  });
}

PixelImage VenusPicture() {
  return Unrolled([](const Place& place) {
    // The clouds bend back toward both poles.
    const double bend = 60 * std::abs(std::sin(place.latitude * 0.01745));
    const Place carried = PlaceAt(place.longitude + bend, place.latitude);
    Direction swirled = Swirled(carried.direction, 0.25, 2, 0.5, 83);
    swirled[2] *= 3.5;
    const double cloud = 0.5 + 0.5 * Waves(swirled, 2.2, 6, 89);
    const Tint tint = Mix({0.70, 0.52, 0.30}, {0.95, 0.88, 0.70}, cloud);
    return Mix(tint, {0.93, 0.88, 0.76}, 0.5 * SmoothStep(55, 80, std::abs(place.latitude)));
  });
}

PixelImage JupiterPicture() {
  return Unrolled([](const Place& place) {
    const double spot = RedSpot(place);
    Direction drawnOut = Swirled(place.direction, 0.07, 7, 1, 97);
    drawnOut[2] *= 6;
    const double stir = Waves(drawnOut, 5, 5, 101);
    const double calm = 1 - SmoothStep(45, 75, std::abs(place.latitude));
    const Tint band = BandTint(place.latitude + 2.2 * calm * stir);
    const Tint streaked = Scaled(band, 1 + 0.10 * Waves(drawnOut, 11, 4, 103));
    return Mix(streaked, Scaled({0.74, 0.36, 0.22}, 1 + 0.12 * stir), 0.9 * spot);
  });
}

}  // namespace quorb
