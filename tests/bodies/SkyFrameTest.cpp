#include "Ephemeris.h"
#include "ModMATHASdbl.h"
#include "RecordedSky.h"

namespace quorb {
namespace {

double Degrees(double radians) {
  return radians * 180 / std::acos(-1.0);
}

double Ascension(const Vector3& v) {
  const double angle = Degrees(std::atan2(v(2), v(1)));
  return angle < 0 ? angle + 360 : angle;
}

double Declination(const Vector3& v) {
  return Degrees(std::atan2(v(3), std::hypot(v(1), v(2))));
}

double Length(const Vector3& v) {
  return std::hypot(v(1), v(2), v(3));
}

Vector3 Expected(double day, int body) {
  constexpr double kEphemerisShift = 366;
  Vector3 fromSun, fromEarth, equatorial;
  EXPECT_TRUE(EphemerisAt(day - kEphemerisShift, body, body == 0 ? 0 : 4, fromSun, fromEarth));
  EclipticToEquator(fromEarth, equatorial);
  return equatorial;
}

/// Right ascension and declination in degrees and distance in kilometres, of the mean equinox of date, from
/// an independent theory.
struct SkyDate {
  double day;
  double sunAscension, sunDeclination;
  double moonAscension, moonDeclination, moonDistance;
};

// Source: ERFA (IAU SOFA) 2.0.0, eraEpv00 and eraMoon98, turned to the mean equator and equinox of date:
// 12 July 1998 4:48, 28 February 2015 2:24, 17 October 2018 9:36.
constexpr SkyDate kDates[] = {
    {35988.2, 111.281, 21.998, 323.65, -13.42, 375000},
    {42063.1, 340.761, -8.130, 97.37, 18.05, 396400},
    {43390.4, 202.195, -9.300, 303.17, -19.83, 404100},
};

class SkyFrameTest : public RecordedSky, public testing::WithParamInterface<SkyDate> {
 protected:
  SkyFrameTest() { DrawAt(GetParam().day); }
};

TEST_P(SkyFrameTest, TheLightStandsAtTheSunOfTheEphemerides) {
  const Vector3 drawn = Sun();
  const Vector3 expected = Expected(GetParam().day, 0);
  for (int axis = 1; axis <= 3; ++axis)
    EXPECT_NEAR(drawn(axis), expected(axis) / 1e6, 1);
  EXPECT_NEAR(Ascension(drawn), GetParam().sunAscension, 0.02);
  EXPECT_NEAR(Declination(drawn), GetParam().sunDeclination, 0.02);
}

// The scene's obliquity is 23.45 degrees: at most 0.02 more than that of the date.
TEST_P(SkyFrameTest, TheMoonStandsAtThatOfTheEphemerides) {
  const Vector3 drawn = Moon();
  const Vector3 expected = Expected(GetParam().day, kMoonBody);
  for (int axis = 1; axis <= 3; ++axis)
    EXPECT_NEAR(drawn(axis), expected(axis) / 1000, 2);
  EXPECT_NEAR(Ascension(drawn), GetParam().moonAscension, 0.5);
  EXPECT_NEAR(Declination(drawn), GetParam().moonDeclination, 0.5);
  EXPECT_NEAR(Length(drawn), GetParam().moonDistance, 0.02 * GetParam().moonDistance);
}

INSTANTIATE_TEST_SUITE_P(ThreeDates, SkyFrameTest, testing::ValuesIn(kDates));

}  // namespace
}  // namespace quorb
