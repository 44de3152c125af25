#pragma once

#include <functional>

namespace quorb {

/// How the time of the plot runs: 0 it runs, 1 it is held at the present row, 2 and 3 a change of start was
/// asked, which the next passed tick turns into 1.
extern double RedrawState;

/// Rows that a passed tick adds; 0 is read as 100 at the next tick.
extern double STEPPT;

/// The timer that moves the time on: the interval that the scene asks for. The platform's own timer follows
/// it, and calls ClassGl::TheUpdateTimer_ThatTime().
class UpdateTimer {
 public:
  /// Milliseconds between two ticks; 0 until the first plot was digested.
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds);

  /// Takes each new interval, in milliseconds, inside the call that sets it. Setting the interval that holds
  /// is no change.
  std::function<void(int)> changed;

 private:
  int interval_ = 0;
};

}  // namespace quorb
