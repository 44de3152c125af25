#include "OffscreenHost.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <vector>

#include "FrameFixture.h"

namespace quorb {
namespace {

using OffscreenHostTest = FrameFixture;
using Rgb = std::vector<int>;

Rgb PixelAt(const PixelImage& image, int x, int y) {
  const std::size_t at = image.At(x, y);
  return {image.rgb[at], image.rgb[at + 1], image.rgb[at + 2]};
}

TEST_F(OffscreenHostTest, EventsComeInTheirOrder) {
  EXPECT_EQ(events.log, "initialise ready resize:200x200 ");
  host->Frame();
  host->Frame();
  EXPECT_EQ(events.log, "initialise ready resize:200x200 draw overlay draw overlay ");
}

TEST_F(OffscreenHostTest, ClearColourFillsThePicture) {
  events.onDraw = [] {};
  glClearColor(0.2F, 0.4F, 0.6F, 1.0F);
  const PixelImage image = Frame();
  ASSERT_EQ(image.width, 200);
  ASSERT_EQ(image.height, 200);
  EXPECT_EQ(PixelAt(image, 0, 0), (Rgb{51, 102, 153}));
  EXPECT_EQ(PixelAt(image, 199, 199), (Rgb{51, 102, 153}));
}

TEST_F(OffscreenHostTest, LineStandsWhereTheCameraPutsIt) {
  events.onDraw = [] {
    glColor3f(1.0F, 0.0F, 0.0F);
    glLineWidth(3.0F);
    glBegin(GL_LINES);
    glVertex3f(-50.0F, 30.5F, 0.0F);
    glVertex3f(50.0F, 30.5F, 0.0F);
    glEnd();
  };
  const PixelImage image = Frame();
  EXPECT_EQ(PixelAt(image, 100, 69), (Rgb{255, 0, 0}));
  EXPECT_EQ(PixelAt(image, 55, 69), (Rgb{255, 0, 0}));
  EXPECT_EQ(PixelAt(image, 145, 69), (Rgb{255, 0, 0}));
  EXPECT_EQ(PixelAt(image, 40, 69), (Rgb{0, 0, 0}));
  EXPECT_EQ(PixelAt(image, 160, 69), (Rgb{0, 0, 0}));
  EXPECT_EQ(PixelAt(image, 100, 130), (Rgb{0, 0, 0}));
}

TEST_F(OffscreenHostTest, EdgesOfSolidLettersAreSmoothedWhenWanted) {
  int outline = 0;
  host->Text().NewOutlineFont(0, outline, "Arial", true, false, 0.1);
  events.onDraw = [this, outline] { host->Text().Draw3D(outline, "OSA", -90, -30, 0, 90, 0xFFFFFF); };
  const auto betweenColours = [](const PixelImage& image) {
    int between = 0;
    for (std::size_t i = 0; i < image.rgb.size(); i += 3) {
      if (image.rgb[i] > 20 && image.rgb[i] < 235) ++between;
    }
    return between;
  };
  EXPECT_EQ(betweenColours(Frame()), 0);
  host->SetAntialiasing(true);
  EXPECT_GT(betweenColours(Frame()), 100);
}

// Pieces of a twentieth of a pixel, up a steep slope: every line of pixels between its ends is lit.
TEST_F(OffscreenHostTest, ALineOfManyShortPiecesHasNoGaps) {
  host->SetAntialiasing(true);
  events.onDraw = [] {
    glColor3f(1.0F, 1.0F, 1.0F);
    glBegin(GL_LINE_STRIP);
    for (int i = 0; i <= 3000; ++i)
      glVertex3f(static_cast<float>(i) * 0.006F, static_cast<float>(i) * 0.05F - 75.0F, 0.0F);
    glEnd();
  };
  const PixelImage image = Frame();
  int lines = 0;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      if (image.rgb[image.At(x, y)] != 255) continue;
      ++lines;
      break;
    }
  }
  EXPECT_GE(lines, 149);
}

TEST_F(OffscreenHostTest, ReadPixelsOfAnEventGetsTheFrameBefore) {
  std::vector<std::uint8_t> read(3);
  events.onDraw = [&read] { glReadPixels(5, 5, 1, 1, GL_RGB, GL_UNSIGNED_BYTE, read.data()); };
  glClearColor(0.2F, 0.4F, 0.6F, 1.0F);
  host->Frame();
  host->Frame();
  EXPECT_EQ(read, (std::vector<std::uint8_t>{51, 102, 153}));
}

TEST_F(OffscreenHostTest, ResizeTellsTheSizeAndWidensTheView) {
  std::string error;
  ASSERT_TRUE(host->Resize(320, 200, error)) << error;
  EXPECT_EQ(events.log, "initialise ready resize:200x200 resize:320x200 ");
  EXPECT_EQ(host->Width(), 320);
  EXPECT_EQ(host->Height(), 200);
  events.onDraw = [] {
    glColor3f(1.0F, 1.0F, 1.0F);
    glBegin(GL_QUADS);
    glVertex3f(140.0F, -5.0F, 0.0F);
    glVertex3f(150.0F, -5.0F, 0.0F);
    glVertex3f(150.0F, 5.0F, 0.0F);
    glVertex3f(140.0F, 5.0F, 0.0F);
    glEnd();
  };
  const PixelImage image = Frame();
  ASSERT_EQ(image.width, 320);
  EXPECT_EQ(PixelAt(image, 305, 100), (Rgb{255, 255, 255}));
  EXPECT_EQ(PixelAt(image, 295, 100), (Rgb{0, 0, 0}));
  EXPECT_EQ(PixelAt(image, 315, 100), (Rgb{0, 0, 0}));
}

TEST_F(OffscreenHostTest, SizeThatOpenGlCannotTakeIsAnErrorAndTheOldOneStays) {
  std::string error;
  EXPECT_FALSE(host->Resize(1000000, 200, error));
  EXPECT_EQ(
      error.find("A picture of 1000000 x 200 pixels cannot be drawn: this computer's OpenGL takes at most "),
      0U)
      << error;
  EXPECT_EQ(host->Width(), 200);
  glClearColor(0.2F, 0.4F, 0.6F, 1.0F);
  const PixelImage image = Frame();
  ASSERT_EQ(image.width, 200);
  EXPECT_EQ(PixelAt(image, 100, 100), (Rgb{51, 102, 153}));
}

TEST_F(OffscreenHostTest, SizeWithoutPixelsIsAnError) {
  std::string error;
  EXPECT_FALSE(host->Resize(0, 200, error));
  EXPECT_EQ(error, "A picture of 0 x 200 pixels cannot be drawn: it has no pixels.");
}

TEST_F(OffscreenHostTest, OddWidthsReadBackWithoutSlant) {
  std::string error;
  ASSERT_TRUE(host->Resize(101, 67, error)) << error;
  glClearColor(1.0F, 0.0F, 0.0F, 1.0F);
  const PixelImage image = Frame();
  for (std::size_t i = 0; i < image.rgb.size(); i += 3)
    ASSERT_EQ(image.rgb[i], 255);
  EXPECT_EQ(image.rgb.size(), 101U * 67U * 3U);
}

TEST_F(OffscreenHostTest, RequestsForAFrameMakeOne) {
  EXPECT_FALSE(host->FrameWanted());
  host->Redraw();
  host->Redraw();
  EXPECT_TRUE(host->FrameWanted());
  host->Frame();
  EXPECT_FALSE(host->FrameWanted());
}

TEST_F(OffscreenHostTest, TwoHostsKeepTheirPicturesApart) {
  std::string error;
  ScriptedEvents otherEvents;
  const auto other = OffscreenHost::Create(50, 40, error);
  ASSERT_NE(other, nullptr) << error;
  ASSERT_TRUE(other->Start(otherEvents, error)) << error;
  glClearColor(1.0F, 0.0F, 0.0F, 1.0F);
  other->Frame();
  host->Frame();
  EXPECT_EQ(PixelAt(host->Pixels(), 10, 10), (Rgb{0, 0, 0}));
  EXPECT_EQ(PixelAt(other->Pixels(), 10, 10), (Rgb{255, 0, 0}));
}

TEST(OffscreenHost, DepthBufferIsThereWhenInitialiseWantsIt) {
  std::string error;
  const auto host = OffscreenHost::Create(20, 20, error);
  ASSERT_NE(host, nullptr) << error;
  ScriptedEvents events;
  events.onInitialise = [&host] { host->SetDepthBuffer(true); };
  host->SetDepthTest(true);
  host->Camera().Look(0, 0, 100, 0, 0, 0, 0, 1, 0);
  ASSERT_TRUE(host->Start(events, error)) << error;
  events.onDraw = [] {
    glColor3f(0.0F, 1.0F, 0.0F);
    glRectf(-50.0F, -50.0F, 50.0F, 50.0F);
    glColor3f(1.0F, 0.0F, 0.0F);
    glTranslatef(0.0F, 0.0F, -10.0F);
    glRectf(-50.0F, -50.0F, 50.0F, 50.0F);
  };
  host->Frame();
  EXPECT_EQ(PixelAt(host->Pixels(), 10, 10), (Rgb{0, 255, 0}));
  host->SetDepthTest(false);
  host->Frame();
  EXPECT_EQ(PixelAt(host->Pixels(), 10, 10), (Rgb{255, 0, 0}));
}

TEST(OffscreenHost, StartOfAPictureTooLargeIsAnError) {
  std::string error;
  const auto host = OffscreenHost::Create(1000000, 1000000, error);
  ASSERT_NE(host, nullptr) << error;
  ScriptedEvents events;
  EXPECT_FALSE(host->Start(events, error));
  EXPECT_EQ(events.log, "initialise ");
  host->Frame();
  EXPECT_EQ(events.log, "initialise ");
}

/// Runs in a process of its own, because the drivers are looked for once.
void StartWithoutDrivers() {
  setenv("__EGL_VENDOR_LIBRARY_FILENAMES", "/nonexistent.json", 1);
  std::string error;
  const auto host = OffscreenHost::Create(20, 20, error);
  std::cerr << error;
  std::exit(host == nullptr ? 0 : 1);
}

TEST(OffscreenHostDeathTest, ComputerWithoutADriverSaysWhatToInstall) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(StartWithoutDrivers(), testing::ExitedWithCode(0),
              "OpenGL cannot be started without a window. Tried .*"
              "Install the packages libegl1, libegl-mesa0 and libgl1-mesa-dri.");
}

}  // namespace
}  // namespace quorb
