#include <QMenu>
#include <QWidget>

#include "DrivenWindow.h"

namespace quorb {
namespace {

class ShiftStateInWindow : public DrivenWindow {
 protected:
  /// The event of the key itself tells the modifiers as they were before it.
  void HoldAlt() const {
    QTest::keyPress(window->windowHandle(), Qt::Key_Alt, Qt::NoModifier);
    ASSERT_EQ(ShiftState, 4);
    ASSERT_EQ(LastKeyReleased, 0);
  }
  static void ExpectNoKeyHeld() {
    EXPECT_EQ(ShiftState, 0);
    EXPECT_EQ(LastKeyReleased, 1);
  }
};

TEST_F(ShiftStateInWindow, AnotherWindowThatComesToTheFrontTakesTheKeys) {
  OpenSmallPlot();
  QWidget other;
  HoldAlt();
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  ExpectNoKeyHeld();
}

TEST_F(ShiftStateInWindow, AMenuThatOpensTakesTheKeys) {
  OpenSmallPlot();
  ShowMenus();
  HoldAlt();
  QMenu* const menu = OpenMenu("mnuView");
  ASSERT_NE(menu, nullptr);
  ExpectNoKeyHeld();
  menu->close();
}

}  // namespace
}  // namespace quorb
