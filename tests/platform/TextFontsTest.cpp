#include "TextFonts.h"

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <vector>

#include "FrameFixture.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

class TextFontsTest : public FrameFixture {
 protected:
  void SetUp() override {
    FrameFixture::SetUp();
    host->Text().NewOutlineFont(0, outline, "Comic Sans MS", true, false, 0.1);
    host->Text().NewBitmapFont(0, bitmap, "Arial", true, true, 9);
  }

  /// First and last column and row of the lit pixels.
  struct Bounds {
    int left = 1000, right = -1, top = 1000, bottom = -1;
  };
  static Bounds LitBounds(const PixelImage& image) {
    Bounds bounds;
    for (int y = 0; y < image.height; ++y) {
      for (int x = 0; x < image.width; ++x) {
        if (LitPixels(image, x, x, y, y) == 0) continue;
        bounds.left = std::min(bounds.left, x);
        bounds.right = std::max(bounds.right, x);
        bounds.top = std::min(bounds.top, y);
        bounds.bottom = std::max(bounds.bottom, y);
      }
    }
    return bounds;
  }

  int outline = 0;
  int bitmap = 0;
};

/// Everything of the OpenGL state that drawing text could leave changed.
std::vector<double> StateNow() {
  const std::array<GLenum, 7> switches{GL_BLEND,          GL_CULL_FACE,  GL_TEXTURE_2D, GL_LIGHTING,
                                       GL_COLOR_MATERIAL, GL_DEPTH_TEST, GL_NORMALIZE};
  const std::array<GLenum, 22> numbers{GL_CURRENT_COLOR,
                                       GL_CURRENT_NORMAL,
                                       GL_CURRENT_RASTER_POSITION,
                                       GL_LINE_WIDTH,
                                       GL_POLYGON_MODE,
                                       GL_BLEND_SRC,
                                       GL_BLEND_DST,
                                       GL_MATRIX_MODE,
                                       GL_MODELVIEW_MATRIX,
                                       GL_PROJECTION_MATRIX,
                                       GL_RED_SCALE,
                                       GL_ALPHA_BIAS,
                                       GL_UNPACK_ALIGNMENT,
                                       GL_UNPACK_ROW_LENGTH,
                                       GL_MODELVIEW_STACK_DEPTH,
                                       GL_PROJECTION_STACK_DEPTH,
                                       GL_ATTRIB_STACK_DEPTH,
                                       GL_CLIENT_ATTRIB_STACK_DEPTH,
                                       GL_SHADE_MODEL,
                                       GL_FRONT_FACE,
                                       GL_TEXTURE_BINDING_2D,
                                       GL_LIST_BASE};
  std::vector<double> state;
  state.reserve(switches.size() + 16 * numbers.size());
  for (const GLenum name : switches)
    state.push_back(glIsEnabled(name));
  for (const GLenum name : numbers) {
    std::array<double, 16> values{};
    glGetDoublev(name, values.data());
    state.insert(state.end(), values.begin(), values.end());
  }
  return state;
}

void SetUnusualState() {
  glDisable(GL_BLEND);
  glBlendFunc(GL_ONE, GL_DST_COLOR);
  glEnable(GL_CULL_FACE);
  glEnable(GL_LIGHTING);
  glEnable(GL_NORMALIZE);
  glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
  glLineWidth(3.0F);
  glColor4f(0.1F, 0.2F, 0.3F, 0.4F);
  glNormal3f(1.0F, 0.0F, 0.0F);
  glPixelTransferf(GL_RED_SCALE, 0.5F);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 2);
  glMatrixMode(GL_PROJECTION);
}

TEST_F(TextFontsTest, Draw3DStandsAtItsPointInItsColourAndSize) {
  events.onDraw = [this] { host->Text().Draw3D(outline, "H", 10, 20, 0, 40, 0xFF5500); };
  const PixelImage image = Frame();
  const Bounds bounds = LitBounds(image);
  EXPECT_NEAR(bounds.left, 113, 3);
  EXPECT_NEAR(bounds.bottom, 79, 1);
  EXPECT_NEAR(bounds.bottom - bounds.top, 29, 3);
  EXPECT_LT(bounds.right, 150);
  const std::size_t stem = image.At(bounds.left + 3, 70);
  EXPECT_EQ(image.rgb[stem], 0xFF);
  EXPECT_EQ(image.rgb[stem + 1], 0x55);
  EXPECT_EQ(image.rgb[stem + 2], 0x00);
}

TEST_F(TextFontsTest, Draw3DIsAsDeepAsItsExtrusion) {
  host->Camera().Look(100, 0, 0, 0, 0, 0, 0, 1, 0);
  int deep = 0;
  host->Text().NewOutlineFont(0, deep, "Comic Sans MS", true, false, 0.5);
  events.onDraw = [this, deep] { host->Text().Draw3D(deep, "H", 0, 0, 0, 80, 0xFFFFFF); };
  const Bounds bounds = LitBounds(Frame());
  EXPECT_NEAR(bounds.right - bounds.left, 40, 2);
  EXPECT_NEAR(bounds.left, 100, 1);
}

TEST_F(TextFontsTest, DrawBitmapStandsAtItsPointAndFacesTheViewer) {
  host->Camera().Look(100, 0, 0, 0, 0, 0, 0, 1, 0);
  events.onDraw = [this] { host->Text().DrawBitmap(bitmap, "X ", 0, 30, -20, 0x00FF00); };
  const PixelImage image = Frame();
  const Bounds bounds = LitBounds(image);
  EXPECT_NEAR(bounds.left, 120, 2);
  EXPECT_NEAR(bounds.bottom, 69, 1);
  EXPECT_NEAR(bounds.bottom - bounds.top, 8, 2);
  int green = 0;
  for (std::size_t i = 0; i < image.rgb.size(); i += 3) {
    EXPECT_EQ(image.rgb[i], 0);
    green = std::max(green, int{image.rgb[i + 1]});
  }
  EXPECT_GT(green, 200);
}

TEST_F(TextFontsTest, LargerPointsGiveLargerLetters) {
  int large = 0;
  host->Text().NewBitmapFont(0, large, "Arial", true, true, 30);
  events.onDraw = [this, large] { host->Text().DrawBitmap(large, "X", 0, 0, 0, 0xFFFFFF); };
  const Bounds bounds = LitBounds(Frame());
  EXPECT_NEAR(bounds.bottom - bounds.top, 28, 3);
}

TEST_F(TextFontsTest, DrawBitmapOutsideTheViewDrawsNothing) {
  events.onDraw = [this] { host->Text().DrawBitmap(bitmap, "X ", -150, 0, 0, 0x00FF00); };
  EXPECT_EQ(LitPixels(Frame()), 0);
}

TEST_F(TextFontsTest, TextLeavesTheStateAsItWas) {
  std::vector<double> before;
  std::vector<double> after;
  events.onDraw = [&] {
    SetUnusualState();
    before = StateNow();
    host->Text().Draw3D(outline, "Hé", 10, 20, 0, 40, 0xFF5500);
    host->Text().DrawBitmap(bitmap, "X ", 0, 0, 0, 0x00FF00);
    after = StateNow();
  };
  host->Frame();
  EXPECT_EQ(after, before);
}

TEST_F(TextFontsTest, OverlayLeavesTheStateAsItWas) {
  std::vector<double> before;
  events.onOverlay = [&] {
    SetUnusualState();
    host->PrintText(8, 3, "Title");
    before = StateNow();
  };
  host->Frame();
  EXPECT_EQ(StateNow(), before);
}

TEST_F(TextFontsTest, TextLooksTheSameUnderUnusualState) {
  events.onDraw = [this] { host->Text().Draw3D(outline, "H", 10, 20, 0, 40, 0xFF5500); };
  const PixelImage plain = Frame();
  events.onDraw = [this] {
    SetUnusualState();
    glMatrixMode(GL_MODELVIEW);
    host->Text().Draw3D(outline, "H", 10, 20, 0, 40, 0xFF5500);
  };
  EXPECT_EQ(LitPixels(Frame()), LitPixels(plain));
}

TEST_F(TextFontsTest, TextBetweenBeginAndEndIsDrawnBehindTheFrame) {
  events.onDraw = [this] {
    glColor3f(0.0F, 0.0F, 1.0F);
    glBegin(GL_LINE_STRIP);
    glVertex3f(-90.0F, -89.5F, 0.0F);
    host->Text().Draw3D(outline, "H", 10, 20, 0, 40, 0xFF5500);
    host->Text().DrawBitmap(bitmap, "X ", -50, 20, 0, 0x00FF00);
    glVertex3f(90.0F, -89.5F, 0.0F);
    glEnd();
  };
  const PixelImage image = Frame();
  EXPECT_GT(LitPixels(image, 110, 150, 40, 80), 200);
  EXPECT_GT(LitPixels(image, 50, 65, 68, 80), 20);
  EXPECT_GT(LitPixels(image, 10, 190, 188, 190), 150);
  events.onDraw = [] {};
  EXPECT_EQ(LitPixels(Frame()), 0);
}

TEST_F(TextFontsTest, SameFontIsLoadedOnce) {
  int again = 0;
  host->Text().NewBitmapFont(0, again, "Arial", true, true, 9);
  EXPECT_EQ(again, bitmap);
  host->Text().NewBitmapFont(0, again, "Arial", true, true, 6);
  EXPECT_NE(again, bitmap);
  host->Text().NewOutlineFont(0, again, "Comic Sans MS", true, false, 0.1);
  EXPECT_EQ(again, outline);
}

TEST_F(TextFontsTest, HandleOfNoFontOrOfAnotherKindDrawsNothing) {
  int sizeless = 0;
  testing::internal::CaptureStderr();
  host->Text().NewBitmapFont(0, sizeless, "Arial", false, false, 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "No font can be loaded for \"Arial\": its texts are not shown.\n");
  events.onDraw = [this, sizeless] {
    for (const int handle : {0, -1, 99, bitmap})
      host->Text().Draw3D(handle, "H", 0, 0, 0, 40, 0xFFFFFF);
    for (const int handle : {0, -1, 99, outline, sizeless}) {
      host->Text().DrawBitmap(handle, "H", 0, 0, 0, 0xFFFFFF);
    }
  };
  EXPECT_EQ(LitPixels(Frame()), 0);
}

TEST_F(TextFontsTest, TextThatIsNoUtf8IsDrawn) {
  events.onDraw = [this] {
    host->Text().Draw3D(outline, "\xE9\xFF\xF0", 0, 0, 0, 40, 0xFFFFFF);
    host->Text().DrawBitmap(bitmap, "", 0, 0, 0, 0xFFFFFF);
  };
  EXPECT_GT(LitPixels(Frame()), 100);
}

/// Runs in a process of its own, because the font configuration is read once.
void DrawWithoutFonts(const std::string& configuration) {
  setenv("FONTCONFIG_FILE", configuration.c_str(), 1);
  TextFonts fonts;
  int first = 0;
  int second = 0;
  fonts.NewOutlineFont(0, first, "Arial", false, false, 0.1);
  fonts.NewOutlineFont(0, second, "Arial", false, false, 0.1);
  fonts.Draw3D(first, "H", 0, 0, 0, 40, 0xFFFFFF);
  std::exit(first == second ? 0 : 1);
}

TEST(TextFontsDeathTest, ComputerWithoutFontsIsSaidOnceAndDrawsNothing) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  const TemporaryDirectory directory;
  const std::string configuration = directory.File("fonts.conf");
  std::ofstream(configuration) << "<?xml version=\"1.0\"?><fontconfig></fontconfig>\n";
  EXPECT_EXIT(DrawWithoutFonts(configuration), testing::ExitedWithCode(0),
              "^[^N]*No font can be loaded for \"Arial\": its texts are not shown.[^N]*$");
}

}  // namespace
}  // namespace quorb
