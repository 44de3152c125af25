#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorb {

/// What the last load made of its file, one `name<TAB>value` a line: title, formula, scale, counters, flags,
/// extremes and ranges. Numbers with 17 significant digits.
std::string PlotReport();

/// The rows of one plot array, a row a line, cells separated by TABs: `name`, or `name:first-last` for a part
/// of it. Rows that are not in use are left out. Empty when there is no array of that name, or when the rows
/// are not written as two whole numbers.
std::optional<std::string> RowsReport(std::string_view wanted);

}  // namespace quorb
