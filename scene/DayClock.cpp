#include "DayClock.h"

namespace quorb {

namespace {

class NoClock : public DayClock {
 public:
  double Seconds() const override { return 0; }
};

NoClock noClock;
DayClock* currentClock = &noClock;

}  // namespace

DayClock& CurrentDayClock() {
  return *currentClock;
}

void SetDayClock(DayClock* clock) {
  currentClock = clock != nullptr ? clock : &noClock;
}

}  // namespace quorb
