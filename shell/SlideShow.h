#pragma once

namespace quorb {

/// Shows the panel with the command line that a slide runs to show this plot. A plot that stands in no file
/// of its own is copied to one beside the program first.
void mnuFRunPowerPoint_Click();

/// Puts the command line on the clipboard.
void Command4_Click();
/// Closes the panel.
void Command5_Click();
/// The pointer over the panel hides its first picture.
void Frame1_MouseMove();

}  // namespace quorb
