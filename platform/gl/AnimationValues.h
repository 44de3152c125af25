#pragma once

#include <functional>
#include <utility>

#include "glCtl.h"

namespace quorb {

/// The animation switch of a host. Setting it does nothing until Update, which calls `apply` when the switch
/// stands otherwise than at the last Update.
class AnimationValues : public HostAnimation {
 public:
  /// `applySwitch` starts (true) or stops (false) the host's ticks; none for a host without a clock.
  explicit AnimationValues(std::function<void(bool)> applySwitch = {}) : apply(std::move(applySwitch)) {}

  bool Enabled() const override { return enabled; }
  void SetEnabled(bool on) override { enabled = on; }
  void Update() override {
    if (enabled == applied) return;
    applied = enabled;
    if (apply) apply(applied);
  }

 private:
  std::function<void(bool)> apply;
  bool enabled = false;
  bool applied = false;
};

}  // namespace quorb
