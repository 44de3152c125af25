#include "ExtendedPanel.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class ExtendedPanelTest : public WindowFixture {
 protected:
  ExtendedPanelTest() : window(Create()) {
    window.form.screenHeight = 15000;
    window.form.Height = 8000;
    window.Options.Height = 5000;
  }

  bool ShowsColours() const {
    for (const TextBox& box : window.Text5) {
      if (box.visible != window.Text9.visible) ADD_FAILURE() << "some are shown and some are not";
    }
    EXPECT_EQ(window.Label1[4].visible, window.Text9.visible);
    EXPECT_EQ(window.Label1[10].visible, window.Text9.visible);
    EXPECT_EQ(window.Label1[13].visible, window.Text9.visible);
    return window.Text9.visible;
  }

  MainWindow& window;
};

TEST_F(ExtendedPanelTest, AHighScreenTakesTheWholePanel) {
  window.Check2.value = 1;
  EXPECT_EQ(window.Options.Height, 9695);
  EXPECT_EQ(window.form.Height, 11210);
  EXPECT_TRUE(ShowsColours());
}

TEST_F(ExtendedPanelTest, AScreenOf8000TwipsGivesThePanel6550) {
  window.form.screenHeight = 8000;
  window.Check2.value = 1;
  EXPECT_EQ(window.Options.Height, 6550);
  EXPECT_EQ(window.form.Height, 8000);
}

TEST_F(ExtendedPanelTest, AScreenOf768PixelsTakesTheWholePanel) {
  window.form.screenHeight = 768 * kTwipsPerPixel;
  window.Check2.value = 1;
  EXPECT_EQ(window.Options.Height, 9695);
  EXPECT_EQ(window.form.Height, 11210);
}

TEST_F(ExtendedPanelTest, AScreenJustTooLowForTheWindowShortensBoth) {
  window.form.screenHeight = 11209;
  window.Check2.value = 1;
  EXPECT_EQ(window.Options.Height, 9759);
  EXPECT_EQ(window.form.Height, 11209);
}

TEST_F(ExtendedPanelTest, AWindowThatIsHighEnoughStays) {
  for (const auto& [before, behind] : {std::pair(10214.0, 11210.0), std::pair(10215.0, 10215.0)}) {
    window.Check2.value = 0;
    window.form.Height = before;
    window.Check2.value = 1;
    EXPECT_EQ(window.form.Height, behind);
  }
}

TEST_F(ExtendedPanelTest, ClearingGivesBothTheirFormerHeights) {
  window.Check2.value = 1;
  window.Check2.value = 0;
  EXPECT_EQ(window.Options.Height, 5000);
  EXPECT_EQ(window.form.Height, 8000);
  EXPECT_FALSE(ShowsColours());
}

TEST_F(ExtendedPanelTest, AWindowThatWasTooLowComesBackHigher) {
  for (const auto& [before, behind] : {std::pair(5684.0, 6060.0), std::pair(5685.0, 5685.0)}) {
    window.form.Height = before;
    window.Check2.value = 1;
    window.Check2.value = 0;
    EXPECT_EQ(window.form.Height, behind);
  }
}

TEST_F(ExtendedPanelTest, HeightsAreThoseOfTheWholeWindow) {
  window.form.frameHeight = 600;
  window.Check2.value = 1;
  EXPECT_EQ(window.form.Height, 11210 - 600);
  window.Check2.value = 0;
  EXPECT_EQ(window.form.Height, 8000);
}

TEST_F(ExtendedPanelTest, TheDesignedHeightIsThatOfTheFirstClick) {
  window.Check2.value = 1;
  window.Options.Height = 9000;
  window.Check2.value = 0;
  window.Check2.value = 1;
  window.Check2.value = 0;
  EXPECT_EQ(window.Options.Height, 5000);
}

TEST_F(ExtendedPanelTest, WhiteIsABackgroundOf255AndComesBack) {
  window.Text5[15].text = "1";
  window.Text5[16].text = "two";
  window.Text5[17].text = "3";
  USERFLAG.ColourBackground.red = 77;
  window.Check7.value = 1;
  for (std::size_t i = 15; i < 18; ++i)
    EXPECT_EQ(window.Text5[i].text.Get(), "255");
  EXPECT_EQ(USERFLAG.ColourBackground.red, 77) << "until the panel is read";
  OptionsRead();
  EXPECT_EQ(USERFLAG.ColourBackground.red, 255);
  window.Check7.value = 0;
  EXPECT_EQ(window.Text5[15].text.Get(), "1");
  EXPECT_EQ(window.Text5[16].text.Get(), "two");
  EXPECT_EQ(window.Text5[17].text.Get(), "3");
}

TEST_F(ExtendedPanelTest, EachWhiteKeepsTheColourOfItsTime) {
  window.Check7.value = 1;
  window.Check7.value = 0;
  window.Text5[15].text = "99";
  window.Check7.value = 1;
  window.Check7.value = 0;
  EXPECT_EQ(window.Text5[15].text.Get(), "99");
}

TEST_F(ExtendedPanelTest, TheColourValuesOfTheFirstClickAreKept) {
  NbValZ = 42;
  window.Check5.value = 1;
  NbValZ = 7;
  window.Check5.value = 0;
  window.Check5.value = 1;
  EXPECT_EQ(window.panelMemory.NbValZ, 42);
}

}  // namespace
}  // namespace quorb
