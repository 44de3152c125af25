#pragma once

namespace quorb {

/// What the scene knows of one axis: extremes of the data before they were scaled, and how they were moved.
/// A point is drawn at (value + AxisOffset) x AxisScale when each axis is scaled by itself.
struct AxisRangeRecord {
  double AxisMin = 0;
  double AxisMax = 0;
  double AxisSpan = 0;
  double AxisOffset = 0;
  double AxisScale = 0;
};

/// The measures of the plot on show, and how its events are to be read.
struct PlotExtent {
  /// Largest distance of a point from the origin in scene units, never 0 once a plot was digested.
  double Range = 100;
  /// Smallest distance of a point from the origin, before the plot was scaled.
  double RangeMin = 0;
  /// 1 / Range.
  double InvRange = 0.01;
  /// The axes X, Y, Z.
  AxisRangeRecord AxisRange[3];
  /// 1 when the event rows are single changes that toggle, in pairs of start and end; 0 when their values
  /// tell starts and ends.
  int EventsSingleValued = 0;
  /// 1 makes every event row tell its own value, and leaves no dot at a marked event.
  int EventsForced = 0;
};

}  // namespace quorb
