#pragma once

namespace quorb {

/// A colour of the ramp of ClassGl::ColorScale, parts from 0 to 1.
struct RampColour {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 0;
};

/// ClassGl::ColorScale into one record: the ramp's colour of `value` between `low` and `high`.
void TakeRampColour(RampColour& colour, double value, double low, double& high);

/// Sets the drawing colour to the colour's red, green and blue with the alpha given.
void SetRampColour(const RampColour& colour, double alpha);

}  // namespace quorb
