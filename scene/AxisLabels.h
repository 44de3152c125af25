#pragma once

namespace quorb {

class ClassGl;

/// Places the letters of the axes, and makes their large font anew, once, when the branded look asks for it;
/// draws them at the ends of the axes unless the axes are off.
void DrawAxisLetters(ClassGl& scene);

/// At the row that the frame ends at, the program's name and the row's date, when the plot has events.
void DrawMovingLogo(ClassGl& scene);

/// At the origin, how far the data were moved along each axis to fit the view; for plots of scale 1 alone.
void DrawOriginText(ClassGl& scene);

/// In the corner, the date of the row that the frame ends at, or the time of day of a time before 1958.
void DrawTimeText(ClassGl& scene);

}  // namespace quorb
