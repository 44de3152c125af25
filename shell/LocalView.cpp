#include "LocalView.h"

#include <algorithm>
#include <cmath>

#include "PlotData.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kGreyed = 2;

double RowOfBar() {
  return std::nearbyint(static_cast<double>(frmMain->HScroll7.value) * LastPoint / 100);
}

void TakeRowOfBar() {
  USERFLAG.LocalCentreIndex = std::max(0.0, RowOfBar());
}

}  // namespace

void HScroll7_Change() {
  USERFLAG.LocalCentreIndex = RowOfBar();
}

void Command7_Click() {
  MainWindow& window = *frmMain;
  if (window.Command7.Tag.empty()) {
    USERFLAG.NedInput = 1.0;
    window.Command7.Tag = "NED";
    window.cubicBeforeLocal = window.Check9.value;
    window.Check9.value = kGreyed;
  } else {
    USERFLAG.NedInput = 0;
    window.Command7.Tag.clear();
    window.Check9.value = window.cubicBeforeLocal;
  }
  TakeRowOfBar();
}

void Command7_KeyDown() {
  std::string& state = frmMain->Command7.Tag;
  if (state == "NED") {
    state = "NEDfree";
    USERFLAG.LocalCentreIndex = -1;
  } else if (state == "NEDfree") {
    state = "NED";
    TakeRowOfBar();
  }
}

}  // namespace quorb
