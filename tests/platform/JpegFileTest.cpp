#include "JpegFile.h"

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <filesystem>
#include <fstream>

#include "TemporaryDirectory.h"

namespace quorb {
namespace {

class JpegFileTest : public testing::Test {
 protected:
  /// A file with a picture of one colour.
  void WritePicture(int width, int height) const {
    const std::vector<unsigned char> pixels(
        static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3, 200);
    const tjhandle encoder = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    ASSERT_EQ(
        tjCompress2(encoder, pixels.data(), width, 0, height, TJPF_RGB, &bytes, &size, TJSAMP_444, 95, 0), 0);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    tjFree(bytes);
    tjDestroy(encoder);
  }

  TemporaryDirectory directory;
  std::string path = directory.File("picture.jpg");
  PixelImage image{1, 1, {7, 8, 9}};
  std::string error;
};

TEST_F(JpegFileTest, ReadsSizeAndColours) {
  WritePicture(24, 10);
  ASSERT_TRUE(ReadJpeg(path, image, error)) << error;
  EXPECT_EQ(image.width, 24);
  EXPECT_EQ(image.height, 10);
  ASSERT_EQ(image.rgb.size(), 720U);
  EXPECT_NEAR(image.rgb[image.At(23, 9)], 200, 2);
}

TEST_F(JpegFileTest, MissingFileIsNamedAndKeepsThePicture) {
  EXPECT_FALSE(ReadJpeg(path, image, error));
  EXPECT_EQ(error, "The picture " + path + " cannot be read: No such file or directory.");
  EXPECT_EQ(image.rgb, (std::vector<std::uint8_t>{7, 8, 9}));
}

TEST_F(JpegFileTest, DirectoryIsNoPicture) {
  EXPECT_FALSE(ReadJpeg(directory.File(""), image, error));
}

TEST_F(JpegFileTest, OtherFileIsNoPicture) {
  std::ofstream(path) << "no picture";
  EXPECT_FALSE(ReadJpeg(path, image, error));
  EXPECT_TRUE(error.starts_with("The picture " + path + " is no JPEG file: ")) << error;
}

TEST_F(JpegFileTest, EmptyFileIsNoPicture) {
  const std::ofstream empty(path);
  EXPECT_FALSE(ReadJpeg(path, image, error));
}

TEST_F(JpegFileTest, CutFileIsDamagedAndKeepsThePicture) {
  WritePicture(400, 400);
  std::filesystem::resize_file(path, std::filesystem::file_size(path) * 3 / 4);
  EXPECT_FALSE(ReadJpeg(path, image, error));
  EXPECT_TRUE(error.starts_with("The picture " + path + " is damaged: ")) << error;
  EXPECT_EQ(image.width, 1);
}

TEST_F(JpegFileTest, PictureOfTooLongASideIsRefused) {
  WritePicture(kLongestJpegSide + 1, 8);
  EXPECT_FALSE(ReadJpeg(path, image, error));
  EXPECT_EQ(error, "The picture " + path + " has sides of more than 16384 pixels.");
}

TEST_F(JpegFileTest, FileOfMoreThan64MiBIsRefused) {
  const std::ofstream made(path);
  std::filesystem::resize_file(path, (std::uintmax_t{64} << 20U) + 1);
  EXPECT_FALSE(ReadJpeg(path, image, error));
  EXPECT_EQ(error, "The picture " + path + " is larger than 64 MiB.");
}

}  // namespace
}  // namespace quorb
