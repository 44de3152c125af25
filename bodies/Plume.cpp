#include "Plume.h"

#include "Box.h"
#include "NumberPicture.h"
#include "PlotData.h"
#include "SatelliteShape.h"

namespace quorb {

namespace {

constexpr double kPlumeWidthShare = 0.02;
/// Outside an event stretch the plume is this many times shorter.
constexpr double kIdlePlumeDivisor = 15;

double EventTime(std::int64_t row) {
  return dataEventLog.time.Holds(row) ? dataEventLog.time[row][0] : 0;
}

std::int64_t RunningEvent(double time) {
  for (std::int64_t row = 1;; ++row) {
    if (time > EventTime(row) && time <= EventTime(row + 1)) return row;
    if (row >= NbEvents - 1) return 0;
  }
}

void TakeRunningEvent(BodyState& state) {
  state.EventFound = RunningEvent(state.CurrentTime);
  state.EventFrom = GeneralNumber(EventTime(state.EventFound));
  state.EventTo = dataEventLog.text[state.EventFound + 2];
}

double HalfSizeAlongThrust(const BodyState& state) {
  if (ThrustAxisZ != 0) return state.SatHalfZ;
  return ThrustAxisY != 0 ? state.SatHalfY : state.SatHalfX;
}

}  // namespace

void DrawPlume(BodyState& state) {
  state.PlumeHalf = HalfSizeAlongThrust(state);
  if (state.InThrust == 1) {
    TakeRunningEvent(state);
  } else {
    state.PlumeHalf /= kIdlePlumeDivisor;
  }
  const double w = kPlumeWidthShare * state.SatSize;
  if (ThrustAxisZ != 0) {
    monolitheNonCenter(w, w, state.PlumeHalf, 0, 0, -state.SatHalfZ / 2 * SignOf(ThrustAxisZ));
  } else if (ThrustAxisY != 0) {
    monolitheNonCenter(w, state.PlumeHalf, w, 0, -state.SatHalfY / 2 * SignOf(ThrustAxisY), 0);
  } else if (ThrustAxisX != 0) {
    monolitheNonCenter(state.PlumeHalf, w, w, -state.SatHalfX / 2 * SignOf(ThrustAxisX), 0, 0);
  }
}

}  // namespace quorb
