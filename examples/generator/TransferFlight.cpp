#include "TransferFlight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorb {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kStartDay = 45818.25;  // 2025-06-10 06:00
constexpr double kPerigeeRadius = kEarthRadius + 250;
// Above the ring: the long burns before and behind the apogee give the difference away.
constexpr double kApogeeRadius = kEarthRadius + 35853;
constexpr double kInclination = 7 * std::numbers::pi / 180;

constexpr double kThrustAcceleration = 1.5e-4;  // km/s^2, a 400 N engine on 2.7 t
// The last one is only its expected length: it ends when there is nothing more to gain.
constexpr double kBurnSeconds[] = {2800, 2800, 2600, 1820};
constexpr int kBurns = 4;

// Propellant by the rocket equation: an exhaust speed of 321 s of specific impulse, a tank that holds more
// than the velocity change of the transfer.
constexpr double kExhaustSpeed = 3.148;      // km/s
constexpr double kTankVelocityChange = 1.6;  // km/s

constexpr int kStepSeconds = 10;

/// Flies on step by step and notes a row behind each.
class Recorder {
 public:
  Recorder() : state_(StateAtPerigee(kPerigeeRadius, kApogeeRadius, kInclination)) { NoteRow(false); }

  const OrbitState& State() const { return state_; }
  double Day() const { return kStartDay + seconds_ / kSecondsPerDay; }

  void Coast(double seconds) {
    const int steps = static_cast<int>(std::lround(seconds / kStepSeconds));
    for (int i = 0; i < steps; ++i) {
      Step(0);
      NoteRow(false);
    }
  }

  /// Burns for a time, or when that is not above 0 until less than half a step's gain is left.
  void BurnFor(double seconds) {
    flight.rows.back().burning = true;
    const double start = Day();
    const int end = seconds_ + static_cast<int>(seconds);
    const double least = kThrustAcceleration * kStepSeconds / 2;
    while (seconds > 0 ? seconds_ < end : Length(VelocityToGain(state_)) > least) {
      Step(kThrustAcceleration);
      NoteRow(true);
    }
    flight.rows.back().burning = false;
    flight.burns.push_back({start, Day()});
  }

  Flight flight;

 private:
  void Step(double acceleration) {
    state_ = Advance(state_, acceleration, kStepSeconds);
    seconds_ += kStepSeconds;
    velocityChange_ += acceleration * kStepSeconds;
  }

  void NoteRow(bool burning) {
    const double dryMass = std::exp(-kTankVelocityChange / kExhaustSpeed);
    const double left = (std::exp(-velocityChange_ / kExhaustSpeed) - dryMass) / (1 - dryMass);
    flight.rows.push_back({Day(), state_, burning, std::max(0.0, left)});
  }

  OrbitState state_;
  int seconds_ = 0;
  double velocityChange_ = 0;  // km/s so far
};

}  // namespace

Flight FlyTransfer() {
  Recorder recorder;
  recorder.Coast(PeriodOf(recorder.State()));
  for (int burn = 0; burn < kBurns; ++burn) {
    recorder.Coast(SecondsToApogee(recorder.State()) - kBurnSeconds[burn] / 2);
    recorder.BurnFor(burn + 1 < kBurns ? kBurnSeconds[burn] : 0);
  }
  recorder.Coast(PeriodOf(recorder.State()));
  return recorder.flight;
}

}  // namespace quorb
