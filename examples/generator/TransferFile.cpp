#include "TransferFile.h"

#include <cmath>

#include "Attitude.h"
#include "HeaderLine.h"
#include "NumberText.h"

namespace quorb {

namespace {

constexpr double kScale = 0.01;
constexpr const char* kTitle = "Transfer to the geostationary ring kmday valz";

std::string Formula(std::size_t rows, std::size_t events) {
  const std::string last = std::to_string(rows + 1);
  const std::string lastEvent = std::to_string(events + 1);
  return WithDecimalMark("= 0.01") + " + LEN(\"" + kTitle + "\") + MAX(A2:C" + last + ") + MAX(D2:D" + last +
         ") + MAX(E2:F" + lastEvent + ") + MAX(G2:K" + last + ") + MAX(L2:M" + last + ") + MAX(N2:O" + last +
         ") + MAX(P2:Q" + last + ")";
}

HeaderLineFields HeaderOf(const Flight& flight) {
  HeaderLineFields header;
  header.sourceName = "transfer.qbv";
  header.sheetName = "Transfer";
  header.formula = Formula(flight.rows.size(), 2 * flight.burns.size());
  header.scale = kScale;
  header.title = kTitle;
  header.written.tm_year = 2025 - 1900;
  header.written.tm_mon = 0;
  header.written.tm_mday = 1;
  return header;
}

void AppendField(std::string& text, double value) {
  text += '\t';
  AppendCellNumber(text, value);
}

/// The event of a row of the event table: the burns in turn, a start then an end. Rows below are empty.
void AppendEvent(std::string& text, const Flight& flight, std::size_t row) {
  const std::size_t burn = row / 2;
  if (burn >= flight.burns.size()) {
    text += "\t\t";
    return;
  }
  const bool start = row % 2 == 0;
  AppendField(text, start ? flight.burns[burn].start : flight.burns[burn].end);
  text += start ? "\tS" : "\tE";
}

void AppendAttitude(std::string& text, const FlightRow& row) {
  const BodyAxes axes = AxesAlong(row.burning ? VelocityToGain(row.state) : row.state.velocity, row.state);
  AppendField(text, row.day);
  for (const double component : QuaternionOf(axes))
    AppendField(text, component);
  const double angle = ArrayAngle(axes, SunDirection(row.day));
  AppendField(text, row.day);
  AppendField(text, angle);
  AppendField(text, row.day);
  AppendField(text, std::fmod(360 - angle, 360));  // this array turns about -Y
}

}  // namespace

std::string TransferFileText(const Flight& flight) {
  std::string text = DataFileHeaderLine(HeaderOf(flight));
  for (std::size_t i = 0; i < flight.rows.size(); ++i) {
    const FlightRow& row = flight.rows[i];
    AppendCellNumber(text, row.state.position[0]);
    AppendField(text, row.state.position[1]);
    AppendField(text, row.state.position[2]);
    AppendField(text, row.day);
    AppendEvent(text, flight, i);
    AppendAttitude(text, row);
    AppendField(text, row.day);
    AppendField(text, row.propellantFraction);
    text += "\r\n";
  }
  return text;
}

}  // namespace quorb
