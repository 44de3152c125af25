#include "OptionWindow.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class OptionWindowTest : public WindowFixture {
 protected:
  OptionWindowTest() : window(Create()) {
    window.form.Width = 18000;
    window.form.Height = 12000;
    window.Options.Width = 6000;
    window.Options.Height = 5000;
    window.Options.Left = 1000;
    window.Options.Top = 2000;
  }

  MainWindow& window;
};

TEST_F(OptionWindowTest, TheMenuAndTheStatusBarShowThePanelInFront) {
  for (const auto& open : {window.mnuFOptions.clicked, window.StatusBar1.panelClicked}) {
    window.Options.visible = false;
    window.Options.SendToBack();
    open();
    EXPECT_TRUE(window.Options.visible);
    EXPECT_TRUE(window.Options.inFront);
  }
}

TEST_F(OptionWindowTest, ClosingSendsThePanelToTheBack) {
  ShowOptions();
  window.Command2.clicked();
  EXPECT_FALSE(window.Options.visible);
  EXPECT_FALSE(window.Options.inFront);
}

TEST_F(OptionWindowTest, ADraggedPanelKeepsThePointThatWasGrabbedUnderThePointer) {
  window.Options.dragStarted(300, 100);
  window.Options.draggedOver(450, 40);
  EXPECT_EQ(window.Options.Left, 1150);
  EXPECT_EQ(window.Options.Top, 1940);
  // The next place counts from where the panel stands now.
  window.Options.draggedOver(310, 100);
  EXPECT_EQ(window.Options.Left, 1160);
  EXPECT_EQ(window.Options.Top, 1940);
}

TEST_F(OptionWindowTest, AStripOfThePanelStaysInTheWindow) {
  window.Options.dragStarted(0, 0);
  window.Options.draggedOver(1e6, 1e6);
  EXPECT_EQ(window.Options.Left, 17400);
  EXPECT_EQ(window.Options.Top, 11400);
  window.Options.draggedOver(-1e6, -1e6);
  EXPECT_EQ(window.Options.Left, -5400);
  EXPECT_EQ(window.Options.Top, 0);
}

TEST_F(OptionWindowTest, APanelOutsideAWindowThatBecameSmallerComesBack) {
  frmMain->form.Width = 20000;
  frmMain->form.Height = 12000;
  ShowOptions();
  frmMain->Options.Left = 19000;
  frmMain->Options.Top = 11000;
  frmMain->form.Width = 9000;
  frmMain->form.Height = 6000;
  Form_Resize();
  EXPECT_EQ(frmMain->Options.Left, 8400);
  EXPECT_EQ(frmMain->Options.Top, 5400);
}

TEST_F(OptionWindowTest, ThePointerThatComesOverCloseClosesAndReadsThePanel) {
  ShowOptions();
  window.Text5[15].text = "200";
  window.Options.pointerMoved();
  window.Command2.pointerMoved();
  EXPECT_FALSE(window.Options.visible);
  EXPECT_EQ(USERFLAG.ColourBackground.red, 200);
}

TEST_F(OptionWindowTest, APanelThatOpensUnderThePointerStaysUntilThePointerHasLeftClose) {
  window.Options.pointerMoved();
  ShowOptions();
  window.Command2.pointerMoved();
  window.Command2.pointerMoved();
  EXPECT_TRUE(window.Options.visible);
  window.Command2.pointerLeft();
  window.Command2.pointerMoved();
  EXPECT_FALSE(window.Options.visible);
}

TEST_F(OptionWindowTest, AClickClosesInAnyCase) {
  ShowOptions();
  window.Command2.clicked();
  EXPECT_FALSE(window.Options.visible);
}

TEST_F(OptionWindowTest, ThePointerClosesOnce) {
  ShowOptions();
  window.Options.pointerMoved();
  window.Command2.pointerMoved();
  USERFLAG.SatelliteModelReady = 1.0;
  window.Command2.pointerMoved();
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 1.0);
}

}  // namespace
}  // namespace quorb
