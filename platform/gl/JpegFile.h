#pragma once

#include <cstdint>
#include <string>

#include "Image.h"

namespace quorb {

/// Longest side, in pixels, of a picture that is read.
inline constexpr int kLongestJpegSide = 16384;
/// Most pixels of such a picture.
inline constexpr std::int64_t kMostJpegPixels = std::int64_t{64} << 20U;

/// Reads a JPEG file. False when it is missing, no JPEG file, cut short or too large, with `error` a sentence
/// that names the file; `image` is then left as it is.
bool ReadJpeg(const std::string& path, PixelImage& image, std::string& error);

}  // namespace quorb
