#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <ostream>
#include <vector>

#include "BodyPictures.h"
#include "JpegFile.h"
#include "KnownPlaces.h"

namespace quorb {
namespace {

PixelImage MadeEarth() {
  LandMap land;
  std::string error;
  EXPECT_TRUE(land.Read(QUORB_TEXTURE_DATA, error)) << error;
  return EarthPicture(land);
}

struct BodyPicture {
  const char* file;
  PixelImage (*make)();
};
void PrintTo(const BodyPicture& picture, std::ostream* out) {
  *out << picture.file;
}

constexpr BodyPicture kPictures[] = {{"earthjpg.jpg", MadeEarth},
                                     {"moonjpg.jpg", MoonPicture},
                                     {"2k_sun.jpg", SunPicture},
                                     {"2k_mercury.jpg", MercuryPicture},
                                     {"2k_venus_atmosphere.jpg", VenusPicture},
                                     {"2k_mars.jpg", MarsPicture},
                                     {"2k_jupiter.jpg", JupiterPicture}};

PixelImage Shipped(const std::string& file) {
  PixelImage image;
  std::string error;
  EXPECT_TRUE(ReadJpeg(std::string(QUORB_SHIPPED_PICTURES) + '/' + file, image, error)) << error;
  return image;
}

/// Mean difference of two columns, a colour.
double ColumnDifference(const PixelImage& image, int a, int b) {
  double sum = 0;
  for (int y = 0; y < image.height; ++y) {
    for (std::size_t k = 0; k < 3; ++k)
      sum += std::abs(image.rgb[image.At(a, y) + k] - image.rgb[image.At(b, y) + k]);
  }
  return sum / (3 * image.height);
}

/// Standard deviation of the brightness of a row.
double RowSpread(const PixelImage& image, int y) {
  double sum = 0, squares = 0;
  for (int x = 0; x < image.width; ++x) {
    const std::size_t at = image.At(x, y);
    const double brightness = (image.rgb[at] + image.rgb[at + 1] + image.rgb[at + 2]) / 3.0;
    sum += brightness;
    squares += brightness * brightness;
  }
  const double mean = sum / image.width;
  return std::sqrt(std::max(squares / image.width - mean * mean, 0.0));
}

class ShippedPictureTest : public testing::TestWithParam<BodyPicture> {
 protected:
  PixelImage image = Shipped(GetParam().file);
};

TEST_P(ShippedPictureTest, HasItsSize) {
  EXPECT_EQ(image.width, 2048);
  EXPECT_EQ(image.height, 1024);
}

TEST_P(ShippedPictureTest, GoesRoundWithoutASeam) {
  double sum = 0;
  for (int x = 7; x < image.width - 1; x += 8)
    sum += ColumnDifference(image, x, x + 1);
  const double usual = sum / (image.width / 8.0);
  EXPECT_LT(ColumnDifference(image, image.width - 1, 0), 1.5 * usual + 0.5);
}

TEST_P(ShippedPictureTest, HasOneColourAtEachPole) {
  EXPECT_LT(RowSpread(image, 0), 12);
  EXPECT_LT(RowSpread(image, image.height - 1), 12);
}

TEST_P(ShippedPictureTest, ShowsAPattern) {
  double most = 0;
  for (int y = 0; y < image.height; ++y)
    most = std::max(most, RowSpread(image, y));
  EXPECT_GT(most, 6);
}

TEST_P(ShippedPictureTest, IsWhatTheMakerMakes) {
  const PixelImage made = GetParam().make();
  ASSERT_EQ(made.rgb.size(), image.rgb.size());
  double sum = 0;
  for (std::size_t i = 0; i < made.rgb.size(); ++i)
    sum += std::abs(made.rgb[i] - image.rgb[i]);
  EXPECT_LT(sum / static_cast<double>(made.rgb.size()), 4) << "what compression loses";
}

INSTANTIATE_TEST_SUITE_P(Bodies, ShippedPictureTest, testing::ValuesIn(kPictures), [](const auto& picture) {
  std::string name = picture.param.file;
  std::erase_if(name, [](char c) { return c == '.' || c == '_'; });
  return name;
});

TEST(ShippedPicturesTest, AllSevenAreTogetherBelow6MB) {
  std::uintmax_t size = 0;
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(QUORB_SHIPPED_PICTURES)) {
    size += entry.file_size();
    ++count;
  }
  EXPECT_EQ(count, std::size(kPictures));
  EXPECT_LT(size, 6000000U);
}

// Greenwich stands in the middle column, since an unturned ball shows it on the negative Y axis.
TEST(ShippedPicturesTest, TheEarthHasLandAndSeaWhereTheyAreWithGreenwichInTheMiddle) {
  const PixelImage image = Shipped("earthjpg.jpg");
  const auto blueOverRed = [&image](const KnownPlace& place) {
    const int x = static_cast<int>(1024 + place.longitude / 360 * 2048);
    const int y = static_cast<int>(512 - place.latitude / 180 * 1024);
    const std::size_t at = image.At(x, y);
    return image.rgb[at + 2] - image.rgb[at];
  };
  for (const KnownPlace& place : kSeaPlaces)
    EXPECT_GT(blueOverRed(place), 40) << place.name;
  for (const KnownPlace& place : kLandPlaces)
    EXPECT_LT(blueOverRed(place), 25) << place.name;
}

// The plains toward the Earth are darker than the highlands of the south.
TEST(ShippedPicturesTest, TheMoonHasItsPlainsOnTheSideTowardTheEarth) {
  const PixelImage image = Shipped("moonjpg.jpg");
  const auto brightness = [&image](int longitude, int latitude) {
    const int x0 = 1024 + longitude * 2048 / 360, y0 = 512 - latitude * 1024 / 180;
    double sum = 0;
    for (int y = y0 - 15; y < y0 + 15; ++y) {
      for (int x = x0 - 15; x < x0 + 15; ++x)
        sum += image.rgb[image.At(x, y)];
    }
    return sum / 900;
  };
  EXPECT_LT(brightness(-16, 33), brightness(0, -60) - 20) << "Mare Imbrium";
  EXPECT_LT(brightness(31, 9), brightness(160, 0) - 20) << "Mare Tranquillitatis and the far side";
}

TEST(ShippedPicturesTest, MarsHasWhiteCapsOnARedGround) {
  const PixelImage image = Shipped("2k_mars.jpg");
  const auto colour = [&image](int x, int y) { return &image.rgb[image.At(x, y)]; };
  EXPECT_GT(colour(700, 5)[2], 200);
  EXPECT_GT(colour(700, 1018)[2], 200);
  EXPECT_GT(colour(300, 512)[0], colour(300, 512)[2] + 40);
}

TEST(ShippedPicturesTest, JupiterHasItsSpotSouthOfTheEquator) {
  const PixelImage image = Shipped("2k_jupiter.jpg");
  const auto redOverBlue = [&image](int longitude, int latitude) {
    const std::size_t at = image.At(1024 + longitude * 2048 / 360, 512 - latitude * 1024 / 180);
    return image.rgb[at] - image.rgb[at + 2];
  };
  EXPECT_GT(redOverBlue(-60, -22), 90);
  EXPECT_LT(redOverBlue(60, -24), 80);
}

}  // namespace
}  // namespace quorb
