#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <set>
#include <sstream>

#include "ViewerProgram.h"

namespace quorb {
namespace {

using testing::HasSubstr;

constexpr int kPanelBlue = 0xD9E8F6;

/// Ranks of the tools in both bars, without the separators.
enum Tool {
  kSelectTool,
  kPanTool,
  kZoomTool,
  kZoomOutTool,
  kZoomInTool,
  kAxesTool = 8,
  kOrientationTool,
  kCameraTool,
  kMovieTool,
  kOptionsTool = 17
};
constexpr std::size_t kTools = 19;
/// The middle rows of the bar that holds them.
constexpr int kToolRows = 20, kToolsAbovePlot = 32;

/// Ranks of the entries of the menu "File" that can be chosen.
enum FileEntry { kOpenEntry, kSaveImageEntry, kMovieEntry, kSlideShowEntry, kOptionsEntry, kExitEntry };

/// Whether a pixel belongs to the line of the plot, smoothed as it is.
bool IsOfLine(int colour) {
  return (colour >> 16 & 255) < 40 && (colour >> 8 & 255) > 100 && (colour & 255) < 70;
}

/// The smallest rectangle with the whole line, and its pixels.
struct LineSeen {
  explicit LineSeen(const PixelImage& plot) {
    int right = -1, bottom = -1;
    extent = {plot.width, plot.height, 0, 0};
    for (int y = 0; y < plot.height; ++y) {
      for (int x = 0; x < plot.width; ++x) {
        if (!IsOfLine(ColourAt(plot, x, y))) continue;
        ++pixels;
        extent.x = std::min(extent.x, x);
        extent.y = std::min(extent.y, y);
        right = std::max(right, x);
        bottom = y;
      }
    }
    extent.width = right - extent.x + 1;
    extent.height = bottom - extent.y + 1;
  }
  Place extent;
  int pixels = 0;
};

constexpr std::size_t kFileMenu = 0, kHelpMenu = 3;

/// A day's journey through the program with the mouse and the keyboard.
class Journey : public ViewerProgram {
 protected:
  /// A plot of a few points, all seen from everywhere.
  std::string SmallPlot(const std::string& title) const {
    run_.Write(title + ".qbv", DataFileText("=1+LEN(\"" + title + " kmday\")+MAX(A2:C6)+MAX(D2:D6)",
                                            "10000\t0\t0\t0\r\n"
                                            "0\t20000\t0\t1\r\n"
                                            "-25000\t0\t5000\t2\r\n"
                                            "0\t-30000\t15000\t3\r\n"
                                            "40000\t0\t0\t4\r\n"));
    return run_.File(title + ".qbv");
  }

  /// A plot that takes many frames to be drawn at the slow speed.
  std::string LongPlot() const {
    std::string rows;
    for (int row = 0; row < 3000; ++row) {
      const double turn = row / 3000.0 * 6.2;
      rows += std::to_string(7000 * std::cos(turn)) + "\t" + std::to_string(7000 * std::sin(turn)) + "\t" +
              std::to_string(row) + "\t" + std::to_string(row / 1440.0) + "\r\n";
    }
    run_.Write("Long plot.qbv",
               DataFileText("=1+LEN(\"Long plot kmday\")+MAX(A2:C3001)+MAX(D2:D3001)", rows));
    return run_.File("Long plot.qbv");
  }

  /// The tools from the left: the icons in the middle rows of the bar above the plot.
  std::vector<Place> Tools() const {
    constexpr int kGap = 3, kLeastWidth = 12;
    const PixelImage screen = Screen();
    const int top = PlotOn(screen).y - kToolsAbovePlot;
    std::vector<Place> tools = ThingsAcross(screen, {0, top, screen.width, kToolRows}, kGap, kLeastWidth);
    EXPECT_GE(tools.size(), kTools);
    tools.resize(kTools);
    return tools;
  }
  void ClickTool(Tool tool) const { Click(Tools()[tool]); }

  /// Opens a menu with the mouse and chooses one of its entries, both counted from 0.
  void Choose(std::size_t menu, int entry) const {
    constexpr Place kMenuBar = {2, 3, 400, 12};
    constexpr int kBetweenMenus = 8, kLeastWidth = 12;
    const PixelImage closed = Screen();
    const std::vector<Place> menus = ThingsAcross(closed, kMenuBar, kBetweenMenus, kLeastWidth);
    ASSERT_GT(menus.size(), menu);
    const Place below = {menus[menu].x, PlotOn(closed).y - kToolsAbovePlot, menus[menu].width, kToolRows};
    Click(menus[menu]);
    ASSERT_TRUE(Until([&] { return Cut(Screen(), below).rgb != Cut(closed, below).rgb; })) << "it opens";
    std::string keys;
    for (int down = 0; down <= entry; ++down)
      keys += "Down ";
    Keys(keys + "Return");
  }

  /// The buttons at the lower edge of a window or a panel, from the left.
  std::vector<Place> ButtonsOf(const Place& window) const {
    constexpr int kEdge = 4, kMiddle = 22, kRows = 6, kGap = 3, kLeastWidth = 40;
    return ThingsAcross(
        Screen(), {window.x + kEdge, window.y + window.height - kMiddle, window.width - 2 * kEdge, kRows},
        kGap, kLeastWidth);
  }

  // ---- the option panel ----------------------------------------------------------------------------------

  Place PanelPlace() const { return ExtentOf(Screen(), kPanelBlue); }

  /// Extends the panel that is open; the three boxes of the background's colour.
  std::vector<Place> BackgroundBoxes() const {
    constexpr int kLeastBox = 8, kMostCheck = 16, kLeastField = 20, kMostField = 70;
    EXPECT_TRUE(Until([this] { return PanelPlace().width > 100; }));
    std::vector<Place> extension;
    EXPECT_TRUE(Until([&] {
      std::vector<Place> checks = WhiteBoxes(Screen(), PanelPlace(), kLeastBox);
      std::erase_if(checks, [](const Place& box) { return box.width > kMostCheck; });
      extension = LastRowOf(checks);
      return extension.size() == 2;
    }));
    if (extension.empty()) return {};
    Click(extension.front());
    std::vector<Place> fields;
    EXPECT_TRUE(Until([&] {
      fields = WhiteBoxes(Screen(), PanelPlace(), kLeastBox);
      std::erase_if(fields,
                    [](const Place& box) { return box.width < kLeastField || box.width > kMostField; });
      fields = LastRowOf(fields);
      return fields.size() == 6;
    }));
    return fields.size() == 6 ? std::vector<Place>(fields.begin() + 3, fields.end()) : fields;
  }

  /// The lowest ones, from the left.
  static std::vector<Place> LastRowOf(std::vector<Place> boxes) {
    if (boxes.empty()) return boxes;
    const int lowest = std::max_element(boxes.begin(), boxes.end(), [](const Place& a, const Place& b) {
                         return a.y < b.y;
                       })->y;
    constexpr int kSameRow = 4;
    std::erase_if(boxes, [&](const Place& box) { return box.y < lowest - kSameRow; });
    std::sort(boxes.begin(), boxes.end(), [](const Place& a, const Place& b) { return a.x < b.x; });
    return boxes;
  }

  void TypeBackground(const std::vector<Place>& boxes, const std::vector<std::string>& numbers) const {
    ASSERT_EQ(boxes.size(), numbers.size());
    for (std::size_t part = 0; part < boxes.size(); ++part) {
      Click(boxes[part], 2);
      Keys("ctrl+a");
      Type(numbers[part]);
    }
  }

  void ClosePanel() const {
    const std::vector<Place> buttons = ButtonsOf(PanelPlace());
    ASSERT_FALSE(buttons.empty());
    Click(buttons.back());
    EXPECT_TRUE(Until([this] { return PanelPlace().width == 0; }));
    EXPECT_TRUE(FocusOn("^Quorb"));
  }

  bool BackgroundIs(int colour) const {
    const PixelImage screen = Screen();
    return PlotOn(screen, colour).height > screen.height / 2;
  }

  /// Opens a file of the working directory: the last one in the chooser's list.
  void OpenLastFile() const {
    Choose(kFileMenu, kOpenEntry);
    ASSERT_TRUE(FocusOn("Explorer tree"));
    SettledScreen();
    Keys("End");
    const std::vector<Place> buttons = ButtonsOf(PlaceOf("Explorer tree"));
    ASSERT_GE(buttons.size(), 2U);
    Click(buttons[buttons.size() - 2]);
    EXPECT_TRUE(Until([this] { return !IsOpen("Explorer tree"); }));
    ASSERT_TRUE(FocusOn("^Quorb"));
  }

  std::vector<std::string> Images() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(run_.File("images")))
      if (entry.path().extension() == ".bmp") names.push_back(entry.path().string());
    std::sort(names.begin(), names.end());
    return names;
  }
};

// ---- views ------------------------------------------------------------------------------------------------

TEST_F(Journey, TheKeysXYAndZPutTheirAxisUpward) {
  const auto viewer = StartOn(SmallPlot("Keys"));
  const PixelImage atStart = SettledPlot();
  Keys("x");
  const PixelImage withX = PlotBehind(atStart);
  Keys("y");
  const PixelImage withY = PlotBehind(withX);
  Keys("z");
  const PixelImage withZ = PlotBehind(withY);
  EXPECT_TRUE(Differ(withX, withZ));
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(Journey, TheAxesButtonGoesRoundTheCubeInFourClicks) {
  const auto viewer = StartOn(SmallPlot("Corners"));
  Keys("z");
  const PixelImage first = SettledPlot();
  PixelImage view = first;
  for (int corner = 1; corner <= 4; ++corner) {
    ClickTool(kAxesTool);
    view = PlotBehind(view);
    EXPECT_EQ(Differ(view, first), corner < 4) << corner;
  }
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(Journey, TheOrientationButtonShowsAProjection) {
  const std::string file = SmallPlot("Orientations");
  const auto viewer = StartOn(file);
  const PixelImage atStart = SettledPlot();
  ClickTool(kOrientationTool);
  const PixelImage view = PlotBehind(atStart);
  EXPECT_FALSE(Differ(view, Rendered(file, view.height, "--view proj:1")));
}

TEST_F(Journey, TheWheelAndTheMagnifiersZoom) {
  const auto viewer = StartOn(SmallPlot("Zoom"));
  const PixelImage atStart = SettledPlot();
  const LineSeen before(atStart);
  Point(kScreenWidth / 2, kScreenHeight / 2);
  Drive("click --repeat 3 --delay 100 4");
  const PixelImage nearer = PlotBehind(atStart);
  EXPECT_GT(LineSeen(nearer).extent.width, before.extent.width + 20);
  Drive("click --repeat 3 --delay 100 5");
  const PixelImage back = PlotBehind(nearer);
  EXPECT_NEAR(LineSeen(back).extent.width, before.extent.width, 10);
  ClickTool(kZoomOutTool);
  const PixelImage farther = PlotBehind(back);
  EXPECT_LT(LineSeen(farther).extent.width, before.extent.width - 5);
  ClickTool(kZoomInTool);
  EXPECT_GT(LineSeen(PlotBehind(farther)).extent.width, LineSeen(farther).extent.width + 5);
}

TEST_F(Journey, DraggingMovesZoomsAndTurnsThePlotByTheModeOfTheMouse) {
  const auto viewer = StartOn(SmallPlot("Drags"));
  const PixelImage atStart = SettledPlot();
  const LineSeen before(atStart);
  constexpr int kMiddleX = kScreenWidth / 2, kMiddleY = kScreenHeight / 2;
  Drag(kMiddleX, kMiddleY, 80, 60);
  const PixelImage moved = PlotBehind(atStart);
  EXPECT_GT(LineSeen(moved).extent.x, before.extent.x + 30);
  EXPECT_GT(LineSeen(moved).extent.y, before.extent.y + 20);
  ClickTool(kZoomTool);
  Drag(kMiddleX, kMiddleY, 0, -60);
  const PixelImage zoomed = PlotBehind(moved);
  EXPECT_GT(std::abs(LineSeen(zoomed).extent.width - before.extent.width), 10);
  ClickTool(kSelectTool);
  Drag(kMiddleX, kMiddleY, 60, 30, 3);
  PlotBehind(zoomed);
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(Journey, TheRedrawBarTakesTheLineBackAndLetsItGrowAgain) {
  const auto viewer = StartOn(LongPlot());
  const PixelImage screen = SettledScreen();
  const Place plot = PlotOn(screen);
  const int whole = LineSeen(Cut(screen, plot)).pixels;
  // The slider stands at the right end of the second bar.
  constexpr int kBarEnd = 312, kBelowPlot = 25;
  Drag(kBarEnd, plot.y + plot.height + kBelowPlot, -90, 0);
  int less = whole;
  EXPECT_TRUE(Until([&] { return (less = LineSeen(Plot()).pixels) < whole * 3 / 4; }));
  EXPECT_TRUE(Until([&] { return LineSeen(Plot()).pixels > less + 10; }));
}

// ---- options ----------------------------------------------------------------------------------------------

TEST_F(Journey, AColourThatIsSavedIsThereBehindARestart) {
  constexpr int kRusty = 0xC83C14;
  auto viewer = StartOnDemonstration();
  Choose(kFileMenu, kOptionsEntry);
  TypeBackground(BackgroundBoxes(), {"200", "60", "20"});
  const std::vector<Place> buttons = ButtonsOf(PanelPlace());
  ASSERT_FALSE(buttons.empty());
  Click(buttons.front());
  EXPECT_TRUE(Until([&] { return BackgroundIs(kRusty); }));
  ClosePanel();
  Choose(kFileMenu, kExitEntry);
  EXPECT_EQ(viewer->Wait(std::chrono::seconds(10)), 0);
  EXPECT_THAT(ContentsOfFile(run_.File(kSettings)), HasSubstr("Set26.00=200"));

  viewer = Start(SmallPlot("Restart"));
  EXPECT_TRUE(Until([&] { return BackgroundIs(kRusty); }));
}

// ---- pictures ---------------------------------------------------------------------------------------------

TEST_F(Journey, TheCameraTakesTheImageThatStandsOnTheScreen) {
  const auto viewer = StartOn(SmallPlot("Image"));
  const PixelImage plot = SettledPlot();
  ClickTool(kCameraTool);
  ASSERT_TRUE(Until([this] { return Images().size() == 1; }));
  const std::string bytes = ContentsOfFile(Images().front());
  ASSERT_GT(bytes.size(), 58U);
  const auto number = [&](std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) + 256 * static_cast<unsigned char>(bytes[at + 1]);
  };
  EXPECT_EQ(bytes.substr(0, 2), "BM");
  EXPECT_EQ(number(10), 58) << "where the pixels begin";
  EXPECT_EQ(number(18), plot.width);
  EXPECT_EQ(number(22), plot.height);
  EXPECT_EQ(bytes.size(), 58U + plot.rgb.size());
  ASSERT_EQ(run_.Run("/usr/bin/convert", "'" + Images().front() + "' PNG24:image.png").status, 0);
  EXPECT_FALSE(Differ(Picture("image.png"), plot));
  EXPECT_TRUE(Until([this] { return ContentsOfFile(run_.File("opened")) == run_.File("images/") + "\n"; }));
}

TEST_F(Journey, AMovieOfFiveFramesHasFiveFiles) {
  const auto viewer = StartOn(SmallPlot("Movie"));
  ClickTool(kMovieTool);
  const std::string title = "Movie sequence";
  ASSERT_TRUE(FocusOn(title));
  SettledScreen();
  Keys("Home Right Right Right Right Right");
  const std::vector<Place> buttons = ButtonsOf(PlaceOf(title));
  ASSERT_EQ(buttons.size(), 3U);
  Click(buttons[0]);
  EXPECT_TRUE(Until([this] { return Images().size() >= 5; }));
  std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  Click(buttons[2]);
  EXPECT_TRUE(Until([&] { return !IsOpen(title); }));
  const std::vector<std::string> images = Images();
  ASSERT_EQ(images.size(), 5U);
  for (std::size_t frame = 0; frame < images.size(); ++frame)
    EXPECT_TRUE(images[frame].ends_with(std::to_string(frame + 1) + ".bmp")) << images[frame];
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(Journey, AMovieThatIsEndedMakesNoMoreFiles) {
  const auto viewer = StartOn(SmallPlot("Long movie"));
  ClickTool(kMovieTool);
  const std::string title = "Movie sequence";
  ASSERT_TRUE(FocusOn(title));
  SettledScreen();
  const std::vector<Place> buttons = ButtonsOf(PlaceOf(title));
  ASSERT_EQ(buttons.size(), 3U);
  Click(buttons[0]);
  EXPECT_TRUE(Until([this] { return Images().size() >= 2; }));
  Click(buttons[2]);
  EXPECT_TRUE(Until([&] { return !IsOpen(title); }));
  std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  const std::size_t made = Images().size();
  EXPECT_LT(made, 10U);
  std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  EXPECT_EQ(Images().size(), made);
}

// ---- files, specification, help ---------------------------------------------------------------------------

TEST_F(Journey, AnotherFileIsOpenedWithTheChooser) {
  SmallPlot("First of two");
  const std::string last = SmallPlot("Last of two");
  const auto viewer = StartOnDemonstration();
  OpenLastFile();
  EXPECT_TRUE(Until([&] { return TitleIsThatOf(last); }));
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(Journey, ATypedSpecificationStaysInItsBox) {
  const auto viewer = StartOnDemonstration();
  const PixelImage screen = Screen();
  const Place plot = PlotOn(screen);
  constexpr int kPurple = 0x8000FF, kWhite = 0xFFFFFF;
  constexpr int kBelowPlot = 52, kLeastLetters = 10;
  const Place strip = {0, plot.y + plot.height, 400, screen.height - plot.y - plot.height};
  Click({8, plot.y + plot.height + kBelowPlot - 4, 8, 8});
  EXPECT_TRUE(Until([&] { return CountOf(Screen(), strip, kPurple) > 1000; })) << "the box opens";
  Type("=MAX(A2:C60)");
  const auto letters = [&] { return CountOf(Screen(), strip, kWhite); };
  EXPECT_TRUE(Until([&] { return letters() > kLeastLetters; }));
  Keys("Return");
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  EXPECT_GT(letters(), kLeastLetters);
  Keys("Page_Up");
  EXPECT_TRUE(Until([&] { return CountOf(Screen(), strip, kPurple) == 0; })) << "the plot has the keyboard";
  EXPECT_TRUE(viewer->Runs());
}

TEST_F(Journey, TheHelpLeadsToTheDemonstrationAndBackToTheOwnPlotAndColours) {
  constexpr int kRusty = 0xC83C14;
  const std::string own = SmallPlot("My own plot");
  const auto viewer = StartOnDemonstration();
  OpenLastFile();
  EXPECT_TRUE(Until([&] { return TitleIsThatOf(own); }));
  Choose(kFileMenu, kOptionsEntry);
  TypeBackground(BackgroundBoxes(), {"200", "60", "20"});
  ClosePanel();
  EXPECT_TRUE(Until([&] { return BackgroundIs(kRusty); }));
  for (const bool runsDemonstration : {true, false}) {
    Choose(kHelpMenu, 0);
    for (const std::string page : {"^1/4", "^2/4", "^31/4"})
      ASSERT_TRUE(Answer(page, "Return")) << page;
    ASSERT_TRUE(Answer("^4/4", runsDemonstration ? "Return" : "Escape"));
    if (runsDemonstration) {
      ASSERT_TRUE(Answer("Demo default", "Return"));
    }
    ASSERT_TRUE(FocusOn("^Quorb"));
    if (runsDemonstration) {
      EXPECT_TRUE(Until([&] { return TitleIsThatOf(QUORB_DEMONSTRATION); }));
    } else {
      EXPECT_TRUE(Until([&] { return TitleIsThatOf(own, kRusty); }));
    }
  }
  EXPECT_TRUE(viewer->Runs());
}

// ---- two programs -----------------------------------------------------------------------------------------

TEST_F(Journey, TheLineForPresentationsShowsTheSamePlotFromAnyDirectory) {
  const std::string directory = "my talks, $5 each";
  std::filesystem::create_directory(run_.File(directory));
  const std::string file = run_.File(directory + "/Slide show.qbv");
  std::filesystem::rename(SmallPlot("Slide show"), file);
  std::string line;
  {
    const auto viewer = StartOnDemonstration(directory);
    OpenLastFile();
    EXPECT_TRUE(Until([&] { return TitleIsThatOf(file); }));
    Choose(kFileMenu, kSlideShowEntry);
    EXPECT_TRUE(Until([this] { return PanelPlace().width > 100; }));
    // Ctrl+C takes what is selected: the line.
    SettledScreen();
    Keys("ctrl+c");
    line = ClipboardText(display_.Name());
  }
  EXPECT_THAT(line, HasSubstr("Slide show.qbv"));
  const auto viewer = std::make_unique<Background>(std::vector<std::string>{"sh", "-c", line}, Environment());
  ASSERT_TRUE(FocusOn("^Quorb"));
  EXPECT_TRUE(Until([&] { return TitleIsThatOf(file); }));
  const PixelImage plot = SettledPlot();
  EXPECT_LE(FindDifference(plot, Rendered(file, plot.height)).share, kTolerance);
}

// Two windows lie on each other where no window manager is: each is brought to the front for its turn.
TEST_F(Journey, TwoProgramsShareTheirSettingsAndTheLaterValueStays) {
  const std::string file = SmallPlot("Two at once");
  std::vector<std::unique_ptr<Background>> viewers;
  std::vector<std::string> windows;
  const auto ids = [this] {
    std::istringstream answer(Search("^Quorb").out);
    return std::set<std::string>(std::istream_iterator<std::string>(answer), {});
  };
  for (int viewer = 0; viewer < 2; ++viewer) {
    const std::set<std::string> before = ids();
    viewers.push_back(Start(file));
    ASSERT_TRUE(Until([&] { return ids().size() > before.size(); }));
    for (const std::string& id : ids())
      if (!before.contains(id)) windows.push_back(id);
    ASSERT_EQ(windows.size(), static_cast<std::size_t>(viewer + 1));
    EXPECT_TRUE(Until([&] { return TitleIsThatOf(file); }));
  }
  const char* const blues[] = {"111", "222"};
  for (std::size_t viewer = 0; viewer < 2; ++viewer) {
    Drive("windowraise " + windows[viewer] + " windowfocus --sync " + windows[viewer]);
    ASSERT_TRUE(Until([&] { return TitleIsThatOf(file); }));
    ClickTool(kOptionsTool);
    TypeBackground(BackgroundBoxes(), {"10", "20", blues[viewer]});
    const std::vector<Place> buttons = ButtonsOf(PanelPlace());
    ASSERT_FALSE(buttons.empty());
    Click(buttons.front());
    EXPECT_TRUE(Until([&] { return BackgroundIs(0x0A1400 + std::atoi(blues[viewer])); }));
  }
  for (std::size_t viewer = 0; viewer < 2; ++viewer) {
    EXPECT_TRUE(viewers[viewer]->Runs());
    ASSERT_TRUE(CloseWindow(display_.Name(), std::stoul(windows[viewer])));
    EXPECT_EQ(viewers[viewer]->Wait(std::chrono::seconds(10)), 0);
  }
  EXPECT_THAT(ContentsOfFile(run_.File(kSettings)), HasSubstr("Set28.00=222"));
  const auto third = Start(file);
  EXPECT_TRUE(Until([&] { return BackgroundIs(0x0A14DE); }));
}

}  // namespace
}  // namespace quorb
