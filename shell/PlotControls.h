#pragma once

namespace quorb {

// Change routines of the strip below the plot. They pass their values to the scene and write their labels.

/// End of the redraw, in ten-thousandths of the plot. Each run but the first, that of the load sequence, sets
/// the slowest speed.
void HScroll1_Change();
/// Speed of the redraw: 2 to the power of the value, in rows.
void HScroll2_Change();
/// First row that is drawn, in thousandths of the plot. While the time is held the label shows where it
/// stands.
void HScroll4_Change();
/// Number of a movie's frames, 20 for none and for more than 900.
void HScroll5_Change();
/// Time between a movie's frames, in tenths of a second from 1.
void HScroll6_Change();

}  // namespace quorb
