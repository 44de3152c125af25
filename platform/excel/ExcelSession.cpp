#include "ExcelSession.h"

#include <windows.h>

#include <algorithm>

namespace quorb {

namespace {

constexpr wchar_t kProgramIdentifier[] = L"Excel.Application";

bool IsGone(int number) {
  return number == kFaultDisconnected || number == kFaultRemoteCallFailed || number == kFaultObjectRequired;
}

SheetFault ItemOf(const ComObject& owner, const wchar_t* collection, const CallArguments& key,
                  ComObject& item) {
  ComObject items;
  SheetFault fault = owner.Follow(collection, items);
  return fault.Good() ? items.Follow(L"Item", item, key) : fault;
}

// The title without the number that it has where the workbook has several windows.
std::string WithoutWindowNumber(const std::string& title) {
  const std::size_t colon = title.find_last_of(':');
  const bool isNumber = colon != std::string::npos && colon + 1 < title.size() &&
                        title.find_first_not_of("0123456789", colon + 1) == std::string::npos;
  return isNumber ? title.substr(0, colon) : title;
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
  return RunningApplication(kProgramIdentifier, app_);
}

// Versions that do not tell their window have no known process.
void ExcelSession::LookUpProcess() {
  int window = 0;
  if (process_ != 0 || app_.IsNothing() || !app_.GetInteger(L"Hwnd", window).Good()) return;
  DWORD process = 0;
  GetWindowThreadProcessId(static_cast<HWND>(LongToHandle(window)), &process);
  process_ = process;
}

void ExcelSession::Release() {
  // A scratch workbook that cannot be closed now is closed later, unless it is gone.
  if (IsGone(CloseScratch().number)) scratch_ = ComObject();
  clipboard_.PutBack(process_);
  books_.clear();
  marked_ = ComObject();
  copying_ = false;
  gone_ = {};
  active_ = scratchBook_ = kNoWorkbook;
  activeTaken_ = false;
  app_ = ComObject();
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
  const bool isKnown = workbook > 0 && static_cast<std::size_t>(workbook) <= books_.size();
  return isKnown ? &books_[static_cast<std::size_t>(workbook) - 1] : nullptr;
}

Workbook ExcelSession::Take(const ComObject& workbook) {
  if (workbook.IsNothing()) return kNoWorkbook;
  books_.emplace_back().workbook = workbook;
  return static_cast<Workbook>(books_.size());
}

// What the user has in front is asked once; from there on the operations say what is active.
SheetFault ExcelSession::TakeActive() {
  if (activeTaken_) return {};
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

SheetFault ExcelSession::WorkbooksActivate(const std::string& caption) {
  SheetFault taken = TakeActive();
  if (!taken.Good()) return taken;
  const auto known =
      std::find_if(books_.begin(), books_.end(), [&](const Book& book) { return book.caption == caption; });
  if (known != books_.end()) {
    active_ = static_cast<Workbook>(known - books_.begin()) + 1;
    return {};
  }
  ComObject workbook;
  SheetFault fault = WorkbookOfCaption(caption, workbook);
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

// The scratch workbook's window counts as the first one, whatever the user has clicked on since.
SheetFault ExcelSession::WindowCaptions(std::vector<std::string>& captions) {
  ComObject windows;
  int count = 0;
  SheetFault fault = app_.Follow(L"Windows", windows);
  if (fault.Good()) fault = windows.GetInteger(L"Count", count);
  for (int index = 1; index <= count && fault.Good(); ++index) {
    ComObject window, workbook;
    std::string caption;
    fault = windows.Follow(L"Item", window, CallArguments(index));
    if (fault.Good()) fault = CaptionOfWindow(window, workbook, caption);
    const bool isNew = std::find(captions.begin(), captions.end(), caption) == captions.end();
    if (fault.Good() && isNew) captions.push_back(caption);
  }
  const Book* scratch = Known(scratchBook_);
  if (!fault.Good() || scratch == nullptr) return fault;
  const auto place = std::find(captions.begin(), captions.end(), scratch->caption);
  if (place != captions.end()) std::rotate(captions.begin(), place, place + 1);
  return {};
}

// ---- the scratch workbook ---------------------------------------------------------------------------------

SheetFault ExcelSession::WorkbooksAdd() {
  SheetFault fault = TakeActive();
  if (fault.Good()) fault = CloseScratch();
  int copyMode = 0;
  if (fault.Good()) fault = app_.GetInteger(L"CutCopyMode", copyMode);
  if (!fault.Good()) return fault;
  // A new workbook would take the user's mark off, and nothing could set it again.
  if (copyMode != 0) return FaultOf(kFaultBusy);
  ComObject workbooks;
  fault = app_.Follow(L"Workbooks", workbooks);
  if (fault.Good()) fault = workbooks.Follow(L"Add", scratch_);
  if (!fault.Good()) return fault;
  if (scratch_.IsNothing()) return FaultOf(kFaultApplication);
  lost_ = {};
  selection_.clear();
  active_ = scratchBook_ = Take(scratch_);
  std::string caption;
  return WorkbookWindowCaption(scratchBook_, 1, caption);
}

SheetFault ExcelSession::CloseScratchWindow() {
  return scratch_.IsNothing() ? FaultOf(kFaultNoObject) : CloseScratch();
}

SheetFault ExcelSession::CloseScratch() {
  if (scratch_.IsNothing()) return {};
  CallArguments arguments;
  arguments.Add(L"SaveChanges", false).Add(L"RouteWorkbook", false);
  SheetFault fault = scratch_.Call(L"Close", arguments);
  if (!fault.Good()) return fault;
  scratch_ = ComObject();
  if (Book* book = Known(scratchBook_)) book->caption.clear();
  active_ = scratchBook_ = kNoWorkbook;
  activeTaken_ = false;
  return {};
}

}  // namespace quorb
