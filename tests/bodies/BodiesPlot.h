#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "Bodies.h"
#include "SatelliteShape.h"
#include "ScenePlot.h"

namespace quorb {

/// A plot with a spacecraft whose arrays do not hunt, without local axes.
class BodiesPlot : public ScenePlot {
 protected:
  BodiesPlot() {
    Clear();
    bodies.Random = [] { return 0.5; };
  }
  ~BodiesPlot() override { Clear(); }

  static void Clear() {
    for (int row = 0; row < kRowsInTests; ++row) {
      for (int column = 0; column < 2; ++column) {
        dataSApY.Set(row, column, 0);
        dataSAmY.Set(row, column, 0);
      }
      dataEventLog.time.Set(row, 0, 0);
    }
    dataEventLog.text.Restart();
    ChooseShape(0);
    ShowSatAxes = 0;
    MoonFocus = 0;
    FocusBody = 4;
  }

  /// A plot without attitudes in which the model has the size 30: a body with the half widths 3.
  void TakeSizeThirty() {
    scene.Range = 64;
    FactorScale = 1000;
    USERFLAG.ShowSatellite = 1;
  }

  static void SetQuaternion(int row, double time, double w, double x, double y, double z) {
    const double cells[] = {time, w, x, y, z};
    for (int column = 0; column < 5; ++column)
      dataQuater.Set(row, column, cells[column]);
    NbQuater = std::max(NbQuater, row + 1.0);
  }

  /// A turn of 90 degrees about Z: it leads X to Y.
  static void SetQuarterTurn(int row, double time) {
    SetQuaternion(row, time, std::sqrt(0.5), 0, 0, std::sqrt(0.5));
  }

  static void SetPlusYAngle(int row, double time, double degrees) {
    dataSApY.Set(row, 0, time);
    dataSApY.Set(row, 1, degrees);
    NbSApY = std::max(NbSApY, row + 1.0);
  }

  static void SetMinusYAngle(int row, double time, double degrees) {
    dataSAmY.Set(row, 0, time);
    dataSAmY.Set(row, 1, degrees);
    NbSAmY = std::max(NbSAmY, row + 1.0);
  }

  /// The calls that draw the spacecraft at the current point.
  std::vector<std::string> Drawn() {
    ClearCalls();
    bodies.DrawSatellite();
    return RecordedCalls();
  }

  /// The spacecraft at the time of a point of its own.
  std::vector<std::string> DrawnAt(double time) {
    SetPoint(0, time, 0, 0, 0);
    return Drawn();
  }

  /// Those calls behind the body: its plume and its arrays.
  std::vector<std::string> DrawnBehindBody() {
    const std::vector<std::string> calls = Drawn();
    const auto body = std::find(calls.begin(), calls.end(), "glColor4f(0, 1, 1, 0.8)");
    return {body + 1 + kCallsOfBox, calls.end()};
  }

  /// The turns of the arrays, in order.
  std::vector<std::string> ArrayTurns() {
    std::vector<std::string> turns;
    for (const std::string& call : Drawn()) {
      if (call.starts_with("glRotatef")) turns.push_back(call);
    }
    return {turns.begin() + 1, turns.end()};
  }

  static constexpr int kCallsOfBox = 6 * 10;

  Bodies bodies{scene};
};

/// The calls of a box around the origin.
std::vector<std::string> CallsOfBox(double a, double b, double c);

/// One list behind the other.
std::vector<std::string> Joined(const std::vector<std::vector<std::string>>& lists);

}  // namespace quorb
