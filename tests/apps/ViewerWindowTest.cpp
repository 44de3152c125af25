#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "PictureCompare.h"
#include "ProgramRun.h"
#include "VirtualDisplay.h"

// The X headers define words of their own: they come last.
#include "CloseWindow.h"

namespace quorb {
namespace {

using testing::HasSubstr;

constexpr int kWidth = 1280, kHeight = 900;
const std::string kWholeScreen = "1280x900+0+0";
constexpr double kTolerance = 0.004;

/// The rows of an image from `top` on.
PixelImage Strip(const PixelImage& image, int top, int height) {
  PixelImage strip;
  strip.width = image.width;
  strip.height = height;
  strip.rgb.assign(image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(0, top)),
                   image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(0, top + height)));
  return strip;
}

/// The rows of the screen that the plot fills: those with its background near the right edge.
struct PlotRows {
  explicit PlotRows(const PixelImage& screen) {
    constexpr int kFromEdge = 3;
    for (int y = 0; y < screen.height; ++y) {
      const std::uint8_t* const pixel = screen.rgb.data() + screen.At(screen.width - kFromEdge, y);
      const bool isBackground = pixel[0] == 10 && pixel[1] == 20 && pixel[2] == 70;
      if (isBackground && height == 0) top = y;
      if (isBackground) height = y + 1 - top;
    }
  }
  int top = 0, height = 0;
};

/// The real program on a display of its own, with settings of its own.
class ViewerWindow : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(display_.Works()) << "Xvfb did not start"; }

  std::vector<std::string> Environment() const {
    return {"DISPLAY=" + display_.Name(),
            "QT_QPA_PLATFORM=xcb",
            "XDG_CONFIG_HOME=" + run_.File("config"),
            "XDG_DATA_HOME=" + run_.File("data"),
            "XDG_RUNTIME_DIR=" + run_.File(""),
            "QUORB_OFFICE_SOCKETS=" + run_.File("")};
  }

  std::unique_ptr<Background> Start(const std::string& commandLine) const {
    std::vector<std::string> command = {QUORB_VIEWER_PROGRAM};
    if (!commandLine.empty()) command.push_back(commandLine);
    return std::make_unique<Background>(command, Environment());
  }

  // What stands on the screen, as a PNG file of this name.
  PixelImage Screen(const std::string& crop) const {
    run_.Run("/usr/bin/env",
             "DISPLAY=" + display_.Name() + " import -window root -crop " + crop + " +repage screen.png");
    PixelImage image;
    std::string error;
    EXPECT_TRUE(ReadPng(run_.File("screen.png"), image, error)) << error;
    return image;
  }

  ProgramOutcome Drive(const std::string& words) const {
    return run_.Run("/usr/bin/env", "DISPLAY=" + display_.Name() + " xdotool " + words);
  }

  /// The strip below the plot, a second behind the start on this file; the window is closed then.
  PixelImage StripOfARun(const std::string& file) const {
    const auto viewer = Start(run_.File(file));
    EXPECT_TRUE(WaitForWindow("Quorb"));
    std::this_thread::sleep_for(std::chrono::seconds(1));
    const PixelImage strip = Screen("1280x60+0+800");
    const std::string window = Drive("search --onlyvisible --name 'Quorb'").out;
    EXPECT_TRUE(CloseWindow(display_.Name(), std::stoul(window)));
    EXPECT_EQ(viewer->Wait(std::chrono::seconds(10)), 0);
    return strip;
  }

  // Waits until a window with this text in its title is on the screen.
  bool WaitForWindow(const std::string& title) const {
    return Drive("search --sync --onlyvisible --name '" + title + "'").status == 0;
  }

  ProgramRun run_;
  VirtualDisplay display_{kWidth, kHeight};
};

TEST_F(ViewerWindow, ShowsTheSamePictureAsTheProgramWithoutAWindow) {
  const std::string file = QUORB_EXAMPLES "/km.qbv";
  const auto viewer = Start(file);
  ASSERT_TRUE(WaitForWindow("Quorb"));
  double share = 1;
  PixelImage expected;
  for (int attempt = 0; attempt < 40 && share > kTolerance; ++attempt) {
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    const PixelImage screen = Screen(kWholeScreen);
    const PlotRows rows(screen);
    if (rows.height == 0) continue;
    if (rows.height != expected.height) {
      const std::string size = std::to_string(kWidth) + "x" + std::to_string(rows.height);
      ASSERT_EQ(run_.Run(QUORB_RENDER_PROGRAM, "'" + file + "' -o expected.png --size " + size).status, 0);
      std::string error;
      ASSERT_TRUE(ReadPng(run_.File("expected.png"), expected, error)) << error;
    }
    share = FindDifference(Strip(screen, rows.top, rows.height), expected).share;
  }
  EXPECT_LE(share, kTolerance);
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, AFileWhoseNameHasBlanksOpens) {
  run_.Write("a plot with blanks.qbv",
             DataFileText("=0.5+LEN(\"Blanks km\")+MAX(A2:C3)", "1\t2\t3\r\n4\t5\t6\r\n"));
  const auto viewer = Start(run_.File("a plot with blanks.qbv"));
  ASSERT_TRUE(WaitForWindow("Quorb"));
  std::this_thread::sleep_for(std::chrono::seconds(1));
  EXPECT_NE(Drive("search --onlyvisible --name 'Demo default'").status, 0);
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, WithoutAFileTheDemonstrationBesideTheProgramIsShown) {
  ASSERT_EQ(run_.Run(QUORB_RENDER_PROGRAM, "'" QUORB_DEMONSTRATION "' -o demonstration.png --row 0").status,
            0);
  ASSERT_EQ(run_.Run("/usr/bin/convert", "demonstration.png -crop 200x20+0+0 +repage title.png").status, 0);
  PixelImage title;
  std::string error;
  ASSERT_TRUE(ReadPng(run_.File("title.png"), title, error)) << error;

  const auto viewer = Start("");
  const std::string question = Drive("search --sync --onlyvisible --name 'Excel not running!'").out;
  ASSERT_FALSE(question.empty());
  ASSERT_TRUE(CloseWindow(display_.Name(), std::stoul(question)));
  // The plot begins below the menus and the tool bars, as high as they may be.
  double share = 1;
  for (int attempt = 0; attempt < 40 && share > kTolerance; ++attempt) {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    const PixelImage top = Screen("200x160+0+0");
    for (int below = 0; below <= 140; ++below)
      share = std::min(share, FindDifference(Strip(top, below, title.height), title).share);
  }
  EXPECT_LE(share, kTolerance);
  EXPECT_NE(Drive("search --onlyvisible --name 'Demo default'").status, 0);
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, ClosingTheWindowEndsTheProgramAtOnce) {
  const auto viewer = Start(QUORB_EXAMPLES "/km.qbv");
  ASSERT_TRUE(WaitForWindow("Quorb"));
  std::this_thread::sleep_for(std::chrono::seconds(1));
  const std::string window = Drive("search --onlyvisible --name 'Quorb'").out;
  ASSERT_TRUE(CloseWindow(display_.Name(), std::stoul(window)));
  EXPECT_EQ(viewer->Wait(std::chrono::seconds(10)), 0);
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
  EXPECT_THAT(ContentsOfFile(run_.File("config/QuorbExcelPro/QuorbExcelProSettings.conf")),
              HasSubstr("Setstr14.00=1"));
  const PixelImage behind = StripOfARun("plain plot.qbv");
  EXPECT_GT(FindDifference(behind, before).share, 0.002) << "the bar of its size";
}

TEST_F(ViewerWindow, OptionsOfTheStoreRuleThePictureThoughSomeAreNoNumbers) {
  std::filesystem::create_directories(run_.File("config/QuorbExcelPro"));
  run_.Write("config/QuorbExcelPro/QuorbExcelProSettings.conf",
             "[Use]\nSet08.00=wide\nSet26.00=300\nSet27.00=red\nSet28.00=-5\n");
  const auto viewer = Start(QUORB_EXAMPLES "/km.qbv");
  ASSERT_TRUE(WaitForWindow("Quorb"));
  // The background: 300 counts as 255, a word and a number below 0 as 0.
  const auto isRed = [this] {
    const PixelImage corner = Screen("1x1+1270+400");
    return corner.rgb.size() == 3 && corner.rgb[0] >= 253 && corner.rgb[1] == 0 && corner.rgb[2] == 0;
  };
  bool red = false;
  for (int attempt = 0; attempt < 40 && !red; ++attempt) {
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    red = isRed();
  }
  EXPECT_TRUE(red);
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(ViewerWindow, AStoreThatCannotBeWrittenIsNoHindrance) {
  run_.Write("config", "a file where the directory of the settings should be");
  const auto viewer = Start(QUORB_EXAMPLES "/km.qbv");
  ASSERT_TRUE(WaitForWindow("Quorb"));
  std::this_thread::sleep_for(std::chrono::seconds(1));
  EXPECT_EQ(Drive("search --onlyvisible --name '.'").out, Drive("search --onlyvisible --name 'Quorb'").out)
      << "no box is shown";
  const std::string window = Drive("search --onlyvisible --name 'Quorb'").out;
  ASSERT_TRUE(CloseWindow(display_.Name(), std::stoul(window)));
  EXPECT_EQ(viewer->Wait(std::chrono::seconds(10)), 0);
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
