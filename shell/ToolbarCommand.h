#pragma once

#include <string>

namespace quorb {

class ToolButton;

/// Position of the button on Toolbar1 that fixes the orientation of the isometric view, and of the one that
/// saves an image.
inline constexpr int kOrientationButton = 12;
inline constexpr int kImageButton = 15;

/// Runs a command of the view by its key, in lower case: the buttons' keys, and "dolly", "orbit", "pitch",
/// "yaw", "roll", "move", "rotate", "scale" and "arcrotate". An unknown or empty key does nothing of its own.
///
/// The first call of a run, and every call while the key pressed last is X, Y or Z, is "quorbxyz" instead:
/// the isometric view with Z upward, or with the axis of that key. A pending reload is withdrawn in any case,
/// and behind a momentary command the mouse goes back to the mode that was chosen.
/// @param key in: the command; out: the one that was run.
void ToolbarCommand(std::string& key);

/// A click on a button of Toolbar1. A key X, Y or Z that has gone up is no longer looked at.
void Toolbar1_ButtonClick(const ToolButton& button);

}  // namespace quorb
