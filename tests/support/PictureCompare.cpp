#include "PictureCompare.h"

#include <png.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace quorb {

namespace {

namespace fs = std::filesystem;

bool IsClose(const PixelImage& a, std::size_t atA, const PixelImage& b, std::size_t atB, int threshold) {
  for (std::size_t channel = 0; channel < 3; ++channel) {
    if (std::abs(int{a.rgb[atA + channel]} - int{b.rgb[atB + channel]}) > threshold) return false;
  }
  return true;
}

/// Whether the pixel of `from` has a like one at most one step away in `other`.
bool HasLikeNeighbour(const PixelImage& from, const PixelImage& other, int x, int y, int threshold) {
  const std::size_t at = from.At(x, y);
  if (IsClose(from, at, other, at, threshold)) return true;
  for (int nearY = std::max(y - 1, 0); nearY <= std::min(y + 1, other.height - 1); ++nearY) {
    for (int nearX = std::max(x - 1, 0); nearX <= std::min(x + 1, other.width - 1); ++nearX) {
      if (IsClose(from, at, other, other.At(nearX, nearY), threshold)) return true;
    }
  }
  return false;
}

PixelImage FaintCopy(const PixelImage& image) {
  PixelImage faint = image;
  for (std::uint8_t& value : faint.rgb)
    value = static_cast<std::uint8_t>(value / 3);
  return faint;
}

void MarkRed(PixelImage& image, int x, int y) {
  const std::size_t at = image.At(x, y);
  image.rgb[at] = 255;
  image.rgb[at + 1] = 0;
  image.rgb[at + 2] = 0;
}

bool EnvironmentIsOne(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && std::string(value) == "1";
}

fs::path OutputDirectory() {
  const char* chosen = std::getenv("QUORB_PICTURE_OUTPUT");
  return chosen != nullptr ? fs::path(chosen) : fs::path(QUORB_PICTURE_OUTPUT);
}

/// Writes the picture into the output directory; the outcome as a line of a message.
std::string Keep(const PixelImage& image, const std::string& name) {
  std::error_code code;
  fs::create_directories(OutputDirectory(), code);
  const std::string path = (OutputDirectory() / name).string();
  std::string error;
  return WritePng(path, image, error) ? path : error;
}

testing::AssertionResult Accept(const PixelImage& actual, const std::string& referencePath) {
  std::error_code code;
  fs::create_directories(fs::path(referencePath).parent_path(), code);
  std::string error;
  if (!WritePng(referencePath, actual, error)) return testing::AssertionFailure() << error;
  return testing::AssertionSuccess();
}

}  // namespace

PictureDifference FindDifference(const PixelImage& actual, const PixelImage& reference, int threshold) {
  PictureDifference difference;
  if (actual.width != reference.width || actual.height != reference.height) {
    difference.share = 1.0;
    return difference;
  }
  difference.picture = FaintCopy(reference);
  std::size_t differing = 0;
  for (int y = 0; y < actual.height; ++y) {
    for (int x = 0; x < actual.width; ++x) {
      if (HasLikeNeighbour(actual, reference, x, y, threshold) &&
          HasLikeNeighbour(reference, actual, x, y, threshold)) {
        continue;
      }
      ++differing;
      MarkRed(difference.picture, x, y);
    }
  }
  const std::size_t pixels = std::max<std::size_t>(actual.rgb.size() / 3, 1);
  difference.share = static_cast<double>(differing) / static_cast<double>(pixels);
  return difference;
}

bool ReadPng(const std::string& path, PixelImage& image, std::string& error) {
  png_image description{};
  description.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&description, path.c_str()) == 0) {
    error = path + ": " + static_cast<const char*>(description.message);
    return false;
  }
  description.format = PNG_FORMAT_RGB;
  image.width = static_cast<int>(description.width);
  image.height = static_cast<int>(description.height);
  image.rgb.resize(image.At(0, image.height));
  if (png_image_finish_read(&description, nullptr, image.rgb.data(), 0, nullptr) == 0) {
    error = path + ": " + static_cast<const char*>(description.message);
    return false;
  }
  return true;
}

testing::AssertionResult ComparePictures(const PixelImage& actual, const std::string& referencePath,
                                         double tolerance) {
  if (EnvironmentIsOne("QUORB_ACCEPT_PICTURES")) return Accept(actual, referencePath);

  const std::string name = fs::path(referencePath).stem().string();
  PixelImage reference;
  std::string error;
  if (!ReadPng(referencePath, reference, error)) {
    return testing::AssertionFailure()
           << error << "\n  actual picture: " << Keep(actual, name + ".actual.png");
  }
  const PictureDifference difference = FindDifference(actual, reference);
  if (difference.share <= tolerance) return testing::AssertionSuccess();

  testing::AssertionResult failure = testing::AssertionFailure();
  failure << "a share of " << difference.share << " of the pixels differs from " << referencePath
          << ", allowed are " << tolerance << "\n  actual picture: " << Keep(actual, name + ".actual.png");
  if (difference.picture.width == 0) {
    failure << "\n  sizes: " << actual.width << " x " << actual.height << ", stored " << reference.width
            << " x " << reference.height;
  } else {
    failure << "\n  difference: " << Keep(difference.picture, name + ".difference.png");
  }
  return failure;
}

}  // namespace quorb
