#pragma once

namespace quorb {

/// The clock that movies run by.
class DayClock {
 public:
  virtual ~DayClock() = default;

  /// Seconds since the midnight before the program started, with fractions. Behind the next midnight it goes
  /// on beyond 86400, so that a movie does not stop there.
  virtual double Seconds() const = 0;
};

/// The clock of this process. Until one is set, it stands at 0.
DayClock& CurrentDayClock();

/// Sets the clock of this process; a null pointer takes it back. The caller keeps the ownership.
void SetDayClock(DayClock* clock);

}  // namespace quorb
