#include <GL/gl.h>

#include <utility>

#include "AxisLabels.h"
#include "ClassGl.h"
#include "LineWidth.h"
#include "PlotData.h"
#include "RunState.h"
#include "SceneColour.h"
#include "UserFlag.h"
#include "ValueBars.h"
#include "WholeNumber.h"

namespace quorb {

namespace {

/// Colour of the texts of the scene's own, R x 65536 + G x 256 + B.
constexpr int kSceneTextColour = 0xFF55AA;
/// Distance of the vernal point's text from the centre, in kilometres: a low orbit's radius.
constexpr double kVernalTextKilometres = 6978.137;
/// Points of separate objects are this many times as large as the line is wide.
constexpr double kPenUpPointFactor = 15;

void ForceBrandedLook() {
  USERFLAG.NoColourAxisX = 1;
  USERFLAG.LargeCharacters = 1;
  USERFLAG.NoLogoLabel = 1;
  USERFLAG.NoOriginLabel = 1;
  USERFLAG.NoTimeMoving = 1;
  USERFLAG.ColourBackground = {255, 255, 255};
  USERFLAG.ThicknessLineAxis = 18;
  USERFLAG.ThicknessLinePlot = 3;
  USERFLAG.ColourAxis = {128, 0, 128};
  USERFLAG.ColourAxisLabels = {40, 0, 255};
  USERFLAG.LengthAxisFactor = 0.0002;
}

bool SatelliteIsShown() {
  if (NbQuater != 0 && PenUpMode != 1 && USERFLAG.ShowSatellite == 1.0) return true;
  std::int32_t shown = 0;
  AssignRounded(shown, USERFLAG.ShowSatellite);
  return USERFLAG.NedInput != 1.0 && shown != 0;
}

}  // namespace

void ClassGl::DigestPlot() {
  const bool isPlot = LastPoint + NbEvents != 0 || RowsAreChanged;
  if (!isPlot || DEJADRAW != 0) return;
  Reset();
  if (USERFLAG.SynchroExcelComplete != 1.0) return;
  DEJADRAW = 1;
  RowsAreChanged = false;
}

void ClassGl::Draw() {
  const bool wasInFrame = IsInFrame;
  IsInFrame = true;
  DrawFrame();
  IsInFrame = wasInFrame;
}

void ClassGl::DrawFrame() {
  if (USERFLAG.LogoScale != 0) ForceBrandedLook();
  DigestPlot();
  Host.Animation().Update();
  if (GridsOn) Host.DrawGrids();
  glPushMatrix();
  DrawVernalText();
  DrawLogoText();
  DrawAxisLetters(*this);
  glPopMatrix();
  glClear(GL_DEPTH_BUFFER_BIT);
  glDisable(GL_LIGHTING);
  glEnable(GL_BLEND);
  SetAxisWidth();
  DrawAxes();
  SetPlotWidths();
  DrawBrokenLine();
  KeyBefore = std::move(LastKey);
  LastKey = PresentKey(*this);
}

void ClassGl::DrawVernalText() {
  const bool shown =
      USERFLAG.NoPlotEarth == 0 && ISOmode == 1 && USERFLAG.NoColourAxisX == 1 && USERFLAG.NoOriginLabel == 0;
  if (!shown) return;
  Host.Text().Draw3D(FontOutline, "VernaL", FactorScale * kVernalTextKilometres, 0, 0, 3, kSceneTextColour);
}

void ClassGl::DrawLogoText() {
  if (USERFLAG.NoLogoLabel != 0) return;
  Host.Text().Draw3D(FontOutline, AppTitle, Range, 0, 0, 1, kSceneTextColour);
}

void ClassGl::SetAxisWidth() {
  glLineWidth(DrawnWidth(USERFLAG.ThicknessLineAxis));
}

void ClassGl::SetPlotWidths() {
  const double thickness = USERFLAG.ThicknessLinePlot;
  glLineWidth(DrawnWidth(thickness));
  glPointSize(DrawnWidth(PenUpMode == 1 ? kPenUpPointFactor * thickness : thickness));
}

void ClassGl::DrawBrokenLine() {
  Trajectory.CubeFaceX = Trajectory.CubeFaceY = Trajectory.CubeFaceZ = -AxisLength();
  if (BodiesShown != nullptr) BodiesShown->Start();
  DrawRayToSun();
  DrawShownSatellite();
  if (BodiesShown != nullptr) SetPlotWidths();  // the lines of the bodies leave the width of the axes
  SetClearColour(USERFLAG.ColourBackground);
  glClearDepth(1);
  glShadeModel(GL_SMOOTH);
  glShadeModel(GL_FLAT);
  if (CallStoredTrajectory(*this)) return;
  DrawTrajectory(*this);
  DrawValueText(Trajectory.Bars, Host);
  DrawMovingLogo(*this);
  DrawOriginText(*this);
  DrawLitBodies();
  if (dataXYZT.Holds(CURRINDEXI)) USERFLAG.MovieDataTime = dataXYZT[CURRINDEXI][0];
  DrawTimeText(*this);
  DrawScaleLegend();
}

bool ClassGl::BodiesAreToScale() const {
  return BodiesShown != nullptr && USERFLAG.NoPlotEarth == 0 && ISOmode == 1;
}

void ClassGl::DrawRayToSun() {
  if (!BodiesAreToScale()) return;
  glPushMatrix();
  BodiesShown->DrawSunRay();
  glPopMatrix();
}

void ClassGl::DrawShownSatellite() {
  if (BodiesShown == nullptr || !SatelliteIsShown()) return;
  glPushMatrix();
  BodiesShown->DrawSatellite();
  glPopMatrix();
}

void ClassGl::DrawLitBodies() {
  if (BodiesShown == nullptr) return;
  BodiesShown->SunAndLight();
  if (!BodiesAreToScale()) return;
  glPushMatrix();
  BodiesShown->DrawCentralBody();
  glPopMatrix();
  if (MoonFocus != 0) return;
  glPushMatrix();
  BodiesShown->DrawMoon();
  glPopMatrix();
}

}  // namespace quorb
