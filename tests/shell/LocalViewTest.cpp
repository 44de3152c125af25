#include "LocalView.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class LocalViewTest : public WindowFixture {
 protected:
  LocalViewTest() : window(Load()) { LastPoint = 500; }

  void Click() { window.Command7.clicked(); }
  void PressKey() { window.Command7.keyPressed(); }

  MainWindow& window;
};

TEST_F(LocalViewTest, TheBarSetsTheRowOfTheLocalCentre) {
  window.HScroll7.value = 30;
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 150);
}

TEST_F(LocalViewTest, TheRowIsAWholeNumber) {
  LastPoint = 333;
  window.HScroll7.value = 10;  // 33.3
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 33);
}

TEST_F(LocalViewTest, AClickGoesToTheLocalViewAtTheBarsRowAndGreysTheCubicView) {
  window.Check9.value = 1;
  Click();
  EXPECT_EQ(USERFLAG.NedInput, 1.0);
  EXPECT_EQ(window.Command7.Tag, "NED");
  EXPECT_EQ(window.Check9.value, 2);
  EXPECT_EQ(USERFLAG.CubicView, 2);
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 5) << "the bar stands at 1 from the start";
}

TEST_F(LocalViewTest, TheSecondClickComesBack) {
  window.Check9.value = 1;
  Click();
  Click();
  EXPECT_EQ(USERFLAG.NedInput, 0);
  EXPECT_EQ(window.Command7.Tag, "");
  EXPECT_EQ(window.Check9.value, 1);
  EXPECT_EQ(USERFLAG.CubicView, 1);
}

TEST_F(LocalViewTest, AKeyLetsTheCentreFollowTheTimeAndAnotherSetsItBack) {
  Click();
  PressKey();
  EXPECT_EQ(window.Command7.Tag, "NEDfree");
  EXPECT_EQ(USERFLAG.LocalCentreIndex, -1);
  window.HScroll7.value = 50;
  PressKey();
  EXPECT_EQ(window.Command7.Tag, "NED");
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 250);
}

TEST_F(LocalViewTest, AKeyBeforeTheFirstClickDoesNothing) {
  USERFLAG.LocalCentreIndex = 77;
  PressKey();
  EXPECT_EQ(window.Command7.Tag, "");
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 77);
}

TEST_F(LocalViewTest, AClickWhileTheCentreFollowsTheTimeComesBack) {
  Click();
  PressKey();
  Click();
  EXPECT_EQ(window.Command7.Tag, "");
  EXPECT_EQ(USERFLAG.NedInput, 0);
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 5);
}

TEST_F(LocalViewTest, APlotWithoutPointsGivesTheRow0) {
  LastPoint = 0;
  Click();
  EXPECT_EQ(USERFLAG.LocalCentreIndex, 0);
}

}  // namespace
}  // namespace quorb
