#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/frame/XFramesSupplier.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>

#include <algorithm>

#include "UnoSession.h"
#include "ViewData.h"

namespace quorb {

using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;

namespace {

std::string TitleOf(const Reference<css::uno::XInterface>& titled) {
  const Reference<css::frame::XTitle> title(titled, UNO_QUERY);
  return title.is() ? Utf8(title->getTitle()) : std::string();
}

}  // namespace

bool UnoSession::AsBookWindow(const Reference<css::frame::XFrame>& frame, BookWindow& window) {
  if (!frame.is()) return false;
  const auto controller = frame->getController();
  if (!controller.is()) return false;
  const Reference<css::lang::XServiceInfo> info(controller->getModel(), UNO_QUERY);
  if (!info.is() || !info->supportsService("com.sun.star.sheet.SpreadsheetDocument")) return false;
  window = {frame, controller, Reference<css::frame::XModel>(info, UNO_QUERY_THROW)};
  return true;
}

// One window of each workbook, that of the workbook in front first; behind a document of another kind, that
// of the workbook which was in front last. Newer ones stand before older ones.
std::vector<UnoSession::BookWindow> UnoSession::BookWindows() {
  std::vector<BookWindow> windows;
  BookWindow front;
  if (AsBookWindow(desktop_->getCurrentFrame(), front)) windows.push_back(front);
  const Reference<css::container::XIndexAccess> frames(desktop_->getFrames(), UNO_QUERY_THROW);
  for (sal_Int32 i = frames->getCount() - 1; i >= 0; --i) {
    BookWindow window;
    if (!AsBookWindow(Reference<css::frame::XFrame>(frames->getByIndex(i), UNO_QUERY), window)) continue;
    const bool known = std::any_of(windows.begin(), windows.end(),
                                   [&](const BookWindow& other) { return other.model == window.model; });
    const bool first = !front.frame.is() && window.model == lastInFront_;
    if (!known) windows.insert(first ? windows.begin() : windows.end(), window);
    Beat();
  }
  return windows;
}

std::string UnoSession::CaptionOf(const BookWindow& window) {
  return CaptionOfTitle(TitleOf(window.frame), TitleOf(window.model));
}

SheetFault UnoSession::View(const BookWindow& window, BookView& view) {
  const Reference<css::sheet::XSpreadsheetView> cells(window.controller, UNO_QUERY);
  if (!cells.is()) return {kBusy, "The window shows no cells now."};
  const auto sheet = cells->getActiveSheet();
  if (!sheet.is()) return {kNothingThere, "The workbook shows no sheet."};
  BookView found;
  found.name = TitleOf(window.model);
  found.caption = CaptionOfTitle(TitleOf(window.frame), found.name);
  found.sheetName = Utf8(Reference<css::container::XNamed>(sheet, UNO_QUERY_THROW)->getName());
  const auto address =
      Reference<css::sheet::XCellRangeAddressable>(sheet, UNO_QUERY_THROW)->getRangeAddress();
  rtl::OUString viewData;
  window.controller->getViewData() >>= viewData;
  CursorCell(Utf8(viewData), address.Sheet, found.row, found.column);

  for (const auto& [number, book] : books_)
    if (book.model == window.model) found.workbook = number;
  if (found.workbook == kNoWorkbook) found.workbook = ++lastWorkbook_;
  books_[found.workbook] = {window.model, sheet};
  view = found;
  return {};
}

SheetFault UnoSession::Look(BookView& view) {
  return Guarded([&]() -> SheetFault {
    BookWindow front;
    if (!AsBookWindow(desktop_->getCurrentFrame(), front)) {
      const auto windows = BookWindows();
      if (windows.empty()) {
        view = BookView();
        return {};
      }
      front = windows.front();
    }
    lastInFront_ = front.model;
    return View(front, view);
  });
}

SheetFault UnoSession::LookAt(const std::string& caption, BookView& view) {
  return Guarded([&]() -> SheetFault {
    for (const BookWindow& window : BookWindows())
      if (CaptionOf(window) == caption) return View(window, view);
    return {kNoSuchName, "No window has that title."};
  });
}

SheetFault UnoSession::Captions(std::vector<std::string>& captions) {
  return Guarded([&]() -> SheetFault {
    std::vector<std::string> found;
    for (const BookWindow& window : BookWindows())
      found.push_back(CaptionOf(window));
    captions = found;
    return {};
  });
}

void UnoSession::ForgetWorkbooks() {
  books_.clear();
}

UnoSession::Book* UnoSession::Find(Workbook workbook) {
  const auto found = books_.find(workbook);
  if (found == books_.end()) return nullptr;
  asked_ = found->second.model;
  return &found->second;
}

SheetFault UnoSession::SheetRows(Workbook workbook, int& rows) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    rows = Reference<css::table::XColumnRowRange>(book->sheet, UNO_QUERY_THROW)->getRows()->getCount();
    return {};
  });
}

}  // namespace quorb
