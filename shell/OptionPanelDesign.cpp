#include <array>
#include <cstddef>

#include "NumberText.h"
#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr double kPanelLeft = 300, kPanelTop = 900, kPanelWidth = 7800, kPanelHeight = 6450;
constexpr std::size_t kFirstColourLabel = 4, kLastColourLabel = 10, kSatelliteLabel = 12, kKeywordLabel = 13;

void DesignCheck(CheckBox& box, const char* caption, const char* toolTip = "") {
  box.caption = caption;
  box.toolTip = toolTip;
}

void DesignCheckArray(MainWindow& window) {
  const char* const captions[] = {"no Plot Earth...", "no Colour Axis X", "Large Characters ", "no Plot Axis",
                                  "no Logo Label ",   "no Origin Label",  "no Time Moving",    "Interactive",
                                  "Moon x10",         "No Sun ray",       "Earth-moon"};
  for (std::size_t i = 0; i < window.Check1.size(); ++i)
    window.Check1[i].caption = captions[i];
  window.Check1[7].toolTip =
      "Interactivity with Excel : takes into account immediately the changes in the worksheet. Save you "
      "worksheet before!";
  window.Check1[8].toolTip =
      "By default the moon is shown (in ISO scal Mode) with an amplification factor of 10. Uncheck for "
      "having "
      "the real size.";
  window.Check1[8].value.Design(1);
  window.Check1[9].toolTip =
      "By default the sun ray is displayed on Earth. Check here to avoid this feature. Click here sereral "
      "times to increase or decrease the length...";
  window.Check1[10].toolTip = "Trajectory in the rotating Earth-Moon system";
  window.Check1[10].visible = false;
}

void DesignChecks(MainWindow& window) {
  DesignCheckArray(window);
  DesignCheck(window.Check2, "Ext Change colours",
              "Extended window for additional features: colours, and other settings");
  DesignCheck(window.Check3, "Satellite");
  DesignCheck(window.Check4, "Solar panel");
  DesignCheck(window.Check5, "Valz",
              "Check here to display a coloured trajectory according to Valz values instead bars along one "
              "axis...");
  DesignCheck(window.Check6, "Sat. Axis",
              "Shows the local satellite axis Xsat Red,  Ysat  Green and  Zsat Blue");
  window.Check6.value.Design(1);
  DesignCheck(
      window.Check7, "white",
      "Save current colors and switch to white one. Uncheck to come back to the current colors saved.");
  DesignCheck(window.Check8, "thrusters",
              "Thrusters location x y z (n times)  and orientation x y z  (n times)");
  DesignCheck(window.Check9, "Cubic View",
              "Check here to display the 3 bottom face of a cube with projection trajectories on them. Try "
              "IT !");
  window.Check9.Tag = "REAL_ISO";
  DesignCheck(
      window.Check10, "m",
      "If Earth is too big or too small, check it (For ascent compatibility, sometimes it is needed to "
      "to use m instead of km)");
  DesignCheck(window.Check11, "Only thrust or Whole orbit",
              "Valz values : Check here for whole orbit, else only for thrust periods");
  for (CheckBox* hidden : {&window.Check4, &window.Check5, &window.Check6, &window.Check11})
    hidden->visible = false;
}

void DesignNumbers(MainWindow& window) {
  for (std::size_t i = 0; i < 4; ++i)
    window.Text4[i].text.Design("1");
  window.Text4[0].toolTip = "0.01 to 15";
  window.Text4[1].toolTip = "factor to reduce the axis lenght 0.01 to 15";
  window.Text4[2].toolTip = "0.01 to 15";
  window.Text4[3].toolTip = "factor to reduce the position of the labels    0.01 to 15";
  window.Text4[4].text.Design(WithDecimalMark("1.5"));
  window.Text4[4].toolTip =
      "Used to set the 3 faces of the Cubic view (opposite to the positive axis),  set the axis lenght "
      "factor";
  window.Text4[4].visible = false;
  const char* const colours[] = {"40",  "80", "120", "128", "128", "128", "0",  "255", "0",
                                 "255", "0",  "0",   "50",  "100", "150", "10", "20",  "70"};
  for (std::size_t i = 0; i < window.Text5.size(); ++i) {
    window.Text5[i].text.Design(colours[i]);
    window.Text5[i].visible = false;
  }
}

void DesignTexts(MainWindow& window) {
  window.Combo2.text.Design("GEO satcom");
  window.Combo2.toolTip = "Select the shape of Satellite or Launcher with the number of solar arrays, etc.";
  window.Text6.toolTip = "Write the location, example:  C:\\";
  window.Text7.text.Design("Earthgeo.jpg");
  window.Text8.text.Design("Moonjpg.jpg");
  window.Text9.text.Design("MAX");
  window.Text9.visible = false;
  window.Text13.visible = false;
  window.Text15.text.Design("km");
}

void DesignLabels(MainWindow& window) {
  const char* const captions[] = {"Thickness LinePlot ",
                                  "Length Axis Factor",
                                  "Thickness LineAxis",
                                  "X,Y,Z position Factor",
                                  "Colour of : ",
                                  "Axis labels",
                                  "Axis",
                                  "Plot Nominal",
                                  "Plot Events",
                                  "Sphere",
                                  "BackGround",
                                  "Directory for the images saved",
                                  "Satellite  size",
                                  "Main KEYWORD Excel"};
  for (std::size_t i = 0; i < window.Label1.size(); ++i)
    window.Label1[i].caption = captions[i];
  for (std::size_t i = kFirstColourLabel; i <= kLastColourLabel; ++i)
    window.Label1[i].visible = false;
  window.Label1[kSatelliteLabel].visible = false;
  window.Label1[kKeywordLabel].visible = false;
}

void DesignButtons(MainWindow& window) {
  window.Command1.caption = "Save";
  window.Command1.toolTip =
      "Click to immediately take into account the changes, and saving its for the next time.";
  window.Command2.caption = "Close";
  window.Command2.toolTip = "Use the new settings and close that window,  without saving the changes.";
  window.Command3.caption = "Factory Settings";
  window.Command3.toolTip = "Clear the previous setting without saving the changes.";
}

}  // namespace

void DesignOptionPanel(MainWindow& window) {
  window.Options.caption = "Options";
  window.Options.visible = false;
  window.Options.Left = kPanelLeft;
  window.Options.Top = kPanelTop;
  window.Options.Width = kPanelWidth;
  window.Options.Height = kPanelHeight;
  DesignChecks(window);
  DesignNumbers(window);
  DesignTexts(window);
  DesignLabels(window);
  DesignButtons(window);
}

}  // namespace quorb
