#include "OpenWindow.h"

namespace quorb {
namespace {

using Idle = OpenWindow;

TEST_F(Idle, WithTheAnimationOnAndNothingChangingNoFramesAreDrawn) {
  OpenSmallPlot();
  ASSERT_TRUE(glxCtl1->Animation().Enabled());
  const std::size_t frames = frameTimes.size();
  QTest::qWait(1500);
  EXPECT_EQ(frameTimes.size(), frames);
}

TEST_F(Idle, AChangedOptionMakesFramesComeAndThenTheyStopAgain) {
  OpenSmallPlot();
  const std::size_t frames = frameTimes.size();
  USERFLAG.ThicknessLinePlot = 4;
  ASSERT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > frames; }));
  Settle();
  const std::size_t settled = frameTimes.size();
  EXPECT_LE(settled - frames, 4U);
  QTest::qWait(500);
  EXPECT_EQ(frameTimes.size(), settled);
}

TEST_F(Idle, AnotherRowMakesFramesComeAndThenTheyStopAgain) {
  OpenSmallPlot();
  const std::size_t frames = frameTimes.size();
  RedrawState = 1;
  TheScene->CURRINDEXI = 1;
  ASSERT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > frames; }));
  Settle();
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
  const std::size_t held = frameTimes.size();
  RedrawState = 0;
  ASSERT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > held; }));
  EXPECT_EQ(TheScene->CURRINDEXI, LastPoint);
}

TEST_F(Idle, FramesComeNoFasterThanSixtyASecond) {
  OpenSmallPlot();
  const std::size_t frames = frameTimes.size();
  const auto start = Clock::now();
  double seconds = 0, drawn = 0;
  while (seconds < 2 || (drawn < 10 && seconds < 30)) {
    USERFLAG.ThicknessLinePlot = USERFLAG.ThicknessLinePlot == 1 ? 2 : 1;
    QTest::qWait(5);
    seconds = std::chrono::duration<double>(Clock::now() - start).count();
    drawn = static_cast<double>(frameTimes.size() - frames);
  }
  EXPECT_GE(drawn, 10);
  // A tick is 16 milliseconds; two frames at its ends.
  EXPECT_LE(drawn, seconds * 62.5 + 2);
}

}  // namespace
}  // namespace quorb
