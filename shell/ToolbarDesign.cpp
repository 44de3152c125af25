#include <cstddef>
#include <initializer_list>

#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kMoonButton = 5;

struct ButtonDesign {
  int position;
  const char* key;
  const char* toolTip;
};

// The positions that are not named are separators.
void DesignBar(ToolBar& bar, ToolButtonStyle style, std::initializer_list<ButtonDesign> buttons) {
  for (int position = 1; position <= bar.Positions(); ++position)
    bar.Button(position).style = ToolButtonStyle::separator;
  for (const ButtonDesign& design : buttons) {
    ToolButton& button = bar.Button(design.position);
    button.style = style;
    button.key = design.key;
    button.toolTip = design.toolTip;
  }
}

}  // namespace

void DesignToolbars(MainWindow& window) {
  DesignBar(
      window.Toolbar1, ToolButtonStyle::push,
      {{1, "select", "Move with left button, Orient with right"},
       {2, "pan", "Pan with Left button, Try the Right button !"},
       {3, "zoom", "Zoom with Left button, Try the Right button !"},
       {5, "zminus", "Zoom out"},
       {6, "zplus", "Zoom in"},
       {8, "lightback", "Change the background color."},
       {9, "stop",
        "Enable or disable the automatic rotation  motion given by the left click.  Use first the left click "
        "to stop."},
       {10, "frozenstart", "To stop the Redraw"},
       {12, "quorbxyz",
        "Fix the orientation ISO (backward with CTRL key); press key X Y or Z to fix the vertical axis"},
       {13, "quorbxy", "Various orientations (backward with CTRL key)"},
       {15, "imagespot", "Save Image with timestamp in the directory (see options) "},
       {16, "movieframes",
        "Save Movie Frames with timestamp in the directory (Adjust the settings and click again here to "
        "start the movie)"}});
  DesignBar(window.ToolBoptions, ToolButtonStyle::twoState,
            {{1, "optSat", "Satellite with sides coloured differently"},
             {2, "optCub", "Cubic view with 3DD and 2D projections on 3 planes"},
             {3, "optEarth", "Show earth or not"},
             {5, "optMoon", "Show Moon with amplification or not"},
             {7, "optW", "Local frame at current position with redraw"},
             {9, "optOpt", "Show the Option menu or not"},
             {10, "optPenup", "PenUp or not"}});
  window.ToolBoptions.Button(kMoonButton).SetValue(1);  // the Moon is drawn from the start
}

}  // namespace quorb
