// A frame of all rows and a capture on real OpenGL, without a window, each beside a bare program that makes
// the same OpenGL calls, or reads and writes the same bytes.

#include <GL/gl.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "ClassGl.h"
#include "DrawingEvents.h"
#include "OffscreenHost.h"
#include "PlotData.h"
#include "Ratio.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr int kRows = kRowBound;
constexpr double kPlotRange = 60;

struct Stage {
  std::unique_ptr<OffscreenHost> host;
  std::unique_ptr<ClassGl> scene;
  DrawingEvents events;
};

std::unique_ptr<Stage> MakeStage(int width, int height) {
  auto stage = std::make_unique<Stage>();
  std::string error;
  stage->host = OffscreenHost::Create(width, height, error);
  if (!stage->host) {
    std::fprintf(stderr, "%s\n", error.c_str());
    std::exit(1);
  }
  stage->scene = std::make_unique<ClassGl>(*stage->host);
  stage->events.scene = stage->scene.get();
  if (!stage->host->Start(stage->events, error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    std::exit(1);
  }
  return stage;
}

void FillPoints() {
  for (int row = 0; row < kRows; ++row) {
    const double angle = row * 1e-4;
    dataXYZT.Set(row, 0, 37000 + row * 1e-5);
    dataXYZT.Set(row, 1, 40 * std::cos(angle));
    dataXYZT.Set(row, 2, 40 * std::sin(angle));
    dataXYZT.Set(row, 3, row * 1e-5);
  }
  LastPoint = kRows - 1;
  NbEvents = 1;
  DEJADRAW = DEJARESET = 1;
  USERFLAG.SynchroExcelComplete = 1.0;
}

std::vector<float> FlatPoints() {
  std::vector<float> flat;
  flat.reserve(3 * static_cast<std::size_t>(kRows));
  for (int row = 0; row < kRows; ++row) {
    for (int column = 1; column <= 3; ++column)
      flat.push_back(static_cast<float>(dataXYZT[row][column]));
  }
  return flat;
}

void BareShadows(const float* point, float face) {
  glEnd();
  glBegin(GL_POINTS);
  glPointSize(0.1F);
  glVertex3f(face, point[1], point[2]);
  glVertex3f(point[0], face, point[2]);
  glVertex3f(point[0], point[1], face);
  glPointSize(0);
  glEnd();
  glBegin(GL_LINE_STRIP);
  glVertex3f(point[0], point[1], point[2]);
}

/// The calls of a frame's trajectory, in the state that the frame sets for it.
void DrawBare(const std::vector<float>& flat, bool cube, float face) {
  glClear(GL_DEPTH_BUFFER_BIT);
  glDisable(GL_LIGHTING);
  glEnable(GL_BLEND);
  glLineWidth(1);
  glPointSize(1);
  glShadeModel(GL_FLAT);
  glColor4f(0, 0.99609375F, 0, 0.6F);
  glBegin(GL_LINE_STRIP);
  for (std::size_t at = 0; at < flat.size(); at += 3) {
    glVertex3f(flat[at], flat[at + 1], flat[at + 2]);
    if (cube) BareShadows(&flat[at], face);
  }
  glEnd();
}

/// The argument is 1 with the cube on.
void FrameOfAllRows(benchmark::State& state) {
  const auto stage = MakeStage(1280, 800);
  FillPoints();
  const bool cube = state.range(0) == 1;
  USERFLAG.CubicView = cube ? 1.0 : 0;
  USERFLAG.LengthAxisFactor = 1;
  stage->scene->Range = kPlotRange;
  stage->scene->CURRINDEXI = LastPoint;
  const std::vector<float> flat = FlatPoints();
  const auto frame = [&](std::function<void()> draw) {
    return [&stage, draw = std::move(draw)] {
      stage->events.draw = draw;
      stage->host->Frame();
      glFinish();
    };
  };
  Compare(state, frame([&] { stage->scene->Draw(); }),
          frame([&] { DrawBare(flat, cube, -static_cast<float>(kPlotRange)); }));
}

void WriteBare(const std::string& path, const std::vector<std::uint8_t>& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

void CaptureOf1920By1080(benchmark::State& state) {
  constexpr int kWidth = 1920, kHeight = 1080;
  const auto stage = MakeStage(kWidth, kHeight);
  stage->events.draw = [&] { stage->scene->Draw(); };
  stage->host->Frame();
  const std::string directory = std::filesystem::temp_directory_path().string();
  const std::string barePath = directory + "/quorb-bench-bare.bin";
  std::vector<std::uint8_t> bytes(3UL * kWidth * kHeight);
  Compare(
      state, [&] { stage->scene->SaveBMP("quorb-bench-capture.bmp", directory); },
      [&] {
        glReadPixels(0, 0, kWidth, kHeight, GL_RGB, GL_UNSIGNED_BYTE, bytes.data());
        WriteBare(barePath, bytes);
      });
  std::filesystem::remove(barePath);
  std::filesystem::remove(directory + "/quorb-bench-capture.bmp");
}

BENCHMARK(FrameOfAllRows)->ArgName("cube")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(CaptureOf1920By1080)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorb

BENCHMARK_MAIN();
