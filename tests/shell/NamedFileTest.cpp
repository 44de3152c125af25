#include "NamedFile.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class NamedFileTest : public WindowFixture {
 protected:
  NamedFileTest() {
    files.contents["/p.qbv"] =
        "From: \tBook\tSheet\t=2+LEN(\"Test\")+MAX(A2:C3)\t2.0000000000\tTest\tDate \tmark\t\r\n"
        "1000\t2000\t3000\r\n"
        "4000\t5000\t6000\r\n";
  }
};

TEST_F(NamedFileTest, ANameIsTakenWhateverItsLength) {
  NameDataFile("a.qbv");
  EXPECT_EQ(CommandFileMode, 1);
  EXPECT_EQ(CommandFileName, "a.qbv");
}

TEST_F(NamedFileTest, TheCommandLineLeavesANamedFile) {
  NameDataFile("/p.qbv");
  Load("");
  EXPECT_EQ(CommandFileMode, 1);
  Form_Activate();
  EXPECT_EQ(LastLoad().rows, 2);
}

TEST_F(NamedFileTest, TheFileIsLoadedWithoutASceneAndWithoutSettings) {
  StoreUse("Set07.00", "4");
  LoadNamedFile("/p.qbv");
  EXPECT_EQ(LastLoad().rows, 2);
  EXPECT_EQ(LastPoint, 1);
  // Metres and a scale of 2: 4000 m are 8 km.
  EXPECT_EQ(dataXYZT[1][1], 8);
  EXPECT_EQ(MessageUserToPlot, "Test");
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
  EXPECT_EQ(USERFLAGfactory.MoonAmplification, 10);
  EXPECT_EQ(TheScene, nullptr);
  EXPECT_EQ(settings.entries.size(), 1U);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(NamedFileTest, EachFileIsLoadedInAFreshRun) {
  LocalFollow = 1;
  USERFLAG.MovieFrames = 5;
  LoadNamedFile("/p.qbv");
  EXPECT_EQ(LocalFollow, 0);
  EXPECT_EQ(USERFLAG.MovieFrames, 0);
  EXPECT_EQ(AppDir, "/opt/quorb/");
  EXPECT_EQ(ImportDirectory, "/home/user/quorb-data");
}

TEST_F(NamedFileTest, AMissingFileGivesNoRows) {
  LoadNamedFile("/missing.qbv");
  EXPECT_EQ(LastLoad().rows, 0);
  EXPECT_EQ(LastLoad().ErrorNumber, 53);
}

}  // namespace
}  // namespace quorb
