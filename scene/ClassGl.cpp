#include "ClassGl.h"

#include <algorithm>
#include <cstdio>

#include "Normalise.h"
#include "PlotData.h"
#include "RunState.h"
#include "SceneColour.h"
#include "UserFlag.h"
#include "WholeNumber.h"

namespace quorb {

GLUquadric* GlQuadric = nullptr;
std::string TitlePrefix = " ";
std::string AppTitle = "QuorbExcelPro";

namespace {

/// Axes reach a tenth beyond the plot where the user gave no factor.
constexpr double kAxisOverhang = 1.1;

extern "C" void ReportQuadricError(GLenum code) {
  std::fprintf(stderr, "Quadric: %s\n", reinterpret_cast<const char*>(gluErrorString(code)));
}

}  // namespace

ClassGl::ClassGl(glCtl& hostControl) : Host(hostControl) {
  FactorScale = 1.0;
  MessageUserToPlot.clear();
}

ClassGl::~ClassGl() {
  if (GlQuadric != nullptr) gluDeleteQuadric(GlQuadric);
  GlQuadric = nullptr;
}

double ClassGl::AxisLength() const {
  return Range * (USERFLAG.LengthAxisFactor != 0 ? USERFLAG.LengthAxisFactor : kAxisOverhang);
}

void ClassGl::init() {
  Host.SetDepthBuffer(true);
}

void ClassGl::InitGL() {
  SetClearColour(USERFLAG.ColourBackground);
  PlaceLight(10, 30, 150);

  HostCamera& camera = Host.Camera();
  camera.SetUp(0, 1, 0);
  camera.SetTarget(0, 0, 0);
  camera.SetPosition(100, 100, 100);
  camera.SetFar(10000);
  camera.SetNear(-10000);
  camera.SetField(180);
  camera.SetProjection(1);

  MakeDefaultMaterial();
  Material15 = &Host.Materials(15);
  Material13 = &Host.Materials(13);
  Material14 = &Host.Materials(14);
  Material16 = &Host.Materials(16);

  Host.SetDepthTest(true);
  Host.SetAntialiasing(true);
  if (Range == 0) Range = 90;
  Host.SetSize(Range, Range, Range);

  GridsOn = false;
  GlQuadric = gluNewQuadric();
  gluQuadricCallback(GlQuadric, GLU_ERROR, reinterpret_cast<_GLUfuncptr>(ReportQuadricError));
  HostDC = Host.hDC();
  EditStateValue = static_cast<int>(MouseMode::select);

  glDisable(GL_LIGHTING);
  glEnable(GL_MAP1_VERTEX_3);
  glShadeModel(GL_FLAT);
  camera.SetOrtho(-Range, Range, -Range, Range);
  glEnable(GL_CULL_FACE);
  glColorMaterial(GL_FRONT, GL_AMBIENT_AND_DIFFUSE);
  MakeFonts();
}

void ClassGl::PlaceLight(double x, double y, double z) {
  HostLight& light = Host.Lights(1);
  light.SetAmbient(0, 1, 1, 1);
  light.SetDiffuse(1, 0, 1, 1);
  light.SetSpecular(1, 1, 0, 1);
  light.SetPosition(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
  light.SetEnabled(true);
}

void ClassGl::MakeDefaultMaterial() {
  DefaultMaterial = &Host.NewMaterial();
  DefaultMaterial->SetFace(GL_FRONT);
  DefaultMaterial->SetAmbient(0.1F, 0.1F, 0.1F, 1);
  DefaultMaterial->SetDiffuse(0.3F, 0.3F, 0.7F, 1);
  DefaultMaterial->SetSpecular(0.6F, 0.6F, 0.6F, 1);
  DefaultMaterial->SetSpecExp(60);
}

void ClassGl::MakeFonts() {
  HostText& text = Host.Text();
  text.NewOutlineFont(HostDC, FontOutline, "Comic Sans MS", true, false, 0.1);
  text.NewBitmapFont(HostDC, FontLabelLarge, "Arial", true, true, 9);
  text.NewBitmapFont(HostDC, FontLabelSmall, "Arial", true, true, 6);
}

void ClassGl::DrawGDI() {
  Host.PrintText(8, 3, TitlePrefix + "  " + MessageUserToPlot);
}

bool ClassGl::Reshape(int& width, int& height) {
  struct {
    float x, y, z;
  } position, target, up;
  HostCamera& camera = Host.Camera();
  camera.GetPosition(position.x, position.y, position.z);
  camera.GetTarget(target.x, target.y, target.z);
  camera.GetUp(up.x, up.y, up.z);
  ViewWidth = width;
  ViewHeight = height;
  camera.Look(position.x, position.y, position.z, target.x, target.y, target.z, up.x, up.y, up.z);
  return true;
}

void ClassGl::Reset() {
  if (DEJARESET != 1 && USERFLAG.SynchroExcelComplete == 0.0) return;
  NormalisePlot(*this);
  PlaceLight(Range * 0.01 * 10, Range * 0.01 * 30, Range * 0.01 * 150);
  if (LoadOfKeptView == LoadsStarted) {
    KeepTimeOfPlot();
  } else {
    Host.Camera().SetField(180);
    Host.Camera().SetPosition(0, 0, static_cast<float>(6 * Range));
    StartTimeOfPlot();
  }
  ResetDone = true;
}

void ClassGl::ShowChangedRows() {
  if (DEJADRAW != 0) LoadOfKeptView = LoadsStarted;
  DEJADRAW = 0;
  RowsAreChanged = true;
  KeepTimeOfPlot();
  LastKey = FrameKey();  // the rows themselves stand in no key
}

void ClassGl::KeepTimeOfPlot() {
  CURRINDEXI = std::min(CURRINDEXI, LastPoint);
  CycleIndex = std::min(CycleIndex, LastPoint);
}

void ClassGl::StartTimeOfPlot() {
  if (TimerInterval != 0) {
    CURRINDEXI = 0;
    CycleIndex = 0;
    TheUpdateTimer.SetInterval(TimerInterval);
  } else {
    AssignRounded(CURRINDEXI, StartFraction * LastPoint);
    AssignRounded(CycleIndex, StartFraction * LastPoint);
  }
}

}  // namespace quorb
