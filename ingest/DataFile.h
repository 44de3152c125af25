#pragma once

#include <string>
#include <string_view>

#include "LoaderWindow.h"

namespace quorb {

/// One line's fields, as the row splitter found them.
struct RowFields {
  static constexpr int kHeld = 20;
  double values[kHeld + 1] = {};  ///< numbers of the fields 1 to 20; those beyond `count` are of other rows
  int count = 0;                  ///< number of fields in the line, also above 20
  bool emptyX = false;
  bool emptyEventTime = false;
  bool emptyQuaterTime = false;
  bool emptySApYTime = false;
  bool emptySAmYTime = false;
  std::string_view eventText;  ///< trimmed text of field 6, "0" for a blank one, "1" and "0" for S and E
  std::string_view label;      ///< text of field 6 as it stands, with PenUpLabelMode only

  /// Puts all but the values back to their start.
  void Clear() {
    count = 0;
    emptyX = emptyEventTime = emptyQuaterTime = emptySApYTime = emptySAmYTime = false;
    eventText = label = {};
  }
};

/// The header line of a data file, as its fields stand.
struct DataFileHeader {
  std::string source;   ///< caption of the workbook, "/", name of the sheet
  std::string formula;  ///< from its "=" on, without the quotes of a text copy; empty when there is none
  double scale = 0;     ///< 0 when the field is empty or no number
  std::string title;
  std::string date;
};

/// Working values of one pass over a data file.
struct LoadPass {
  bool TimeInSeconds = true;
  bool LengthInMetres = true;
  double scale = 1.0;
  bool readValZ = false;      ///< the formula has a range of colour values
  int row = 0;                ///< next row of the arrays
  int evRow = 0;              ///< next row of dataEvents
  int evRowsWritten = 0;      ///< rows of dataEvents that were written, the last one kept or not
  int quaterRowsWritten = 0;  ///< rows of the other tables up to the last one that was written
  int SApYRowsWritten = 0;
  int SAmYRowsWritten = 0;
  int valZRowsWritten = 0;
  int evLog = -1;         ///< last row of dataEventLog
  std::string lastEvent;  ///< text of the last event kept
  int colCoord = -1;      ///< ColumnMode: coordinate and row of the point
  int colRow = -1;
  double tick = 1;  ///< rows from one move of the progress bar to the next
  double bar = 0;
};

/// Opens a data file for input as channel `number`, closing what was open there, and sets `ErrorNumber` to 0
/// or to the number of the failure. The outcome goes to the log. `number` is always 1.
void OpenfileW(const std::string& NameTempo, int number, int& ErrorNumber, LoaderWindow& window);

/// Reads one line into `lin`, as UTF-8 and without its end (CR LF, LF or a lone CR). A failure
/// leaves `lin` as it was; the first nine of a run go to the log.
void LinInputW(int number, std::string& lin, LoaderWindow& window);

/// True when nothing is left to read in the channel, or when it is not open.
bool AtEndOfFile(int number);

/// Closes the channel; nothing happens when it is not open.
void CloseChannel(int number);

/// Splits one line at its TABs. Numbers go through TextToDouble; `fields` refers to `lin`, which must outlive
/// it.
void ExtractRowFields(std::string_view lin, RowFields& fields);

/// Takes the header line of a data file apart. A line that stands whole in double quotes, with its own quotes
/// doubled, gives the formula in either form as it stands; the formula parser takes both.
DataFileHeader ReadHeader(std::string_view lin);

/// Reads every row behind the header of channel 1 into the plot arrays and moves the counters. Cells outside
/// the arrays are skipped, counters still move. The two rows behind a table, where the scene looks too, read
/// as 0 afterwards. The progress bar of `window` follows.
void ReadRows(LoadPass& pass, LoaderWindow& window);

}  // namespace quorb
