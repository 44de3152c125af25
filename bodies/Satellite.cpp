#include <GL/gl.h>

#include <algorithm>
#include <cmath>

#include "Attitude.h"
#include "Bodies.h"
#include "Box.h"
#include "PlotData.h"
#include "Plume.h"
#include "RowSearch.h"
#include "RunState.h"
#include "SatelliteShape.h"
#include "SolarArrays.h"
#include "UserFlag.h"

namespace quorb {

namespace {

/// Half width of the body, as a share of the model's size.
constexpr double kHalfWidthShare = 0.1;
/// A model that would fill the plot is this many times smaller.
constexpr double kOversizeDivisor = 1000;
constexpr double kSizeFactor = 3;
constexpr double kSizeDivisor = 6400;
constexpr double kShownSizeDivisor = 32000;

bool HasArraysAlongY() {
  const double shape = USERFLAG.SatelliteShape;
  return shape != kShapeLauncher && shape != kShapeCubeSat && shape != kShapeCubeSat3U &&
         shape != kShapeCubeSat3U5;
}

}  // namespace

void Bodies::DrawSatellite() {
  SetMaterial();
  FindRows();
  TakePosition();
  glTranslatef(static_cast<GLfloat>(State.SatX), static_cast<GLfloat>(State.SatY),
               static_cast<GLfloat>(State.SatZ));

  const std::int64_t row = State.QuaterIndex;
  TakeAttitude(State, CellOrZero(dataQuater, row, 1), CellOrZero(dataQuater, row, 2),
               CellOrZero(dataQuater, row, 3), CellOrZero(dataQuater, row, 4));
  TurnLocalAxes(State);
  TakeBestSunAngle(State, Random());
  glRotatef(static_cast<GLfloat>(State.AttitudeAngle), static_cast<GLfloat>(State.AttAxisX),
            static_cast<GLfloat>(State.AttAxisY), static_cast<GLfloat>(State.AttAxisZ));

  glDisable(GL_LIGHTING);
  TakeSize();
  monolythe(State.SatHalfX, State.SatHalfY, State.SatHalfZ);
  if (ShowSatAxes == 1) DrawLocalAxes();
  State.InThrust = scene.Trajectory.Events.ThrustOn;
  DrawPlume(State);
  DrawSolarArrays(scene, State);
}

// The host keeps every material that was asked for, so one serves all frames.
void Bodies::SetMaterial() {
  if (material == nullptr) material = &scene.Host.NewMaterial();
  material->SetFace(GL_FRONT);
  material->SetAmbient(0.1F, 0.1F, 0.1F, 1);
  material->SetDiffuse(0.5F, 1, 1, 1);
  material->SetSpecular(0.6F, 0.8F, 0.8F, 1);
  material->SetSpecExp(120);
}

void Bodies::FindRows() {
  const std::int32_t last = scene.CURRINDEXI;
  if (State.LastIndexSeen > last) State.QuaterIndex = State.SApYIndex = State.SAmYIndex = 0;
  State.LastIndexSeen = last;
  TakeCurrentTime(scene, State);
  const double time = State.CurrentTime;
  State.QuaterIndex = FindRow(dataQuater, NbQuater, State.QuaterIndex, time);
  if (NbSApY > 0) State.SApYIndex = FindRow(dataSApY, NbSApY, State.SApYIndex, time);
  if (NbSAmY > 0) State.SAmYIndex = FindRow(dataSAmY, NbSAmY, State.SAmYIndex, time);
}

void Bodies::TakePosition() {
  if (!dataXYZT.Holds(scene.CURRINDEXI)) return;
  const double* point = dataXYZT[scene.CURRINDEXI] + 1;
  const bool isPlace =
      std::all_of(point, point + 3, [](double number) { return std::isfinite(static_cast<float>(number)); });
  if (!isPlace) return;
  State.SatX = point[0];
  State.SatY = point[1];
  State.SatZ = point[2];
}

void Bodies::TakeSize() {
  ClassGl::MainFocus(State.BodyRadius, MoonFocus, FocusBody);
  const double size = USERFLAG.SatelliteSize;
  const bool hasAttitude = NbQuater != 0 && PenUpMode != 1;
  double s = 0;
  if (!hasAttitude && USERFLAG.ShowSatellite == 1) {
    State.BodyRadius = scene.Range;
    s = State.BodyRadius * FactorScale * kSizeFactor * (std::pow(size, 1.5) + 1) / kSizeDivisor;
  } else {
    const double d = USERFLAG.ShowSatellite == 0 ? 2 * (size + 1) : kShownSizeDivisor;
    s = State.BodyRadius * FactorScale * kSizeFactor * (size + 1) / d * 8 / 4;
  }
  AssignFinite(State.SatSize, s);

  glColor4f(0, 1, 1, 0.8F);
  const bool isTooLarge = State.SatSize > 2 * scene.AxisLength();
  if (ShowText15) ShowText15(isTooLarge);
  if (isTooLarge) State.SatSize /= kOversizeDivisor;
  State.SatHalfX = State.SatHalfY = kHalfWidthShare * State.SatSize;
  State.SatHalfZ = kHalfWidthShare * State.SatSize * ShapeZLength;
}

void Bodies::DrawLocalAxes() {
  const double width = USERFLAG.ThicknessLineAxis;
  const double y = HasArraysAlongY() ? State.SatHalfY + 7 * State.SatHalfZ : 5 * State.SatHalfY;
  scene.AddAxisFromCenter(width, 1, 1, 1, 1, 0.3F, 0.3F, 5 * State.SatHalfX, 0, 0);
  scene.AddAxisFromCenter(width, 1, 1, 1, 0.3F, 1, 0.3F, 0, y, 0);
  scene.AddAxisFromCenter(width, 1, 1, 1, 0.3F, 0.3F, 1, 0, 0, 3 * State.SatHalfZ);
}

// The angle toward the Sun changes in every frame, and so does that of a globe which turns at the end of the
// data, where its date gives no sidereal angle: while such a one is shown, no two frames are the same.
void Bodies::AddToKey(std::vector<double>& numbers) const {
  const bool hunts = USERFLAG.ShowSatellite != 0 && USERFLAG.SolarPanelToSun == 1 && ShapeArrays >= 1 &&
                     USERFLAG.SatelliteShape != kShapeCubeSat3U5;
  const bool turns = USERFLAG.NoPlotEarth == 0 && ISOmode == 1 && USERFLAG.TimeInData == 1;
  numbers.insert(numbers.end(), {static_cast<double>(ShowSatAxes), ShapeArrays,
                                 hunts ? State.BestSunAngle : 0, turns ? State.EarthSpin : 0});
}

}  // namespace quorb
