#include "Image.h"

#include <png.h>

#include "BitmapFile.h"
#include "WholeFile.h"

namespace quorb {

namespace {

bool IsWhole(const PixelImage& image) {
  return image.width > 0 && image.height > 0 && image.rgb.size() == image.At(0, image.height);
}

bool NoPicture(const std::string& path, std::string& error) {
  error = "The file \"" + path + "\" cannot be written: there is no picture.";
  return false;
}

bool EncodePng(const PixelImage& image, std::vector<std::uint8_t>& bytes, std::string& error) {
  png_image description{};
  description.version = PNG_IMAGE_VERSION;
  description.width = static_cast<png_uint_32>(image.width);
  description.height = static_cast<png_uint_32>(image.height);
  description.format = PNG_FORMAT_RGB;

  png_alloc_size_t length = PNG_IMAGE_PNG_SIZE_MAX(description);
  bytes.resize(length);
  if (png_image_write_to_memory(&description, bytes.data(), &length, 0, image.rgb.data(), 0, nullptr) == 0) {
    error = static_cast<const char*>(description.message);
    return false;
  }
  bytes.resize(length);
  return true;
}

}  // namespace

bool WritePng(const std::string& path, const PixelImage& image, std::string& error) {
  if (!IsWhole(image)) return NoPicture(path, error);
  std::vector<std::uint8_t> bytes;
  if (!EncodePng(image, bytes, error)) {
    error = "The file \"" + path + "\" cannot be written: " + error + ".";
    return false;
  }
  return WriteWholeFile(path, bytes, {}, error);
}

bool WriteBmp(const std::string& path, const PixelImage& image, std::string& error) {
  if (!IsWhole(image)) return NoPicture(path, error);
  const std::size_t rowBytes = BitmapRowBytes(image.width);
  std::vector<std::uint8_t> rows(rowBytes * static_cast<std::size_t>(image.height));
  for (int y = 0; y < image.height; ++y) {
    const std::size_t row = rowBytes * static_cast<std::size_t>(image.height - 1 - y);
    for (int x = 0; x < image.width; ++x) {
      const std::size_t from = image.At(x, y);
      const std::size_t to = row + 3 * static_cast<std::size_t>(x);
      rows[to] = image.rgb[from + 2];
      rows[to + 1] = image.rgb[from + 1];
      rows[to + 2] = image.rgb[from];
    }
  }
  return WriteBitmapFile(path, image.width, image.height, rows, error);
}

}  // namespace quorb
