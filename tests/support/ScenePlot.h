#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "ClassGl.h"
#include "Clock.h"
#include "GlRecorder.h"
#include "Movie.h"
#include "PlotData.h"
#include "RecordingHost.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {

using testing::ElementsAre;
using testing::IsEmpty;

/// A small plot in the process-wide arrays, digested or not, and a scene over a recording host.
class ScenePlot : public testing::Test {
 protected:
  ScenePlot() {
    ClearPlot();
    ClearCalls();
  }
  ~ScenePlot() override { ClearPlot(); }

  static constexpr int kRowsInTests = 64;

  static void ClearPlot() {
    for (int row = 0; row < kRowsInTests; ++row) {
      for (int column = 0; column < 5; ++column) {
        dataXYZT.Set(row, column, 0);
        dataQuater.Set(row, column, 0);
      }
      for (int column = 0; column < 2; ++column) {
        dataEvents.Set(row, column, 0);
        dataValZ.Set(row, column, 0);
      }
    }
    dataPenUpLabel.Restart();
    LastPoint = 0;
    NbEvents = 0;
    NbQuater = NbSApY = NbSAmY = NbValZ = 0;
    ValZMax = ValZMin = TimeMax = TimeMin = 0;
    USERFLAG = UserFlagRecord{};
    USERFLAG.SynchroExcelComplete = 1.0;
    DEJARESET = DEJADRAW = 0;
    ISOmode = PenUpMode = PenUpLabelMode = PenUpLabelShow = ValColour = ValAxis = 0;
    FlagOptionToPlot = ColumnMode = LoadBusy = WatchStopped = 0;
    FactorScale = 1.0;
    TitlePrefix = " ";
    MessageUserToPlot.clear();
    ImportDirectory.clear();
    RedrawState = 0;
    STEPPT = 0;
    MovieDirectory.clear();
    MoviePrefix.clear();
    ForgetView();
  }

  static void SetPoint(int row, double time, double x, double y, double z, double pen = 0) {
    const double cells[] = {time, x, y, z, pen};
    for (int column = 0; column < 5; ++column)
      dataXYZT.Set(row, column, cells[column]);
    LastPoint = std::max(LastPoint, row);
  }

  /// A second point of a row of separate objects.
  static void SetSecondPoint(int row, double x, double y, double z, double pen = 0) {
    const double cells[] = {x, y, z, pen};
    for (int column = 0; column < 4; ++column)
      dataQuater.Set(row, column, cells[column]);
    NbQuater = std::max(NbQuater, row + 1.0);
  }

  static void SetEvent(int row, double time, double value) {
    dataEvents.Set(row, 0, time);
    dataEvents.Set(row, 1, value);
    NbEvents = std::max(NbEvents, row + 1);
  }

  static void SetValue(int row, double time, double value) {
    dataValZ.Set(row, 0, time);
    dataValZ.Set(row, 1, value);
    NbValZ = std::max(NbValZ, row + 1.0);
  }

  /// Tells the scene that the plot is digested: the frame draws the arrays as they stand, at the range 10.
  void TakePlotAsItIs() {
    DEJADRAW = 1;
    DEJARESET = 1;
    scene.Range = 10;
    scene.InvRange = 0.1;
    scene.CURRINDEXI = LastPoint;
  }

  /// The calls of one frame, without the look at the camera at its end, which draws nothing.
  std::vector<std::string> Frame() {
    ClearCalls();
    scene.Draw();
    std::vector<std::string> calls = RecordedCalls();
    while (!calls.empty() && calls.back().starts_with("Camera.Get"))
      calls.pop_back();
    return calls;
  }

  /// The calls of one frame from one call to another behind it, without the two; "not found" when they are
  /// not there.
  std::vector<std::string> FrameBetween(const std::string& from, const std::string& to) {
    const std::vector<std::string> frame = Frame();
    const auto open = std::find(frame.begin(), frame.end(), from);
    const auto close = std::find(open, frame.end(), to);
    if (close == frame.end()) return {"not found"};
    return {open + 1, close};
  }

  /// The calls of the trajectory's list, without the two colours at its head.
  std::vector<std::string> Trace() {
    std::vector<std::string> calls = FrameBetween("glNewList(0, GL_COMPILE)", "glEndList()");
    if (calls.size() > 1) calls.erase(calls.begin(), calls.begin() + 2);
    return calls;
  }

  /// The calls of the list of axes that one frame makes.
  std::vector<std::string> AxesList() {
    const std::vector<std::string> calls = FrameBetween("glGenLists(1)", "glEndList()");
    return {calls.begin() + 1, calls.end()};
  }

  RecordingHost host;
  ClassGl scene{host};
};

inline const char* const kNominalColour = "glColor4f(0, 0.99609375, 0, 0.6)";
inline const char* const kEventColour = "glColor4f(0.99609375, 0, 0, 0.6)";

/// How often a call stands in a list.
inline std::int64_t CountOf(const std::vector<std::string>& calls, const std::string& call) {
  return std::count(calls.begin(), calls.end(), call);
}

/// How many calls begin with a text.
inline std::int64_t CountBeginning(const std::vector<std::string>& calls, const std::string& text) {
  return std::count_if(calls.begin(), calls.end(),
                       [&](const std::string& call) { return call.starts_with(text); });
}

}  // namespace quorb
