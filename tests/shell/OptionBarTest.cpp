#include "OptionBar.h"

#include "LocalView.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

class OptionBarTest : public WindowFixture {
 protected:
  OptionBarTest() : window(Load()) { FactorScale = 0; }

  ToolButton& ButtonOf(const std::string& key) {
    for (int position = 1; position <= window.ToolBoptions.Positions(); ++position) {
      if (window.ToolBoptions.Button(position).key == key) return window.ToolBoptions.Button(position);
    }
    ADD_FAILURE() << "no button " << key;
    return window.ToolBoptions.Button(1);
  }

  /// A click of the user: the button changes over, and the bar's routine runs.
  void Click(const std::string& key) {
    ToolButton& button = ButtonOf(key);
    button.SetValue(1 - button.Value());
    window.ToolBoptions.buttonClicked(button);
  }

  MainWindow& window;
};

TEST_F(OptionBarTest, TheSatelliteGoesOnAndOffWithItsBar) {
  Click("optSat");
  EXPECT_EQ(window.Check3.value, 1);
  EXPECT_TRUE(window.HScroll10.visible);
  EXPECT_TRUE(window.Text18.visible);
  Click("optSat");
  EXPECT_EQ(window.Check3.value, 0);
  EXPECT_FALSE(window.HScroll10.visible);
  EXPECT_FALSE(window.Text18.visible);
}

TEST_F(OptionBarTest, TheCubicViewGoesOnAndOffWithItsBar) {
  Click("optCub");
  EXPECT_EQ(window.Check9.value, 1);
  EXPECT_TRUE(window.HScroll8.visible);
  EXPECT_TRUE(window.Text16.visible);
  Click("optCub");
  EXPECT_EQ(window.Check9.value, 0);
  EXPECT_FALSE(window.HScroll8.visible);
  EXPECT_FALSE(window.Text16.visible);
}

TEST_F(OptionBarTest, TheCheckFollowsTheCounterAndNotTheButton) {
  Click("optSat");
  window.Check3.value = 0;  // on the panel
  Click("optSat");
  EXPECT_EQ(window.Check3.value, 0);
  ButtonOf("optSat").SetValue(1);
  Click("optSat");  // released, at an odd count
  EXPECT_EQ(ButtonOf("optSat").Value(), 0);
  EXPECT_EQ(window.Check3.value, 1);
}

TEST_F(OptionBarTest, APressedEarthButtonLeavesTheEarthOut) {
  Click("optEarth");
  EXPECT_EQ(window.Check1[0].value, 1);
  EXPECT_EQ(USERFLAG.NoPlotEarth, 1);
  Click("optEarth");
  EXPECT_EQ(USERFLAG.NoPlotEarth, 0);
}

TEST_F(OptionBarTest, AReleasedMoonButtonLeavesTheMoonOut) {
  Click("optMoon");
  EXPECT_EQ(MoonSwitch, 1);
  Click("optMoon");
  EXPECT_EQ(MoonSwitch, 0);
}

TEST_F(OptionBarTest, TheOptionButtonOpensThePanelAndItsSecondPressClosesIt) {
  Click("optOpt");
  EXPECT_TRUE(window.Options.visible);
  EXPECT_TRUE(window.Options.inFront);
  EXPECT_EQ(window.Command2.Tag, "ToolBoptions");
  window.Text5[15].text = "200";
  Click("optOpt");
  EXPECT_FALSE(window.Options.visible);
  EXPECT_EQ(window.Command2.Tag, "");
  EXPECT_EQ(USERFLAG.ColourBackground.red, 200);
}

TEST_F(OptionBarTest, CloseReleasesTheOptionButton) {
  Click("optOpt");
  window.Command2.clicked();
  EXPECT_FALSE(window.Options.visible);
  EXPECT_EQ(ButtonOf("optOpt").Value(), 0);
  EXPECT_EQ(window.Command2.Tag, "");
}

TEST_F(OptionBarTest, EnterReleasesTheOptionButton) {
  Click("optOpt");
  int enter = 13;
  Form_KeyDown(enter, 0);
  EXPECT_FALSE(window.Options.visible);
  EXPECT_EQ(ButtonOf("optOpt").Value(), 0);
}

TEST_F(OptionBarTest, TheLocalFrameRedrawsFromTheStartAndFollows) {
  LastPoint = 1000;
  const int before = dialogs.pumps;
  Click("optW");
  EXPECT_EQ(window.HScroll1.value, 1);
  EXPECT_EQ(USERFLAG.NedInput, 1.0);
  EXPECT_EQ(window.Command7.Tag, "NEDfree");
  EXPECT_EQ(USERFLAG.LocalCentreIndex, -1);
  EXPECT_EQ(dialogs.pumps, before + 3);
}

TEST_F(OptionBarTest, TheSecondPressLeavesTheLocalFrame) {
  Click("optW");
  Click("optW");
  EXPECT_EQ(USERFLAG.NedInput, 0);
  EXPECT_EQ(window.Command7.Tag, "");
}

TEST_F(OptionBarTest, PenUpTwiceGivesTheThicknessBack) {
  USERFLAG.ThicknessLinePlot = 3;
  Click("optPenup");
  EXPECT_EQ(PenUpMode, 1);
  EXPECT_DOUBLE_EQ(USERFLAG.ThicknessLinePlot, 0.3);
  Click("optPenup");
  EXPECT_EQ(PenUpMode, 0);
  EXPECT_DOUBLE_EQ(USERFLAG.ThicknessLinePlot, 3);
}

}  // namespace
}  // namespace quorb
