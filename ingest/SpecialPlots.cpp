#include "SpecialPlots.h"

#include <cmath>

#include "PlotData.h"

namespace quorb {

void BuiltInPlot(int& row, double& scale) {
  constexpr double kRadius = 10.5 * 29242.77201;
  constexpr double kShortPi = 3.14159;
  for (int i = 0; i <= 7; ++i) {
    const double angle = (-360.0 + 72.0 * (i - 2)) * kShortPi / 180;
    const double radius = i >= 2 ? kRadius : 0;
    dataXYZT.Set(i, 0, 0);
    dataXYZT.Set(i, 1, radius * std::cos(angle));
    dataXYZT.Set(i, 2, radius * std::sin(angle));
    dataXYZT.Set(i, 3, 0);
  }
  row = 9;
  scale = 1.0 / 1000;
}

}  // namespace quorb
