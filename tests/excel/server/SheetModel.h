#pragma once

#include <list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// An error value of a cell, such as 2007 for a division by 0.
struct CellError {
  int number;
};
/// Days since the end of 1899.
struct CellDate {
  double days;
};

using CellContent = std::variant<std::monostate, double, std::wstring, bool, CellError, CellDate>;

struct ServerCell {
  std::wstring formula;
  CellContent value;
};

/// A block of cells, rows and columns from 1.
struct CellBlock {
  int firstRow = 1, firstColumn = 1, lastRow = 1, lastColumn = 1;
};

/// A workbook of one sheet. What the user sees of it is its caption and its active cell.
struct ServerBook {
  std::wstring name, caption, sheetName = L"Sheet1";
  int windows = 1;
  bool isOpen = true;
  std::map<std::pair<int, int>, ServerCell> cells;
  std::map<int, std::wstring> formats;  ///< Number formats of columns.
  std::map<int, double> widths;
  int activeRow = 1, activeColumn = 1;
};
using BookPointer = std::shared_ptr<ServerBook>;

/// The application.
struct ServerModel {
  std::list<BookPointer> books;  ///< The active one first.
  bool isVisible = true;
  int booksAdded = 0;
  BookPointer markedBook;  ///< Null when nothing is marked for copying.
  CellBlock marked;
  std::wstring nextCaption;       ///< Caption of the next new workbook, where it is not its name.
  std::vector<std::wstring> log;  ///< Calls that change or copy something, with their arguments.

  BookPointer Active() const { return books.empty() ? nullptr : books.front(); }
};
ServerModel& Model();

/// Reads "A2", "A2:C9", "A:R"; throws 1004 for anything else.
CellBlock BlockOf(const std::wstring& text);
std::wstring NameOf(const CellBlock& block);

/// A cell as displayed, with the number format of its column.
std::wstring Displayed(const ServerBook& book, int row, int column);

/// A block as the clipboard takes it: cells in quotes where they hold a TAB or a line end.
std::wstring ClipboardForm(const ServerBook& book, const CellBlock& block);

/// The text itself in quotes, such a text and a cell joined by "&", a cell's value, an error for "=1/0", and
/// 31 for everything else.
CellContent Evaluated(const ServerBook& book, const std::wstring& formula);

/// All that is the user's: order, names, contents, selections.
std::wstring StateOfUser();
