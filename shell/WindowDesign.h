#pragma once

namespace quorb {

struct MainWindow;

// Each function gives a part of the window the values that it is designed with: captions, defaults, tool
// tips, what is hidden, and sizes where a routine reads them. No routine runs.

/// The option panel.
void DesignOptionPanel(MainWindow& window);
/// The strip of bars below the plot, with their labels.
void DesignStrip(MainWindow& window);
/// The menus, and what opens from what.
void DesignMenus(MainWindow& window);
/// The buttons of both tool bars.
void DesignToolbars(MainWindow& window);
/// The panel "To run in PowerPoint".
void DesignSlideShowPanel(MainWindow& window);

/// Ties every control of the window to its event routine.
void TieControls(MainWindow& window);

}  // namespace quorb
