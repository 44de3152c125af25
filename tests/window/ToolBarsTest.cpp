#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QImage>
#include <QLabel>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "DrivenWindow.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

const char* const kView = "Toolbar1";
const char* const kOption = "ToolBoptions";

class ToolBars : public DrivenWindow {
 protected:
  void ClickWithControl(int position) const {
    QTest::keyPress(window->windowHandle(), Qt::Key_Control);
    ClickTool(kView, position);
    QTest::keyRelease(window->windowHandle(), Qt::Key_Control);
  }
  std::vector<std::string> ShownTools() const {
    std::vector<std::string> names;
    for (const QAction* action : Find<QToolBar>(kView).actions())
      names.push_back(action->objectName().toStdString());
    return names;
  }
};

TEST_F(ToolBars, EveryButtonHasAnIconOfItsOwnAndItsToolTip) {
  OpenSmallPlot();
  std::set<QByteArray> pictures;
  int buttons = 0;
  for (ToolBar* bar : {&frmMain->Toolbar1, &frmMain->ToolBoptions}) {
    for (int position = 1; position <= bar->Positions(); ++position) {
      const QAction& action = ActionOf(bar == &frmMain->Toolbar1 ? kView : kOption, position);
      EXPECT_EQ(action.isSeparator(), bar->Button(position).style == ToolButtonStyle::separator);
      if (action.isSeparator()) continue;
      ++buttons;
      const QImage image = action.icon().pixmap(24, 24).toImage().convertToFormat(QImage::Format_ARGB32);
      ASSERT_FALSE(image.isNull()) << bar->Button(position).key;
      int painted = 0;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
          painted += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
      }
      EXPECT_GT(painted, 40) << bar->Button(position).key;
      pictures.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()),
                                 static_cast<qsizetype>(image.sizeInBytes())));
      EXPECT_EQ(action.text().toStdString(), bar->Button(position).toolTip.Get());
    }
  }
  EXPECT_EQ(buttons, 19);
  EXPECT_EQ(pictures.size(), 19U);
}

TEST_F(ToolBars, TheAxesButtonGoesRoundTheCornersOfTheCube) {
  OpenSmallPlot();
  TheScene->CameraSteps.RealQuadrant = 0;
  const float eyes[4][2] = {{-100, 100}, {-100, -100}, {100, -100}, {100, 100}};
  for (const auto& eye : eyes) {
    ClickTool(kView, 12);
    ExpectEye(eye[0], eye[1], 100);
    ExpectUp(0, 0, 1);
  }
}

TEST_F(ToolBars, WithTheControlKeyTheAxesButtonGoesOverTheCornersTheOtherWay) {
  OpenSmallPlot();
  TheScene->CameraSteps.ViewStep = 0;
  ClickWithControl(12);
  ExpectEye(-100, 100, 100);
  ExpectUp(1, 0, 0);
}

TEST_F(ToolBars, TheKeysXYAndZPutTheirAxisUpward) {
  OpenSmallPlot();
  const struct {
    Qt::Key key;
    float up[3];
  } rows[] = {{Qt::Key_X, {1, 0, 0}}, {Qt::Key_Y, {0, 1, 0}}, {Qt::Key_Z, {0, 0, 1}}};
  for (const auto& row : rows) {
    Tool(kView, 12).setFocus();
    Key(row.key);
    ExpectUp(row.up[0], row.up[1], row.up[2]);
    float eye[3] = {};
    glxCtl1->Camera().GetPosition(eye[0], eye[1], eye[2]);
    EXPECT_EQ(eye[0] * row.up[0] + eye[1] * row.up[1] + eye[2] * row.up[2], 100);
    // The axis stays for the clicks behind it.
    ClickTool(kView, 12);
    ExpectUp(row.up[0], row.up[1], row.up[2]);
  }
}

TEST_F(ToolBars, TheProjectionsFollowEachOtherAndGoBackWithTheControlKey) {
  OpenSmallPlot();
  TheScene->CameraSteps.ProjStep = 0;
  ClickTool(kView, 13);
  ExpectEye(0, -100, 0);
  ExpectUp(0, 0, 1);
  ClickTool(kView, 13);
  ExpectEye(0, 0, 100);
  ClickWithControl(13);
  ExpectEye(0, -100, 0);
}

TEST_F(ToolBars, TheControlKeyCountsAtTheClickAlsoWhereItWentDownInAList) {
  OpenSmallPlot();
  TheScene->CameraSteps.ProjStep = 0;
  ClickTool(kView, 13);
  ClickTool(kView, 13);
  ExpectEye(0, 0, 100);
  ASSERT_EQ(ShiftState, 0);
  const QWidget& squares = Tool(kView, 13);
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::ControlModifier,
                    squares.mapTo(window.get(), squares.rect().center()));
  ExpectEye(0, -100, 0);
}

TEST_F(ToolBars, TheModeOfTheMouseIsPressedAndTold) {
  OpenSmallPlot();
  const QLabel* hint = nullptr;
  for (const QLabel* label : window->findChildren<QLabel*>()) {
    if (label->text() == "Pan with Left button, Try the Right button !") hint = label;
  }
  ASSERT_NE(hint, nullptr) << "the window starts with the hand";
  const struct { int position, mode; } rows[] = {{1, 1}, {3, 6}, {2, 8}};
  for (const auto& row : rows) {
    ClickTool(kView, row.position);
    EXPECT_EQ(static_cast<int>(TheScene->EditState()), row.mode);
    for (int other = 1; other <= 3; ++other)
      EXPECT_EQ(ActionOf(kView, other).isChecked(), other == row.position);
    EXPECT_EQ(hint->text().toStdString(), frmMain->Toolbar1.Button(row.position).toolTip.Get());
  }
}

TEST_F(ToolBars, TheMagnifiersZoomByAStep) {
  OpenSmallPlot();
  ClickTool(kView, 6);
  double nearer[4] = {};
  glxCtl1->Camera().GetOrtho(nearer[0], nearer[1], nearer[2], nearer[3]);
  EXPECT_LT(nearer[1], 100);
  ClickTool(kView, 5);
  double back[4] = {};
  glxCtl1->Camera().GetOrtho(back[0], back[1], back[2], back[3]);
  EXPECT_GT(back[1], nearer[1]);
}

TEST_F(ToolBars, TheBackgroundButtonTurnsItWhiteAndBackAgain) {
  OpenSmallPlot();
  ClickTool(kView, 8);
  EXPECT_EQ(TheScene->WhiteBack, 1);
  ClickTool(kView, 8);
  EXPECT_EQ(TheScene->WhiteBack, 0);
}

TEST_F(ToolBars, TheRotationButtonSwitchesTheAnimation) {
  OpenSmallPlot();
  ClickTool(kView, 9);
  EXPECT_FALSE(glxCtl1->Animation().Enabled());
  ClickTool(kView, 9);
  EXPECT_TRUE(glxCtl1->Animation().Enabled());
}

TEST_F(ToolBars, TheFreezeButtonHoldsTheRowAndLetsItGo) {
  OpenSmallPlot();
  ClickTool(kView, 10);
  EXPECT_EQ(frmMain->Text3.caption.Get(), "Redraw Start 3");
  EXPECT_EQ(Find<QLabel>("Text3").text(), "Redraw Start 3");
  EXPECT_EQ(RedrawState, 1);
  ClickTool(kView, 10);
  EXPECT_EQ(RedrawState, 0);
}

TEST_F(ToolBars, TheSatelliteButtonShowsTheSatelliteAndItsBar) {
  OpenSmallPlot();
  ASSERT_EQ(frmMain->Check3.value, 0);
  ClickTool(kOption, 1);
  EXPECT_EQ(frmMain->Check3.value, 1);
  EXPECT_TRUE(ActionOf(kOption, 1).isChecked());
  EXPECT_TRUE(Find("HScroll10").isVisible());
  ClickTool(kOption, 1);
  EXPECT_EQ(frmMain->Check3.value, 0);
  EXPECT_FALSE(ActionOf(kOption, 1).isChecked());
  EXPECT_FALSE(Find("HScroll10").isVisible());
}

TEST_F(ToolBars, TheCubeButtonIsPressedAtTheStartAndTakesTheCubeAway) {
  OpenSmallPlot();
  EXPECT_TRUE(ActionOf(kOption, 2).isChecked());
  EXPECT_TRUE(Find("Text16").isVisible());
  ClickTool(kOption, 2);
  EXPECT_EQ(USERFLAG.CubicView, 0);
  EXPECT_FALSE(Find("Text16").isVisible());
  ClickTool(kOption, 2);
  EXPECT_EQ(USERFLAG.CubicView, 1);
}

TEST_F(ToolBars, TheEarthAndTheMoonAreSwitchedByTheirButtons) {
  OpenSmallPlot();
  ClickTool(kOption, 3);
  EXPECT_EQ(frmMain->Check1[0].value, 1);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 1);
  ClickTool(kOption, 3);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 0);
  ClickTool(kOption, 5);
  EXPECT_EQ(MoonSwitch, 1);
  ClickTool(kOption, 5);
  EXPECT_EQ(MoonSwitch, 0);
}

TEST_F(ToolBars, TheLocalFrameButtonRedrawsInIt) {
  OpenSmallPlot();
  ClickTool(kOption, 7);
  EXPECT_EQ(frmMain->Command7.Tag, "NEDfree");
  EXPECT_EQ(USERFLAG.NedInput, 1);
}

TEST_F(ToolBars, TheOptionsButtonOpensAndClosesThePanel) {
  OpenSmallPlot();
  ClickTool(kOption, 9);
  EXPECT_TRUE(frmMain->Options.visible);
  EXPECT_TRUE(ActionOf(kOption, 9).isChecked());
  ClickTool(kOption, 9);
  EXPECT_FALSE(frmMain->Options.visible);
  EXPECT_FALSE(ActionOf(kOption, 9).isChecked());
}

TEST_F(ToolBars, ThePenUpButtonThinsTheLineAndGivesItsThicknessBack) {
  OpenSmallPlot();
  const double thickness = USERFLAG.ThicknessLinePlot;
  ClickTool(kOption, 10);
  EXPECT_EQ(PenUpMode, 1);
  EXPECT_DOUBLE_EQ(USERFLAG.ThicknessLinePlot, thickness / 10);
  ClickTool(kOption, 10);
  EXPECT_EQ(PenUpMode, 0);
  EXPECT_DOUBLE_EQ(USERFLAG.ThicknessLinePlot, thickness);
}

TEST_F(ToolBars, TheCameraSavesImagesAndShowsTheirDirectoryOnce) {
  // An opener of this test's own, which notes what it is asked to show.
  run.Write("xdg-open", "#!/bin/sh\necho \"$1\" >> \"" + run.File("shown") + "\"\n");
  std::filesystem::permissions(run.File("xdg-open"), std::filesystem::perms::owner_all);
  const std::string path = getenv("PATH");
  setenv("PATH", (run.File("") + ":" + path).c_str(), 1);
  OpenSmallPlot();
  std::filesystem::create_directory(run.File("images"));
  frmMain->Text6.text = run.File("images");
  ClickTool(kView, 15);
  QTest::qWait(1100);
  ClickTool(kView, 15);
  EXPECT_TRUE(QTest::qWaitFor([this] { return std::filesystem::exists(run.File("shown")); }));
  QTest::qWait(200);
  setenv("PATH", path.c_str(), 1);
  int images = 0;
  for (const auto& entry : std::filesystem::directory_iterator(run.File("images"))) {
    EXPECT_THAT(entry.path().filename().string(), StartsWith("Quorb"));
    EXPECT_EQ(entry.path().extension(), ".bmp");
    ++images;
  }
  EXPECT_EQ(images, 2);
  std::ifstream shown(run.File("shown"));
  std::string line, second;
  std::getline(shown, line);
  EXPECT_THAT(line, StartsWith(run.File("images")));
  EXPECT_FALSE(std::getline(shown, second)) << second;
  EXPECT_THAT(frmMain->Text21.text.Get(), StartsWith("Explorer open with image saved "));
}

TEST_F(ToolBars, TheButtonsStandInTheStoredOrderAndTheUserCanChangeIt) {
  settings.Write("UserQuorb/ToolBars", "5", "2 1 4 16");
  OpenSmallPlot();
  EXPECT_THAT(ShownTools(), ElementsAre("Toolbar1(2)", "Toolbar1(1)", "Toolbar1(4)", "Toolbar1(16)"));
  QWidget& first = Tool(kView, 2);
  const QPoint place = first.mapTo(&Find(kView), first.rect().center());
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    EXPECT_FALSE(menu->actions().first()->isEnabled()) << "it is the first one";
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(1)).center());
  });
  user.start(50);
  QContextMenuEvent wish(QContextMenuEvent::Mouse, place, first.mapToGlobal(first.rect().center()));
  QApplication::sendEvent(&Find(kView), &wish);
  EXPECT_THAT(ShownTools(), ElementsAre("Toolbar1(1)", "Toolbar1(2)", "Toolbar1(4)", "Toolbar1(16)"));
  EXPECT_EQ(settings.Read("UserQuorb/ToolBars", "5", ""), "1 2 4 16");
  settings.Write("UserQuorb/ToolBars", "5", "");
}

TEST_F(ToolBars, ADoubleClickOnTheBarStoresItsOrder) {
  OpenSmallPlot();
  const QWidget& bar = Find(kView);
  QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                     bar.mapTo(window.get(), QPoint(bar.width() - 1, bar.height() / 2)));
  EXPECT_EQ(settings.Read("UserQuorb/ToolBars", "5", ""), "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
  settings.Write("UserQuorb/ToolBars", "5", "");
}

}  // namespace
}  // namespace quorb
