#pragma once

#include <atomic>
#include <string>
#include <vector>

#include "CellBlock.h"
#include "SheetLink.h"

namespace quorb {

/// What is open in an office.
struct OfficeContents {
  bool spreadsheets = false;
  bool otherDocuments = false;
};

/// A workbook as its user sees it.
struct BookView {
  Workbook workbook = kNoWorkbook;
  std::string caption;    ///< Title of its window, without the application's name.
  std::string name;       ///< Title of the document.
  std::string sheetName;  ///< The sheet on show.
  int row = 1;            ///< Cell of the cursor, from 1.
  int column = 1;
};

/// A talk with one running office. The plug-in that implements it is loaded from beside this program and
/// works with the libraries of the office that runs; it shares this program's standard library.
///
/// Every function but Cut is called on one thread, waits for the office without limit, throws nothing and
/// leaves its results alone when it fails. Failures: 91 no such workbook; 424 the document is closed; 1004
/// the office refused; 50290 a view is up in which no cells are chosen, such as a print preview; -2147417848
/// the office went away; -2147023170 anything else that went wrong on the way.
///
/// Nothing here writes to a document of the user's, or moves a cursor, a selection, a window or the focus.
class OfficeSession {
 public:
  virtual ~OfficeSession() = default;

  /// Connects to the acceptor that an office has opened under that name, trying until `patienceMilliseconds`
  /// are over.
  virtual SheetFault Connect(const std::string& pipeName, const std::string& programDirectory,
                             int patienceMilliseconds) = 0;
  /// Cuts the connection from another thread: a call that waits comes back with a failure, every later one
  /// fails.
  virtual void Cut() = 0;

  virtual SheetFault Contents(OfficeContents& contents) = 0;
  /// The product's name and version.
  virtual SheetFault Name(std::string& name) = 0;
  virtual SheetFault Visible(bool& visible) = 0;
  /// Shows or hides the window of the workbook in front, and no other one; 91 when there is no workbook.
  virtual SheetFault SetVisible(bool visible) = 0;
  /// Ends the office when no document of any kind is open, else 1004.
  virtual SheetFault Quit() = 0;

  /// The workbook in front; behind a document of another kind, the one that was in front last. Its cells are
  /// from here on those of the sheet that is on show now. `workbook` is kNoWorkbook when there is none.
  virtual SheetFault Look(BookView& view) = 0;
  /// The same for the workbook whose window has that title; 9 when there is none.
  virtual SheetFault LookAt(const std::string& caption, BookView& view) = 0;
  /// Titles of all windows of workbooks, the one in front first.
  virtual SheetFault Captions(std::vector<std::string>& captions) = 0;
  /// Forgets all workbooks: a number that was given is nothing from here on.
  virtual void ForgetWorkbooks() = 0;

  /// Rows of the sheet.
  virtual SheetFault SheetRows(Workbook workbook, int& rows) = 0;
  /// The cell's formula with the functions' English names and ";" between arguments, or its text.
  virtual SheetFault CellFormula(Workbook workbook, int row, int column, std::string& formula) = 0;
  virtual SheetFault ReadCell(Workbook workbook, int row, int column, CellValue& value) = 0;
  /// The first cell, row by row, whose formula holds `word`; 91 when there is none.
  virtual SheetFault FindInFormulas(Workbook workbook, const std::string& word, int& row, int& column) = 0;
  /// The English name of a function by the name that it has in the language of that office; empty when it has
  /// none of that name.
  virtual SheetFault EnglishFunction(Workbook workbook, const std::string& localName, std::string& name) = 0;
  /// What a formula comes to in a cell, found in a document of its own that nobody sees and that is gone
  /// afterwards. The cells that it names, itself or by a defined name, are copied there; more than 200,000 of
  /// them are 1004. A name that cannot be copied is unknown there.
  virtual SheetFault Evaluate(Workbook workbook, int row, int column, const std::string& formula,
                              CellValue& value) = 0;
  /// The values of a block. A cell with an error gives the text that it shows.
  virtual SheetFault ReadBlock(Workbook workbook, const CellRectangle& rectangle, CellBlock& block) = 0;
};

/// What the plug-in offers under the name kOpenSessionSymbol. `pulse` counts the answers of the office.
using OpenSessionFunction = OfficeSession* (*)(std::atomic<unsigned>* pulse);
inline constexpr char kOpenSessionSymbol[] = "QuorbOpenOfficeSession";

}  // namespace quorb
