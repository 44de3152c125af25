#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Faults.h"

namespace quorb {

/// What an operation on the spreadsheet came to: a number of Faults.h (or one that the application gave by
/// itself) and the failure's description; the number is 0 when all went well.
struct [[nodiscard]] SheetFault {
  int number = kFaultNone;
  std::string description;

  bool Good() const { return number == kFaultNone; }
};

/// A failure of that number, described as FaultText does.
inline SheetFault FaultOf(int number) {
  return {number, FaultText(number)};
}

/// A workbook that the link has handed out. It stands for the same workbook until the application is
/// released; kNoWorkbook is the object "nothing", with which every operation fails with 91.
using Workbook = int;
inline constexpr Workbook kNoWorkbook = 0;

/// The value of a cell. An empty cell is an empty text, an error its name as the sheet shows it.
struct CellValue {
  std::string text;              ///< As text, UTF-8: a number in its general form, a text as it stands.
  std::optional<double> number;  ///< What a cell with a number or a truth value holds.
};

/// Constants of the operations below.
enum SheetConstant : int {
  xlFormulas = -4123,
  xlValues = -4163,
  xlPart = 2,
  xlPasteValues = -4163,
  xlPasteSpecialOperationNone = -4142,
};

/// Arguments of a search for cells.
struct FindArguments {
  std::string What;
  int LookIn = xlFormulas;
  int LookAt = xlPart;
  bool MatchCase = true;
  std::optional<bool> SearchFormat;  ///< Left out of the call when it has no value.
};

/// Arguments of a paste; those without a value are left out of the call.
struct PasteArguments {
  int Paste = xlPasteValues;
  std::optional<int> Operation;
  std::optional<bool> SkipBlanks;
  std::optional<bool> Transpose;
};

/// Takes the text of a block, piece after piece.
class BlockTextSink {
 public:
  virtual ~BlockTextSink() = default;
  /// The next bytes, UTF-8. False: no more is wanted, the operation ends with 5.
  virtual bool Take(std::string_view piece) = 0;
};

/// The running spreadsheet application ("App" below), one virtual function an operation. The comments give
/// the operation's name where Microsoft Excel offers it. Nothing here starts an application or saves a
/// workbook.
///
/// Failures. No operation throws. One that fails changes nothing and leaves its results as they were. Without
/// an application every operation but GetRunningObject fails with 91 (no object). Further numbers that the
/// callers tell apart: 429 no application runs; 424 object required; 1004 the sheet refused, also a text that
/// is no range; 50290 and -2147418111 busy, as while a cell is edited or a dialog is open; -2147417848 the
/// application went away; -2147023170 the remote call failed. Behind one of the last two every further call
/// fails with that same number, never with 91, until the application is released or attached anew. A failure
/// of the clipboard holds "Clipboard" in its description. An application that gives no sign of life for 5
/// seconds is cut off: 50290, and at once 50290 for every further call for as long as the one that hangs has
/// not come back.
///
/// Time. All operations are called on one thread and come back when they are done; callbacks run on that
/// thread. One that takes longer than a moment may let events through while it waits
/// (`CurrentDialogs().PumpEvents()`). The operations of a poll (GetRunningObject, Name, ActiveWorkbook,
/// ActiveWorkbookName, WorkbookWindowsCount, WorkbookWindowCaption, ActiveSheetName, ActiveCellFormula,
/// Visible) never do so in a poll, only while a load is under way (`SpreadsheetInUse()`), and touch nothing
/// that the user could see. ReleaseObject may be called from within such an event, when the program ends: the
/// operation that is under way then fails.
///
/// Active workbook, sheet and cell. From GetRunningObject on they follow the operations. A link may keep them
/// for itself, without moving the user's windows or cursor, and does so where moving them would change
/// something of the user's, such as a text that is being typed into a cell; or else it fails with 50290. Only
/// the scratch workbook, the one that WorkbooksAdd made, is ever touched by RangePasteSpecial, RangeSelect,
/// SetActiveCell, ColumnsSelect and the Selection operations, read by BlockText and closed by
/// ActiveWindowClose: while another one is active, all but the last two fail with 1004. RangeCopy is the
/// other way round: it fails with 1004 while the scratch workbook is active. All of these go by the workbook
/// that WorkbooksActivate or WorkbooksAdd brought forward last; when the user has brought another one forward
/// since, they do so all the same or fail with 50290. A scratch workbook may be hidden from the user, or be
/// no workbook at all.
///
/// The user's clipboard and copy mode (the block that they marked for a paste of their own) are theirs: an
/// operation that has to use them puts back what stood there before it returns.
class SheetLink {
 public:
  virtual ~SheetLink() = default;

  // ---- the application
  // --------------------------------------------------------------------------------------

  /// GetObject(, "Excel.Application"): attaches to the running application; 429 when none runs. Attached
  /// already, it attaches anew.
  virtual SheetFault GetRunningObject() = 0;
  /// Set App = Nothing. A scratch workbook that is still open is closed, here or, where the application is
  /// busy, in a later GetRunningObject or release. Does nothing without an application.
  virtual void ReleaseObject() = 0;
  /// Version. From the number 12 on, a sheet has 1048576 rows, before 65536; other applications than Excel
  /// answer by that rule.
  virtual SheetFault Version(std::string& version) = 0;
  /// Name.
  virtual SheetFault Name(std::string& name) = 0;
  /// Visible.
  virtual SheetFault Visible(bool& visible) = 0;
  /// Visible = `visible`.
  virtual SheetFault SetVisible(bool visible) = 0;
  /// Quit. The application asks the user about workbooks that are not saved.
  virtual SheetFault Quit() = 0;

  // ---- workbooks and windows
  // --------------------------------------------------------------------------------

  /// ActiveWorkbook. kNoWorkbook, and no failure, when there is none.
  virtual SheetFault ActiveWorkbook(Workbook& workbook) = 0;
  /// ActiveWorkbook.Name; 91 when there is none.
  virtual SheetFault ActiveWorkbookName(std::string& name) = 0;
  /// workbook.Windows.Count, where the windows of one workbook count as one: always 1.
  virtual SheetFault WorkbookWindowsCount(Workbook workbook, int& count) = 0;
  /// workbook.Windows(index).Caption, from 1: the window's title as the user sees it, without the
  /// application's name behind it, and without the window's number (":2") where the workbook has several. It
  /// serves WorkbooksActivate as the workbook's name.
  virtual SheetFault WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) = 0;
  /// Windows.Count, over all workbooks, one each.
  virtual SheetFault WindowsCount(int& count) = 0;
  /// Windows(index).Caption, from 1, the active workbook's first; named as WorkbookWindowCaption does.
  virtual SheetFault WindowCaption(int index, std::string& caption) = 0;
  /// Workbooks(caption).Activate; 9 when there is none of that name.
  virtual SheetFault WorkbooksActivate(const std::string& caption) = 0;
  /// Workbooks.Add: a new empty scratch workbook; it becomes active, and first in Windows. One that is still
  /// open from before is closed. It succeeds only when that workbook is there.
  virtual SheetFault WorkbooksAdd() = 0;
  /// ActiveWindow.Close(SaveChanges, RouteWorkbook): closes the scratch workbook, never another one, whatever
  /// window is in front by now; 91 when there is none.
  virtual SheetFault ActiveWindowClose(bool SaveChanges, bool RouteWorkbook) = 0;

  // ---- the active sheet of a workbook
  // -----------------------------------------------------------------------

  /// workbook.ActiveSheet.Name.
  virtual SheetFault ActiveSheetName(Workbook workbook, std::string& name) = 0;
  /// workbook.Windows(1).ActiveCell.Formula: the formula from its "=" on, the text or number of a cell
  /// without one, empty for an empty cell.
  virtual SheetFault ActiveCellFormula(Workbook workbook, std::string& formula) = 0;
  /// workbook.Windows(1).ActiveCell.Formula = `formula`, into the cell that ActiveCellFormula read last; when
  /// another one is the active cell by now it fails with 50290.
  virtual SheetFault SetActiveCellFormula(Workbook workbook, const std::string& formula) = 0;
  /// workbook.Windows(1).ActiveCell.Value.
  virtual SheetFault ActiveCellValue(Workbook workbook, CellValue& value) = 0;
  /// workbook.Windows(1).ActiveCell.Row, from 1.
  virtual SheetFault ActiveCellRow(Workbook workbook, int& row) = 0;
  /// workbook.Windows(1).ActiveCell.Column, from 1.
  virtual SheetFault ActiveCellColumn(Workbook workbook, int& column) = 0;
  /// workbook.Windows(1).ActiveCell.Cells.Find(...).Activate: selects the first cell that holds the word; 91
  /// when there is none.
  virtual SheetFault FindActivate(Workbook workbook, const FindArguments& arguments) = 0;
  /// Cells.Find(...).Activate: the same for the application's active sheet. 1004 when it has no workbook.
  virtual SheetFault ApplicationFindActivate(const FindArguments& arguments) = 0;
  /// workbook.ActiveSheet.Cells(row, column).Value.
  virtual SheetFault CellsValue(Workbook workbook, int row, int column, CellValue& value) = 0;
  /// workbook.ActiveSheet.Cells(row, column).Select. Where that cell is the active one, nothing happens, so
  /// that a selection of several cells stays. Where it was the active one before FindActivate or
  /// ApplicationFindActivate moved away from it, the whole selection comes back as it was, and the part of
  /// the sheet that the window showed.
  virtual SheetFault CellsSelect(Workbook workbook, int row, int column) = 0;

  /// What `formula` ("=...") comes to when it stands in the active cell, found without a write to the user's
  /// sheet.
  /// @param offered out: false, without a failure, where the link has no such way: the caller then writes,
  /// reads and writes back. True otherwise, also when the operation fails: nothing is written then.
  virtual SheetFault EvaluateAside(Workbook, const std::string& /*formula*/, CellValue& /*value*/,
                                   bool& offered) {
    offered = false;
    return {};
  }

  // ---- from the source to the scratch workbook
  // --------------------------------------------------------------

  /// Range(text).Copy: marks a block of the active workbook's active sheet for the next paste. 1004 while the
  /// scratch workbook is active.
  virtual SheetFault RangeCopy(const std::string& range) = 0;
  /// Range(text).PasteSpecial(...): the marked block's values go to the block whose first cell is `range`.
  virtual SheetFault RangePasteSpecial(const std::string& range, const PasteArguments& arguments) = 0;
  /// Application.CutCopyMode = False: takes the mark off, never one that the user has set.
  virtual SheetFault EndCutCopyMode() = 0;
  /// Range(text).Select.
  virtual SheetFault RangeSelect(const std::string& range) = 0;
  /// ActiveCell = `text`.
  virtual SheetFault SetActiveCell(const std::string& text) = 0;
  /// Columns(text).Select, as "A:R".
  virtual SheetFault ColumnsSelect(const std::string& columns) = 0;
  /// Selection.ColumnWidth = `width`.
  virtual SheetFault SelectionColumnWidth(double width) = 0;
  /// Selection.NumberFormat = `format`, such as "0.0000000000".
  virtual SheetFault SelectionNumberFormat(const std::string& format) = 0;
  /// The text of a block of the scratch workbook, "A1:Q2000": rows that end in CR LF, cells parted by TABs,
  /// each cell as displayed. A TAB or a line end inside a cell comes as a blank, so that a row stays a row;
  /// only the text that SetActiveCell wrote keeps its TABs, and may stand in double quotes, its own doubled,
  /// as a copy to the clipboard gives it. The clipboard is used only where the user's own content is put
  /// back. When the operation fails, the pieces taken so far are worth nothing.
  virtual SheetFault BlockText(const std::string& range, BlockTextSink& sink) = 0;
};

/// The link of this process. Until one is set, no application runs (429).
SheetLink& CurrentSheetLink();

/// Sets the link of this process; a null pointer takes it back. The caller keeps the ownership.
void SetSheetLink(SheetLink* link);

}  // namespace quorb
