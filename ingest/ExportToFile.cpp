#include "ExportToFile.h"

#include <algorithm>
#include <ctime>

#include "CellRange.h"
#include "Dialogs.h"
#include "FileAccess.h"
#include "HeaderLine.h"
#include "NumberText.h"

namespace quorb {

namespace {

constexpr int kColumns = 17;
constexpr double kColumnWidth = 20;
constexpr const char* kNumberFormat = "0.0000000000";
constexpr double kSettleTime = 0.01;

// ---- the header -------------------------------------------------------------------------------------------

// A field of the header on one line: what would end the field or the line becomes a blank.
std::string OneField(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  return local != nullptr ? *local : std::tm();
}

std::string HeaderText(const SheetSession& session, const PlotRanges& ranges,
                       const SpecificationText& specification) {
  HeaderLineFields header;
  header.sourceName = session.SourceBook;
  header.sheetName = session.SourceSheet;
  header.formula = OneField(ranges.cellFormula);
  header.scale = specification.scale;
  header.title = OneField(specification.title);
  header.written = LocalTime();
  const std::string line = DataFileHeaderLine(header);
  return line.substr(0, line.find('\r'));
}

// ---- from the source to the scratch workbook --------------------------------------------------------------

PasteArguments FirstPaste() {
  return {};
}

PasteArguments LaterPaste() {
  return {xlPasteValues, xlPasteSpecialOperationNone, false, false};
}

// What was marked before is never pasted in the place of a range that could not be copied.
SheetFault CopyAndPaste(SheetSession& session, const std::string& range, const std::string& target,
                        const PasteArguments& arguments) {
  SheetLink& link = session.link;
  SheetFault copied = link.WorkbooksActivate(session.SourceBook);
  if (copied.Good()) copied = link.RangeCopy(range);
  SheetFault activated = link.WorkbooksActivate(session.TempBook);
  if (!activated.Good()) return activated;
  return copied.Good() ? link.RangePasteSpecial(target, arguments) : copied;
}

bool PourXYZ(SheetSession& session, const std::string& range, const std::string& target) {
  const bool isPasted = session.Done(CopyAndPaste(session, range, target, FirstPaste()));
  return session.Done(session.link.EndCutCopyMode()) && isPasted;
}

// A range that the sheet refuses (1004) leaves its columns empty; false for any other failure.
bool Pour(SheetSession& session, const std::string& range, const std::string& target) {
  const SheetFault fault = CopyAndPaste(session, range, target, LaterPaste());
  const bool isPasted = session.Done(fault);
  session.Done(session.link.EndCutCopyMode());
  return isPasted || fault.number == kFaultApplication;
}

// Behind a place that there is not, there is none.
std::string PlaceAt(const std::string& before, int columns) {
  return before.empty() ? std::string() : ShiftCell(before, columns);
}

// Pours a range whose first column is `target`; the times that it goes by come first where it has none.
bool PourTimed(SheetSession& session, const PlotRange& range, const PlotRanges& ranges,
               const std::string& target, double bar) {
  if (range.text.empty()) return true;
  bool isPoured = true;
  std::string place = target;
  if (range.timeOfRangeT) {
    isPoured = Pour(session, ranges.rangeT.text, place);
    place = PlaceAt(place, 1);
  }
  isPoured = Pour(session, range.text, place) && isPoured;
  session.window.SetProgress(bar);
  return isPoured;
}

// The place of a term follows from that of the term before it: behind one that is missing there is none.
std::string PlaceBehind(const PlotRange& range, const std::string& before, int columns) {
  return range.text.empty() ? std::string() : PlaceAt(before, columns);
}

// False when the table would not hold what the sheet holds.
bool PourAll(SheetSession& session, const PlotRanges& ranges) {
  const std::string placeXYZ = "A2";
  if (!PourXYZ(session, ranges.rangeXYZ.text, placeXYZ)) return false;
  session.window.SetProgress(15);

  bool isPoured = true;
  const std::string placeT = PlaceBehind(ranges.rangeT, placeXYZ, 3);
  if (!ranges.rangeT.text.empty()) {
    isPoured = Pour(session, ranges.rangeT.text, placeT);
    session.window.SetProgress(20);
  }
  const auto pour = [&](const PlotRange& range, const std::string& place, double bar) {
    isPoured = PourTimed(session, range, ranges, place, bar) && isPoured;
  };
  const std::string placeEvents = PlaceBehind(ranges.rangeEvents, placeT, 1);
  pour(ranges.rangeEvents, placeEvents, 25);
  const std::string placeQuater = PlaceBehind(ranges.rangeQuater, placeEvents, 2);
  pour(ranges.rangeQuater, placeQuater, 27);
  const std::string placeSApY = PlaceBehind(ranges.rangeSApY, placeQuater, 5);
  pour(ranges.rangeSApY, placeSApY, 28);
  const std::string placeSAmY = PlaceBehind(ranges.rangeSAmY, placeSApY, 2);
  pour(ranges.rangeSAmY, placeSAmY, 30);
  const std::string placeValZ = PlaceBehind(ranges.rangeValZ, placeSAmY, 2);
  pour(ranges.rangeValZ, placeValZ, 32);
  return isPoured;
}

bool FormatColumns(SheetSession& session, const std::string& columns) {
  SheetLink& link = session.link;
  bool isFormatted = session.Done(link.ColumnsSelect(columns));
  isFormatted = session.Done(link.SelectionColumnWidth(kColumnWidth)) && isFormatted;
  isFormatted = session.Done(link.SelectionNumberFormat(kNumberFormat)) && isFormatted;
  session.Done(link.EndCutCopyMode());
  return isFormatted;
}

// False when the whole table was not formatted: cells that are too narrow show no numbers.
bool FormatTable(SheetSession& session) {
  const bool isFormatted = FormatColumns(session, "A:R");
  for (const char* columns : {"D:E", "G:G", "L:L", "N:N", "P:P"})
    FormatColumns(session, columns);
  return isFormatted;
}

// False when the user has gone to another sheet meanwhile: then some of the ranges may be those of that one.
bool SourceIsStillOnShow(SheetSession& session) {
  std::string name;
  return session.Done(session.link.ActiveSheetName(session.workbook, name)) && name == session.SourceSheet;
}

bool FillScratch(SheetSession& session, const PlotRanges& ranges, const SpecificationText& specification) {
  SheetLink& link = session.link;
  return session.Done(link.RangeSelect("A1")) &&
         session.Done(link.SetActiveCell(HeaderText(session, ranges, specification))) &&
         PourAll(session, ranges) && FormatTable(session) && SourceIsStillOnShow(session) &&
         session.IsSound();
}

std::string WhyNotWhole(const SheetSession& session) {
  return session.ErrorNumber == kFaultNone ? "another sheet came to the front"
                                           : FaultText(session.ErrorNumber);
}

// ---- from the scratch workbook to the file ----------------------------------------------------------------

class FileSink : public BlockTextSink {
 public:
  explicit FileSink(SheetSession& session) : session_(session) {}
  // The file is gone when the program ends while the text comes.
  bool Take(std::string_view piece) override {
    failed_ = session_.output == nullptr || !session_.output->Write(piece);
    return !failed_;
  }
  bool Failed() const { return failed_; }

 private:
  SheetSession& session_;
  bool failed_ = false;
};

// The new file takes the place of the old one when it is whole, and not before.
void WriteTable(SheetSession& session, int lastRow) {
  CurrentDialogs().PumpEvents();
  if (session.ended) return;
  const std::string cannotBeWritten = session.outputName + " cannot be written";
  session.output = CurrentFileAccess().Create(session.outputName);
  if (session.output == nullptr) return session.GiveUpFile(cannotBeWritten);
  FileSink sink(session);
  const bool isHad = session.Done(session.link.BlockText("A1:" + CellName(lastRow, kColumns), sink));
  if (session.output == nullptr) return;
  if (sink.Failed()) {
    session.GiveUpFile(cannotBeWritten + " to its end: the disk may be full");
  } else if (!isHad) {
    session.GiveUpFile("The spreadsheet did not give the text of the table: " +
                       FaultText(session.ErrorNumber));
  } else {
    session.fileWritten = session.output->Commit();
    if (!session.fileWritten) session.GiveUpFile(cannotBeWritten);
  }
  session.output.reset();
}

// A name with a wildcard would stand for other files too.
bool StandsForManyFiles(const std::string& name) {
  return name.find_first_of("*?") != std::string::npos;
}

// Makes the scratch workbook; false when it cannot be told from the others, or the source from them.
bool AddScratch(SheetSession& session) {
  SheetLink& link = session.link;
  session.TempBook.clear();
  if (!session.Done(link.WorkbooksAdd())) return false;
  int windows = 0;
  session.Done(link.WorkbookWindowsCount(session.workbook, windows));
  session.Done(link.WindowCaption(windows, session.TempBook));
  const bool areKnown =
      !session.SourceBook.empty() && !session.SourceSheet.empty() && !session.TempBook.empty();
  if (areKnown && session.IsSound()) return true;
  session.TempBook.clear();
  return false;
}

}  // namespace

bool ScratchIsSource(const SheetSession& session) {
  return !session.TempBook.empty() && session.TempBook == session.SourceBook;
}

void ExportToFile(SheetSession& session, const PlotRanges& ranges, const SpecificationText& specification) {
  session.StartStage();
  if (StandsForManyFiles(session.outputName)) return CurrentDialogs().EndProgram();
  if (!AddScratch(session)) {
    return session.GiveUpFile("The spreadsheet made no workbook for the table: " +
                              FaultText(session.ErrorNumber));
  }
  if (ScratchIsSource(session)) {
    ++session.AddRetries;
    return;
  }
  if (FillScratch(session, ranges, specification)) {
    WriteTable(session, ranges.lastRow);
  } else {
    session.GiveUpFile("The table was not poured whole, the data file of the load before stays: " +
                       WhyNotWhole(session));
  }
  session.window.Pause(kSettleTime);
  session.Done(session.link.ActiveWindowClose(false, false));
}

}  // namespace quorb
