#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quorb {

/// A picture of 8-bit red, green, blue values, the top row first, without gaps between the rows.
struct PixelImage {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgb;

  /// Index of the red value of a pixel; x counts from the left, y from the top.
  std::size_t At(int x, int y) const {
    return 3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x));
  }
};

/// Writes the picture as a PNG file, whole or not at all. False on failure, with `error` a sentence for the
/// user.
bool WritePng(const std::string& path, const PixelImage& image, std::string& error);

/// Writes the picture as a 24-bit BMP file, whole or not at all. False on failure, with `error` a sentence
/// for the user.
bool WriteBmp(const std::string& path, const PixelImage& image, std::string& error);

}  // namespace quorb
