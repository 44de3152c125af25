#include "RowSearch.h"

#include "BodiesPlot.h"

namespace quorb {
namespace {

class RowSearchTest : public BodiesPlot {
 protected:
  RowSearchTest() {
    for (int row = 0; row < 4; ++row)
      SetPlusYAngle(row, 10 * (row + 1), 0);
  }
  static std::int64_t Found(std::int64_t from, double time) { return FindRow(dataSApY, NbSApY, from, time); }
};

TEST_F(RowSearchTest, TheRowIsTheOneWhoseTimeAndTheNextOnesEncloseTheTime) {
  EXPECT_EQ(Found(0, 25), 1);
  EXPECT_EQ(Found(1, 25), 1);
  EXPECT_EQ(Found(3, 25), 1);
  EXPECT_EQ(Found(0, 39), 2);
}

TEST_F(RowSearchTest, ATimeOnARowIsFoundFromTheSideThatTheSearchComesFrom) {
  EXPECT_EQ(Found(0, 20), 0);
  EXPECT_EQ(Found(2, 20), 1);
  EXPECT_EQ(Found(0, 40), 2);
}

TEST_F(RowSearchTest, BehindTheLastRowTheSearchEndsAtTheRowWithoutDataAndStandsStillThere) {
  EXPECT_EQ(Found(0, 41), 4);
  EXPECT_EQ(Found(4, 41), 4);
  EXPECT_EQ(Found(4, 25), 4);
}

TEST_F(RowSearchTest, BeforeTheFirstRowTheSearchEndsAtRowZero) {
  EXPECT_EQ(Found(3, 5), 0);
  EXPECT_EQ(Found(0, 5), 0);
}

TEST_F(RowSearchTest, ARowBehindAShorterTableStartsAnew) {
  EXPECT_EQ(Found(20, 25), 1);
}

TEST_F(RowSearchTest, AnEmptyTableGivesRowZero) {
  EXPECT_EQ(FindRow(dataSAmY, 0, 0, 25), 0);
  EXPECT_EQ(FindRow(dataSAmY, 0, 0, -25), 0);
}

TEST_F(RowSearchTest, TimesThatDoNotAscendEndTheSearchAllTheSame) {
  SetPlusYAngle(1, 5, 0);
  SetPlusYAngle(2, 3, 0);
  SetPlusYAngle(3, 1, 0);
  EXPECT_EQ(Found(0, 12), 4);
  EXPECT_EQ(Found(1, 4), 0);
}

TEST_F(RowSearchTest, AFullTableEndsOneRowBehindItsLastAndThisReadsAsZero) {
  EXPECT_EQ(FindRow(dataSApY, kRowBound, 0, 41), kRowBound);
  EXPECT_EQ(CellOrZero(dataSApY, kRowBound, 1), 0);
  EXPECT_EQ(CellOrZero(dataSApY, -1, 1), 0);
}

}  // namespace
}  // namespace quorb
