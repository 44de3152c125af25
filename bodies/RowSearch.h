#pragma once

#include <cstdint>

#include "PlotData.h"

namespace quorb {

/// A cell of a table; 0 outside its rows.
template <int Columns>
double CellOrZero(const NumberTable<Columns>& table, std::int64_t row, int column) {
  return table.Holds(row) ? table[row][column] : 0;
}

/// True when the time `t` lies from the time of a row to that of the next one, both included.
template <int Columns>
bool RowEncloses(const NumberTable<Columns>& table, std::int64_t row, double t) {
  return CellOrZero(table, row, 0) <= t && t <= CellOrZero(table, row + 1, 0);
}

/// The row whose time and that of the next row enclose `t`, sought from `row` on, so that it costs little
/// while time goes on in small steps. Behind the last row the search ends at `count`, a row without data, and
/// stands still there; before the first one it ends at 0.
/// @param count rows of the table in use.
/// @param row where the search stood; one behind `count`, as after the load of a shorter table, starts anew
/// at 0.
/// @param t days, as column 0 of the table.
template <int Columns>
std::int64_t FindRow(const NumberTable<Columns>& table, double count, std::int64_t row, double t) {
  const auto last = static_cast<std::int64_t>(count);
  if (row > last) row = 0;
  if (CellOrZero(table, row, 0) <= t) {
    while (row <= last && !RowEncloses(table, row, t))
      ++row;
    return row > last ? last : row;
  }
  while (row >= 1 && !RowEncloses(table, row, t))
    --row;
  return row < 1 ? 0 : row;
}

}  // namespace quorb
