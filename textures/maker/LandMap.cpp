#include "LandMap.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

namespace quorb {

namespace {

constexpr int kFineness = 4;
constexpr int kFineWidth = kPictureWidth * kFineness;
constexpr int kFineHeight = kPictureHeight * kFineness;
constexpr double kRowsPerDegree = kFineHeight / 180.0;

std::size_t FineCell(int x, int y) {
  return static_cast<std::size_t>(y) * kFineWidth + static_cast<std::size_t>(x);
}

int FineColumn(double longitude) {
  return std::clamp(static_cast<int>(std::ceil((longitude + 180) * kRowsPerDegree - 0.5)), 0, kFineWidth);
}

/// The longitudes at which a ring crosses a parallel, from west to east: land lies between each two.
std::vector<double> Crossings(const std::vector<double>& longitudes, const std::vector<double>& latitudes,
                              double latitude) {
  std::vector<double> crossings;
  for (std::size_t i = 0, before = latitudes.size() - 1; i < latitudes.size(); before = i++) {
    if ((latitudes[i] > latitude) == (latitudes[before] > latitude)) continue;
    const double share = (latitude - latitudes[before]) / (latitudes[i] - latitudes[before]);
    crossings.push_back(std::lerp(longitudes[before], longitudes[i], share));
  }
  std::sort(crossings.begin(), crossings.end());
  return crossings;
}

}  // namespace

bool LandMap::Read(const std::string& directory, std::string& error) {
  return ReadRings(directory + "/land.txt", error) && ReadCover(directory + "/land-cover.png", error);
}

bool LandMap::ReadRings(const std::string& path, std::string& error) {
  fine.assign(static_cast<std::size_t>(kFineWidth) * kFineHeight, false);
  std::ifstream file(path);
  if (!file) {
    error = "The outlines " + path + " cannot be read.";
    return false;
  }
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream corners(line);
    std::vector<double> longitudes, latitudes;
    int longitude = 0, latitude = 0;
    for (char comma = 0; corners >> longitude >> comma >> latitude;) {
      longitudes.push_back(longitude / 10.0);
      latitudes.push_back(latitude / 10.0);
    }
    FillRing(longitudes, latitudes);
  }
  return true;
}

void LandMap::FillRing(const std::vector<double>& longitudes, const std::vector<double>& latitudes) {
  if (longitudes.empty()) return;
  const auto [south, north] = std::minmax_element(latitudes.begin(), latitudes.end());
  const int first = std::max(0, static_cast<int>((90 - *north) * kRowsPerDegree));
  const int last = std::min(kFineHeight - 1, static_cast<int>((90 - *south) * kRowsPerDegree));
  for (int y = first; y <= last; ++y) {
    const double latitude = 90 - (y + 0.5) / kRowsPerDegree;
    const std::vector<double> crossings = Crossings(longitudes, latitudes, latitude);
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      for (int x = FineColumn(crossings[i]); x < FineColumn(crossings[i + 1]); ++x)
        fine[FineCell(x, y)] = true;
    }
  }
}

bool LandMap::ReadCover(const std::string& path, std::string& error) {
  png_image png = {};
  png.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&png, path.c_str()) != 0) {
    png.format = PNG_FORMAT_RGB;
    cover.width = static_cast<int>(png.width);
    cover.height = static_cast<int>(png.height);
    cover.rgb.resize(PNG_IMAGE_SIZE(png));
    if (png_image_finish_read(&png, nullptr, cover.rgb.data(), 0, nullptr) != 0) return true;
  }
  error = "The land cover " + path + " cannot be read: " + png.message + ".";
  return false;
}

double LandMap::LandShare(const Place& place) const {
  const int x0 = static_cast<int>((place.longitude + 180) / 360 * kPictureWidth) % kPictureWidth;
  const int y0 = std::min(static_cast<int>((90 - place.latitude) / 180 * kPictureHeight), kPictureHeight - 1);
  const int left = x0 * kFineness, top = y0 * kFineness;
  int count = 0;
  for (int y = top; y < top + kFineness; ++y) {
    for (int x = left; x < left + kFineness; ++x)
      count += fine[FineCell(x, y)] ? 1 : 0;
  }
  return count / static_cast<double>(kFineness * kFineness);
}

Tint LandMap::CoverAround(const Place& place, bool land) const {
  const double x = (place.longitude + 180) / 360 * cover.width - 0.5;
  const double y = (90 - place.latitude) / 180 * cover.height - 0.5;
  constexpr int kReach = 3;
  Tint sum;
  double weights = 0;
  const int middleX = static_cast<int>(std::floor(x + 0.5)), middleY = static_cast<int>(std::floor(y + 0.5));
  for (int py = middleY - kReach; py <= middleY + kReach; ++py) {
    for (int px = middleX - kReach; px <= middleX + kReach; ++px) {
      const std::size_t at = cover.At((px + cover.width) % cover.width, std::clamp(py, 0, cover.height - 1));
      const double red = cover.rgb[at] / 255.0, green = cover.rgb[at + 1] / 255.0,
                   blue = cover.rgb[at + 2] / 255.0;
      const bool isSea = blue - red > 0.12;
      const double squared = (px - x) * (px - x) + (py - y) * (py - y);
      const double nearness = std::exp(-squared / 0.5) + 1e-9 * std::exp(-squared / 8);
      const double weight = isSea == land ? nearness * 1e-12 : nearness;
      sum = {sum.red + weight * red, sum.green + weight * green, sum.blue + weight * blue};
      weights += weight;
    }
  }
  return Scaled(sum, 1 / weights);
}

}  // namespace quorb
