#pragma once

#include <bitset>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace quorb {

/// Rows of every plot array: the row count of a worksheet.
inline constexpr int kRowBound = 1048576;

/// A flat table of numbers with rows 0 to kRowBound - 1. It lies in memory that costs nothing until a row is
/// written. A cell that was never assigned reads as 0.
template <int Columns>
struct NumberTable {
  static constexpr int kColumns = Columns;
  double cell[kRowBound][Columns];

  /// Writes one cell. An index outside the bounds changes nothing and gives false.
  bool Set(std::int64_t row, std::int64_t column, double value) {
    if (!Holds(row) || column < 0 || column >= Columns) return false;
    cell[row][column] = value;
    return true;
  }

  /// True when `row` is a row of the table.
  static bool Holds(std::int64_t row) { return row >= 0 && row < kRowBound; }

  /// The cells of a row inside the bounds.
  double* operator[](std::int64_t row) { return cell[row]; }
  const double* operator[](std::int64_t row) const { return cell[row]; }
};

/// Assigns a number that was computed; one that is beyond a double's range is a fault, and the cell stays.
inline void AssignFinite(double& cell, double value) {
  if (std::isfinite(value)) cell = value;
}

/// Sets the rows of a table from `rowsWritten` to two behind `counter` to 0: the scene looks at the rows just
/// behind a table's last one, and no earlier plot may stand there.
template <int Columns>
void ClearBehind(NumberTable<Columns>& table, std::int64_t rowsWritten, double counter) {
  for (std::int64_t i = rowsWritten; i < static_cast<std::int64_t>(counter) + 2 && table.Holds(i); ++i) {
    for (double& number : table.cell[i]) {
      if (number != 0) number = 0;
    }
  }
}

/// A column of texts, rows 0 to kRowBound - 1, UTF-8. The texts of all rows stand in one arena; a row without
/// a text costs nothing and reads as empty.
class TextColumn {
 public:
  /// Writes one cell; false and no change when `row` is outside the bounds. A text equal to the one written
  /// last shares its place.
  bool Set(std::int64_t row, std::string_view text);

  /// The text of a row, valid until the next Set or Restart; empty outside the bounds.
  std::string_view operator[](std::int64_t row) const;

  /// Forgets all texts, for a new load.
  void Restart();

 private:
  std::string_view TextAt(std::uint32_t place) const;

  std::uint32_t place_[kRowBound];  // 0 for no text, else 1 + the place of its length in the arena
  std::int64_t rowsWritten_ = 0;
  std::uint32_t lastPlace_ = 0;
  std::string arena_;  // of each text its length in four bytes, then its bytes
};

/// The event rows as read: the time in days, and the text of the event cell.
struct EventLogTable {
  NumberTable<1> time;
  TextColumn text;
};

// ---- the plot -------------------------------------------------------------------------------------------

/// Points: time in days, X, Y, Z in kilometres times FactorScale, pen flag (0 line, -1 pen up).
extern NumberTable<5> dataXYZT;
/// The rows of dataXYZT whose time was assigned by a load.
extern std::bitset<kRowBound> timeAssigned;
/// Event changes: time in days, value (1 start, 0 end, other numbers as they stand).
extern NumberTable<2> dataEvents;
/// Every event row as read.
extern EventLogTable dataEventLog;
/// One label a point, with PenUpLabelMode only.
extern TextColumn dataPenUpLabel;
/// Attitude: time in days, quaternion w x y z.
extern NumberTable<5> dataQuater;
/// Solar array on the plus Y side: time in days, angle in degrees.
extern NumberTable<2> dataSApY;
/// Solar array on the minus Y side: time in days, angle in degrees.
extern NumberTable<2> dataSAmY;
/// Colour values: time in days, value.
extern NumberTable<2> dataValZ;

/// Index of the last valid row of dataXYZT.
extern std::int32_t LastPoint;
/// Rows of dataEventLog in use, 1 for a plot without events; the scene may lower it.
extern std::int32_t NbEvents;
/// Rows in use of dataQuater, dataSApY, dataSAmY, dataValZ.
extern double NbQuater, NbSApY, NbSAmY, NbValZ;

/// Extremes of the colour values, and of the times in PenUpMode, never the same.
extern double ValZMax, ValZMin, TimeMax, TimeMin;

/// The number at the head of the specification formula.
extern double FactorScale;
/// The plot's title, without the keywords that were recognised.
extern std::string MessageUserToPlot;

/// Moves `maximum` of a flat span so that it can be divided by: 0 and 0 gives 1, another flat value 1.01 of
/// it, which is below the minimum for a negative one.
void RaiseFlatMaximum(double& maximum, double minimum);

}  // namespace quorb
