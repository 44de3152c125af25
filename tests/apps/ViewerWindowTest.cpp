#include <gmock/gmock.h>

#include <algorithm>

#include "ViewerProgram.h"

namespace quorb {
namespace {

using testing::HasSubstr;

const std::string kTrajectory = QUORB_EXAMPLES "/km.qbv";

/// The real program from its start to its end.
class ViewerWindow : public ViewerProgram {
 protected:
  /// The strip below the plot of a run on this file.
  PixelImage StripOfARun(const std::string& file) const {
    const auto viewer = StartOn(run_.File(file));
    const PixelImage strip = Cut(Screen(), {0, 800, kScreenWidth, 60});
    EXPECT_EQ(Close(*viewer), 0);
    return strip;
  }
};

TEST_F(ViewerWindow, ShowsTheSamePictureAsTheProgramWithoutAWindow) {
  const auto viewer = StartOn(kTrajectory);
  double share = 1;
  EXPECT_TRUE(Until([&] {
    const PixelImage plot = Plot();
    share = FindDifference(plot, Rendered(kTrajectory, plot.height)).share;
    return share <= kTolerance;
  })) << share;
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, AFileWhoseNameHasBlanksOpens) {
  const std::string file = run_.File("a plot with blanks.qbv");
  run_.Write("a plot with blanks.qbv",
             DataFileText("=0.5+LEN(\"Blanks km\")+MAX(A2:C3)", "1\t2\t3\r\n4\t5\t6\r\n"));
  const auto viewer = StartOn(file);
  EXPECT_FALSE(IsOpen("Demo default"));
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, WithoutAFileTheDemonstrationBesideTheProgramIsShown) {
  const auto viewer = Start("");
  ASSERT_TRUE(WaitForWindow("Excel not running!"));
  ASSERT_TRUE(CloseWindow(display_.Name(), std::stoul(Search("Excel not running!").out)));
  EXPECT_TRUE(Until([this] { return TitleIsThatOf(QUORB_DEMONSTRATION); }));
  EXPECT_FALSE(IsOpen("Demo default"));
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, ClosingTheWindowEndsTheProgramAtOnce) {
  const auto viewer = StartOn(kTrajectory);
  EXPECT_EQ(Close(*viewer), 0);
}

TEST_F(ViewerWindow, TheSatelliteThatWasSwitchedOnIsThereBehindARestart) {
  // Two points with times, events and quaternions.
  const std::string rows = "1000\t0\t0\t1\t1\t0\t1\t1\t0\t0\t0\r\n0\t2000\t0\t2\t2\t0\t2\t1\t0\t0\t0\r\n";
  const std::string ranges = " kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX(E2:F3)+MAX(G2:K3)";
  run_.Write("plain plot.qbv", DataFileText("=0.01+LEN(\"Plain" + ranges, rows));
  run_.Write("satellite.qbv", DataFileText("=0.01+LEN(\"My Sat" + ranges, rows));
  // A title with a satellite switches it on, and a third bar sizes it; a plain plot keeps what is stored.
  const PixelImage before = StripOfARun("plain plot.qbv");
  StripOfARun("satellite.qbv");
  EXPECT_THAT(ContentsOfFile(run_.File(kSettings)), HasSubstr("Setstr14.00=1"));
  const PixelImage behind = StripOfARun("plain plot.qbv");
  EXPECT_GT(FindDifference(behind, before).share, 0.002) << "the bar of its size";
}

TEST_F(ViewerWindow, OptionsOfTheStoreRuleThePictureThoughSomeAreNoNumbers) {
  run_.Write(kSettings, "[Use]\nSet08.00=wide\nSet26.00=300\nSet27.00=red\nSet28.00=-5\n");
  const auto viewer = Start(kTrajectory);
  // The background: 300 counts as 255, a word and a number below 0 as 0.
  EXPECT_TRUE(Until([this] { return ColourAt(Screen(), 1270, 400) >> 16 >= 253; }));
  EXPECT_EQ(ColourAt(Screen(), 1270, 400) & 0xFFFF, 0);
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, AStoreThatCannotBeWrittenIsNoHindrance) {
  std::filesystem::remove_all(run_.File("config"));
  run_.Write("config", "a file where the directory of the settings should be");
  const auto viewer = StartOn(kTrajectory);
  EXPECT_EQ(Search(".").out, Search("Quorb").out) << "no box is shown";
  EXPECT_EQ(Close(*viewer), 0);
}

TEST_F(ViewerWindow, HelpAndVersionNeedNoDisplay) {
  const ProgramOutcome help = run_.Run("/usr/bin/env", "-u DISPLAY '" QUORB_VIEWER_PROGRAM "' --help");
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.out,
            "Usage: QuorbExcelPro [FILE]\n"
            "\n"
            "Shows a trajectory that stands in a spreadsheet in three dimensions, live. With a\n"
            "data file named, of eight characters or more, it shows that file and nothing else.\n"
            "\n"
            "  FILE       the data file to show (.qbv)\n"
            "  --help     show this text\n"
            "  --version  show the version\n");
  EXPECT_EQ(run_.Run("/usr/bin/env", "-u DISPLAY '" QUORB_VIEWER_PROGRAM "' --version").out,
            "QuorbExcelPro 2.8.6\n");
}

}  // namespace
}  // namespace quorb
