#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>

namespace quorb {

/// Seconds that the work takes.
inline double SecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Runs both sides in turn, each behind `prepare`, and reports the ratio of their best times.
inline void Compare(
    benchmark::State& state, const std::function<void()>& ours, const std::function<void()>& bareOne,
    const std::function<void()>& prepare = [] {}) {
  double own = std::numeric_limits<double>::infinity();
  double bare = std::numeric_limits<double>::infinity();
  while (state.KeepRunning()) {
    prepare();
    bare = std::min(bare, SecondsOf(bareOne));
    prepare();
    const double seconds = SecondsOf(ours);
    own = std::min(own, seconds);
    state.SetIterationTime(seconds);
  }
  state.counters["own_ms"] = own * 1e3;
  state.counters["bare_ms"] = bare * 1e3;
  state.counters["own_to_bare"] = own / bare;
}

}  // namespace quorb
