#pragma once

#include <array>

#include "glCtl.h"

namespace quorb {

/// One light of a host as plain numbers; the host hands them to OpenGL at the head of a frame, behind the
/// view matrix.
class LightValues : public HostLight {
 public:
  using Colour = std::array<float, 4>;

  void SetAmbient(float red, float green, float blue, float alpha) override {
    ambient = {red, green, blue, alpha};
  }
  void SetDiffuse(float red, float green, float blue, float alpha) override {
    diffuse = {red, green, blue, alpha};
  }
  void SetSpecular(float red, float green, float blue, float alpha) override {
    specular = {red, green, blue, alpha};
  }
  void SetPosition(float x, float y, float z) override { position = {x, y, z, 1.0F}; }
  void SetEnabled(bool on) override { enabled = on; }

  Colour ambient{0.0F, 0.0F, 0.0F, 1.0F};
  Colour diffuse{1.0F, 1.0F, 1.0F, 1.0F};
  Colour specular{1.0F, 1.0F, 1.0F, 1.0F};
  /// Homogeneous: the last one is 1, a place in the scene.
  std::array<float, 4> position{0.0F, 0.0F, 1.0F, 1.0F};
  bool enabled = false;
};

}  // namespace quorb
