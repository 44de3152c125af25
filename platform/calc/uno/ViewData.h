#pragma once

#include <string>

namespace quorb {

/// The place of the cursor on a sheet, out of the text in which a view of the office keeps its state: parts
/// behind ";", from the fourth on one a sheet, each beginning with the cursor's column and row from 0,
/// between
/// "/" or, in long sheets, "+". A part that begins with other text, such as the width of the tab bar, counts
/// for no sheet.
///
/// @param sheet the sheet's number from 0.
/// @param row, column out: from 1; A1 where the text says nothing of that sheet.
void CursorCell(const std::string& viewData, int sheet, int& row, int& column);

/// The title of a window without the application's name behind it and without the window's number: the text
/// up to the last " - " or long dash behind the document's own title, less a " : 2" that follows that title.
/// What else the office puts there ("read-only") stays.
std::string CaptionOfTitle(const std::string& windowTitle, const std::string& documentTitle);

}  // namespace quorb
