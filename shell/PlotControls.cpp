#include "PlotControls.h"

#include <cmath>

#include "NumberPicture.h"
#include "PlotData.h"
#include "frmMain.h"

namespace quorb {

namespace {

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

}  // namespace

void HScroll1_Change() {
  ScrollBar& bar = frmMain->HScroll1;
  if (bar.Tag == "update") return;
  if (frmMain->RedrawTouched == 1) SlowDown();
  frmMain->RedrawTouched = 1;
  double place = bar.value;
  if (place == 0) bar.value = 1;
  if (RedrawState == 1) {
    place = FollowHeldRow(bar);
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

}  // namespace quorb
