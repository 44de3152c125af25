#include "SatelliteShape.h"

#include <cstddef>

#include "UserFlag.h"

namespace quorb {

double ShapeZLength = kSatelliteShapes[0].zLength;
double ShapeArrays = kSatelliteShapes[0].arrays;
double ThrustAxisX = kSatelliteShapes[0].thrustX;
double ThrustAxisY = kSatelliteShapes[0].thrustY;
double ThrustAxisZ = kSatelliteShapes[0].thrustZ;
int ShowSatAxes = 1;

bool ChooseShape(int index) {
  if (index < 0 || index >= static_cast<int>(kSatelliteShapes.size())) return false;
  const SatelliteShapeEntry& shape = kSatelliteShapes[static_cast<std::size_t>(index)];
  ShapeZLength = shape.zLength;
  ShapeArrays = shape.arrays;
  ThrustAxisX = shape.thrustX;
  ThrustAxisY = shape.thrustY;
  ThrustAxisZ = shape.thrustZ;
  USERFLAG.SatelliteShape = index;
  return true;
}

int ShapeIndex(std::string_view name) {
  for (std::size_t i = 0; i < kSatelliteShapes.size(); ++i) {
    if (kSatelliteShapes[i].name == name) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace quorb
