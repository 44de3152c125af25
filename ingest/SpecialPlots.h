#pragma once

#include "Keywords.h"
#include "LoaderWindow.h"

namespace quorb {

/// The plot of last resort, when no file gave a row: writes a closed pentagon around the origin into rows 0
/// to 7 of dataXYZT, sets `row` to 9 and `scale` to 1/1000. LastPoint keeps its value.
void BuiltInPlot(int& row, double& scale);

/// Dresses the demonstration: satellite and solar panel on, the satellite's size after the plot's radius, and
/// a telecommunication satellite as its shape.
void DressDemo(LoaderWindow& window);

/// Turns the points from offsets to the north, the east and downward of a place on Earth into kilometres from
/// the Earth's centre, times a thousandth. The rows were read under a forced scale; `scale` is the given one
/// again afterwards, and FactorScale stays the forced one.
/// @param place latitude and longitude in degrees, and the third number behind " ned", which is handed over
/// as a height in metres as it stands.
void NedConversion(const TitleKeywords& place, double givenScale, double& scale);

/// Joins a trajectory that starts around the Earth and goes on around the Moon, each arc in coordinates about
/// its own body, into one frame: X points from the Earth to the Moon at the seam, Y stands across it in the
/// plane of the equator. The seam is where the distance from the centre jumps to more than twice or less than
/// half. `EMDistance` becomes the distance of the two bodies there, in metres, and the Earth-Moon view goes
/// on. Without a seam the first row counts as one.
void EarthMoonFrame(double scale);

}  // namespace quorb
