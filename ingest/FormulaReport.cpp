#include "FormulaReport.h"

#include <algorithm>

#include "FormulaHints.h"
#include "Keywords.h"
#include "PlotData.h"
#include "RunState.h"
#include "Specification.h"
#include "TextHelpers.h"
#include "UserFlag.h"

namespace quorb {

namespace {

class EmptySheet : public SheetCells {
 public:
  void ActivateSource() override {}
  std::string CellText(int, int) override { return {}; }
  double VersionNumber() override { return 0; }
};

std::string FirstLast(int first, int last) {
  return std::to_string(first) + "-" + std::to_string(last);
}

TitleKeywords RunKeywordPass(const std::string& title) {
  MessageUserToPlot = title;
  TitleKeywords keywords = StartKeywordPass();
  for (const auto stage : {KeywordStage::beforeRows, KeywordStage::colourValues,
                           KeywordStage::quaternionOrder, KeywordStage::centralBody}) {
    Extraction_information_mots_clef(stage, keywords);
  }
  EndKeywordPass();
  return keywords;
}

void ReportKeywords(const TitleKeywords& keywords, ReportLines& report) {
  report.Truth("TimeInSeconds", keywords.TimeInSeconds);
  report.Truth("LengthInMetres", keywords.LengthInMetres);
  report.Truth("InputInKm", InputInKm);
  report.Number("CircularShift", keywords.circularShift);
  report.Number("Exchange", keywords.exchange);
  report.Number("ColumnMode", ColumnMode);
  report.Number("PenUpMode", PenUpMode);
  report.Number("PenUpLabelMode", PenUpLabelMode);
  report.Number("ValColour", ValColour);
  report.Number("ValAxis", ValAxis);
  report.Number("LogoScale", USERFLAG.LogoScale);
  report.Number("QuaterScalarLast", QuaterScalarLast);
  report.Number("MoonFocus", MoonFocus);
  report.Number("FocusBody", FocusBody);
  report.Number("EMSystem", EMSystem);
  report.Number("NedInput", USERFLAG.NedInput);
  report.Number("NedLatitude", keywords.latitude);
  report.Number("NedLongitude", keywords.longitude);
  report.Number("NedDistance", keywords.distance);
  report.Number("TimeInData", USERFLAG.TimeInData);
}

// The columns of X, Y and Z, also where one range was given for all.
PlotRange OnlyXYZ(PlotRange range) {
  range.numbers.Ncol2 = std::min(range.numbers.Ncol2, range.numbers.Ncol1 + 2);
  return range;
}

void ReportRange(const std::string& name, const PlotRange& range, ReportLines& report) {
  const RangeNumbers& numbers = range.numbers;
  const bool given = !range.text.empty() && numbers.Ncol1 > 0 && numbers.num1 > 0;
  report.Text(name, range.text);
  report.Text(name + ".columns", given ? FirstLast(numbers.Ncol1, numbers.Ncol2) : "");
  report.Text(name + ".rows", given ? FirstLast(numbers.num1, numbers.num2) : "");
  report.Text(name + ".time", range.timeOfRangeT ? "rangeT" : "");
}

}  // namespace

void ReportRanges(const PlotRanges& ranges, ReportLines& report) {
  ReportRange("rangeXYZ", OnlyXYZ(ranges.rangeXYZ), report);
  ReportRange("rangeT", ranges.rangeT, report);
  ReportRange("rangeEvents", ranges.rangeEvents, report);
  ReportRange("rangeQuater", ranges.rangeQuater, report);
  ReportRange("rangeSApY", ranges.rangeSApY, report);
  ReportRange("rangeSAmY", ranges.rangeSAmY, report);
  ReportRange("rangeValZ", ranges.rangeValZ, report);
}

FormulaReport ReportFormula(const std::string& formula, LoaderWindow& window) {
  MainKeyword = Trim(window.MainKeywordText());
  const SpecificationText specification = Extraction_info(formula, "");
  EmptySheet sheet;
  PlotRanges ranges;
  FormulaReport result;
  const RangesFound found = NcolumnsUpdated(specification, formula, sheet, window, ranges);
  result.holdsXYZ =
      found == RangesFound::good && ranges.rangeXYZ.numbers.num1 > 0 && ranges.rangeXYZ.numbers.Ncol1 > 0;
  result.hints = FormulaHints(formula, specification);
  const TitleKeywords keywords = RunKeywordPass(specification.title);

  ReportLines report;
  report.Text("Formula", ranges.cellFormula);
  report.Text("MainKeyword", MainKeyword);
  report.Number("FactorScale", specification.scale);
  report.Text("TitleAsGiven", specification.title);
  report.Text("Title", MessageUserToPlot);
  ReportKeywords(keywords, report);
  ReportRanges(ranges, report);
  result.text = report.Take();
  return result;
}

}  // namespace quorb
