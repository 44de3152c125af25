// A frame's own time on the CPU: the full arrays through the scene, beside a bare loop over the same rows.

#include <GL/gl.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

#include "ClassGl.h"
#include "EmptyHost.h"
#include "PlotData.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kRows = kRowBound;

void FillPoints() {
  for (int row = 0; row < kRows; ++row) {
    const double angle = row * 1e-4;
    dataXYZT.Set(row, 0, 37000 + row * 1e-5);
    dataXYZT.Set(row, 1, 40 * std::cos(angle));
    dataXYZT.Set(row, 2, 40 * std::sin(angle));
    dataXYZT.Set(row, 3, row * 1e-5);
    dataXYZT.Set(row, 4, 0);
  }
  LastPoint = kRows - 1;
}

/// Starts and ends, evenly over the points' times; none leaves the rows of a plot without events.
void FillEvents(int count) {
  dataEvents.Set(0, 0, 0);
  dataEvents.Set(0, 1, 0);
  const double first = dataXYZT[0][0];
  const double span = dataXYZT[LastPoint][0] - first;
  for (int row = 0; row < count; ++row) {
    dataEvents.Set(row, 0, first + span * (row + 0.5) / count);
    dataEvents.Set(row, 1, 1 - row % 2);
  }
  NbEvents = std::max(count, 1);
}

void DrawBareRows() {
  for (int row = 0; row < kRows; ++row) {
    const double* point = dataXYZT[row];
    glVertex3f(static_cast<GLfloat>(point[1]), static_cast<GLfloat>(point[2]),
               static_cast<GLfloat>(point[3]));
  }
}

template <class Work>
double SecondsOf(const Work& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The argument is the number of event changes. The ratio is that of the best times of each side.
void FrameOfAllRows(benchmark::State& state) {
  EmptyHost host;
  ClassGl scene(host);
  FillPoints();
  FillEvents(static_cast<int>(state.range(0)));
  DEJADRAW = 1;
  DEJARESET = 1;
  scene.EventsSingleValued = state.range(0) == 0 ? 1 : 0;
  scene.CURRINDEXI = LastPoint;
  double frame = std::numeric_limits<double>::infinity();
  double bare = std::numeric_limits<double>::infinity();
  while (state.KeepRunning()) {
    bare = std::min(bare, SecondsOf(DrawBareRows));
    const double seconds = SecondsOf([&] { scene.Draw(); });
    frame = std::min(frame, seconds);
    state.SetIterationTime(seconds);
  }
  state.counters["frame_ms"] = frame * 1e3;
  state.counters["bare_ms"] = bare * 1e3;
  state.counters["frame_to_bare"] = frame / bare;
}

/// A tick that moves nothing: the time is held, and no sheet and no movie wait for it.
void IdleTick(benchmark::State& state) {
  EmptyHost host;
  ClassGl scene(host);
  LastPoint = 100;
  RedrawState = 1;
  for (auto unused : state) {
    static_cast<void>(unused);
    scene.TheUpdateTimer_ThatTime();
  }
}

BENCHMARK(IdleTick);

BENCHMARK(FrameOfAllRows)
    ->ArgName("events")
    ->Arg(0)
    ->Arg(10000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorb

BENCHMARK_MAIN();
