#include "Surface.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Relief.h"

namespace quorb {
namespace {

TEST(SurfaceTest, APlaceHasItsDirection) {
  const Place north = PlaceAt(0, 90), east = PlaceAt(90, 0), west = PlaceAt(-180, 0);
  EXPECT_NEAR(north.direction[2], 1, 1e-15);
  EXPECT_NEAR(east.direction[1], 1, 1e-15);
  EXPECT_NEAR(west.direction[0], -1, 1e-15);
}

TEST(SurfaceTest, TheAngleBetweenTwoPlacesIsThatOfTheGreatCircle) {
  EXPECT_NEAR(AngleBetween(PlaceAt(0, 0), PlaceAt(90, 0)), 90, 1e-12);
  EXPECT_NEAR(AngleBetween(PlaceAt(-179, 0), PlaceAt(179, 0)), 2, 1e-9);
  EXPECT_NEAR(AngleBetween(PlaceAt(0, 80), PlaceAt(180, 80)), 20, 1e-9);
  EXPECT_EQ(AngleBetween(PlaceAt(0, 90), PlaceAt(0, 90)), 0);
}

TEST(SurfaceTest, AMixtureGoesFromOneTintToTheOther) {
  const Tint a{0, 0.5, 1}, b{1, 0.5, 0};
  EXPECT_EQ(Mix(a, b, 0.25).red, 0.25);
  EXPECT_EQ(Mix(a, b, 0.25).green, 0.5);
  EXPECT_EQ(Mix(a, b, 0.25).blue, 0.75);
  EXPECT_EQ(Mix(a, b, -3).red, 0);
  EXPECT_EQ(Mix(a, b, 3).red, 1);
  EXPECT_EQ(Scaled(a, 2).green, 1);
}

TEST(SurfaceTest, ASmoothStepGoesFrom0To1) {
  EXPECT_EQ(SmoothStep(1, 3, 0), 0);
  EXPECT_EQ(SmoothStep(1, 3, 2), 0.5);
  EXPECT_EQ(SmoothStep(1, 3, 9), 1);
}

TEST(SurfaceTest, WavesStayNearTheirBoundsAndGoRoundWithoutASeam) {
  double lowest = 0, highest = 0, before = Waves(PlaceAt(-180, 20).direction, 3, 4, 9);
  const double first = before;
  for (int tenth = -1799; tenth <= 1800; ++tenth) {
    const double longitude = tenth / 10.0;
    const double wave = Waves(PlaceAt(longitude, 20).direction, 3, 4, 9);
    EXPECT_LT(std::abs(wave - before), 0.1) << longitude;
    before = wave;
    lowest = std::min(lowest, wave);
    highest = std::max(highest, wave);
  }
  EXPECT_NEAR(before, first, 1e-9);
  EXPECT_GT(lowest, -1.6);
  EXPECT_LT(lowest, -0.3);
  EXPECT_GT(highest, 0.3);
  EXPECT_LT(highest, 1.6);
}

TEST(SurfaceTest, EqualSeedsGiveEqualWaves) {
  const auto& direction = PlaceAt(33, 44).direction;
  EXPECT_EQ(Waves(direction, 5, 3, 1), Waves(direction, 5, 3, 1));
  EXPECT_NE(Waves(direction, 5, 3, 1), Waves(direction, 5, 3, 2));
}

TEST(SurfaceTest, APictureRunsFromTheNorthWestToTheSouthEast) {
  const PixelImage image = Unrolled([](const Place& place) {
    return Tint{(place.longitude + 180) / 360, (place.latitude + 90) / 180, 2};
  });
  ASSERT_EQ(image.width, kPictureWidth);
  ASSERT_EQ(image.height, kPictureHeight);
  ASSERT_EQ(image.rgb.size(), 3U * kPictureWidth * kPictureHeight);
  const std::size_t last = image.At(kPictureWidth - 1, kPictureHeight - 1);
  EXPECT_EQ(image.rgb[0], 0);
  EXPECT_EQ(image.rgb[1], 255);
  EXPECT_EQ(image.rgb[2], 255) << "brighter than white is white";
  EXPECT_EQ(image.rgb[last], 255);
  EXPECT_EQ(image.rgb[last + 1], 0);
  EXPECT_NEAR(image.rgb[image.At(kPictureWidth / 4, 0)], 64, 1);
}

TEST(ReliefTest, LevelGroundHasTheBrightness1) {
  EXPECT_EQ(Relief().Shade(PlaceAt(12, 34)), 1);
}

TEST(ReliefTest, LightFromTheWestLeavesTheWesternSlopeOfABowlDarkAndTheEasternOneBright) {
  Relief relief;
  relief.AddCrater(PlaceAt(0, 0), 10, 1);
  EXPECT_LT(relief.Shade(PlaceAt(-8, 0)), 0.95);
  EXPECT_GT(relief.Shade(PlaceAt(8, 0)), 1.05);
  EXPECT_EQ(relief.Shade(PlaceAt(25, 0)), 1) << "outside two radii";
}

TEST(ReliefTest, ABowlOverTheEdgeOfThePictureHasNoSeam) {
  Relief edge, middle;
  edge.AddCrater(PlaceAt(-180, 5), 8, 1);
  middle.AddCrater(PlaceAt(0, 5), 8, 1);
  for (int pixel = -90; pixel < 90; ++pixel) {
    const double offset = (pixel + 0.5) * 360 / kPictureWidth;
    const double longitude = offset < 0 ? 180 + offset : -180 + offset;
    EXPECT_NEAR(edge.Shade(PlaceAt(longitude, 5)), middle.Shade(PlaceAt(offset, 5)), 1e-5) << offset;
  }
}

// Round a pole each row lies in the bowl as a whole.
TEST(ReliefTest, ABowlOverAPoleHasNoGap) {
  for (const double latitude : {88.0, -87.0}) {
    Relief relief;
    relief.AddCrater(PlaceAt(20, latitude), 4, 0.2);
    const double row = latitude > 0 ? 89.5 : -89.5;
    double before = relief.Shade(PlaceAt(-179.99, row));
    for (int tenth = -1798; tenth < 1800; ++tenth) {
      const double longitude = tenth / 10.0;
      const double shade = relief.Shade(PlaceAt(longitude, row));
      EXPECT_NEAR(shade, before, 0.03) << longitude;
      before = shade;
    }
  }
}

TEST(ReliefTest, EqualSeedsGiveEqualCraters) {
  Relief a, b, c;
  a.AddCraters(50, 2, 10, 0.3, 5);
  b.AddCraters(50, 2, 10, 0.3, 5);
  c.AddCraters(50, 2, 10, 0.3, 6);
  double difference = 0, other = 0;
  for (int longitude = -180; longitude < 180; ++longitude) {
    const Place place = PlaceAt(longitude, 0);
    difference += std::abs(a.Shade(place) - b.Shade(place));
    other += std::abs(a.Shade(place) - c.Shade(place));
  }
  EXPECT_EQ(difference, 0);
  EXPECT_GT(other, 0);
}

}  // namespace
}  // namespace quorb
