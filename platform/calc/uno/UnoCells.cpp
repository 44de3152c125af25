#include <algorithm>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>
#include <com/sun/star/text/XTextRange.hpp>

#include "CellNumberText.h"
#include "UnoSession.h"

namespace quorb {

using css::uno::Reference;
using css::uno::UNO_QUERY_THROW;

namespace {

// Rows that one call asks for: few enough that the office answers well within a second.
constexpr int kCellsInOneCall = 200000;

// Number of rows that hold something, counted from the first of the sheet.
int UsedRows(const Reference<css::sheet::XSpreadsheet>& sheet) {
  const Reference<css::sheet::XUsedAreaCursor> cursor(sheet->createCursor(), UNO_QUERY_THROW);
  cursor->gotoEndOfUsedArea(false);
  return Reference<css::sheet::XCellRangeAddressable>(cursor, UNO_QUERY_THROW)->getRangeAddress().EndRow + 1;
}

std::string ShownText(const Reference<css::sheet::XSpreadsheet>& sheet, int row, int column) {
  const Reference<css::text::XTextRange> text(sheet->getCellByPosition(column - 1, row - 1), UNO_QUERY_THROW);
  return Utf8(text->getString());
}

// Text of the cells with errors. Each one is a question to the office, so that after many of them the rest is
// taken to show the same.
class ErrorTexts {
 public:
  std::string Of(const Reference<css::sheet::XSpreadsheet>& sheet, int row, int column) {
    if (asked_ < kMost) {
      ++asked_;
      last_ = ShownText(sheet, row, column);
    }
    return last_;
  }

 private:
  static constexpr int kMost = 2000;
  int asked_ = 0;
  std::string last_;
};

// A number comes as a number, a text as a text, an empty cell as an empty text; only an error comes as
// nothing.
void AddCell(const css::uno::Any& content, const std::function<std::string()>& errorText, CellBlock& block) {
  const auto add = [&block](CellKind kind, double number) {
    block.kinds.push_back(kind);
    block.numbers.push_back(number);
  };
  const auto addText = [&](std::string text) {
    add(CellKind::text, static_cast<double>(block.texts.size()));
    block.texts.push_back(std::move(text));
  };
  if (content.getValueTypeClass() == css::uno::TypeClass_DOUBLE) {
    add(CellKind::number, *static_cast<const double*>(content.getValue()));
  } else if (rtl::OUString text; content >>= text) {
    if (text.isEmpty())
      add(CellKind::empty, 0.0);
    else
      addText(Utf8(text));
  } else {
    addText(errorText());
  }
}

}  // namespace

CellValue UnoSession::ValueOf(const Reference<css::sheet::XSpreadsheet>& sheet, int row, int column) {
  const Reference<css::sheet::XCellRangeData> data(
      sheet->getCellRangeByPosition(column - 1, row - 1, column - 1, row - 1), UNO_QUERY_THROW);
  const css::uno::Any content = data->getDataArray()[0][0];
  if (rtl::OUString text; content >>= text) return {Utf8(text), {}};
  if (double number = 0.0; content >>= number) return {CellNumberText(number), number};
  return {ShownText(sheet, row, column), {}};
}

SheetFault UnoSession::CellFormula(Workbook workbook, int row, int column, std::string& formula) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    formula = Utf8(book->sheet->getCellByPosition(column - 1, row - 1)->getFormula());
    return {};
  });
}

SheetFault UnoSession::ReadCell(Workbook workbook, int row, int column, CellValue& value) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    value = ValueOf(book->sheet, row, column);
    return {};
  });
}

SheetFault UnoSession::ReadValues(const Reference<css::sheet::XSpreadsheet>& sheet,
                                  const CellRectangle& rectangle, CellBlock& block) {
  CellBlock filled;
  filled.rows = rectangle.Rows();
  filled.columns = rectangle.Columns();
  ErrorTexts errors;
  const int lastRow = std::min(rectangle.lastRow, UsedRows(sheet));
  const int height = std::max(1, kCellsInOneCall / filled.columns);
  const auto cells = static_cast<std::size_t>(std::max(0, lastRow - rectangle.firstRow + 1)) *
                     static_cast<std::size_t>(filled.columns);
  filled.kinds.reserve(cells);
  filled.numbers.reserve(cells);
  for (int first = rectangle.firstRow; first <= lastRow; first += height) {
    const int last = std::min(lastRow, first + height - 1);
    const Reference<css::sheet::XCellRangeData> data(
        sheet->getCellRangeByPosition(rectangle.firstColumn - 1, first - 1, rectangle.lastColumn - 1,
                                      last - 1),
        UNO_QUERY_THROW);
    const css::uno::Sequence<css::uno::Sequence<css::uno::Any>> rows = data->getDataArray();
    Beat();
    for (int row = 0; row < rows.getLength(); ++row)
      for (int column = 0; column < filled.columns; ++column)
        AddCell(
            rows[row][column],
            [&] {
              Beat();
              return errors.Of(sheet, first + row, rectangle.firstColumn + column);
            },
            filled);
  }
  block = std::move(filled);
  return {};
}

SheetFault UnoSession::ReadBlock(Workbook workbook, const CellRectangle& rectangle, CellBlock& block) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    return ReadValues(book->sheet, rectangle, block);
  });
}

}  // namespace quorb
