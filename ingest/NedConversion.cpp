#include <algorithm>
#include <cstdint>

#include "Geodesy.h"
#include "PlotData.h"
#include "RowPairs.h"
#include "SpecialPlots.h"

namespace quorb {

namespace {

/// Turn of the longitudes, in degrees, between the sheet's meridian and the scene's.
constexpr double kLongitudeShift = 87.5;
constexpr double kConversionScale = 1.0 / 1000;

}  // namespace

void NedConversion(const TitleKeywords& place, double givenScale, double& scale) {
  const NedPlace origin = NedPlaceAt(place.latitude, place.longitude - kLongitudeShift, place.distance);
  const std::int64_t lastRow = std::min<std::int64_t>(LastPoint, kRowBound - 1);
  ConvertPoints(0, lastRow, [origin, givenScale](const TwoPoints& offsets) {
    TwoPoints points{};
    NedToEcef(origin, offsets.x / givenScale, offsets.y / givenScale, offsets.z / givenScale, points.x,
              points.y, points.z, kConversionScale);
    return points;
  });
  scale = givenScale;
}

}  // namespace quorb
