#include <chrono>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/bridge/BridgeFactory.hpp>
#include <com/sun/star/connection/Connector.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XFramesSupplier.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <exception>
#include <functional>
#include <osl/file.hxx>
#include <rtl/bootstrap.hxx>
#include <thread>

#include "UnoSession.h"

namespace quorb {

using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;

std::string Utf8(const rtl::OUString& text) {
  const rtl::OString bytes = rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8);
  return {bytes.getStr(), static_cast<std::size_t>(bytes.getLength())};
}

rtl::OUString Utf16(const std::string& text) {
  return rtl::OUString(text.data(), static_cast<sal_Int32>(text.size()), RTL_TEXTENCODING_UTF8);
}

namespace {

// The context of this process's own side; made once, with the types of the first office.
Reference<css::uno::XComponentContext> OwnContext(const std::string& programDirectory) {
  static const Reference<css::uno::XComponentContext> context = [&] {
    rtl::OUString url;
    osl::FileBase::getFileURLFromSystemPath(Utf16(programDirectory + "/types/offapi.rdb"), url);
    rtl::Bootstrap::set("URE_MORE_TYPES", url);
    return cppu::defaultBootstrap_InitialComponentContext();
  }();
  return context;
}

Reference<css::connection::XConnection> Reach(const Reference<css::uno::XComponentContext>& context,
                                              const std::string& pipeName, int patienceMilliseconds,
                                              const std::function<bool()>& isCut) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(patienceMilliseconds);
  const auto connector = css::connection::Connector::create(context);
  for (;;) {
    try {
      return connector->connect(Utf16("pipe,name=" + pipeName));
    } catch (const css::connection::NoConnectException&) {
      if (isCut() || std::chrono::steady_clock::now() > deadline) throw;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(3));
  }
}

bool IsVisible(const Reference<css::frame::XFrame>& frame) {
  const Reference<css::awt::XWindow2> window(frame.is() ? frame->getContainerWindow() : nullptr, UNO_QUERY);
  return window.is() && window->isVisible();
}

}  // namespace

UnoSession::~UnoSession() {
  UnoSession::Cut();
}

SheetFault UnoSession::Guarded(const std::function<SheetFault()>& work) {
  const auto refused = [](int number, const css::uno::Exception& exception) {
    return SheetFault{number, Utf8(exception.Message)};
  };
  asked_.clear();
  try {
    SheetFault fault = work();
    Beat();
    return fault;
  } catch (const css::uno::RuntimeException& exception) {
    if (!Alive()) return refused(kOfficeGone, exception);
    return refused(AskedIsOpen() ? kRefused : kDocumentGone, exception);
  } catch (const css::uno::Exception& exception) {
    return refused(kRefused, exception);
  } catch (const std::exception& exception) {
    return {kCallFailed, exception.what()};
  }
}

bool UnoSession::IsCut() {
  const std::lock_guard lock(bridgeMutex_);
  return cut_;
}

// Asks the office for something small.
bool UnoSession::Alive() {
  if (IsCut() || !desktop_.is()) return false;
  try {
    desktop_->getCurrentFrame();
    return true;
  } catch (const css::uno::Exception&) {
    return false;
  }
}

// True unless the document that was worked on last has been closed.
bool UnoSession::AskedIsOpen() {
  try {
    return !asked_.is() || asked_->getCurrentController().is();
  } catch (const css::uno::Exception&) {
    return false;
  }
}

SheetFault UnoSession::Connect(const std::string& pipeName, const std::string& programDirectory,
                               int patienceMilliseconds) {
  return Guarded([&]() -> SheetFault {
    const auto own = OwnContext(programDirectory);
    auto connection = Reach(own, pipeName, patienceMilliseconds, [this] { return IsCut(); });
    auto bridge = css::bridge::BridgeFactory::create(own)->createBridge("", "urp", connection, nullptr);
    {
      const std::lock_guard lock(bridgeMutex_);
      if (cut_) return {kOfficeGone, "cut"};
      connection_ = connection;
      bridge_ = bridge;
    }
    context_.set(bridge->getInstance("StarOffice.ComponentContext"), UNO_QUERY_THROW);
    Beat();
    factory_.set(context_->getServiceManager(), UNO_QUERY_THROW);
    desktop_.set(css::frame::Desktop::create(context_));
    return {};
  });
}

void UnoSession::Cut() {
  Reference<css::bridge::XBridge> bridge;
  Reference<css::connection::XConnection> connection;
  {
    const std::lock_guard lock(bridgeMutex_);
    cut_ = true;
    bridge = bridge_;
    connection = connection_;
    bridge_.clear();
    connection_.clear();
  }
  try {
    const Reference<css::lang::XComponent> component(bridge, UNO_QUERY);
    if (component.is()) component->dispose();
    if (connection.is()) connection->close();
  } catch (const css::uno::Exception&) {
    // It is gone already, which is what was wanted.
  }
}

Reference<css::uno::XInterface> UnoSession::Service(const char* name) {
  return factory_->createInstanceWithContext(rtl::OUString::createFromAscii(name), context_);
}

SheetFault UnoSession::Contents(OfficeContents& contents) {
  return Guarded([&]() -> SheetFault {
    OfficeContents found;
    BookWindow front;
    if (AsBookWindow(desktop_->getCurrentFrame(), front)) {
      found.spreadsheets = true;
    } else {
      const auto documents = desktop_->getComponents()->createEnumeration();
      while (documents->hasMoreElements()) {
        const Reference<css::lang::XServiceInfo> info(documents->nextElement(), UNO_QUERY);
        if (!info.is()) continue;
        if (info->supportsService("com.sun.star.sheet.SpreadsheetDocument"))
          found.spreadsheets = true;
        else if (Reference<css::frame::XModel>(info, UNO_QUERY).is())
          found.otherDocuments = true;
      }
    }
    contents = found;
    return {};
  });
}

SheetFault UnoSession::Name(std::string& name) {
  if (!productName_.empty()) {
    name = productName_;
    return {};
  }
  return Guarded([&]() -> SheetFault {
    const Reference<css::lang::XMultiServiceFactory> provider(
        Service("com.sun.star.configuration.ConfigurationProvider"), UNO_QUERY_THROW);
    const css::beans::PropertyValue path("nodepath", 0,
                                         css::uno::Any(rtl::OUString("/org.openoffice.Setup/Product")),
                                         css::beans::PropertyState_DIRECT_VALUE);
    const Reference<css::beans::XPropertySet> product(
        provider->createInstanceWithArguments("com.sun.star.configuration.ConfigurationAccess",
                                              One(css::uno::Any(path))),
        UNO_QUERY_THROW);
    rtl::OUString text, version;
    product->getPropertyValue("ooName") >>= text;
    product->getPropertyValue("ooSetupVersion") >>= version;
    productName_ = Utf8(text + " Calc " + version);
    name = productName_;
    return {};
  });
}

SheetFault UnoSession::Visible(bool& visible) {
  return Guarded([&]() -> SheetFault {
    bool any = false;
    const Reference<css::container::XIndexAccess> frames(desktop_->getFrames(), UNO_QUERY_THROW);
    for (sal_Int32 i = 0; i < frames->getCount() && !any; ++i)
      any = IsVisible(Reference<css::frame::XFrame>(frames->getByIndex(i), UNO_QUERY));
    visible = any;
    return {};
  });
}

// The window of one workbook stands for the application: documents that a macro keeps hidden stay so.
SheetFault UnoSession::SetVisible(bool visible) {
  return Guarded([&]() -> SheetFault {
    const auto windows = BookWindows();
    if (windows.empty()) return {kNothingThere, "No workbook is open."};
    const auto window = windows.front().frame->getContainerWindow();
    if (window.is() && IsVisible(windows.front().frame) != visible) window->setVisible(visible);
    return {};
  });
}

SheetFault UnoSession::Quit() {
  return Guarded([&]() -> SheetFault {
    OfficeContents contents;
    SheetFault fault = Contents(contents);
    if (!fault.Good()) return fault;
    if (contents.spreadsheets || contents.otherDocuments)
      return {kRefused, "Documents are open in the office."};
    try {
      if (!desktop_->terminate()) return {kRefused, "The office does not end now."};
    } catch (const css::lang::DisposedException&) {
      // It ended before it could answer.
    }
    return {};
  });
}

}  // namespace quorb

extern "C" __attribute__((visibility("default"))) quorb::OfficeSession* QuorbOpenOfficeSession(
    std::atomic<unsigned>* pulse) {
  return new quorb::UnoSession(*pulse);
}
