#include "Normalise.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "ImportFiles.h"
#include "PlotData.h"
#include "RunState.h"

namespace quorb {

namespace {

/// Span of the scaled plot in scene units.
constexpr double kSceneSpan = 80;

std::int64_t PointRows() {
  return std::min<std::int64_t>(std::int64_t{LastPoint} + 1, kRowBound);
}

bool IsMeasured(const double* point) {
  return PenUpMode == 1 || point[4] != -1;
}

double DistanceFromOrigin(const double* point) {
  return std::sqrt(point[1] * point[1] + point[2] * point[2] + point[3] * point[3]);
}

void MeasureDistances(PlotExtent& extent) {
  double farthest = 0;
  double nearest = INFINITY;
  for (std::int64_t row = 0; row < PointRows(); ++row) {
    if (!IsMeasured(dataXYZT[row])) continue;
    const double distance = DistanceFromOrigin(dataXYZT[row]);
    farthest = std::max(farthest, distance);
    nearest = std::min(nearest, distance);
  }
  extent.Range = farthest == 0 ? 1 : farthest;
  extent.RangeMin = std::isinf(nearest) || nearest == extent.Range ? 0 : nearest;
}

void MeasureAxis(AxisRangeRecord& range, int column) {
  bool first = true;
  range.AxisMin = 0;
  range.AxisMax = 0;
  for (std::int64_t row = 0; row < PointRows(); ++row) {
    const double* point = dataXYZT[row];
    if (!IsMeasured(point)) continue;
    range.AxisMin = first ? point[column] : std::min(range.AxisMin, point[column]);
    range.AxisMax = first ? point[column] : std::max(range.AxisMax, point[column]);
    first = false;
  }
}

void PlanAxis(AxisRangeRecord& range) {
  range.AxisSpan = range.AxisMax - range.AxisMin;
  if (range.AxisSpan != 0) range.AxisScale = kSceneSpan / range.AxisSpan;
  range.AxisOffset = -range.AxisMin;
  const bool nearOrigin = range.AxisSpan >= range.AxisMin && -range.AxisSpan <= range.AxisMax;
  if (nearOrigin) range.AxisOffset = 0;
}

/// Moves and scales three columns, from `firstColumn` on, of the first `rows` rows.
template <class Table>
void ScaleColumns(Table& table, std::int64_t rows, int firstColumn, const AxisRangeRecord (&axes)[3]) {
  for (std::int64_t row = 0; row < rows; ++row) {
    double* cells = table[row] + firstColumn;
    for (int axis = 0; axis < 3; ++axis) {
      cells[axis] = (cells[axis] + axes[axis].AxisOffset) * axes[axis].AxisScale;
    }
  }
}

void ScalePlot(const AxisRangeRecord (&axes)[3]) {
  ScaleColumns(dataXYZT, PointRows(), 1, axes);
  if (PenUpMode != 1) return;
  const double lastRow = std::min<double>(NbQuater, kRowBound - 1);
  ScaleColumns(dataQuater, static_cast<std::int64_t>(lastRow) + 1, 0, axes);
}

void ScaleEvenly(double factor) {
  AxisRangeRecord even[3];
  for (AxisRangeRecord& axis : even)
    axis.AxisScale = factor;
  ScalePlot(even);
  FactorScale *= factor;
}

void MeasureScaledRange(PlotExtent& extent) {
  const double nearest = extent.RangeMin;
  MeasureDistances(extent);
  extent.RangeMin = nearest;
  extent.InvRange = 1 / extent.Range;
}

}  // namespace

void TellEventKind(PlotExtent& extent) {
  if (NbEvents == 0) return;
  bool hasStart = false;
  bool hasEnd = false;
  for (std::int64_t row = 0; row < std::min<std::int64_t>(NbEvents, kRowBound); ++row) {
    hasEnd = hasEnd || dataEvents[row][1] == 0;
    hasStart = hasStart || dataEvents[row][1] == 1;
  }
  extent.EventsSingleValued = (hasStart && hasEnd) || extent.EventsForced == 1 ? 0 : 1;
}

void NormalisePlot(PlotExtent& extent) {
  if (DEJARESET == 1) return;
  TellEventKind(extent);
  if (NbEvents == 0) ImportEvents();
  if (LastPoint == 0) ImportPoints();
  MeasureDistances(extent);
  for (int axis = 0; axis < 3; ++axis)
    MeasureAxis(extent.AxisRange[axis], axis + 1);
  DEJARESET = PointsAreScaled = 1;
  extent.InvRange = 1 / extent.Range;
  for (AxisRangeRecord& axis : extent.AxisRange)
    PlanAxis(axis);
  if (FactorScale == 1.0) {
    ScalePlot(extent.AxisRange);
  } else {
    ScaleEvenly(kSceneSpan / extent.Range);
  }
  MeasureScaledRange(extent);
}

}  // namespace quorb
