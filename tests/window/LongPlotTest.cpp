#include <algorithm>
#include <cmath>
#include <iostream>

#include <QMouseEvent>

#include "OpenWindow.h"
#include "VirtualDisplay.h"

namespace quorb {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// Times from the display's press of a mouse button to its arrival at the plot.
class PressDelays : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonPress) return false;
    // The display's clock counts milliseconds of the computer's steady clock, in 32 bits.
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    const auto present =
        static_cast<std::uint32_t>(std::chrono::floor<std::chrono::milliseconds>(now).count());
    const auto pressed = static_cast<std::uint32_t>(static_cast<QMouseEvent*>(event)->timestamp());
    milliseconds.push_back(static_cast<std::int32_t>(present - pressed));
    return false;
  }
  std::vector<double> milliseconds;
};

/// A plot of as many rows as one can have.
class LongPlot : public OpenWindow {
 protected:
  void OpenLongPlot() {
    constexpr int kRows = 1048576;
    std::string rows;
    rows.reserve(std::size_t{kRows} * 48);
    char row[96];
    for (int i = 0; i < kRows; ++i) {
      const double angle = i * 0.001;
      const int length = std::snprintf(row, sizeof row, "%.3f\t%.3f\t%.3f\t%.6f\r\n", 7000 * std::cos(angle),
                                       7000 * std::sin(angle), i * 0.005, i / 86400.0);
      rows.append(row, static_cast<std::size_t>(length));
    }
    run.Write("long.qbv", DataFileText("=0.01+LEN(\"Long kmday\")+MAX(A2:C1048577)+MAX(D2:D1048577)", rows));
    Open(run.File("long.qbv"));
    ASSERT_EQ(LastPoint, kRows - 1);
  }

  /// Sets the time close to the last row and lets it run on, a row a pass.
  void RunFrom(int row) {
    frmMain->HScroll2.value = 0;
    RedrawState = 0;
    TheScene->CURRINDEXI = row;
  }

  double LongestFrame(std::size_t from) const {
    double longest = 0;
    for (std::size_t i = from + 1; i < frameTimes.size(); ++i)
      longest = std::max(longest, Milliseconds(frameTimes[i] - frameTimes[i - 1]).count());
    return longest;
  }
};

TEST_F(LongPlot, AClickArrivesWithinTwoFramesWhileTheTimeRuns) {
  OpenLongPlot();
  RunFrom(1000000);
  const std::size_t before = frameTimes.size();
  ASSERT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > before + 3; }, 60000));
  const std::size_t first = frameTimes.size();
  const int firstRow = TheScene->CURRINDEXI;

  PressDelays delays;
  plot->installEventFilter(&delays);
  std::vector<std::string> clicks = {"xdotool"};
  constexpr std::size_t kClicks = 12;
  for (std::size_t i = 0; i < kClicks; ++i) {
    const QPoint place = plot->mapToGlobal(QPoint(200 + 50 * static_cast<int>(i), 300));
    clicks.insert(clicks.end(), {"mousemove", std::to_string(place.x()), std::to_string(place.y()), "click",
                                 "1", "sleep", "0.237"});
  }
  {
    const Background user(clicks, {});
    ASSERT_TRUE(QTest::qWaitFor([&] { return delays.milliseconds.size() == kClicks; }, 60000));
  }
  plot->removeEventFilter(&delays);
  ASSERT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > first; }, 60000));

  EXPECT_EQ(TheScene->MouseDownX, 200 + 50 * static_cast<int>(kClicks - 1));
  EXPECT_EQ(TheScene->MouseDownY, 300);
  EXPECT_GT(TheScene->CURRINDEXI, firstRow);
  EXPECT_LT(TheScene->CURRINDEXI, LastPoint);
  const double longestFrame = LongestFrame(first - 1);
  const double longestDelay = *std::max_element(delays.milliseconds.begin(), delays.milliseconds.end());
  RecordProperty("LongestFrameMilliseconds", std::to_string(longestFrame));
  RecordProperty("LongestDelayMilliseconds", std::to_string(longestDelay));
  std::cout << "longest frame " << longestFrame << " ms, longest delay of a click " << longestDelay << " ms, "
            << frameTimes.size() - first << " frames\n";
  const double clockStep = 10;
  EXPECT_GE(*std::min_element(delays.milliseconds.begin(), delays.milliseconds.end()), -clockStep);
  EXPECT_LE(longestDelay, 2 * longestFrame);
}

}  // namespace
}  // namespace quorb
