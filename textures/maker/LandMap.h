#pragma once

#include <string>
#include <vector>

#include "Surface.h"

namespace quorb {

/// The Earth's land: its outlines over the pixels of the picture, and the colours of its cover.
class LandMap {
 public:
  /// Reads "land.txt" (rings of corners, see its head) and "land-cover.png" of a directory. False with
  /// `error` a sentence.
  bool Read(const std::string& directory, std::string& error);

  /// Share of the picture's pixel around a place that is land, 0 to 1. Longitudes from -180 to 180.
  double LandShare(const Place& place) const;
  /// Colours of land and of sea around a place, each from such pixels of the cover alone; the picture's own
  /// colour where there are none.
  Tint LandCover(const Place& place) const { return CoverAround(place, true); }
  Tint SeaCover(const Place& place) const { return CoverAround(place, false); }

 private:
  /// Longitudes and latitudes of a ring in tenths of a degree, a line a ring; # starts a remark.
  bool ReadRings(const std::string& path, std::string& error);
  bool ReadCover(const std::string& path, std::string& error);
  void FillRing(const std::vector<double>& longitudes, const std::vector<double>& latitudes);
  Tint CoverAround(const Place& place, bool land) const;

  /// Finer than the picture, so that coasts are smooth.
  std::vector<bool> fine;
  PixelImage cover;
};

}  // namespace quorb
