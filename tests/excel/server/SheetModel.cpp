#include "SheetModel.h"

#include <cstdio>
#include <cwctype>

#include "AutomationObject.h"

namespace {

constexpr int kMostRows = 1048576;
constexpr int kMostColumns = 16384;

[[noreturn]] void Refuse(const std::wstring& what) {
  throw ServerFailure{1004, what};
}

// Reads letters and digits; 0 for what is not there.
std::pair<int, int> PlaceOf(const std::wstring& text) {
  int row = 0, column = 0;
  std::size_t i = 0;
  for (; i < text.size() && text[i] >= L'A' && text[i] <= L'Z' && column <= kMostColumns; ++i)
    column = column * 26 + (text[i] - L'A' + 1);
  for (; i < text.size() && std::iswdigit(text[i]) != 0 && row <= kMostRows; ++i)
    row = row * 10 + (text[i] - L'0');
  const bool isPlace = i == text.size() && column > 0 && column <= kMostColumns && row <= kMostRows;
  if (!isPlace) Refuse(L"no such range: " + text);
  return {row, column};
}

std::wstring ColumnName(int column) {
  std::wstring name;
  for (; column > 0; column = (column - 1) / 26)
    name.insert(name.begin(), static_cast<wchar_t>(L'A' + (column - 1) % 26));
  return name;
}

std::wstring NumberText(const char* format, double number) {
  char text[400];
  const int length = std::snprintf(text, sizeof text, format, number);
  return {text, text + length};
}

std::wstring Quoted(const std::wstring& text) {
  if (text.find_first_of(L"\t\n") == std::wstring::npos) return text;
  std::wstring quoted = L"\"";
  for (const wchar_t c : text)
    quoted += c == L'"' ? std::wstring(L"\"\"") : std::wstring(1, c);
  return quoted + L'"';
}

const CellContent& ContentOf(const ServerBook& book, int row, int column) {
  static const CellContent empty;
  const auto cell = book.cells.find({row, column});
  return cell == book.cells.end() ? empty : cell->second.value;
}

}  // namespace

ServerModel& Model() {
  static ServerModel model;
  return model;
}

CellBlock BlockOf(const std::wstring& text) {
  const std::size_t colon = text.find(L':');
  const auto first = PlaceOf(text.substr(0, colon));
  const auto last = colon == std::wstring::npos ? first : PlaceOf(text.substr(colon + 1));
  const bool isWhole = first.first == 0 && last.first == 0 && colon != std::wstring::npos;
  if ((first.first == 0 || last.first == 0) && !isWhole) Refuse(L"no such range: " + text);
  return {isWhole ? 1 : first.first, first.second, isWhole ? kMostRows : last.first, last.second};
}

std::wstring NameOf(const CellBlock& block) {
  const auto place = [](int row, int column) { return ColumnName(column) + std::to_wstring(row); };
  const bool isOne = block.firstRow == block.lastRow && block.firstColumn == block.lastColumn;
  const std::wstring first = place(block.firstRow, block.firstColumn);
  return isOne ? first : first + L":" + place(block.lastRow, block.lastColumn);
}

std::wstring Displayed(const ServerBook& book, int row, int column) {
  const CellContent& content = ContentOf(book, row, column);
  const auto format = book.formats.find(column);
  const char* picture = format != book.formats.end() && format->second == L"0.0000000000" ? "%.10f" : "%.15g";
  if (const auto* number = std::get_if<double>(&content)) return NumberText(picture, *number);
  if (const auto* date = std::get_if<CellDate>(&content)) return NumberText(picture, date->days);
  if (const auto* text = std::get_if<std::wstring>(&content)) return *text;
  if (const auto* flag = std::get_if<bool>(&content)) return *flag ? L"TRUE" : L"FALSE";
  if (std::holds_alternative<CellError>(content)) return L"#DIV/0!";
  return {};
}

std::wstring ClipboardForm(const ServerBook& book, const CellBlock& block) {
  std::wstring text;
  for (int row = block.firstRow; row <= block.lastRow; ++row) {
    for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
      if (column != block.firstColumn) text += L'\t';
      text += Quoted(Displayed(book, row, column));
    }
    text += L"\r\n";
  }
  return text;
}

CellContent Evaluated(const ServerBook& book, const std::wstring& formula) {
  if (formula == L"=1/0") return CellError{2007};
  const std::size_t open = formula.find(L'"');
  const std::size_t close = formula.find(L'"', open + 1);
  if (open != 1 || close == std::wstring::npos) return 31.0;
  std::wstring text = formula.substr(2, close - 2);
  if (close + 1 == formula.size()) return text;
  if (formula[close + 1] != L'&') return 31.0;
  const auto place = PlaceOf(formula.substr(close + 2));
  return text + Displayed(book, place.first, place.second);
}

std::wstring StateOfUser() {
  std::wstring state;
  for (const BookPointer& book : Model().books) {
    state += book->name + L"|" + book->caption + L"|" + book->sheetName + L"|" +
             NameOf({book->activeRow, book->activeColumn, book->activeRow, book->activeColumn}) + L"\n";
    for (const auto& [place, cell] : book->cells)
      state += NameOf({place.first, place.second, place.first, place.second}) + L" " + cell.formula + L" " +
               Displayed(*book, place.first, place.second) + L"\n";
  }
  return state;
}
