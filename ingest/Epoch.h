#pragma once

#include <optional>
#include <string_view>

namespace quorb {

/// The serial day (days since 1899-12-30 00:00) of a CCSDS epoch: a calendar date `yyyy-mm-ddThh:mm:ss[.d]`
/// or a day of the year `yyyy-dddThh:mm:ss[.d]`, with or without "Z" at its end, a blank allowed for the "T".
/// None when the text is anything else or names a day or an hour that does not exist. Second 60, the leap
/// second, is taken as the first second of the next minute.
std::optional<double> ParseEpoch(std::string_view text);

}  // namespace quorb
