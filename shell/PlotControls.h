#pragma once

namespace quorb {

// Change routines of the strip below the plot. They pass their values to the scene and write their labels.

/// End of the redraw, in ten-thousandths of the plot; the second and every later touch slows the redraw down.
void HScroll1_Change();
/// Speed of the redraw: 2 to the power of the value, in rows.
void HScroll2_Change();

}  // namespace quorb
