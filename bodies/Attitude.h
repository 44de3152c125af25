#pragma once

#include "BodyState.h"

namespace quorb {

/// Takes the attitude w, x, y, z: Q, AttitudeAngle and the axis. A quaternion of another length than 1
/// stretches the axis; when the axis misses the length 1 by more than 0.45, or a component is no number in
/// single precision, the attitude is a turn of 90 degrees about X. So is that of the quaternion (1, 0, 0, 0),
/// which has no axis.
void TakeAttitude(BodyState& state, double w, double x, double y, double z);

/// Turns the three local axes by Q into SatAxisX, SatAxisY, SatAxisZ. An image beyond the range of single
/// precision leaves the axis as it was.
void TurnLocalAxes(BodyState& state);

}  // namespace quorb
