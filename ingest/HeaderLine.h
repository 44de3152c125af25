#pragma once

#include <ctime>
#include <string>

namespace quorb {

/// What the first line of a data file tells.
struct HeaderLineFields {
  std::string sourceName;  ///< Where the data come from: a window's caption or a file's name.
  std::string sheetName;   ///< The sheet, the object or the frame.
  std::string formula;     ///< The specification formula, from its "=" on.
  double scale = 1;        ///< The scale factor, as in the formula.
  std::string title;       ///< The title as in the formula, keywords included.
  std::tm written = {};    ///< The time of writing.
};

/// The header line with its CR LF: the fields parted by TABs, a TAB behind the last one. Characters of the
/// two names that would end a field or begin a formula (control characters, "=" and the double quote) are
/// written as "_".
std::string DataFileHeaderLine(const HeaderLineFields& header);

/// Appends a number as cells hold it, with ten decimals and the machine's decimal mark.
void AppendCellNumber(std::string& out, double value);

}  // namespace quorb
