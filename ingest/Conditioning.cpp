#include "Conditioning.h"

#include <algorithm>
#include <array>

#include "PlotData.h"
#include "RunState.h"
#include "SpecialPlots.h"
#include "UserFlag.h"

namespace quorb {

namespace {

// Rows 0 to `last`, cut at the bound of the arrays.
std::int64_t RowsThrough(double last) {
  return std::clamp(static_cast<std::int64_t>(last) + 1, std::int64_t{0}, std::int64_t{kRowBound});
}

void MeasureColourValues() {
  ValZMax = ValZMin = dataValZ[0][1];
  const std::int64_t rows = RowsThrough(NbValZ - 1);
  for (std::int64_t i = 0; i < rows; ++i) {
    ValZMax = std::max(ValZMax, dataValZ[i][1]);
    ValZMin = std::min(ValZMin, dataValZ[i][1]);
  }
  RaiseFlatMaximum(ValZMax, ValZMin);
}

void CopyMinusYToColourValues(std::int64_t shift) {
  for (std::int64_t i = 0; i < RowsThrough(NbValZ); ++i) {
    if (!dataSAmY.Holds(i + shift)) continue;
    dataValZ.Set(i, 0, dataSAmY[i + shift][0]);
    dataValZ.Set(i, 1, dataSAmY[i + shift][1]);
  }
}

// A minus Y table that starts at time 0, or stands in a plot with colour values, is a table of colour values.
void TakeColourValues(bool hasRange) {
  if (hasRange) {
    MeasureColourValues();
    return;
  }
  const bool startsAtZero = dataSAmY[0][0] == 0;
  if (NbSAmY <= 0 || (!startsAtZero && ValColour != 1)) return;
  NbValZ = startsAtZero ? NbSAmY - 1 : NbSAmY;
  CopyMinusYToColourValues(startsAtZero ? 1 : 0);
  ClearBehind(dataValZ, static_cast<std::int64_t>(NbValZ) + 1, NbValZ);
  MeasureColourValues();
  NbSAmY = 0;
}

void TurnQuaternions() {
  if (QuaterScalarLast != 1) return;
  for (std::int64_t i = 0; i < RowsThrough(NbQuater); ++i) {
    double* const quaternion = dataQuater[i];
    std::rotate(quaternion + 1, quaternion + 4, quaternion + 5);
  }
}

// The satellite goes off with a plot without attitude, and comes back only if the program took it off.
void SwitchSatellite(LoaderWindow& window) {
  if (NbQuater == 0) {
    if (window.Value(LoaderControl::Check3) == 0) return;
    window.SetTag(LoaderControl::Check3, "1");
    window.SetValue(LoaderControl::Check3, 0);
  } else if (window.Tag(LoaderControl::Check3) == "1") {
    window.SetValue(LoaderControl::Check3, 1);
  }
}

void CountEvents(const LoadPass& pass) {
  if (pass.evRow > 0) {
    FlagOptionToPlot = 1;
    NbEvents = pass.evLog + 1;
    ClearBehind(dataEvents, pass.evRowsWritten, NbEvents);
    return;
  }
  for (int row = 0; row <= 1; ++row) {
    for (int column = 0; column <= 1; ++column)
      dataEvents.Set(row, column, 0);
  }
}

void MeasureTimes() {
  bool first = true;
  for (std::int64_t i = 0; i < RowsThrough(LastPoint); ++i) {
    if (!timeAssigned[static_cast<std::size_t>(i)]) continue;
    const double time = dataXYZT[i][0];
    TimeMax = first ? time : std::max(TimeMax, time);
    TimeMin = first ? time : std::min(TimeMin, time);
    first = false;
  }
  if (first) TimeMax = TimeMin = 0;
  RaiseFlatMaximum(TimeMax, TimeMin);
}

void ShiftAxes(int shift) {
  const auto sourceOf = [shift](int target) { return target > shift ? target - shift : target - shift + 3; };
  const int sources[] = {sourceOf(1), sourceOf(2), sourceOf(3)};
  for (std::int64_t i = 0; i < RowsThrough(LastPoint); ++i) {
    double* const row = dataXYZT[i];
    const double turned[] = {row[sources[0]], row[sources[1]], row[sources[2]]};
    std::copy(std::begin(turned), std::end(turned), row + 1);
  }
}

// Column that feeds column `f` under an exchange. Exchanges 1 and 2 are no true exchanges: their second
// branch reaches one column too far down. Users see these results and rely on them.
int ExchangeSource(int exchange, int f) {
  if (exchange == 3) return f == 1 ? 3 : f == 3 ? 1 : f;
  if (f == exchange) return exchange + 1;
  if (f == exchange + 1) return exchange - 1;
  return f;
}

void ExchangeAxes(int exchange) {
  for (std::int64_t i = 0; i < RowsThrough(LastPoint); ++i) {
    double* const row = dataXYZT[i];
    const std::array<double, 3> changed = {row[ExchangeSource(exchange, 1)], row[ExchangeSource(exchange, 2)],
                                           row[ExchangeSource(exchange, 3)]};
    std::copy(changed.begin(), changed.end(), row + 1);
  }
}

void UseZAsTime() {
  for (std::int64_t i = 0; i < RowsThrough(LastPoint); ++i) {
    dataXYZT[i][0] = dataXYZT[i][3];
    timeAssigned.set(static_cast<std::size_t>(i));
  }
}

}  // namespace

void ChooseScaleMode(double givenScale, double scale, LoaderWindow& window) {
  if (givenScale == 1.0 && scale == 1.0) {
    ISOmode = 0;
    if (window.Value(LoaderControl::Check1_0) == 0) window.SetTag(LoaderControl::Check1_0, "1");
    window.SetValue(LoaderControl::Check1_0, 1);
    return;
  }
  ISOmode = 1;
  if (window.Tag(LoaderControl::Check1_0) == "1") window.SetValue(LoaderControl::Check1_0, 0);
}

void ConditionPlot(LoadState& load, LoaderWindow& window) {
  LoadPass& pass = load.pass;
  if (pass.row == 0) {
    BuiltInPlot(pass.row, pass.scale);
    pass.evRow = 1;
  }
  Extraction_information_mots_clef(KeywordStage::colourValues, load.keywords);
  if (load.keywords.showCheck5) window.Show(LoaderControl::Check5, true);
  if (load.keywords.showCheck11) window.Show(LoaderControl::Check11, true);
  TakeColourValues(!load.specification.rangeValZ.empty());
  Extraction_information_mots_clef(KeywordStage::quaternionOrder, load.keywords);
  TurnQuaternions();
  SwitchSatellite(window);
  Extraction_information_mots_clef(KeywordStage::centralBody, load.keywords);
  NbEvents = 1;
  CloseChannel(1);
  ChooseScaleMode(load.givenScale, pass.scale, window);
  FactorScale = pass.scale;
  CountEvents(pass);
  if (PenUpMode == 1 && load.wholeXYZ) UseZAsTime();
  if (PenUpMode == 1) MeasureTimes();
  if (load.isDemo) DressDemo(window);
  if (load.keywords.circularShift != 0) ShiftAxes(load.keywords.circularShift);
  if (load.keywords.exchange != 0) ExchangeAxes(load.keywords.exchange);
  if (load.keywords.forcedScale) NedConversion(load.keywords, load.givenScale, pass.scale);
  if (EMSystem == 1) EarthMoonFrame(pass.scale);
}

}  // namespace quorb
