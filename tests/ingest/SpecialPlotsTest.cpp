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
  const double kTurn = 1e-5 * radius;  // its pi has five decimals
  EXPECT_NEAR(dataXYZT[2][1], radius, 1);
  EXPECT_NEAR(dataXYZT[3][1], radius * 0.30901699, kTurn);
  EXPECT_NEAR(dataXYZT[3][2], radius * 0.95105652, kTurn);
  EXPECT_NEAR(dataXYZT[4][1], radius * -0.80901699, kTurn);
  EXPECT_NEAR(dataXYZT[7][1], radius, kNear);
  EXPECT_EQ(dataXYZT[7][3], 0);
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
