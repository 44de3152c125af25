#include <algorithm>
#include <cstdint>

#include "Geodesy.h"
#include "PlotData.h"
#include "SpecialPlots.h"

namespace quorb {

namespace {

/// Turn of the longitudes, in degrees, between the sheet's meridian and the scene's.
constexpr double kLongitudeShift = 87.5;
constexpr double kConversionScale = 1.0 / 1000;

}  // namespace

void NedConversion(const TitleKeywords& place, double givenScale, double& scale) {
  const NedPlace origin = NedPlaceAt(place.latitude, place.longitude - kLongitudeShift, place.distance);
  const std::int64_t rows = std::clamp<std::int64_t>(std::int64_t{LastPoint} + 1, 0, kRowBound);
  for (std::int64_t row = 0; row < rows; ++row) {
    double* cells = dataXYZT[row];
    double x = 0, y = 0, z = 0;
    NedToEcef(origin, cells[1] / givenScale, cells[2] / givenScale, cells[3] / givenScale, x, y, z,
              kConversionScale);
    AssignFinite(cells[1], x);
    AssignFinite(cells[2], y);
    AssignFinite(cells[3], z);
  }
  scale = givenScale;
}

}  // namespace quorb
