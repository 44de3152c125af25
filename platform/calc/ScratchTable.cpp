#include "ScratchTable.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace quorb {
namespace {

// The text is handed on in pieces of about this size.
constexpr std::size_t kPieceSize = 1 << 18;
// A spreadsheet shows that many digits of a number; behind them stand zeros.
constexpr int kShownDigits = 15;

// Reads letters and digits of one end of a range; what is not there stays 0.
bool ReadCorner(std::string_view text, int& row, int& column) {
  std::size_t at = 0;
  const auto skipDollar = [&] {
    if (at < text.size() && text[at] == '$') ++at;
  };
  row = column = 0;
  skipDollar();
  for (; at < text.size(); ++at) {
    const char letter = static_cast<char>(text[at] & ~0x20);
    if (letter < 'A' || letter > 'Z') break;
    column = column * 26 + (letter - 'A' + 1);
    if (column > ScratchTable::kMostColumns) return false;
  }
  skipDollar();
  const std::string_view digits = text.substr(at);
  if (digits.empty()) return true;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), row);
  return error == std::errc() && stop == digits.data() + digits.size() && row >= 1 &&
         row <= ScratchTable::kMostRows;
}

std::optional<CellRectangle> ReadCorners(std::string_view text, bool wholeColumns) {
  const std::size_t colon = text.find(':');
  int row1 = 0, column1 = 0, row2 = 0, column2 = 0;
  if (!ReadCorner(text.substr(0, colon), row1, column1)) return std::nullopt;
  if (!ReadCorner(colon == std::string_view::npos ? text : text.substr(colon + 1), row2, column2))
    return std::nullopt;
  if (column1 == 0 || column2 == 0 || (row1 == 0) != wholeColumns || (row2 == 0) != wholeColumns)
    return std::nullopt;
  if (wholeColumns) {
    row1 = 1;
    row2 = ScratchTable::kMostRows;
  }
  return CellRectangle{std::min(row1, row2), std::min(column1, column2), std::max(row1, row2),
                       std::max(column1, column2)};
}

// A text as one cell of a row: what would end the cell or the row becomes a blank, and so does every other
// control character, as in a text of several lines the one that stands for a TAB there.
void AppendInOneCell(std::string_view text, std::string& row) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pairOfLineEnd = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (pairOfLineEnd) continue;
    row += static_cast<unsigned char>(text[i]) < ' ' ? ' ' : text[i];
  }
}

void AppendGeneral(double number, char mark, std::string& row) {
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, 15);
  std::replace(text.data(), end.ptr, '.', mark);
  row.append(text.data(), end.ptr);
}

// A text that was written to a cell, as a copy to the clipboard gives it.
void AppendWritten(const std::string& text, std::string& row) {
  if (text.find_first_of("\t\r\n") == std::string::npos) {
    row += text;
    return;
  }
  row += '"';
  for (const char c : text) {
    if (c == '"') row += '"';
    row += c;
  }
  row += '"';
}

// "-1.2345e+20" as a whole number.
std::string WithoutExponent(std::string_view text) {
  const std::size_t mark = text.find('e');
  int power = 0;
  std::from_chars(text.data() + mark + 2, text.data() + text.size(), power);
  std::string whole;
  for (const char c : text.substr(0, mark))
    if (c != '.') whole += c;
  const std::size_t wanted = static_cast<std::size_t>(power) + 1 + (whole.front() == '-' ? 1 : 0);
  whole.resize(wanted, '0');
  return whole;
}

}  // namespace

std::optional<CellRectangle> ParseRectangle(std::string_view text) {
  return ReadCorners(text, false);
}

std::optional<CellRectangle> ParseColumns(std::string_view text) {
  return ReadCorners(text, true);
}

void AppendFixed(double number, int decimals, char mark, std::string& text) {
  if (!std::isfinite(number)) number = 0.0;
  // The first digit's power of ten; it and the decimals are 14 at most.
  int power = 0;
  double bound = 10.0;
  while (std::fabs(number) >= bound && power <= kShownDigits) {
    ++power;
    bound *= 10.0;
  }
  const int shown = std::clamp(kShownDigits - 1 - power, 0, decimals);

  std::array<char, 64> digits{};
  char* const end = digits.data() + digits.size();
  std::string_view written;
  std::string large;
  if (power < kShownDigits) {
    const auto stop = std::to_chars(digits.data(), end, number, std::chars_format::fixed, shown);
    std::replace(digits.data(), stop.ptr, '.', mark);
    written = {digits.data(), static_cast<std::size_t>(stop.ptr - digits.data())};
  } else {
    const auto stop =
        std::to_chars(digits.data(), end, number, std::chars_format::scientific, kShownDigits - 1);
    large = WithoutExponent({digits.data(), static_cast<std::size_t>(stop.ptr - digits.data())});
    written = large;
  }
  // No sign in front of what is displayed as nothing.
  if (written.front() == '-' && written.find_first_not_of("-0.,") == std::string_view::npos)
    written.remove_prefix(1);
  text += written;
  if (shown == 0 && decimals > 0) text += mark;
  text.append(static_cast<std::size_t>(decimals - shown), '0');
}

void ScratchTable::Paste(int row, int column, std::shared_ptr<const CellBlock> block) {
  pasted_.push_back({row, column, std::move(block)});
}

void ScratchTable::Write(int row, int column, const std::string& text) {
  written_[{row, column}] = text;
  lastWrittenRow_ = std::max(lastWrittenRow_, row);
}

void ScratchTable::SetDecimals(int firstColumn, int lastColumn, int decimals) {
  for (int column = firstColumn; column <= lastColumn; ++column)
    decimals_[column] = decimals;
}

int ScratchTable::DecimalsOf(int column) const {
  const auto found = decimals_.find(column);
  return found == decimals_.end() ? -1 : found->second;
}

bool ScratchTable::Text(const CellRectangle& rectangle, char mark, BlockTextSink& sink) const {
  std::vector<Column> columns;
  for (int column = rectangle.firstColumn; column <= rectangle.lastColumn; ++column) {
    columns.push_back({{}, column, DecimalsOf(column)});
    // What is pasted later lies over what was there before.
    for (auto pasted = pasted_.rbegin(); pasted != pasted_.rend(); ++pasted)
      if (column >= pasted->column && column < pasted->column + pasted->block->columns)
        columns.back().blocks.push_back(&*pasted);
  }
  std::string text;
  text.reserve(kPieceSize + 4096);
  for (int row = rectangle.firstRow; row <= rectangle.lastRow; ++row) {
    for (const Column& column : columns) {
      if (&column != &columns.front()) text += '\t';
      AppendCell(row, column, mark, text);
    }
    text += "\r\n";
    if (text.size() < kPieceSize) continue;
    if (!sink.Take(text)) return false;
    text.clear();
  }
  return text.empty() || sink.Take(text);
}

void ScratchTable::AppendCell(int row, const Column& column, char mark, std::string& text) const {
  if (!written_.empty() && row <= lastWrittenRow_) {
    const auto written = written_.find({row, column.number});
    if (written != written_.end()) return AppendWritten(written->second, text);
  }
  for (const Pasted* pasted : column.blocks) {
    const CellBlock& block = *pasted->block;
    const int down = row - pasted->row;
    if (down < 0 || down >= block.rows) continue;
    const std::size_t cell = static_cast<std::size_t>(down) * static_cast<std::size_t>(block.columns) +
                             static_cast<std::size_t>(column.number - pasted->column);
    if (cell >= block.kinds.size() || block.kinds[cell] == CellKind::empty) return;
    if (block.kinds[cell] == CellKind::text)
      AppendInOneCell(block.texts[static_cast<std::size_t>(block.numbers[cell])], text);
    else if (column.decimals >= 0)
      AppendFixed(block.numbers[cell], column.decimals, mark, text);
    else
      AppendGeneral(block.numbers[cell], mark, text);
    return;
  }
}

}  // namespace quorb
