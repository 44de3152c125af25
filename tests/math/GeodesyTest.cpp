#include "Geodesy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Mth.h"

namespace quorb {
namespace {

class GeodesyTest : public testing::Test {
 protected:
  void ExpectPoint(double expectedX, double expectedY, double expectedZ, double tolerance) const {
    EXPECT_NEAR(X, expectedX, tolerance);
    EXPECT_NEAR(Y, expectedY, tolerance);
    EXPECT_NEAR(Z, expectedZ, tolerance);
  }

  double X = 0.0;
  double Y = 0.0;
  double Z = 0.0;
};

TEST_F(GeodesyTest, LongitudeCountsFromYTowardX) {
  PolarToXYZ(0, 0, 5, 0, 0, 0, X, Y, Z);
  ExpectPoint(0, 5, 0, 1e-12);
  PolarToXYZ(90, 0, 5, 0, 0, 0, X, Y, Z);
  ExpectPoint(5, 0, 0, 1e-12);
  PolarToXYZ(-90, 0, 5, 0, 0, 0, X, Y, Z);
  ExpectPoint(-5, 0, 0, 1e-12);
}

TEST_F(GeodesyTest, LatitudeAndCentreArePartOfAPolarPoint) {
  PolarToXYZ(123, 90, 5, 1, 2, 3, X, Y, Z);
  ExpectPoint(1, 2, 8, 1e-12);
  // cos 60 = 1/2: x = 10 / 2 sin 30 + 1, y = 10 / 2 cos 30 + 2, z = 10 sin 60 + 3.
  PolarToXYZ(30, 60, 10, 1, 2, 3, X, Y, Z);
  ExpectPoint(3.5, 6.330127018922193, 11.660254037844387, 1e-12);
}

TEST_F(GeodesyTest, OriginOfLongitudesOnTheEquatorIsTheSemiMajorAxis) {
  EXPECT_EQ(GeoToEcef(0, 0, 0, X, Y, Z), 1);
  EXPECT_EQ(X, 6378137.0);
  EXPECT_EQ(Y, 0.0);
  EXPECT_EQ(Z, 0.0);
}

TEST_F(GeodesyTest, PoleIsTheSemiMinorAxis) {
  GeoToEcef(90, 0, 0, X, Y, Z);
  ExpectPoint(0, 0, 6356752.314245, 1e-6);
  GeoToEcef(-90, 0, 1000, X, Y, Z);
  ExpectPoint(0, 0, -6357752.314245, 1e-6);
}

TEST_F(GeodesyTest, HeightStandsOnTheGeodeticVertical) {
  GeoToEcef(0, 90, 100, X, Y, Z);
  ExpectPoint(0, 6378237, 0, 1e-6);
  // N = 6378137 / √(1 - e² / 2) = 6388838.290121 at 45 degrees.
  GeoToEcef(45, 0, 0, X, Y, Z);
  ExpectPoint(4517590.878849, 0, 4487348.408866, 1e-5);
  GeoToEcef(45, 0, 1000, X, Y, Z);
  ExpectPoint(4517590.878849 + 707.106781, 0, 4487348.408866 + 707.106781, 1e-5);
}

TEST_F(GeodesyTest, GeocentricLatitudeIsInSinglePrecision) {
  EXPECT_EQ(AtanLatitude(1, 1), static_cast<float>(M_PI / 4));
  EXPECT_EQ(AtanLatitude(-1, 1), static_cast<float>(-M_PI / 4));
  EXPECT_EQ(AtanLatitude(0, 1), 0.0F);
  EXPECT_EQ(AtanLatitude(1, 0), static_cast<float>(M_PI / 2));
  // Beyond 24 bits the arguments are the same.
  EXPECT_EQ(AtanLatitude(1.00000001, 1), AtanLatitude(1, 1));
}

TEST_F(GeodesyTest, LatitudeOfWhatSinglePrecisionCannotHoldIs0) {
  EXPECT_EQ(AtanLatitude(1e39, 1), 0.0F);
  EXPECT_EQ(AtanLatitude(1, 1e300), 0.0F);
  EXPECT_EQ(AtanLatitude(std::numeric_limits<double>::quiet_NaN(), 1), 0.0F);
}

TEST_F(GeodesyTest, NoOffsetGivesThePlaceItself) {
  for (const double latitude : {-90.0, -33.3, 0.0, 5.2, 48.85, 90.0}) {
    for (const double longitude : {-180.0, -52.8, 0.0, 2.35, 400.0}) {
      double placeX = 0.0, placeY = 0.0, placeZ = 0.0;
      GeoToEcef(latitude, longitude, 123.4, placeX, placeY, placeZ);
      EXPECT_EQ(NedToEcef(latitude, longitude, 123.4, 0, 0, 0, X, Y, Z, 1), 1);
      EXPECT_EQ(X, placeX);
      EXPECT_EQ(Y, placeY);
      EXPECT_EQ(Z, placeZ);
    }
  }
}

TEST_F(GeodesyTest, OffsetsAtTheOriginOfLongitudesFollowTheAxes) {
  NedToEcef(0, 0, 0, 10, 20, 30, X, Y, Z, 1);
  ExpectPoint(6378137 - 30, 20, 10, 1e-8);
}

TEST_F(GeodesyTest, OffsetsAtLongitudeNinetyTurnWithThePlace) {
  NedToEcef(0, 90, 0, 10, 20, 30, X, Y, Z, 1);
  ExpectPoint(-20, 6378137 - 30, 10, 1e-6);
}

TEST_F(GeodesyTest, OffsetsAtThePolePointAwayFromTheMeridian) {
  NedToEcef(90, 0, 0, 10, 20, 30, X, Y, Z, 1);
  ExpectPoint(-10, 20, 6356752.314245 - 30, 1e-5);
}

TEST_F(GeodesyTest, LocalAxesStandOnTheGeocentricLatitude) {
  // tan φc = (1 - e²) tan 45: φc = 44.8075768 degrees, 0.19 degrees off the vertical.
  NedToEcef(45, 0, 0, 1000, 0, 0, X, Y, Z, 1);
  ExpectPoint(4517590.878849 - 704.728037, 0, 4487348.408866 + 709.477550, 1e-3);
  NedToEcef(45, 0, 0, 0, 0, 1000, X, Y, Z, 1);
  ExpectPoint(4517590.878849 - 709.477550, 0, 4487348.408866 - 704.728037, 1e-3);
}

TEST_F(GeodesyTest, ScaleMultipliesPlaceAndOffsets) {
  NedToEcef(0, 0, 0, 10, 20, 30, X, Y, Z, 0.001);
  ExpectPoint(6378.107, 0.02, 0.01, 1e-9);
}

TEST_F(GeodesyTest, PlaceTakenOnceGivesTheSamePoints) {
  const NedPlace place = NedPlaceAt(48.85, 2.35 - 87.5, 35);
  for (double offset = -1e6; offset <= 1e6; offset += 123456.789) {
    double onceX = 0.0, onceY = 0.0, onceZ = 0.0;
    NedToEcef(place, offset, 2 * offset, -offset, onceX, onceY, onceZ, 0.001);
    NedToEcef(48.85, 2.35 - 87.5, 35, offset, 2 * offset, -offset, X, Y, Z, 0.001);
    EXPECT_EQ(onceX, X);
    EXPECT_EQ(onceY, Y);
    EXPECT_EQ(onceZ, Z);
  }
}

}  // namespace
}  // namespace quorb
