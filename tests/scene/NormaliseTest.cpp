#include "Normalise.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

class NormaliseTest : public ScenePlot {
 protected:
  NormaliseTest() { NbEvents = 1; }

  static void ExpectPoint(int row, double x, double y, double z) {
    EXPECT_NEAR(dataXYZT[row][1], x, 1e-12) << "row " << row;
    EXPECT_NEAR(dataXYZT[row][2], y, 1e-12) << "row " << row;
    EXPECT_NEAR(dataXYZT[row][3], z, 1e-12) << "row " << row;
  }

  PlotExtent extent;
};

TEST_F(NormaliseTest, ScaleOneBringsEachAxisToEightyUnits) {
  SetPoint(0, 0, 100, -5, -300);
  SetPoint(1, 1, 110, 5, -290);
  NormalisePlot(extent);
  // Every span is 10, so every scale 8. X lies beyond its span above 0 and Z below it: both are moved to 0.
  ExpectPoint(0, 0, -40, 0);
  ExpectPoint(1, 80, 40, 80);
  EXPECT_EQ(extent.AxisRange[0].AxisOffset, -100);
  EXPECT_EQ(extent.AxisRange[1].AxisOffset, 0);
  EXPECT_EQ(extent.AxisRange[2].AxisOffset, 300);
  EXPECT_EQ(extent.AxisRange[0].AxisMin, 100);
  EXPECT_EQ(extent.AxisRange[0].AxisMax, 110);
  EXPECT_EQ(extent.AxisRange[0].AxisSpan, 10);
  EXPECT_EQ(extent.AxisRange[0].AxisScale, 8);
  // 80² + 40² + 80² = 120².
  EXPECT_DOUBLE_EQ(extent.Range, 120);
  EXPECT_DOUBLE_EQ(extent.InvRange, 1 / 120.0);
  EXPECT_EQ(FactorScale, 1.0);
  EXPECT_EQ(DEJARESET, 1);
}

TEST_F(NormaliseTest, AnotherScaleBringsTheFarthestPointToEightyUnitsByOneFactor) {
  FactorScale = 0.001;
  SetPoint(0, 0, 0, 30, 40);
  SetPoint(1, 1, 0, 0, -10);
  NormalisePlot(extent);
  // Distances 50 and 10, factor 80 / 50.
  ExpectPoint(0, 0, 48, 64);
  ExpectPoint(1, 0, 0, -16);
  EXPECT_DOUBLE_EQ(FactorScale, 0.0016);
  EXPECT_DOUBLE_EQ(extent.Range, 80);
  EXPECT_DOUBLE_EQ(extent.InvRange, 1 / 80.0);
  EXPECT_EQ(extent.RangeMin, 10) << "stays the distance before scaling";
}

TEST_F(NormaliseTest, AllPointsAtTheOriginGiveRangeOneAndRangeMinZero) {
  SetPoint(0, 0, 0, 0, 0);
  SetPoint(1, 1, 0, 0, 0);
  NormalisePlot(extent);
  EXPECT_EQ(extent.Range, 1);
  EXPECT_EQ(extent.RangeMin, 0);
  EXPECT_EQ(extent.InvRange, 1);
  ExpectPoint(1, 0, 0, 0);
}

TEST_F(NormaliseTest, PointsAtOneDistanceGiveRangeMinZero) {
  FactorScale = 2;
  SetPoint(0, 0, 10, 0, 0);
  SetPoint(1, 1, 0, 10, 0);
  NormalisePlot(extent);
  EXPECT_EQ(extent.RangeMin, 0);
  EXPECT_DOUBLE_EQ(extent.Range, 80);
}

TEST_F(NormaliseTest, PenUpRowsAreScaledButNotMeasured) {
  FactorScale = 2;
  SetPoint(0, 0, 40, 0, 0);
  SetPoint(1, 1, 100, 0, 0, -1);
  NormalisePlot(extent);
  ExpectPoint(0, 80, 0, 0);
  ExpectPoint(1, 200, 0, 0);
  EXPECT_DOUBLE_EQ(extent.Range, 80);
  EXPECT_EQ(extent.AxisRange[0].AxisMax, 40);
}

TEST_F(NormaliseTest, PenUpModeMeasuresEveryRowAndScalesTheSecondPoints) {
  FactorScale = 2;
  PenUpMode = 1;
  SetPoint(0, 0, 0, 0, 20, -1);
  SetPoint(1, 1, 0, 40, 0, -1);
  SetSecondPoint(0, 1, 2, 3, -1);
  SetSecondPoint(1, 4, 5, 6);
  dataQuater.Set(2, 0, 7);
  dataQuater.Set(3, 0, 9);
  NormalisePlot(extent);
  ExpectPoint(1, 0, 80, 0);
  EXPECT_EQ(dataQuater[0][0], 2);
  EXPECT_EQ(dataQuater[0][1], 4);
  EXPECT_EQ(dataQuater[0][2], 6);
  EXPECT_EQ(dataQuater[0][3], -1) << "the pen flag is no length";
  EXPECT_EQ(dataQuater[1][2], 12);
  EXPECT_EQ(dataQuater[2][0], 14) << "rows 0 to NbQuater";
  EXPECT_EQ(dataQuater[3][0], 9);
  EXPECT_EQ(extent.RangeMin, 20);
}

TEST_F(NormaliseTest, PenUpModeAtScaleOneMovesTheSecondPointsByTheAxesOfThePoints) {
  PenUpMode = 1;
  SetPoint(0, 0, 100, 0, 0);
  SetPoint(1, 1, 110, 20, 40);
  SetSecondPoint(0, 105, 10, 10);
  NormalisePlot(extent);
  // X: (105 - 100) x 8, Y: 10 x 4, Z: 10 x 2.
  EXPECT_EQ(dataQuater[0][0], 40);
  EXPECT_EQ(dataQuater[0][1], 40);
  EXPECT_EQ(dataQuater[0][2], 20);
}

TEST_F(NormaliseTest, WithoutPenUpModeTheQuaternionsStay) {
  SetPoint(0, 0, 0, 0, 0);
  SetPoint(1, 1, 1, 1, 1);
  SetSecondPoint(0, 1, 2, 3);
  NormalisePlot(extent);
  EXPECT_EQ(dataQuater[0][0], 1);
}

TEST_F(NormaliseTest, FlatAxisKeepsItsScale) {
  SetPoint(0, 0, 0, 7, 0);
  SetPoint(1, 1, 10, 7, 10);
  extent.AxisRange[1].AxisScale = 3;
  NormalisePlot(extent);
  EXPECT_EQ(extent.AxisRange[1].AxisSpan, 0);
  EXPECT_EQ(extent.AxisRange[1].AxisScale, 3);
  // The span 0 is below the minimum 7, so the axis is moved: (7 - 7) x 3.
  ExpectPoint(1, 80, 0, 80);
}

TEST_F(NormaliseTest, FlatAxisOfAFirstPlotComesToZero) {
  SetPoint(0, 0, 0, -7, 0);
  SetPoint(1, 1, 10, -7, 10);
  NormalisePlot(extent);
  EXPECT_EQ(extent.AxisRange[1].AxisScale, 0);
  ExpectPoint(0, 0, 0, 0);
}

TEST_F(NormaliseTest, DigestedDataAreNotScaledAgain) {
  FactorScale = 2;
  SetPoint(0, 0, 40, 0, 0);
  SetPoint(1, 1, 0, 20, 0);
  NormalisePlot(extent);
  NormalisePlot(extent);
  ExpectPoint(0, 80, 0, 0);
  EXPECT_EQ(FactorScale, 4);
}

TEST_F(NormaliseTest, EventsOfOneValueToggle) {
  SetPoint(1, 1, 1, 1, 1);
  SetEvent(0, 0.1, 1);
  SetEvent(1, 0.2, 1);
  NormalisePlot(extent);
  EXPECT_EQ(extent.EventsSingleValued, 1);
}

TEST_F(NormaliseTest, EventsWithZerosAndOnesAreStartsAndEnds) {
  SetPoint(1, 1, 1, 1, 1);
  SetEvent(0, 0.1, 1);
  SetEvent(1, 0.2, 0);
  extent.EventsSingleValued = 1;
  NormalisePlot(extent);
  EXPECT_EQ(extent.EventsSingleValued, 0);
}

TEST_F(NormaliseTest, EventRowsAboveTheCounterDoNotCount) {
  SetPoint(1, 1, 1, 1, 1);
  SetEvent(0, 0.1, 1);
  SetEvent(1, 0.2, 0);
  NbEvents = 1;
  NormalisePlot(extent);
  EXPECT_EQ(extent.EventsSingleValued, 1);
}

TEST_F(NormaliseTest, EventsForcedMakesEventsTellTheirValues) {
  SetPoint(1, 1, 1, 1, 1);
  extent.EventsForced = 1;
  extent.EventsSingleValued = 1;
  NormalisePlot(extent);
  EXPECT_EQ(extent.EventsSingleValued, 0);
}

TEST_F(NormaliseTest, CountersPastTheRowBoundStopAtTheLastRow) {
  FactorScale = 2;
  SetPoint(0, 0, 0, 0, 0);
  dataXYZT.Set(kRowBound - 1, 1, 10);
  LastPoint = kRowBound + 50;
  NbEvents = kRowBound + 50;
  NormalisePlot(extent);
  EXPECT_DOUBLE_EQ(dataXYZT[kRowBound - 1][1], 80);
  dataXYZT.Set(kRowBound - 1, 1, 0);
}

}  // namespace
}  // namespace quorb
