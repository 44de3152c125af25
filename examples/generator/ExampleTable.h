#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorb {

/// A row of a data file: its fields, a TAB between two.
class RowText {
 public:
  /// Adds a number with ten decimals.
  RowText& Number(double value);

  /// Adds a text, which holds no TAB.
  RowText& Text(std::string_view text);

  /// Adds empty fields.
  RowText& Empty(int fields);

  const std::string& Line() const { return line_; }

 private:
  void BeginField();

  std::string line_;
  bool first_ = true;
};

/// The tables of a data file as they would stand in a worksheet, from row 2 on.
struct ExampleTable {
  std::string sheetName;
  std::string title;          ///< Keywords included.
  double scale = 1;           ///< 0.0000000001 or more.
  int terms = 2;              ///< Ranges of the formula: 1 points, 2 times, 3 events, 4 attitude, 5 and 6 the
                              ///< arrays on plus and minus Y, 7 colour values.
  bool oneColumn = false;     ///< The points stand in column A alone.
  std::size_t eventRows = 0;  ///< Rows of the events' range; 0 for as many as the others.
  std::vector<std::string> rows;  ///< Lines of RowText.
};

/// The data file of a table: the header line with its specification formula, then the rows; lines end in
/// CR LF. The same table always gives the same text.
std::string DataFileOf(const ExampleTable& table, const std::string& fileName);

}  // namespace quorb
