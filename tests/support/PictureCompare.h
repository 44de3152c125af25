#pragma once

#include <gtest/gtest.h>

#include <string>

#include "Image.h"

namespace quorb {

/// Difference of two pictures of one size.
struct PictureDifference {
  /// Share of the pixels that differ, 0 to 1; 1 for pictures of two sizes.
  double share = 0.0;
  /// Differing pixels in red over a faint copy of the reference; empty for pictures of two sizes.
  PixelImage picture;
};

/// A channel may be this much off before a pixel differs, of 255.
constexpr int kDefaultThreshold = 40;

/// Compares two pictures. A pixel differs when, in either picture, its value is farther than `threshold` in
/// some channel from all pixels at most one step away in the other one; so the smoothing of edges does not
/// count, while a line that stands in one picture only does.
PictureDifference FindDifference(const PixelImage& actual, const PixelImage& reference,
                                 int threshold = kDefaultThreshold);

/// Reads a PNG file as 8-bit red, green, blue. False on failure, with `error` the reason.
bool ReadPng(const std::string& path, PixelImage& image, std::string& error);

/// Success when at most a share of `tolerance` of the pixels differs from the stored picture. On failure the
/// picture and the difference are written as PNG files into the directory QUORB_PICTURE_OUTPUT (compile
/// definition; the environment variable of this name goes first), and the message says where. With the
/// environment variable QUORB_ACCEPT_PICTURES=1 the picture becomes the stored one.
testing::AssertionResult ComparePictures(const PixelImage& actual, const std::string& referencePath,
                                         double tolerance);

}  // namespace quorb
