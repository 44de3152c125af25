#include "PictureCompare.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "TemporaryDirectory.h"

namespace quorb {
namespace {

PixelImage Plain(int width, int height, std::uint8_t value) {
  PixelImage image{width, height, {}};
  image.rgb.assign(image.At(0, height), value);
  return image;
}

void SetPixel(PixelImage& image, int x, int y, std::uint8_t value) {
  for (std::size_t channel = 0; channel < 3; ++channel)
    image.rgb[image.At(x, y) + channel] = value;
}

PixelImage WithColumn(int column) {
  PixelImage image = Plain(20, 10, 0);
  for (int y = 0; y < image.height; ++y)
    SetPixel(image, column, y, 255);
  return image;
}

TEST(FindDifference, SamePicturesDoNotDiffer) {
  EXPECT_EQ(FindDifference(WithColumn(5), WithColumn(5)).share, 0.0);
}

TEST(FindDifference, ChannelOffByTheThresholdDoesNotDiffer) {
  EXPECT_EQ(FindDifference(Plain(4, 4, 100), Plain(4, 4, 140)).share, 0.0);
  EXPECT_EQ(FindDifference(Plain(4, 4, 100), Plain(4, 4, 141)).share, 1.0);
}

TEST(FindDifference, LineOnePixelBesideDoesNotDiffer) {
  EXPECT_EQ(FindDifference(WithColumn(5), WithColumn(6)).share, 0.0);
}

TEST(FindDifference, LineTwoPixelsBesideDiffersOnBothPlaces) {
  EXPECT_DOUBLE_EQ(FindDifference(WithColumn(5), WithColumn(7)).share, 2.0 / 20.0);
}

TEST(FindDifference, LineThatStandsInOneOfThemDiffersEitherWay) {
  EXPECT_DOUBLE_EQ(FindDifference(WithColumn(5), Plain(20, 10, 0)).share, 1.0 / 20.0);
  EXPECT_DOUBLE_EQ(FindDifference(Plain(20, 10, 0), WithColumn(5)).share, 1.0 / 20.0);
}

TEST(FindDifference, PicturesOfTwoSizesDifferWholly) {
  EXPECT_EQ(FindDifference(Plain(4, 4, 0), Plain(4, 5, 0)).share, 1.0);
}

TEST(FindDifference, MarksTheDifferingPixelsInRed) {
  PixelImage actual = Plain(20, 10, 90);
  SetPixel(actual, 3, 4, 255);
  const PixelImage marked = FindDifference(actual, Plain(20, 10, 90)).picture;
  EXPECT_EQ(marked.rgb[marked.At(3, 4)], 255);
  EXPECT_EQ(marked.rgb[marked.At(3, 4) + 1], 0);
  EXPECT_EQ(marked.rgb[marked.At(4, 4)], 30);
}

class ComparePicturesTest : public testing::Test {
 protected:
  void SetUp() override { setenv("QUORB_PICTURE_OUTPUT", output.File("").c_str(), 1); }
  void TearDown() override {
    unsetenv("QUORB_PICTURE_OUTPUT");
    unsetenv("QUORB_ACCEPT_PICTURES");
  }

  TemporaryDirectory output;
  TemporaryDirectory stored;
};

TEST_F(ComparePicturesTest, PassesUpToTheToleranceAndWritesNothing) {
  std::string error;
  ASSERT_TRUE(WritePng(stored.File("line.png"), WithColumn(5), error)) << error;
  EXPECT_TRUE(ComparePictures(WithColumn(7), stored.File("line.png"), 0.1));
  EXPECT_EQ(output.EntryCount(), 0U);
}

TEST_F(ComparePicturesTest, FailureWritesPictureAndDifferenceAndSaysWhere) {
  std::string error;
  ASSERT_TRUE(WritePng(stored.File("line.png"), WithColumn(5), error)) << error;
  const testing::AssertionResult result = ComparePictures(WithColumn(7), stored.File("line.png"), 0.09);
  ASSERT_FALSE(result);
  const std::string message = result.message();
  EXPECT_NE(message.find(output.File("line.actual.png")), std::string::npos) << message;
  EXPECT_NE(message.find(output.File("line.difference.png")), std::string::npos) << message;
  PixelImage kept;
  ASSERT_TRUE(ReadPng(output.File("line.actual.png"), kept, error)) << error;
  EXPECT_EQ(kept.rgb, WithColumn(7).rgb);
  EXPECT_TRUE(std::filesystem::exists(output.File("line.difference.png")));
}

TEST_F(ComparePicturesTest, MissingReferenceFailsAndKeepsThePicture) {
  EXPECT_FALSE(ComparePictures(WithColumn(5), stored.File("none.png"), 1.0));
  EXPECT_TRUE(std::filesystem::exists(output.File("none.actual.png")));
}

TEST_F(ComparePicturesTest, AcceptedPictureBecomesTheReference) {
  setenv("QUORB_ACCEPT_PICTURES", "1", 1);
  EXPECT_TRUE(ComparePictures(WithColumn(5), stored.File("new/line.png"), 0.0));
  unsetenv("QUORB_ACCEPT_PICTURES");
  EXPECT_TRUE(ComparePictures(WithColumn(5), stored.File("new/line.png"), 0.0));
}

}  // namespace
}  // namespace quorb
