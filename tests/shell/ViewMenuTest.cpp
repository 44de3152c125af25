#include "ViewMenu.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class ViewMenuTest : public WindowFixture {
 protected:
  ViewMenuTest() : window(Load()) { ClearCalls(); }

  MainWindow& window;
};

TEST_F(ViewMenuTest, TheGridGoesOnAndOffWithItsCheckMark) {
  window.mnuVGrids.clicked();
  EXPECT_TRUE(TheScene->Grids());
  EXPECT_TRUE(window.mnuVGrids.checked);
  window.mnuVGrids.clicked();
  EXPECT_FALSE(TheScene->Grids());
  EXPECT_FALSE(window.mnuVGrids.checked);
  EXPECT_THAT(RecordedCalls(), ElementsAre("Redraw()", "Redraw()"));
}

TEST_F(ViewMenuTest, ResetLooksFromTheOriginAlongMinusZ) {
  window.mnuVReset.clicked();
  EXPECT_THAT(RecordedCalls(), ElementsAre("Camera.Look(0, 0, 0, 0, 0, -1, 0, 1, 0)", "Redraw()"));
}

TEST_F(ViewMenuTest, TheMenuInteractiveTurnsItsCheckBox) {
  window.mnuOinteractive.clicked();
  EXPECT_EQ(window.Check1[7].value, 1);
  EXPECT_EQ(USERFLAG.InteractiveExcel, 1);
  EXPECT_TRUE(window.mnuOinteractive.checked);
  window.mnuOinteractive.clicked();
  EXPECT_EQ(window.Check1[7].value, 0);
  EXPECT_FALSE(window.mnuOinteractive.checked);
}

TEST_F(ViewMenuTest, ExitEndsTheProgramAndSavesNothing) {
  const auto stored = settings.entries;
  window.mnuFExit.clicked();
  EXPECT_EQ(dialogs.ended, 1);
  EXPECT_EQ(settings.entries, stored);
}

}  // namespace
}  // namespace quorb
