#include "LogWindow.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class LogWindowTest : public WindowFixture {};

TEST_F(LogWindowTest, ADoubleClickOnTheStatusBarOrTheStripShowsAndHidesTheLog) {
  MainWindow& window = Create();
  for (const auto& doubleClick : {window.StatusBar1.doubleClicked, window.Text21.doubleClicked}) {
    doubleClick();
    EXPECT_TRUE(window.Text20.visible);
    doubleClick();
    EXPECT_FALSE(window.Text20.visible);
  }
}

TEST_F(LogWindowTest, ADoubleClickOnTheLogHidesIt) {
  MainWindow& window = Create();
  window.Text20.visible = true;
  window.Text20.doubleClicked();
  EXPECT_FALSE(window.Text20.visible);
  window.Text20.doubleClicked();
  EXPECT_FALSE(window.Text20.visible);
}

}  // namespace
}  // namespace quorb
