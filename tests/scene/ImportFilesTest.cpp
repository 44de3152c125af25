#include "ImportFiles.h"

#include <filesystem>
#include <fstream>

#include "ScenePlot.h"

namespace quorb {
namespace {

class ImportFilesTest : public ScenePlot {
 protected:
  ImportFilesTest()
      : directory_(testing::TempDir() + "quorb_import_" +
                   testing::UnitTest::GetInstance()->current_test_info()->name()) {
    std::filesystem::create_directories(directory_);
    ImportDirectory = directory_.string();
  }
  ~ImportFilesTest() override { std::filesystem::remove_all(directory_); }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(directory_ / name, std::ios::binary) << text;
  }

  std::filesystem::path directory_;
};

TEST_F(ImportFilesTest, EventsStandBehindThreeHeadLines) {
  Write("QuorbEvents.txt", "head\r\nhead\r\nhead\r\n1,5\tburn\tS\r\n2.5\tburn\tE\r\n3\tx\t1\r\n4\tx\t0\r\n");
  ImportEvents();
  EXPECT_EQ(NbEvents, 3) << "the lines less one";
  const double expected[4][2] = {{1.5, 1}, {2.5, 0}, {3, 1}, {4, 0}};
  for (int row = 0; row < 4; ++row) {
    EXPECT_EQ(dataEvents[row][0], expected[row][0]);
    EXPECT_EQ(dataEvents[row][1], expected[row][1]);
  }
}

TEST_F(ImportFilesTest, PointsTakeTheirLengthsInMetres) {
  Write("QuorbPoints.txt", "a\nb\nc\n10,25\tx\tx\tx\t1000\t2000,5\t-3000\n11\tx\tx\tx\t4000\t5000\t6000");
  dataXYZT.Set(0, 4, -1);
  ImportPoints();
  EXPECT_EQ(LastPoint, 1);
  const double expected[2][5] = {{10.25, 1, 2.0005, -3, 0}, {11, 4, 5, 6, 0}};
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 5; ++column)
      EXPECT_EQ(dataXYZT[row][column], expected[row][column]);
  }
}

TEST_F(ImportFilesTest, NumbersMayHaveBlanksAroundThem) {
  Write("QuorbEvents.txt", "a\nb\nc\n  12,5 \tburn\tS\n");
  ImportEvents();
  EXPECT_EQ(dataEvents[0][0], 12.5);

  Write("QuorbPoints.txt", "a\nb\nc\n 12,5\tx\tx\tx\t  1000,5 \t -2000\t3000 \n");
  ImportPoints();
  const double expected[4] = {12.5, 1.0005, -2, 3};
  for (int column = 0; column < 4; ++column)
    EXPECT_EQ(dataXYZT[0][column], expected[column]);
}

TEST_F(ImportFilesTest, MissingFieldsAreZero) {
  Write("QuorbPoints.txt", "a\nb\nc\n10\tx\n\n");
  dataXYZT.Set(0, 1, 5);
  ImportPoints();
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(dataXYZT[0][0], 10);
  EXPECT_EQ(dataXYZT[0][1], 0);
}

TEST_F(ImportFilesTest, MissingFileIsNoError) {
  ImportEvents();
  ImportPoints();
  EXPECT_EQ(NbEvents, 0);
  EXPECT_EQ(LastPoint, 0);
}

TEST_F(ImportFilesTest, FileOfHeadLinesAloneChangesNothing) {
  Write("QuorbEvents.txt", "a\nb\nc\n");
  ImportEvents();
  EXPECT_EQ(NbEvents, 0);
}

TEST_F(ImportFilesTest, WithoutADirectoryNothingIsReadFromTheWorkingDirectory) {
  Write("QuorbEvents.txt", "a\nb\nc\n5\tS\n6\tE\n");
  Write("QuorbPoints.txt", "a\nb\nc\n10\tx\tx\tx\t1000\t0\t0\n11\tx\tx\tx\t9000\t0\t0\n");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(directory_);
  ImportDirectory.clear();
  ImportEvents();
  ImportPoints();
  std::filesystem::current_path(before);
  EXPECT_EQ(NbEvents, 0);
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(dataEvents[0][0], 0);
}

TEST_F(ImportFilesTest, RowsPastTheBoundAreSkippedAndTheCounterMoves) {
  std::string text = "a\nb\nc\n";
  for (int line = 0; line < kRowBound + 5; ++line)
    text += "1\tE\n";
  Write("QuorbEvents.txt", text);
  ImportEvents();
  EXPECT_EQ(NbEvents, kRowBound + 4);
  for (int row = 0; row < kRowBound; ++row)
    dataEvents.Set(row, 0, 0);
}

TEST_F(ImportFilesTest, AFrameImportsWhereThePlotHasNoEventsOrNoPoints) {
  Write("QuorbEvents.txt", "a\nb\nc\n5\tS\n6\tE\n");
  Write("QuorbPoints.txt", "a\nb\nc\n10\tx\tx\tx\t1000\t0\t0\n11\tx\tx\tx\t9000\t0\t0\n");
  SetPoint(1, 1, 3, 0, 0);
  Frame();
  EXPECT_EQ(NbEvents, 1);
  EXPECT_EQ(dataEvents[0][0], 5);
  EXPECT_EQ(dataXYZT[1][0], 1) << "the plot's own points stay";

  ClearPlot();
  ImportDirectory = directory_.string();
  NbEvents = 1;
  Frame();
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(dataXYZT[1][0], 11);
}

}  // namespace
}  // namespace quorb
