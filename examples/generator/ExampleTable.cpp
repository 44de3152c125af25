#include "ExampleTable.h"

#include <array>
#include <charconv>

#include "HeaderLine.h"
#include "NumberText.h"

namespace quorb {

namespace {

struct Columns {
  std::string_view first, last;
};

constexpr std::array<Columns, 7> kTermColumns = {
    {{"A", "C"}, {"D", "D"}, {"E", "F"}, {"G", "K"}, {"L", "M"}, {"N", "O"}, {"P", "Q"}}};
constexpr std::size_t kEventTerm = 2;

std::string ScaleText(double scale) {
  std::array<char, 64> digits{};
  const auto result =
      std::to_chars(digits.data(), digits.data() + digits.size(), scale, std::chars_format::fixed);
  return WithDecimalMark(std::string(digits.data(), result.ptr));
}

std::string RangeText(std::string_view first, std::string_view last, std::size_t rows) {
  return "MAX(" + std::string(first) + "2:" + std::string(last) + std::to_string(rows + 1) + ")";
}

std::string FormulaOf(const ExampleTable& table) {
  std::string formula = "= " + ScaleText(table.scale) + " + LEN(\"" + table.title + "\")";
  for (std::size_t term = 0; term < static_cast<std::size_t>(table.terms); ++term) {
    const bool single = term == 0 && table.oneColumn;
    const bool shorter = term == kEventTerm && table.eventRows != 0;
    formula += " + " + RangeText(kTermColumns[term].first, single ? "A" : kTermColumns[term].last,
                                 shorter ? table.eventRows : table.rows.size());
  }
  return formula;
}

}  // namespace

void RowText::BeginField() {
  if (!first_) line_ += '\t';
  first_ = false;
}

RowText& RowText::Number(double value) {
  BeginField();
  AppendCellNumber(line_, value);
  return *this;
}

RowText& RowText::Text(std::string_view text) {
  BeginField();
  line_ += text;
  return *this;
}

RowText& RowText::Empty(int fields) {
  for (int i = 0; i < fields; ++i)
    BeginField();
  return *this;
}

std::string DataFileOf(const ExampleTable& table, const std::string& fileName) {
  HeaderLineFields header;
  header.sourceName = fileName;
  header.sheetName = table.sheetName;
  header.formula = FormulaOf(table);
  header.scale = table.scale;
  header.title = table.title;
  header.written.tm_year = 2025 - 1900;
  header.written.tm_mon = 0;
  header.written.tm_mday = 1;
  std::string text = DataFileHeaderLine(header);
  for (const std::string& row : table.rows)
    text += row + "\r\n";
  return text;
}

}  // namespace quorb
