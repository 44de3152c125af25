#include <algorithm>

#include "WindowFixture.h"

namespace quorb {
namespace {

/// No file is there: the first activation loads the plot of last resort.
class FormActivateTest : public WindowFixture {
 protected:
  FormActivateTest() : window(Load()) { ClearCalls(); }

  /// An activation behind the first one, with a plot of this title.
  static void ActivateAgain(const std::string& title, double timeInData) {
    FirstActivated = 1;
    MessageUserToPlot = title;
    USERFLAG.TimeInData = timeInData;
    Form_Activate();
  }

  MainWindow& window;
};

TEST_F(FormActivateTest, TheFirstActivationLoadsThePlot) {
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 0);
  Form_Activate();
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
  EXPECT_EQ(FirstActivated, 1);
  EXPECT_THAT(window.Text20.text.Get(), testing::HasSubstr("NameTempo$ /opt/quorb/_QuorbExcelPro.qbv"));
}

TEST_F(FormActivateTest, TheFirstActivationAsksForANewPlotFromTheSpreadsheet) {
  DEJADRAW = DEJARESET = 1;
  FileMode = 2;
  Form_Activate();
  EXPECT_EQ(DEJADRAW, 0);
  EXPECT_EQ(DEJARESET, 0);
  EXPECT_EQ(FileMode, 0);
}

TEST_F(FormActivateTest, ALaterActivationLoadsNothing) {
  Form_Activate();
  window.Text20.text = "";
  DEJADRAW = DEJARESET = 1;
  Form_Activate();
  EXPECT_EQ(window.Text20.text.Get(), "");
  EXPECT_EQ(DEJADRAW, 1);
  EXPECT_EQ(DEJARESET, 1);
}

TEST_F(FormActivateTest, TheFirstActivationFixesTheDirectoryOfTheImages) {
  Form_Activate();
  EXPECT_EQ(AppDir, "/opt/quorb/");
  EXPECT_EQ(window.Text6.text.Get(), "/opt/quorb/");
  EXPECT_EQ(window.Toolbar1.Button(15).toolTip.Get(), "Save Image /opt/quorb/");
}

TEST_F(FormActivateTest, EveryActivationResetsTheCubicRange) {
  Form_Activate();
  window.Text4[4].text = "3";
  Form_Activate();
  EXPECT_EQ(window.Text4[4].text.Get(), "1.75");
  EXPECT_EQ(window.Text4[1].text.Get(), "1.75");
  EXPECT_EQ(window.HScroll8.value, 1750);
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 1.75);
}

TEST_F(FormActivateTest, EveryActivationPutsTheRunStateOfTheWindowBack) {
  for (int activation = 0; activation < 2; ++activation) {
    window.Command6.Tag = "demo";
    window.Combo1.Width = 3000;
    LocalFollow = 0;
    Form_Activate();
    EXPECT_EQ(window.Command6.Tag, "");
    EXPECT_EQ(window.Combo1.Width, 390);
    EXPECT_EQ(LocalFollow, 1);
  }
}

TEST_F(FormActivateTest, TheFirstActivationPutsTheOrderOfTheToolBarBack) {
  settings.entries[{"UserQuorb/ToolBars", "5"}] = "3 2 1";
  Form_Activate();
  EXPECT_THAT(window.Toolbar1.order.Get(), ElementsAre(3, 2, 1));
}

TEST_F(FormActivateTest, EveryActivationBringsTheCubicViewOnOutsideThePenUpMode) {
  for (int activation = 0; activation < 3; ++activation) {
    Form_Activate();
    EXPECT_EQ(window.Check9.value, 1) << activation;
    EXPECT_EQ(window.ToolBoptions.Button(2).Value(), 1);
    EXPECT_TRUE(window.HScroll8.visible);
    EXPECT_TRUE(window.Text16.visible);
  }
  window.ToolBoptions.Button(2).SetValue(0);
  window.ToolBoptions.buttonClicked(window.ToolBoptions.Button(2));
  EXPECT_EQ(window.Check9.value, 0);
  ActivateAgain("Transfer", 0);
  EXPECT_EQ(window.Check9.value, 1);
}

TEST_F(FormActivateTest, ThePenUpModeLeavesTheCubicView) {
  PenUpMode = 1;
  ActivateAgain("Transfer", 0);
  EXPECT_EQ(window.Check9.value, 0);
  EXPECT_EQ(window.ToolBoptions.Button(2).Value(), 0);
}

TEST_F(FormActivateTest, EveryActivationPressesTheOrientationSevenTimesWithZUpward) {
  ActivateAgain("Transfer", 0);
  const auto& calls = RecordedCalls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "Camera.SetUp(0, 0, 1)"), 7);
  EXPECT_EQ(TheScene->EditState(), 8);
  // The press behind it keeps the axis, and turns one corner of the cube on: 8 corners in steps of 4.
  EXPECT_EQ(TheScene->CameraSteps.RealQuadrant, 7 % 4);
}

TEST_F(FormActivateTest, APlotWithoutTimeSwitchesTheSatelliteAndItsArraysOff) {
  window.Check3.value = 1;
  window.Check4.value = 1;
  ActivateAgain("Transfer", 0);
  EXPECT_EQ(window.Check3.value, 0);
  EXPECT_EQ(window.Check4.value, 0);
}

TEST_F(FormActivateTest, APlotWithTimeLeavesThem) {
  window.Check3.value = 1;
  ActivateAgain("Transfer", 1.0);
  EXPECT_EQ(window.Check3.value, 1);
  EXPECT_EQ(window.Check4.value, 0);
}

TEST_F(FormActivateTest, ATitleThatHoldsSatSwitchesThemOnEvenWithoutTime) {
  ActivateAgain("My SATellite", 0);
  EXPECT_EQ(window.Check3.value, 1);
  EXPECT_EQ(window.Check4.value, 1);
}

}  // namespace
}  // namespace quorb
