#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/bridge/XBridge.hpp>
#include <com/sun/star/connection/XConnection.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/sheet/XSpreadsheet.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <functional>
#include <map>
#include <mutex>

#include "OfficeSession.h"

namespace quorb {

namespace css = ::com::sun::star;

/// Failures of OfficeSession.
inline constexpr int kNothingThere = 91;
inline constexpr int kNoSuchName = 9;
inline constexpr int kDocumentGone = 424;
inline constexpr int kRefused = 1004;
inline constexpr int kBusy = 50290;
inline constexpr int kOfficeGone = -2147417848;
inline constexpr int kCallFailed = -2147023170;

std::string Utf8(const rtl::OUString& text);
rtl::OUString Utf16(const std::string& text);

/// A sequence of one element.
template <typename Element>
css::uno::Sequence<Element> One(const Element& element) {
  return css::uno::Sequence<Element>(&element, 1);
}

/// The talk with an office over its own protocol. UnoConnect.cpp has the connection and the application,
/// UnoBooks.cpp workbooks and windows, UnoCells.cpp cells, UnoFind.cpp searches, UnoEvaluate.cpp formulas.
class UnoSession : public OfficeSession {
 public:
  explicit UnoSession(std::atomic<unsigned>& pulse) : pulse_(pulse) {}
  ~UnoSession() override;

  SheetFault Connect(const std::string& pipeName, const std::string& programDirectory,
                     int patienceMilliseconds) override;
  void Cut() override;
  SheetFault Contents(OfficeContents& contents) override;
  SheetFault Name(std::string& name) override;
  SheetFault Visible(bool& visible) override;
  SheetFault SetVisible(bool visible) override;
  SheetFault Quit() override;
  SheetFault Look(BookView& view) override;
  SheetFault LookAt(const std::string& caption, BookView& view) override;
  SheetFault Captions(std::vector<std::string>& captions) override;
  void ForgetWorkbooks() override;
  SheetFault SheetRows(Workbook workbook, int& rows) override;
  SheetFault CellFormula(Workbook workbook, int row, int column, std::string& formula) override;
  SheetFault ReadCell(Workbook workbook, int row, int column, CellValue& value) override;
  SheetFault FindInFormulas(Workbook workbook, const std::string& word, int& row, int& column) override;
  SheetFault EnglishFunction(Workbook workbook, const std::string& localName, std::string& name) override;
  SheetFault Evaluate(Workbook workbook, int row, int column, const std::string& formula,
                      CellValue& value) override;
  SheetFault ReadBlock(Workbook workbook, const CellRectangle& rectangle, CellBlock& block) override;

 private:
  struct Book {
    css::uno::Reference<css::frame::XModel> model;
    css::uno::Reference<css::sheet::XSpreadsheet> sheet;
  };
  class Copier;
  struct BookWindow {
    css::uno::Reference<css::frame::XFrame> frame;
    css::uno::Reference<css::frame::XController> controller;
    css::uno::Reference<css::frame::XModel> model;
  };

  // Runs a piece of work and turns what it throws into a failure.
  SheetFault Guarded(const std::function<SheetFault()>& work);
  bool IsCut();
  bool Alive();
  bool AskedIsOpen();
  void Beat() { pulse_.fetch_add(1); }

  css::uno::Reference<css::uno::XInterface> Service(const char* name);
  bool AsBookWindow(const css::uno::Reference<css::frame::XFrame>& frame, BookWindow& window);
  std::vector<BookWindow> BookWindows();
  std::string CaptionOf(const BookWindow& window);
  SheetFault View(const BookWindow& window, BookView& view);
  Book* Find(Workbook workbook);
  SheetFault ReadValues(const css::uno::Reference<css::sheet::XSpreadsheet>& sheet,
                        const CellRectangle& rectangle, CellBlock& block);
  static CellValue ValueOf(const css::uno::Reference<css::sheet::XSpreadsheet>& sheet, int row, int column);
  CellValue EvaluateIn(const Book& book, const css::uno::Reference<css::frame::XModel>& aside, int row,
                       int column, const std::string& formula);

  std::atomic<unsigned>& pulse_;
  std::mutex bridgeMutex_;
  bool cut_ = false;
  css::uno::Reference<css::connection::XConnection> connection_;
  css::uno::Reference<css::bridge::XBridge> bridge_;
  css::uno::Reference<css::uno::XComponentContext> context_;
  css::uno::Reference<css::lang::XMultiComponentFactory> factory_;
  css::uno::Reference<css::frame::XDesktop2> desktop_;
  css::uno::Reference<css::frame::XModel> lastInFront_;
  css::uno::Reference<css::frame::XModel> asked_;
  std::map<Workbook, Book> books_;
  Workbook lastWorkbook_ = kNoWorkbook;
  std::string productName_;
};

}  // namespace quorb
