#include <algorithm>

#include "DataChannel.h"
#include "DataFile.h"
#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "TextDecoding.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kMetresPerKilometre = 1000;

// Takes the first field off the text at `rest` and gives its number. Most fields are plain numbers: the
// conversion itself then finds the TAB behind them.
std::string_view TakeField(std::string_view rest, double& number) {
  const std::size_t length = ShortNumberLength(rest, number);
  if (length > 0 && (length == rest.size() || rest[length] == '\t')) return rest.substr(0, length);
  const std::string_view field = rest.substr(0, rest.find('\t'));
  number = field.empty() ? 0.0 : ValText(field);
  return field;
}

void NoteEmptyField(int index, RowFields& fields) {
  switch (index) {
    case 1:
      fields.emptyX = true;
      break;
    case 5:
      fields.emptyEventTime = true;
      break;
    case 7:
      fields.emptyQuaterTime = true;
      break;
    case 12:
      fields.emptySApYTime = true;
      break;
    case 14:
      fields.emptySAmYTime = true;
      break;
    default:
      break;
  }
}

void NoteEvent(std::string_view field, RowFields& fields) {
  fields.eventText = Trim(field);
  if (fields.eventText.empty()) fields.eventText = "0";
  if (PenUpLabelMode == 1) {
    fields.label = field;
    return;
  }
  if (fields.values[6] != 0) return;
  const char last = fields.eventText.back();
  if (last == 'S' || last == 's') {
    fields.values[6] = 1;
    fields.eventText = "1";
  } else if (last == 'E' || last == 'e') {
    fields.eventText = "0";
  }
}

double Days(double time, bool inSeconds) {
  return inSeconds ? time / kSecondsPerDay : time;
}

struct RowMarks {
  bool hasEvent = false, hasQuater = false, hasSApY = false, hasSAmY = false, hasValZ = false;
};

void SetTime(int row, double time) {
  if (dataXYZT.Set(row, 0, time)) timeAssigned.set(static_cast<std::size_t>(row));
}

double Position(double value, const LoadPass& pass) {
  const double scaled = value * pass.scale;
  return pass.LengthInMetres ? scaled / kMetresPerKilometre : scaled;
}

void StorePoint(const RowFields& fields, LoadPass& pass) {
  if (ColumnMode == 1) {
    dataXYZT.Set(pass.colRow, pass.colCoord + 1, Position(fields.values[1], pass));
    LastPoint = pass.colRow;
  } else {
    const int last = std::min(fields.count, 3);
    for (int f = 1; f <= last; ++f)
      dataXYZT.Set(pass.row, f, Position(fields.values[f], pass));
    LastPoint = pass.row;
  }
  if (fields.count >= 4) SetTime(pass.row, Days(fields.values[4], pass.TimeInSeconds && PenUpMode != 1));
  if (fields.count == 3) SetTime(pass.row, 0);
}

void SetText(TextColumn& column, int row, std::string_view bytes) {
  const bool plain = std::all_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) == 0; });
  if (plain) {
    column.Set(row, bytes);
  } else {
    column.Set(row, DecodeText(bytes));
  }
}

void StoreEvent(const RowFields& fields, LoadPass& pass, RowMarks& marks) {
  if (fields.count < 5) return;
  const double time = Days(fields.values[5], pass.TimeInSeconds && PenUpMode != 1);
  marks.hasEvent = !fields.emptyEventTime;
  dataEvents.Set(pass.evRow, 0, time);
  pass.evRowsWritten = pass.evRow + 1;
  ++pass.evLog;
  dataEventLog.time.Set(pass.evLog, 0, time);
  if (fields.count < 6) return;
  marks.hasEvent = true;
  dataEvents.Set(pass.evRow, 1, fields.values[6]);
  SetText(dataEventLog.text, pass.evLog, fields.eventText);
  if (pass.evRow > 0) {
    if (fields.eventText == pass.lastEvent) {
      marks.hasEvent = false;
    } else {
      pass.lastEvent = fields.eventText;
    }
  }
  if (fields.emptyEventTime) marks.hasEvent = false;
  if (PenUpLabelMode == 1) SetText(dataPenUpLabel, pass.row, fields.label);
}

void StoreQuaternion(const RowFields& fields, LoadPass& pass, RowMarks& marks) {
  const int last = std::min(fields.count, 11);
  if (last >= 7) pass.quaterRowsWritten = pass.row + 1;
  for (int f = 7; f <= last; ++f) {
    double value = fields.values[f];
    if (f == 7) value = Days(value, pass.TimeInSeconds && PenUpMode != 1);
    if (PenUpMode == 1 && pass.LengthInMetres) value = fields.values[f] / kMetresPerKilometre * pass.scale;
    dataQuater.Set(pass.row, f - 7, value);
    marks.hasQuater = true;
  }
}

// A table of two columns, time first, that starts at the field `first`. True when the row has a part of it.
bool StorePair(NumberTable<2>& table, int first, const RowFields& fields, const LoadPass& pass,
               int& rowsWritten) {
  if (fields.count < first) return false;
  rowsWritten = pass.row + 1;
  table.Set(pass.row, 0, Days(fields.values[first], pass.TimeInSeconds));
  if (fields.count > first) table.Set(pass.row, 1, fields.values[first + 1]);
  return true;
}

void StoreRow(const RowFields& fields, LoadPass& pass) {
  RowMarks marks;
  if (ColumnMode == 1) {
    pass.colCoord = (pass.colCoord + 1) % 3;
    if (pass.colCoord == 0) ++pass.colRow;
  }
  StorePoint(fields, pass);
  StoreEvent(fields, pass, marks);
  StoreQuaternion(fields, pass, marks);
  marks.hasSApY = StorePair(dataSApY, 12, fields, pass, pass.SApYRowsWritten);
  marks.hasSAmY = StorePair(dataSAmY, 14, fields, pass, pass.SAmYRowsWritten);
  if (pass.readValZ) marks.hasValZ = StorePair(dataValZ, 16, fields, pass, pass.valZRowsWritten);

  dataXYZT.Set(pass.row, 4, fields.emptyX || PenUpMode == 1 ? -1 : 0);
  if (PenUpMode == 1) dataQuater.Set(pass.row, 3, fields.emptyQuaterTime ? -1 : 0);
  if (marks.hasEvent) ++pass.evRow;
  if (marks.hasQuater) ++NbQuater;
  if (marks.hasSApY && !fields.emptySApYTime) ++NbSApY;
  if (marks.hasSAmY && !fields.emptySAmYTime) ++NbSAmY;
  if (marks.hasValZ) ++NbValZ;
  ++pass.row;
}

void ClearBehindTables(const LoadPass& pass) {
  ClearBehind(dataQuater, pass.quaterRowsWritten, NbQuater);
  ClearBehind(dataSApY, pass.SApYRowsWritten, NbSApY);
  ClearBehind(dataSAmY, pass.SAmYRowsWritten, NbSAmY);
  ClearBehind(dataValZ, pass.valZRowsWritten, NbValZ);
}

}  // namespace

void ExtractRowFields(std::string_view lin, RowFields& fields) {
  fields.Clear();
  for (int index = 1;; ++index) {
    double number = 0;
    const std::string_view field = TakeField(lin, number);
    if (index <= RowFields::kHeld) {
      fields.values[index] = number;
      if (field.empty()) NoteEmptyField(index, fields);
      if (index == 6) NoteEvent(field, fields);
    }
    fields.count = index;
    if (field.size() == lin.size()) return;
    lin.remove_prefix(field.size() + 1);
  }
}

void ReadRows(LoadPass& pass, LoaderWindow& window) {
  RowFields fields;
  double nextMove = pass.tick;
  std::string_view lin;
  while (NextLine(1, lin)) {
    if (lin.empty()) continue;
    ExtractRowFields(lin, fields);
    if (ChannelLostPart(1)) break;
    StoreRow(fields, pass);
    if (pass.row < nextMove) continue;
    nextMove += pass.tick;
    ++pass.bar;
    if (pass.bar < 100) window.SetProgress(pass.bar);
  }
  ClearBehindTables(pass);
}

}  // namespace quorb
