#pragma once

namespace quorb {

// Event routines of the option panel that change the panel itself, or keep what the user had.

/// Checked, the panel grows to the colours and the main keyword, as high as the screen allows, and the window
/// with it when it is too low. Cleared, both take their former heights.
void Check2_Click();
/// The first click keeps how many colour values the plot has.
void Check5_Click();
/// Checked, the background becomes white on the panel; cleared, the colour from before comes back. The view
/// follows when the panel is read next.
void Check7_Click();

}  // namespace quorb
