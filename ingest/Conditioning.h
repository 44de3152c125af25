#pragma once

#include "DataFile.h"
#include "Keywords.h"
#include "LoaderWindow.h"
#include "Specification.h"

namespace quorb {

/// Everything that one load knows beside the plot arrays.
struct LoadState {
  SpecificationText specification;
  TitleKeywords keywords = {};
  LoadPass pass;
  double givenScale = 1.0;    ///< the plot's scale, also while another one is forced for the rows
  bool isDemo = false;        ///< the demonstration was announced
  bool wholeXYZ = false;      ///< PenUpMode, and the three columns of X, Y, Z are the only range
  bool throughSheet = false;  ///< the load went through the spreadsheet before the file
  int SpecFound = 0;          ///< 1 when the end of the file's main range was looked up in the sheet
};

/// Brings the rows that were read to the plot that the scene draws: built-in plot when there are none, colour
/// values, order of the quaternions, scale mode, events, extremes, dressing of the demonstration, axis
/// changes and changes of frame, in this order.
void ConditionPlot(LoadState& load, LoaderWindow& window);

/// Says by the plot's scale whether one scale holds on all axes, which it does unless both numbers are 1.
/// Earth and Moon go off with a plot without scale, and come back only if the program took them off.
/// @param givenScale the scale that was given; @param scale the one that the rows were read with.
void ChooseScaleMode(double givenScale, double scale, LoaderWindow& window);

}  // namespace quorb
