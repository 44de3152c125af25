#pragma once

#include "PlotExtent.h"

namespace quorb {

/// Digests the plot in the arrays for drawing, with no OpenGL: tells how the events are to be read, reads the
/// two import files where the plot has no events or no points, measures the points, and scales them in place.
///
/// With FactorScale exactly 1.0 each axis is moved and scaled by itself, to a span of 80 units; otherwise one
/// factor brings the farthest point to 80 units from the origin, and FactorScale is multiplied by it. In
/// PenUpMode the second points in dataQuater follow. Points behind a lifted pen are scaled but not measured.
///
/// A flat axis keeps the AxisScale that it had in `extent`. The work cannot be repeated on the same data, so
/// it is left out once DEJARESET is 1; it sets DEJARESET.
void NormalisePlot(PlotExtent& extent);

/// Tells how the events of the plot are to be read, as NormalisePlot does; with none it leaves all as it is.
void TellEventKind(PlotExtent& extent);

}  // namespace quorb
