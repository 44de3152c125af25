#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "CellBlock.h"
#include "SheetLink.h"

namespace quorb {

/// Reads "A2", "A2:C60" or "$A$2:$C$60" in either case; the corners may come in any order.
std::optional<CellRectangle> ParseRectangle(std::string_view text);

/// Reads whole columns, "A:R".
std::optional<CellRectangle> ParseColumns(std::string_view text);

/// A number with that many decimals as the spreadsheet displays it: 15 significant digits, zeros behind them.
/// @param mark the decimal mark.
/// @param text the number is put behind what stands there.
void AppendFixed(double number, int decimals, char mark, std::string& text);

/// The scratch workbook: a sheet in this program's own memory. It holds blocks of values, laid one over the
/// other, texts that were written to single cells, and the number of decimals of its columns.
class ScratchTable {
 public:
  static constexpr int kMostRows = 1048576;
  static constexpr int kMostColumns = 16384;

  /// Lays a block down with its first cell at that place.
  void Paste(int row, int column, std::shared_ptr<const CellBlock> block);
  /// Writes a text to a cell.
  void Write(int row, int column, const std::string& text);
  /// Gives whole columns the number format of that many decimals.
  void SetDecimals(int firstColumn, int lastColumn, int decimals);

  /// The text of a block, as SheetLink::BlockText tells.
  /// @param mark the decimal mark.
  /// @return false when the sink wanted no more.
  bool Text(const CellRectangle& rectangle, char mark, BlockTextSink& sink) const;

 private:
  struct Pasted {
    int row, column;
    std::shared_ptr<const CellBlock> block;
  };
  struct Column {
    std::vector<const Pasted*> blocks;  // The one on top first.
    int number;
    int decimals;  // Negative: no format was given.
  };

  int DecimalsOf(int column) const;
  void AppendCell(int row, const Column& column, char mark, std::string& text) const;

  std::vector<Pasted> pasted_;
  std::map<std::pair<int, int>, std::string> written_;
  int lastWrittenRow_ = 0;
  std::map<int, int> decimals_;
};

}  // namespace quorb
