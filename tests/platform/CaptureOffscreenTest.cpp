#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ClassGl.h"
#include "FileSizeLimit.h"
#include "FrameFixture.h"
#include "OffscreenHost.h"
#include "PlotData.h"
#include "ProgramRun.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr std::size_t kHeaderBytes = 58;

/// The little-endian number of so many bytes at an offset.
std::uint64_t NumberAt(const std::string& bytes, std::size_t offset, std::size_t size) {
  std::uint64_t number = 0;
  for (std::size_t i = size; i > 0; --i)
    number = number * 256 + static_cast<unsigned char>(bytes.at(offset + i - 1));
  return number;
}

void ExpectHeader(const std::string& bytes, std::uint64_t width, std::uint64_t height,
                  std::uint64_t rowBytes) {
  ASSERT_GE(bytes.size(), kHeaderBytes);
  EXPECT_EQ(NumberAt(bytes, 0, 2), 0x4D42U);
  EXPECT_EQ(NumberAt(bytes, 2, 4), rowBytes * height + kHeaderBytes);
  EXPECT_EQ(NumberAt(bytes, 6, 4), 0U);
  EXPECT_EQ(NumberAt(bytes, 10, 4), kHeaderBytes);
  EXPECT_EQ(NumberAt(bytes, 14, 4), 40U);
  EXPECT_EQ(NumberAt(bytes, 18, 4), width);
  EXPECT_EQ(NumberAt(bytes, 22, 4), height);
  EXPECT_EQ(NumberAt(bytes, 26, 2), 1U);
  EXPECT_EQ(NumberAt(bytes, 28, 2), 24U);
  EXPECT_EQ(NumberAt(bytes, 30, 4), 0U);
  EXPECT_EQ(NumberAt(bytes, 34, 4), rowBytes * height);
  EXPECT_EQ(NumberAt(bytes, 38, 4), 2952U);
  EXPECT_EQ(NumberAt(bytes, 42, 4), 2952U);
  EXPECT_EQ(NumberAt(bytes, 46, 8), 0U);
  EXPECT_EQ(NumberAt(bytes, 54, 4), 0U);
  EXPECT_EQ(bytes.size(), kHeaderBytes + rowBytes * height);
}

/// The bytes behind the header for a picture whose top row comes first: the bottom row first, blue, green,
/// red, with zeros at the end of each row.
std::string RowsOf(const PixelImage& image, std::size_t rowBytes) {
  std::string rows;
  for (int y = image.height - 1; y >= 0; --y) {
    std::string row;
    for (int x = 0; x < image.width; ++x) {
      const std::size_t at = image.At(x, y);
      row += {static_cast<char>(image.rgb[at + 2]), static_cast<char>(image.rgb[at + 1]),
              static_cast<char>(image.rgb[at])};
    }
    row.resize(rowBytes, '\0');
    rows += row;
  }
  return rows;
}

/// The scene over a host without a window, with a plot of three points.
class CaptureOffscreen : public testing::Test {
 protected:
  CaptureOffscreen() { StartRunState(); }
  ~CaptureOffscreen() override {
    scene.reset();
    host.reset();
    StartRunState();
  }

  void Show(int width, int height) {
    const double points[3][4] = {{0, 10, 0, 0}, {1, 0, 20, 5}, {2, -30, -20, 10}};
    for (int row = 0; row < 3; ++row) {
      for (int column = 0; column < 4; ++column)
        dataXYZT.Set(row, column, points[row][column]);
    }
    LastPoint = 2;
    USERFLAG.SynchroExcelComplete = 1;
    std::string error;
    host = OffscreenHost::Create(width, height, error);
    ASSERT_NE(host, nullptr) << error;
    scene = std::make_unique<ClassGl>(*host);
    events.onInitialise = [this] { scene->init(); };
    events.onReady = [this] { scene->InitGL(); };
    events.onDraw = [this] { scene->Draw(); };
    events.onOverlay = [this] { scene->DrawGDI(); };
    ASSERT_TRUE(host->Start(events, error)) << error;
    host->Frame();
    scene->CameraSet("ISO", 3, 1);
    scene->CURRINDEXI = LastPoint;
    host->Frame();
    host->Frame();
  }

  std::string Saved(const std::string& name) const { return ContentsOfFile(run.File(name)); }
  std::string Directory() const { return run.File(""); }

  /// What ImageMagick makes of a file, and how many pixels differ from another one.
  std::string Identify(const std::string& name) const { return run.Run("identify", name).out; }
  std::string DifferingPixels(const std::string& one, const std::string& other) const {
    return run.Run("compare", "-metric AE " + one + " " + other + " null:").err;
  }

  std::size_t FileCount(const std::string& directory) const {
    const std::filesystem::directory_iterator entries(run.File(directory));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
  }

  ProgramRun run;
  ScriptedEvents events;
  std::unique_ptr<OffscreenHost> host;
  std::unique_ptr<ClassGl> scene;
};

TEST_F(CaptureOffscreen, AWidthOf101PixelsGivesRowsOf304Bytes) {
  Show(101, 50);
  scene->SaveBMP("frame.bmp", Directory());
  const std::string bytes = Saved("frame.bmp");
  ExpectHeader(bytes, 101, 50, 304);
  EXPECT_EQ(bytes.substr(kHeaderBytes), RowsOf(host->Pixels(), 304));
}

TEST_F(CaptureOffscreen, AnotherProgramOpensTheFileAndSeesTheSamePicture) {
  Show(320, 200);
  scene->SaveBMP("frame.bmp", Directory());
  std::string error;
  ASSERT_TRUE(WritePng(run.File("frame.png"), host->Pixels(), error)) << error;
  EXPECT_THAT(Identify("frame.bmp"), testing::HasSubstr(" BMP"));
  EXPECT_THAT(Identify("frame.bmp"), testing::HasSubstr(" 320x200 "));
  EXPECT_EQ(DifferingPixels("frame.bmp", "frame.png"), "0");
  // The comparison sees a difference where there is one.
  scene->KeyDown(37, 0);
  host->Frame();
  ASSERT_TRUE(WritePng(run.File("turned.png"), host->Pixels(), error)) << error;
  EXPECT_NE(DifferingPixels("frame.bmp", "turned.png"), "0");
}

TEST_F(CaptureOffscreen, AViewOfOnePixelIsSaved) {
  Show(1, 1);
  scene->SaveBMP("frame.bmp", Directory());
  const std::string bytes = Saved("frame.bmp");
  ExpectHeader(bytes, 1, 1, 4);
  EXPECT_EQ(bytes.substr(kHeaderBytes), RowsOf(host->Pixels(), 4));
  EXPECT_THAT(Identify("frame.bmp"), testing::HasSubstr(" 1x1 "));
}

TEST_F(CaptureOffscreen, AViewOf8000By100PixelsIsSaved) {
  Show(8000, 100);
  scene->SaveBMP("frame.bmp", Directory());
  const std::string bytes = Saved("frame.bmp");
  ExpectHeader(bytes, 8000, 100, 24000);
  EXPECT_EQ(bytes.substr(kHeaderBytes), RowsOf(host->Pixels(), 24000));
  EXPECT_THAT(Identify("frame.bmp"), testing::HasSubstr(" 8000x100 "));
}

TEST_F(CaptureOffscreen, AChangedSizeIsThatOfTheNextFile) {
  Show(320, 200);
  std::string error;
  ASSERT_TRUE(host->Resize(101, 67, error)) << error;
  host->Frame();
  scene->SaveBMP("frame.bmp", Directory());
  const std::string bytes = Saved("frame.bmp");
  ExpectHeader(bytes, 101, 67, 304);
  EXPECT_EQ(bytes.substr(kHeaderBytes), RowsOf(host->Pixels(), 304));
}

TEST_F(CaptureOffscreen, WithoutANameItIsImageSaved) {
  Show(20, 10);
  scene->SaveBMP("", Directory());
  ExpectHeader(Saved("ImageSaved.bmp"), 20, 10, 60);
}

TEST_F(CaptureOffscreen, APartOfTheViewCountsFromItsBottomLeftCornerAndIsCutAtItsEdges) {
  Show(101, 50);
  const PixelImage whole = host->Pixels();
  ASSERT_TRUE(scene->WriteBitmap(run.File("part.bmp"), 90, 30, 20, 40));
  const std::string bytes = Saved("part.bmp");
  ExpectHeader(bytes, 11, 20, 36);
  PixelImage part{11, 20, {}};
  for (int y = 0; y < 20; ++y) {
    const auto row = whole.rgb.begin() + static_cast<std::ptrdiff_t>(whole.At(90, y));
    part.rgb.insert(part.rgb.end(), row, row + 33);
  }
  EXPECT_EQ(bytes.substr(kHeaderBytes), RowsOf(part, 36));
  // One pixel more than asked inside the view.
  ASSERT_TRUE(scene->WriteBitmap(run.File("inner.bmp"), 10, 10, 4, 4));
  ExpectHeader(Saved("inner.bmp"), 5, 4, 16);
  EXPECT_FALSE(scene->WriteBitmap(run.File("outside.bmp"), 101, 0, 4, 4));
  EXPECT_FALSE(std::filesystem::exists(run.File("outside.bmp")));
}

TEST_F(CaptureOffscreen, AnExistingFileIsReplaced) {
  Show(101, 50);
  run.Write("frame.bmp", std::string(100000, 'x'));
  scene->SaveBMP("frame.bmp", Directory());
  ExpectHeader(Saved("frame.bmp"), 101, 50, 304);
}

TEST_F(CaptureOffscreen, AMissingDirectoryLeavesNoFileAndStaysMissing) {
  Show(20, 10);
  scene->SaveBMP("frame.bmp", run.File("none"));
  EXPECT_FALSE(std::filesystem::exists(run.File("none")));
}

TEST_F(CaptureOffscreen, AFullDiskLeavesNeitherTheFileNorAPartOfIt) {
  Show(101, 50);
  std::filesystem::create_directory(run.File("images"));
  {
    const FileSizeLimit limit(10000);
    scene->SaveBMP("frame.bmp", run.File("images"));
  }
  EXPECT_EQ(FileCount("images"), 0U);
  scene->SaveBMP("frame.bmp", run.File("images"));
  EXPECT_EQ(FileCount("images"), 1U);
  ExpectHeader(ContentsOfFile(run.File("images/frame.bmp")), 101, 50, 304);
}

TEST_F(CaptureOffscreen, AFrameBehindACaptureIsTheSameAsTheOneBefore) {
  Show(320, 200);
  const PixelImage before = host->Pixels();
  scene->SaveBMP("frame.bmp", Directory());
  host->Frame();
  EXPECT_EQ(host->Pixels().rgb, before.rgb);
}

}  // namespace
}  // namespace quorb
