#include "EventWalk.h"

#include <cmath>

#include "ColourScale.h"
#include "PlotData.h"
#include "SceneColour.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr double kTolerance = 1e-6;
constexpr double kRampTop = 32;
constexpr double kEndless = std::numeric_limits<double>::infinity();

double EventTime(std::int64_t row) {
  return dataEvents[row][0];
}
double EventCell(std::int64_t row) {
  return dataEvents[row][1];
}

void Settle(EventWalk& walk, double from, double to) {
  walk.settledFrom = from;
  walk.settledTo = to;
}

bool HasFraction(double value) {
  return value != std::trunc(value);
}

void KeepAndColour(EventWalk& walk, double value) {
  walk.EventValue = value;
  if (value == walk.EventPrevValue) return;
  walk.EventPrevValue = value;
  ColourByValue(value);
}

void TakeValue(EventWalk& walk, double value) {
  KeepAndColour(walk, value);
  walk.RowMark = HasFraction(value) ? 1 : 0;
}

void GoOutside(EventWalk& walk) {
  if (walk.EventOutside == 1) return;
  ColourByValue(0);
  walk.EventInside = 0;
  walk.EventOutside = 1;
}

void GoInside(EventWalk& walk) {
  if (walk.EventInside == 1) return;
  ColourByValue(1);
  walk.EventInside = 1;
  walk.EventOutside = 0;
}

/// The event rows are pairs of start and end.
void StepPairs(EventWalk& walk, double t) {
  const double start = EventTime(walk.EventPos);
  const double end = EventTime(walk.EventPos + 1);
  if (t < start) {
    GoOutside(walk);
    Settle(walk, -kEndless, start);
  } else if (t < end) {
    GoInside(walk);
    Settle(walk, start, end);
  } else {
    if (walk.EventPos < NbEvents - 2) {
      walk.EventPos += 2;
    } else {
      Settle(walk, t, kEndless);
    }
    GoOutside(walk);
  }
}

/// The walk can go no further: from its last row on the last event's value holds.
void HoldLastValue(EventWalk& walk, double t) {
  const std::int64_t last = std::int64_t{NbEvents} - 1;
  if (!dataEvents.Holds(last) || t < EventTime(last)) return;
  if (EventCell(last) == walk.EventValue) Settle(walk, t, kEndless);
  KeepAndColour(walk, EventCell(last));
}

/// The event rows tell their values.
void StepValues(EventWalk& walk, double t) {
  const std::int32_t pos = walk.EventPos;
  const double here = EventTime(pos);
  const double next = EventTime(pos + 1);
  if (t < here) {
    TakeValue(walk, pos > 0 ? EventCell(pos - 1) : 0);
    Settle(walk, -kEndless, here);
  } else if (t < next) {
    TakeValue(walk, EventCell(pos));
    Settle(walk, here, next);
  } else if (t == next) {
    TakeValue(walk, EventCell(pos));
  } else {
    TakeValue(walk, EventCell(pos + 1));
    if (pos < NbEvents - 2) {
      walk.EventPos += 2;
    } else {
      HoldLastValue(walk, t);
    }
  }
}

}  // namespace

void StartEventWalk(EventWalk& walk) {
  walk.EventPos = 0;
  walk.EventPrevValue = -1;
  walk.EventValue = 0;
  walk.EventInside = 0;
  walk.EventOutside = 0;
  Settle(walk, kEndless, -kEndless);
}

void SeekFirstEvent(EventWalk& walk, const PlotExtent& extent) {
  if (extent.EventsSingleValued == 1) return;
  const double start = dataXYZT[0][0];
  const auto reached = [&] { return dataEvents.Holds(walk.EventPos) && !(start < EventTime(walk.EventPos)); };
  while (reached() && walk.EventPos <= NbEvents - 2)
    ++walk.EventPos;
  if (!reached() && walk.EventPos > 0) --walk.EventPos;
}

void StepEvent(EventWalk& walk, const PlotExtent& extent, double t) {
  walk.RowMark = 0;
  Settle(walk, kEndless, -kEndless);
  const bool single = extent.EventsSingleValued == 1;
  if (dataEvents.Holds(walk.EventPos) && dataEvents.Holds(walk.EventPos + 1)) {
    if (single) {
      StepPairs(walk, t);
    } else {
      StepValues(walk, t);
    }
  }
  if (extent.EventsForced == 1) walk.RowMark = 0;
  if (single) {
    walk.ThrustOn = walk.EventInside;
  } else {
    walk.ThrustOn = std::fabs(walk.EventValue) > kTolerance ? 1 : 0;
  }
}

void ColourByValue(double value) {
  const double whole = std::floor(value);
  if (value >= 0 && value <= kTolerance) {
    SetOptionColour(USERFLAG.ColourPlotNominal, kTraceAlpha);
  } else if (std::fabs(1 - value) <= kTolerance || (whole >= 0 && whole <= 1)) {
    SetOptionColour(USERFLAG.ColourPlotEvents, kTraceAlpha);
  } else {
    RampColour colour;
    double top = kRampTop;
    TakeRampColour(colour, std::fabs(value), 0, top);
    SetRampColour(colour, kTraceAlpha);
  }
}

}  // namespace quorb
