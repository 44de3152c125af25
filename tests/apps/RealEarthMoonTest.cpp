#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "Ephemeris.h"
#include "ModMATHASdbl.h"
#include "ProgramRun.h"
#include "StateReaders.h"

namespace quorb {
namespace {

using Point = std::array<double, 3>;

struct Row {
  double day;
  Point place;
};

Point Difference(const Point& a, const Point& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double Length(const Point& a) {
  return std::hypot(a[0], a[1], a[2]);
}

/// The Moon from the Earth in kilometres, on the axes of the equator.
Point MoonAt(double day) {
  constexpr double kEphemerisShift = 366;
  Vector3 helio, geo, moon;
  EXPECT_TRUE(EphemerisAt(day - kEphemerisShift, kMoonBody, 4, helio, geo));
  EulerI(geo, 0, 23.45 * std::acos(-1.0) / 180, 0, moon);
  return {moon(1) / 1000, moon(2) / 1000, moon(3) / 1000};
}

/// A real flight around the Moon in the frame that turns with it: the arc around the Earth up to the closest
/// approach, then the arc around the Moon as long as it stays near.
class RealEarthMoon : public testing::Test {
 protected:
  static constexpr double kNear = 100000;  // km

  void SetUp() override {
    if (!std::filesystem::is_directory(QUORB_SHARED_DATA)) {
      ASSERT_EQ(std::getenv("CI"), nullptr) << "the ephemerides are missing in " QUORB_SHARED_DATA;
      std::cout << "SKIPPED: there are no ephemerides in " QUORB_SHARED_DATA << '\n';
      GTEST_SKIP();
    }
    ReadFlight();
    Join();
  }

  void ReadFlight() {
    StateTable table;
    const ReadResult result =
        ReadStates(ContentsOfFile(QUORB_SHARED_DATA "/artemis1_orion_states.txt"), table);
    ASSERT_TRUE(result.Ok()) << result.error;
    for (std::size_t i = 0; i < table.time.size(); ++i)
      fromEarth_.push_back({table.time[i], {table.x[i], table.y[i], table.z[i]}});
    for (const Row& row : fromEarth_)
      fromMoon_.push_back({row.day, Difference(row.place, MoonAt(row.day))});
    for (std::size_t i = 0; i < fromMoon_.size(); ++i) {
      if (Length(fromMoon_[i].place) < Length(fromMoon_[closest_].place)) closest_ = i;
    }
  }

  // The row of the closest approach stands twice, once in each arc.
  void Join() {
    std::string rows;
    for (std::size_t i = 0; i <= closest_; ++i)
      rows += Line(fromEarth_[i]);
    std::size_t count = closest_ + 1;
    for (std::size_t i = closest_; i < fromMoon_.size() && Length(fromMoon_[i].place) < kNear; ++i, ++count)
      rows += Line(fromMoon_[i]);
    const std::string last = std::to_string(count + 1);
    run_.Write("plot.qbv", DataFileText("=0.01+LEN(\"Artemis em_system kmday\")+MAX(A2:C" + last +
                                            ")+MAX(D2:D" + last + ")",
                                        rows));
    told_ = run_.Run(QUORB_INSPECT_PROGRAM, "plot.qbv").out;
    std::istringstream text(run_.Run(QUORB_INSPECT_PROGRAM, "plot.qbv --rows dataXYZT").out);
    Row row{};
    for (double pen = 0; text >> row.day >> row.place[0] >> row.place[1] >> row.place[2] >> pen;) {
      for (double& coordinate : row.place)
        coordinate /= 0.01;
      joined_.push_back(row);
    }
    ASSERT_EQ(joined_.size(), count);
  }

  static std::string Line(const Row& row) {
    std::ostringstream line;
    line.precision(17);
    line << row.place[0] << '\t' << row.place[1] << '\t' << row.place[2] << '\t' << row.day << "\r\n";
    return line.str();
  }

  Point Step(std::size_t row) const { return Difference(joined_[row + 1].place, joined_[row].place); }

  double MoonDistance() const {
    const std::size_t at = told_.find("\nEMDistance\t");
    return at == std::string::npos ? 0 : std::stod(told_.substr(at + 12)) / 1000;
  }

  std::vector<Row> fromEarth_, fromMoon_, joined_;
  std::size_t closest_ = 0;
  std::string told_;
  ProgramRun run_;
};

// The closest approach is the flyby of 2022 November 21, 12:57 UTC by the agency; the Moon of this theory may
// be half an hour off its place.
TEST_F(RealEarthMoon, TheSeamIsTheFlyby) {
  EXPECT_NEAR(fromEarth_[closest_].day, 44886 + 12.95 / 24, 0.75 / 24);
  EXPECT_LT(Length(fromMoon_[closest_].place), 3000);
  EXPECT_GT(joined_.size() - closest_, 5000U);
}

TEST_F(RealEarthMoon, TheJoinedTrackHasNoGapAndNoKinkAtTheSeam) {
  EXPECT_NEAR(Length(Step(closest_)), 0, 1e-6) << "both arcs have the row of the seam";
  double largestBefore = 0;
  double largestBehind = 0;
  for (std::size_t i = 1; i <= 30; ++i) {
    largestBefore = std::max(largestBefore, Length(Step(closest_ - i)));
    largestBehind = std::max(largestBehind, Length(Step(closest_ + i)));
  }
  std::cout << "largest step before the seam " << largestBefore << " km, behind it " << largestBehind
            << " km\n";
  EXPECT_LT(largestBehind, 3 * largestBefore);
  EXPECT_LT(largestBefore, 3 * largestBehind);
  const Point in = Step(closest_ - 1);
  const Point out = Step(closest_ + 1);
  const double cosine = (in[0] * out[0] + in[1] * out[1] + in[2] * out[2]) / Length(in) / Length(out);
  EXPECT_GT(cosine, 0.9999) << "each arc lies along its own motion at the seam";
}

TEST_F(RealEarthMoon, TheMoonStandsOnXAtItsDistanceAndTheSecondArcAroundIt) {
  EXPECT_GT(MoonDistance(), 350000);
  EXPECT_LT(MoonDistance(), 410000);
  const Point moon = {MoonDistance(), 0, 0};
  for (std::size_t i = closest_ + 1; i < joined_.size(); ++i) {
    const double wanted = Length(fromMoon_[i - 1].place);
    ASSERT_NEAR(Length(Difference(joined_[i].place, moon)), wanted, 1e-3) << i;
  }
  for (std::size_t i = 0; i <= closest_; ++i)
    ASSERT_NEAR(Length(joined_[i].place), Length(fromEarth_[i].place), 1e-3) << i;
}

}  // namespace
}  // namespace quorb
