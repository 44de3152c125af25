#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "CallWorker.h"
#include "ProcessTime.h"
#include "SheetLink.h"

namespace quorb {

class ExcelSession;

/// The spreadsheet application is the Microsoft Excel that the user runs, reached by late-bound automation.
/// It is never started, and no workbook is saved. Of several that run, the first one that registered itself
/// is taken.
///
/// The active workbook, sheet and cell are kept here, beginning with what the user sees: the user's windows
/// and selection do not move, but for the scratch workbook that comes and goes in front of them. A formula of
/// the user's is evaluated aside; only one of more than 255 characters is left to the caller, who writes it
/// into the cell for a moment. The application remembers the settings of the last search, so its Find box
/// shows those of the loader.
///
/// A paste and the block's text go through the clipboard. What the user had there is put back before the
/// operation returns, unless another program has filled it meanwhile: text, marked-up text, a picture, a list
/// of files. What a program keeps there in a form of its own is lost. While the user has a block marked in
/// the application for a paste of their own, a new workbook, which would take the mark off, is refused as
/// busy.
///
/// The talk runs on a thread of its own. A call that takes 5 seconds is given up as busy (50290), and
/// everything is busy until it has come back, and a release waits for that; a load's call may take longer for
/// as long as the application computes, and lets events through. A load's call that is rejected is tried
/// again for a second.
class ExcelLink : public SheetLink {
 public:
  /// The processor time that a process has used, in microseconds.
  using ProcessorTime = std::function<std::int64_t(unsigned long process)>;

  /// @param limit how long a call may take without a sign of life.
  explicit ExcelLink(std::chrono::milliseconds limit = std::chrono::milliseconds(5000),
                     ProcessorTime processorTime = ProcessorMicroseconds);
  ~ExcelLink() override;

  SheetFault GetRunningObject() override;
  void ReleaseObject() override;
  SheetFault Version(std::string& version) override;
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
  enum class Asker { attach, poll, load };

  template <typename Result, typename Question>
  SheetFault Ask(Asker asker, Result& result, const Question& question);
  template <typename Question>
  SheetFault Tell(const Question& question);
  SheetFault WindowCaptions(std::vector<std::string>& captions);
  bool IsComputing();

  const std::chrono::milliseconds limit_;
  const ProcessorTime processorTime_;
  const std::shared_ptr<ExcelSession> session_;
  std::int64_t timeUsed_ = 0;
  int stepsUnderWay_ = 0;
  int releases_ = 0;
  CallWorker worker_;
};

}  // namespace quorb
