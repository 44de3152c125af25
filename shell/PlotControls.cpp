#include "PlotControls.h"

#include <cmath>

#include "NumberPicture.h"
#include "PlotData.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr double kDefaultFrames = 20;
constexpr double kMostFrames = 900;

void SlowDown() {
  ScrollBar& speed = frmMain->HScroll2;
  if (speed.value == 9) speed.value = 7;
  speed.value = 0;
}

// The bar shows the row that is held, and the time runs on from it.
double FollowHeldRow(ScrollBar& bar) {
  double index = 0;
  TheScene->ChangeCURRINDEXI(index, index);
  double flag = -1;
  TheScene->ChangeCURRINDEXI(index, flag);
  if (LastPoint == 0) return 0;
  const double place = index / LastPoint * bar.max;
  bar.Tag = "update";
  AssignNumber(bar.value, place);
  bar.Tag.clear();
  return place;
}

double HeldStart(const ScrollBar& bar) {
  double index = 0;
  TheScene->ChangeCURRINDEXMINI(index, index);
  double flag = -1;
  TheScene->ChangeCURRINDEXMINI(index, flag);
  return LastPoint == 0 ? 0 : index / LastPoint * bar.max;
}

}  // namespace

void HScroll1_Change() {
  ScrollBar& bar = frmMain->HScroll1;
  if (bar.Tag == "update") return;
  if (frmMain->RedrawTouched == 1) SlowDown();
  frmMain->RedrawTouched = 1;
  double place = bar.value;
  const bool isHeld = RedrawState == 1;
  if (place == 0) bar.value = 1;
  if (isHeld) {
    place = RedrawState == 1 ? FollowHeldRow(bar) : bar.value.Get();
  } else {
    double flag = -1;
    TheScene->ChangeCURRINDEXI(LastPoint * place / bar.max, flag);
  }
  frmMain->Text3.caption = "Redraw " + FormatPicture(place, " #0");
}

void HScroll2_Change() {
  ScrollBar& bar = frmMain->HScroll2;
  bar.min = 0;
  const double speed = std::pow(2.0, bar.value);
  if (TheScene != nullptr) TheScene->ChangeSTEPPT(speed);
  frmMain->Text2.caption = "Redraw speed" + FormatPicture(speed, " #0");
}

void HScroll4_Change() {
  ScrollBar& bar = frmMain->HScroll4;
  double place = bar.value;
  if (place == 0) bar.value = 1;
  if (RedrawState == 1) {
    place = HeldStart(bar);
  } else {
    double flag = -1;
    TheScene->ChangeCURRINDEXMINI(LastPoint * place / bar.max, flag);
  }
  frmMain->Text10.caption = "Starting" + FormatPicture(place, " #0");
}

void HScroll5_Change() {
  MainWindow& window = *frmMain;
  if (window.MovieTouched == 1) SlowDown();
  window.MovieTouched = 1;
  const double frames = window.HScroll5.value;
  USERFLAG.MovieFrames = frames == 0 || frames > kMostFrames ? kDefaultFrames : frames;
  window.Text11.caption = FormatPicture(USERFLAG.MovieFrameCount, "#0") + " / " +
                          FormatPicture(USERFLAG.MovieFrames, "#") + " Frames ";
  window.Text11.toolTip =
      "Before or During a movie process, use this scrollbar to increase the number of Frames (default is 20)";
}

void HScroll6_Change() {
  MainWindow& window = *frmMain;
  USERFLAG.MovieFrameTime = (window.HScroll6.value + 1) / 10.0;
  window.Text12.caption = FormatPicture(USERFLAG.MovieFrameTime, "#.##") + " seconds between Frames";
  window.Text12.toolTip =
      "Before or During a movie process, use this scrollbar to change the rate of the Frames (in seconds), "
      "default is 0.3 s";
}

}  // namespace quorb
