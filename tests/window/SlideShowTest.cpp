#include <QImage>
#include <QLabel>
#include <QScreen>
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "PanelWindow.h"

namespace quorb {
namespace {

/// The desktop of the program that users start: this test is another one.
class ViewerDesktop : public QtDesktop {
 public:
  std::string ProgramDirectory() const override {
    return std::filesystem::path(QUORB_VIEWER_PROGRAM).parent_path().string();
  }
  std::string ProgramName() const override {
    return std::filesystem::path(QUORB_VIEWER_PROGRAM).filename().string();
  }
};

class SlideShow : public PanelWindow {
 protected:
  void OpenSlidePanel() {
    ShowMenus();
    QMenu* const menu = OpenMenu("mnuFile");
    ASSERT_NE(menu, nullptr);
    Choose(*menu, "mnuFRunPowerPoint");
    ASSERT_TRUE(Find("Frame1").isVisible());
  }
  static std::string Copied() { return QGuiApplication::clipboard()->text().toStdString(); }

  /// What stands on the screen where another program shows its window.
  QImage ScreenOf(const VirtualDisplay& display) const {
    run.Run("/usr/bin/env", "DISPLAY=" + display.Name() + " import -window root screen.png");
    return QImage(QString::fromStdString(run.File("screen.png"))).convertToFormat(QImage::Format_RGB32);
  }
  std::vector<std::string> EnvironmentOn(const VirtualDisplay& display) const {
    return {"DISPLAY=" + display.Name(), "XDG_CONFIG_HOME=" + run.File("config"),
            "XDG_DATA_HOME=" + run.File("data")};
  }

  ViewerDesktop viewer;
};

TEST_F(SlideShow, TheMenuShowsTheLineSelectedAndReadyToBeCopied) {
  OpenSmallPlot();
  OpenSlidePanel();
  const QLineEdit& line = Find<QLineEdit>("Text1");
  EXPECT_EQ(line.selectedText(), line.text());
  EXPECT_TRUE(line.hasFocus());
  EXPECT_TRUE(line.isReadOnly());
  EXPECT_TRUE(line.text().endsWith("\" \"" + QString::fromStdString(run.File("small plot.qbv")) + "\""));
  QGuiApplication::clipboard()->setText("other");
  QTest::keyClick(window->windowHandle(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Copied(), line.text().toStdString());
}

TEST_F(SlideShow, TheButtonCopiesTheLineAndTheOtherOneClosesThePanel) {
  OpenSmallPlot();
  OpenSlidePanel();
  QGuiApplication::clipboard()->setText("other");
  ClickOn(Find("Command4"));
  EXPECT_EQ(Copied(), TextOf("Text1"));
  ClickOn(Find("Command5"));
  EXPECT_FALSE(Find("Frame1").isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return plot->hasFocus(); }));
}

TEST_F(SlideShow, ThePanelCannotBeDraggedAndItsTitleOffersNoDrag) {
  OpenSmallPlot();
  OpenSlidePanel();
  const QLabel& title = *Find("Frame1").findChild<QLabel*>();
  EXPECT_EQ(title.text(), "To run in PowerPoint");
  EXPECT_EQ(title.cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(Find("Options").findChild<QLabel*>()->cursor().shape(), Qt::SizeAllCursor);
}

TEST_F(SlideShow, InANarrowWindowTheWholePanelIsReached) {
  OpenSmallPlot();
  frmMain->mnuFRunPowerPoint.clicked();
  const QWidget& panel = Find("Frame1");
  const QWidget& close = Find("Command5");
  EXPECT_EQ(panel.x(), 40);
  window->resize(420, 800);
  ASSERT_TRUE(QTest::qWaitFor([&] { return plot->width() == 420; }));
  EXPECT_TRUE(panel.parentWidget()->rect().contains(panel.geometry()));
  EXPECT_EQ(close.visibleRegion(), QRegion(close.rect()));
  ClickOn(close);
  EXPECT_FALSE(panel.isVisible());
}

TEST_F(SlideShow, BothPicturesAreDrawnAndThePointerHidesTheFirst) {
  OpenSmallPlot();
  MovePointerTo(*window, {1200, 700});
  frmMain->mnuFRunPowerPoint.clicked();
  for (const char* name : {"Picture1(0)", "Picture1(1)"}) {
    const QLabel& picture = Find<QLabel>(name);
    EXPECT_TRUE(picture.isVisible()) << name;
    EXPECT_FALSE(picture.pixmap(Qt::ReturnByValue).isNull()) << name;
  }
  MovePointerTo(Find("Frame1"), {300, 10});
  EXPECT_FALSE(Find("Picture1(0)").isVisible());
  EXPECT_TRUE(Find("Picture1(1)").isVisible());
}

/// The greatest difference of two pictures of one size in any colour of any pixel, as a part of the pixels
/// that differ by more than a little.
double DifferentPart(const QImage& a, const QImage& b) {
  int different = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor left = a.pixelColor(x, y), right = b.pixelColor(x, y);
      const int most = std::max({std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                                 std::abs(left.blue() - right.blue())});
      different += most > 24 ? 1 : 0;
    }
  }
  return static_cast<double>(different) / (a.width() * a.height());
}

TEST_F(SlideShow, TheLinePastedIntoAShellShowsTheSamePlot) {
  SetDesktop(&viewer);
  // Far outside the Earth.
  run.Write("wide plot.qbv", DataFileText("=0.01+LEN(\"Wide kmday\")+MAX(A2:C5)",
                                          "30000\t0\t0\r\n0\t30000\t0\r\n"
                                          "-30000\t0\t20000\r\n0\t-20000\t0\r\n"));
  Open(run.File("wide plot.qbv"));
  // A window that was started on a file has no menus.
  frmMain->mnuFRunPowerPoint.clicked();
  ClickOn(Find("Command4"));
  ClickOn(Find("Command5"));
  const QRect place(plot->mapToGlobal(QPoint(0, 0)), plot->size());
  Settle();
  const QImage here = window->screen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);

  const VirtualDisplay display(here.width(), here.height());
  ASSERT_TRUE(display.Works());
  const Background shell({"sh", "-c", "exec " + Copied()}, EnvironmentOn(display));
  QImage there;
  double different = 1;
  EXPECT_TRUE(QTest::qWaitFor(
      [&] {
        QTest::qWait(500);
        there = ScreenOf(display);
        if (there.size() == here.size()) different = DifferentPart(here.copy(place), there.copy(place));
        return different < 0.002;
      },
      30000))
      << "part that differs: " << different;
  EXPECT_TRUE(shell.Runs());

  // The plot itself is in the picture.
  QImage empty = here.copy(place);
  empty.fill(empty.pixelColor(5, empty.height() / 2));
  EXPECT_GT(DifferentPart(here.copy(place), empty), 0.004);
  SetDesktop(&desktop);
}

}  // namespace
}  // namespace quorb
