#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "PanelWindow.h"

namespace quorb {
namespace {

/// The panels in the window at the size of the whole screen. The last test runs these on other screens.
class PanelGeometry : public PanelWindow {
 protected:
  void OpenOnWholeScreen() {
    OpenSmallPlot();
    const QSize size = QGuiApplication::primaryScreen()->size();
    window->move(0, 0);
    window->resize(size);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->size() == size && plot->width() == size.width(); }));
  }

  static bool IsPart(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QScrollBar*>(&widget) != nullptr;
  }
  static std::vector<QWidget*> PartsOf(const QWidget& panel) {
    std::vector<QWidget*> parts;
    for (QWidget* part : panel.findChildren<QWidget*>()) {
      if (part->isVisible() && IsPart(*part)) parts.push_back(part);
    }
    return parts;
  }
  static QSize NeededSize(const QWidget& part) {
    if (qobject_cast<const QScrollBar*>(&part) != nullptr) return {60, 10};
    const auto* const label = qobject_cast<const QLabel*>(&part);
    if (label != nullptr && label->wordWrap()) return {100, label->heightForWidth(label->width())};
    const bool isWide = part.sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    return isWide ? QSize(80, part.sizeHint().height()) : part.sizeHint();
  }

  /// Each part stands whole in the panel, and has the room that its text needs.
  void ExpectAllReadable(const QString& name, std::size_t atLeast) const {
    const QWidget& panel = Find(name);
    QTest::qWait(50);
    EXPECT_TRUE(panel.parentWidget()->rect().contains(panel.geometry())) << name.toStdString();
    const std::vector<QWidget*> parts = PartsOf(panel);
    EXPECT_GE(parts.size(), atLeast);
    for (const QWidget* part : parts) {
      const std::string which = part->objectName().toStdString() + " " + part->accessibleName().toStdString();
      // What another one covers, or the panel's edge cuts off, is not visible.
      EXPECT_EQ(part->visibleRegion(), QRegion(part->rect())) << which;
      EXPECT_GE(part->width(), NeededSize(*part).width()) << which;
      EXPECT_GE(part->height(), NeededSize(*part).height()) << which;
    }
  }
  static void ShowAllThatMayBeHidden() {
    MainWindow& main = *frmMain;
    for (Control* control : std::initializer_list<Control*>{
             &main.Check1[10], &main.Check4, &main.Check5, &main.Check6, &main.Check11, &main.Text4[4],
             &main.Text13, &main.Text15, &main.HScroll3, &main.Label1[12]})
      control->visible = true;
    main.Label1[1].caption = "Length Axis Factor/Cubic";
  }
};

TEST_F(PanelGeometry, ThePlainPanelIsReadWhole) {
  OpenOnWholeScreen();
  OpenPanel();
  ExpectAllReadable("Options", 30);
  ShowAllThatMayBeHidden();
  ExpectAllReadable("Options", 40);
}

TEST_F(PanelGeometry, TheExtendedPanelIsReadWhole) {
  OpenOnWholeScreen();
  OpenPanel();
  ExtendPanel();
  ExpectAllReadable("Options", 60);
  ShowAllThatMayBeHidden();
  ExpectAllReadable("Options", 70);
  EXPECT_LE(Find("Options").height(), 646);
}

TEST_F(PanelGeometry, ThePanelOfTheSlideShowIsReadWhole) {
  OpenOnWholeScreen();
  frmMain->mnuFRunPowerPoint.clicked();
  ExpectAllReadable("Frame1", 11);
}

TEST_F(PanelGeometry, TheKeyboardGoesThroughThePanelFromTopToBottom) {
  OpenOnWholeScreen();
  OpenPanel();
  ExtendPanel();
  ShowAllThatMayBeHidden();
  QTest::qWait(50);
  QWidget& panel = Find("Options");
  panel.setFocus();
  std::vector<std::pair<int, int>> way;
  constexpr int kSameRow = 12;
  int row = -kSameRow;
  for (int i = 0; i < 100; ++i) {
    Key(Qt::Key_Tab);
    const QWidget* const stop = window->focusWidget();
    if (!panel.isAncestorOf(stop)) break;
    const QPoint place = stop->mapTo(&panel, stop->rect().center());
    if (place.y() > row + kSameRow) row = place.y();
    // The two colour columns are read one behind the other.
    const bool isColour =
        stop->objectName().startsWith("Text5") || stop->accessibleName().startsWith("Choose");
    way.emplace_back(isColour ? 0 : row, place.x());
    EXPECT_FALSE(stop->toolTip().isEmpty() && stop->accessibleName().isEmpty() &&
                 stop->objectName().isEmpty());
  }
  EXPECT_GE(way.size(), 55U);
  way.erase(std::remove_if(way.begin(), way.end(), [](const auto& stop) { return stop.first == 0; }),
            way.end());
  EXPECT_TRUE(std::is_sorted(way.begin(), way.end()));
}

/// Runs the tests above in a process of its own, on a screen of that size, drawn that much larger.
void RunOnScreen(const std::string& screen, const std::string& scale) {
  Background tests({"/proc/self/exe", "--gtest_filter=PanelGeometry.*", "--gtest_brief=1"},
                   {"QUORB_TEST_SCREEN=" + screen, "QT_SCALE_FACTOR=" + scale});
  EXPECT_EQ(tests.Wait(std::chrono::minutes(3)), 0);
}

TEST(PanelScreens, ASmallScreen) {
  RunOnScreen("1366x768", "1");
}
TEST(PanelScreens, ALargeScreen) {
  RunOnScreen("2560x1440", "1");
}
TEST(PanelScreens, ALargeScreenAtTwiceTheSize) {
  RunOnScreen("2560x1440", "2");
}

}  // namespace
}  // namespace quorb
