#pragma once

#include "DayClock.h"

namespace quorb {

/// A clock that a test sets. It is the process's clock for as long as it lives.
class ScriptedDayClock : public DayClock {
 public:
  ScriptedDayClock() { SetDayClock(this); }
  ~ScriptedDayClock() override { SetDayClock(nullptr); }
  ScriptedDayClock(const ScriptedDayClock&) = delete;
  ScriptedDayClock& operator=(const ScriptedDayClock&) = delete;

  double Seconds() const override { return seconds; }

  double seconds = 0;
};

}  // namespace quorb
