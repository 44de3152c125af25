#include <algorithm>
#include <cctype>

#include "MemorySpreadsheet.h"
#include "NumberPicture.h"
#include "NumberText.h"

namespace quorb {

namespace {

constexpr int kRowsOfSheet = 1048576;

struct Place {
  int row = 0, column = 0;
};

std::optional<Place> PlaceOf(const std::string& text) {
  Place place;
  std::size_t i = 0;
  for (; i < text.size() && std::isupper(static_cast<unsigned char>(text[i])) != 0; ++i)
    place.column = place.column * 26 + (text[i] - 'A' + 1);
  if (i == 0 || i == text.size()) return std::nullopt;
  for (; i < text.size(); ++i) {
    if (std::isdigit(static_cast<unsigned char>(text[i])) == 0) return std::nullopt;
    place.row = place.row * 10 + (text[i] - '0');
  }
  if (place.row < 1 || place.row > kRowsOfSheet) return std::nullopt;
  return place;
}

struct Block {
  Place first, last;
};

std::optional<Block> BlockOf(const std::string& text) {
  const std::size_t colon = text.find(':');
  const auto first = PlaceOf(text.substr(0, colon));
  const auto last = colon == std::string::npos ? first : PlaceOf(text.substr(colon + 1));
  if (!first || !last) return std::nullopt;
  return Block{*first, *last};
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text)
    quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

std::string OnOneRow(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

std::string Flag(const std::optional<bool>& flag) {
  return !flag ? "" : *flag ? " True" : " False";
}

}  // namespace

SheetFault MemorySpreadsheet::RangeCopy(const std::string& range) {
  SheetFault fault = Enter("RangeCopy", range);
  if (!fault.Good()) return fault;
  const auto block = BlockOf(range);
  if (!block || books.empty()) return FaultOf(kFaultApplication);
  if (ActiveScratch() != nullptr || books.front().id != broughtForward_) return NotActive();
  MemoryBook& book = books.front();
  marked_.clear();
  for (int row = block->first.row; row <= block->last.row; ++row) {
    marked_.emplace_back();
    for (int column = block->first.column; column <= block->last.column; ++column) {
      const auto cell = book.cells.find({row, column});
      marked_.back().push_back(cell == book.cells.end() ? MemoryCell() : cell->second);
    }
  }
  isMarked_ = true;
  return {};
}

SheetFault MemorySpreadsheet::RangePasteSpecial(const std::string& range, const PasteArguments& arguments) {
  std::string text = range + " " + std::to_string(arguments.Paste);
  if (arguments.Operation) text += " " + std::to_string(*arguments.Operation);
  SheetFault fault =
      Enter("RangePasteSpecial", text + Flag(arguments.SkipBlanks) + Flag(arguments.Transpose));
  if (!fault.Good()) return fault;
  const auto place = PlaceOf(range);
  MemoryBook* const scratch = ActiveScratch();
  if (scratch == nullptr) return NotActive();
  if (!place || !isMarked_) return FaultOf(kFaultApplication);
  for (std::size_t row = 0; row < marked_.size(); ++row) {
    for (std::size_t column = 0; column < marked_[row].size(); ++column) {
      const MemoryCell& cell = marked_[row][column];
      if (cell.value.text.empty()) continue;
      scratch->cells[{place->row + static_cast<int>(row), place->column + static_cast<int>(column)}] = {
          cell.value.text, cell.value};
    }
  }
  return {};
}

SheetFault MemorySpreadsheet::EndCutCopyMode() {
  SheetFault fault = Enter("EndCutCopyMode");
  if (fault.Good()) isMarked_ = false;
  return fault;
}

SheetFault MemorySpreadsheet::RangeSelect(const std::string& range) {
  SheetFault fault = Enter("RangeSelect", range);
  if (!fault.Good()) return fault;
  const auto place = PlaceOf(range);
  if (ActiveScratch() == nullptr) return NotActive();
  if (!place) return FaultOf(kFaultApplication);
  ActiveScratch()->Select(place->row, place->column);
  return {};
}

SheetFault MemorySpreadsheet::SetActiveCell(const std::string& text) {
  SheetFault fault = Enter("SetActiveCell", text);
  if (!fault.Good()) return fault;
  MemoryBook* const scratch = ActiveScratch();
  if (scratch == nullptr) return NotActive();
  scratch->SetText(scratch->activeRow, scratch->activeColumn, text);
  return {};
}

SheetFault MemorySpreadsheet::ColumnsSelect(const std::string& columns) {
  SheetFault fault = Enter("ColumnsSelect", columns);
  if (!fault.Good()) return fault;
  if (ActiveScratch() == nullptr) return NotActive();
  selectedColumns_ = columns;
  return {};
}

SheetFault MemorySpreadsheet::SelectionColumnWidth(double width) {
  SheetFault fault = Enter("SelectionColumnWidth", GeneralNumber(width));
  if (!fault.Good()) return fault;
  return ActiveScratch() == nullptr ? NotActive() : SheetFault();
}

SheetFault MemorySpreadsheet::SelectionNumberFormat(const std::string& format) {
  SheetFault fault = Enter("SelectionNumberFormat", format);
  if (!fault.Good()) return fault;
  MemoryBook* const scratch = ActiveScratch();
  if (scratch == nullptr) return NotActive();
  scratch->formats[selectedColumns_] = format;
  return {};
}

SheetFault MemorySpreadsheet::BlockText(const std::string& range, BlockTextSink& sink) {
  SheetFault fault = Enter("BlockText", range);
  if (!fault.Good()) return fault;
  const auto block = BlockOf(range);
  MemoryBook* const scratch = ActiveScratch();
  if (scratch == nullptr) return NotActive();
  if (!block) return FaultOf(kFaultApplication);
  const bool isFormatted = scratch->formats.count("A:R") == 1;
  for (int row = block->first.row; row <= block->last.row; ++row) {
    std::string line;
    for (int column = block->first.column; column <= block->last.column; ++column) {
      if (column != block->first.column) line += '\t';
      const auto cell = scratch->cells.find({row, column});
      if (cell == scratch->cells.end()) continue;
      const CellValue& value = cell->second.value;
      const bool isHeader = row == 1 && column == 1;
      line += isHeader ? Quoted(value.text)
              : value.number && isFormatted
                  ? WithDecimalMark(FormatPicture(*value.number, scratch->formats["A:R"]))
                  : OnOneRow(value.text);
    }
    if (!sink.Take(line + "\r\n")) return FaultOf(kFaultBadCall);
  }
  return {};
}

}  // namespace quorb
