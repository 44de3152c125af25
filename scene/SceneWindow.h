#pragma once

#include <string>

namespace quorb {

/// What the scene asks of the main window.
class SceneWindow {
 public:
  virtual ~SceneWindow() = default;

  /// State text of the check box of the cubic view: "REAL_ISO" asks for views from the corners of a cube.
  virtual std::string Check9Tag() const = 0;
  virtual void SetCheck9Tag(const std::string& tag) = 0;
};

/// The main window of this process. Until one is set, the tag is empty.
SceneWindow& CurrentSceneWindow();

/// Sets the main window; a null pointer takes it back. The caller keeps the ownership.
void SetSceneWindow(SceneWindow* window);

}  // namespace quorb
