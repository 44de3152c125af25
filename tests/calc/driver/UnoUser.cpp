#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/bridge/BridgeFactory.hpp>
#include <com/sun/star/bridge/XBridge.hpp>
#include <com/sun/star/connection/Connector.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/datatransfer/clipboard/XClipboard.hpp>
#include <com/sun/star/document/XUndoManagerSupplier.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XDispatchHelper.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/script/provider/XScriptProviderSupplier.hpp>
#include <com/sun/star/sheet/FilterOperator.hpp>
#include <com/sun/star/sheet/TableFilterField.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XSheetFilterable.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XMergeable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <functional>
#include <osl/file.hxx>
#include <rtl/bootstrap.hxx>
#include <thread>
#include <vector>

#include "OfficeUser.h"

namespace quorb {
namespace {

namespace css = ::com::sun::star;
using css::beans::PropertyValue;
using css::uno::Any;
using css::uno::Reference;
using css::uno::Sequence;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

OUString Wide(const std::string& text) {
  return OUString(text.data(), static_cast<sal_Int32>(text.size()), RTL_TEXTENCODING_UTF8);
}

std::string Narrow(const OUString& text) {
  const rtl::OString bytes = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {bytes.getStr(), static_cast<std::size_t>(bytes.getLength())};
}

PropertyValue Property(const char* name, const Any& value) {
  return {OUString::createFromAscii(name), 0, value, css::beans::PropertyState_DIRECT_VALUE};
}

class UnoUser : public OfficeUser {
 public:
  SheetFault Connect(const std::string& pipeName, const std::string& programDirectory) override {
    return Guarded([&] {
      static const Reference<css::uno::XComponentContext> own = [&] {
        rtl::Bootstrap::set("URE_MORE_TYPES", "file://" + Wide(programDirectory) + "/types/offapi.rdb");
        return cppu::defaultBootstrap_InitialComponentContext();
      }();
      const auto connector = css::connection::Connector::create(own);
      Reference<css::connection::XConnection> connection;
      for (int i = 0; !connection.is(); ++i) {
        try {
          connection = connector->connect(Wide("pipe,name=" + pipeName));
        } catch (const css::connection::NoConnectException&) {
          if (i > 500) throw;
          std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
      }
      bridge_ = css::bridge::BridgeFactory::create(own)->createBridge("", "urp", connection, nullptr);
      context_.set(bridge_->getInstance("StarOffice.ComponentContext"), UNO_QUERY_THROW);
      desktop_ = css::frame::Desktop::create(context_);
    });
  }
  ~UnoUser() override {
    try {
      documents_.clear();
      const Reference<css::lang::XComponent> component(bridge_, UNO_QUERY);
      if (component.is()) component->dispose();
    } catch (const css::uno::Exception&) {
      // The office was killed.
    }
  }

  SheetFault OpenSheet(int& document) override { return Load("private:factory/scalc", document); }
  SheetFault OpenHiddenSheet(int& document) override {
    return Guarded([&] {
      const PropertyValue hidden = Property("Hidden", Any(true));
      documents_.emplace_back(desktop_->loadComponentFromURL("private:factory/scalc", "_blank", 0,
                                                             Sequence<PropertyValue>(&hidden, 1)),
                              UNO_QUERY_THROW);
      document = static_cast<int>(documents_.size());
    });
  }
  SheetFault OpenSheetWithoutWindow(int& document) override {
    return Guarded([&] {
      documents_.emplace_back(Service("com.sun.star.sheet.SpreadsheetDocument"), UNO_QUERY_THROW);
      document = static_cast<int>(documents_.size());
      Reference<css::frame::XLoadable>(documents_.back(), UNO_QUERY_THROW)->initNew();
    });
  }
  SheetFault OpenText(int& document) override { return Load("private:factory/swriter", document); }
  SheetFault OpenFile(const std::string& path, int& document) override {
    return Load("file://" + Wide(path), document);
  }
  SheetFault Close(int document) override {
    return Guarded([&] {
      Reference<css::util::XModifiable>(Model(document), UNO_QUERY_THROW)->setModified(false);
      Reference<css::util::XCloseable>(Model(document), UNO_QUERY_THROW)->close(true);
    });
  }
  SheetFault Quit(int document) override {
    return Guarded([&] {
      Reference<css::util::XModifiable>(Model(document), UNO_QUERY_THROW)->setModified(false);
      try {
        desktop_->terminate();
      } catch (const css::lang::DisposedException&) {
        // It ended before it could answer.
      }
    });
  }
  SheetFault ToFront(int document) override {
    return Guarded([&] {
      const auto frame = Model(document)->getCurrentController()->getFrame();
      frame->activate();
      frame->getContainerWindow()->setFocus();
      WaitForFront(frame);
    });
  }
  SheetFault Type(int document, int sheet, int row, int column, const std::string& text) override {
    return Guarded(
        [&] { Sheet(document, sheet)->getCellByPosition(column - 1, row - 1)->setFormula(Wide(text)); });
  }
  SheetFault TypeText(int document, int sheet, int row, int column, const std::string& text) override {
    return Guarded([&] {
      Reference<css::text::XTextRange>(Sheet(document, sheet)->getCellByPosition(column - 1, row - 1),
                                       UNO_QUERY_THROW)
          ->setString(Wide(text));
    });
  }
  SheetFault FillNumbers(int document, int sheet, int row, int column, int rows, int columns) override {
    return Guarded([&] {
      constexpr int kHeight = 10000;
      for (int first = 0; first < rows; first += kHeight) {
        const int height = std::min(kHeight, rows - first);
        Sequence<Sequence<Any>> data(height);
        for (int r = 0; r < height; ++r) {
          Sequence<Any> cells(columns);
          for (int c = 0; c < columns; ++c)
            cells.getArray()[c] <<= (row + first + r) * 1.5 + (column + c) / 7.0;
          data.getArray()[r] = cells;
        }
        Reference<css::sheet::XCellRangeData>(
            Sheet(document, sheet)
                ->getCellRangeByPosition(column - 1, row - 1 + first, column + columns - 2,
                                         row + first + height - 2),
            UNO_QUERY_THROW)
            ->setDataArray(data);
      }
    });
  }
  SheetFault TypeNumbers(int document, int sheet, int row, int column, int columns,
                         const std::vector<double>& numbers) override {
    return Guarded([&] {
      constexpr std::size_t kHeight = 10000;
      const auto width = static_cast<std::size_t>(columns);
      const std::size_t rows = numbers.size() / width;
      for (std::size_t first = 0; first < rows; first += kHeight) {
        Sequence<Sequence<Any>> data(static_cast<sal_Int32>(std::min(kHeight, rows - first)));
        for (sal_Int32 r = 0; r < data.getLength(); ++r) {
          Sequence<Any> cells(columns);
          for (int c = 0; c < columns; ++c)
            cells.getArray()[c] <<=
                numbers[(first + static_cast<std::size_t>(r)) * width + static_cast<std::size_t>(c)];
          data.getArray()[r] = cells;
        }
        const int top = row - 1 + static_cast<int>(first);
        Reference<css::sheet::XCellRangeData>(
            Sheet(document, sheet)
                ->getCellRangeByPosition(column - 1, top, column + columns - 2, top + data.getLength() - 1),
            UNO_QUERY_THROW)
            ->setDataArray(data);
      }
    });
  }
  SheetFault SetFormat(int document, int sheet, const std::string& range,
                       const std::string& format) override {
    return Guarded([&] {
      const Reference<css::util::XNumberFormatsSupplier> supplier(Model(document), UNO_QUERY_THROW);
      const auto formats = supplier->getNumberFormats();
      const css::lang::Locale locale("en", "US", "");
      sal_Int32 key = formats->queryKey(Wide(format), locale, false);
      if (key < 0) key = formats->addNew(Wide(format), locale);
      Reference<css::beans::XPropertySet>(Range(document, sheet, range), UNO_QUERY_THROW)
          ->setPropertyValue("NumberFormat", Any(key));
    });
  }
  SheetFault AddSheet(int document, const std::string& name) override {
    return Guarded([&] {
      const Reference<css::sheet::XSpreadsheetDocument> book(Model(document), UNO_QUERY_THROW);
      book->getSheets()->insertNewByName(Wide(name), 99);
    });
  }
  SheetFault ShowSheet(int document, int sheet) override {
    return Guarded([&] {
      Reference<css::sheet::XSpreadsheetView>(Model(document)->getCurrentController(), UNO_QUERY_THROW)
          ->setActiveSheet(Sheet(document, sheet));
    });
  }
  SheetFault Select(int document, int sheet, const std::string& range) override {
    return Guarded([&] {
      Reference<css::view::XSelectionSupplier>(Model(document)->getCurrentController(), UNO_QUERY_THROW)
          ->select(Any(Range(document, sheet, range)));
    });
  }
  SheetFault SelectApart(int document, int sheet, const std::vector<std::string>& ranges) override {
    return Guarded([&] {
      const Reference<css::lang::XMultiServiceFactory> book(Model(document), UNO_QUERY_THROW);
      const Reference<css::sheet::XSheetCellRangeContainer> all(
          book->createInstance("com.sun.star.sheet.SheetCellRanges"), UNO_QUERY_THROW);
      for (const std::string& range : ranges) {
        const Reference<css::sheet::XCellRangeAddressable> cells(Range(document, sheet, range),
                                                                 UNO_QUERY_THROW);
        all->addRangeAddress(cells->getRangeAddress(), false);
      }
      Reference<css::view::XSelectionSupplier>(Model(document)->getCurrentController(), UNO_QUERY_THROW)
          ->select(Any(all));
    });
  }
  SheetFault RunMacro(int document, const std::string& url) override {
    return Guarded([&] {
      Sequence<Any> out;
      Sequence<sal_Int16> places;
      Reference<css::script::provider::XScriptProviderSupplier>(Model(document), UNO_QUERY_THROW)
          ->getScriptProvider()
          ->getScript(Wide(url))
          ->invoke(Sequence<Any>(), places, out);
    });
  }
  SheetFault Merge(int document, int sheet, const std::string& range) override {
    return Guarded([&] {
      Reference<css::util::XMergeable>(Range(document, sheet, range), UNO_QUERY_THROW)->merge(true);
    });
  }
  SheetFault HideRows(int document, int sheet, const std::string& range) override {
    return Guarded([&] {
      const Reference<css::table::XColumnRowRange> cells(Range(document, sheet, range), UNO_QUERY_THROW);
      Reference<css::beans::XPropertySet>(cells->getRows(), UNO_QUERY_THROW)
          ->setPropertyValue("IsVisible", Any(false));
    });
  }
  SheetFault HideColumns(int document, int sheet, const std::string& range) override {
    return Guarded([&] {
      const Reference<css::table::XColumnRowRange> cells(Range(document, sheet, range), UNO_QUERY_THROW);
      Reference<css::beans::XPropertySet>(cells->getColumns(), UNO_QUERY_THROW)
          ->setPropertyValue("IsVisible", Any(false));
    });
  }
  SheetFault FilterRows(int document, int sheet, const std::string& range, int column,
                        double bound) override {
    return Guarded([&] {
      const Reference<css::sheet::XSheetFilterable> cells(Range(document, sheet, range), UNO_QUERY_THROW);
      const auto filter = cells->createFilterDescriptor(true);
      css::sheet::TableFilterField field;
      field.Field = column;
      field.IsNumeric = true;
      field.NumericValue = bound;
      field.Operator = css::sheet::FilterOperator_GREATER;
      filter->setFilterFields(Sequence<css::sheet::TableFilterField>(&field, 1));
      cells->filter(filter);
    });
  }
  SheetFault Protect(int document, int sheet) override {
    return Guarded([&] {
      Reference<css::util::XProtectable>(Sheet(document, sheet), UNO_QUERY_THROW)->protect("secret");
    });
  }
  SheetFault AddName(int document, const std::string& name, const std::string& content) override {
    return Guarded([&] {
      Reference<css::sheet::XNamedRanges> names;
      Reference<css::beans::XPropertySet>(Model(document), UNO_QUERY_THROW)
          ->getPropertyValue("NamedRanges") >>= names;
      names->addNewByName(Wide(name), Wide(content), css::table::CellAddress(), 0);
    });
  }
  SheetFault Command(int document, const std::string& command) override {
    return Dispatch(document, command.c_str());
  }
  SheetFault IsShown(int document, bool& shown) override {
    return Guarded([&] {
      shown = Reference<css::awt::XWindow2>(
                  Model(document)->getCurrentController()->getFrame()->getContainerWindow(), UNO_QUERY_THROW)
                  ->isVisible();
    });
  }
  SheetFault SaveCopy(int document, const std::string& path) override {
    return Guarded([&] {
      const PropertyValue how = Property("FilterName", Any(OUString("calc8")));
      Reference<css::frame::XStorable>(Model(document), UNO_QUERY_THROW)
          ->storeToURL("file://" + Wide(path), Sequence<PropertyValue>(&how, 1));
    });
  }
  SheetFault Copy(int document) override { return Dispatch(document, ".uno:Copy"); }
  SheetFault SetModified(int document, bool modified) override {
    return Guarded(
        [&] { Reference<css::util::XModifiable>(Model(document), UNO_QUERY_THROW)->setModified(modified); });
  }
  SheetFault Undo(int document) override {
    return Guarded([&] {
      Reference<css::document::XUndoManagerSupplier>(Model(document), UNO_QUERY_THROW)
          ->getUndoManager()
          ->undo();
    });
  }
  SheetFault State(int document, UserState& state) override {
    return Guarded([&] {
      UserState found;
      const auto front = desktop_->getCurrentFrame();
      const Reference<css::frame::XTitle> title(front, UNO_QUERY);
      if (title.is()) found.frontTitle = Narrow(title->getTitle());
      const auto model = Model(document);
      const auto controller = model->getCurrentController();
      const Reference<css::sheet::XSpreadsheetView> view(controller, UNO_QUERY);
      if (view.is())
        found.sheet =
            Narrow(Reference<css::container::XNamed>(view->getActiveSheet(), UNO_QUERY_THROW)->getName());
      const Reference<css::sheet::XCellRangeAddressable> selection(model->getCurrentSelection(), UNO_QUERY);
      if (selection.is()) {
        const auto a = selection->getRangeAddress();
        found.selection = std::to_string(a.Sheet) + ":" + std::to_string(a.StartColumn) + "," +
                          std::to_string(a.StartRow) + "-" + std::to_string(a.EndColumn) + "," +
                          std::to_string(a.EndRow);
      }
      OUString viewData;
      controller->getViewData() >>= viewData;
      found.viewData = Narrow(viewData);
      found.modified = Reference<css::util::XModifiable>(model, UNO_QUERY_THROW)->isModified();
      const auto undo =
          Reference<css::document::XUndoManagerSupplier>(model, UNO_QUERY_THROW)->getUndoManager();
      for (const OUString& action : undo->getAllUndoActionTitles())
        found.undo += Narrow(action) + ";";
      for (const OUString& action : undo->getAllRedoActionTitles())
        found.undo += "<" + Narrow(action) + ";";
      found.clipboard = ClipboardText(found.clipboardFormats);
      found.documents = Count(desktop_->getComponents());
      found.loaded = Count(Reference<css::container::XEnumerationAccess>(
          css::frame::theGlobalEventBroadcaster::get(context_), UNO_QUERY_THROW));
      state = found;
    });
  }
  SheetFault Shown(int document, int sheet, int row, int column, std::string& text) override {
    return Guarded([&] {
      text = Narrow(Reference<css::text::XTextRange>(
                        Sheet(document, sheet)->getCellByPosition(column - 1, row - 1), UNO_QUERY_THROW)
                        ->getString());
    });
  }
  SheetFault SaveAsText(int document, const std::string& path) override {
    return Guarded([&] {
      const PropertyValue how[] = {
          Property("FilterName", Any(OUString("Text - txt - csv (StarCalc)"))),
          Property("FilterOptions", Any(OUString("9,0,76,1,,0,false,true,true,false,false,0")))};
      Reference<css::frame::XStorable>(Model(document), UNO_QUERY_THROW)
          ->storeToURL("file://" + Wide(path), Sequence<PropertyValue>(how, 2));
    });
  }

 private:
  SheetFault Guarded(const std::function<void()>& work) {
    try {
      work();
      return {};
    } catch (const css::uno::Exception& exception) {
      return {1004, Narrow(exception.Message)};
    } catch (const std::exception& exception) {
      return {1004, exception.what()};
    }
  }
  SheetFault Load(const OUString& url, int& document) {
    return Guarded([&] {
      const Reference<css::frame::XModel> model(desktop_->loadComponentFromURL(url, "_blank", 0, {}),
                                                UNO_QUERY_THROW);
      documents_.push_back(model);
      document = static_cast<int>(documents_.size());
      WaitForFront(model->getCurrentController()->getFrame());
    });
  }
  // The office takes note of its focus a moment later.
  void WaitForFront(const Reference<css::frame::XFrame>& frame) {
    for (int i = 0; i < 100 && desktop_->getCurrentFrame() != frame; ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  Reference<css::frame::XModel> Model(int document) {
    return documents_.at(static_cast<std::size_t>(document) - 1);
  }
  Reference<css::sheet::XSpreadsheet> Sheet(int document, int sheet) {
    const Reference<css::sheet::XSpreadsheetDocument> book(Model(document), UNO_QUERY_THROW);
    const Reference<css::container::XIndexAccess> sheets(book->getSheets(), UNO_QUERY_THROW);
    return Reference<css::sheet::XSpreadsheet>(sheets->getByIndex(sheet), UNO_QUERY_THROW);
  }
  Reference<css::table::XCellRange> Range(int document, int sheet, const std::string& range) {
    return Sheet(document, sheet)->getCellRangeByName(Wide(range));
  }
  Reference<css::uno::XInterface> Service(const char* name) {
    return context_->getServiceManager()->createInstanceWithContext(OUString::createFromAscii(name),
                                                                    context_);
  }
  SheetFault Dispatch(int document, const char* command) {
    return Guarded([&] {
      const Reference<css::frame::XDispatchHelper> helper(Service("com.sun.star.frame.DispatchHelper"),
                                                          UNO_QUERY_THROW);
      helper->executeDispatch(Reference<css::frame::XDispatchProvider>(
                                  Model(document)->getCurrentController()->getFrame(), UNO_QUERY_THROW),
                              OUString::createFromAscii(command), "", 0, {});
    });
  }
  static int Count(const Reference<css::container::XEnumerationAccess>& all) {
    int count = 0;
    const auto each = all->createEnumeration();
    for (; each->hasMoreElements(); each->nextElement())
      ++count;
    return count;
  }
  std::string ClipboardText(std::string& formats) {
    const Reference<css::datatransfer::clipboard::XClipboard> clipboard(
        Service("com.sun.star.datatransfer.clipboard.SystemClipboard"), UNO_QUERY_THROW);
    const auto contents = clipboard->getContents();
    if (!contents.is()) return "(nothing)";
    const auto flavors = contents->getTransferDataFlavors();
    for (const css::datatransfer::DataFlavor& flavor : flavors)
      formats += Narrow(flavor.MimeType) + "\n";
    for (const css::datatransfer::DataFlavor& flavor : flavors) {
      if (flavor.MimeType != "text/plain;charset=utf-16") continue;
      OUString text;
      contents->getTransferData(flavor) >>= text;
      return Narrow(text);
    }
    return "(no text)";
  }

  Reference<css::bridge::XBridge> bridge_;
  Reference<css::uno::XComponentContext> context_;
  Reference<css::frame::XDesktop2> desktop_;
  std::vector<Reference<css::frame::XModel>> documents_;
};

}  // namespace
}  // namespace quorb

extern "C" __attribute__((visibility("default"))) quorb::OfficeUser* QuorbOpenOfficeUser() {
  return new quorb::UnoUser();
}
