#include "ActiveWindow.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

/// A window whose first activation is behind it; the Tag of Command6 tells when it is activated again.
class ActiveWindowTest : public WindowFixture {
 protected:
  ActiveWindowTest() : window(Load()) {
    FirstActivated = 1;
    WindowComesForward(ProgramWindow::main);
    window.Command6.Tag = "demo";
  }

  MainWindow& window;
};

TEST_F(ActiveWindowTest, TheFirstShowIsAnActivation) {
  ForgetActiveWindow();
  WindowComesForward(ProgramWindow::main);
  EXPECT_EQ(window.Command6.Tag, "");
}

TEST_F(ActiveWindowTest, TheReturnFromAMessageBoxIsNone) {
  WindowComesForward(ProgramWindow::main);
  EXPECT_EQ(window.Command6.Tag, "demo");
}

TEST_F(ActiveWindowTest, TheReturnFromTheMovieWindowIsOne) {
  WindowComesForward(ProgramWindow::movie);
  EXPECT_EQ(window.Command6.Tag, "demo");
  WindowComesForward(ProgramWindow::main);
  EXPECT_EQ(window.Command6.Tag, "");
}

TEST_F(ActiveWindowTest, AWindowThatIsNotMadeYetIsNotActivated) {
  WindowComesForward(ProgramWindow::movie);
  frmMain.reset();
  WindowComesForward(ProgramWindow::main);
  EXPECT_EQ(frmMain, nullptr);
}

}  // namespace
}  // namespace quorb
