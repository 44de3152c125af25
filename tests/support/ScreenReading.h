#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "Image.h"

namespace quorb {

/// A rectangle of a screen, in pixels.
struct Place {
  int x = 0, y = 0, width = 0, height = 0;

  int MiddleX() const { return x + width / 2; }
  int MiddleY() const { return y + height / 2; }
  bool Holds(int px, int py) const { return px >= x && px < x + width && py >= y && py < y + height; }
};

/// A pixel as red x 65536 + green x 256 + blue.
inline int ColourAt(const PixelImage& image, int x, int y) {
  const std::uint8_t* const pixel = image.rgb.data() + image.At(x, y);
  return pixel[0] << 16 | pixel[1] << 8 | pixel[2];
}

/// Whether two colours are the same but for rounding.
inline bool IsNear(int one, int other) {
  constexpr int kRounding = 2;
  for (const int shift : {16, 8, 0}) {
    if (std::abs((one >> shift & 255) - (other >> shift & 255)) > kRounding) return false;
  }
  return true;
}

/// The light pixels of an image in white, all others in black.
inline PixelImage LightPixels(PixelImage image) {
  constexpr int kLight = 140;
  for (std::size_t i = 0; i < image.rgb.size(); i += 3) {
    const auto pixel = image.rgb.begin() + static_cast<std::ptrdiff_t>(i);
    const bool isLight = *std::min_element(pixel, pixel + 3) > kLight;
    std::fill(pixel, pixel + 3, static_cast<std::uint8_t>(isLight ? 255 : 0));
  }
  return image;
}

/// This part of an image.
inline PixelImage Cut(const PixelImage& image, const Place& part) {
  PixelImage cut;
  cut.width = part.width;
  cut.height = part.height;
  for (int y = part.y; y < part.y + part.height; ++y) {
    const auto row = image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(part.x, y));
    cut.rgb.insert(cut.rgb.end(), row, row + 3 * part.width);
  }
  return cut;
}

/// How many pixels of a part have this colour.
inline int CountOf(const PixelImage& image, const Place& part, int colour) {
  int count = 0;
  for (int y = part.y; y < part.y + part.height; ++y) {
    for (int x = part.x; x < part.x + part.width; ++x)
      count += ColourAt(image, x, y) == colour ? 1 : 0;
  }
  return count;
}

/// The smallest rectangle with all pixels of a colour; empty when there is none.
inline Place ExtentOf(const PixelImage& image, int colour) {
  int left = image.width, top = image.height, right = -1, bottom = -1;
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      if (ColourAt(image, x, y) != colour) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = y;
    }
  }
  return right < 0 ? Place() : Place{left, top, right - left + 1, bottom - top + 1};
}

/// What stands side by side in a band, from the left: stretches of columns that hold another colour than the
/// band's first pixel, parted by at least `gap` columns of it. Those thinner than `least` are left out.
inline std::vector<Place> ThingsAcross(const PixelImage& image, const Place& band, int gap, int least) {
  const int background = ColourAt(image, band.x, band.y);
  std::vector<Place> things;
  int begin = -1, last = -1;
  const auto close = [&] {
    if (begin >= 0 && last - begin + 1 >= least)
      things.push_back({begin, band.y, last - begin + 1, band.height});
    begin = -1;
  };
  for (int x = band.x; x < band.x + band.width; ++x) {
    if (CountOf(image, {x, band.y, 1, band.height}, background) == band.height) continue;
    if (begin >= 0 && x - last > gap) close();
    if (begin < 0) begin = x;
    last = x;
  }
  close();
  return things;
}

/// The white boxes of a part, such as text fields and check boxes, row by row: at least `least` pixels wide
/// and high, and closed above and on the left.
inline std::vector<Place> WhiteBoxes(const PixelImage& image, const Place& part, int least) {
  constexpr int kWhite = 0xFFFFFF;
  const auto isWhite = [&](int x, int y) { return part.Holds(x, y) && ColourAt(image, x, y) == kWhite; };
  std::vector<Place> boxes;
  for (int y = part.y + 1; y < part.y + part.height; ++y) {
    for (int x = part.x + 1; x < part.x + part.width; ++x) {
      if (!isWhite(x, y) || isWhite(x - 1, y) || isWhite(x, y - 1)) continue;
      Place box{x, y, 0, 0};
      while (isWhite(x + box.width, y) && !isWhite(x + box.width, y - 1))
        ++box.width;
      while (isWhite(x, y + box.height) && !isWhite(x - 1, y + box.height))
        ++box.height;
      const bool isOld = std::any_of(boxes.begin(), boxes.end(), [&](const Place& other) {
        return other.Holds(box.MiddleX(), box.MiddleY());
      });
      if (box.width >= least && box.height >= least && !isOld) boxes.push_back(box);
    }
  }
  return boxes;
}

}  // namespace quorb
