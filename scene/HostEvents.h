#pragma once

namespace quorb {

/// What a host control tells its owner. A host runs Initialise, ContextReady and Resize once in this order
/// before the first frame, then Draw and Overlay for each frame, and Resize again behind every change of its
/// size.
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
};

}  // namespace quorb
