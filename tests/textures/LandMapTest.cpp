#include "LandMap.h"

#include <gtest/gtest.h>

#include <fstream>

#include "KnownPlaces.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

/// The map of the repository, read once.
const LandMap& ShippedMap() {
  static const LandMap* const map = [] {
    auto* read = new LandMap;
    std::string error;
    EXPECT_TRUE(read->Read(QUORB_TEXTURE_DATA, error)) << error;
    return read;
  }();
  return *map;
}

TEST(LandMapTest, KnownPlacesAreLand) {
  for (const KnownPlace& place : kLandPlaces)
    EXPECT_EQ(ShippedMap().LandShare(PlaceAt(place.longitude, place.latitude)), 1) << place.name;
}

TEST(LandMapTest, KnownPlacesAreSea) {
  for (const KnownPlace& place : kSeaPlaces)
    EXPECT_EQ(ShippedMap().LandShare(PlaceAt(place.longitude, place.latitude)), 0) << place.name;
}

TEST(LandMapTest, AThirdOfTheEarthIsLand) {
  double land = 0, all = 0;
  for (int latitude = -89; latitude < 90; latitude += 2) {
    for (int longitude = -179; longitude < 180; longitude += 2) {
      const Place place = PlaceAt(longitude, latitude);
      const double area = std::hypot(place.direction[0], place.direction[1]);
      land += area * ShippedMap().LandShare(place);
      all += area;
    }
  }
  EXPECT_NEAR(land / all, 0.29, 0.02);
}

TEST(LandMapTest, TheEdgesOfTheMapAreInsideIt) {
  EXPECT_EQ(ShippedMap().LandShare(PlaceAt(0, 90)), 0);
  EXPECT_EQ(ShippedMap().LandShare(PlaceAt(180, -90)), 1);
  EXPECT_EQ(ShippedMap().LandShare(PlaceAt(180, 0)), ShippedMap().LandShare(PlaceAt(-180, 0)));
}

TEST(LandMapTest, SeaAndLandKeepTheirColoursUpToTheCoast) {
  for (const KnownPlace& place : kSeaPlaces) {
    const Tint sea = ShippedMap().SeaCover(PlaceAt(place.longitude, place.latitude));
    EXPECT_GT(sea.blue, sea.red + 0.1) << place.name;
  }
  for (const KnownPlace& place : kLandPlaces) {
    const Tint land = ShippedMap().LandCover(PlaceAt(place.longitude, place.latitude));
    EXPECT_LT(land.blue, land.red + 0.13) << place.name;
  }
}

TEST(LandMapTest, FilesThatAreMissingAreNamed) {
  const TemporaryDirectory directory;
  LandMap map;
  std::string error;
  EXPECT_FALSE(map.Read(directory.File(""), error));
  EXPECT_EQ(error, "The outlines " + directory.File("") + "/land.txt cannot be read.");
  std::ofstream(directory.File("land.txt")) << "# a square\n-100,-100 100,-100 100,100 -100,100\n\n";
  EXPECT_FALSE(map.Read(directory.File(""), error));
  EXPECT_TRUE(error.starts_with("The land cover " + directory.File("") + "/land-cover.png cannot be read: "))
      << error;
  EXPECT_EQ(map.LandShare(PlaceAt(9, 9)), 1) << "inside the square of 10 degrees";
  EXPECT_EQ(map.LandShare(PlaceAt(11, 9)), 0);
  EXPECT_EQ(map.LandShare(PlaceAt(9, -11)), 0);
}

}  // namespace
}  // namespace quorb
