#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

void DesignBar(ScrollBar& bar, int max, int largeChange, int value, bool visible) {
  bar.max = max;
  bar.largeChange = largeChange;
  bar.value.Design(value);
  bar.visible = visible;
}

void DesignBars(MainWindow& window) {
  DesignBar(window.HScroll1, 10000, 100, 10000, true);
  DesignBar(window.HScroll2, 16, 3, 9, true);
  DesignBar(window.HScroll3, 32000, 320, 0, false);
  DesignBar(window.HScroll4, 1000, 100, 0, true);
  DesignBar(window.HScroll5, 1000, 100, 1000, false);
  DesignBar(window.HScroll6, 16, 3, 9, false);
  DesignBar(window.HScroll7, 100, 10, 1, true);
  DesignBar(window.HScroll8, 32000, 100, 10000, true);
  DesignBar(window.HScroll10, 32000, 1000, 10000, true);
}

void DesignBarLabels(MainWindow& window) {
  window.Text2.caption = "Redraw speed";
  window.Text2.toolTip = "Increase or decrease the speed of the dynamic plot";
  window.Text3.caption = "Redraw";
  window.Text3.toolTip =
      "Redraw  feature: new dynamic plot redrawn from the point you select up to the last one";
  window.Text10.caption = "Starting";
  window.Text10.toolTip = "Starting feature: Trace start from the point you select";
  window.Text11.caption = "Movie";
  window.Text11.toolTip = "Movie feature: number of frames";
  window.Text11.visible = false;
  window.Text12.caption = "Time between frames";
  window.Text12.toolTip = "Increase or decrease the time between frame for movie";
  window.Text12.visible = false;
  window.Text16.caption = "CubicView range and Axis length";
  window.Text18.caption = "Size satellite";
}

}  // namespace

void DesignStrip(MainWindow& window) {
  DesignBars(window);
  DesignBarLabels(window);
  window.Command7.caption = "View local";
  window.Command7.toolTip =
      "Use a trajectory point (set by the scroll bar) as centre instead of the origin 0,0,0.  For continuous "
      "moving press the key W while this command has the focus. press again W for coming back";
}

}  // namespace quorb
