#include "ValueBars.h"

#include <GL/gl.h>

#include <string>

#include "ColourScale.h"
#include "Mth.h"
#include "PlotData.h"
#include "RunState.h"
#include "SceneColour.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr double kBarAlpha = 0.7;
/// A value across all limits makes a bar of this many ranges, over kBarShares.
constexpr double kBarRanges = 2.05;
constexpr double kBarShares = 6;

void SeekValue(ValueBars& bars, double t) {
  bars.ValZFound = 0;
  while (t >= dataValZ[bars.ValZRow][0]) {
    const std::int32_t next = bars.ValZRow + 1;
    if (!dataValZ.Holds(next)) return;
    if (t < dataValZ[next][0]) {
      bars.ValZFound = 1;
      return;
    }
    if (bars.ValZRow >= NbValZ) return;
    bars.ValZRow = next;
  }
}

RampColour ValueColour(ValueBars& bars) {
  RampColour colour;
  TakeRampColour(colour, dataValZ[bars.ValZRow][1], bars.ValZMinLimit, bars.ValZMaxLimit);
  return colour;
}

void DrawColouredLine(ValueBars& bars, int thrustOn, const double* point) {
  glShadeModel(GL_SMOOTH);
  if (bars.ValZInThrust == 1 || thrustOn > 0) {
    const RampColour colour = ValueColour(bars);
    SetRampColour(colour, colour.alpha);
  } else {
    glColor4f(12 / 255.0F, 24 / 255.0F, 84 / 255.0F, 1);
  }
  PlaceVertex(point);
}

void DrawBar(ValueBars& bars, int thrustOn, const double* point) {
  SetOptionColour(thrustOn > 0 ? USERFLAG.ColourPlotEvents : USERFLAG.ColourPlotNominal, kBarAlpha);
  PlaceVertex(point);
  const RampColour colour = ValueColour(bars);
  glColor3f(static_cast<GLfloat>(colour.red), static_cast<GLfloat>(colour.green),
            static_cast<GLfloat>(colour.blue));
  for (float& component : bars.BarVector)
    component = 0;
  const bool hasBar = (thrustOn > 0 || bars.ValZInThrust == 1) && ValAxis >= 1 && ValAxis <= 3;
  if (hasBar) {
    const double value = dataValZ[bars.ValZRow][1];
    bars.BarVector[ValAxis - 1] = static_cast<float>((value - bars.ValZBase) * bars.BarScale);
  }
  const double tip[3] = {point[0] + bars.BarVector[0], point[1] + bars.BarVector[1],
                         point[2] + bars.BarVector[2]};
  PlaceVertex(tip);
  PlaceVertex(point);
}

}  // namespace

void StartValueBars(ValueBars& bars, double range) {
  bars.ValZRow = 0;
  bars.ValZBase = 0;
  if (bars.ValZMaxLimit == bars.ValZMinLimit) bars.ValZMaxLimit = bars.ValZMinLimit + 1;
  bars.BarScale = range * kBarRanges / (bars.ValZMaxLimit - bars.ValZMinLimit) / kBarShares;
  if (bars.ValZMinLimit > 0) bars.ValZBase = bars.ValZMinLimit;
  if (bars.ValZMaxLimit < 0) bars.ValZBase = bars.ValZMaxLimit;
}

void DrawValueRow(ValueBars& bars, int thrustOn, const double* row) {
  SeekValue(bars, row[0]);
  if (bars.WholeOrbit == 1) {
    DrawColouredLine(bars, thrustOn, row + 1);
  } else {
    DrawBar(bars, thrustOn, row + 1);
  }
}

void DrawValueText(const ValueBars& bars, glCtl& host) {
  const bool shown = USERFLAG.NoTimeMoving == 0 && ValColour == 1 && NbValZ > 0 && bars.ValZFound == 1;
  if (!shown) return;
  host.PrintText(8, 43,
                 "Value : " + FormatSig(dataValZ[bars.ValZRow][1], 4) + "  limits: " +
                     FormatSig(bars.ValZMinLimit, 3) + " to " + FormatSig(bars.ValZMaxLimit, 3));
  if (bars.ValZInThrust == 0) host.PrintText(8, 60, " , shown during thrust.");
}

}  // namespace quorb
