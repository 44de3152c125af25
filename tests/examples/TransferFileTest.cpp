#include "TransferFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "Attitude.h"
#include "TitleWords.h"

namespace quorb {
namespace {

using testing::HasSubstr;

const Flight& TheFlight() {
  static const Flight flight = FlyTransfer();
  return flight;
}

const std::string& TheText() {
  static const std::string text = DataFileOf(TransferTable(TheFlight()), "QuorbExcelProDemo.qbv");
  return text;
}

std::vector<std::string> FieldsOf(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char c : line) {
    if (c == '\t') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

std::vector<std::string> LinesOfTheText() {
  std::vector<std::string> lines;
  std::istringstream text(TheText());
  for (std::string line; std::getline(text, line);) {
    EXPECT_EQ(line.back(), '\r');
    line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

/// The lines without their CR LF, the header first.
const std::vector<std::string>& Lines() {
  static const std::vector<std::string> lines = LinesOfTheText();
  return lines;
}

/// v turned by the quaternion in the fields H to K, scalar first.
Vec3 TurnedByRow(const std::vector<std::string>& fields, const Vec3& v) {
  const double w = std::stod(fields[7]);
  const Vec3 axis = {std::stod(fields[8]), std::stod(fields[9]), std::stod(fields[10])};
  const Vec3 twice = 2 * Cross(axis, v);
  return v + w * twice + Cross(axis, twice);
}

TEST(TransferFile, HeaderNamesTheRowsOfEveryTable) {
  const std::string last = std::to_string(Lines().size());
  EXPECT_THAT(Lines()[0],
              HasSubstr("\t= 0.01 + LEN(\"Satellite transfer to the geostationary ring kmday valz\") + "
                        "MAX(A2:C" +
                        last + ") + MAX(D2:D" + last + ") + MAX(E2:F9) + MAX(G2:K" + last + ") + MAX(L2:M" +
                        last + ") + MAX(N2:O" + last + ") + MAX(P2:Q" + last + ")\t0.0100000000\t"));
}

TEST(TransferFile, TitleHoldsOnlyTheKeywordsThatAreMeant) {
  EXPECT_TRUE(TitleWordsIn("Satellite transfer to the geostationary ring").empty());
}

TEST(TransferFile, EveryRowHasSeventeenColumns) {
  const std::vector<std::string> lines = Lines();
  ASSERT_GT(lines.size(), 20000U);
  for (std::size_t i = 1; i < lines.size(); ++i)
    ASSERT_EQ(FieldsOf(lines[i]).size(), 17U) << i;
}

TEST(TransferFile, TimesIncreaseFromRowToRow) {
  double previous = 0;
  for (std::size_t i = 1; i < Lines().size(); ++i) {
    const double time = std::stod(FieldsOf(Lines()[i])[3]);
    ASSERT_GT(time, previous) << i;
    previous = time;
  }
}

TEST(TransferFile, QuaternionsAreUnitQuaternions) {
  for (std::size_t i = 1; i < Lines().size(); ++i) {
    const std::vector<std::string> fields = FieldsOf(Lines()[i]);
    double squares = 0;
    for (std::size_t component = 7; component <= 10; ++component)
      squares += std::stod(fields[component]) * std::stod(fields[component]);
    ASSERT_NEAR(squares, 1, 1e-9) << i;
  }
}

// What a burn adds to the velocity from one row to the next shows where it points.
TEST(TransferFile, ThrustAxisPointsAlongTheBurn) {
  const std::vector<FlightRow>& rows = TheFlight().rows;
  int burning = 0;
  for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
    if (!rows[i].burning) continue;
    ++burning;
    const Vec3 added = rows[i + 1].state.velocity - Advance(rows[i].state, 0, 10).velocity;
    const Vec3 thrustAxis = TurnedByRow(FieldsOf(Lines()[i + 1]), {0, 0, 1});
    // The last steps chase a gain that turns quickly.
    if (Length(VelocityToGain(rows[i].state)) < 0.02) continue;
    ASSERT_GT(Dot(Unit(added), thrustAxis), 0.99999) << i;
  }
  EXPECT_NEAR(burning, (2800 + 2800 + 2600 + 1820) / 10, 5);
}

TEST(TransferFile, ArraysLookAtTheSunAsFarAsTheirAxisLets) {
  for (std::size_t i = 1; i < Lines().size(); i += 100) {
    const std::vector<std::string> fields = FieldsOf(Lines()[i]);
    const Vec3 sun = SunDirection(std::stod(fields[3]));
    const double angle = std::stod(fields[12]) * std::acos(-1.0) / 180;
    // A panel along Z, turned about Y: what it misses of the Sun lies along Y alone.
    const Vec3 normal = TurnedByRow(fields, {std::sin(angle), 0, std::cos(angle)});
    const double alongAxis = Dot(sun, TurnedByRow(fields, {0, 1, 0}));
    ASSERT_NEAR(Dot(sun, normal), std::sqrt(1 - alongAxis * alongAxis), 1e-7) << i;
  }
}

TEST(TransferFile, EventsAlternateAtAscendingTimesAndThenStop) {
  const std::vector<std::string> lines = Lines();
  std::string events;
  double previous = 0;
  for (std::size_t i = 1; i <= 8; ++i) {
    const std::vector<std::string> fields = FieldsOf(lines[i]);
    events += fields[5];
    EXPECT_GT(std::stod(fields[4]), previous);
    previous = std::stod(fields[4]);
  }
  EXPECT_EQ(events, "SESESESE");
  for (std::size_t i = 9; i < lines.size(); ++i) {
    ASSERT_EQ(FieldsOf(lines[i])[4], "") << i;
    ASSERT_EQ(FieldsOf(lines[i])[5], "") << i;
  }
}

TEST(TransferFile, TablesGoAlongWithThePoints) {
  for (std::size_t i = 1; i < Lines().size(); ++i) {
    const std::vector<std::string> fields = FieldsOf(Lines()[i]);
    for (const std::size_t time : {6U, 11U, 13U, 15U})
      ASSERT_EQ(fields[time], fields[3]);
    for (const std::size_t angle : {12U, 14U}) {
      ASSERT_GE(std::stod(fields[angle]), 0);
      ASSERT_LE(std::stod(fields[angle]), 360);
    }
    ASSERT_GE(std::stod(fields[16]), 0);
    ASSERT_LE(std::stod(fields[16]), 1);
  }
}

TEST(TransferFile, BothArraysTurnTheSameWayAboutOppositeAxes) {
  const std::vector<std::string> fields = FieldsOf(Lines()[100]);
  EXPECT_NEAR(std::stod(fields[12]) + std::stod(fields[14]), 360, 1e-9);
}

TEST(TransferFile, SameFlightGivesTheSameText) {
  EXPECT_TRUE(DataFileOf(TransferTable(FlyTransfer()), "QuorbExcelProDemo.qbv") == TheText());
}

}  // namespace
}  // namespace quorb
