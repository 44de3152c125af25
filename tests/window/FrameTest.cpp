#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

#include "DrivenWindow.h"

namespace quorb {
namespace {

class Frame : public DrivenWindow {
 protected:
  QRect PlaceOf(const QWidget& widget) const {
    return {widget.mapTo(window.get(), QPoint(0, 0)), widget.size()};
  }
  void Resize(int width, int height) {
    window->resize(width, height);
    ASSERT_TRUE(QTest::qWaitFor([&] { return plot->width() == width; }));
    QTest::qWait(50);
  }
  /// What a person sees of the frame, without the widgets that hold others.
  std::vector<QWidget*> VisibleParts() const {
    std::vector<QWidget*> parts = {plot, &Find("Text21"), &Find("Toolbar1"), &Find("ToolBoptions")};
    for (QWidget* part : Find("StatusBar1").findChildren<QWidget*>()) {
      const bool shown =
          qobject_cast<QLabel*>(part) != nullptr || qobject_cast<QScrollBar*>(part) != nullptr ||
          qobject_cast<QComboBox*>(part) != nullptr || qobject_cast<QPushButton*>(part) != nullptr;
      if (shown && part->isVisible()) parts.push_back(part);
    }
    return parts;
  }
};

TEST_F(Frame, NothingOverlapsOrIsClippedInAnySizeOfWindow) {
  OpenSmallPlot();
  ClickTool("ToolBoptions", 1);
  const QSize sizes[] = {{1280, 840}, {1366, 728}, {1280, 680}, {960, 600}, {800, 500}};
  for (const QSize& size : sizes) {
    Resize(size.width(), size.height());
    const auto parts = VisibleParts();
    ASSERT_GT(parts.size(), 15U);
    for (std::size_t i = 0; i < parts.size(); ++i) {
      const std::string name = parts[i]->objectName().toStdString() + " at " + std::to_string(size.width());
      EXPECT_TRUE(window->rect().contains(PlaceOf(*parts[i]))) << name;
      EXPECT_GE(parts[i]->height(), std::min(parts[i]->minimumSizeHint().height(), 12)) << name;
      for (std::size_t j = i + 1; j < parts.size(); ++j)
        EXPECT_FALSE(PlaceOf(*parts[i]).intersects(PlaceOf(*parts[j])))
            << name << " and " << parts[j]->objectName().toStdString();
    }
    EXPECT_GT(plot->height(), size.height() / 2);
  }
}

TEST_F(Frame, EachBarIsUnderThePointerWithAndWithoutItsNeighbours) {
  OpenSmallPlot();
  const auto expectBars = [this](const std::string& when) {
    int shown = 0;
    for (QScrollBar* bar : window->findChildren<QScrollBar*>()) {
      if (!bar->isVisible() || bar->window() != window.get() || bar->objectName().isEmpty()) continue;
      ++shown;
      for (const int part : {1, 2, 3}) {
        const QPoint at = bar->mapTo(window.get(), QPoint(bar->width() * part / 4, bar->height() / 2));
        EXPECT_EQ(window->childAt(at), bar) << bar->objectName().toStdString() << " " << when;
      }
    }
    EXPECT_GT(shown, 3) << when;
  };
  expectBars("at the start");
  ClickTool("ToolBoptions", 1);
  expectBars("with the satellite");
  ClickTool("ToolBoptions", 2);
  expectBars("without the cube");
  ClickTool("ToolBoptions", 1);
  ClickTool("ToolBoptions", 2);
  expectBars("with the cube in the place of the satellite");
}

TEST_F(Frame, TheTextsOfTheBarsAreReadWhole) {
  OpenSmallPlot();
  ClickTool("ToolBoptions", 1);
  for (const char* name : {"Text2", "Text3", "Text10", "Text16", "Text18"}) {
    const QLabel& label = Find<QLabel>(name);
    EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text())) << name;
  }
}

TEST_F(Frame, ANarrowWindowHasMoreRowsOfBars) {
  OpenSmallPlot();
  Resize(1280, 800);
  const int wide = Find("StatusBar1").height();
  Resize(600, 800);
  const int narrow = Find("StatusBar1").height();
  EXPECT_GT(narrow, wide);
  EXPECT_EQ(PlaceOf(*plot).bottom() + 1, PlaceOf(Find("StatusBar1")).top());
}

TEST_F(Frame, ALongMessageGivesWayAndNothingMoves) {
  OpenSmallPlot();
  const int width = window->width();
  const QRect bar = PlaceOf(Find("ToolBoptions"));
  frmMain->Text21.text = std::string(10000, 'm');
  frmMain->Text14.text = std::string(10000, 'm') + "\r\nnext";
  QTest::qWait(100);
  EXPECT_EQ(window->width(), width);
  EXPECT_EQ(PlaceOf(Find("ToolBoptions")), bar);
  EXPECT_TRUE(window->rect().contains(PlaceOf(Find("Text21"))));
}

TEST_F(Frame, AHigherFormMakesTheWindowHigher) {
  OpenSmallPlot();
  Resize(1000, 600);
  frmMain->form.SetOuterHeight(650 * kTwipsPerPixel);
  EXPECT_TRUE(QTest::qWaitFor([this] { return window->height() == 650; }));
  EXPECT_EQ(frmMain->form.OuterHeight(), 650 * kTwipsPerPixel);
}

TEST_F(Frame, AClickOnAStatusPanelShowsTheOptions) {
  OpenSmallPlot();
  ClickOn(Find("Text14"));
  EXPECT_TRUE(frmMain->Options.visible);
}

TEST_F(Frame, ADoubleClickOnTheMessageShowsTheLogAndOneOnTheLogHidesIt) {
  OpenSmallPlot();
  const QWidget& log = Find("Text20");
  EXPECT_FALSE(log.isVisible());
  DoubleClickOn(Find("Text21"));
  EXPECT_TRUE(log.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.isVisible() && !log.visibleRegion().isEmpty(); }));
  DoubleClickOn(log);
  EXPECT_FALSE(log.isVisible());
}

TEST_F(Frame, TheTabulatorGoesFromThePlotThroughTheBarsToTheSpecification) {
  OpenSmallPlot();
  plot->setFocus();
  std::vector<std::string> way;
  for (int i = 0; i < 60; ++i) {
    Key(Qt::Key_Tab);
    const QWidget* const stop = window->focusWidget();
    if (stop == plot) break;
    way.push_back(stop->objectName().toStdString());
  }
  const auto at = [&way](const std::string& name) {
    return std::find(way.begin(), way.end(), name) - way.begin();
  };
  EXPECT_GT(at("HScroll4"), 18) << "the tools come first";
  EXPECT_LT(at("HScroll4"), at("HScroll1"));
  EXPECT_LT(at("HScroll1"), at("HScroll2"));
  EXPECT_LT(at("HScroll2"), at("Command7"));
  EXPECT_LT(at("Command7"), at("HScroll7"));
  EXPECT_LT(at("HScroll7"), at("HScroll8"));
  EXPECT_LT(at("HScroll8"), at("Combo1"));
  EXPECT_LT(at("Combo1"), static_cast<std::ptrdiff_t>(way.size()));
}

TEST_F(Frame, ABarMovesByPlusAndMinusAndTheArrowsBelongToThePlot) {
  OpenSmallPlot();
  Find("HScroll4").setFocus();
  Key(Qt::Key_Plus);
  Key(Qt::Key_Plus);
  EXPECT_EQ(frmMain->HScroll4.value, 2);
  Key(Qt::Key_Minus);
  EXPECT_EQ(frmMain->HScroll4.value, 1);
  Key(Qt::Key_Right);
  EXPECT_EQ(frmMain->HScroll4.value, 1);
  EXPECT_TRUE(plot->hasFocus());
}

TEST_F(Frame, EveryStopOfTheKeyboardHasANameForThoseWhoDoNotSeeIt) {
  OpenSmallPlot();
  for (const QWidget* stop : window->findChildren<QWidget*>()) {
    const bool isStop = stop->window() == window.get() && (stop->focusPolicy() & Qt::TabFocus) != 0 &&
                        stop->isVisible() && stop->focusProxy() == nullptr;
    if (!isStop) continue;
    const QAccessibleInterface* const access =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(stop));
    ASSERT_NE(access, nullptr);
    EXPECT_FALSE(access->text(QAccessible::Name).isEmpty()) << stop->objectName().toStdString();
  }
}

TEST_F(Frame, TheDesktopTakesATextToTheClipboard) {
  OpenSmallPlot();
  EXPECT_EQ(CurrentDesktop().CopyText("first\nsecond é"), kFaultNone);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("first\nsecond é"));
}

// As a user does who drags the window's edge: the next size comes while the last one is laid out.
TEST_F(Frame, ManySizesInARowDoNoHarm) {
  OpenSmallPlot();
  ShowMenus();
  frmMain->mnuFRunPowerPoint.clicked();
  for (int round = 0; round < 5; ++round) {
    for (const int width : {620, 420, 1000, 420, 900, 350, 1280}) {
      window->resize(width, 800 - 10 * round);
      ASSERT_TRUE(QTest::qWaitFor([&] { return plot->width() == width; }));
    }
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return plot->width() == 1280; }));
  EXPECT_EQ(Find("StatusBar1").geometry().bottom(), Find("StatusBar1").parentWidget()->height() - 1);
}

}  // namespace
}  // namespace quorb
