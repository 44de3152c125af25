#include "AxisLabels.h"

#include <string>

#include "ClassGl.h"
#include "DateText.h"
#include "NumberPicture.h"
#include "PlotData.h"
#include "RunState.h"
#include "SceneColour.h"
#include "UserFlag.h"

namespace quorb {

namespace {

/// A time above this is a date: the end of 1957, in days from 30 December 1899.
constexpr double kFirstDateDay = 21184.5;
/// LogoScale while the large font of the branded look is still to be made.
constexpr double kBrandedFontWanted = 0.5;
constexpr int kBrandedLetterSize = 30;
constexpr double kLetterShare = 0.6;
constexpr double kLetterShareOfLength = 0.65;
constexpr double kOriginTextSize = 1.5;
constexpr double kMovingLogoSize = 0.5;

double LetterDistance(double range) {
  const double position = USERFLAG.PositionFactor;
  const double length = USERFLAG.LengthAxisFactor;
  if (length != 0) return kLetterShareOfLength * range * length * (position != 0 ? position : 1);
  return position != 0 ? kLetterShare * range * position : range;
}

void MakeBrandedFont(ClassGl& scene) {
  if (USERFLAG.LogoScale != kBrandedFontWanted) return;
  scene.Host.Text().NewBitmapFont(scene.HostDC, scene.FontLabelLarge, "Arial", true, true,
                                  kBrandedLetterSize);
  USERFLAG.LogoScale = 1.0;
}

}  // namespace

void DrawAxisLetters(ClassGl& scene) {
  scene.LabelDistance = LetterDistance(scene.Range);
  MakeBrandedFont(scene);
  if (USERFLAG.NoPlotAxis != 0) return;
  const double d = scene.LabelDistance;
  const bool large = USERFLAG.LargeCharacters == 1;
  const int font = large ? scene.FontLabelLarge : scene.FontLabelSmall;
  const int colour = PackedColour(USERFLAG.ColourAxisLabels);
  HostText& text = scene.Host.Text();
  if (large && USERFLAG.LogoScale != 0) {
    text.DrawBitmap(font, "X ", 0.95 * d, -0.02 * d, 0, colour);
    text.DrawBitmap(font, "Y ", 0.05 * d, 0.92 * d, 0, colour);
    text.DrawBitmap(font, "Z ", 0, 0, 1.35 * d, colour);
  } else {
    text.DrawBitmap(font, "X ", d, 0, 0, colour);
    text.DrawBitmap(font, "Y ", 0, d, 0, colour);
    text.DrawBitmap(font, "Z ", 0, 0, d, colour);
  }
}

void DrawMovingLogo(ClassGl& scene) {
  if (USERFLAG.NoTimeMoving != 0 || FlagOptionToPlot != 1 || !dataXYZT.Holds(scene.CURRINDEXI)) return;
  const double* row = dataXYZT[scene.CURRINDEXI];
  scene.Host.Text().Draw3D(scene.FontOutline, AppTitle + " " + DateAndTimeText(row[0]), row[1], row[2],
                           row[3], kMovingLogoSize, PackedColour(USERFLAG.ColourAxisLabels));
}

void DrawOriginText(ClassGl& scene) {
  if (USERFLAG.NoOriginLabel != 0 || FactorScale != 1.0) return;
  std::string offsets;
  for (const AxisRangeRecord& axis : scene.AxisRange)
    offsets += GeneralNumber(axis.AxisOffset) + " , ";
  scene.Host.Text().Draw3D(scene.FontOutline, offsets, 0, 0, 0, kOriginTextSize,
                           PackedColour(USERFLAG.ColourAxisLabels));
}

void DrawTimeText(ClassGl& scene) {
  const bool hasTime = FlagOptionToPlot == 1 || USERFLAG.TimeInData == 1.0;
  if (!hasTime || USERFLAG.NoLogoLabel != 0 || PenUpMode == 1) return;
  const double time = USERFLAG.MovieDataTime;
  scene.Host.PrintText(8, 23, time > kFirstDateDay ? DateAndTimeText(time) : TimeOfDayText(time));
}

}  // namespace quorb
