#include "BookObjects.h"

#include "RangeObject.h"

namespace {

constexpr CellBlock kWholeSheet = {1, 1, 1048576, 16384};

void MustBeOpen(const BookPointer& book) {
  if (!book->isOpen) throw ServerFailure{424, L"Object required"};
}

}  // namespace

// ---- a sheet ----------------------------------------------------------------------------------------------

SheetObject::SheetObject(BookPointer book, std::wstring name)
    : AutomationObject(
          {{L"Name", {}}, {L"Cells", {}}, {L"Range", {L"Cell1", L"Cell2"}}, {L"Evaluate", {L"Name"}}}),
      book_(std::move(book)),
      name_(std::move(name)) {}

void SheetObject::Do(const std::wstring& member, bool, const Arguments& arguments, VARIANT& result) {
  MustBeOpen(book_);
  if (member == L"Name") GiveText(result, name_);
  if (member == L"Cells") GiveObject(result, new RangeObject(book_, kWholeSheet));
  if (member == L"Range") GiveObject(result, new RangeObject(book_, BlockOf(TextOf(arguments[0]))));
  if (member != L"Evaluate") return;
  const std::wstring formula = TextOf(arguments[0]);
  const bool isReference = formula.size() > 1 && formula.find_first_of(L"\"/+(") == std::wstring::npos;
  if (isReference) return GiveObject(result, new RangeObject(book_, BlockOf(formula.substr(1))));
  GiveContent(result, Evaluated(*book_, formula));
}

// ---- windows ----------------------------------------------------------------------------------------------

WindowObject::WindowObject(BookPointer book, int index)
    : AutomationObject({{L"Caption", {}}, {L"ActiveCell", {}}, {L"Parent", {}}}),
      book_(std::move(book)),
      index_(index) {}

void WindowObject::Do(const std::wstring& member, bool, const Arguments&, VARIANT& result) {
  MustBeOpen(book_);
  const bool isOnly = book_->windows == 1;
  const std::wstring mark = book_->name == L"Newer.xlsx" ? L"  -  " : L":";
  if (member == L"Caption")
    GiveText(result, book_->caption + (isOnly ? L"" : mark + std::to_wstring(index_)));
  if (member == L"ActiveCell")
    GiveObject(result, new RangeObject(book_, {book_->activeRow, book_->activeColumn, book_->activeRow,
                                               book_->activeColumn}));
  if (member == L"Parent") GiveObject(result, new WorkbookObject(book_));
}

WindowsObject::WindowsObject(BookPointer book)
    : AutomationObject({{L"Count", {}}, {L"Item", {L"Index"}}}), book_(std::move(book)) {}

std::vector<std::pair<BookPointer, int>> WindowsObject::All() const {
  std::vector<std::pair<BookPointer, int>> all;
  for (const BookPointer& book : Model().books)
    for (int index = 1; index <= book->windows; ++index)
      if (!book_ || book_ == book) all.emplace_back(book, index);
  return all;
}

void WindowsObject::Do(const std::wstring& member, bool, const Arguments& arguments, VARIANT& result) {
  const auto all = All();
  if (member == L"Count") return GiveInteger(result, static_cast<int>(all.size()));
  const int index = IntegerOf(arguments[0]);
  if (index < 1 || static_cast<std::size_t>(index) > all.size()) throw ServerFailure{9, L"no such window"};
  const auto& [book, number] = all[static_cast<std::size_t>(index) - 1];
  GiveObject(result, new WindowObject(book, number));
}

// ---- workbooks --------------------------------------------------------------------------------------------

WorkbookObject::WorkbookObject(BookPointer book)
    : AutomationObject({{L"Name", {}},
                        {L"Windows", {}},
                        {L"ActiveSheet", {}},
                        {L"Close", {L"SaveChanges", L"Filename", L"RouteWorkbook"}}}),
      book_(std::move(book)) {}

void WorkbookObject::Do(const std::wstring& member, bool, const Arguments& arguments, VARIANT& result) {
  MustBeOpen(book_);
  if (member == L"Name") GiveText(result, book_->name);
  if (member == L"Windows") GiveObject(result, new WindowsObject(book_));
  if (member == L"ActiveSheet") GiveObject(result, new SheetObject(book_, book_->sheetName));
  if (member != L"Close") return;
  const bool isUnsaved =
      !FlagOf(arguments[0], true) && arguments[1] == nullptr && !FlagOf(arguments[2], true);
  Model().log.push_back(L"Close " + book_->name + (isUnsaved ? L" unsaved" : L" saved"));
  Model().books.remove(book_);
  book_->isOpen = false;
}

WorkbooksObject::WorkbooksObject() : AutomationObject({{L"Add", {L"Template"}}, {L"Item", {L"Index"}}}) {}

void WorkbooksObject::Do(const std::wstring& member, bool, const Arguments& arguments, VARIANT& result) {
  ServerModel& model = Model();
  if (member == L"Add") {
    const auto book = std::make_shared<ServerBook>();
    book->name = L"Scratch" + std::to_wstring(++model.booksAdded);
    book->caption = model.nextCaption.empty() ? book->name : model.nextCaption;
    model.books.push_front(book);
    model.log.push_back(L"Add " + book->name);
    return GiveObject(result, new WorkbookObject(book));
  }
  for (const BookPointer& book : model.books)
    if (book->name == TextOf(arguments[0])) return GiveObject(result, new WorkbookObject(book));
  throw ServerFailure{9, L"Subscript out of range"};
}
