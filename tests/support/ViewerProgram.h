#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "PictureCompare.h"
#include "ProgramRun.h"
#include "ScreenReading.h"
#include "VirtualDisplay.h"
#include "WindowSearch.h"

// The X headers define words of their own: they come last.
#include "ClipboardText.h"
#include "CloseWindow.h"
#include "ScreenPicture.h"

namespace quorb {

/// The rows of the screen that the plot fills: those with its background near the right edge.
inline Place PlotOn(const PixelImage& screen, int background = 0x0A1446) {
  constexpr int kFromEdge = 3;
  Place plot{0, 0, screen.width, 0};
  for (int y = 0; y < screen.height; ++y) {
    if (!IsNear(ColourAt(screen, screen.width - kFromEdge, y), background)) continue;
    if (plot.height == 0) plot.y = y;
    plot.height = y + 1 - plot.y;
  }
  return plot;
}

/// The real program on a display, with settings and directories, of its own, and no office to be found. What
/// opens directories for the user is a script that notes them in the file "opened".
class ViewerProgram : public testing::Test {
 protected:
  static constexpr int kScreenWidth = 1280, kScreenHeight = 900;
  static constexpr double kTolerance = 0.004;

  void SetUp() override {
    ASSERT_TRUE(display_.Works()) << "Xvfb did not start";
    for (const char* directory : {"runtime", "sockets", "images", "path", "config/QuorbExcelPro"})
      std::filesystem::create_directories(run_.File(directory));
    std::filesystem::permissions(run_.File("runtime"), std::filesystem::perms::owner_all);
    run_.Write("path/xdg-open", "#!/bin/sh\necho \"$1\" >> '" + run_.File("opened") + "'\n");
    std::filesystem::permissions(run_.File("path/xdg-open"), std::filesystem::perms::owner_all);
    run_.Write(kSettings, "[Use]\nSetDirBMP=" + run_.File("images/") + "\n");
  }

  std::vector<std::string> Environment() const {
    return {"DISPLAY=" + display_.Name(),
            "QT_QPA_PLATFORM=xcb",
            "PATH=" + run_.File("path") + ":" + std::getenv("PATH"),
            "XDG_CONFIG_HOME=" + run_.File("config"),
            "XDG_DATA_HOME=" + run_.File("data"),
            "XDG_RUNTIME_DIR=" + run_.File("runtime"),
            "QUORB_OFFICE_SOCKETS=" + run_.File("sockets")};
  }

  /// Starts it in a directory of the test's own.
  std::unique_ptr<Background> Start(const std::string& file, const std::string& directory = "") const {
    const std::string line = "cd '" + run_.File(directory) + "' && exec '" QUORB_VIEWER_PROGRAM "' " +
                             (file.empty() ? file : "'" + file + "'");
    return std::make_unique<Background>(std::vector<std::string>{"sh", "-c", line}, Environment());
  }

  /// Starts it without a file: nothing is there but the demonstration, which it shows behind a Cancel.
  std::unique_ptr<Background> StartOnDemonstration(const std::string& directory = "") const {
    auto viewer = Start("", directory);
    EXPECT_TRUE(Answer("Excel not running!", "Escape"));
    EXPECT_TRUE(FocusOn("^Quorb"));
    EXPECT_TRUE(Until([this] { return TitleIsThatOf(QUORB_DEMONSTRATION); }));
    WaitForLayout();
    return viewer;
  }

  /// Starts it on a file and waits until its plot stands still.
  std::unique_ptr<Background> StartOn(const std::string& file) const {
    auto viewer = Start(file);
    EXPECT_TRUE(FocusOn("^Quorb"));
    EXPECT_TRUE(Until([&] { return TitleIsThatOf(file); }));
    SettledScreen();
    return viewer;
  }

  /// Ends it as a window manager's close button does. The exit status.
  int Close(Background& viewer) const {
    const std::string window = Search("^Quorb").out;
    if (window.empty() || !CloseWindow(display_.Name(), std::stoul(window))) return -3;
    return viewer.Wait(std::chrono::seconds(10));
  }

  // ---- the screen ----------------------------------------------------------------------------------------

  PixelImage Picture(const std::string& file) const {
    PixelImage image;
    std::string error;
    EXPECT_TRUE(ReadPng(run_.File(file), image, error)) << error;
    return image;
  }

  PixelImage Screen() const { return ScreenPicture(display_.Name()); }

  /// The screen once two pictures of it in a row are the same.
  PixelImage SettledScreen() const {
    PixelImage last = Screen();
    for (int attempt = 0; attempt < 60; ++attempt) {
      std::this_thread::sleep_for(std::chrono::milliseconds(150));
      PixelImage now = Screen();
      if (now.rgb == last.rgb) return now;
      last = std::move(now);
    }
    ADD_FAILURE() << "the screen does not come to rest";
    return last;
  }

  /// Waits until the plot keeps its place, though what it shows may move.
  void WaitForLayout() const {
    constexpr int kTimes = 5;
    int last = 0, times = 0;
    EXPECT_TRUE(Until([&] {
      const int height = PlotOn(Screen()).height;
      times = height > 0 && height == last ? times + 1 : 0;
      last = height;
      return times == kTimes;
    }));
  }

  PixelImage Plot() const {
    const PixelImage screen = Screen();
    return Cut(screen, PlotOn(screen));
  }
  PixelImage SettledPlot() const {
    const PixelImage screen = SettledScreen();
    return Cut(screen, PlotOn(screen));
  }
  /// The plot once it is another one than before and stands still.
  PixelImage PlotBehind(const PixelImage& before) const {
    EXPECT_TRUE(Until([&] { return Differ(Plot(), before); }, 8)) << "the plot stays as it is";
    return SettledPlot();
  }

  /// The picture that the program without a window draws of a file, in the size of the plot.
  PixelImage Rendered(const std::string& file, int height, const std::string& arguments = "") const {
    const std::string size = std::to_string(kScreenWidth) + "x" + std::to_string(height);
    EXPECT_EQ(
        run_.Run(QUORB_RENDER_PROGRAM, "'" + file + "' -o rendered.png --size " + size + " " + arguments)
            .status,
        0);
    return Picture("rendered.png");
  }

  /// Whether the plot stands under the title of this file. Only its letters count: lines may go through it.
  bool TitleIsThatOf(const std::string& file, int background = 0x0A1446) const {
    constexpr Place kTitle = {0, 0, 200, 20};
    const PixelImage screen = Screen();
    const Place plot = PlotOn(screen, background);
    if (plot.height < kTitle.height) return false;
    if (renderedTitle_ != file) {
      title_ = LightPixels(Cut(Rendered(file, plot.height, "--row 0"), kTitle));
      renderedTitle_ = file;
    }
    const PixelImage shown = LightPixels(Cut(screen, {0, plot.y, kTitle.width, kTitle.height}));
    return FindDifference(shown, title_).share <= kTolerance;
  }

  /// Whether two plots differ, be it in a few thin lines only.
  static bool Differ(const PixelImage& one, const PixelImage& other) {
    constexpr double kThinLines = 0.0003;
    return FindDifference(one, other).share > kThinLines;
  }

  /// Writes the screen beside other temporary files, for whoever looks into a failure.
  void KeepScreen() const {
    const char* const test = testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string file = testing::TempDir() + test + ".png";
    std::string error;
    if (WritePng(file, Screen(), error)) std::fprintf(stderr, "The screen: %s\n", file.c_str());
  }

  /// Tries until it holds or the seconds are over.
  bool Until(const std::function<bool()>& holds, int seconds = 15) const {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!holds()) {
      if (std::chrono::steady_clock::now() > end) {
        KeepScreen();
        return false;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return true;
  }

  // ---- the hand ------------------------------------------------------------------------------------------

  ProgramOutcome Drive(const std::string& words) const {
    return run_.Run("/usr/bin/env", "DISPLAY=" + display_.Name() + " timeout 15 xdotool " + words);
  }
  /// What is known of the windows with this title; see SearchWindows.
  ProgramOutcome Search(const std::string& title, const std::string& then = "") const {
    return SearchWindows(run_, title, then, display_.Name());
  }
  bool IsOpen(const std::string& title) const { return Search(title).status == 0; }
  bool WaitForWindow(const std::string& title) const {
    return Until([&] { return IsOpen(title); });
  }
  /// Where a window stands, without its frame.
  Place PlaceOf(const std::string& title) const {
    EXPECT_TRUE(WaitForWindow(title)) << title;
    const std::string answer = Search(title, "getwindowgeometry --shell").out;
    Place place;
    for (const auto& [name, number] :
         {std::pair{"X=", &place.x}, std::pair{"Y=", &place.y}, std::pair{"WIDTH=", &place.width},
          std::pair{"HEIGHT=", &place.height}}) {
      const std::size_t begin = answer.find(std::string("\n") + name);
      if (begin != answer.npos) *number = std::atoi(answer.c_str() + begin + 1 + std::string(name).size());
    }
    return place;
  }
  /// Waits for a window and gives it the keyboard, as a window manager would.
  bool FocusOn(const std::string& title) const {
    return Until([&] { return Search(title, "windowfocus --sync").status == 0; });
  }
  /// Waits for a dialog, gives it a key that ends it, and waits until it is gone: a window behind it that is
  /// given the keyboard earlier hands it back.
  bool Answer(const std::string& title, const std::string& key) const {
    if (!FocusOn(title)) return false;
    Keys(key);
    return Until([&] { return !IsOpen(title); });
  }
  void Keys(const std::string& keys) const { Drive("key --delay 30 " + keys); }
  void Type(const std::string& text) const { Drive("type --delay 15 -- '" + text + "'"); }
  void Point(int x, int y) const { Drive("mousemove " + std::to_string(x) + " " + std::to_string(y)); }
  void Click(const Place& place, int times = 1) const {
    Point(place.MiddleX(), place.MiddleY());
    Drive("click --repeat " + std::to_string(times) + " --delay 80 1");
  }
  void Drag(int x, int y, int right, int down, int button = 1) const {
    const std::string press = std::to_string(button);
    Point(x, y);
    Drive("mousedown " + press);
    for (int step = 1; step <= 4; ++step)
      Point(x + right * step / 4, y + down * step / 4);
    Drive("mouseup " + press);
  }

  static constexpr const char* kSettings = "config/QuorbExcelPro/QuorbExcelProSettings.conf";

  ProgramRun run_;
  VirtualDisplay display_{kScreenWidth, kScreenHeight};

 private:
  mutable PixelImage title_;
  mutable std::string renderedTitle_;
};

}  // namespace quorb
