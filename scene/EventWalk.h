#pragma once

#include <cstdint>
#include <limits>

#include "PlotExtent.h"

namespace quorb {

/// A walk along dataEvents beside the rows that a frame draws. Times are days.
struct EventWalk {
  /// Row of dataEvents that the walk stands at.
  std::int32_t EventPos = 0;
  /// Event value of the colour set last; -1 for none.
  double EventPrevValue = -1;
  /// Event value of the row stepped to last.
  double EventValue = 0;
  /// 1 when the colour set last is the one inside, or outside, a pair of events.
  int EventInside = 0;
  int EventOutside = 0;
  /// 1 when the row's event value has a fraction: the row leaves a dot.
  int RowMark = 0;
  /// 1 while the row is in an event stretch.
  int ThrustOn = 0;
  /// A time from the first bound up to, not including, the second one would change nothing.
  double settledFrom = std::numeric_limits<double>::infinity();
  double settledTo = -std::numeric_limits<double>::infinity();
};

/// Puts the walk back to the first event row, for a new frame. RowMark and ThrustOn stay.
void StartEventWalk(EventWalk& walk);

/// Moves the walk to the event row in front of the plot's first time, when the events tell starts and ends.
void SeekFirstEvent(EventWalk& walk, const PlotExtent& extent);

/// Moves the walk to the time `t` of the next row drawn, and sets the colour where it changes. A step for
/// which rows of dataEvents are missing changes no colour.
void StepEvent(EventWalk& walk, const PlotExtent& extent, double t);

/// True when a step to time `t` would change nothing, colour, mark and place.
inline bool IsSettled(const EventWalk& walk, double t) {
  return t >= walk.settledFrom && t < walk.settledTo;
}

/// Sets the colour of an event value: nominal for 0, the events' own for 1 and for a fraction below 2, else
/// the ramp's colour of its size between 0 and 32.
void ColourByValue(double value);

}  // namespace quorb
