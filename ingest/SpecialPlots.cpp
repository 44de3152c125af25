#include "SpecialPlots.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

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

void DressDemo(LoaderWindow& window) {
  constexpr double kRadiusOfSizeOne = 7500.0 * 82;
  double radius = 0;
  const std::int64_t rows = std::clamp<std::int64_t>(std::int64_t{LastPoint} + 1, 0, kRowBound);
  for (std::int64_t row = 0; row < rows; ++row) {
    const double* cells = dataXYZT[row];
    radius = std::max(radius, std::sqrt(cells[1] * cells[1] + cells[2] * cells[2] + cells[3] * cells[3]));
  }
  window.SetValue(LoaderControl::Check3, 1);
  window.SetValue(LoaderControl::Check4, 1);
  window.SetSatelliteSize(radius / kRadiusOfSizeOne);
  window.SetSatelliteShape("GEO satcom");
}

}  // namespace quorb
