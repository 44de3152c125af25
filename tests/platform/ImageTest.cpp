#include "Image.h"

#include <gtest/gtest.h>

#include "PictureCompare.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

TEST(WritePng, ReadsBackAsWritten) {
  const TemporaryDirectory directory;
  PixelImage image{7, 5, {}};
  for (int i = 0; i < 7 * 5 * 3; ++i)
    image.rgb.push_back(static_cast<std::uint8_t>(i * 2));
  const std::string path = directory.File("a.png");
  std::string error;
  ASSERT_TRUE(WritePng(path, image, error)) << error;
  PixelImage found;
  ASSERT_TRUE(ReadPng(path, found, error)) << error;
  EXPECT_EQ(found.width, 7);
  EXPECT_EQ(found.height, 5);
  EXPECT_EQ(found.rgb, image.rgb);
}

TEST(WritePng, PictureWithoutPixelsIsAnError) {
  const TemporaryDirectory directory;
  std::string error;
  EXPECT_FALSE(WritePng(directory.File("a.png"), PixelImage{}, error));
  EXPECT_EQ(error, "The file \"" + directory.File("a.png") + "\" cannot be written: there is no picture.");
  EXPECT_EQ(directory.EntryCount(), 0U);
}

TEST(WritePng, PlaceThatCannotBeWrittenIsAnError) {
  const TemporaryDirectory directory;
  std::string error;
  EXPECT_FALSE(WritePng(directory.File("none/a.png"), PixelImage{1, 1, {1, 2, 3}}, error));
  EXPECT_NE(error.find("No such file or directory"), std::string::npos);
}

}  // namespace
}  // namespace quorb
