#pragma once

#include "BodyState.h"

namespace quorb {

class ClassGl;

/// Takes the angle about the body's Y axis at which an array looks to the Sun, off by up to 5 degrees either
/// way: the arrays hunt for the Sun. Beyond the range of single precision the angle stays.
/// @param random 0 to 1, a fresh one in each frame.
void TakeBestSunAngle(BodyState& state, double random);

/// Draws the arrays of the shape in the frame of the body: turned to the Sun with SolarPanelToSun, else by
/// the angles of the data, which drop out behind the last row of attitudes.
void DrawSolarArrays(ClassGl& scene, BodyState& state);

}  // namespace quorb
