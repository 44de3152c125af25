#include "ApplicationObject.h"

#include <windows.h>

#include "BookObjects.h"
#include "RangeObject.h"
#include "ServerClipboard.h"
#include "ServerModes.h"

namespace {

// An application that ends at once loses its answer to Quit.
constexpr UINT kTimeForAnswer = 400;

void CALLBACK EndServer(HWND, UINT, UINT_PTR, DWORD) {
  PostQuitMessage(0);
}

void AddBook(const AutomationObject::Arguments& arguments) {
  const auto book = std::make_shared<ServerBook>();
  book->name = TextOf(arguments[0]);
  book->caption = arguments[1] != nullptr ? TextOf(arguments[1]) : book->name;
  book->windows = IntegerOf(arguments[2], 1);
  Model().books.push_front(book);
}

void Activate(const std::wstring& name) {
  auto& books = Model().books;
  for (auto book = books.begin(); book != books.end(); ++book) {
    if ((*book)->name != name) continue;
    books.splice(books.begin(), books, book);
    return;
  }
}

std::wstring TakenLog() {
  std::wstring text;
  for (const std::wstring& line : Model().log)
    text += line + L"\n";
  Model().log.clear();
  return text;
}

}  // namespace

ApplicationObject::ApplicationObject()
    : AutomationObject({{L"Version", {}},
                        {L"Name", {}},
                        {L"Visible", {}},
                        {L"Hwnd", {}},
                        {L"Quit", {}},
                        {L"ActiveWorkbook", {}},
                        {L"Workbooks", {}},
                        {L"Windows", {}},
                        {L"Cells", {}},
                        {L"CutCopyMode", {}},
                        {L"TestReset", {}},
                        {L"TestAddBook", {L"Name", L"Caption", L"Windows"}},
                        {L"TestActivate", {L"Name"}},
                        {L"TestMode", {L"Kind", L"Member", L"Amount"}},
                        {L"TestReject", {L"Milliseconds"}},
                        {L"TestState", {}},
                        {L"TestLog", {}},
                        {L"TestCaption", {L"Caption"}},
                        {L"TestSheet", {L"Name"}},
                        {L"TestArguments", {L"First", L"Second", L"Third"}}}) {}

void ApplicationObject::Do(const std::wstring& member, bool isPut, const Arguments& arguments,
                           VARIANT& result) {
  ServerModel& model = Model();
  if (DoForTest(member, arguments, result)) return;
  if (isPut && member == L"Visible") {
    model.isVisible = FlagOf(arguments[0]);
  } else if (isPut && member == L"CutCopyMode") {
    if (model.markedBook && !FlagOf(arguments[0], true)) EmptyOwnClipboard();
    model.markedBook = nullptr;
  } else if (member == L"CutCopyMode") {
    GiveInteger(result, model.markedBook ? 1 : 0);
  } else if (member == L"Version") {
    GiveText(result, L"16.0");
  } else if (member == L"Name") {
    GiveText(result, L"Test sheet");
  } else if (member == L"Visible") {
    GiveContent(result, model.isVisible);
  } else if (member == L"Hwnd") {
    GiveInteger(result, HandleToLong(ServerWindow()));
  } else if (member == L"Quit") {
    SetTimer(nullptr, 0, kTimeForAnswer, EndServer);
  } else if (member == L"ActiveWorkbook") {
    GiveObject(result, model.Active() ? new WorkbookObject(model.Active()) : nullptr);
  } else if (member == L"Workbooks") {
    GiveObject(result, new WorkbooksObject());
  } else if (member == L"Windows") {
    GiveObject(result, new WindowsObject(nullptr));
  } else if (member == L"Cells") {
    if (!model.Active()) throw ServerFailure{1004, L"no sheet"};
    GiveObject(result, new RangeObject(model.Active(), {1, 1, 1048576, 16384}));
  }
}

bool ApplicationObject::DoForTest(const std::wstring& member, const Arguments& arguments, VARIANT& result) {
  if (member == L"TestReset") {
    for (const BookPointer& book : Model().books)
      book->isOpen = false;
    Model() = {};
    SetMode({});
  } else if (member == L"TestAddBook") {
    AddBook(arguments);
  } else if (member == L"TestActivate") {
    Activate(TextOf(arguments[0]));
  } else if (member == L"TestMode") {
    SetMode({TextOf(arguments[0]), TextOf(arguments[1]), IntegerOf(arguments[2])});
  } else if (member == L"TestReject") {
    RejectCallsFor(IntegerOf(arguments[0]));
  } else if (member == L"TestState") {
    GiveText(result, StateOfUser());
  } else if (member == L"TestLog") {
    GiveText(result, TakenLog());
  } else if (member == L"TestCaption") {
    Model().nextCaption = TextOf(arguments[0]);
  } else if (member == L"TestSheet") {
    Model().Active()->sheetName = TextOf(arguments[0]);
  } else if (member == L"TestArguments") {
    std::wstring text;
    for (const VARIANT* argument : arguments)
      text += (argument == nullptr ? std::wstring(L"-") : TextOf(argument)) + L" ";
    GiveText(result, text);
  } else {
    return false;
  }
  return true;
}
