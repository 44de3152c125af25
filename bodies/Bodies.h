#pragma once

#include <functional>
#include <random>
#include <vector>

#include "BodyState.h"
#include "ClassGl.h"
#include "Planets.h"
#include "SceneBodies.h"

namespace quorb {

/// What a scene shows besides its plot: the spacecraft, the central body, the Moon, the light and the ray
/// toward the Sun. One for each scene, which has to outlive it.
class Bodies : public SceneBodies {
 public:
  explicit Bodies(ClassGl& owner) : scene(owner) {}
  ~Bodies() override { EndBodies(State); }

  void Start() override { StartBodies(scene, State); }
  void DrawSunRay() override { quorb::DrawSunRay(scene, State); }
  /// The spacecraft: a box whose size follows the scale of the plot, turned by the quaternion of the current
  /// time, with its local axes, its plume and its arrays. It is drawn unlit; lighting stays off behind it.
  void DrawSatellite() override;
  void SunAndLight() override { quorb::SunAndLight(State); }
  void DrawCentralBody() override { quorb::DrawCentralBody(scene, State); }
  void DrawMoon() override { quorb::DrawMoon(scene, State); }
  void AddToKey(std::vector<double>& numbers) const override;

  /// A pseudo-random number in 0 to 1 that the arrays hunt for the Sun with. The sequence is the same in
  /// every run; a caller that wants equal pictures gives its own.
  std::function<double()> Random = [this] {
    return static_cast<double>(generator() - generator.min()) / (generator.max() - generator.min());
  };
  /// Shows or hides the unit of length on the main window: it is on while the model would fill the plot.
  std::function<void(bool visible)> ShowText15;

  BodyState State;

 private:
  void SetMaterial();
  void FindRows();
  void TakePosition();
  void TakeSize();
  void DrawLocalAxes();

  ClassGl& scene;
  HostMaterial* material = nullptr;
  std::minstd_rand generator;
};

}  // namespace quorb
