#include "RangeObject.h"

#include <oleauto.h>

#include "BookObjects.h"
#include "ServerClipboard.h"

namespace {

constexpr int kFormulas = -4123, kPart = 2, kValues = -4163, kNoOperation = -4142;

std::wstring FlagText(const VARIANT* value) {
  return value == nullptr ? L"-" : FlagOf(value) ? L"True" : L"False";
}

std::wstring NumberText(const VARIANT* value) {
  return value == nullptr ? L"-" : std::to_wstring(IntegerOf(value));
}

CellContent ContentOf(const VARIANT& value) {
  switch (value.vt) {
    case VT_R8:
      return value.dblVal;
    case VT_I4:
      return static_cast<double>(value.lVal);
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE;
    case VT_BSTR:
      return TextOf(&value);
    default:
      return {};
  }
}

}  // namespace

void GiveContent(VARIANT& result, const CellContent& content) {
  if (const auto* number = std::get_if<double>(&content)) {
    result.vt = VT_R8;
    result.dblVal = *number;
  } else if (const auto* text = std::get_if<std::wstring>(&content)) {
    GiveText(result, *text);
  } else if (const auto* flag = std::get_if<bool>(&content)) {
    result.vt = VT_BOOL;
    result.boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (const auto* error = std::get_if<CellError>(&content)) {
    result.vt = VT_ERROR;
    result.scode = static_cast<SCODE>(0x800A0000u | static_cast<unsigned>(error->number));
  } else if (const auto* date = std::get_if<CellDate>(&content)) {
    result.vt = VT_DATE;
    result.date = date->days;
  }
}

RangeObject::RangeObject(BookPointer book, const CellBlock& block)
    : AutomationObject({{L"Value", {}},
                        {L"Formula", {}},
                        {L"Row", {}},
                        {L"Column", {}},
                        {L"Cells", {}},
                        {L"Worksheet", {}},
                        {L"ColumnWidth", {}},
                        {L"NumberFormat", {}},
                        {L"Item", {L"RowIndex", L"ColumnIndex"}},
                        {L"Select", {}},
                        {L"Find",
                         {L"What", L"After", L"LookIn", L"LookAt", L"SearchOrder", L"SearchDirection",
                          L"MatchCase", L"MatchByte", L"SearchFormat"}},
                        {L"Copy", {L"Destination"}},
                        {L"PasteSpecial", {L"Paste", L"Operation", L"SkipBlanks", L"Transpose"}},
                        {L"TestError", {}},
                        {L"TestDate", {}}}),
      book_(std::move(book)),
      sheetName_(book_->sheetName),
      block_(block) {}

void RangeObject::Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) {
  if (!book_->isOpen) throw ServerFailure{424, L"Object required"};
  if (isPut) return Put(member, *arguments[0]);
  if (Get(member, result)) return;
  if (member == L"Item") {
    const int row = IntegerOf(arguments[0]), column = IntegerOf(arguments[1]);
    if (row < 1 || column < 1) throw ServerFailure{1004, L"no such cell"};
    const int atRow = block_.firstRow + row - 1, atColumn = block_.firstColumn + column - 1;
    return GiveObject(result, new RangeObject(book_, {atRow, atColumn, atRow, atColumn}));
  }
  if (member == L"Select") {
    book_->activeRow = block_.firstRow;
    book_->activeColumn = block_.firstColumn;
  }
  if (member == L"Find") Find(arguments, result);
  if (member == L"Copy") Copy();
  if (member == L"PasteSpecial") PasteSpecial(arguments);
}

bool RangeObject::Get(const std::wstring& member, VARIANT& result) const {
  const auto cell = book_->cells.find({block_.firstRow, block_.firstColumn});
  const bool isEmpty = cell == book_->cells.end();
  if (member == L"Value") {
    if (!isEmpty) GiveContent(result, cell->second.value);
  } else if (member == L"Formula") {
    const bool isTyped = isEmpty || !cell->second.formula.empty();
    GiveText(result, isEmpty   ? L""
                     : isTyped ? cell->second.formula
                               : Displayed(*book_, block_.firstRow, block_.firstColumn));
  } else if (member == L"Row") {
    GiveInteger(result, block_.firstRow);
  } else if (member == L"Column") {
    GiveInteger(result, block_.firstColumn);
  } else if (member == L"Worksheet") {
    GiveObject(result, new SheetObject(book_, sheetName_));
  } else if (member == L"Cells") {
    GiveObject(result, new RangeObject(book_, block_));
  } else {
    return false;
  }
  return true;
}

void RangeObject::Put(const std::wstring& member, const VARIANT& value) {
  ServerCell& cell = book_->cells[{block_.firstRow, block_.firstColumn}];
  if (member == L"Value") {
    cell = {L"", ContentOf(value)};
  } else if (member == L"Formula") {
    const std::wstring formula = TextOf(&value);
    Model().log.push_back(NameOf(block_) + L".Formula = " + formula);
    cell = {formula, formula.rfind(L'=', 0) == 0 ? Evaluated(*book_, formula) : CellContent(formula)};
  } else if (member == L"TestError") {
    cell = {L"", CellError{IntegerOf(&value)}};
  } else if (member == L"TestDate") {
    cell = {L"", CellDate{value.dblVal}};
  } else {
    for (int column = block_.firstColumn; column <= block_.lastColumn; ++column) {
      if (member == L"ColumnWidth") book_->widths[column] = value.dblVal;
      if (member == L"NumberFormat") book_->formats[column] = TextOf(&value);
    }
  }
}

// Looks in the block alone, row after row; a cell's own block has no other.
void RangeObject::Find(const Arguments& arguments, VARIANT& result) const {
  const std::wstring what = TextOf(arguments[0]);
  Model().log.push_back(L"Find " + what + L" in " + NameOf(block_) + L" " + NumberText(arguments[2]) + L" " +
                        NumberText(arguments[3]) + L" " + FlagText(arguments[6]) + L" " +
                        FlagText(arguments[8]));
  const bool isAsTold =
      IntegerOf(arguments[2]) == kFormulas && IntegerOf(arguments[3]) == kPart && FlagOf(arguments[6]);
  GiveObject(result, nullptr);
  if (!isAsTold) return;
  for (const auto& [place, cell] : book_->cells) {
    const bool isInside = place.first >= block_.firstRow && place.first <= block_.lastRow &&
                          place.second >= block_.firstColumn && place.second <= block_.lastColumn;
    const std::wstring& text =
        cell.formula.empty() ? Displayed(*book_, place.first, place.second) : cell.formula;
    if (!isInside || text.find(what) == std::wstring::npos) continue;
    return GiveObject(result, new RangeObject(book_, {place.first, place.second, place.first, place.second}));
  }
}

void RangeObject::Copy() const {
  ServerModel& model = Model();
  model.log.push_back(L"Copy " + book_->name + L" " + NameOf(block_));
  model.markedBook = book_;
  model.marked = block_;
  FillClipboard(ClipboardForm(*book_, block_));
}

void RangeObject::PasteSpecial(const Arguments& arguments) const {
  ServerModel& model = Model();
  model.log.push_back(L"PasteSpecial " + NameOf(block_) + L" " + NumberText(arguments[0]) + L" " +
                      NumberText(arguments[1]) + L" " + FlagText(arguments[2]) + L" " +
                      FlagText(arguments[3]));
  const bool isPossible = model.markedBook && IntegerOf(arguments[0]) == kValues &&
                          IntegerOf(arguments[1], kNoOperation) == kNoOperation;
  if (!isPossible) throw ServerFailure{1004, L"PasteSpecial method of Range class failed"};
  const CellBlock& from = model.marked;
  for (int row = from.firstRow; row <= from.lastRow; ++row)
    for (int column = from.firstColumn; column <= from.lastColumn; ++column) {
      const auto cell = model.markedBook->cells.find({row, column});
      if (cell == model.markedBook->cells.end()) continue;
      const int atRow = block_.firstRow + row - from.firstRow;
      const int atColumn = block_.firstColumn + column - from.firstColumn;
      book_->cells[{atRow, atColumn}] = {L"", cell->second.value};
    }
}
