#pragma once

#include <cstdint>
#include <vector>

#include "Surface.h"

namespace quorb {

/// The heights of a cratered sphere over the pixels of its picture, in any unit.
class Relief {
 public:
  Relief();
  /// A bowl with a rim and a slope outside it; `radius` in degrees.
  void AddCrater(const Place& centre, double radius, double depth);
  /// `count` craters at random places, of radii from `smallest` to `largest` degrees, many small ones to a
  /// large one.
  void AddCraters(int count, double smallest, double largest, double depth, std::uint32_t seed);
  /// How bright the place is in a low light from the west, about 1 on level ground.
  double Shade(const Place& place) const;

 private:
  std::vector<float> heights;
};

}  // namespace quorb
