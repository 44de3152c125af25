#include "ExcelSession.h"

#include <windows.h>

#include <algorithm>

namespace quorb {

namespace {

constexpr wchar_t kProgramIdentifier[] = L"Excel.Application";

bool IsLost(int number) {
  return number == kFaultDisconnected || number == kFaultRemoteCallFailed;
}

SheetFault ItemOf(const ComObject& owner, const wchar_t* collection, const CallArguments& key,
                  ComObject& item) {
  ComObject items;
  SheetFault fault = owner.Follow(collection, items);
  return fault.Good() ? items.Follow(L"Item", item, key) : fault;
}

// The title without the number that it has where the workbook has several windows: "name:2", in newer
// versions "name  -  2".
std::string WithoutWindowNumber(const std::string& title) {
  const std::size_t end = title.find_last_not_of("0123456789");
  if (end == std::string::npos || end + 1 == title.size()) return title;
  for (const std::string mark : {":", "  -  "}) {
    const std::string before = title.substr(0, end + 1);
    if (before.ends_with(mark)) return before.substr(0, before.size() - mark.size());
  }
  return title;
}

SheetFault CaptionOf(const ComObject& windows, const ComObject& window, std::string& caption) {
  std::string title;
  int count = 0;
  SheetFault fault = window.GetText(L"Caption", title);
  if (fault.Good()) fault = windows.GetInteger(L"Count", count);
  if (fault.Good()) caption = count > 1 ? WithoutWindowNumber(title) : title;
  return fault;
}

// The caption of the workbook of one of the application's windows.
SheetFault CaptionOfWindow(const ComObject& window, ComObject& workbook, std::string& caption) {
  ComObject windows;
  SheetFault fault = window.Follow(L"Parent", workbook);
  if (fault.Good()) fault = workbook.Follow(L"Windows", windows);
  return fault.Good() ? CaptionOf(windows, window, caption) : fault;
}

}  // namespace

// ---- the application --------------------------------------------------------------------------------------

SheetFault ExcelSession::Attach() {
  Release();
  process_ = 0;
  SheetFault fault = RunningApplication(kProgramIdentifier, app_);
  // One that has just ended may still stand in the system's list of those that run.
  return IsLost(fault.number) ? FaultOf(kFaultNoApplication) : fault;
}

// Versions that do not tell their window have no known process.
void ExcelSession::LookUpProcess() {
  int window = 0;
  if (process_ != 0 || app_.IsNothing() || !gone_.Good() || !app_.GetInteger(L"Hwnd", window).Good()) return;
  DWORD process = 0;
  GetWindowThreadProcessId(static_cast<HWND>(LongToHandle(window)), &process);
  process_ = process;
}

void ExcelSession::Release() {
  // A scratch workbook that cannot be closed now is closed later, unless it is gone.
  releaseSoon_ = false;
  static_cast<void>(EndCopying());
  if (IsLost(CloseScratch().number)) scratch_ = ComObject();
  books_.clear();
  marked_ = ComObject();
  copying_ = false;
  gone_ = {};
  active_ = activeBefore_ = scratchBook_ = kNoWorkbook;
  activeTaken_ = false;
  app_ = ComObject();
}

void ExcelSession::ReleaseIfAsked() {
  if (releaseSoon_) Release();
}

void ExcelSession::Abandon() {
  Release();
  scratch_ = ComObject();
}

SheetFault ExcelSession::Visible(bool& visible) {
  Variant value;
  SheetFault fault = app_.Get(L"Visible", value);
  if (fault.Good()) visible = value.Number().value_or(0.0) != 0.0;
  return fault;
}

// ---- workbooks --------------------------------------------------------------------------------------------

ExcelSession::Book* ExcelSession::Known(Workbook workbook) {
  const auto known = books_.find(workbook);
  return known != books_.end() ? &known->second : nullptr;
}

Workbook ExcelSession::Take(const ComObject& workbook) {
  if (workbook.IsNothing()) return kNoWorkbook;
  books_[++lastBook_].workbook = workbook;
  return lastBook_;
}

// What the user has in front is asked once; from there on the operations say what is active.
SheetFault ExcelSession::TakeActive() {
  if (activeTaken_) return {};
  // A scratch workbook that could not be closed yet stands in front of what is the user's.
  if (!app_.IsNothing() && !scratch_.IsNothing()) return FaultOf(kFaultBusy);
  ComObject workbook;
  SheetFault fault = app_.Follow(L"ActiveWorkbook", workbook);
  if (!fault.Good()) return fault;
  activeTaken_ = true;
  active_ = Take(workbook);
  return {};
}

SheetFault ExcelSession::ActiveWorkbook(Workbook& workbook) {
  SheetFault fault = TakeActive();
  if (fault.Good()) workbook = active_;
  return fault;
}

SheetFault ExcelSession::ActiveWorkbookName(std::string& name) {
  SheetFault fault = TakeActive();
  if (!fault.Good()) return fault;
  const Book* book = Known(active_);
  return book != nullptr ? book->workbook.GetText(L"Name", name) : FaultOf(kFaultNoObject);
}

// The captions of all workbooks that are known, so that none is taken twice; one that the user has closed has
// none.
SheetFault ExcelSession::ReadCaptions() {
  SheetFault fault = TakeActive();
  for (const auto& [workbook, book] : books_) {
    std::string caption;
    if (fault.Good() && book.caption.empty()) fault = WorkbookWindowCaption(workbook, 1, caption);
    if (fault.number == kFaultObjectRequired) fault = {};
  }
  return fault;
}

SheetFault ExcelSession::WorkbooksActivate(const std::string& caption) {
  SheetFault fault = ReadCaptions();
  if (!fault.Good()) return fault;
  if (caption.empty()) return FaultOf(kFaultOutOfBounds);
  const auto known = std::find_if(books_.begin(), books_.end(),
                                  [&](const auto& book) { return book.second.caption == caption; });
  if (known != books_.end()) {
    active_ = known->first;
    return {};
  }
  ComObject workbook;
  fault = WorkbookOfCaption(caption, workbook);
  if (!fault.Good()) return fault;
  active_ = Take(workbook);
  Known(active_)->caption = caption;
  return {};
}

// The caption is mostly the name, but tells more where a workbook has several windows or is read-only.
SheetFault ExcelSession::WorkbookOfCaption(const std::string& caption, ComObject& workbook) {
  SheetFault named = ItemOf(app_, L"Workbooks", CallArguments(caption), workbook);
  if (named.Good() && !workbook.IsNothing()) return {};
  if (!named.Good() && named.number != kFaultOutOfBounds) return named;
  ComObject windows;
  int count = 0;
  SheetFault fault = app_.Follow(L"Windows", windows);
  if (fault.Good()) fault = windows.GetInteger(L"Count", count);
  for (int index = 1; index <= count && fault.Good(); ++index) {
    ComObject window;
    std::string title;
    fault = windows.Follow(L"Item", window, CallArguments(index));
    if (fault.Good()) fault = CaptionOfWindow(window, workbook, title);
    if (fault.Good() && title == caption) return {};
  }
  return fault.Good() ? FaultOf(kFaultOutOfBounds) : fault;
}

// ---- windows ----------------------------------------------------------------------------------------------

SheetFault ExcelSession::WindowOf(Book& book, ComObject& window) {
  SheetFault fault;
  if (book.window.IsNothing()) {
    fault = book.workbook.Follow(L"Windows", book.windows);
    if (fault.Good()) fault = book.windows.Follow(L"Item", book.window, CallArguments(1));
  }
  if (fault.Good()) window = book.window;
  return fault;
}

SheetFault ExcelSession::WorkbookWindowsCount(Workbook workbook, int& count) {
  Book* book = Known(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  ComObject window;
  SheetFault fault = WindowOf(*book, window);
  if (fault.Good()) count = 1;
  return fault;
}

SheetFault ExcelSession::WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) {
  Book* book = Known(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (index != 1) return FaultOf(kFaultOutOfBounds);
  ComObject window;
  SheetFault fault = WindowOf(*book, window);
  if (fault.Good()) fault = CaptionOf(book->windows, window, caption);
  if (fault.Good()) book->caption = caption;
  return fault;
}

// The caption of the active workbook, empty when there is none.
SheetFault ExcelSession::FirstCaption(std::string& caption) {
  SheetFault fault = TakeActive();
  const Book* book = Known(active_);
  if (!fault.Good() || book == nullptr) return fault;
  if (book->caption.empty()) return WorkbookWindowCaption(active_, 1, caption);
  caption = book->caption;
  return {};
}

// The active workbook's window is the first one, whatever the user has clicked on since.
SheetFault ExcelSession::WindowCaptions(std::vector<std::string>& captions) {
  ComObject windows;
  int count = 0;
  std::string first;
  SheetFault fault = FirstCaption(first);
  if (fault.Good()) fault = app_.Follow(L"Windows", windows);
  if (fault.Good()) fault = windows.GetInteger(L"Count", count);
  for (int index = 1; index <= count && fault.Good(); ++index) {
    ComObject window, workbook;
    std::string caption;
    fault = windows.Follow(L"Item", window, CallArguments(index));
    if (fault.Good()) fault = CaptionOfWindow(window, workbook, caption);
    const bool isNew = std::find(captions.begin(), captions.end(), caption) == captions.end();
    if (fault.Good() && isNew) captions.push_back(caption);
  }
  const auto place = std::find(captions.begin(), captions.end(), first);
  if (place != captions.end()) std::rotate(captions.begin(), place, place + 1);
  return fault;
}

// ---- the scratch workbook ---------------------------------------------------------------------------------

SheetFault ExcelSession::WorkbooksAdd() {
  SheetFault fault = TakeActive();
  if (fault.Good()) fault = EndCopying();
  int copyMode = 0;
  if (fault.Good()) fault = app_.GetInteger(L"CutCopyMode", copyMode);
  if (!fault.Good()) return fault;
  // A new workbook would take the user's mark off, and nothing could set it again.
  if (copyMode != 0) return FaultOf(kFaultBusy);
  ComObject workbooks;
  fault = app_.Follow(L"Workbooks", workbooks);
  if (fault.Good()) fault = CloseScratch();
  if (fault.Good()) fault = workbooks.Follow(L"Add", scratch_);
  if (!fault.Good()) return fault;
  if (scratch_.IsNothing()) return FaultOf(kFaultApplication);
  selection_ = "A1";
  written_.clear();
  activeBefore_ = active_;
  active_ = scratchBook_ = Take(scratch_);
  std::string caption;
  fault = WorkbookWindowCaption(scratchBook_, 1, caption);
  if (!fault.Good()) static_cast<void>(CloseScratch());
  return fault;
}

SheetFault ExcelSession::CloseScratchWindow() {
  return app_.IsNothing() || scratch_.IsNothing() ? FaultOf(kFaultNoObject) : CloseScratch();
}

SheetFault ExcelSession::CloseScratch() {
  if (scratch_.IsNothing()) return {};
  CallArguments arguments;
  arguments.Add(L"SaveChanges", false).Add(L"RouteWorkbook", false);
  SheetFault fault = scratch_.Call(L"Close", arguments);
  const bool isClosedByUser = fault.number == kFaultObjectRequired;
  if (!fault.Good() && !isClosedByUser) return fault;
  scratch_ = ComObject();
  if (active_ == scratchBook_) active_ = activeBefore_;
  books_.erase(scratchBook_);
  scratchBook_ = kNoWorkbook;
  return {};
}

}  // namespace quorb
