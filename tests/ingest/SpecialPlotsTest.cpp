#include "SpecialPlots.h"

#include <cmath>

#include "LoadFixture.h"

namespace quorb {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kNear = 1e-9;

class SpecialPlotsTest : public LoadFixture {
 protected:
  static void SetPoint(int row, double x, double y, double z, double time = 45000) {
    const double cells[] = {time, x, y, z};
    for (int column = 0; column < 4; ++column)
      dataXYZT.Set(row, column, cells[column]);
    LastPoint = row;
  }

  static void ExpectPoint(int row, double x, double y, double z) {
    SCOPED_TRACE(row);
    EXPECT_NEAR(dataXYZT[row][1], x, kNear);
    EXPECT_NEAR(dataXYZT[row][2], y, kNear);
    EXPECT_NEAR(dataXYZT[row][3], z, kNear);
  }
};

// ---- built-in plot ----------------------------------------------------------------------------------------

TEST_F(SpecialPlotsTest, TheBuiltInPlotIsAClosedPentagonAroundTheOrigin) {
  int row = 0;
  double scale = 0.5;
  BuiltInPlot(row, scale);
  EXPECT_EQ(row, 9);
  EXPECT_EQ(scale, 0.001);
  const double radius = 307049.106105;
  ExpectPoint(0, 0, 0, 0);
  ExpectPoint(1, 0, 0, 0);
  // Its pi is 3.14159, so a full turn misses the circle by 2 x 2.6535898e-6: 1.6295 in Y.
  EXPECT_NEAR(dataXYZT[2][1], radius, 1e-5);
  EXPECT_NEAR(dataXYZT[2][2], radius * 5.3071796e-6, 1e-6);
  EXPECT_NEAR(dataXYZT[7][1], radius, kNear);
  EXPECT_EQ(dataXYZT[7][2], 0);
  for (int i = 0; i <= 7; ++i) {
    EXPECT_EQ(dataXYZT[i][0], 0);
    EXPECT_EQ(dataXYZT[i][3], 0);
  }
  // Row 5: the angle -144 x 3.14159 / 180 = -2.513272, whose cosine is -0.80901575 and sine -0.58778697.
  EXPECT_NEAR(dataXYZT[5][1], radius * -0.809015747, 1e-3);
  EXPECT_NEAR(dataXYZT[5][2], radius * -0.587786970, 1e-3);
  EXPECT_NEAR(dataXYZT[6][1], radius * 0.309018004, 1e-3);
  EXPECT_NEAR(dataXYZT[6][2], radius * -0.951056188, 1e-3);
}

// ---- demonstration ----------------------------------------------------------------------------------------

TEST_F(SpecialPlotsTest, TheDemonstrationShowsATelecommunicationSatelliteWithItsPanel) {
  SetPoint(0, 0, 0, 0);
  SetPoint(1, 3000000, 4000000, 0);
  DressDemo(window);
  EXPECT_EQ(window.Value(LoaderControl::Check3), 1);
  EXPECT_EQ(window.Value(LoaderControl::Check4), 1);
  EXPECT_NEAR(window.satelliteSize, 8.1300813, 1e-7);  // 5,000,000 by 615,000
  EXPECT_EQ(window.satelliteShape, "GEO satcom");
}

TEST_F(SpecialPlotsTest, AGeostationaryRadiusGivesASatelliteOfTheSizeNought) {
  SetPoint(0, 42164, 0, 0);
  DressDemo(window);
  EXPECT_EQ(std::nearbyint(window.satelliteSize), 0);
}

TEST_F(SpecialPlotsTest, OnlyTheAnnouncedDemonstrationIsDressed) {
  const std::string file = Header(Formula("0.5 + ", "Demo kmday", 2)) + "42164\t0\t0\t45000\r\n";
  files.contents["/app/QuorbExcelProDemo.qbv"] = file;
  LoadNamed("/app/QuorbExcelProDemo.qbv");
  EXPECT_EQ(window.satelliteShape, "") << "read as any named file";

  CommandFileMode = 0;
  FileMode = 1;
  DEJADRAW = DEJARESET = 0;
  LoadPlot();
  EXPECT_EQ(window.satelliteShape, "GEO satcom");
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].title, "Demo default");
}

// ---- north, east, down ------------------------------------------------------------------------------------

TEST_F(SpecialPlotsTest, OffsetsOnTheEquatorAreTurnedAboutTheEarthsCentre) {
  TitleKeywords place;
  place.latitude = 0;
  place.longitude = 87.5;
  place.distance = 0;
  SetPoint(0, 0, 0, 0);
  SetPoint(1, 1, 2, 3);  // by the given scale 100 m north, 200 m east, 300 m down
  double scale = 1.0001;
  NedConversion(place, 0.01, scale);
  ExpectPoint(0, 6378.137, 0, 0);
  ExpectPoint(1, 6377.837, 0.2, 0.1);
  EXPECT_EQ(scale, 0.01);
}

TEST_F(SpecialPlotsTest, ALoadWithNedKeepsTheForcedScaleForTheDrawing) {
  Load(Header(Formula("0.5 + ", "Flight kmday ned 0 87.5 1000", 2)) + "0\t0\t0\t45000\r\n");
  EXPECT_EQ(FactorScale, 1.0001);
  EXPECT_EQ(USERFLAG.NedInput, 1.0);
  // The longitude's text is cut to the one character of the latitude's: 8, less 87.5.
  const double longitude = -79.5 * 3.14159265358979 / 180;
  EXPECT_NEAR(dataXYZT[0][1], 6379.137 * std::cos(longitude), 1e-6);
  EXPECT_NEAR(dataXYZT[0][2], 6379.137 * std::sin(longitude), 1e-6);
  EXPECT_NEAR(dataXYZT[0][3], 0, 1e-6);
}

// 100 m east, read with the scale 1.0001 and divided by the given 0.5: 0.10001 km / 0.5 = 0.20002, taken as
// metres, times a thousandth.
TEST_F(SpecialPlotsTest, OffsetsAreReadWithTheForcedScaleAndDividedByTheGivenOne) {
  Load(Header(Formula("0.5 + ", "Flight ned 0 87.5 0", 1)) + "0\t0\t0\r\n0\t100\t0\r\n");
  const double longitude = -79.5 * 3.14159265358979 / 180;
  EXPECT_NEAR(dataXYZT[1][1] - dataXYZT[0][1], -0.00020002 * std::sin(longitude), 1e-11);
  EXPECT_NEAR(dataXYZT[1][2] - dataXYZT[0][2], 0.00020002 * std::cos(longitude), 1e-11);
}

TEST_F(SpecialPlotsTest, APointThatWouldLeaveTheRangeOfNumbersStays) {
  Load(Header(Formula("1e-300 + ", "Flight ned 0 87.5 0", 1)) + "0\t1e200\t0\r\n");
  Load(Header(Formula("1e300 + ", "Flight em_system", 1)) + "1\t2\t3\r\n4\t5\t6\r\n1e-5\t0\t0\r\n");
  for (int row = 0; row <= LastPoint; ++row) {
    for (int column = 1; column <= 3; ++column)
      EXPECT_TRUE(std::isfinite(dataXYZT[row][column])) << row << " " << column;
  }
}

// ---- Earth and Moon ---------------------------------------------------------------------------------------

// The first arc leaves along X; the second comes in along -Y, which is its own X backward.
TEST_F(SpecialPlotsTest, TwoArcsAreJoinedAtTheJumpOfTheirDistance) {
  SetPoint(0, 100, 0, 0);
  SetPoint(1, 150, 0, 0);
  SetPoint(2, 0, 10, 0);
  SetPoint(3, 0, 8, 0);
  SetPoint(4, 0, 6, 0);
  EarthMoonFrame(1);
  ExpectPoint(0, 100, 0, 0);
  ExpectPoint(1, 150, 0, 0);
  ExpectPoint(2, 150, 0, 0);
  ExpectPoint(3, 152, 0, 0);
  ExpectPoint(4, 154, 0, 0);
  EXPECT_NEAR(EMDistance, 160000, 1e-6);
  EXPECT_EQ(USERFLAG.EMView, 1.0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SpecialPlotsTest, XPointsToTheCentreOfTheSecondArc) {
  SetPoint(0, 100, 50, 0);
  SetPoint(1, 150, 50, 0);
  SetPoint(2, 0, 10, 0);
  SetPoint(3, 0, 8, 0);
  EarthMoonFrame(1);
  // The Moon stands at (160, 50, 0), 167.63055 away.
  EXPECT_NEAR(EMDistance, 167630.5461, 1e-3);
  EXPECT_NEAR(dataXYZT[1][1], 26500 / 167.6305461, 1e-6);
  EXPECT_NEAR(dataXYZT[1][2], 500 / 167.6305461, 1e-6);
  // The second arc starts where the first one ends.
  EXPECT_NEAR(dataXYZT[2][1], dataXYZT[1][1], 1e-9);
  EXPECT_NEAR(dataXYZT[2][2], dataXYZT[1][2], 1e-9);
}

TEST_F(SpecialPlotsTest, TheScaleCancels) {
  SetPoint(0, 50, 25, 0);
  SetPoint(1, 75, 25, 0);
  SetPoint(2, 0, 5, 0);
  SetPoint(3, 0, 4, 0);
  EarthMoonFrame(0.5);
  EXPECT_NEAR(EMDistance, 167630.5461, 1e-3);
  EXPECT_NEAR(dataXYZT[1][1], 13250 / 167.6305461, 1e-6);
  EXPECT_NEAR(dataXYZT[2][2], dataXYZT[1][2], 1e-9);
}

TEST_F(SpecialPlotsTest, WithoutAJumpTheFirstFrameRestsOnTheZeroVector) {
  SetPoint(0, 3, 4, 0);
  SetPoint(1, 4, 4, 0);
  SetPoint(2, 5, 4, 0);
  EarthMoonFrame(1);
  ExpectPoint(0, 5, 0, 0);
  ExpectPoint(1, 9, 4, 0);
  ExpectPoint(2, 10, 4, 0);
  EXPECT_NEAR(EMDistance, 5000, 1e-9);
}

TEST_F(SpecialPlotsTest, TwoRowsAreEnough) {
  SetPoint(0, 1, 0, 0);
  SetPoint(1, 10, 0, 0);
  EarthMoonFrame(1);
  ExpectPoint(0, 1, 0, 0);
  ExpectPoint(1, 1, 0, 0);
  EXPECT_NEAR(EMDistance, 11000, 1e-9);
}

TEST_F(SpecialPlotsTest, RowsOfAnEarlierPlotAreNotLookedAt) {
  dataXYZT.Set(2, 2, 500);
  SetPoint(0, 1, 0, 0);
  SetPoint(1, 10, 0, 0);
  EarthMoonFrame(1);
  EXPECT_NEAR(EMDistance, 11000, 1e-9);
  ExpectPoint(1, 1, 0, 0);
}

TEST_F(SpecialPlotsTest, OnlyMoreThanTwiceOrLessThanHalfIsAJump) {
  SetPoint(0, 100, 0, 0);
  SetPoint(1, 200, 0, 0);
  SetPoint(2, 100, 0, 0);
  SetPoint(3, 0, 49, 0);
  SetPoint(4, 0, 47, 0);
  EarthMoonFrame(1);
  // The seam is at row 3: -100 from there to -51, the Moon's place, and X turned toward it.
  EXPECT_NEAR(EMDistance, 51000, 1e-9);
  ExpectPoint(1, 200, 0, 0);
  ExpectPoint(2, 100, 0, 0);
  ExpectPoint(3, 100, 0, 0);
}

TEST_F(SpecialPlotsTest, ADistanceOfNoughtMakesNoJump) {
  SetPoint(0, 0, 0, 0);
  SetPoint(1, 100, 0, 0);
  SetPoint(2, 110, 0, 0);
  EarthMoonFrame(1);
  // The first row, at the origin, is the seam: its frame is of zero vectors, and everything comes to nought.
  EXPECT_EQ(EMDistance, 0);
  EXPECT_FALSE(dialogs.boxes.empty());
}

TEST_F(SpecialPlotsTest, ALoadInTheEarthMoonSystemEndsInItsFrame) {
  Load(Header(Formula("0.5 + ", "Transfer em_system kmday", 2)) +
       "100\t50\t0\t45000\r\n150\t50\t0\t45001\r\n0\t10\t0\t45002\r\n0\t8\t0\t45003\r\n");
  EXPECT_EQ(EMSystem, 1);
  EXPECT_EQ(USERFLAG.EMView, 1.0);
  EXPECT_NEAR(EMDistance, 167630.5461, 1e-3);
  EXPECT_NEAR(dataXYZT[1][1], 13250 / 167.6305461, 1e-6);
}

TEST_F(SpecialPlotsTest, TimesThatAreNoDaysAreTakenAsTheyAre) {
  for (const double time : {1e300, -1e300, std::nan("")}) {
    SetPoint(0, 100, 50, 0, time);
    SetPoint(1, 150, 50, 0, time);
    SetPoint(2, 0, 10, 0, time);
    SetPoint(3, 0, 8, 0, time);
    EarthMoonFrame(1);
    EXPECT_NEAR(EMDistance, 167630.5461, 1e-3);
  }
}

// ---- file type --------------------------------------------------------------------------------------------

TEST_F(SpecialPlotsTest, EachLoadTiesTheFileType) {
  LoadRows("1\t2\t3\r\n");
  LoadRows("1\t2\t3\r\n");
  EXPECT_EQ(window.registrations, 2);
}

}  // namespace
}  // namespace quorb
