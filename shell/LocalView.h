#pragma once

namespace quorb {

/// The point that the local view is seen from, in hundredths of the plot.
void HScroll7_Change();
/// The local view goes on, with the cubic view greyed, or off, with the cubic view as it was.
void Command7_Click();
/// Any key: the local view follows the time, or stands again at the point of the bar.
void Command7_KeyDown();

}  // namespace quorb
