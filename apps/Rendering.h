#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "CommandLine.h"

namespace quorb {

/// An option of USERFLAG that is set for the picture.
struct OptionSetting {
  std::string field;
  std::vector<double> numbers;  ///< one, or three for a colour
};

/// A view: a standard one by the word that the camera takes and the step of its walk, or with the word "from"
/// the one from a direction, with Z upward.
struct WantedView {
  std::string mode;
  int step = 0;
  /// Degrees: from X toward Y, and from the plane of X and Y toward Z.
  double azimuth = 0, elevation = 0;
};

/// A picture that is asked for.
struct RenderCall {
  std::string dataFile;
  std::string picture;
  int width = 1280;
  int height = 800;
  /// Last row that is drawn; when empty the plot's last one, in the first picture of a series its first one.
  std::optional<int> row;
  std::optional<WantedView> view;  ///< the view of a fresh plot when empty
  double zoom = 1;                 ///< how many times larger everything is shown
  /// The row whose point stands in the middle; when empty the middle of the axes does.
  std::optional<int> centre;
  std::vector<OptionSetting> settings;
  std::optional<int> frames;  ///< number of pictures of a series; a single picture when empty
  int every = 0;              ///< rows from one picture of a series to the next
  /// Takes the number of each picture of a series, from 1, when it is written.
  std::function<void(int)> written;
};

/// The name of a picture of a series: its number, from 1, stands in front of the ending.
std::string FrameName(const std::string& picture, int number);

/// Takes the call from the command line. False with a sentence in `error` when something is wrong with it.
bool ReadRenderCall(const CommandLine& line, RenderCall& call, std::string& error);

/// Draws the picture, or those of a series, with the viewer's own window logic, loader and scene, and writes
/// them. A series that reaches the plot's last row stays there. False with a sentence in `error` when the
/// file gave no rows, or a picture could not be drawn or written.
bool Render(const RenderCall& call, std::string& error);

}  // namespace quorb
