#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QOpenGLWidget>
#include <QTest>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ActiveWindow.h"
#include "ClassGl.h"
#include "Clock.h"
#include "CommExcl.h"
#include "DayClock.h"
#include "Desktop.h"
#include "LoaderLink.h"
#include "PlotData.h"
#include "ProgramRun.h"
#include "QtDesktop.h"
#include "QtDialogs.h"
#include "QtSettings.h"
#include "RunState.h"
#include "SettingsStore.h"
#include "SystemDayClock.h"
#include "SystemDirectories.h"
#include "SystemFiles.h"
#include "SystemRegion.h"
#include "UserFlag.h"
#include "ViewerWindow.h"
#include "frmDialog.h"
#include "frmMain.h"
#include "frmVideo.h"

namespace quorb {

/// Dialogs of the toolkit, but a box that nobody awaits is a failure of the test.
class NoBoxes : public QtDialogs {
 public:
  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int) override {
    ADD_FAILURE() << "box '" << title << "': " << prompt;
    return BoxAnswer::ok;
  }
};

/// The real window on the plot of a file, wired as the program wires it.
class OpenWindow : public testing::Test {
 protected:
  using Clock = std::chrono::steady_clock;

  OpenWindow() {
    SetDialogs(&dialogs);
    SetSettings(&settings);
    SetFileAccess(&files);
    SetRegionalSettings(&region);
    SetDesktop(&desktop);
    SetDayClock(&clock);
    SetDirectories(&directories);
    StartRunState();
    RedrawState = 0;
  }

  ~OpenWindow() override {
    window.reset();
    TheScene.reset();
    glxCtl1 = nullptr;
    frmMain.reset();
    ForgetVideoWindow();
    ForgetFileDialog();
    ForgetActiveWindow();
    SetSceneWindow(nullptr);
    SetLoaderWindow(nullptr);
    SetDayClock(nullptr);
    SetDirectories(nullptr);
  }

  /// Shows a data file and waits for the first frames of its plot.
  void Open(const std::string& file) {
    window = std::make_unique<ViewerWindow>();
    window->frameShown = [this] { frameTimes.push_back(Clock::now()); };
    window->Load(file);
    window->show();
    plot = window->findChild<QOpenGLWidget*>();
    ASSERT_NE(plot, nullptr);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ASSERT_TRUE(QTest::qWaitFor([] { return FirstActivated == 1 && TheScene->ResetDone; }, 60000));
    ASSERT_GT(LastLoad().rows, 0);
  }

  /// Shows a plot of four points, which lie between the origin and 80 scene units from it, and waits until
  /// its time has run to the end.
  void OpenSmallPlot() {
    run.Write("small plot.qbv", DataFileText("=0.01+LEN(\"Small kmday\")+MAX(A2:C5)+MAX(D2:D5)",
                                             "1000\t0\t0\t0\r\n"
                                             "0\t2000\t0\t1\r\n"
                                             "0\t3000\t500\t2\r\n"
                                             "4000\t0\t0\t3\r\n"));
    Open(run.File("small plot.qbv"));
    ASSERT_TRUE(QTest::qWaitFor([] { return TheScene->CURRINDEXI == LastPoint; }));
    Settle();
  }

  /// Waits until no frames come any more.
  void Settle() {
    const bool settled = QTest::qWaitFor(
        [this] {
          return !frameTimes.empty() && Clock::now() - frameTimes.back() > std::chrono::milliseconds(300);
        },
        10000);
    EXPECT_TRUE(settled);
  }

  /// A place of the plot in the window.
  QPoint At(int x, int y) const { return plot->mapTo(window.get(), QPoint(x, y)); }

  void Press(Qt::MouseButton button, int x, int y) const {
    QTest::mousePress(window->windowHandle(), button, {}, At(x, y));
  }
  void MoveTo(int x, int y) const { QTest::mouseMove(window->windowHandle(), At(x, y)); }
  void Release(Qt::MouseButton button, int x, int y) const {
    QTest::mouseRelease(window->windowHandle(), button, {}, At(x, y));
  }
  void Key(Qt::Key key) const { QTest::keyClick(window->windowHandle(), key); }

  void ExpectWindow(double left, double right, double bottom, double top) const {
    double found[4] = {};
    glxCtl1->Camera().GetOrtho(found[0], found[1], found[2], found[3]);
    constexpr double kSinglePrecision = 1e-4;
    EXPECT_NEAR(found[0], left, kSinglePrecision);
    EXPECT_NEAR(found[1], right, kSinglePrecision);
    EXPECT_NEAR(found[2], bottom, kSinglePrecision);
    EXPECT_NEAR(found[3], top, kSinglePrecision);
  }

  void ExpectEye(double x, double y, double z) const {
    float found[3] = {};
    glxCtl1->Camera().GetPosition(found[0], found[1], found[2]);
    constexpr double kSinglePrecision = 1e-3;
    EXPECT_NEAR(found[0], x, kSinglePrecision);
    EXPECT_NEAR(found[1], y, kSinglePrecision);
    EXPECT_NEAR(found[2], z, kSinglePrecision);
  }

  ProgramRun run;
  NoBoxes dialogs;
  QtSettings settings;
  SystemFiles files;
  SystemRegion region;
  QtDesktop desktop;
  SystemDayClock clock;
  SystemDirectories directories;
  std::unique_ptr<ViewerWindow> window;
  QOpenGLWidget* plot = nullptr;
  std::vector<Clock::time_point> frameTimes;
};

}  // namespace quorb
