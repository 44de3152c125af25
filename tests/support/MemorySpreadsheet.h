#pragma once

#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "SheetLink.h"

namespace quorb {

/// A cell of a test's sheet.
struct MemoryCell {
  std::string formula;  ///< What was typed, from its "=" on.
  CellValue value;
};

/// A workbook of one sheet. The active cell is the user's selection.
struct MemoryBook {
  int id = 0;
  std::string name = "Book1.xlsx";
  std::string caption = "Book1.xlsx";
  std::string sheetName = "Sheet1";
  std::map<std::pair<int, int>, MemoryCell> cells;  ///< By row and column.
  int activeRow = 1, activeColumn = 1;
  std::string selection;  ///< The cells that are selected where they are several, as "B2:D9".
  bool isModified = false;
  int undoSteps = 0;
  bool isScratch = false;
  bool isProtected = false;
  std::map<std::string, std::string> formats;  ///< Number formats of the scratch workbook, by columns.

  void SetNumber(int row, int column, double number);
  void SetText(int row, int column, const std::string& text);
  void SetFormula(int row, int column, const std::string& formula, double number);
  void Select(int row, int column) {
    activeRow = row;
    activeColumn = column;
    selection.clear();
  }
};

/// A spreadsheet application in memory. It keeps the calls, can be given books, and can refuse, change or
/// vanish at any call. It is the process's link for as long as it lives.
class MemorySpreadsheet : public SheetLink {
 public:
  MemorySpreadsheet() { SetSheetLink(this); }
  ~MemorySpreadsheet() override { SetSheetLink(nullptr); }
  MemorySpreadsheet(const MemorySpreadsheet&) = delete;
  MemorySpreadsheet& operator=(const MemorySpreadsheet&) = delete;

  bool isRunning = true;
  bool isVisible = true;
  bool isAttached = false;
  std::string version = "16.0";
  /// The workbooks, the active one first.
  std::list<MemoryBook> books;
  /// Caption of a new workbook.
  std::string scratchCaption = "Book2";
  /// A new workbook is said to be there that many times when it is not.
  int emptyAdds = 0;
  /// What the sheet makes of a formula; a quoted text gives itself, any other formula the text "?".
  std::map<std::string, CellValue> evaluations;
  /// The link has a way of evaluating that writes nothing.
  bool evaluatesAside = false;
  /// Behind a failure of an application that went away every call fails with that number.
  bool keepsLostNumber = true;
  int quits = 0;
  int releases = 0;

  /// The calls so far, such as "RangeCopy A2:C9".
  std::vector<std::string> calls;
  /// Operations that fail at every call, by their name.
  std::map<std::string, SheetFault> faults;
  /// Runs in every call, before it does anything; what it gives makes the call fail.
  std::function<SheetFault(const std::string& call, int index)> onCall;

  /// Adds a workbook, which becomes the active one.
  MemoryBook& AddBook(const std::string& caption, const std::string& sheetName = "Sheet1");
  /// Ends the application: its workbooks are gone.
  void Vanish();
  /// Everything that is the user's: workbooks in their order, selections, contents.
  std::string UserState() const;
  /// True when a workbook of the user's has something to undo or to save.
  bool HasTraces() const;
  bool HasScratch() const;
  int CallCount(const std::string& operation) const;

  SheetFault GetRunningObject() override;
  void ReleaseObject() override;
  SheetFault Version(std::string& text) override;
  SheetFault Name(std::string& name) override;
  SheetFault Visible(bool& visible) override;
  SheetFault SetVisible(bool visible) override;
  SheetFault Quit() override;
  SheetFault ActiveWorkbook(Workbook& workbook) override;
  SheetFault ActiveWorkbookName(std::string& name) override;
  SheetFault WorkbookWindowsCount(Workbook workbook, int& count) override;
  SheetFault WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) override;
  SheetFault WindowsCount(int& count) override;
  SheetFault WindowCaption(int index, std::string& caption) override;
  SheetFault WorkbooksActivate(const std::string& caption) override;
  SheetFault WorkbooksAdd() override;
  SheetFault ActiveWindowClose(bool SaveChanges, bool RouteWorkbook) override;
  SheetFault ActiveSheetName(Workbook workbook, std::string& name) override;
  SheetFault ActiveCellFormula(Workbook workbook, std::string& formula) override;
  SheetFault SetActiveCellFormula(Workbook workbook, const std::string& formula) override;
  SheetFault ActiveCellValue(Workbook workbook, CellValue& value) override;
  SheetFault ActiveCellRow(Workbook workbook, int& row) override;
  SheetFault ActiveCellColumn(Workbook workbook, int& column) override;
  SheetFault FindActivate(Workbook workbook, const FindArguments& arguments) override;
  SheetFault ApplicationFindActivate(const FindArguments& arguments) override;
  SheetFault CellsValue(Workbook workbook, int row, int column, CellValue& value) override;
  SheetFault CellsSelect(Workbook workbook, int row, int column) override;
  SheetFault EvaluateAside(Workbook workbook, const std::string& formula, CellValue& value,
                           bool& offered) override;
  SheetFault RangeCopy(const std::string& range) override;
  SheetFault RangePasteSpecial(const std::string& range, const PasteArguments& arguments) override;
  SheetFault EndCutCopyMode() override;
  SheetFault RangeSelect(const std::string& range) override;
  SheetFault SetActiveCell(const std::string& text) override;
  SheetFault ColumnsSelect(const std::string& columns) override;
  SheetFault SelectionColumnWidth(double width) override;
  SheetFault SelectionNumberFormat(const std::string& format) override;
  SheetFault BlockText(const std::string& range, BlockTextSink& sink) override;

 private:
  SheetFault Enter(const std::string& operation, const std::string& arguments = "");
  MemoryBook* Find(Workbook workbook);
  MemoryBook* ActiveScratch();
  /// What a workbook that is not the one of an operation makes of it.
  SheetFault NotActive() const;
  void CloseScratch();
  std::vector<std::string> Captions() const;
  CellValue Evaluate(const std::string& formula) const;
  SheetFault FindIn(MemoryBook& book, const FindArguments& arguments);

  /// The selection of a workbook before the last search.
  struct Selected {
    int book = 0, row = 0, column = 0;
    std::string selection;
  };

  int lastId_ = 0;
  int lostNumber_ = 0;
  Selected beforeFind_;
  Selected lastRead_;       ///< The cell of the last ActiveCellFormula, with its sheet's name.
  int broughtForward_ = 0;  ///< The workbook of the last WorkbooksActivate or WorkbooksAdd.
  std::string selectedColumns_;
  bool isMarked_ = false;
  std::vector<std::vector<MemoryCell>> marked_;
};

}  // namespace quorb
