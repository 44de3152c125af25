#include "ClassGl.h"

namespace quorb {

namespace {

constexpr double kEarthRadius = 6378;
constexpr double kMoonRadius = 1738;

struct BodyRadius {
  double body;
  double kilometres;
};

constexpr BodyRadius kRadii[] = {{1, 695000}, {2, 2439.7}, {3, 6051.8}, {4, kEarthRadius},
                                 {5, 3397.2}, {6, 71492},  {11, 1737.4}};

}  // namespace

void ClassGl::MainFocus(double& radius, double moonFlag, double body) {
  radius = kEarthRadius;
  for (const BodyRadius& known : kRadii) {
    if (known.body == body) radius = known.kilometres;
  }
  if (moonFlag == 1) radius = kMoonRadius;
}

}  // namespace quorb
