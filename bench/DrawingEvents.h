#pragma once

#include <functional>

#include "ClassGl.h"
#include "HostEvents.h"

namespace quorb {

/// Host events that start a scene and draw what is set.
class DrawingEvents : public HostEvents {
 public:
  void Initialise() override { scene->init(); }
  void ContextReady() override { scene->InitGL(); }
  void Resize(int width, int height) override { scene->Reshape(width, height); }
  void Draw() override { draw(); }
  void Overlay() override {}

  ClassGl* scene = nullptr;
  std::function<void()> draw = [] {};
};

}  // namespace quorb
