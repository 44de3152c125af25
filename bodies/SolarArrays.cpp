#include "SolarArrays.h"

#include <GL/gl.h>

#include <cmath>

#include "Box.h"
#include "ClassGl.h"
#include "Mth.h"
#include "PlotData.h"
#include "QuaterRoutine.h"
#include "RowSearch.h"
#include "SatelliteShape.h"
#include "UserFlag.h"

namespace quorb {

namespace {

/// The whole width of the band that the arrays hunt in, in degrees.
constexpr double kHuntDegrees = 10;
/// Half thickness of plates and masts, as a share of the model's size.
constexpr double kThinShare = 0.01;
constexpr double kNormalShare = 0.1;
constexpr double kSunLineWidth = 7;

bool IsBodyMounted() {
  return USERFLAG.SatelliteShape == kShapeCubeSat3U5;
}

bool DataTurnArrays(const BodyState& state) {
  return USERFLAG.SolarPanelToSun == 0 && static_cast<double>(state.QuaterIndex) < NbQuater;
}

/// An angle that a turn in single precision can take.
bool IsTurn(double angle) {
  return std::isfinite(static_cast<float>(angle));
}

double PlusYAngle(const BodyState& state) {
  if (IsBodyMounted()) return 0;
  if (DataTurnArrays(state) && NbSApY > 0) return CellOrZero(dataSApY, state.SApYIndex, 1);
  return USERFLAG.SolarPanelToSun == 1 ? state.BestSunAngle : 0;
}

// The array on the minus Y side keeps the angle of the other one where it has none of its own.
void TakeMinusYAngle(BodyState& state) {
  state.ArraySign = 1;
  if (!DataTurnArrays(state) || NbSAmY <= 0) return;
  const double angle = CellOrZero(dataSAmY, state.SAmYIndex, 1);
  if (IsTurn(angle)) state.ArrayAngle = angle;
  state.ArraySign = -1;
}

void DrawSunLine(ClassGl& scene, const BodyState& state) {
  const auto& sun = state.SunPoint;
  scene.AddAxisFromCenter(kSunLineWidth, 1, 0, 1, 1, 1, 0, state.RayScale * sun[0], state.RayScale * sun[1],
                          state.RayScale * sun[2]);
}

// A part that shares surfaces with one drawn before leaves them to that one, or the two would mix.
void StartBehind() {
  glPolygonOffset(1, 1);
  glEnable(GL_POLYGON_OFFSET_FILL);
}

void EndBehind() {
  glDisable(GL_POLYGON_OFFSET_FILL);
}

// A wing stands clear of the body on its Y side; a body-mounted plate lies on the minus X side.
void DrawPanel(ClassGl& scene, const BodyState& state, int side) {
  const double thin = kThinShare * state.SatSize;
  const double hx = state.SatHalfX, hy = state.SatHalfY, hz = state.SatHalfZ;
  if (IsBodyMounted()) {
    StartBehind();
    monolitheNonCenter(thin, 5 * hy, hz, -hx / 2 + thin / 2, 0, 0);
    EndBehind();
    DrawSunLine(scene, state);
  } else {
    monolitheNonCenter(hx, 2 * hz, thin, 0, side * (hy / 2 + hz / 2), 0);
  }
}

void DrawPanelNormal(ClassGl& scene, const BodyState& state) {
  scene.AddAxisFromCenter(3 * USERFLAG.ThicknessLineAxis, 0.5, 0.5, 0.5, 1, 1, 0, 0, 0,
                          -kNormalShare * state.SatSize);
}

void DrawMast(const BodyState& state) {
  const double thin = kThinShare * state.SatSize;
  const double half = (state.SatHalfY + state.SatHalfZ) / 2;
  const auto centre = static_cast<GLfloat>(half);
  glTranslatef(0, centre, 0);
  if (!IsBodyMounted()) monolythe(thin, half, thin);
  glTranslatef(0, -centre, 0);
}

void TurnAboutY(const BodyState& state, int sign) {
  glRotatef(static_cast<GLfloat>(state.ArrayAngle), 0, static_cast<GLfloat>(sign), 0);
}

void DrawPlusYArray(ClassGl& scene, BodyState& state) {
  const double angle = PlusYAngle(state);
  if (IsTurn(angle)) state.ArrayAngle = angle;
  glPushMatrix();
  TurnAboutY(state, 1);
  DrawPanel(scene, state, 1);
  if (USERFLAG.SolarPanelToSun == 1 && !IsBodyMounted()) DrawPanelNormal(scene, state);
  glPopMatrix();
  DrawMast(state);
}

void DrawMinusYArray(ClassGl& scene, BodyState& state) {
  const double thin = kThinShare * state.SatSize;
  StartBehind();
  monolythe(thin, state.SatHalfY + state.SatHalfZ, thin);
  EndBehind();
  TakeMinusYAngle(state);
  glPushMatrix();
  TurnAboutY(state, state.ArraySign);
  DrawPanel(scene, state, -1);
  glPopMatrix();
}

}  // namespace

void TakeBestSunAngle(BodyState& state, double random) {
  const auto alongZ = static_cast<float>(vDot(state.SatAxisZ, state.SunFromBody));
  const auto alongX = static_cast<float>(vDot(state.SatAxisX, state.SunFromBody));
  if (!std::isfinite(alongZ) || !std::isfinite(alongX)) return;
  state.BestSunAngle = DegPos(Atan2s(alongZ, alongX)) + (random - 0.5) * kHuntDegrees;
}

void DrawSolarArrays(ClassGl& scene, BodyState& state) {
  if (ShapeArrays >= 1) DrawPlusYArray(scene, state);
  if (ShapeArrays == 2) DrawMinusYArray(scene, state);
}

}  // namespace quorb
