#pragma once

#include <vector>

namespace quorb {

/// What a frame shows besides the plot, in the order of the frame. The matrix of the plot stands; the scene
/// saves it around each drawing but the light's.
class SceneBodies {
 public:
  virtual ~SceneBodies() = default;
  SceneBodies() = default;
  SceneBodies(const SceneBodies&) = delete;
  SceneBodies& operator=(const SceneBodies&) = delete;

  /// At the head of the frame: takes its time, and has pictures loaded anew when the option panel was closed.
  virtual void Start() = 0;
  virtual void DrawSunRay() = 0;
  virtual void DrawSatellite() = 0;
  /// Places the light of the scene, in every frame.
  virtual void SunAndLight() = 0;
  virtual void DrawCentralBody() = 0;
  virtual void DrawMoon() = 0;

  /// Adds what the bodies are drawn from to the numbers that tell two frames apart.
  virtual void AddToKey(std::vector<double>& numbers) const = 0;
};

}  // namespace quorb
