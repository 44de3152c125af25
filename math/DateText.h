#pragma once

#include <string>

namespace quorb {

/// Date and time of a serial day (days since 30 December 1899) in the form " dd  MMM yyyy hh:mm ", with the
/// English names of the months; seconds are cut off behind rounding to the nearest one. Empty for a day that
/// is no number or lies outside the years 1 to 9999.
std::string DateAndTimeText(double days);

/// Time of day of a serial day in the form " hh:mm:ss.ss ", rounded to hundredths of a second, which never
/// reach the next day. Empty for what is no number.
std::string TimeOfDayText(double days);

}  // namespace quorb
