#pragma once

namespace quorb {

/// Reads "QuorbEvents.txt" from ImportDirectory into dataEvents. Behind three head lines each line is an
/// event: the text before its first TAB is the time in days, its last character the value, "S" or "1" for 1,
/// else 0. Blanks around
/// a number are dropped, and a comma in it counts as a decimal point. NbEvents becomes the number of those
/// lines less one. A file that is missing or has no such line changes nothing.
void ImportEvents();

/// Reads "QuorbPoints.txt" from ImportDirectory into dataXYZT. Behind three head lines each line is a point:
/// TAB field 1 is the time in days, fields 5, 6, 7 are X, Y, Z in metres. Blanks around a number are
/// dropped, and a comma in it counts as a decimal point. LastPoint becomes the number of those lines less
/// one. A file that is missing or has no such line changes nothing.
void ImportPoints();

}  // namespace quorb
