#pragma once

#include <algorithm>
#include <cstdint>

namespace quorb {

/// Ticks that are owed to the scene when its timer fires, `elapsed` whole milliseconds behind the last time:
/// a frame that takes long holds the timer up, and the time of the plot is to run at the same speed then. At
/// most 95, less than the ticks from one look at the sheet to the next; one while a movie runs, so that no
/// frame of it is passed over.
inline int DueTicks(std::int64_t elapsed, int interval, bool movieRuns) {
  constexpr std::int64_t kMostTicks = 95;
  if (movieRuns || interval < 1) return 1;
  return static_cast<int>(std::clamp<std::int64_t>(elapsed / interval, 0, kMostTicks));
}

}  // namespace quorb
