#include <ostream>

#include "RenderedPlot.h"

namespace quorb {
namespace {

/// The Sun over a coast that runs from south to north. Declination and right ascension are those of the date,
/// the longitude below the Sun is 15 (12 h - UT) less a quarter of a degree for each minute of the equation
/// of time.
struct SunOverCoast {
  const char* where;
  double day;                          ///< serial date at 0 h
  double ascension, declination;       ///< degrees
  double equationOfTime;               ///< minutes
  double landLongitude, seaLongitude;  ///< degrees east, a degree or two beside the coast
};

std::ostream& operator<<(std::ostream& out, const SunOverCoast& sun) {
  return out << sun.where;
}

class SkyPictures : public RenderedPlot, public testing::WithParamInterface<SunOverCoast> {
 protected:
  /// The pixel in the middle of the Earth when the Sun stands over a longitude, seen from the Sun.
  std::string PixelBelowTheSun(double longitude) const {
    const SunOverCoast& sun = GetParam();
    const double hours = 12 - (longitude + sun.equationOfTime / 4) / 15;
    Write("=0.01+LEN(\"Below the Sun kmday\")+MAX(A2:C62)+MAX(D2:D62)",
          QuarterCircle(20000, sun.day + hours / 24));
    const PixelImage image =
        Picture("--size 201x201 --zoom 3 --set NoSunRay=1 --set NoPlotAxis=1 --view from:" +
                std::to_string(sun.ascension) + "," + std::to_string(sun.declination));
    const std::size_t at = image.At(100, 100);
    const int red = image.rgb[at], green = image.rgb[at + 1], blue = image.rgb[at + 2];
    if (red + green + blue < 100) return "night";
    return blue > red && blue > green ? "sea" : "land";
  }
};

TEST_P(SkyPictures, TheSunStandsOverTheCoastOfItsHour) {
  EXPECT_EQ(PixelBelowTheSun(GetParam().landLongitude), "land");
  EXPECT_EQ(PixelBelowTheSun(GetParam().seaLongitude), "sea");
}

// 21 March 2003: the equinox was at 1 h UT, so the Sun is 0.2 degrees north at noon; the coast of Gabon on
// the equator lies at 9.3 degrees east. 21 June 2003, the day of the solstice: Western Sahara, 16.0 degrees
// west at 23.4 north. 22 December 2003: Namibia, 14.5 degrees east at 23.4 south, and Chile, 70.5 west.
INSTANTIATE_TEST_SUITE_P(Coasts, SkyPictures,
                         testing::Values(SunOverCoast{"Gabon", 37701, 0.4, 0.2, -7.3, 10.5, 8.2},
                                         SunOverCoast{"Western Sahara", 37793, 89.7, 23.4, -1.7, -15.2,
                                                      -16.9},
                                         SunOverCoast{"Namibia", 37977, 270.2, -23.4, 1.6, 15.5, 13.5},
                                         SunOverCoast{"Chile", 37977, 270.3, -23.4, 1.5, -69.5, -71.5}));

}  // namespace
}  // namespace quorb
