#include <algorithm>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/CellFlags.hpp>
#include <com/sun/star/sheet/FormulaLanguage.hpp>
#include <com/sun/star/sheet/FormulaMapGroup.hpp>
#include <com/sun/star/sheet/XCellRangeFormula.hpp>
#include <com/sun/star/sheet/XCellRangesQuery.hpp>
#include <com/sun/star/sheet/XFormulaOpCodeMapper.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/table/CellRangeAddress.hpp>

#include "UnoSession.h"

namespace quorb {

using css::table::CellRangeAddress;
using css::uno::Reference;
using css::uno::UNO_QUERY_THROW;

namespace {

constexpr int kCellsInOneCall = 50000;
// With more ranges than this, their bounding box is read instead, row by row.
constexpr int kMostRanges = 500;

struct Place {
  int row = 0, column = 0;  // From 0.
  bool Before(const Place& other) const { return row != other.row ? row < other.row : column < other.column; }
};

CellRangeAddress Around(const css::uno::Sequence<CellRangeAddress>& ranges) {
  CellRangeAddress box = ranges[0];
  for (const CellRangeAddress& range : ranges) {
    box.StartRow = std::min(box.StartRow, range.StartRow);
    box.EndRow = std::max(box.EndRow, range.EndRow);
    box.StartColumn = std::min(box.StartColumn, range.StartColumn);
    box.EndColumn = std::max(box.EndColumn, range.EndColumn);
  }
  return box;
}

bool IsHit(const rtl::OUString& formula, const rtl::OUString& word) {
  return formula.startsWith("=") && formula.indexOf(word) >= 0;
}

}  // namespace

SheetFault UnoSession::FindInFormulas(Workbook workbook, const std::string& word, int& row, int& column) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    const rtl::OUString wanted = Utf16(word);
    const Reference<css::sheet::XCellRangesQuery> query(book->sheet, UNO_QUERY_THROW);
    const auto found = query->queryContentCells(css::sheet::CellFlags::FORMULA);
    css::uno::Sequence<CellRangeAddress> ranges = found->getRangeAddresses();
    Beat();
    if (ranges.getLength() > kMostRanges) ranges = One(Around(ranges));

    bool hit = false;
    Place best;
    for (const CellRangeAddress& range : ranges) {
      const int height = std::max(1, kCellsInOneCall / (range.EndColumn - range.StartColumn + 1));
      bool hitHere = false;
      for (int first = range.StartRow; first <= range.EndRow && !hitHere && !(hit && first > best.row);
           first += height) {
        const int last = std::min<int>(range.EndRow, first + height - 1);
        const Reference<css::sheet::XCellRangeFormula> piece(
            book->sheet->getCellRangeByPosition(range.StartColumn, first, range.EndColumn, last),
            UNO_QUERY_THROW);
        const auto formulas = piece->getFormulaArray();
        Beat();
        for (int r = 0; r < formulas.getLength() && !hitHere; ++r)
          for (int c = 0; c < formulas[r].getLength() && !hitHere; ++c) {
            if (!IsHit(formulas[r][c], wanted)) continue;
            const Place place{first + r, range.StartColumn + c};
            if (!hit || place.Before(best)) best = place;
            hit = hitHere = true;
          }
      }
    }
    if (!hit) return {kNothingThere, "No formula holds that word."};
    row = best.row + 1;
    column = best.column + 1;
    return {};
  });
}

SheetFault UnoSession::EnglishFunction(Workbook workbook, const std::string& localName, std::string& name) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    const Reference<css::lang::XMultiServiceFactory> services(book->model, UNO_QUERY_THROW);
    const Reference<css::sheet::XFormulaOpCodeMapper> mapper(
        services->createInstance("com.sun.star.sheet.FormulaOpCodeMapper"), UNO_QUERY_THROW);
    const auto tokens = mapper->getMappings(One(Utf16(localName)), css::sheet::FormulaLanguage::NATIVE);
    name.clear();
    if (tokens.getLength() != 1 || tokens[0].OpCode == mapper->getOpCodeUnknown() ||
        tokens[0].OpCode == mapper->getOpCodeExternal())
      return {};
    const auto functions = mapper->getAvailableMappings(css::sheet::FormulaLanguage::ENGLISH,
                                                        css::sheet::FormulaMapGroup::FUNCTIONS);
    for (const css::sheet::FormulaOpCodeMapEntry& mapping : functions)
      if (mapping.Token.OpCode == tokens[0].OpCode) name = Utf8(mapping.Name);
    return {};
  });
}

}  // namespace quorb
