#include "ClassInterface.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "Dialogs.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr std::size_t kMostCharacters = 65000;
constexpr std::size_t kCells = 4;
constexpr std::int32_t kPointRows = 64;
constexpr std::int32_t kEventRows = 4;
constexpr const char* kTimePicture = "#0.00000000000000000";

using Row = std::array<std::string, kCells>;

std::array<Row, kPointRows> XlsCells;
std::array<Row, kEventRows> XlsEventCells;

InterfaceFault Failure(int number, const std::string& what) {
  InterfaceFault fault;
  fault.number = number;
  fault.description = FaultText(number) + ": " + what;
  return fault;
}

InterfaceFault OutOfRange(const std::string& what) {
  return Failure(kFaultOutOfBounds, what);
}

InterfaceFault NoFiniteFactor() {
  return Failure(kFaultBadCall, "the factor is no finite number");
}

InterfaceFault Stored(double scaleBefore) {
  InterfaceFault done;
  done.stored = true;
  done.scaleBefore = scaleBefore;
  return done;
}

// ---- from the block to rows -------------------------------------------------------------------------------

bool BeginsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
}

std::size_t BehindCharacter(std::string_view text, std::size_t at) {
  if (at < text.size()) ++at;
  while (at < text.size() && !BeginsCharacter(text[at]))
    ++at;
  return at;
}

void TellOverflow(std::string_view text) {
  const auto characters = static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
  if (characters > kMostCharacters)
    CurrentDialogs().MessageBox("Overflow", "Some Data are to be lost", kBoxStopIcon);
}

std::vector<std::string_view> RowsOf(std::string_view text) {
  std::vector<std::string_view> rows;
  std::size_t from = 0;
  for (std::size_t end = text.find('\r'); end != std::string_view::npos; end = text.find('\r', from)) {
    rows.push_back(Trim(text.substr(from, end - from)));
    from = BehindCharacter(text, end + 1);
    if (BehindCharacter(text, from) >= text.size()) break;
  }
  return rows;
}

// False when the row has more cells than a table. A TAB that ends the row begins no cell.
bool ReadCells(std::string_view text, Row& row) {
  row = Row();
  for (std::string& cell : row) {
    const std::size_t tab = text.find('\t');
    cell = Trim(text.substr(0, tab));
    if (tab == std::string_view::npos) return true;
    text.remove_prefix(tab + 1);
    if (text.empty()) return true;
  }
  return false;
}

template <std::size_t Rows>
InterfaceFault Stage(std::string_view str, std::array<Row, Rows>& table, std::int32_t& staged) {
  TellOverflow(str);
  const std::vector<std::string_view> texts = RowsOf(str);
  const std::size_t first = static_cast<std::size_t>(staged);
  const std::size_t place = std::min(texts.size(), Rows - first);
  std::vector<Row> rows(place);
  for (std::size_t i = 0; i < place; ++i) {
    if (!ReadCells(texts[i], rows[i]))
      return OutOfRange("row " + std::to_string(first + i + 1) + " has more than 4 cells");
  }
  if (place < texts.size()) {
    return OutOfRange("row " + std::to_string(Rows + 1) + "; there are " + std::to_string(Rows) + " rows");
  }
  std::move(rows.begin(), rows.end(), table.begin() + staged);
  staged += static_cast<std::int32_t>(place);
  return {};
}

void StartAnewBehindCommit(std::int32_t& rows, bool& committed) {
  if (committed) rows = 0;
  committed = false;
}

// ---- from the rows to the plot ----------------------------------------------------------------------------

std::optional<double> PlainDecimal(const std::string& cell) {
  const std::size_t first = cell.starts_with('-') || cell.starts_with('+') ? 1 : 0;
  if (first == cell.size() || std::string_view("0123456789.").find(cell[first]) == std::string_view::npos)
    return std::nullopt;
  double number = 0;
  const char* const end = cell.data() + cell.size();
  const auto [stop, error] = std::from_chars(cell.data() + first, end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return PlainNumber(cell);
}

// A number with a decimal point means the same on every machine; any other form is read as the machine's.
double TimeOf(const std::string& cell) {
  const std::optional<double> plain = PlainDecimal(cell);
  std::string text = FormatPicture(plain ? *plain : ValText(cell), kTimePicture);
  std::replace(text.begin(), text.end(), ',', '.');
  return PlainNumber(text);
}

double EventOf(const std::string& cell) {
  if (cell.empty()) return 0;
  const char last = cell.back();
  if (last == 'S') return 1;
  if (last == 'E') return 0;
  return PlainNumber(std::string_view(&last, 1));
}

using Point = std::array<double, 3>;

std::vector<Point> PointsOf(std::int32_t rows, double factor) {
  std::vector<Point> points(static_cast<std::size_t>(rows));
  for (std::size_t i = 0; i < points.size(); ++i) {
    for (std::size_t c = 0; c < points[i].size(); ++c)
      points[i][c] = PlainNumber(XlsCells[i][c]) * factor;
  }
  return points;
}

// The scene squares the distance.
bool HasDistance(const Point& point) {
  return std::isfinite(point[0] * point[0] + point[1] * point[1] + point[2] * point[2]);
}

void StorePoints(const std::vector<Point>& points, double factor) {
  LastPoint = static_cast<std::int32_t>(points.size()) - 1;
  for (std::int32_t i = 0; i <= LastPoint; ++i) {
    const Point& point = points[static_cast<std::size_t>(i)];
    std::copy(point.begin(), point.end(), dataXYZT[i] + 1);
  }
  FactorScale = factor;
  PointsAreScaled = 0;
  ClearBehind(dataXYZT, std::int64_t{LastPoint} + 1, LastPoint);
}

void StoreTimes() {
  for (std::int32_t i = 1; i <= LastPoint + 1; ++i)
    dataXYZT.Set(i - 1, 0, TimeOf(XlsCells[static_cast<std::size_t>(i - 1)][0]));
}

void StoreEvents(std::int32_t rows, double factor) {
  NbEvents = rows;
  for (std::int32_t i = 1; i <= NbEvents; ++i) {
    const Row& row = XlsEventCells[static_cast<std::size_t>(i - 1)];
    dataEvents.Set(i - 1, 0, TimeOf(row[0]));
    dataEvents.Set(i - 1, 1, EventOf(row[1]));
  }
  --NbEvents;
  FactorScale = factor;
  ClearBehind(dataEvents, rows, NbEvents);
}

}  // namespace

void ClassInterface::InterFaceXls(const std::string& message, int flag) {
  MessageUserToPlot = message;
  FlagOptionToPlot = flag;
}

InterfaceFault ClassInterface::GlrayonXls(std::string_view str, double factor) {
  if (str.empty()) return {};
  if (!std::isfinite(factor)) return NoFiniteFactor();
  StartAnewBehindCommit(rowsXYZ, committedXYZ);
  const std::int32_t rowsBefore = rowsXYZ;
  InterfaceFault fault = Stage(str, XlsCells, rowsXYZ);
  if (!fault.Good() || factor == 0 || rowsXYZ == 0) return fault;
  const std::vector<Point> points = PointsOf(rowsXYZ, factor);
  const auto wrong = std::find_if_not(points.begin(), points.end(), HasDistance);
  if (wrong != points.end()) {
    rowsXYZ = rowsBefore;
    return Failure(kFaultOverflow, "row " + std::to_string(wrong - points.begin() + 1) + " times the factor");
  }
  const double scaleBefore = FactorScale;
  StorePoints(points, factor);
  committedXYZ = true;
  return Stored(scaleBefore);
}

InterfaceFault ClassInterface::GlrayonXlsT(std::string_view str, double factor) {
  if (str.empty()) return {};
  if (!std::isfinite(factor)) return NoFiniteFactor();
  StartAnewBehindCommit(rowsT, committedT);
  if (factor != 0 && LastPoint + 1 > kPointRows) {
    return OutOfRange("the plot has " + std::to_string(LastPoint + 1) + " points, times hold 64 rows");
  }
  InterfaceFault fault = Stage(str, XlsCells, rowsT);
  if (!fault.Good() || factor == 0 || rowsT == 0) return fault;
  StoreTimes();
  committedT = true;
  return Stored(FactorScale);
}

InterfaceFault ClassInterface::GlEventsXls(std::string_view str, double factor) {
  if (str.empty()) return {};
  if (!std::isfinite(factor)) return NoFiniteFactor();
  StartAnewBehindCommit(rowsEvents, committedEvents);
  InterfaceFault fault = Stage(str, XlsEventCells, rowsEvents);
  if (!fault.Good() || factor == 0 || rowsEvents == 0) return fault;
  const double scaleBefore = FactorScale;
  StoreEvents(rowsEvents, factor);
  committedEvents = true;
  return Stored(scaleBefore);
}

}  // namespace quorb
