#pragma once

namespace quorb {

class ToolButton;

/// Positions of buttons on ToolBoptions.
inline constexpr int kCubicButton = 2;
inline constexpr int kOptionsButton = 9;

/// A click on a button of ToolBoptions, which stands already at its new value: the satellite, the cubic view,
/// the Earth or the Moon goes on or off; the redraw starts anew in the local frame; the option panel opens or
/// closes; points are joined by a line or stand alone.
void ToolBoptions_ButtonClick(const ToolButton& button);

}  // namespace quorb
