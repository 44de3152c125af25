#pragma once

#include <string>

namespace quorb {

/// The place of the cursor on a sheet, out of the text in which a view of the office keeps its state: parts
/// between ";", the zoom, the sheet on show, the width of the tab bar ("tw:270", may be missing), and then
/// one a sheet, which begins with the cursor's column and row from 0, between "/" or, in long sheets, "+".
/// The part of a sheet that the view has not shown yet is empty.
///
/// @param sheet the sheet's number from 0.
/// @param row, column out: from 1; A1 where the text says nothing of that sheet.
void CursorCell(const std::string& viewData, int sheet, int& row, int& column);

/// The title of a window without the application's name behind it and without the window's number: the text
/// up to the last " - " or long dash behind the document's own title, less a " : 2" that follows that title.
/// What else the office puts there ("read-only") stays.
std::string CaptionOfTitle(const std::string& windowTitle, const std::string& documentTitle);

}  // namespace quorb
