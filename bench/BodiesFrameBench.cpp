// A frame with every body on real OpenGL, without a window, beside a bare program that draws two textured
// spheres and as many polygons, those of the solid letters among them; and the search of the attitude at the
// end of a full table beside its start.

#define GL_GLEXT_PROTOTYPES
#include <GL/gl.h>
#include <GL/glext.h>
#include <GL/glu.h>
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Bodies.h"
#include "BodyTextures.h"
#include "ClassGl.h"
#include "DrawingEvents.h"
#include "OffscreenHost.h"
#include "PlotData.h"
#include "Ratio.h"
#include "RowSearch.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr int kPoints = 1000;
constexpr double kFirstDay = 45000;
constexpr double kOrbitRadius = 7000;
/// Body, plume, two arrays and two masts, six sides each.
constexpr int kPolygons = 36;

void StopWhen(bool failed, const std::string& reason) {
  if (!failed) return;
  std::fprintf(stderr, "%s\n", reason.c_str());
  std::exit(1);
}

void FillOrbit() {
  for (int row = 0; row < kPoints; ++row) {
    const double angle = row * 2e-2;
    const double cells[] = {kFirstDay + row * 1e-4, kOrbitRadius * std::cos(angle),
                            kOrbitRadius * std::sin(angle), 0, 0};
    for (int column = 0; column < 5; ++column)
      dataXYZT.Set(row, column, cells[column]);
    dataQuater.Set(row, 0, cells[0]);
    dataQuater.Set(row, 1, std::cos(angle / 2));
    dataQuater.Set(row, 4, std::sin(angle / 2));
  }
  LastPoint = kPoints - 1;
  NbQuater = kPoints;
  NbEvents = 1;
  FactorScale = 80 / kOrbitRadius;
  ISOmode = 1;
  FocusBody = 4;
  InputInKm = true;
  DEJARESET = 1;
  for (int row = 0; row < kPoints; ++row) {
    for (int column = 1; column <= 3; ++column)
      dataXYZT.Set(row, column, dataXYZT[row][column] * FactorScale);
  }
}

void TurnEverythingOn() {
  USERFLAG.SynchroExcelComplete = 1.0;
  USERFLAG.TimeInData = 1;
  USERFLAG.ShowSatellite = 1;
  USERFLAG.SatelliteSize = 100;
  USERFLAG.SolarPanelToSun = 1;
  USERFLAG.LengthAxisFactor = 1;
  USERFLAG.ThicknessLinePlot = 1;
}

/// What the bare program keeps.
struct BareBodies {
  HostTexture* earth = nullptr;
  HostTexture* moon = nullptr;
  unsigned letterTriangles = 0;
};

/// The triangles that the name of the program is made of.
unsigned TrianglesOfName(ClassGl& scene) {
  GLuint query = 0, count = 0;
  glGenQueries(1, &query);
  glBeginQuery(GL_PRIMITIVES_GENERATED, query);
  scene.Host.Text().Draw3D(scene.FontOutline, AppTitle, scene.Range, 0, 0, 1, 0xFFFFFF);
  glEndQuery(GL_PRIMITIVES_GENERATED);
  glGetQueryObjectuiv(query, GL_QUERY_RESULT, &count);
  glDeleteQueries(1, &query);
  return count;
}

void DrawBareSphere(HostTexture& texture, double radius) {
  GLUquadric* const quadric = gluNewQuadric();
  texture.Bind();
  gluQuadricTexture(quadric, GL_TRUE);
  gluSphere(quadric, radius, 106, 106);
  gluDeleteQuadric(quadric);
}

void DrawBare(const BareBodies& bare) {
  glDisable(GL_LIGHTING);
  for (int polygon = 0; polygon < kPolygons; ++polygon) {
    const float z = 80 + 0.1F * static_cast<float>(polygon);
    glBegin(GL_POLYGON);
    for (const auto& corner : {std::pair(-1.F, -1.F), {1.F, -1.F}, {1.F, 1.F}, {-1.F, 1.F}}) {
      glColor3f(1, 0, 0);
      glVertex3f(corner.first, corner.second, z);
    }
    glEnd();
  }
  glBegin(GL_TRIANGLES);
  for (unsigned triangle = 0; triangle < bare.letterTriangles; ++triangle) {
    const float x = 80 + 0.01F * static_cast<float>(triangle % 1000);
    glVertex3f(x, 0, 0);
    glVertex3f(x + 0.01F, 0, 0);
    glVertex3f(x, 0.1F, 0);
  }
  glEnd();
  glEnable(GL_LIGHTING);
  glEnable(GL_LIGHT0);
  glEnable(GL_TEXTURE_2D);
  DrawBareSphere(*bare.earth, 6378 * FactorScale);
  glPushMatrix();
  glTranslatef(0, 0, 4000);
  DrawBareSphere(*bare.moon, 17400 * FactorScale);
  glPopMatrix();
}

void LoadBare(glCtl& host, BareBodies& bare) {
  std::string error;
  bare.earth = &host.NewTexture();
  bare.moon = &host.NewTexture();
  StopWhen(!bare.earth->Load(TextureDirectory + "/earthjpg.jpg", error), error);
  StopWhen(!bare.moon->Load(TextureDirectory + "/moonjpg.jpg", error), error);
}

void FrameWithEverythingOn(benchmark::State& state) {
  FillOrbit();
  TurnEverythingOn();
  TextureDirectory = QUORB_BENCH_TEXTURES;
  TextureLog = [](const std::string& line) { StopWhen(true, line); };
  std::string error;
  const auto host = OffscreenHost::Create(1280, 800, error);
  StopWhen(!host, error);
  ClassGl scene(*host);
  scene.BodiesShown = std::make_unique<Bodies>(scene);
  DrawingEvents events;
  events.scene = &scene;
  StopWhen(!host->Start(events, error), error);
  scene.Range = 80;
  DEJADRAW = 1;
  scene.CURRINDEXI = LastPoint / 2;
  scene.CameraSet("isonew", 3, 1);
  BareBodies bare;
  const auto frame = [&](std::function<void()> draw) {
    return [&, draw = std::move(draw)] {
      events.draw = draw;
      host->Frame();
      glFinish();
    };
  };
  const auto ours = frame([&] { scene.Draw(); });
  ours();
  frame([&] {
    LoadBare(*host, bare);
    bare.letterTriangles = TrianglesOfName(scene);
  })();
  state.counters["letter_triangles"] = bare.letterTriangles;
  Compare(state, ours, frame([&] { DrawBare(bare); }));
  TextureLog = nullptr;
}

/// A thousand frames of an animation over a full table of attitudes: those at its end beside those at its
/// start.
void RowSearchAtTheEnd(benchmark::State& state) {
  for (int row = 0; row < kRowBound; ++row)
    dataQuater.Set(row, 0, kFirstDay + row * 1e-5);
  std::int64_t found = 0;
  const auto walk = [&](std::int64_t first) {
    return [&found, first] {
      found = first;
      for (std::int64_t row = first; row < first + kPoints; ++row)
        found = FindRow(dataQuater, kRowBound, found, dataQuater[row][0]);
      benchmark::DoNotOptimize(found);
    };
  };
  Compare(state, walk(kRowBound - kPoints - 2), walk(0));
}

BENCHMARK(FrameWithEverythingOn)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3);
BENCHMARK(RowSearchAtTheEnd)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace quorb

BENCHMARK_MAIN();
