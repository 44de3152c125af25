#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "ClassInterface.h"

namespace quorb {

/// What a client outside the program may read of the plot on show.
struct PlotOnShow {
  std::string title;
  std::int32_t lastPoint = 0;  ///< Index of the last point.
  /// The count that the scene walks: behind pushed events one less than there are.
  std::int32_t nbEvents = 0;
  int flagOptionToPlot = 0;
  /// Plot units to a unit of the data: the factor that was given, and once the plot has been drawn times what
  /// brought it into the view.
  double factorScale = 1;
};
PlotOnShow PresentPlot();

/// True while the plot is not a client's to change: before the first load has begun, while a load is under
/// way (its message boxes included), while the spreadsheet is in use, and while a frame is drawn, which may
/// show a message too. A load that was left early, and one that waits for the user's specification, keep no
/// client out: what a client stores ends the wait.
bool PlotIsTaken();

/// What a call comes to that is refused for that reason.
InterfaceFault BusyFault();

/// The four members of the automation object as clients call them, each client with an object of its own, and
/// the plot shown anew behind what they store. No frame is drawn here: the animation asks for it, as always;
/// with the animation off the host is asked for one. The watcher of the sheet stands still meanwhile.
///
/// A call is judged when it is taken up: one that was sent while the program let no events through, as in the
/// middle of a load of a file, comes behind that. A call while PlotIsTaken(), or while another call shows its
/// message, is the failure kFaultBusy and changes nothing. Main thread only; to be used from Form_Load on.
class AutomationCalls {
 public:
  InterfaceFault InterFaceXls(const std::string& client, const std::string& message, int flag);

  /// Points: they are scaled into the view as those of a load, the camera and the time stay. They make one
  /// line, which ends a plot of separate objects and one of a single column; the scale chooses as for a load
  /// whether Earth and Moon are shown.
  InterfaceFault GlrayonXls(const std::string& client, std::string_view str, double factor);

  /// Times: the plot has times from here on.
  InterfaceFault GlrayonXlsT(const std::string& client, std::string_view str, double factor);

  /// Events. FactorScale stays that of the points, which may be scaled into the view already.
  InterfaceFault GlEventsXls(const std::string& client, std::string_view str, double factor);

  /// The client has gone: so does its object, with what it has staged.
  void Forget(const std::string& client) { objects_.erase(client); }
  std::size_t Clients() const { return objects_.size(); }

  /// True while the four members are refused.
  bool Busy() const { return answering_ || PlotIsTaken(); }

 private:
  InterfaceFault Answer(const std::string& client, const std::function<InterfaceFault(ClassInterface&)>& call,
                        const std::function<void(const InterfaceFault&)>& show);

  std::map<std::string, std::shared_ptr<ClassInterface>> objects_;
  bool answering_ = false;
  int loadOfOneLine_ = -1;  ///< The load whose separate objects were made one line.
};

}  // namespace quorb
