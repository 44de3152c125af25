#pragma once

namespace quorb {

/// True once one of three measurements keeps its bounds. What else the machine does makes a time longer,
/// never shorter, so that one that keeps them shows what the program is able to.
/// @param measure takes and tells a measurement, and tells whether it keeps its bounds.
template <typename Measure>
bool OneOfThree(Measure&& measure) {
  for (int i = 0; i < 3; ++i) {
    if (measure()) return true;
  }
  return false;
}

}  // namespace quorb
