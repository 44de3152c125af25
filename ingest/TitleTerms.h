#pragma once

#include <string_view>

#include "SheetSession.h"

namespace quorb {

/// Lets the sheet compute the title of `session.cellFormula`, which was read from the active cell: the
/// argument of "LEN(" up to ")+" becomes the text that the sheet makes of it, in double quotes, and blanks
/// behind the first ")" go; double quotes inside that text become single ones. So `LEN("Orbit " & B3) +
/// MAX(A2:C9)` becomes `LEN("Orbit 7")+MAX(A2:C9)`.
///
/// Where the link cannot evaluate aside, the argument stands in the active cell for a moment; the formula as
/// it was is written back, also when the sheet refuses that for a while. A formula without such a term stays,
/// and so does one whose argument the sheet does not take.
void ExpandLenTerm(SheetSession& session);

/// True when the title of this formula is joined with a cell: an "&" stands in its term outside double
/// quotes.
bool IsTitleJoined(std::string_view formula);

/// The text of the cell that a concatenated title of `session.cellFormula` names, `NB("Orbit "&B3)` or
/// `LEN(B3&" orbit")`: the one beside the literal. Empty when no "&" stands there outside double quotes, and
/// when what stands beside it is no cell; a text that is almost one is told to the user.
/// Double quotes in it become single ones, since the data file doubles them.
std::string TitleCellText(SheetSession& session);

}  // namespace quorb
