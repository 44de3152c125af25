#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorb {

/// What a host control tells its owner. A host runs Initialise, ContextReady and Resize once in this order
/// before the first frame, then Draw and Overlay for each frame, and Resize again behind every change of its
/// size. Of the events of mouse and keyboard an owner takes those that it needs. Buttons: 1 left, 2 right; a
/// move without one has 0. Shift masks: 1 shift, 2 control, 4 alt. Mouse positions are in pixels of the view
/// from its top left corner.
class HostEvents {
 public:
  virtual ~HostEvents() = default;

  /// Before the context exists: the place to choose its buffers.
  virtual void Initialise() = 0;

  /// The context is current for the first time.
  virtual void ContextReady() = 0;

  /// Size of the view in pixels.
  virtual void Resize(int width, int height) = 0;

  /// The view is cleared and the matrices stand: draws the scene.
  virtual void Draw() = 0;

  /// The scene is drawn: adds the texts over it.
  virtual void Overlay() = 0;

  /// A key by its code; the arrow keys are 37 to 40 (left, up, right, down), the page keys 33 and 34.
  virtual void KeyDown(int, int) {}
  /// A character; the arrow and page keys give none.
  virtual void KeyPress(const std::string&) {}

  virtual void MouseDown(int, int, double, double) {}
  virtual void MouseMove(int, int, double, double) {}
  virtual void MouseUp(int, int, double, double) {}
  virtual void DoubleClick() {}
  /// What stands under a pick, as OpenGL's selection buffer gives it.
  virtual void Pick(const std::vector<std::int32_t>&) {}
  /// Notches of the wheel, above 0 away from the user.
  virtual void Wheel(double) {}

  /// The animation clock, while the animation is on.
  virtual void AnimationTick() {}
};

}  // namespace quorb
