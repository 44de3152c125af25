#pragma once

class QWidget;

namespace quorb {

// The panels that float over the plot. Each is a child of the canvas, hidden until its control is shown, and
// shows the controls of the main window, which must be made before and live longer.

/// The option panel.
QWidget* MakeOptionPanel(QWidget& canvas);

/// The panel "To run in PowerPoint".
QWidget* MakeSlideShowPanel(QWidget& canvas);

}  // namespace quorb
