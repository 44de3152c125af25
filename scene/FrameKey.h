#pragma once

#include <string>
#include <vector>

#include "UserFlag.h"

namespace quorb {

class ClassGl;

/// What a frame is drawn from, but the rows of the plot: behind a load the plot waits to be digested, which
/// is part of the key, and ClassGl::ShowChangedRows forgets the key. Frames of equal keys show the same.
struct FrameKey {
  UserFlagRecord options;
  std::vector<double> numbers;
  std::string title;

  bool operator==(const FrameKey&) const = default;
};

/// The key of the state that holds now.
FrameKey PresentKey(const ClassGl& scene);

}  // namespace quorb
