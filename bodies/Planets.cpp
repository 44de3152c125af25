#include "Planets.h"

#include "BodyTextures.h"
#include "Ephemeris.h"
#include "LineWidth.h"
#include "ModMATHASdbl.h"
#include "PlotData.h"
#include "RunState.h"
#include "SceneColour.h"
#include "SpinAngles.h"
#include "UserFlag.h"

namespace quorb {

namespace {

/// From a sheet's serial date to the days of the ephemerides.
constexpr double kEphemerisDays = 366;
constexpr double kMetresPerKilometre = 1000;
constexpr double kMetresPerLightUnit = 1000000;
constexpr int kSphereParts = 106;

GLfloat Single(double value) {
  return static_cast<GLfloat>(value);
}

FrameTime TimeOfFrame(const ClassGl& scene, const BodyState& state) {
  return {state.CurrentTime, scene.CURRINDEXI, scene.CURRINDEXMINI, LastPoint};
}

void RenewQuadric(GLUquadric*& quadric) {
  if (quadric != nullptr) gluDeleteQuadric(quadric);
  quadric = gluNewQuadric();
}

/// The central body's radius. One that fills the scene twice shows that the sheet's numbers are metres though
/// nothing says so.
void TakeBodyRadius(const ClassGl& scene, BodyState& state) {
  ClassGl::MainFocus(state.BodyRadius, MoonFocus, FocusBody);
  const bool saidInUnits = USERFLAG.InMetres == 1 || InputInKm;
  if (!saidInUnits && state.BodyRadius * FactorScale > 2 * scene.AxisLength()) {
    state.BodyRadius /= kMetresPerKilometre;
  }
}

bool TakeSun(BodyState& state) {
  Vector3 fromSun;
  return EphemerisAt(state.CurrentTime - kEphemerisDays, 0, 0, fromSun, state.SunVector);
}

void TakeLightPlace(BodyState& state) {
  EclipticToEquator(state.SunVector, state.SunEquator);
  for (std::size_t k = 0; k < 3; ++k)
    state.SunPoint[k] = Single(state.SunEquator.component[k] / kMetresPerLightUnit);
}

void TakeMoon(BodyState& state) {
  if (USERFLAG.EMView == 1 || EMSystem == 1) {
    state.SunVector = Vector3{{EMDistance, 0, 0}};
    return;
  }
  constexpr double kUnusedPlace = 4;
  Vector3 fromSun;
  EphemerisAt(state.CurrentTime - kEphemerisDays, kMoonBody, kUnusedPlace, fromSun, state.SunVector);
}

void SetLightColours() {
  constexpr GLfloat kAmbient[] = {0.2F, 0.2F, 0.4F, 0};
  constexpr GLfloat kDiffuse[] = {1, 1, 0.7F, 0};
  constexpr GLfloat kSpecular[] = {0.9F, 0.9F, 0.9F, 0};
  glLightfv(GL_LIGHT0, GL_AMBIENT, kAmbient);
  glLightfv(GL_LIGHT0, GL_DIFFUSE, kDiffuse);
  glLightfv(GL_LIGHT0, GL_SPECULAR, kSpecular);
}

void SetMoonAxisColour() {
  if (USERFLAG.NoPlotAxis == 0) SetOptionColour(USERFLAG.ColourAxis, 1);
  if (USERFLAG.NoColourAxisX == 0) glColor3f(1, 1, 0);
}

// In its own colour: neither lit nor under the Moon's picture.
void DrawMoonAxis(const ClassGl& scene) {
  glDisable(GL_TEXTURE_2D);
  glDisable(GL_LIGHTING);
  constexpr double kAxisRadius = 1738, kRadiiToEnd = 3;
  const GLfloat length = Single(kAxisRadius * FactorScale * kRadiiToEnd * USERFLAG.MoonAmplification);
  glNewList(scene.glLISTE.Sphere, GL_COMPILE);
  glLineWidth(2);
  glBegin(GL_LINES);
  glVertex3f(0, 0, -length);
  glVertex3f(0, 0, length);
  glEnd();
  glLineWidth(DrawnWidth(USERFLAG.ThicknessLinePlot));
  glEndList();
  glEnable(GL_LIGHTING);
  glEnable(GL_TEXTURE_2D);
}

}  // namespace

void StartBodies(const ClassGl& scene, BodyState& state) {
  TakeCurrentTime(scene, state);
  if (USERFLAG.SatelliteModelReady != 0) return;
  state.EarthTextureReady = state.MoonTextureReady = 0;
  USERFLAG.SatelliteModelReady = 1.0;
}

void DrawSunRay(ClassGl& scene, BodyState& state) {
  TakeBodyRadius(scene, state);
  constexpr double kRayRadii = 1.1;
  constexpr double kAstronomicalUnitKm = 150000000;
  state.RayScale = state.BodyRadius * FactorScale * kMetresPerKilometre / kAstronomicalUnitKm * kRayRadii *
                   (1 + USERFLAG.NoSunRay);
  if (USERFLAG.NoSunRay == 1) return;
  constexpr double kRayWidth = 7;
  scene.AddAxisFromCenter(kRayWidth, 1, 0, 1, 1, 1, 0, state.RayScale * state.SunPoint[0],
                          state.RayScale * state.SunPoint[1], state.RayScale * state.SunPoint[2]);
}

void SunAndLight(BodyState& state) {
  TakeSun(state);
  glClearDepth(1);
  glShadeModel(GL_SMOOTH);
  glEnable(GL_DEPTH_TEST);
  glEnable(GL_LIGHTING);
  glEnable(GL_LIGHT0);
  SetLightColours();
  const bool isKnown = TakeSun(state);
  if (isKnown) TakeLightPlace(state);
  glLightfv(GL_LIGHT0, GL_POSITION, state.SunPoint.data());
  glLineWidth(DrawnWidth(USERFLAG.ThicknessLinePlot));
  for (int k = 1; isKnown && k <= 3; ++k)
    state.SunFromBody(k) = -state.SunVector(k);
}

void DrawCentralBody(const ClassGl& scene, BodyState& state) {
  RenewQuadric(state.EarthQuadric);
  TurnCentralBody(TimeOfFrame(scene, state), MoonFocus, USERFLAG.MovieFrameTime, state.EarthSpin);
  glEnable(GL_TEXTURE_2D);
  glMatrixMode(GL_TEXTURE);
  glLoadIdentity();
  if (state.EarthTextureReady != 1) {
    LoadBodyTexture(scene.Host, state.EarthTexture, CentralTextureName(MoonFocus, FocusBody));
    state.EarthTextureReady = 1;
  }
  state.EarthTexture->Bind();
  if (!state.EarthTexture->HasPicture()) SetOptionColour(USERFLAG.ColourSphere, 1);
  gluQuadricTexture(state.EarthQuadric, GL_TRUE);
  glMatrixMode(GL_MODELVIEW);
  if (USERFLAG.TimeInData == 1) {
    if (dataXYZT.Holds(scene.CURRINDEXI)) SiderealAngle(dataXYZT[scene.CURRINDEXI][0], state.EarthSpin);
    glRotatef(Single(state.EarthSpin), 0, 0, 1);
  }
  TakeBodyRadius(scene, state);
  gluSphere(state.EarthQuadric, state.BodyRadius * FactorScale, kSphereParts, kSphereParts);
}

void DrawMoon(const ClassGl& scene, BodyState& state) {
  if (MoonFocus == 1 || MoonSwitch == 1) return;
  TakeMoon(state);
  RenewQuadric(state.MoonQuadric);
  SetOptionColour(USERFLAG.ColourSphere, 1);
  TurnMoon(TimeOfFrame(scene, state), state.MoonSpin);
  if (state.MoonTextureReady != 1) {
    LoadBodyTexture(scene.Host, state.MoonTexture, MoonTextureName);
    state.MoonTextureReady = 1;
  }
  state.MoonTexture->Bind();
  gluQuadricTexture(state.MoonQuadric, GL_TRUE);
  glMatrixMode(GL_MODELVIEW);
  constexpr GLfloat kTiltDegrees = 23.45F;
  if (USERFLAG.EMView == 0 && EMSystem == 0) glRotatef(kTiltDegrees, 1, 0, 0);
  const double scale = FactorScale / kMetresPerKilometre;
  glTranslatef(Single(state.SunVector(1) * scale), Single(state.SunVector(2) * scale),
               Single(state.SunVector(3) * scale));
  SetMoonAxisColour();
  DrawMoonAxis(scene);
  if (!state.MoonTexture->HasPicture()) SetOptionColour(USERFLAG.ColourSphere, 1);
  if (USERFLAG.TimeInData == 1) glRotatef(Single(state.MoonSpin), 0, 0, 1);
  constexpr double kSphereRadius = 1740;
  gluSphere(state.MoonQuadric, USERFLAG.MoonAmplification * kSphereRadius * FactorScale, kSphereParts,
            kSphereParts);
}

void EndBodies(BodyState& state) {
  if (state.EarthQuadric != nullptr) gluDeleteQuadric(state.EarthQuadric);
  if (state.MoonQuadric != nullptr) gluDeleteQuadric(state.MoonQuadric);
  state.EarthQuadric = state.MoonQuadric = nullptr;
}

}  // namespace quorb
