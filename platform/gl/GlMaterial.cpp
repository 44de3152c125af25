#include "GlMaterial.h"

#include <GL/gl.h>

#include <algorithm>

namespace quorb {

namespace {

void SetColour(unsigned face, GLenum name, float red, float green, float blue, float alpha) {
  const GLfloat colour[4] = {red, green, blue, alpha};
  glMaterialfv(face, name, colour);
}

}  // namespace

void GlMaterial::SetFace(unsigned newFace) {
  face = newFace;
}

void GlMaterial::SetAmbient(float red, float green, float blue, float alpha) {
  SetColour(face, GL_AMBIENT, red, green, blue, alpha);
}

void GlMaterial::SetDiffuse(float red, float green, float blue, float alpha) {
  SetColour(face, GL_DIFFUSE, red, green, blue, alpha);
}

void GlMaterial::SetSpecular(float red, float green, float blue, float alpha) {
  SetColour(face, GL_SPECULAR, red, green, blue, alpha);
}

void GlMaterial::SetSpecExp(float exponent) {
  glMaterialf(face, GL_SHININESS, std::clamp(exponent, 0.0F, 128.0F));
}

}  // namespace quorb
