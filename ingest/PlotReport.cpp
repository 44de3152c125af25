#include "PlotReport.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "CommExcl.h"
#include "PlotData.h"
#include "ReportLines.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {

namespace {

struct RowSpan {
  std::int64_t first = 0;
  std::int64_t last = -1;
};

template <int Columns>
std::string NumberRows(const NumberTable<Columns>& table, RowSpan span) {
  std::string report;
  for (std::int64_t row = span.first; row <= span.last; ++row) {
    for (int column = 0; column < Columns; ++column) {
      report += NumberCell(table[row][column]);
      report += column + 1 < Columns ? '\t' : '\n';
    }
  }
  return report;
}

std::string LabelRows(RowSpan span) {
  std::string report;
  for (std::int64_t row = span.first; row <= span.last; ++row) {
    report += dataPenUpLabel[row];
    report += '\n';
  }
  return report;
}

std::string EventLogRows(RowSpan span) {
  std::string report;
  for (std::int64_t row = span.first; row <= span.last; ++row) {
    report += NumberCell(dataEventLog.time[row][0]) + '\t';
    report += dataEventLog.text[row];
    report += '\n';
  }
  return report;
}

bool ReadWholeNumber(std::string_view text, std::int64_t& number) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end && number >= 0;
}

// Narrows the span to the rows wanted behind the colon; false when they are not two whole numbers.
bool NarrowSpan(std::string_view rows, RowSpan& span) {
  const std::size_t dash = rows.find('-');
  RowSpan wanted;
  if (dash == rows.npos || !ReadWholeNumber(rows.substr(0, dash), wanted.first) ||
      !ReadWholeNumber(rows.substr(dash + 1), wanted.last)) {
    return false;
  }
  span.first = std::max(span.first, wanted.first);
  span.last = std::min(span.last, wanted.last);
  return true;
}

struct ReportedArray {
  std::string_view name;
  double last;
  std::string (*rows)(RowSpan);
};

}  // namespace

std::string PlotReport() {
  ReportLines report;
  const SpecificationText& specification = LastLoad().specification;
  report.Text("Title", MessageUserToPlot);
  report.Text("Formula", LastFormula);
  report.Number("FactorScale", FactorScale);
  report.Number("LastPoint", LastPoint);
  report.Number("NbEvents", NbEvents);
  report.Number("NbQuater", NbQuater);
  report.Number("NbSApY", NbSApY);
  report.Number("NbSAmY", NbSAmY);
  report.Number("NbValZ", NbValZ);
  report.Number("ISOmode", ISOmode);
  report.Number("ColumnMode", ColumnMode);
  report.Number("PenUpMode", PenUpMode);
  report.Number("PenUpLabelMode", PenUpLabelMode);
  report.Number("ValColour", ValColour);
  report.Number("ValAxis", ValAxis);
  report.Number("MoonFocus", MoonFocus);
  report.Number("FocusBody", FocusBody);
  report.Number("EMSystem", EMSystem);
  report.Number("EMDistance", EMDistance);
  report.Number("QuaterScalarLast", QuaterScalarLast);
  report.Truth("InputInKm", InputInKm);
  report.Number("FlagOptionToPlot", FlagOptionToPlot);
  report.Number("TimeInData", USERFLAG.TimeInData);
  report.Number("NedInput", USERFLAG.NedInput);
  report.Number("EMView", USERFLAG.EMView);
  report.Number("LogoScale", USERFLAG.LogoScale);
  report.Number("ValZMin", ValZMin);
  report.Number("ValZMax", ValZMax);
  report.Number("TimeMin", TimeMin);
  report.Number("TimeMax", TimeMax);
  report.Text("rangeXYZ", specification.rangeXYZ);
  report.Text("rangeT", specification.rangeT);
  report.Text("rangeEvents", specification.rangeEvents);
  report.Text("rangeQuater", specification.rangeQuater);
  report.Text("rangeSApY", specification.rangeSApY);
  report.Text("rangeSAmY", specification.rangeSAmY);
  report.Text("rangeValZ", specification.rangeValZ);
  return report.Take();
}

std::optional<std::string> RowsReport(std::string_view wanted) {
  const double lastPoint = LastPoint;
  const ReportedArray arrays[] = {
      {"dataXYZT", lastPoint, [](RowSpan span) { return NumberRows(dataXYZT, span); }},
      {"dataEvents", NbEvents - 1.0, [](RowSpan span) { return NumberRows(dataEvents, span); }},
      {"dataEventLog", NbEvents - 1.0, EventLogRows},
      {"dataPenUpLabel", lastPoint, LabelRows},
      {"dataQuater", NbQuater - 1, [](RowSpan span) { return NumberRows(dataQuater, span); }},
      {"dataSApY", NbSApY - 1, [](RowSpan span) { return NumberRows(dataSApY, span); }},
      {"dataSAmY", NbSAmY - 1, [](RowSpan span) { return NumberRows(dataSAmY, span); }},
      {"dataValZ", NbValZ - 1, [](RowSpan span) { return NumberRows(dataValZ, span); }},
  };
  const std::size_t colon = wanted.find(':');
  const std::string_view name = wanted.substr(0, colon);
  for (const ReportedArray& array : arrays) {
    if (array.name != name) continue;
    RowSpan span{0, std::min(static_cast<std::int64_t>(array.last), std::int64_t{kRowBound} - 1)};
    if (colon != wanted.npos && !NarrowSpan(wanted.substr(colon + 1), span)) return std::nullopt;
    return array.rows(span);
  }
  return std::nullopt;
}

}  // namespace quorb
