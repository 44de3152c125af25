#include <algorithm>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/frame/XLoadable.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/ComplexReference.hpp>
#include <com/sun/star/sheet/FormulaToken.hpp>
#include <com/sun/star/sheet/NameToken.hpp>
#include <com/sun/star/sheet/ReferenceFlags.hpp>
#include <com/sun/star/sheet/SingleReference.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeData.hpp>
#include <com/sun/star/sheet/XFormulaParser.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>
#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <com/sun/star/sheet/XSheetCellCursor.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XUsedAreaCursor.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <cstdint>
#include <functional>
#include <set>
#include <stdexcept>
#include <utility>
#include <vector>

#include "UnoSession.h"

namespace quorb {

using css::table::CellRangeAddress;
using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;

namespace {

constexpr std::int64_t kMostCells = 200000;
constexpr std::size_t kMostNames = 200;

using Tokens = css::uno::Sequence<css::sheet::FormulaToken>;
using Sheets = std::vector<Reference<css::sheet::XSpreadsheet>>;

Sheets SheetsOf(const Reference<css::uno::XInterface>& document) {
  const Reference<css::sheet::XSpreadsheetDocument> book(document, UNO_QUERY_THROW);
  const Reference<css::container::XIndexAccess> access(book->getSheets(), UNO_QUERY_THROW);
  Sheets sheets;
  for (sal_Int32 i = 0; i < access->getCount(); ++i)
    sheets.emplace_back(access->getByIndex(i), UNO_QUERY_THROW);
  return sheets;
}

CellRangeAddress AddressOf(const Reference<css::uno::XInterface>& cells) {
  return Reference<css::sheet::XCellRangeAddressable>(cells, UNO_QUERY_THROW)->getRangeAddress();
}

rtl::OUString NameOf(const Reference<css::uno::XInterface>& named) {
  return Reference<css::container::XNamed>(named, UNO_QUERY_THROW)->getName();
}

// One end of a reference: an absolute part stands for itself, a relative one counts from the formula's cell.
sal_Int32 Resolved(sal_Int32 flags, sal_Int32 relativeFlag, sal_Int32 absolute, sal_Int32 relative,
                   sal_Int32 base) {
  return (flags & relativeFlag) != 0 ? base + relative : absolute;
}

css::table::CellAddress CellOf(const css::sheet::SingleReference& reference,
                               const css::table::CellAddress& base) {
  namespace ReferenceFlags = css::sheet::ReferenceFlags;
  css::table::CellAddress cell;
  cell.Sheet = static_cast<sal_Int16>(Resolved(reference.Flags, ReferenceFlags::SHEET_RELATIVE,
                                               reference.Sheet, reference.RelativeSheet, base.Sheet));
  cell.Column = Resolved(reference.Flags, ReferenceFlags::COLUMN_RELATIVE, reference.Column,
                         reference.RelativeColumn, base.Column);
  cell.Row =
      Resolved(reference.Flags, ReferenceFlags::ROW_RELATIVE, reference.Row, reference.RelativeRow, base.Row);
  return cell;
}

// The cells that a formula names.
std::vector<CellRangeAddress> CellsNamed(const Tokens& tokens, const css::table::CellAddress& base) {
  std::vector<CellRangeAddress> cells;
  const auto add = [&](const css::sheet::SingleReference& from, const css::sheet::SingleReference& to) {
    const auto first = CellOf(from, base);
    const auto last = CellOf(to, base);
    cells.emplace_back(first.Sheet, first.Column, first.Row, last.Column, last.Row);
  };
  for (const css::sheet::FormulaToken& token : tokens) {
    if (css::sheet::ComplexReference range; token.Data >>= range)
      add(range.Reference1, range.Reference2);
    else if (css::sheet::SingleReference cell; token.Data >>= cell)
      add(cell, cell);
  }
  return cells;
}

// Closes a document that has no window when it goes out of scope.
class AsideDocument {
 public:
  explicit AsideDocument(const Reference<css::uno::XInterface>& document)
      : document_(document, UNO_QUERY_THROW) {
    Reference<css::frame::XLoadable>(document, UNO_QUERY_THROW)->initNew();
  }
  AsideDocument(const AsideDocument&) = delete;
  AsideDocument& operator=(const AsideDocument&) = delete;
  ~AsideDocument() {
    try {
      Reference<css::util::XCloseable>(document_, UNO_QUERY_THROW)->close(true);
    } catch (const css::uno::Exception&) {
      // The office is gone, and the document with it.
    }
  }
  const Reference<css::frame::XModel>& Model() const { return document_; }

 private:
  Reference<css::frame::XModel> document_;
};

using Names = Reference<css::sheet::XNamedRanges>;

// The defined names of a document or of one sheet.
Names NamesOf(const Reference<css::uno::XInterface>& owner) {
  Names names;
  Reference<css::beans::XPropertySet>(owner, UNO_QUERY_THROW)->getPropertyValue("NamedRanges") >>= names;
  return names;
}

// A name by the number that stands for it in formulas; nothing when there is none.
Reference<css::sheet::XNamedRange> NameOfIndex(const Names& names, sal_Int32 index,
                                               const std::function<void()>& beat) {
  for (const rtl::OUString& text : names->getElementNames()) {
    const Reference<css::sheet::XNamedRange> name(names->getByName(text), UNO_QUERY_THROW);
    sal_Int32 number = 0;
    Reference<css::beans::XPropertySet>(name, UNO_QUERY_THROW)->getPropertyValue("TokenIndex") >>= number;
    beat();
    if (number == index) return name;
  }
  return {};
}

}  // namespace

// Copies what a formula names into the document aside.
class UnoSession::Copier {
 public:
  Copier(UnoSession& session, const Book& book, const Reference<css::frame::XModel>& aside, int row,
         int column)
      : session_(session),
        book_(book),
        aside_(aside),
        base_(AddressOf(book.sheet).Sheet, column - 1, row - 1),
        from_(SheetsOf(book.model)),
        to_(MakeSheets()) {}

  void CopyForFormula(const std::string& formula) {
    const Reference<css::lang::XMultiServiceFactory> services(book_.model, UNO_QUERY_THROW);
    const Reference<css::sheet::XFormulaParser> parser(
        services->createInstance("com.sun.star.sheet.FormulaParser"), UNO_QUERY_THROW);
    Reference<css::beans::XPropertySet>(parser, UNO_QUERY_THROW)
        ->setPropertyValue("CompileEnglish", css::uno::Any(true));
    CopyNamed(parser->parseFormula(Utf16(formula.substr(formula.compare(0, 1, "=") == 0 ? 1 : 0)), base_));
  }

 private:
  Sheets MakeSheets() {
    const auto sheets = Reference<css::sheet::XSpreadsheetDocument>(aside_, UNO_QUERY_THROW)->getSheets();
    const Sheets first = SheetsOf(aside_);
    for (std::size_t i = 0; i < from_.size(); ++i) {
      if (i < first.size())
        Reference<css::container::XNamed>(first[i], UNO_QUERY_THROW)->setName(NameOf(from_[i]));
      else
        sheets->insertNewByName(NameOf(from_[i]), static_cast<sal_Int16>(i));
    }
    return SheetsOf(aside_);
  }

  // The cells, and the names with all that those name in their turn.
  void CopyNamed(const Tokens& tokens) {
    for (const CellRangeAddress& cells : CellsNamed(tokens, base_))
      CopyCells(cells);
    for (const css::sheet::FormulaToken& token : tokens)
      if (css::sheet::NameToken name; token.Data >>= name) CopyName(name);
  }

  // A name that cannot be copied is left out.
  void CopyName(const css::sheet::NameToken& token) {
    const auto sheet = static_cast<std::size_t>(token.Sheet);
    if (token.Sheet >= 0 && sheet >= from_.size()) return;
    if (names_.size() >= kMostNames || !names_.emplace(token.Sheet, token.Index).second) return;
    try {
      const bool isGlobal = token.Sheet < 0;
      const Names names = isGlobal ? NamesOf(book_.model) : NamesOf(from_[sheet]);
      const auto name = NameOfIndex(names, token.Index, [this] { session_.Beat(); });
      if (!name.is()) return;
      // What it names is there before it, so that it is understood.
      const Reference<css::sheet::XFormulaTokens> content(name, UNO_QUERY);
      if (content.is()) CopyNamed(content->getTokens());
      const Names copies = isGlobal ? NamesOf(aside_) : NamesOf(to_[sheet]);
      copies->addNewByName(NameOf(name), name->getContent(), name->getReferencePosition(), name->getType());
    } catch (const css::uno::RuntimeException&) {
      if (!session_.Alive()) throw;
    } catch (const css::uno::Exception&) {
      return;
    }
  }

  void CopyCells(CellRangeAddress cells) {
    const auto sheet = static_cast<std::size_t>(cells.Sheet);
    if (cells.Sheet < 0 || sheet >= from_.size() || cells.StartRow < 0 || cells.StartColumn < 0) return;
    const Reference<css::sheet::XUsedAreaCursor> cursor(from_[sheet]->createCursor(), UNO_QUERY_THROW);
    cursor->gotoEndOfUsedArea(false);
    const CellRangeAddress used = AddressOf(cursor);
    cells.EndRow = std::min(cells.EndRow, used.EndRow);
    cells.EndColumn = std::min(cells.EndColumn, used.EndColumn);
    if (cells.EndRow < cells.StartRow || cells.EndColumn < cells.StartColumn) return;
    copied_ += static_cast<std::int64_t>(cells.EndRow - cells.StartRow + 1) *
               (cells.EndColumn - cells.StartColumn + 1);
    if (copied_ > kMostCells) throw std::length_error("The formula names too many cells.");
    const auto range = [&](const Reference<css::sheet::XSpreadsheet>& on) {
      return Reference<css::sheet::XCellRangeData>(
          on->getCellRangeByPosition(cells.StartColumn, cells.StartRow, cells.EndColumn, cells.EndRow),
          UNO_QUERY_THROW);
    };
    range(to_[sheet])->setDataArray(range(from_[sheet])->getDataArray());
    session_.Beat();
  }

  UnoSession& session_;
  const Book& book_;
  const Reference<css::frame::XModel> aside_;
  const css::table::CellAddress base_;
  const Sheets from_, to_;
  std::set<std::pair<sal_Int32, sal_Int32>> names_;  // Sheet and number of those that were copied.
  std::int64_t copied_ = 0;
};

CellValue UnoSession::EvaluateIn(const Book& book, const Reference<css::frame::XModel>& aside, int row,
                                 int column, const std::string& formula) {
  Copier(*this, book, aside, row, column).CopyForFormula(formula);
  const auto sheet = SheetsOf(aside)[static_cast<std::size_t>(AddressOf(book.sheet).Sheet)];
  sheet->getCellByPosition(column - 1, row - 1)->setFormula(Utf16(formula));
  return ValueOf(sheet, row, column);
}

SheetFault UnoSession::Evaluate(Workbook workbook, int row, int column, const std::string& formula,
                                CellValue& value) {
  return Guarded([&]() -> SheetFault {
    const Book* book = Find(workbook);
    if (book == nullptr) return {kNothingThere, "No such workbook."};
    try {
      const AsideDocument aside(Service("com.sun.star.sheet.SpreadsheetDocument"));
      value = EvaluateIn(*book, aside.Model(), row, column, formula);
      return {};
    } catch (const std::length_error& error) {
      return {kRefused, error.what()};
    }
  });
}

}  // namespace quorb
