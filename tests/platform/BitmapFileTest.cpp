#include "BitmapFile.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include "FileSizeLimit.h"
#include "Image.h"
#include "TemporaryDirectory.h"
#include "WholeFile.h"

namespace quorb {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

std::string OutputOf(const std::string& command) {
  std::string output;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::array<char, 256> part{};
  while (pipe && std::fgets(part.data(), static_cast<int>(part.size()), pipe.get()) != nullptr) {
    output += part.data();
  }
  return output;
}

TEST(BitmapFile, WidthOf101PixelsGivesRowsOf304BytesWithAPadOf1) {
  EXPECT_EQ(BitmapRowBytes(101), 304U);
}

TEST(BitmapFile, RowsAreRaisedToAMultipleOfFour) {
  EXPECT_EQ(BitmapRowBytes(1), 4U);
  EXPECT_EQ(BitmapRowBytes(2), 8U);
  EXPECT_EQ(BitmapRowBytes(4), 12U);
  EXPECT_EQ(BitmapRowBytes(0), 0U);
  EXPECT_EQ(BitmapRowBytes(-3), 0U);
}

TEST(BitmapFile, HeadOfATwoByOnePicture) {
  const Bytes expected{'B',  'M',  66, 0, 0,    0,    0, 0,
                       0,    0,    58, 0, 0,    0,           // 8 pixel bytes + 58, reserved, offset
                       40,   0,    0,  0,                    // size of the info header
                       2,    0,    0,  0, 1,    0,    0, 0,  // width, height
                       1,    0,    24, 0, 0,    0,    0, 0,  // planes, bits, no compression
                       8,    0,    0,  0,                    // pixel bytes
                       0x88, 0x0B, 0,  0, 0x88, 0x0B, 0, 0,  // 2952 pixels per metre both ways
                       0,    0,    0,  0, 0,    0,    0, 0,  // colours used, important
                       0,    0,    0,  0};                   // empty colour slot
  EXPECT_EQ(BitmapFileHead(2, 1), expected);
}

TEST(BitmapFile, SizesThatDoNotFitGiveNoHead) {
  EXPECT_TRUE(BitmapFileHead(0, 1).empty());
  EXPECT_TRUE(BitmapFileHead(1, -1).empty());
  EXPECT_TRUE(BitmapFileHead(40000, 40000).empty());
}

TEST(BitmapFile, OtherProgramsOpenIt) {
  const TemporaryDirectory directory;
  PixelImage image{101, 3, {}};
  image.rgb.resize(image.At(0, 3));
  image.rgb[image.At(0, 0)] = 255;
  image.rgb[image.At(100, 2) + 2] = 255;
  const std::string path = directory.File("a.bmp");
  std::string error;
  ASSERT_TRUE(WriteBmp(path, image, error)) << error;
  EXPECT_EQ(std::filesystem::file_size(path), 58U + 304U * 3U);
  const std::string format = "%m %w %h %[fx:p{0,0}.r] %[fx:p{0,0}.b] %[fx:p{100,2}.r] %[fx:p{100,2}.b]";
  EXPECT_EQ(OutputOf("identify -format '" + format + "' '" + path + "'"), "BMP3 101 3 1 0 0 1");
}

TEST(BitmapFile, ReplacesTheFileOfThatName) {
  const TemporaryDirectory directory;
  const std::string path = directory.File("é.bmp");
  std::string error;
  ASSERT_TRUE(WriteWholeFile(path, Bytes(5000, 7), {}, error)) << error;
  ASSERT_TRUE(WriteBitmapFile(path, 1, 1, {1, 2, 3, 0}, error)) << error;
  EXPECT_EQ(ReadBytes(path).size(), 62U);
  EXPECT_EQ(directory.EntryCount(), 1U);
}

TEST(BitmapFile, FullDiskLeavesNoHalfFile) {
  const TemporaryDirectory directory;
  const std::string path = directory.File("a.bmp");
  std::string error;
  {
    const FileSizeLimit limit(10000);
    EXPECT_FALSE(WriteBitmapFile(path, 100, 100, Bytes(30000, 9), error));
  }
  EXPECT_EQ(error, "The file \"" + path + "\" cannot be written: File too large.");
  EXPECT_EQ(directory.EntryCount(), 0U);
}

TEST(BitmapFile, FullDiskLeavesTheFileBeforeIt) {
  const TemporaryDirectory directory;
  const std::string path = directory.File("a.bmp");
  std::string error;
  ASSERT_TRUE(WriteBitmapFile(path, 1, 1, {1, 2, 3, 0}, error));
  {
    const FileSizeLimit limit(10000);
    EXPECT_FALSE(WriteBitmapFile(path, 100, 100, Bytes(30000, 9), error));
  }
  EXPECT_EQ(ReadBytes(path).size(), 62U);
  EXPECT_EQ(directory.EntryCount(), 1U);
}

TEST(BitmapFile, DirectoryThatDoesNotExistIsAnError) {
  const TemporaryDirectory directory;
  const std::string path = directory.File("none/a.bmp");
  std::string error;
  EXPECT_FALSE(WriteBitmapFile(path, 1, 1, {1, 2, 3, 0}, error));
  EXPECT_EQ(error, "The file \"" + path + "\" cannot be written: No such file or directory.");
}

TEST(WholeFile, DirectoryIsNotReplaced) {
  const TemporaryDirectory directory;
  const std::string path = directory.File("sub");
  std::filesystem::create_directory(path);
  std::string error;
  EXPECT_FALSE(WriteWholeFile(path, Bytes(1, 1), {}, error));
  EXPECT_EQ(error, "The file \"" + path + "\" cannot be written: it is a directory.");
  EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST(WholeFile, DeviceIsWrittenAndStaysADevice) {
  std::string error;
  EXPECT_TRUE(WriteWholeFile("/dev/null", Bytes(3, 1), {}, error)) << error;
  EXPECT_FALSE(WriteWholeFile("/dev/full", Bytes(100000, 1), {}, error));
  EXPECT_EQ(error, "The file \"/dev/full\" cannot be written: No space left on device.");
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

}  // namespace
}  // namespace quorb
