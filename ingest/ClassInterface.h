#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "Faults.h"

namespace quorb {

/// What a call came to: the failure's number and what is wrong and where; the number is 0 when all went well.
struct [[nodiscard]] InterfaceFault {
  int number = kFaultNone;
  std::string description;
  bool stored = false;     ///< The call has changed the plot's arrays.
  double scaleBefore = 0;  ///< FactorScale as it stood just before that.

  bool Good() const { return number == kFaultNone; }
};

/// The automation object: another program pushes title, points, times and events into the plot as text, with
/// no specification formula and no file.
///
/// Text comes in blocks of rows. A row ends in a carriage return and one further character, normally a line
/// feed; what stands behind the last one is dropped. Cells are parted by TABs and trimmed. A block of more
/// than 65000 characters is read as any other, behind a message.
///
/// Any number of calls with the factor 0 stage rows; one with another factor stages its own and stores all of
/// them in the plot's arrays. The next call begins anew. An empty text does nothing, whatever its factor, and
/// neither does a factor when no row is staged.
///
/// Points and times hold 64 rows, events 4, all of them 4 cells. A row or a cell beyond that is the failure 9
/// for the client, a factor that is no finite number the failure 5; the call then stages and stores nothing.
/// A TAB at the end of a row begins no further cell. The staged texts are the process's, the counts of
/// rows each object's own. Calls may not come while a load runs.
class ClassInterface {
 public:
  /// Sets the plot's title, and whether it has events (1) or not (0).
  void InterFaceXls(const std::string& message, int flag);

  /// Points: X, Y, Z in cells 1 to 3, read with a decimal point, times the factor. They replace the plot's.
  /// A point whose squared distance is beyond the range of a double is the failure 6: nothing is stored, and
  /// what was staged before the call stays.
  InterfaceFault GlrayonXls(std::string_view str, double factor);

  /// Times: cell 1 of a row, in days, for as many rows as the plot has points; the factor does not multiply
  /// them. A number with a decimal point is read as it stands, any other form as the machine writes numbers
  /// (ValText). Rows that were not staged here count with what stands in their first cell. A plot of more
  /// than 64 points is the failure 9.
  InterfaceFault GlrayonXlsT(std::string_view str, double factor);

  /// Events: time in cell 1, in days, read as those of points; cell 2 ends in "1" or "S" for a start, "0" or
  /// "E" for an end, or in another digit. They replace the plot's.
  InterfaceFault GlEventsXls(std::string_view str, double factor);

 private:
  std::int32_t rowsXYZ = 0, rowsT = 0, rowsEvents = 0;
  bool committedXYZ = false, committedT = false, committedEvents = false;
};

}  // namespace quorb
