// `EphemerisAt` of all bodies at new times beside the same low-precision job of a public astronomy library:
// eraPlan94 for the eight planets, whose Earth is the Sun's opposite, and eraMoon98. The two run in turn, so
// that a busy machine slows both; what counts is the ratio of the medians.

#include <benchmark/benchmark.h>
#include <erfa.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "Ephemeris.h"
#include "ModMATHASdbl.h"

namespace quorb {

namespace {

constexpr int kTimes = 2000;
constexpr int kRounds = 41;
constexpr double kFirstDay = 18262.5;  // 1950, in days from the epoch of the ephemerides
constexpr double kStep = 17.93;
constexpr std::array<int, 11> kBodies = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, kMoonBody};
constexpr int kLibraryPlanets = 8;

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

double TimeEphemerisAt() {
  const auto start = Clock::now();
  Vector3 helio, geo;
  for (int i = 0; i < kTimes; ++i) {
    for (const int body : kBodies) {
      EphemerisAt(kFirstDay + kStep * i, body, 0.0, helio, geo);
      benchmark::DoNotOptimize(helio);
      benchmark::DoNotOptimize(geo);
    }
  }
  return SecondsSince(start);
}

double TimeLibrary() {
  const auto start = Clock::now();
  double position[2][3];
  for (int i = 0; i < kTimes; ++i) {
    const double day = kFirstDay + kStep * i;
    for (int planet = 1; planet <= kLibraryPlanets; ++planet) {
      eraPlan94(kEphemerisEpoch, day, planet, position);
      benchmark::DoNotOptimize(position);
    }
    eraMoon98(kEphemerisEpoch, day, position);
    benchmark::DoNotOptimize(position);
  }
  return SecondsSince(start);
}

void AllBodies(benchmark::State& state) {
  std::vector<double> own, library;
  for (auto unused : state) {
    static_cast<void>(unused);
    for (int round = 0; round < kRounds; ++round) {
      own.push_back(TimeEphemerisAt());
      library.push_back(TimeLibrary());
    }
    state.SetIterationTime(Median(own));
  }
  constexpr double kMicroseconds = 1e6 / kTimes;
  state.counters["ephemeris_us"] = Median(own) * kMicroseconds;
  state.counters["library_us"] = Median(library) * kMicroseconds;
  state.counters["ephemeris_per_library"] = Median(own) / Median(library);
}

BENCHMARK(AllBodies)->Iterations(1)->UseManualTime();

}  // namespace

}  // namespace quorb

BENCHMARK_MAIN();
