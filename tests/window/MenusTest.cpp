#include <gmock/gmock.h>

#include "DrivenWindow.h"

namespace quorb {
namespace {

using testing::ElementsAre;

class Menus : public DrivenWindow {
 protected:
  void OpenWithMenus() {
    OpenSmallPlot();
    ShowMenus();
  }
  /// The entries that take a place; lines with nothing behind them take none.
  template <typename T>
  static std::vector<std::string> Shown(const T& menu) {
    std::vector<std::string> texts;
    for (QAction* action : menu.actions()) {
      if (!menu.actionGeometry(action).isEmpty())
        texts.push_back(action->isSeparator() ? "-" : action->text().toStdString());
    }
    return texts;
  }
};

TEST_F(Menus, AWindowOnAFileNamedAtItsStartHasNoMenuBar) {
  OpenSmallPlot();
  EXPECT_FALSE(window->menuBar()->isVisible());
}

TEST_F(Menus, TheBarShowsTheMenusThatAreVisible) {
  OpenWithMenus();
  EXPECT_TRUE(window->menuBar()->isVisible());
  EXPECT_THAT(Shown(*window->menuBar()),
              ElementsAre("&File", "&OptionsInteractive", "&View", "&Help", "&UpdateExcel"));
}

TEST_F(Menus, HiddenEntriesAndASubmenuWithoutEntriesAreNotShown) {
  OpenWithMenus();
  QMenu* const file = OpenMenu("mnuFile");
  ASSERT_NE(file, nullptr);
  EXPECT_THAT(Shown(*file), ElementsAre("&Open *.qbv files", "&SaveImage", "&MovieFrames",
                                        "&To run in PowerPoint", "-", "&Options", "-", "E&xit"));
  file->close();
  QMenu* const view = OpenMenu("mnuView");
  ASSERT_NE(view, nullptr);
  EXPECT_THAT(Shown(*view), ElementsAre("&Grid"));
  view->close();
  frmMain->mnuVVTop.visible = true;
  ASSERT_EQ(OpenMenu("mnuView"), view);
  EXPECT_THAT(Shown(*view), ElementsAre("&Grid", "-", "&View"));
  view->close();
}

TEST_F(Menus, TheGridIsSwitchedWithTheMouseAndTicked) {
  OpenWithMenus();
  for (const bool on : {true, false}) {
    QMenu* const view = OpenMenu("mnuView");
    ASSERT_NE(view, nullptr);
    Choose(*view, "mnuVGrids");
    EXPECT_EQ(TheScene->Grids(), on);
    EXPECT_EQ(Find<QAction>("mnuVGrids").isChecked(), on);
  }
}

TEST_F(Menus, AccessKeysOpenAMenuAndChooseInIt) {
  OpenWithMenus();
  QTest::keyClick(window->windowHandle(), Qt::Key_V, Qt::AltModifier);
  QMenu* const view = AwaitMenu();
  ASSERT_NE(view, nullptr);
  QTest::keyClick(view, Qt::Key_G);
  EXPECT_TRUE(TheScene->Grids());
}

TEST_F(Menus, OptionsOfTheFileMenuShowsThePanel) {
  OpenWithMenus();
  QMenu* const file = OpenMenu("mnuFile");
  ASSERT_NE(file, nullptr);
  Choose(*file, "mnuFOptions");
  EXPECT_TRUE(frmMain->Options.visible);
}

TEST_F(Menus, ADisabledEntryCannotBeChosen) {
  OpenWithMenus();
  frmMain->mnuVGrids.enabled = false;
  QMenu* const view = OpenMenu("mnuView");
  ASSERT_NE(view, nullptr);
  Choose(*view, "mnuVGrids");
  EXPECT_FALSE(TheScene->Grids());
  view->close();
}

TEST_F(Menus, TheInteractiveEntryIsTicked) {
  OpenWithMenus();
  QMenu* const options = OpenMenu("mnuOptions");
  ASSERT_NE(options, nullptr);
  Choose(*options, "mnuOinteractive");
  EXPECT_EQ(frmMain->Check1[7].value, 1);
  EXPECT_TRUE(Find<QAction>("mnuOinteractive").isChecked());
  frmMain->Check1[7].value = 0;
  EXPECT_FALSE(Find<QAction>("mnuOinteractive").isChecked());
}

}  // namespace
}  // namespace quorb
