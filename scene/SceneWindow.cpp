#include "SceneWindow.h"

namespace quorb {

namespace {

class NoWindow : public SceneWindow {
 public:
  std::string Check9Tag() const override { return {}; }
  void SetCheck9Tag(const std::string&) override {}
};

NoWindow noWindow;
SceneWindow* currentWindow = &noWindow;

}  // namespace

SceneWindow& CurrentSceneWindow() {
  return *currentWindow;
}

void SetSceneWindow(SceneWindow* window) {
  currentWindow = window != nullptr ? window : &noWindow;
}

}  // namespace quorb
