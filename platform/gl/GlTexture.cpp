#include "GlTexture.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>

#include "JpegFile.h"

#ifndef GL_CLAMP_TO_EDGE
#define GL_CLAMP_TO_EDGE 0x812F
#endif

namespace quorb {

namespace {

/// OpenGL takes the bottom row first.
void TurnUpsideDown(PixelImage& image) {
  for (int y = 0; y < image.height / 2; ++y) {
    const auto upper = image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(0, y));
    const auto lower = image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(0, image.height - 1 - y));
    std::swap_ranges(upper, upper + 3 * static_cast<std::ptrdiff_t>(image.width), lower);
  }
}

bool SendPicture(const PixelImage& image) {
  glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
  glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
  const GLint failure = gluBuild2DMipmaps(GL_TEXTURE_2D, GL_RGB, image.width, image.height, GL_RGB,
                                          GL_UNSIGNED_BYTE, image.rgb.data());
  glPopClientAttrib();
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
  glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
  return failure == 0;
}

/// A dull white surface: light alone tints the picture.
void SetPictureMaterial() {
  constexpr GLfloat kWhite[] = {1, 1, 1, 1};
  constexpr GLfloat kDull[] = {0, 0, 0, 1};
  glDisable(GL_COLOR_MATERIAL);
  glMaterialfv(GL_FRONT, GL_AMBIENT_AND_DIFFUSE, kWhite);
  glMaterialfv(GL_FRONT, GL_SPECULAR, kDull);
  glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
}

}  // namespace

bool GlTexture::Load(const std::string& path, std::string& error) {
  hasPicture = false;
  source = path;
  PixelImage image;
  if (!ReadJpeg(path, image, error)) return false;
  TurnUpsideDown(image);
  if (name == 0) glGenTextures(1, &name);
  glBindTexture(GL_TEXTURE_2D, name);
  hasPicture = SendPicture(image);
  if (!hasPicture) error = "The picture " + path + " does not fit into the memory of the graphics.";
  return hasPicture;
}

void GlTexture::Bind() {
  std::string ignored;
  if (hasPicture && name == 0) Load(std::string(source), ignored);
  if (hasPicture) {
    glBindTexture(GL_TEXTURE_2D, name);
    SetPictureMaterial();
  } else {
    // The texture 0 has no picture, so that OpenGL draws as if there were no texture.
    glBindTexture(GL_TEXTURE_2D, 0);
    glEnable(GL_COLOR_MATERIAL);
  }
}

void GlTexture::Release() {
  if (name != 0) glDeleteTextures(1, &name);
  name = 0;
}

}  // namespace quorb
