#pragma once

#include <string_view>
#include <vector>

namespace quorb {

/// A colour as the option panel gives it: red, green, blue from 0 to 255.
struct OptionColour {
  double red, green, blue;

  bool operator==(const OptionColour&) const = default;
};

/// All options, and some fields of the run, through which the option panel rules the scene. Every field is a
/// number, flags too; instances are copied whole. The initial values are the factory values.
struct UserFlagRecord {
  double NoPlotEarth = 0;
  double NoColourAxisX = 0;
  double LargeCharacters = 0;
  double NoPlotAxis = 0;
  double NoLogoLabel = 0;
  double NoOriginLabel = 0;
  double NoTimeMoving = 0;
  double ThicknessLinePlot = 1;
  double LengthAxisFactor = 1;
  double ThicknessLineAxis = 1;
  double PositionFactor = 1;
  OptionColour ColourAxisLabels = {40, 80, 120};
  OptionColour ColourAxis = {128, 128, 128};
  OptionColour ColourPlotNominal = {0, 255, 0};
  OptionColour ColourPlotEvents = {255, 0, 0};
  OptionColour ColourSphere = {50, 100, 150};
  OptionColour ColourBackground = {10, 20, 70};
  double MoonAmplification = 10;
  double InteractiveExcel = 0;
  double SatelliteSize = 0;
  double ShowSatellite = 0;
  double SolarPanelToSun = 0;
  double LogoScale = 0;
  double MovieFrameCount = 0;
  double MovieFrameTime = 0;
  double MovieFrames = 0;
  double MovieNextTime = 0;
  double MovieArmed = 0;
  double PendingIsoRequest = 0;
  double UpdateAsked = 0;
  double NedInput = 0;
  double LocalCentreIndex = 0;
  double SatelliteModelReady = 0;
  double TimeInData = 0;
  double NoSunRay = 0;
  double EMView = 0;
  double SatelliteShape = 0;
  double MovieRealTime = 0;
  double MovieDataTime = 0;
  double CubicView = 0;
  double InMetres = 0;
  double SynchroExcelComplete = 0;

  bool operator==(const UserFlagRecord&) const = default;
};

/// The options in force; those that the program was started with; those that the demonstration puts aside.
extern UserFlagRecord USERFLAG, USERFLAGfactory, USERFLAGsaved;

/// The numbers of a field by its name: one for a number, three for a colour. Empty when no field has that
/// name.
std::vector<double*> FieldNumbers(UserFlagRecord& record, std::string_view name);

/// The names of all fields, in their order.
std::vector<std::string_view> FieldNames();

}  // namespace quorb
