#pragma once

#include <string>
#include <vector>

#include "UserFlag.h"

namespace quorb {

class ClassGl;

/// What a frame is drawn from, but the rows of the plot: those change by a load alone, and behind it the plot
/// waits to be digested, which is part of the key. Frames of equal keys show the same.
struct FrameKey {
  UserFlagRecord options;
  std::vector<double> numbers;
  std::string title;

  bool operator==(const FrameKey&) const = default;
};

/// The key of the state that holds now.
FrameKey PresentKey(const ClassGl& scene);

}  // namespace quorb
