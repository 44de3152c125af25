#include "OverlayTexts.h"

#include <GL/gl.h>

namespace quorb {

namespace {

constexpr int kLightText = 0xE6E6E6;
constexpr int kDarkText = 0x202020;
constexpr int kTextPoints = 10;

/// Sets matrices that count pixels from the bottom left corner, and takes the old ones back at the end of the
/// scope.
class PixelView {
 public:
  PixelView(int width, int height) {
    glPushAttrib(GL_ENABLE_BIT | GL_TRANSFORM_BIT);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_FOG);
    glDisable(GL_STENCIL_TEST);
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_ALPHA_TEST);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glOrtho(0.0, width, 0.0, height, -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
  }
  ~PixelView() {
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
    glPopAttrib();
  }
  PixelView(const PixelView&) = delete;
  PixelView& operator=(const PixelView&) = delete;
};

}  // namespace

int TextColourOver(const std::array<float, 3>& background) {
  // Weights of the primaries in perceived brightness, ITU-R BT.601.
  const float brightness = 0.299F * background[0] + 0.587F * background[1] + 0.114F * background[2];
  return brightness > 0.5F ? kDarkText : kLightText;
}

void OverlayTexts::Draw(TextFonts& fonts, int width, int height, double pixelRatio, int colour) {
  if (texts.empty()) return;
  int font = 0;
  fonts.NewBitmapFont(0, font, "Arial", false, false, kTextPoints);
  const double ascender = fonts.Ascender(font);

  const PixelView view(width, height);
  for (const PlacedText& placed : texts) {
    const double baseLine = height - placed.y * pixelRatio - ascender;
    fonts.DrawBitmap(font, placed.text, placed.x * pixelRatio, baseLine, 0.0, colour);
  }
  texts.clear();
}

}  // namespace quorb
