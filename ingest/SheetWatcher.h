#pragma once

namespace quorb {

/// Looks once whether the user has done something in the spreadsheet, and loads the plot again when so. It
/// compares three texts with those of the poll before: the sheet's name, its window's caption and the formula
/// of the selected cell; the data are not looked at. A first change of the selected cell's text is noted, a
/// second one loads; a change of the specification formula itself, of the sheet or of the window loads at
/// once. USERFLAG.UpdateAsked at 1 loads without a look.
///
/// Works after a first load through the spreadsheet, while no load runs and no named file is on show. A
/// spreadsheet that is closed or busy is passed over in silence. One without any workbook is told to the user
/// once, who may have it closed.
void WatchSheet();

}  // namespace quorb
