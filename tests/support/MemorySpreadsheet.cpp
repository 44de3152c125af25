#include "MemorySpreadsheet.h"

#include <algorithm>

#include "NumberPicture.h"

namespace quorb {

namespace {

std::string Flag(const std::optional<bool>& flag) {
  return !flag ? "" : *flag ? " True" : " False";
}

}  // namespace

void MemoryBook::SetNumber(int row, int column, double number) {
  cells[{row, column}] = {GeneralNumber(number), {GeneralNumber(number), number}};
}

void MemoryBook::SetText(int row, int column, const std::string& text) {
  cells[{row, column}] = {text, {text, std::nullopt}};
}

void MemoryBook::SetFormula(int row, int column, const std::string& formula, double number) {
  cells[{row, column}] = {formula, {GeneralNumber(number), number}};
}

// ---- for the tests ----------------------------------------------------------------------------------------

MemoryBook& MemorySpreadsheet::AddBook(const std::string& caption, const std::string& sheetName) {
  MemoryBook book;
  book.id = ++lastId_;
  book.name = book.caption = caption;
  book.sheetName = sheetName;
  books.push_front(book);
  return books.front();
}

void MemorySpreadsheet::Vanish() {
  isRunning = isAttached = false;
  books.clear();
}

std::string MemorySpreadsheet::UserState() const {
  std::string state;
  for (const MemoryBook& book : books) {
    if (book.isScratch) continue;
    state += book.caption + "/" + book.sheetName + " at " + std::to_string(book.activeRow) + "," +
             std::to_string(book.activeColumn) + " in " + book.selection + "\n";
    for (const auto& [place, cell] : book.cells) {
      state += std::to_string(place.first) + "," + std::to_string(place.second) + " " + cell.formula + " " +
               cell.value.text + "\n";
    }
  }
  return state;
}

bool MemorySpreadsheet::HasTraces() const {
  return std::any_of(books.begin(), books.end(), [](const MemoryBook& book) {
    return !book.isScratch && (book.isModified || book.undoSteps > 0);
  });
}

bool MemorySpreadsheet::HasScratch() const {
  return std::any_of(books.begin(), books.end(), [](const MemoryBook& book) { return book.isScratch; });
}

int MemorySpreadsheet::CallCount(const std::string& operation) const {
  return static_cast<int>(std::count_if(calls.begin(), calls.end(), [&](const std::string& call) {
    return call.substr(0, call.find(' ')) == operation;
  }));
}

// ---- what every call goes through -------------------------------------------------------------------------

SheetFault MemorySpreadsheet::Enter(const std::string& operation, const std::string& arguments) {
  const std::string call = arguments.empty() ? operation : operation + " " + arguments;
  const int index = static_cast<int>(calls.size());
  calls.push_back(call);
  SheetFault failure = onCall ? onCall(call, index) : SheetFault();
  const auto fault = faults.find(operation);
  if (failure.Good() && fault != faults.end()) failure = fault->second;
  if (operation == "GetRunningObject") lostNumber_ = 0;
  if (lostNumber_ != 0) return FaultOf(lostNumber_);
  if (keepsLostNumber && (failure.number == kFaultDisconnected || failure.number == kFaultRemoteCallFailed))
    lostNumber_ = failure.number;
  if (!failure.Good()) return failure;
  if (!isAttached && operation != "GetRunningObject") return FaultOf(kFaultNoObject);
  return {};
}

MemoryBook* MemorySpreadsheet::Find(Workbook workbook) {
  for (MemoryBook& book : books) {
    if (book.id == workbook) return &book;
  }
  return nullptr;
}

MemoryBook* MemorySpreadsheet::ActiveScratch() {
  return !books.empty() && books.front().isScratch ? &books.front() : nullptr;
}

SheetFault MemorySpreadsheet::NotActive() const {
  const bool userMoved = !books.empty() && books.front().id != broughtForward_;
  return FaultOf(userMoved ? kFaultBusy : kFaultApplication);
}

void MemorySpreadsheet::CloseScratch() {
  books.remove_if([](const MemoryBook& book) { return book.isScratch; });
}

std::vector<std::string> MemorySpreadsheet::Captions() const {
  std::vector<std::string> captions;
  for (const MemoryBook& book : books)
    captions.push_back(book.caption);
  return captions;
}

CellValue MemorySpreadsheet::Evaluate(const std::string& formula) const {
  const auto known = evaluations.find(formula);
  if (known != evaluations.end()) return known->second;
  const bool isLiteral = formula.size() > 2 && formula[1] == '"' && formula.back() == '"';
  return {isLiteral ? formula.substr(2, formula.size() - 3) : "?", std::nullopt};
}

// ---- the application --------------------------------------------------------------------------------------

SheetFault MemorySpreadsheet::GetRunningObject() {
  SheetFault fault = Enter("GetRunningObject");
  if (!fault.Good()) return fault;
  if (!isRunning) return FaultOf(kFaultNoApplication);
  isAttached = true;
  return {};
}

void MemorySpreadsheet::ReleaseObject() {
  ++releases;
  CloseScratch();
  isAttached = false;
  lostNumber_ = 0;
}

SheetFault MemorySpreadsheet::Version(std::string& text) {
  SheetFault fault = Enter("Version");
  if (fault.Good()) text = version;
  return fault;
}

SheetFault MemorySpreadsheet::Name(std::string& name) {
  SheetFault fault = Enter("Name");
  if (fault.Good()) name = "Memory";
  return fault;
}

SheetFault MemorySpreadsheet::Visible(bool& visible) {
  SheetFault fault = Enter("Visible");
  if (fault.Good()) visible = isVisible;
  return fault;
}

SheetFault MemorySpreadsheet::SetVisible(bool visible) {
  SheetFault fault = Enter("SetVisible", visible ? "True" : "False");
  if (fault.Good()) isVisible = visible;
  return fault;
}

SheetFault MemorySpreadsheet::Quit() {
  SheetFault fault = Enter("Quit");
  if (!fault.Good()) return fault;
  ++quits;
  Vanish();
  return {};
}

// ---- workbooks and windows --------------------------------------------------------------------------------

SheetFault MemorySpreadsheet::ActiveWorkbook(Workbook& workbook) {
  SheetFault fault = Enter("ActiveWorkbook");
  if (fault.Good()) workbook = books.empty() ? kNoWorkbook : books.front().id;
  return fault;
}

SheetFault MemorySpreadsheet::ActiveWorkbookName(std::string& name) {
  SheetFault fault = Enter("ActiveWorkbookName");
  if (!fault.Good()) return fault;
  if (books.empty()) return FaultOf(kFaultNoObject);
  name = books.front().name;
  return {};
}

SheetFault MemorySpreadsheet::WorkbookWindowsCount(Workbook workbook, int& count) {
  SheetFault fault = Enter("WorkbookWindowsCount");
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  count = 1;
  return {};
}

SheetFault MemorySpreadsheet::WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) {
  SheetFault fault = Enter("WorkbookWindowCaption", std::to_string(index));
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (index != 1) return FaultOf(kFaultOutOfBounds);
  caption = book->caption;
  return {};
}

SheetFault MemorySpreadsheet::WindowsCount(int& count) {
  SheetFault fault = Enter("WindowsCount");
  if (fault.Good()) count = static_cast<int>(Captions().size());
  return fault;
}

SheetFault MemorySpreadsheet::WindowCaption(int index, std::string& caption) {
  SheetFault fault = Enter("WindowCaption", std::to_string(index));
  if (!fault.Good()) return fault;
  const std::vector<std::string> captions = Captions();
  if (index < 1 || index > static_cast<int>(captions.size())) return FaultOf(kFaultOutOfBounds);
  caption = captions[static_cast<std::size_t>(index) - 1];
  return {};
}

SheetFault MemorySpreadsheet::WorkbooksActivate(const std::string& caption) {
  SheetFault fault = Enter("WorkbooksActivate", caption);
  if (!fault.Good()) return fault;
  const auto found = std::find_if(books.begin(), books.end(),
                                  [&](const MemoryBook& book) { return book.caption == caption; });
  if (found == books.end()) return FaultOf(kFaultOutOfBounds);
  books.splice(books.begin(), books, found);
  broughtForward_ = books.front().id;
  return {};
}

SheetFault MemorySpreadsheet::WorkbooksAdd() {
  SheetFault fault = Enter("WorkbooksAdd");
  if (!fault.Good()) return fault;
  CloseScratch();
  if (emptyAdds > 0) {
    --emptyAdds;
    return {};
  }
  AddBook(scratchCaption).isScratch = true;
  broughtForward_ = books.front().id;
  return {};
}

SheetFault MemorySpreadsheet::ActiveWindowClose(bool SaveChanges, bool RouteWorkbook) {
  SheetFault fault = Enter("ActiveWindowClose", (SaveChanges ? "True " : "False ") +
                                                    std::string(RouteWorkbook ? "True" : "False"));
  if (!fault.Good()) return fault;
  if (!HasScratch()) return FaultOf(kFaultNoObject);
  CloseScratch();
  return {};
}

// ---- the active sheet of a workbook -----------------------------------------------------------------------

SheetFault MemorySpreadsheet::ActiveSheetName(Workbook workbook, std::string& name) {
  SheetFault fault = Enter("ActiveSheetName");
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  name = book->sheetName;
  return {};
}

SheetFault MemorySpreadsheet::ActiveCellFormula(Workbook workbook, std::string& formula) {
  SheetFault fault = Enter("ActiveCellFormula");
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  const auto cell = book->cells.find({book->activeRow, book->activeColumn});
  formula = cell == book->cells.end() ? "" : cell->second.formula;
  lastRead_ = {book->id, book->activeRow, book->activeColumn, book->sheetName};
  return {};
}

SheetFault MemorySpreadsheet::SetActiveCellFormula(Workbook workbook, const std::string& formula) {
  SheetFault fault = Enter("SetActiveCellFormula", formula);
  if (!fault.Good()) return fault;
  MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (book->isProtected) return FaultOf(kFaultApplication);
  const bool isCellRead = lastRead_.book == book->id && lastRead_.row == book->activeRow &&
                          lastRead_.column == book->activeColumn && lastRead_.selection == book->sheetName;
  if (!isCellRead) return FaultOf(kFaultBusy);
  MemoryCell& cell = book->cells[{book->activeRow, book->activeColumn}];
  evaluations[cell.formula] = cell.value;
  cell = {formula, Evaluate(formula)};
  book->isModified = true;
  ++book->undoSteps;
  return {};
}

SheetFault MemorySpreadsheet::ActiveCellValue(Workbook workbook, CellValue& value) {
  SheetFault fault = Enter("ActiveCellValue");
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  const auto cell = book->cells.find({book->activeRow, book->activeColumn});
  value = cell == book->cells.end() ? CellValue() : cell->second.value;
  return {};
}

SheetFault MemorySpreadsheet::ActiveCellRow(Workbook workbook, int& row) {
  SheetFault fault = Enter("ActiveCellRow");
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  row = book->activeRow;
  return {};
}

SheetFault MemorySpreadsheet::ActiveCellColumn(Workbook workbook, int& column) {
  SheetFault fault = Enter("ActiveCellColumn");
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  column = book->activeColumn;
  return {};
}

SheetFault MemorySpreadsheet::FindIn(MemoryBook& book, const FindArguments& arguments) {
  for (const auto& [place, cell] : book.cells) {
    if (cell.formula.find(arguments.What) == std::string::npos) continue;
    beforeFind_ = {book.id, book.activeRow, book.activeColumn, book.selection};
    book.Select(place.first, place.second);
    return {};
  }
  return FaultOf(kFaultNoObject);
}

SheetFault MemorySpreadsheet::FindActivate(Workbook workbook, const FindArguments& arguments) {
  SheetFault fault = Enter("FindActivate", arguments.What + " " + std::to_string(arguments.LookIn) + " " +
                                               std::to_string(arguments.LookAt) + Flag(arguments.MatchCase) +
                                               Flag(arguments.SearchFormat));
  if (!fault.Good()) return fault;
  MemoryBook* const book = Find(workbook);
  return book == nullptr ? FaultOf(kFaultNoObject) : FindIn(*book, arguments);
}

SheetFault MemorySpreadsheet::ApplicationFindActivate(const FindArguments& arguments) {
  SheetFault fault =
      Enter("ApplicationFindActivate", arguments.What + " " + std::to_string(arguments.LookIn) + " " +
                                           std::to_string(arguments.LookAt) + Flag(arguments.MatchCase) +
                                           Flag(arguments.SearchFormat));
  if (!fault.Good()) return fault;
  return books.empty() ? FaultOf(kFaultApplication) : FindIn(books.front(), arguments);
}

SheetFault MemorySpreadsheet::CellsValue(Workbook workbook, int row, int column, CellValue& value) {
  SheetFault fault = Enter("CellsValue", std::to_string(row) + " " + std::to_string(column));
  if (!fault.Good()) return fault;
  const MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (row < 1 || column < 1) return FaultOf(kFaultApplication);
  const auto cell = book->cells.find({row, column});
  value = cell == book->cells.end() ? CellValue() : cell->second.value;
  return {};
}

SheetFault MemorySpreadsheet::CellsSelect(Workbook workbook, int row, int column) {
  SheetFault fault = Enter("CellsSelect", std::to_string(row) + " " + std::to_string(column));
  if (!fault.Good()) return fault;
  MemoryBook* const book = Find(workbook);
  if (book == nullptr) return FaultOf(kFaultNoObject);
  if (row < 1 || column < 1) return FaultOf(kFaultApplication);
  if (row == book->activeRow && column == book->activeColumn) return {};
  book->Select(row, column);
  const Selected& before = beforeFind_;
  if (before.book == book->id && before.row == row && before.column == column)
    book->selection = before.selection;
  return {};
}

SheetFault MemorySpreadsheet::EvaluateAside(Workbook, const std::string& formula, CellValue& value,
                                            bool& offered) {
  offered = evaluatesAside;
  if (!offered) return {};
  SheetFault fault = Enter("EvaluateAside", formula);
  if (fault.Good()) value = Evaluate(formula);
  return fault;
}

}  // namespace quorb
