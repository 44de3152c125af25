#include "BitmapFile.h"

#include <limits>

#include "WholeFile.h"

namespace quorb {

namespace {

constexpr std::uint32_t kPixelOffset = 58;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kPixelsPerMetre = 2952;

void Append16(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
  bytes.push_back(static_cast<std::uint8_t>(value & 0xFFU));
  bytes.push_back(static_cast<std::uint8_t>((value >> 8U) & 0xFFU));
}

void Append32(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
  Append16(bytes, value & 0xFFFFU);
  Append16(bytes, value >> 16U);
}

}  // namespace

std::size_t BitmapRowBytes(int width) {
  if (width < 1) return 0;
  const std::size_t pixelBytes = 3 * static_cast<std::size_t>(width);
  return (pixelBytes + 3) / 4 * 4;
}

std::vector<std::uint8_t> BitmapFileHead(int width, int height) {
  if (width < 1 || height < 1) return {};
  const std::size_t pixelBytes = BitmapRowBytes(width) * static_cast<std::size_t>(height);
  const std::size_t largest = std::numeric_limits<std::uint32_t>::max() - kPixelOffset;
  if (pixelBytes > largest) return {};
  const auto pixelLength = static_cast<std::uint32_t>(pixelBytes);

  std::vector<std::uint8_t> bytes;
  bytes.reserve(kPixelOffset);
  bytes.push_back('B');
  bytes.push_back('M');
  Append32(bytes, pixelLength + kPixelOffset);
  Append32(bytes, 0);
  Append32(bytes, kPixelOffset);
  Append32(bytes, kInfoHeaderSize);
  Append32(bytes, static_cast<std::uint32_t>(width));
  Append32(bytes, static_cast<std::uint32_t>(height));
  Append16(bytes, 1);
  Append16(bytes, 24);
  Append32(bytes, 0);
  Append32(bytes, pixelLength);
  Append32(bytes, kPixelsPerMetre);
  Append32(bytes, kPixelsPerMetre);
  Append32(bytes, 0);
  Append32(bytes, 0);
  Append32(bytes, 0);
  return bytes;
}

bool WriteBitmapFile(const std::string& path, int width, int height, const std::vector<std::uint8_t>& rows,
                     std::string& error) {
  const std::vector<std::uint8_t> head = BitmapFileHead(width, height);
  if (head.empty() || rows.size() != BitmapRowBytes(width) * static_cast<std::size_t>(height)) {
    error = "The file \"" + path + "\" cannot be written: a bitmap file cannot hold a picture of this size.";
    return false;
  }
  return WriteWholeFile(path, head, rows, error);
}

}  // namespace quorb
