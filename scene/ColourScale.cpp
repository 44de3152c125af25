#include "ColourScale.h"

#include <GL/gl.h>

#include <cmath>
#include <string>

#include "ClassGl.h"
#include "NumberPicture.h"
#include "PlotData.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {

namespace {

/// Dots of the ramp's legend, and the length of axis that they take.
constexpr int kLegendDots = 32;
/// The legend's marks run over these degrees of the ramp.
constexpr int kLegendDegrees = 360;
constexpr int kLegendStep = 72;

/// The numbers of the legend's ends are reserved: at 0 the picture leaves the marks blank.
constexpr double kLegendLow = 0;
constexpr double kLegendHigh = 0;

/// True when the second points of the rows outnumber the points, so that dots are drawn larger.
bool HasManySecondPoints() {
  return NbQuater >= 2.0 * LastPoint;
}

}  // namespace

void TakeRampColour(RampColour& colour, double value, double low, double& high) {
  ClassGl::ColorScale(value, colour.red, colour.green, colour.blue, colour.alpha, low, high);
}

void SetRampColour(const RampColour& colour, double alpha) {
  glColor4f(static_cast<GLfloat>(colour.red), static_cast<GLfloat>(colour.green),
            static_cast<GLfloat>(colour.blue), static_cast<GLfloat>(alpha));
}

void ClassGl::ColorScale(double value, double& red, double& green, double& blue, double& alpha, double low,
                         double& high) {
  if (low == high) high = low + 1;
  double v = value;
  if (v >= high) v = 0.99999999 * high;
  if (v <= low) v = 1.00000001 * low;
  v = std::fabs((v - low) / (high - low));
  const double sector = std::floor(5 * v);
  const double f = 5 * v - sector;
  const auto set = [&](double r, double g, double b) {
    red = r;
    green = g;
    blue = b;
  };
  if (sector == 0) set(1 - f, 0, 1);
  if (sector == 1) set(0, f, 1);
  if (sector == 2) set(0, 1, 1 - f);
  if (sector == 3) set(f, 1, 0);
  if (sector == 4) set(1, 1 - f, 0);
  alpha = 1;
}

void ClassGl::ScaleColorDot() {
  const double thickness = USERFLAG.ThicknessLinePlot;
  double size = HasManySecondPoints() ? 3 * thickness : 0;
  if (ValColour == 1) size = 8 * thickness;
  glPointSize(static_cast<GLfloat>(size));

  glBegin(GL_POINTS);
  RampColour colour;
  double high = 1;
  for (int k = 1; k <= kLegendDots; ++k) {
    TakeRampColour(colour, static_cast<double>(k) / kLegendDots, 0, high);
    SetRampColour(colour, colour.alpha);
    const auto position = static_cast<GLfloat>(k + AxisLength() - kLegendDots);
    if (ValAxis == 1 || ValAxis == 0) glVertex3f(position, 0, 0);
    if (ValAxis == 2 || ValAxis == 0) glVertex3f(0, position, 0);
    if (ValAxis == 3 || ValAxis == 0) glVertex3f(0, 0, position);
  }
  glEnd();

  size = HasManySecondPoints() && ValColour != 1 ? 8 * thickness : thickness;
  glPointSize(static_cast<GLfloat>(size));
}

void ClassGl::DrawScaleLegend() {
  if (ValColour != 1) return;
  RampColour ramp;
  double high = 1;
  for (int k = 1; k <= kLegendDegrees + 1; k += kLegendStep) {
    const double share = static_cast<double>(k - 1) / kLegendDegrees;
    TakeRampColour(ramp, share, 0, high);
    const auto colour = static_cast<int>(255 * (65536 * ramp.red + 256 * ramp.green + ramp.blue));
    const double p = (AxisLength() - kLegendDots + (k - 1.0) * kLegendDots / kLegendDegrees) / 2;
    const double value = kLegendLow + (k - 1) * (kLegendHigh - kLegendLow) / kLegendDegrees;
    const std::string text = "  " + FormatPicture(value, "#");
    if (ValAxis == 1) Host.Text().DrawBitmap(FontLabelSmall, text, p, 0, 0, colour);
    if (ValAxis == 2) Host.Text().DrawBitmap(FontLabelSmall, text, 0, p, 0, colour);
    if (ValAxis == 3) Host.Text().DrawBitmap(FontLabelSmall, text, 0, 0, p, colour);
  }
}

void ClassGl::glVertex3fColor(double x, double y, double z) {
  glColor3f(x > 0 ? 1 : 0, y > 0 ? 1 : 0, z > 0 ? 1 : 0);
  glVertex3f(static_cast<GLfloat>(x), static_cast<GLfloat>(y), static_cast<GLfloat>(z));
}

}  // namespace quorb
