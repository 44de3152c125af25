#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace quorb {

/// Bytes of one row of a 24-bit bitmap: 3 a pixel, raised to a multiple of 4; 0 for a width below 1.
std::size_t BitmapRowBytes(int width);

/// The first 58 bytes of a BMP file of width x height pixels, 24 bits each, 2952 pixels to the metre: the two
/// headers and one empty colour slot, behind which the pixels stand. Empty when the size is below 1 either
/// way or too large for the format's 32-bit lengths.
std::vector<std::uint8_t> BitmapFileHead(int width, int height);

/// Writes such a file, whole or not at all. `rows` holds the bottom row first, each row BitmapRowBytes(width)
/// long, pixels as blue, green, red. False on failure, with `error` a sentence for the user.
bool WriteBitmapFile(const std::string& path, int width, int height, const std::vector<std::uint8_t>& rows,
                     std::string& error);

}  // namespace quorb
