#include "Clock.h"

#include "ClassGl.h"
#include "PlotData.h"
#include "RunState.h"
#include "UserFlag.h"
#include "WholeNumber.h"

namespace quorb {

double RedrawState = 0;
double STEPPT = 0;

namespace {

constexpr int kTicksPerCycle = 100;
constexpr int kTicksPerPass = 5;
constexpr int kLastWatchTick = 6;
constexpr double kDefaultStep = 100;

}  // namespace

void UpdateTimer::SetInterval(int milliseconds) {
  if (milliseconds == interval_) return;
  interval_ = milliseconds;
  if (changed) changed(milliseconds);
}

void ClassGl::ChangeCURRINDEXI(const double& newIndex, double& oldIndex) {
  RedrawState = newIndex == oldIndex ? 1 : 0;
  oldIndex = CURRINDEXI;
  AssignRounded(CURRINDEXI, newIndex);
  if (RedrawState == 0) oldIndex = 0;
}

void ClassGl::ChangeCURRINDEXMINI(const double& newIndex, double& oldIndex) {
  if (newIndex == oldIndex) RedrawState = 2;
  oldIndex = CURRINDEXMINI;
  AssignRounded(CURRINDEXMINI, newIndex);
  if (RedrawState == 0) oldIndex = 0;
}

void ClassGl::ChangeSTEPPT(double newStep) {
  STEPPT = newStep;
}

void ClassGl::TheUpdateTimer_ThatTime() {
  if (USERFLAG.UpdateAsked == 1.0 && DEJARESET != 1) return;
  if (!IsPassedTick()) return;
  if (STEPPT == 0) STEPPT = kDefaultStep;
  if (RedrawState < 1) MoveTimeOn();
  if (RedrawState > 1) RedrawState = 1;
  // The line above has brought 2 to 1 already, so nothing comes to this, the only test that would set 3.
  if (RedrawState == 2) RedrawState = 3;
  if (WatchStopped == 1) return;
  const bool looksAtSheet = LoadBusy != 1 && TickCycle <= kLastWatchTick && USERFLAG.InteractiveExcel == 1.0;
  if (looksAtSheet && WatchSheet) WatchSheet();
  if (USERFLAG.MovieFrameCount > 0) MovieSaveAs();
}

bool ClassGl::IsPassedTick() {
  TickCycle = TickCycle % kTicksPerCycle + 1;
  TickPhase = TickPhase % kTicksPerPass + 1;
  return TickPhase == kTicksPerPass;
}

void ClassGl::MoveTimeOn() {
  if (CURRINDEXI >= LastPoint - STEPPT) {
    CURRINDEXI = LastPoint;
  } else {
    AssignRounded(CURRINDEXI, CURRINDEXI + STEPPT);
  }
  if (LastPoint != 0) CycleIndex = (CycleIndex + 1) % LastPoint;
}

}  // namespace quorb
