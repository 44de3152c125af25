#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "Clipboard.h"
#include "ComObject.h"
#include "SheetLink.h"

namespace quorb {

/// The operations of ExcelLink, as they run on the thread that talks with the application. What each does and
/// how it fails is told at SheetLink.
class ExcelSession {
 public:
  SheetFault Attach();
  void Release();
  /// Releases the application and gives up a scratch workbook that could not be closed.
  void Abandon();
  /// Does a question of the talk. Once the application is lost, every further one fails with that failure.
  template <typename Question>
  SheetFault Ask(const Question& question) {
    if (!gone_.Good()) return gone_;
    SheetFault fault = question();
    const bool isGone = fault.number == kFaultDisconnected || fault.number == kFaultRemoteCallFailed;
    if (isGone) gone_ = fault;
    return fault;
  }
  /// Asks again for a second while the application rejects the call, which it then has not begun.
  template <typename Question>
  SheetFault AskPatiently(const Question& question) {
    constexpr int kTries = 20;
    constexpr std::chrono::milliseconds kPause(50);
    SheetFault fault = Ask(question);
    for (int tries = 1; tries < kTries && fault.number == kFaultCallRejected; ++tries) {
      std::this_thread::sleep_for(kPause);
      fault = Ask(question);
    }
    return fault;
  }

  SheetFault Version(std::string& version) { return app_.GetText(L"Version", version); }
  SheetFault Name(std::string& name) { return app_.GetText(L"Name", name); }
  SheetFault Visible(bool& visible);
  SheetFault SetVisible(bool visible) { return app_.Put(L"Visible", visible); }
  SheetFault Quit() { return app_.Call(L"Quit"); }

  SheetFault ActiveWorkbook(Workbook& workbook);
  SheetFault ActiveWorkbookName(std::string& name);
  SheetFault WorkbookWindowsCount(Workbook workbook, int& count);
  SheetFault WorkbookWindowCaption(Workbook workbook, int index, std::string& caption);
  SheetFault WindowCaptions(std::vector<std::string>& captions);
  SheetFault WorkbooksActivate(const std::string& caption);
  SheetFault WorkbooksAdd();
  SheetFault CloseScratchWindow();

  SheetFault ActiveSheetName(Workbook workbook, std::string& name);
  SheetFault ActiveCellText(Workbook workbook, const wchar_t* member, std::string& text);
  SheetFault ActiveCellInteger(Workbook workbook, const wchar_t* member, int& number);
  SheetFault ActiveCellValue(Workbook workbook, CellValue& value);
  SheetFault SetActiveCellFormula(Workbook workbook, const std::string& formula);
  SheetFault FindActivate(Workbook workbook, const FindArguments& arguments);
  SheetFault ApplicationFindActivate(const FindArguments& arguments);
  SheetFault CellsValue(Workbook workbook, int row, int column, CellValue& value);
  SheetFault CellsSelect(Workbook workbook, int row, int column);
  SheetFault Evaluate(Workbook workbook, const std::string& formula, CellValue& value);

  SheetFault RangeCopy(const std::string& range);
  SheetFault RangePasteSpecial(const std::string& range, const PasteArguments& arguments);
  SheetFault EndCutCopyMode();
  SheetFault RangeSelect(const std::string& range);
  SheetFault SetActiveCell(const std::string& text);
  SheetFault ColumnsSelect(const std::string& columns);
  SheetFault SelectionColumnWidth(double width);
  SheetFault SelectionNumberFormat(const std::string& format);
  SheetFault BlockText(const std::string& range, std::wstring& text);

  /// Looks up the application's process, once while it is attached.
  void LookUpProcess();
  /// The application's process; 0 when it is not known. May be asked on any thread.
  unsigned long Process() const { return process_; }

 private:
  // A workbook, and what was active in it when it was first asked for.
  struct Book {
    ComObject workbook, windows, window, sheet, cell;
    std::string caption;
  };

  SheetFault CloseScratch();
  Book* Known(Workbook workbook);
  Workbook Take(const ComObject& workbook);
  SheetFault TakeActive();
  SheetFault WindowOf(Book& book, ComObject& window);
  SheetFault CopyBlock(const ComObject& block);
  SheetFault EndCopying();
  SheetFault SheetOf(Workbook workbook, ComObject& sheet);
  SheetFault CellOf(Workbook workbook, ComObject& cell);
  SheetFault FindIn(const ComObject& cells, Workbook workbook, const FindArguments& arguments);
  SheetFault WorkbookOfCaption(const std::string& caption, ComObject& workbook);
  SheetFault ScratchRange(const std::string& range, ComObject& block);
  SheetFault NoteLoss(const SheetFault& fault);

  ComObject app_;
  std::atomic<unsigned long> process_ = 0;
  std::vector<Book> books_;  // Workbook 1 is the first.
  Workbook active_ = kNoWorkbook;
  bool activeTaken_ = false;

  ComObject scratch_;
  Workbook scratchBook_ = kNoWorkbook;
  std::string selection_;  // In the scratch workbook.
  ComObject marked_;       // The block for the next paste.
  bool copying_ = false;   // The application holds a block of this program's for copying.
  SheetFault lost_;        // A block that did not come through.
  SheetFault gone_;        // How the application was lost.
  ClipboardKeeper clipboard_;
};

}  // namespace quorb
