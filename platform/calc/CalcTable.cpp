// From the source to the scratch workbook, as the link to Calc does it.
#include <string_view>

#include "CalcScratch.h"
#include "Dialogs.h"
#include "NumberText.h"

namespace quorb {
namespace {

// The decimals of a number format of zeros, "0.0000"; -1 for one of another kind.
int DecimalsOfFormat(std::string_view format) {
  if (format == "0") return 0;
  if (format.substr(0, 2) != "0." || format.find_first_not_of('0', 2) != std::string_view::npos) return -1;
  return static_cast<int>(format.size()) - 2;
}

// Lets events through behind each piece.
class PumpingSink : public BlockTextSink {
 public:
  explicit PumpingSink(BlockTextSink& sink) : sink_(sink) {}
  bool Take(std::string_view piece) override {
    CurrentDialogs().PumpEvents();
    return sink_.Take(piece);
  }

 private:
  BlockTextSink& sink_;
};

}  // namespace

SheetFault CalcLink::RangeCopy(const std::string& range) {
  SheetFault fault = LookAtActive();
  if (!fault.Good()) return fault;
  if (active_ == kNoWorkbook) return FaultOf(kFaultNoObject);
  const auto rectangle = ParseRectangle(range);
  if (!scratch_ || scratch_->active || !rectangle) return Refused("That range cannot be copied.");
  scratch_->marked = rectangle;
  scratch_->markedText = range;
  scratch_->markedBook = active_;
  return {};
}

SheetFault CalcLink::RangePasteSpecial(const std::string& range, const PasteArguments& arguments) {
  if (SheetFault held = Held(); !held.Good()) return held;
  const auto target = ParseRectangle(range);
  if (!scratch_ || !scratch_->active || !scratch_->marked || !target || arguments.Paste != xlPasteValues ||
      arguments.Operation.value_or(xlPasteSpecialOperationNone) != xlPasteSpecialOperationNone ||
      arguments.SkipBlanks.value_or(false) || arguments.Transpose.value_or(false))
    return Refused("Nothing can be pasted there.");
  const CellRectangle marked = *scratch_->marked;
  if (target->firstRow + marked.Rows() - 1 > ScratchTable::kMostRows ||
      target->firstColumn + marked.Columns() - 1 > ScratchTable::kMostColumns)
    return Refused("The block does not fit there.");

  const std::shared_ptr<Scratch> scratch = scratch_;
  const auto place = std::make_pair(scratch->markedBook, scratch->markedText);
  auto known = scratch->read.find(place);
  if (known == scratch->read.end()) {
    Errand errand;
    errand.rectangle = marked;
    SheetFault fault =
        CellErrand(Asker::load, scratch->markedBook, errand, [](OfficeSession& session, Errand& asked) {
          return session.ReadBlock(asked.workbook, asked.rectangle, asked.block);
        });
    if (!fault.Good()) {
      if (fault.number != kFaultApplication) scratch->broken = fault;
      return fault;
    }
    known = scratch->read.emplace(place, std::make_shared<const CellBlock>(std::move(errand.block))).first;
  }
  scratch->table.Paste(target->firstRow, target->firstColumn, known->second);
  return {};
}

SheetFault CalcLink::EndCutCopyMode() {
  if (SheetFault held = Held(); !held.Good()) return held;
  if (scratch_) scratch_->marked.reset();
  return {};
}

SheetFault CalcLink::RangeSelect(const std::string& range) {
  if (SheetFault held = HeldScratch(); !held.Good()) return held;
  const auto rectangle = ParseRectangle(range);
  if (!rectangle) return Refused("There is no such range.");
  scratch_->selection = *rectangle;
  scratch_->columns.reset();
  return {};
}

SheetFault CalcLink::SetActiveCell(const std::string& text) {
  if (SheetFault held = HeldScratch(); !held.Good()) return held;
  scratch_->table.Write(scratch_->selection.firstRow, scratch_->selection.firstColumn, text);
  return {};
}

SheetFault CalcLink::ColumnsSelect(const std::string& columns) {
  if (SheetFault held = Held(); !held.Good()) return held;
  const auto rectangle = ParseColumns(columns);
  if (!scratch_ || !scratch_->active || !rectangle)
    return Refused("There are no such columns to be formatted.");
  scratch_->columns = rectangle;
  return {};
}

SheetFault CalcLink::SelectionColumnWidth(double width) {
  if (SheetFault held = Held(); !held.Good()) return held;
  if (!scratch_ || !scratch_->active || !scratch_->columns || width < 0.0)
    return Refused("The workbook is not written to.");
  return {};
}

SheetFault CalcLink::SelectionNumberFormat(const std::string& format) {
  if (SheetFault held = Held(); !held.Good()) return held;
  const int decimals = DecimalsOfFormat(format);
  if (!scratch_ || !scratch_->active || !scratch_->columns || decimals < 0 || decimals > 30)
    return Refused("The columns cannot be formatted so.");
  scratch_->table.SetDecimals(scratch_->columns->firstColumn, scratch_->columns->lastColumn, decimals);
  return {};
}

SheetFault CalcLink::BlockText(const std::string& range, BlockTextSink& sink) {
  if (SheetFault held = Held(); !held.Good()) return held;
  const auto rectangle = ParseRectangle(range);
  if (!scratch_ || !rectangle) return Refused("There is no such block.");
  if (!scratch_->broken.Good()) return scratch_->broken;
  // Events are let through between the pieces, and may end the scratch workbook.
  const std::shared_ptr<const Scratch> scratch = scratch_;
  PumpingSink pumping(sink);
  if (!scratch->table.Text(*rectangle, WithDecimalMark(".")[0], pumping)) return FaultOf(kFaultBadCall);
  return {};
}

}  // namespace quorb
