#include "TransferFlight.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorb {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

const Flight& TheFlight() {
  static const Flight flight = FlyTransfer();
  return flight;
}

std::vector<FlightRow> RowsAfterLastBurn() {
  std::vector<FlightRow> rows;
  for (const FlightRow& row : TheFlight().rows) {
    if (row.day >= TheFlight().burns.back().end) rows.push_back(row);
  }
  return rows;
}

TEST(TransferFlight, BeginsOnTheTransferOrbit) {
  const FlightRow& first = TheFlight().rows.front();
  EXPECT_NEAR(Length(first.state.position), 6378.137 + 250, 1e-9);
  EXPECT_NEAR(ShapeOf(first.state).semiMajorAxis * (1 + ShapeOf(first.state).eccentricity), 6378.137 + 35853,
              1e-6);
  EXPECT_NEAR(ShapeOf(first.state).inclination / kDegree, 7, 1e-9);
  EXPECT_GT(first.day, 45658);
  EXPECT_LT(TheFlight().rows.back().day, 45658 + 365);
}

TEST(TransferFlight, EndsOnTheRingForOneTurn) {
  const std::vector<FlightRow> rows = RowsAfterLastBurn();
  EXPECT_NEAR((rows.back().day - rows.front().day) * 86400, 86164, 15);
  for (const FlightRow& row : rows) {
    const OrbitShape shape = ShapeOf(row.state);
    ASSERT_NEAR(shape.semiMajorAxis, 42164.2, 2);
    ASSERT_LT(shape.eccentricity, 0.0003);
    ASSERT_LT(shape.inclination / kDegree, 0.002);
  }
}

// Between the burns the energy -mu / 2a stays; a change of 1 m in a is one of 40 in a thousand millions.
TEST(TransferFlight, KeepsItsEnergyWithoutThrustAndGainsWithIt) {
  const std::vector<FlightRow>& rows = TheFlight().rows;
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const double gain = ShapeOf(rows[i].state).semiMajorAxis - ShapeOf(rows[i - 1].state).semiMajorAxis;
    if (rows[i - 1].burning) {
      ASSERT_GT(gain, 0) << i;
    } else {
      ASSERT_NEAR(gain, 0, 0.001) << i;
    }
  }
}

TEST(TransferFlight, HasARowEveryTenSecondsTwentyThousandAndMore) {
  const std::vector<FlightRow>& rows = TheFlight().rows;
  EXPECT_GE(rows.size(), 20000U);
  EXPECT_LE(rows.size(), 40000U);
  for (std::size_t i = 1; i < rows.size(); ++i)
    ASSERT_NEAR((rows[i].day - rows[i - 1].day) * 86400, 10, 1e-5) << i;
}

TEST(TransferFlight, BurnsFollowEachOtherAndRaiseThePerigee) {
  const std::vector<Burn>& burns = TheFlight().burns;
  ASSERT_EQ(burns.size(), 4U);
  double perigee = 6378.137 + 250;
  double end = TheFlight().rows.front().day;
  for (const Burn& burn : burns) {
    EXPECT_GT(burn.start, end);
    EXPECT_GT(burn.end, burn.start);
    end = burn.end;
    const auto row = std::find_if(TheFlight().rows.begin(), TheFlight().rows.end(),
                                  [end](const FlightRow& candidate) { return candidate.day == end; });
    ASSERT_NE(row, TheFlight().rows.end());
    const OrbitShape shape = ShapeOf(row->state);
    EXPECT_GT(shape.semiMajorAxis * (1 - shape.eccentricity), perigee + 1000);
    perigee = shape.semiMajorAxis * (1 - shape.eccentricity);
  }
}

TEST(TransferFlight, RowsBurnFromTheStartOfABurnUntilItsEnd) {
  for (const FlightRow& row : TheFlight().rows) {
    const bool inBurn =
        std::any_of(TheFlight().burns.begin(), TheFlight().burns.end(),
                    [&row](const Burn& burn) { return row.day >= burn.start && row.day < burn.end; });
    EXPECT_EQ(row.burning, inBurn) << row.day;
  }
}

TEST(TransferFlight, PropellantFallsInBurnsOnlyAndLasts) {
  const std::vector<FlightRow>& rows = TheFlight().rows;
  EXPECT_DOUBLE_EQ(rows.front().propellantFraction, 1);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const double used = rows[i - 1].propellantFraction - rows[i].propellantFraction;
    if (rows[i - 1].burning) {
      EXPECT_GT(used, 0) << i;
    } else {
      EXPECT_DOUBLE_EQ(used, 0) << i;
    }
  }
  EXPECT_GT(rows.back().propellantFraction, 0);
  EXPECT_LT(rows.back().propellantFraction, 0.1);
}

}  // namespace
}  // namespace quorb
