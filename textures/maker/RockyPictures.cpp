#include <algorithm>
#include <cmath>

#include "BodyPictures.h"
#include "Relief.h"

namespace quorb {

namespace {

/// A dark or bright patch: its place and radius in degrees.
struct Patch {
  double longitude, latitude, radius;
};

constexpr Patch kMoonSeas[] = {{-16, 33, 19}, {18, 28, 11},   {31, 9, 14},   {59, 17, 8},   {51, -6, 12},
                               {35, -15, 6},  {-17, -21, 11}, {-39, -24, 7}, {-50, 22, 15}, {-58, 8, 15},
                               {-50, -6, 12}, {-36, 50, 9},   {-15, 56, 7},  {5, 56, 7},    {25, 55, 6},
                               {4, 13, 5},    {-28, -8, 11},  {-22, 8, 9},   {-94, -19, 5}, {89, 13, 6},
                               {86, -2, 6},   {148, 27, 5},   {163, -34, 6}, {129, -20, 4}};

constexpr Patch kMoonRays[] = {{-11, -43, 1.6}, {-20, 10, 1.4}, {-38, 8, 1.0}, {-47, 24, 0.9}, {61, -9, 0.9}};

constexpr Patch kMarsDarks[] = {
    {70, 8, 9},     {68, 0, 8},      {0, -6, 10},     {-25, -25, 13},  {-40, -30, 14}, {-60, -35, 13},
    {20, -25, 12},  {55, -20, 13},   {78, -30, 11},   {95, -22, 14},   {125, -25, 12}, {150, -30, 15},
    {177, -36, 14}, {-160, -32, 15}, {-135, -35, 14}, {-112, -38, 12}, {-35, 45, 16},  {-12, 54, 12},
    {-90, -28, 6},  {20, 50, 9},     {110, 48, 10}};

/// How much a place lies in the patches: 0 to 1, with a ragged shore.
template <std::size_t count>
double InPatches(const Patch (&patches)[count], const Place& place, double raggedness, double softness) {
  double most = 0;
  for (const Patch& patch : patches) {
    const double distance =
        AngleBetween(place, PlaceAt(patch.longitude, patch.latitude)) / patch.radius + raggedness;
    most = std::max(most, 1 - SmoothStep(1 - softness, 1 + softness, distance));
  }
  return most;
}

/// Bright streaks away from young craters.
double Rays(const Place& place) {
  double sum = 0;
  for (const Patch& crater : kMoonRays) {
    const Place centre = PlaceAt(crater.longitude, crater.latitude);
    const double distance = AngleBetween(place, centre) / crater.radius;
    const double east = (place.longitude - crater.longitude) * std::cos(crater.latitude * 0.01745);
    const double bearing = std::atan2(place.latitude - crater.latitude, east);
    const double streak = SmoothStep(
        0.1, 0.8, Waves({3 * std::cos(bearing), 3 * std::sin(bearing), crater.longitude}, 2.2, 2, 77));
    sum += streak * std::exp(-distance / 7) + 0.8 * std::exp(-distance * distance / 3);
  }
  return std::min(sum, 1.0);
}

Tint EarthTint(const LandMap& land, const Place& place) {
  const Tint sea = land.SeaCover(place);
  const double shallow = SmoothStep(0.45, 0.75, sea.green);
  const Tint water = Mix({0.02, 0.07, 0.22}, {0.09, 0.29, 0.48}, shallow);
  const Tint cover = land.LandCover(place);
  // The cover's pastel colours, as deep as they look from space.
  const Tint ground{std::pow(cover.red, 2.2) * 0.86, std::pow(cover.green, 2.1) * 0.84,
                    std::pow(cover.blue, 2.3) * 0.82};
  return Mix(water, ground, land.LandShare(place));
}

}  // namespace

PixelImage EarthPicture(const LandMap& land) {
  return Unrolled([&land](const Place& place) { return EarthTint(land, place); });
}

PixelImage MoonPicture() {
  Relief relief;
  relief.AddCraters(2600, 0.45, 5, 0.16, 11);
  for (const Patch& crater : kMoonRays)
    relief.AddCrater(PlaceAt(crater.longitude, crater.latitude), crater.radius, 0.25);
  return Unrolled([&relief](const Place& place) {
    const double rough = Waves(place.direction, 5, 6, 3);
    const double sea = InPatches(kMoonSeas, place, 0.75 * rough, 0.3);
    const Tint highland = Scaled({0.66, 0.65, 0.62}, 1 + 0.16 * Waves(place.direction, 18, 5, 5));
    const Tint basalt = Scaled({0.40, 0.40, 0.41}, 1 + 0.14 * Waves(place.direction, 9, 5, 7));
    const Tint ground = Mix(highland, basalt, sea);
    const double relieved = 1 + (relief.Shade(place) - 1) * (1 - 0.65 * sea);
    return Mix(Scaled(ground, relieved), {0.88, 0.87, 0.84}, 0.55 * Rays(place));
  });
}

PixelImage MercuryPicture() {
  Relief relief;
  relief.AddCraters(4200, 0.5, 6, 0.15, 29);
  return Unrolled([&relief](const Place& place) {
    const double plains = SmoothStep(-0.2, 0.5, Waves(place.direction, 2.5, 5, 31));
    const Tint ground = Mix({0.47, 0.43, 0.39}, {0.60, 0.56, 0.51}, plains);
    return Scaled(ground, relief.Shade(place) * (1 + 0.14 * Waves(place.direction, 14, 5, 37)));
  });
}

PixelImage MarsPicture() {
  Relief relief;
  relief.AddCraters(1100, 0.45, 3.5, 0.09, 41);
  return Unrolled([&relief](const Place& place) {
    const double rough = Waves(place.direction, 4, 6, 43);
    const double dust = 0.5 + 0.5 * Waves(place.direction, 2, 6, 47);
    const Tint desert = Mix({0.66, 0.36, 0.19}, {0.83, 0.54, 0.32}, dust);
    const double dark = InPatches(kMarsDarks, place, 1.1 * rough, 0.6);
    const Tint ground = Mix(desert, {0.33, 0.20, 0.14}, 0.7 * dark);
    const double edge = 3 * rough;
    const double ice =
        std::max(SmoothStep(79, 82, place.latitude + edge), SmoothStep(82, 85, -place.latitude + edge));
    return Mix(Scaled(ground, relief.Shade(place) * (1 + 0.08 * Waves(place.direction, 20, 4, 53))),
               {0.94, 0.93, 0.91}, ice);
  });
}

}  // namespace quorb
