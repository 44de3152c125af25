#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "RecordedSky.h"
#include "StateReaders.h"

namespace quorb {
namespace {

/// A crossing of the equator northward.
struct Node {
  double day = 0;        ///< serial date, UTC
  double ascension = 0;  ///< degrees from the scene's X axis
};

/// The real space station over the drawn Earth.
class RealNode : public RecordedSky {
 protected:
  void SetUp() override {
    const std::filesystem::path path = QUORB_SHARED_DATA "/iss_2025_02_26.oem.xml";
    if (!std::filesystem::exists(path)) {
      ASSERT_EQ(std::getenv("CI"), nullptr) << "the ephemerides are missing in " QUORB_SHARED_DATA;
      std::cout << "SKIPPED: there are no ephemerides in " QUORB_SHARED_DATA << '\n';
      GTEST_SKIP();
    }
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const ReadResult result = ReadStates(text, states_);
    ASSERT_TRUE(result.Ok()) << result.error;
  }

  /// The crossing nearest to a time, on the cubic through the four states around it.
  Node NodeNear(double day) const {
    Node nearest;
    for (std::size_t i = 1; i + 2 < states_.time.size(); ++i) {
      if (states_.z[i] >= 0 || states_.z[i + 1] < 0) continue;
      if (std::abs(states_.time[i] - day) > std::abs(nearest.day - day)) continue;
      nearest = NodeBetween(i);
    }
    return nearest;
  }

  // The states stand four minutes apart.
  Node NodeBetween(std::size_t i) const {
    double low = 1, high = 2;
    while (high - low > 1e-9) {
      const double middle = (low + high) / 2;
      (Cubic(states_.z, i - 1, middle) < 0 ? low : high) = middle;
    }
    const double x = Cubic(states_.x, i - 1, low);
    const double y = Cubic(states_.y, i - 1, low);
    return {Cubic(states_.time, i - 1, low), std::atan2(y, x) * 180 / std::acos(-1.0)};
  }

  /// Lagrange's polynomial through four equidistant values from `first` on; t is 0 at the first of them.
  static double Cubic(const std::vector<double>& values, std::size_t first, double t) {
    double sum = 0;
    for (std::size_t j = 0; j < 4; ++j) {
      double weight = 1;
      for (std::size_t k = 0; k < 4; ++k) {
        if (k != j)
          weight *= (t - static_cast<double>(k)) / (static_cast<double>(j) - static_cast<double>(k));
      }
      sum += weight * values[first + j];
    }
    return sum;
  }

  /// Longitude on the drawn Earth below the station at the crossing, less a published one.
  double Difference(const Node& node, double longitude) {
    DrawAt(node.day);
    return std::remainder(node.ascension - Greenwich() - longitude, 360);
  }

  StateTable states_;
};

// By the file's comments: 2025-02-26T13:00:51.921 at 143.20256 degrees, 2025-03-13T10:30:18.047 at 92.38517.
// The states are on the axes of the year 2000, from which the equinox has moved by 0.32 degrees in 25 years:
// by so much the station is drawn too far west.
TEST_F(RealNode, TheStationCrossesTheEquatorOverTheLongitudeOfTheFile) {
  constexpr double kSecond = 1.0 / 86400;
  const struct {
    double day, longitude;
  } published[] = {{45714 + (13 * 3600 + 51.921) * kSecond, 143.20256},
                   {45729 + (10 * 3600 + 30 * 60 + 18.047) * kSecond, 92.38517}};
  for (const auto& comment : published) {
    const Node node = NodeNear(comment.day);
    EXPECT_NEAR(node.day, comment.day, 60 * kSecond);
    EXPECT_NEAR(Difference(node, comment.longitude), -0.32, 0.2);
  }
}

}  // namespace
}  // namespace quorb
