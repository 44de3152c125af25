#include "TransferFile.h"

#include <cmath>

#include "Attitude.h"

namespace quorb {

namespace {

/// The event of a row of the event table: the burns in turn, a start then an end. Rows below are empty.
void AddEvent(RowText& text, const Flight& flight, std::size_t row) {
  const std::size_t burn = row / 2;
  if (burn >= flight.burns.size()) {
    text.Empty(2);
    return;
  }
  const bool start = row % 2 == 0;
  text.Number(start ? flight.burns[burn].start : flight.burns[burn].end).Text(start ? "S" : "E");
}

void AddAttitude(RowText& text, const FlightRow& row) {
  const BodyAxes axes = AxesAlong(row.burning ? VelocityToGain(row.state) : row.state.velocity, row.state);
  text.Number(row.day);
  for (const double component : QuaternionOf(axes))
    text.Number(component);
  const double angle = ArrayAngle(axes, SunDirection(row.day));
  text.Number(row.day).Number(angle);
  text.Number(row.day).Number(std::fmod(360 - angle, 360));  // this array turns about -Y
}

}  // namespace

ExampleTable TransferTable(const Flight& flight) {
  ExampleTable table;
  table.sheetName = "Transfer";
  table.title = "Satellite transfer to the geostationary ring kmday valz";
  table.scale = 0.01;
  table.terms = 7;
  table.eventRows = 2 * flight.burns.size();
  for (std::size_t i = 0; i < flight.rows.size(); ++i) {
    const FlightRow& row = flight.rows[i];
    RowText text;
    for (const double coordinate : row.state.position)
      text.Number(coordinate);
    text.Number(row.day);
    AddEvent(text, flight, i);
    AddAttitude(text, row);
    text.Number(row.day).Number(row.propellantFraction);
    table.rows.push_back(text.Line());
  }
  return table;
}

}  // namespace quorb
