#pragma once

#include <string>
#include <variant>
#include <vector>

#include "ListControls.h"
#include "frmMain.h"

namespace quorb {

struct VideoWindow;
struct DialogWindow;

/// A control of any kind.
using AnyControl = std::variant<Control*, CheckBox*, TextBox*, Label*, ScrollBar*, ComboBox*, ProgressBar*,
                                Button*, Menu*, Form*, Panel*, Picture*, StatusBar*, ToolBar*, ToolButton*,
                                DriveBox*, DirectoryBox*, FileBox*>;

struct NamedControl {
  std::string name;
  AnyControl control;
};

/// Every control of the window with its name. Members of an array have their index behind, from 0:
/// "Check1(7)"; the buttons of a tool bar have their position: "Toolbar1(12)". The place of the plot is
/// "glxCtl1".
std::vector<NamedControl> NamedControls(MainWindow& window);

/// The same of the movie window and of the file chooser; the window itself is "frmVideo" or "frmDialog".
std::vector<NamedControl> NamedControls(VideoWindow& window);
std::vector<NamedControl> NamedControls(DialogWindow& window);

}  // namespace quorb
