#pragma once

#include <array>
#include <string>
#include <vector>

#include "TextFonts.h"

namespace quorb {

/// Colour of text that can be read over a background, R x 65536 + G x 256 + B: light grey over a dark one,
/// dark grey over a light one. The three shares run from 0 to 1.
int TextColourOver(const std::array<float, 3>& background);

/// The texts that a frame wants over its picture, in pixels at 96 to the inch.
class OverlayTexts {
 public:
  /// Keeps a text whose top left corner stands x to the right of and y below that of the view.
  void Add(int x, int y, const std::string& text) { texts.push_back({x, y, text}); }

  /// Draws the texts in a view of width x height device pixels in one colour, and forgets them. The OpenGL
  /// state stays as it was.
  void Draw(TextFonts& fonts, int width, int height, double pixelRatio, int colour);

 private:
  struct PlacedText {
    int x = 0;
    int y = 0;
    std::string text;
  };
  std::vector<PlacedText> texts;
};

}  // namespace quorb
