#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "CellBlock.h"
#include "SheetLink.h"

namespace quorb {

/// What a user would see of an office, and what tells that somebody else was there.
struct UserState {
  std::string frontTitle;
  std::string sheet, selection, viewData;
  bool modified = false;
  std::string undo;              ///< The titles of what can be undone and redone.
  std::string clipboard;         ///< Its text.
  std::string clipboardFormats;  ///< Its formats, as MIME types.
  int documents = 0;             ///< With a window, be it hidden or not.
  int loaded = 0;                ///< All of them, with a window or without.

  bool operator==(const UserState&) const = default;
};

/// The hands of a user in a running office, for tests: a plug-in over the office's own protocol. Documents
/// are counted from 1 in the order in which they were opened; rows and columns from 1. A failure comes back
/// as in SheetLink.h.
class OfficeUser {
 public:
  virtual ~OfficeUser() = default;
  virtual SheetFault Connect(const std::string& pipeName, const std::string& programDirectory) = 0;

  virtual SheetFault OpenSheet(int& document) = 0;
  /// The same, with a window that is hidden.
  virtual SheetFault OpenHiddenSheet(int& document) = 0;
  /// The same, with no window at all.
  virtual SheetFault OpenSheetWithoutWindow(int& document) = 0;
  virtual SheetFault OpenText(int& document) = 0;
  virtual SheetFault OpenFile(const std::string& path, int& document) = 0;
  virtual SheetFault Close(int document) = 0;
  /// Ends the office; the document is not saved.
  virtual SheetFault Quit(int document) = 0;
  virtual SheetFault ToFront(int document) = 0;

  /// Types into a cell of the sheet with that number, from 0, in the office's English notation.
  virtual SheetFault Type(int document, int sheet, int row, int column, const std::string& text) = 0;
  /// Puts a text into a cell as it stands.
  virtual SheetFault TypeText(int document, int sheet, int row, int column, const std::string& text) = 0;
  /// Fills numbers in: a block of `rows` by `columns` from that cell on, value row * 1.5 + column / 7.
  virtual SheetFault FillNumbers(int document, int sheet, int row, int column, int rows, int columns) = 0;
  /// Puts numbers in, row by row from that cell on, `columns` of them beside each other.
  virtual SheetFault TypeNumbers(int document, int sheet, int row, int column, int columns,
                                 const std::vector<double>& numbers) = 0;
  virtual SheetFault SetFormat(int document, int sheet, const std::string& range,
                               const std::string& format) = 0;
  virtual SheetFault AddSheet(int document, const std::string& name) = 0;
  virtual SheetFault ShowSheet(int document, int sheet) = 0;
  virtual SheetFault Select(int document, int sheet, const std::string& range) = 0;
  /// Selects ranges that stand apart from each other.
  virtual SheetFault SelectApart(int document, int sheet, const std::vector<std::string>& ranges) = 0;
  /// Runs a macro of the office's user by its script URL, with the document in front.
  virtual SheetFault RunMacro(int document, const std::string& url) = 0;
  virtual SheetFault Merge(int document, int sheet, const std::string& range) = 0;
  virtual SheetFault HideRows(int document, int sheet, const std::string& range) = 0;
  virtual SheetFault HideColumns(int document, int sheet, const std::string& range) = 0;
  /// Filters a range for the rows whose cell in that column of it, from 0, is above `bound`.
  virtual SheetFault FilterRows(int document, int sheet, const std::string& range, int column,
                                double bound) = 0;
  virtual SheetFault Protect(int document, int sheet) = 0;
  virtual SheetFault AddName(int document, const std::string& name, const std::string& content) = 0;
  /// Gives a command of the menus, such as ".uno:PrintPreview", that asks for nothing more.
  virtual SheetFault Command(int document, const std::string& command) = 0;
  virtual SheetFault IsShown(int document, bool& shown) = 0;
  /// Saves a copy in the office's own format.
  virtual SheetFault SaveCopy(int document, const std::string& path) = 0;
  /// Copies the selection to the clipboard.
  virtual SheetFault Copy(int document) = 0;
  virtual SheetFault SetModified(int document, bool modified) = 0;
  virtual SheetFault Undo(int document) = 0;
  virtual SheetFault State(int document, UserState& state) = 0;
  /// Text of a cell as shown.
  virtual SheetFault Shown(int document, int sheet, int row, int column, std::string& text) = 0;
  /// The office's own save of the sheet on show as TAB-separated text, cells as shown.
  virtual SheetFault SaveAsText(int document, const std::string& path) = 0;
};

using OpenUserFunction = OfficeUser* (*)();
inline constexpr char kOpenUserSymbol[] = "QuorbOpenOfficeUser";

}  // namespace quorb
