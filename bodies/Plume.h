#pragma once

#include "BodyState.h"

namespace quorb {

/// Draws the plume in the frame of the body: a rod against the side opposite to the thrust, as long as the
/// body while InThrust is 1 and a fifteenth of that otherwise.
void DrawPlume(BodyState& state);

}  // namespace quorb
