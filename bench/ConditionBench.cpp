// The conditioning of all rows, beside bare loops that read and write the same columns as often.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <limits>

#include "Conditioning.h"
#include "FakeLoaderWindow.h"
#include "PlotData.h"
#include "Ratio.h"
#include "RunState.h"
#include "SpecialPlots.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr int kRows = kRowBound;

void FillPoints() {
  for (int row = 0; row < kRows; ++row) {
    const double angle = row * 1e-5;
    dataXYZT.Set(row, 0, 45000 + row * 1e-5);
    dataXYZT.Set(row, 1, 40000 * std::cos(angle));
    dataXYZT.Set(row, 2, 40000 * std::sin(angle));
    dataXYZT.Set(row, 3, row * 1e-5);
    timeAssigned.set(static_cast<std::size_t>(row));
  }
  LastPoint = kRows - 1;
}

void FillColourValues() {
  for (int row = 0; row < kRows; ++row) {
    dataSAmY.Set(row, 0, row);
    dataSAmY.Set(row, 1, row * 1e-6);
  }
  NbSAmY = kRows;
}

/// One pass that reads and writes the three coordinates.
void BarePointPass() {
  for (int row = 0; row < kRows; ++row) {
    double* cells = dataXYZT[row];
    cells[1] = cells[1] * 1.0000001;
    cells[2] = cells[2] * 1.0000001;
    cells[3] = cells[3] * 1.0000001;
  }
}

double BareSum() {
  double sum = 0;
  for (int row = 0; row < kRows; ++row) {
    const double* cells = dataXYZT[row];
    sum += cells[1] + cells[2] + cells[3];
  }
  return sum;
}

void BareColourPasses() {
  for (int row = 0; row + 1 < kRows; ++row) {
    dataValZ[row][0] = dataSAmY[row + 1][0];
    dataValZ[row][1] = dataSAmY[row + 1][1];
  }
  double high = dataValZ[0][1];
  double low = high;
  for (int row = 0; row < kRows; ++row) {
    high = std::max(high, dataValZ[row][1]);
    low = std::min(low, dataValZ[row][1]);
  }
  benchmark::DoNotOptimize(high);
  benchmark::DoNotOptimize(low);
}

/// A load of rows that are there already, with a title's axis changes.
LoadState LoadOf(int circularShift, int exchange) {
  LoadState load;
  load.keywords.circularShift = circularShift;
  load.keywords.exchange = exchange;
  load.pass.row = kRows;
  load.pass.scale = 0.01;
  load.givenScale = 0.01;
  return load;
}

void AxisChange(benchmark::State& state) {
  FakeLoaderWindow window;
  const int shift = static_cast<int>(state.range(0));
  const int exchange = static_cast<int>(state.range(1));
  Compare(
      state,
      [&] {
        LoadState load = LoadOf(shift, exchange);
        ConditionPlot(load, window);
      },
      BarePointPass, FillPoints);
}

void NorthEastDown(benchmark::State& state) {
  TitleKeywords place;
  place.latitude = 45;
  place.longitude = 7;
  Compare(
      state,
      [&] {
        double scale = 1.0001;
        NedConversion(place, 0.01, scale);
      },
      BarePointPass, FillPoints);
}

/// Without a jump all rows are walked three times: to look for the seam, to join, and to turn.
void EarthMoon(benchmark::State& state) {
  Compare(
      state, [] { EarthMoonFrame(0.01); },
      [] {
        benchmark::DoNotOptimize(BareSum());
        BarePointPass();
        BarePointPass();
      },
      FillPoints);
}

void ColourValues(benchmark::State& state) {
  FakeLoaderWindow window;
  FillPoints();
  Compare(
      state,
      [&] {
        LoadState load = LoadOf(0, 0);
        ConditionPlot(load, window);
      },
      BareColourPasses, FillColourValues);
}

BENCHMARK(AxisChange)
    ->ArgNames({"shift", "exchange"})
    ->Args({1, 0})
    ->Args({0, 3})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(NorthEastDown)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(EarthMoon)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ColourValues)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorb

BENCHMARK_MAIN();
