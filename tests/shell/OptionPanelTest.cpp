#include "OptionPanel.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

/// The scale at which 10 x |(1 / scale) / 3 / 80 x 6400 - 1| to the power 2 / 3 is 40.
constexpr double kScaleOfSize40 = 80.0 / 27;

class OptionPanelTest : public WindowFixture {
 protected:
  OptionPanelTest() : window(Create()) { OptionsRead(); }

  void Click(int index) { window.Check1[static_cast<std::size_t>(index)].value = 1 - Value(index); }
  int Value(int index) const { return window.Check1[static_cast<std::size_t>(index)].value; }

  MainWindow& window;
};

// ---- Check1 -----------------------------------------------------------------------------------------------

TEST_F(OptionPanelTest, AClickReadsThePanel) {
  window.Text5[15].text = "200";
  Click(2);
  EXPECT_EQ(USERFLAG.LargeCharacters, 1);
  EXPECT_EQ(USERFLAG.ColourBackground.red, 200);
}

TEST_F(OptionPanelTest, TwoClicksOnTheSunRayFromClearGive1AndThen2) {
  Click(9);
  EXPECT_EQ(USERFLAG.NoSunRay, 1);
  Click(9);
  EXPECT_EQ(USERFLAG.NoSunRay, 2);
}

TEST_F(OptionPanelTest, TheClicksRunThroughTheRayLengths) {
  std::vector<double> lengths;
  for (int click = 0; click < 8; ++click) {
    Click(9);
    lengths.push_back(USERFLAG.NoSunRay);
  }
  EXPECT_THAT(lengths, ElementsAre(1, 2, 1, 0.01, 1, testing::DoubleEq(2.01), 1, 0.01));
}

TEST_F(OptionPanelTest, WithoutTheEarthTheMoonFactorIs1UntilThePanelIsRead) {
  Click(0);
  EXPECT_EQ(USERFLAG.MoonAmplification, 1);
  Click(0);
  Command2_Click();
  EXPECT_EQ(USERFLAG.MoonAmplification, 10);
}

TEST_F(OptionPanelTest, WithoutTheEarthEveryClickKeepsTheMoonFactorAt1) {
  Click(0);
  Click(3);
  EXPECT_EQ(USERFLAG.MoonAmplification, 1);
  EXPECT_EQ(USERFLAG.NoPlotAxis, 1);
}

TEST_F(OptionPanelTest, InteractiveReachesTheOptionsAndTheMenu) {
  window.mnuOinteractive.enabled = false;
  window.mnuOptions.enabled = false;
  Click(7);
  EXPECT_EQ(USERFLAG.InteractiveExcel, 1);
  EXPECT_TRUE(window.mnuOinteractive.checked);
  EXPECT_TRUE(window.mnuOinteractive.enabled);
  EXPECT_TRUE(window.mnuOptions.enabled);
  Click(7);
  EXPECT_EQ(USERFLAG.InteractiveExcel, 0);
  EXPECT_FALSE(window.mnuOinteractive.checked);
  EXPECT_TRUE(window.mnuOinteractive.enabled);
}

// ---- satellite --------------------------------------------------------------------------------------------

TEST_F(OptionPanelTest, TheSatelliteIsKeptStoredAndShowsItsControls) {
  window.Check3.value = 1;
  EXPECT_EQ(USERFLAG.ShowSatellite, 1);
  EXPECT_EQ(StoredUse("Setstr14.00"), "1");
  for (const Control* control :
       std::initializer_list<const Control*>{&window.Label1[12], &window.HScroll3, &window.Check4,
                                             &window.Check6, &window.HScroll10, &window.Text18}) {
    EXPECT_TRUE(control->visible);
  }
  window.Check3.value = 0;
  EXPECT_EQ(USERFLAG.ShowSatellite, 0);
  EXPECT_EQ(StoredUse("Setstr14.00"), "0");
  for (const Control* control :
       std::initializer_list<const Control*>{&window.Label1[12], &window.HScroll3, &window.Check4,
                                             &window.Check6, &window.HScroll10, &window.Text18}) {
    EXPECT_FALSE(control->visible);
  }
}

TEST_F(OptionPanelTest, TheSatellitesSizeSuitsTheScaleOfThePlot) {
  FactorScale = kScaleOfSize40;
  window.Check3.value = 1;
  EXPECT_EQ(window.HScroll3.value, 40);
  EXPECT_EQ(window.HScroll10.value, 40);
  EXPECT_EQ(USERFLAG.SatelliteSize, 40);
}

TEST_F(OptionPanelTest, TheSatellitesSizeEndsAtTheBarsMaximum) {
  FactorScale = 1e-9;
  window.Check3.value = 1;
  EXPECT_EQ(window.HScroll3.value, 32000);
}

TEST_F(OptionPanelTest, TheSatellitesSizeIs0InTheLocalFrame) {
  window.HScroll3.value = 500;
  USERFLAG.NedInput = 1.0;
  FactorScale = kScaleOfSize40;
  window.Check3.value = 1;
  EXPECT_EQ(window.HScroll3.value, 0);
}

TEST_F(OptionPanelTest, TheSatellitesSizeStaysWithoutAScaleAndWhenTheSatelliteGoes) {
  window.HScroll3.value = 500;
  FactorScale = 0;
  window.Check3.value = 1;
  EXPECT_EQ(window.HScroll3.value, 500);
  FactorScale = kScaleOfSize40;
  window.Check3.value = 0;
  EXPECT_EQ(window.HScroll3.value, 500);
}

TEST_F(OptionPanelTest, TheSolarArraysAreKeptAndStored) {
  window.Check4.value = 1;
  EXPECT_EQ(USERFLAG.SolarPanelToSun, 1);
  EXPECT_EQ(StoredUse("Setstr15.00"), "1");
}

TEST_F(OptionPanelTest, ASizeFromThePanelMovesTheOtherBarWithoutSwitchingTheSatellite) {
  window.HScroll3.value = 100;
  EXPECT_EQ(window.HScroll10.value, 100);
  EXPECT_EQ(window.HScroll10.Tag, "");
  EXPECT_EQ(window.Check3.value, 0);
  EXPECT_EQ(USERFLAG.SatelliteSize, 100);
  EXPECT_EQ(StoredUse("Setstr13.00"), "100");
  EXPECT_EQ(window.Label1[12].caption.Get(), "Satellite size 101");
}

TEST_F(OptionPanelTest, TheBarByThePlotSizesTheSatelliteAndSwitchesItOn) {
  FactorScale = 0;
  window.HScroll10.value = 500;
  EXPECT_EQ(window.HScroll3.value, 500);
  EXPECT_EQ(USERFLAG.SatelliteSize, 500);
  EXPECT_EQ(window.Check3.value, 1);
}

TEST_F(OptionPanelTest, SwitchingOnByTheBarFitsTheSizeToAPlotWithAScale) {
  FactorScale = kScaleOfSize40;
  window.HScroll10.value = 500;
  EXPECT_EQ(window.HScroll3.value, 40);
  window.HScroll10.value = 600;
  EXPECT_EQ(window.HScroll3.value, 600);
}

// ---- cubic view -------------------------------------------------------------------------------------------

TEST_F(OptionPanelTest, TheCubicViewShowsItsRange) {
  window.HScroll8.visible = false;
  window.Text16.visible = false;
  window.Check9.value = 1;
  EXPECT_EQ(USERFLAG.CubicView, 1);
  EXPECT_TRUE(window.Text4[4].visible);
  EXPECT_TRUE(window.HScroll8.visible);
  EXPECT_TRUE(window.Text16.visible);
  EXPECT_EQ(window.Label1[1].caption.Get(), "Length Axis Factor/Cubic");
}

TEST_F(OptionPanelTest, AClearCubicViewHidesItsRange) {
  window.Check9.value = 1;
  window.Check9.value = 0;
  EXPECT_EQ(USERFLAG.CubicView, 0);
  EXPECT_FALSE(window.Text4[4].visible);
  EXPECT_FALSE(window.HScroll8.visible);
  EXPECT_FALSE(window.Text16.visible);
  EXPECT_EQ(window.Label1[1].caption.Get(), "Length Axis Factor");
}

TEST_F(OptionPanelTest, AGreyCubicViewLeavesTheBarAsItIs) {
  for (const bool shown : {true, false}) {
    window.Check9.value = 0;
    window.HScroll8.visible = shown;
    window.Text16.visible = shown;
    window.Check9.value = 2;
    EXPECT_EQ(USERFLAG.CubicView, 2);
    EXPECT_TRUE(window.Text4[4].visible);
    EXPECT_EQ(window.HScroll8.visible, shown);
    EXPECT_EQ(window.Text16.visible, shown);
  }
}

TEST_F(OptionPanelTest, MetresReachTheOptions) {
  window.Check10.value = 1;
  EXPECT_EQ(USERFLAG.InMetres, 1);
}

// ---- Text4 and HScroll8 -----------------------------------------------------------------------------------

TEST_F(OptionPanelTest, TheCubicRangeAndTheAxisLengthCarryTheSameText) {
  window.Text4[4].text = "2.5";
  EXPECT_EQ(window.Text4[1].text.Get(), "2.5");
  EXPECT_EQ(window.HScroll8.value, 2500);
  EXPECT_EQ(window.HScroll8.Tag, "");
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 2.5);
  window.Text4[1].text = "0,75";
  EXPECT_EQ(window.Text4[4].text.Get(), "0,75");
  EXPECT_EQ(window.HScroll8.value, 750);
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 0.75);
}

TEST_F(OptionPanelTest, TheBarDoesNotAnswerTheText) {
  window.Text4[4].text = "1.2346";
  EXPECT_EQ(window.HScroll8.value, 1235);
  EXPECT_EQ(window.Text4[4].text.Get(), "1.2346");
}

TEST_F(OptionPanelTest, ATextTooLargeForTheBarLeavesTheBar) {
  window.Text4[4].text = "40";
  EXPECT_EQ(window.HScroll8.value, 10000);
  EXPECT_EQ(window.HScroll8.Tag, "");
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 40);
  window.Text4[4].text = "1E300";
  EXPECT_EQ(window.HScroll8.value, 10000);
}

TEST_F(OptionPanelTest, ABadTextReadsAs0) {
  window.Text4[4].text = "long";
  EXPECT_EQ(window.HScroll8.value, 0);
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 0);
}

TEST_F(OptionPanelTest, EachTextReadsAllFourFields) {
  window.Text4[1].text.Design("7");
  window.Text4[2].text.Design("8");
  window.Text4[3].text.Design("9");
  window.Text4[0].text = "6";
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 6);
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 7);
  EXPECT_EQ(USERFLAG.ThicknessLineAxis, 8);
  EXPECT_EQ(USERFLAG.PositionFactor, 9);
  EXPECT_EQ(window.HScroll8.value, 10000);
}

TEST_F(OptionPanelTest, TheRangeBarWritesBothTexts) {
  window.HScroll8.value = 2500;
  EXPECT_EQ(window.Text4[4].text.Get(), "2.5");
  EXPECT_EQ(window.Text4[1].text.Get(), "2.5");
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 2.5);
  EXPECT_EQ(window.HScroll8.value, 2500);
}

TEST_F(OptionPanelTest, ABusyRangeBarDoesNothing) {
  window.HScroll8.Tag = "busy";
  window.HScroll8.value = 2500;
  EXPECT_EQ(window.Text4[4].text.Get(), "1.5");
}

// ---- texts that are stored at once ------------------------------------------------------------------------

TEST_F(OptionPanelTest, TheImageDirectoryAndTheTexturesAreStoredAtOnce) {
  window.Text6.text = "C:\\";
  window.Text7.text = "blue.jpg";
  window.Text8.text = "grey.jpg";
  EXPECT_EQ(StoredUse("SetDirBMP"), "C:\\");
  EXPECT_EQ(StoredUse("Setstr01.00"), "blue.jpg");
  EXPECT_EQ(StoredUse("Setstr11.00"), "grey.jpg");
}

TEST_F(OptionPanelTest, AKeywordInLowerCaseIsUndoneAtOnce) {
  window.Text9.text = " max";
  EXPECT_EQ(window.Text9.text.Get(), "MAX");
  EXPECT_EQ(window.Text9.Tag, "");
  window.Text9.text = "plot ";
  EXPECT_EQ(window.Text9.text.Get(), "PLOT");
  EXPECT_EQ(MainKeyword, "PLOT");
  EXPECT_EQ(StoredUse("Setstr12.00"), "PLOT");
}

TEST_F(OptionPanelTest, AKeywordThatIsReplacedIsRedUntilItIsStoredAndTheCaretStays) {
  std::vector<std::string> shown;
  window.Text9.refresh = [&] {
    shown.push_back(window.Text9.text.Get() + (window.Text9.colour == kRed ? " red" : " black"));
  };
  window.Text9.selStart = 2;
  shown.clear();
  window.Text9.text = "plotx";
  EXPECT_THAT(shown, ElementsAre("plotx black", "plotx red", "PLOTX red", "PLOTX black"));
  EXPECT_EQ(window.Text9.selStart, 2);
  window.Text9.selStart = 6;
  window.Text9.text = " plot ";
  EXPECT_EQ(window.Text9.selStart, 4) << "the end of PLOT";
}

TEST_F(OptionPanelTest, AKeywordInUpperCaseStaysBlack) {
  int reds = 0;
  window.Text9.refresh = [&] { reds += window.Text9.colour == kRed ? 1 : 0; };
  window.Text9.text = "PLOT";
  EXPECT_EQ(reds, 0);
  EXPECT_EQ(StoredUse("Setstr12.00"), "PLOT");
}

TEST_F(OptionPanelTest, LongAndStrangeKeywordsAreTaken) {
  window.Text9.text = std::string(10000, 'k');
  EXPECT_EQ(MainKeyword, std::string(10000, 'K'));
  window.Text9.text = "";
  EXPECT_EQ(MainKeyword, "");
  EXPECT_EQ(StoredUse("Setstr12.00"), "");
}

TEST_F(OptionPanelTest, AClickOnATextureFieldGivesItTheFocus) {
  int earth = 0, moon = 0;
  window.Text7.takeFocus = [&] { ++earth; };
  window.Text8.takeFocus = [&] { ++moon; };
  window.Text7.clicked();
  window.Text8.clicked();
  window.Text8.clicked();
  EXPECT_EQ(earth, 1);
  EXPECT_EQ(moon, 2);
}

TEST_F(OptionPanelTest, AKeywordThatIsBeingSetIsLeftAlone) {
  window.Text9.Tag = "1";
  window.Text9.text = "plot";
  EXPECT_EQ(window.Text9.text.Get(), "plot");
  EXPECT_EQ(MainKeyword, "MAX");
  EXPECT_EQ(StoredUse("Setstr12.00"), "absent");
}

// ---- buttons ----------------------------------------------------------------------------------------------

TEST_F(OptionPanelTest, SaveReadsAndStoresAndLeavesThePanelOpen) {
  window.Options.visible = true;
  window.Text5[15].text = "300";
  window.Text6.text.Design("/images");
  USERFLAG.SatelliteModelReady = 1.0;
  Command1_Click();
  EXPECT_EQ(StoredUse("Set26.00"), "255");
  EXPECT_EQ(StoredUse("Set100.00"), "0");
  EXPECT_EQ(StoredUse("SetDirBMP"), "/images");
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);
  EXPECT_TRUE(window.Options.visible);
}

TEST_F(OptionPanelTest, CloseReadsAndHidesAndStoresNothing) {
  window.Options.visible = true;
  window.Text5[15].text = "200";
  USERFLAG.SatelliteModelReady = 1.0;
  Command2_Click();
  EXPECT_EQ(USERFLAG.ColourBackground.red, 200);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);
  EXPECT_FALSE(window.Options.visible);
  EXPECT_THAT(settings.entries, IsEmpty());
}

TEST_F(OptionPanelTest, ClosingReleasesTheButtonThatOpenedThePanel) {
  ToolButton& button = window.ToolBoptions.Button(9);
  button.SetValue(1);
  window.ToolBoptions.buttonClicked(button);
  EXPECT_TRUE(window.Options.visible);
  USERFLAG.SatelliteModelReady = 1.0;
  Command2_Click();
  EXPECT_EQ(button.Value(), 0);
  EXPECT_EQ(window.Command2.Tag, "");
  EXPECT_FALSE(window.Options.visible);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 0);
}

TEST_F(OptionPanelTest, AReadPanelShowsTheCubicViewOnTheToolBar) {
  ToolButton& button = window.ToolBoptions.Button(2);
  window.Check9.value = 1;
  OptionsRead();
  EXPECT_EQ(button.Value(), 1);
  window.Check9.value = 2;
  OptionsRead();
  EXPECT_EQ(button.Value(), 1) << "a button has no grey";
  window.Check9.value = 0;
  OptionsRead();
  EXPECT_EQ(button.Value(), 0);
}

TEST_F(OptionPanelTest, FactorySettingsComeBackToThePanelAndAreNotStored) {
  USERFLAGfactory = USERFLAG;
  window.Text4[0].text = "5";
  window.Text5[15].text = "200";
  window.Text6.text = "/images";
  window.Text9.text = "PLOT";
  window.Check1[8].value = 0;
  Command3_Click();
  EXPECT_EQ(window.Text4[0].text.Get(), "1");
  EXPECT_EQ(window.Text5[15].text.Get(), "10");
  EXPECT_EQ(window.Check1[8].value, 1);
  EXPECT_EQ(window.Text6.text.Get(), "");
  EXPECT_EQ(window.Text9.text.Get(), "MAX");
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
  EXPECT_EQ(StoredUse("Set07.00"), "absent");
  Command2_Click();
  EXPECT_EQ(USERFLAG.ColourBackground.red, 10);
}

// ---- the directory of the images --------------------------------------------------------------------------

TEST_F(OptionPanelTest, WithoutADirectoryImagesGoBesideTheProgram) {
  ImageDirRefresh();
  EXPECT_EQ(AppDir, "/opt/quorb/");
  EXPECT_EQ(window.Text6.text.Get(), "/opt/quorb/");
  EXPECT_EQ(window.Toolbar1.Button(15).toolTip.Get(), "Save Image /opt/quorb/");
}

TEST_F(OptionPanelTest, ADirectoryOfTheUsersOwnIsTakenAsItStands) {
  window.Text6.text = "/home/user/images";
  ImageDirRefresh();
  EXPECT_EQ(AppDir, "/home/user/images");
  EXPECT_EQ(window.Toolbar1.Button(15).toolTip.Get(), "Save Image /home/user/images");
}

}  // namespace
}  // namespace quorb
