#pragma once

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

/// A standard view: the word that the camera takes, and the step of its walk.
struct WantedView {
  std::string mode;
  int step = 0;
};

/// A picture that is asked for.
struct RenderCall {
  std::string dataFile;
  std::string picture;
  int width = 1280;
  int height = 800;
  std::optional<int> row;          ///< last row that is drawn; the last of the plot when empty
  std::optional<WantedView> view;  ///< the view of a fresh plot when empty
  std::vector<OptionSetting> settings;
};

/// Takes the call from the command line. False with a sentence in `error` when something is wrong with it.
bool ReadRenderCall(const CommandLine& line, RenderCall& call, std::string& error);

/// Draws the picture with the viewer's own window logic, loader and scene, and writes it. False with a
/// sentence in `error` when the file gave no rows, or the picture could not be drawn or written.
bool Render(const RenderCall& call, std::string& error);

}  // namespace quorb
