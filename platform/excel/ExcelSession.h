#pragma once

#include <atomic>
#include <chrono>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "Clipboard.h"
#include "ComObject.h"
#include "SheetLink.h"

namespace quorb {

/// A block as the clipboard gives it.
struct TextOfBlock {
  std::wstring rows;
  bool beginsWritten = false;  ///< Its first cell is the one that SetActiveCell wrote.
};

/// The operations of ExcelLink, as they run on the thread that talks with the application. What each does and
/// how it fails is told at SheetLink.
class ExcelSession {
 public:
  SheetFault Attach();
  void Release();
  /// Releases the application and gives up a scratch workbook that could not be closed.
  void Abandon();
  /// Asks for a release as soon as the call that is under way has come back. May be called on any thread.
  void ReleaseSoon() { releaseSoon_ = true; }
  /// Releases the application if that was asked for.
  void ReleaseIfAsked();
  /// 91 without an application.
  SheetFault Held() const { return FaultOf(app_.IsNothing() ? kFaultNoObject : kFaultNone); }
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
  SheetFault ActiveCellFormula(Workbook workbook, std::string& formula);
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
  SheetFault BlockText(const std::string& range, TextOfBlock& text);

  /// Looks up the application's process, once while it is attached.
  void LookUpProcess();
  /// The application's process; 0 when it is not known. May be asked on any thread.
  unsigned long Process() const { return process_; }

 private:
  // A workbook, and what was active in it when it was first asked for.
  struct Book {
    ComObject workbook, windows, window, sheet, cell;
    ComObject cellRead;  // The one whose formula was read last.
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
  SheetFault TakeView(Book& book);
  SheetFault FirstCaption(std::string& caption);
  SheetFault ReadCaptions();

  ComObject app_;
  std::atomic<unsigned long> process_ = 0;
  std::map<Workbook, Book> books_;
  Workbook lastBook_ = kNoWorkbook;  // No number is given twice, so that one from before a release is none.
  Workbook active_ = kNoWorkbook;
  Workbook activeBefore_ = kNoWorkbook;  // When the scratch workbook came.
  bool activeTaken_ = false;

  ComObject scratch_;
  Workbook scratchBook_ = kNoWorkbook;
  std::string selection_ = "A1";  // In the scratch workbook.
  std::string written_;           // The cell of it that SetActiveCell wrote.
  ComObject marked_;              // The block for the next paste.
  bool copying_ = false;          // The application holds a block of this program's for copying.
  SheetFault gone_;               // How the application was lost.
  std::atomic<bool> releaseSoon_ = false;
  ClipboardKeeper clipboard_;
};

}  // namespace quorb
