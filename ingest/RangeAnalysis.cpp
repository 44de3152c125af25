#include "RangeAnalysis.h"

#include <algorithm>
#include <string_view>

#include "Dialogs.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "TextHelpers.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr double kLongSheetVersion = 12;
constexpr int kRowsOfLongSheet = 1048576;
constexpr int kRowsOfShortSheet = 65536;
constexpr int kWidestExtra = 14;
constexpr double kBarAtRanges = 10;

// ---- the end of the data ----------------------------------------------------------------------------------

// Steps from `row` on until a cell ends the run, and gives the row of that cell: downwards the first empty
// one or the last before the end of the sheet, upwards the first filled one or the last not above `start`.
int RunOfRows(SheetCells& sheet, int column, int row, int step, int start, int rowLimit) {
  const bool down = step > 0;
  for (;; row += step) {
    const bool empty = sheet.CellText(row, column).empty();
    const bool outside = down ? row + step >= rowLimit : row + step < start;
    if (outside || empty == down) return row;
  }
}

int FindLastRow(SheetCells& sheet, int column, int start) {
  constexpr int kSteps[] = {1000, -100, 10, -1};
  const int rowLimit = sheet.VersionNumber() >= kLongSheetVersion ? kRowsOfLongSheet : kRowsOfShortSheet;
  sheet.ActivateSource();
  int row = start;
  for (const int step : kSteps)
    row = RunOfRows(sheet, column, row, step, start, rowLimit);
  return row;
}

// ---- the main range ---------------------------------------------------------------------------------------

void FindEndOfMainRange(PlotRanges& ranges, SheetCells& sheet) {
  RangeNumbers& main = ranges.rangeXYZ.numbers;
  if (main.num1 != main.num2) return;
  const int end = FindLastRow(sheet, main.Ncol1 + 2, main.num2);
  ranges.SpecFound = 1;
  UpdateRange(ranges.rangeXYZ, ranges.SpecFound, main.num1, end, ranges.cellFormula);
  main.num2 = end;
}

void ReadMainRange(PlotRanges& ranges, SheetCells& sheet, LoaderWindow& window) {
  PlotRange& main = ranges.rangeXYZ;
  window.AppendLog(" part NcolumnsUpdated rangeXYZ$" + main.text);
  ConvertA1LC(main.text, main.numbers);
  if (main.numbers.Ncol2 == 0) {
    main.numbers.Ncol2 = main.numbers.Ncol1 + 2;
    main.numbers.num2 = main.numbers.num1;
  }
  FindEndOfMainRange(ranges, sheet);
  ranges.lastRow = main.numbers.num2;
}

// ---- one range for all ------------------------------------------------------------------------------------

// Columns `first` to `last` behind the first one of the main range, over its rows.
std::string PartOfMainRange(const RangeNumbers& main, int first, int last) {
  const RangeNumbers part = {main.Ncol1 + first, main.Ncol1 + last, main.num1, main.num2};
  return RangeText(part);
}

// The wide range ended where a term ends: the terms behind it in the formula are those behind that one.
void TakeLaterTerms(int extra, const PlotRanges& given, PlotRanges& ranges) {
  const std::string& t2 = given.rangeT.text;
  const std::string& t3 = given.rangeEvents.text;
  const std::string& t4 = given.rangeQuater.text;
  const std::string& t5 = given.rangeSApY.text;
  switch (extra) {
    case 1:
      ranges.rangeEvents.text = t2;
      ranges.rangeQuater.text = t3;
      ranges.rangeSApY.text = t4;
      ranges.rangeSAmY.text = t5;
      return;
    case 3:
      ranges.rangeQuater.text = t2;
      ranges.rangeSApY.text = t3;
      ranges.rangeSAmY.text = t4;
      return;
    case 8:
      ranges.rangeSApY.text = t2;
      ranges.rangeSAmY.text = t3;
      return;
    case 10:
      ranges.rangeSAmY.text = t2;
      return;
    case 12:
      ranges.rangeValZ.text = t2;
      return;
    default:
      return;
  }
}

void SplitWideRange(PlotRanges& ranges) {
  RangeNumbers& main = ranges.rangeXYZ.numbers;
  const int extra = main.Ncol2 - (main.Ncol1 + 2);
  // Numbers that no cell has, as "$" makes them, cannot be split: every text stays.
  const bool isUsable = main.Ncol1 > 0 && main.num1 > 0;
  if (extra <= 0 || !isUsable) return;
  const PlotRanges given = ranges;
  ranges.rangeXYZ.text = PartOfMainRange(main, 0, 2);
  ranges.rangeT.text = PartOfMainRange(main, 3, 3);
  ranges.rangeEvents.text = PartOfMainRange(main, 4, 5);
  ranges.rangeQuater.text = PartOfMainRange(main, 6, 10);
  ranges.rangeSApY.text = PartOfMainRange(main, 11, 12);
  ranges.rangeSAmY.text = PartOfMainRange(main, 13, 14);
  TakeLaterTerms(extra, given, ranges);
  if (extra <= kWidestExtra) return;
  CurrentDialogs().MessageBox(
      "Specification QuorbExcel: too many columns, truncated to :3 + 1 + 2 + 5 + 2 + 2 + 2", "",
      kBoxInformationIcon);
  main.Ncol2 = main.Ncol1 + 16;
}

// ---- the other ranges -------------------------------------------------------------------------------------

bool IsOneCell(const PlotRange& range) {
  return range.numbers.Ncol2 == 0;
}

// A text that follows numbers which were widened; it stays where they have no name.
void BringTextInStep(PlotRange& range) {
  const std::string text = RangeText(range.numbers);
  if (!text.empty()) range.text = text;
}

void FinishRange(PlotRange& range, PlotRanges& ranges) {
  const RangeNumbers& main = ranges.rangeXYZ.numbers;
  UpdateRange(range, ranges.SpecFound, main.num1, main.num2, ranges.cellFormula);
  ranges.lastRow = std::max(ranges.lastRow, range.numbers.num2);
}

// Logs and reads a range that is given; false when there is nothing to go on with.
bool ReadRange(PlotRange& range, std::string_view name, LoaderWindow& window) {
  if (range.text.empty()) return false;
  window.AppendLog(" part " + std::string(name) + "$ " + range.text);
  return ConvertA1LC(range.text, range.numbers);
}

void ReadTimes(PlotRanges& ranges, LoaderWindow& window) {
  PlotRange& range = ranges.rangeT;
  USERFLAG.TimeInData = range.text.empty() ? 0.0 : 1.0;
  if (!ReadRange(range, "rangeT", window)) return;
  if (IsOneCell(range)) {
    const RangeNumbers& main = ranges.rangeXYZ.numbers;
    range.numbers.num2 = range.numbers.num1 + main.num2 - main.num1;
    range.numbers.Ncol2 = range.numbers.Ncol1;
    BringTextInStep(range);
  }
  FinishRange(range, ranges);
}

void ReadQuaternions(PlotRanges& ranges, LoaderWindow& window) {
  PlotRange& range = ranges.rangeQuater;
  if (!range.text.empty()) NbQuater = 1;
  if (!ReadRange(range, "rangeQuater", window)) return;
  const bool oneCell = IsOneCell(range);
  if (oneCell) {
    range.numbers.Ncol2 = range.numbers.Ncol1 + 3;
    range.numbers.num2 = range.numbers.num1;
  }
  FinishRange(range, ranges);
  if (oneCell) BringTextInStep(range);
  range.timeOfRangeT = range.numbers.Ncol2 == range.numbers.Ncol1 + 3;
}

// Two columns, a time and a value; or one, the value alone.
void ReadTimedValues(PlotRange& range, std::string_view name, PlotRanges& ranges, LoaderWindow& window) {
  if (!ReadRange(range, name, window)) return;
  if (IsOneCell(range)) {
    range.numbers.Ncol2 = range.numbers.Ncol1;
    range.numbers.num2 = range.numbers.num1;
  }
  range.timeOfRangeT = range.numbers.Ncol2 == range.numbers.Ncol1;
  FinishRange(range, ranges);
}

// ---- the end of the analysis ------------------------------------------------------------------------------

bool HoldsXYZ(RangeNumbers& main) {
  main.Ncol2 = std::max(main.Ncol2, main.Ncol1);
  return main.Ncol2 >= main.Ncol1 + 2 || ColumnMode == 1;
}

void TellTooNarrow(const std::string& cellFormula) {
  CurrentDialogs().MessageBox(
      "Warning: an Excel sheet is already open without a correct specification for QuorbExcelPro:    " +
          cellFormula +
          "   . You should open only the one with a correct specification or you can write "
          "or use a previous specification in the scolling textbox",
      "Information", kBoxInformationIcon);
}

void Clamp(RangeNumbers& numbers, int widest) {
  numbers.num2 = std::max(numbers.num2, numbers.num1);
  numbers.Ncol2 = std::clamp(numbers.Ncol2, numbers.Ncol1, numbers.Ncol1 + widest);
}

void ClampAll(PlotRanges& ranges) {
  Clamp(ranges.rangeXYZ.numbers, 15);
  Clamp(ranges.rangeT.numbers, 3);
  Clamp(ranges.rangeEvents.numbers, 2);
  Clamp(ranges.rangeQuater.numbers, 4);
  Clamp(ranges.rangeSApY.numbers, 1);
  Clamp(ranges.rangeSAmY.numbers, 1);
  Clamp(ranges.rangeValZ.numbers, 1);
}

PlotRanges RangesOf(const SpecificationText& specification, const std::string& cellFormula) {
  PlotRanges ranges;
  ranges.cellFormula = cellFormula;
  ranges.rangeXYZ.text = specification.rangeXYZ;
  ranges.rangeT.text = specification.rangeT;
  ranges.rangeEvents.text = specification.rangeEvents;
  ranges.rangeQuater.text = specification.rangeQuater;
  ranges.rangeSApY.text = specification.rangeSApY;
  ranges.rangeSAmY.text = specification.rangeSAmY;
  ranges.rangeValZ.text = specification.rangeValZ;
  return ranges;
}

}  // namespace

RangesFound NcolumnsUpdated(const SpecificationText& specification, const std::string& cellFormula,
                            SheetCells& sheet, LoaderWindow& window, PlotRanges& ranges) {
  ranges = RangesOf(specification, cellFormula);
  ReadMainRange(ranges, sheet, window);
  SplitWideRange(ranges);
  ReadTimes(ranges, window);
  ReadTimedValues(ranges.rangeEvents, "rangeEvents", ranges, window);
  ReadQuaternions(ranges, window);
  ReadTimedValues(ranges.rangeSApY, "rangeSApY", ranges, window);
  ReadTimedValues(ranges.rangeSAmY, "rangeSAmY", ranges, window);
  ReadTimedValues(ranges.rangeValZ, "rangeValZ", ranges, window);

  ColumnMode = LowerText(specification.title).find("column") != std::string::npos ? 1 : 0;
  if (!HoldsXYZ(ranges.rangeXYZ.numbers)) {
    TellTooNarrow(ranges.cellFormula);
    return RangesFound::tooNarrow;
  }
  ClampAll(ranges);
  window.SetProgress(kBarAtRanges);
  ranges.scaleText = WithDecimalMark(FormatPicture(specification.scale, "#0.0000000000"));
  return RangesFound::good;
}

}  // namespace quorb
