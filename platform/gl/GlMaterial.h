#pragma once

#include "glCtl.h"

namespace quorb {

/// A surface material that sets OpenGL's own at once, for the face chosen last; GL_FRONT before any choice.
/// Needs a current context.
class GlMaterial : public HostMaterial {
 public:
  void SetFace(unsigned newFace) override;
  void SetAmbient(float red, float green, float blue, float alpha) override;
  void SetDiffuse(float red, float green, float blue, float alpha) override;
  void SetSpecular(float red, float green, float blue, float alpha) override;
  void SetSpecExp(float exponent) override;

 private:
  unsigned face = 0x0404;  // GL_FRONT
};

}  // namespace quorb
