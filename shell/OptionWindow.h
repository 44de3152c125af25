#pragma once

namespace quorb {

/// Moves the option panel so that a strip of it is in the window, as when the window has become smaller.
void BringOptionsInside();

/// Shows the option panel in front of the plot.
void ShowOptions();

/// A drag of the option panel begins at this point of it, in twips from its top left corner.
void Options_DragStart(double x, double y);
/// The drag goes on: the panel follows, so that the point where it was grabbed stays under the pointer. A
/// strip of it always stays in the window.
void Options_DragOver(double x, double y);

/// The pointer was seen outside the Close button: over the rest of the panel, or leaving the button.
void Options_MouseMove();
/// The pointer moves over Close: it closes the panel, as a click does, when it has come there from outside. A
/// pointer that the panel opened under does nothing until it has left the button.
void Command2_MouseMove();

}  // namespace quorb
