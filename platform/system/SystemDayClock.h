#pragma once

#include <chrono>

#include "DayClock.h"

namespace quorb {

/// The clock of the computer: the local time of day at its making, and from there on a clock that no change
/// of the computer's time moves.
class SystemDayClock : public DayClock {
 public:
  SystemDayClock();
  double Seconds() const override;

 private:
  double start_;
  std::chrono::steady_clock::time_point made_;
};

}  // namespace quorb
