#pragma once

#include <array>
#include <string_view>

namespace quorb {

/// One shape that the spacecraft can take.
struct SatelliteShapeEntry {
  /// Its name in the list of the option panel.
  std::string_view name;
  /// How many times the body is longer along Z than wide.
  double zLength;
  /// Number of solar arrays: 1 stands on the plus Y side.
  double arrays;
  /// Local axis and sign that the main thrust acts along; one of the three is not 0.
  double thrustX, thrustY, thrustZ;
};

/// The shapes, by the index that USERFLAG.SatelliteShape holds.
inline constexpr std::array<SatelliteShapeEntry, 7> kSatelliteShapes = {{
    {"GEO satcom", 2, 2, 0, 0, 1},
    {"LEO Spot", 1.5, 1, -1, 0, 0},
    {"Launcher", 10, 0, 0, 0, -1},
    {"CubeSat", 1, 0, 0, 0, 1},
    {"CubeSat3U", 3, 0, 0, 0, 1},
    {"Smart1", 1, 2, 0, 0, 1},
    {"CubeSat3U5", 3, 1, 0, 0, 1},
}};

/// Indices of the shapes that are drawn in their own way.
inline constexpr int kShapeLauncher = 2;
inline constexpr int kShapeCubeSat = 3;
inline constexpr int kShapeCubeSat3U = 4;
inline constexpr int kShapeCubeSat3U5 = 6;

/// The numbers of the shape chosen last, at the start those of the first one.
extern double ShapeZLength, ShapeArrays, ThrustAxisX, ThrustAxisY, ThrustAxisZ;

/// 1 draws the local axes of the spacecraft.
extern int ShowSatAxes;

/// Takes the shape of an index: its numbers, and USERFLAG.SatelliteShape. An index outside the table changes
/// nothing and gives false.
bool ChooseShape(int index);

/// The index of a shape by its name; -1 when there is none.
int ShapeIndex(std::string_view name);

}  // namespace quorb
