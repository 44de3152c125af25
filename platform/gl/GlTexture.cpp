#include "GlTexture.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <string_view>

#include "JpegFile.h"

#ifndef GL_CLAMP_TO_EDGE
#define GL_CLAMP_TO_EDGE 0x812F
#endif
#ifndef GL_TEXTURE_MAX_ANISOTROPY_EXT
#define GL_TEXTURE_MAX_ANISOTROPY_EXT 0x84FE
#endif

namespace quorb {

namespace {

constexpr GLfloat kAnisotropy = 4;

/// OpenGL takes the bottom row first.
void TurnUpsideDown(PixelImage& image) {
  for (int y = 0; y < image.height / 2; ++y) {
    const auto upper = image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(0, y));
    const auto lower = image.rgb.begin() + static_cast<std::ptrdiff_t>(image.At(0, image.height - 1 - y));
    std::swap_ranges(upper, upper + 3 * static_cast<std::ptrdiff_t>(image.width), lower);
  }
}

/// Near a pole a pixel covers many columns of the picture but few rows: without this the picture smears
/// there.
void SharpenWherePossible() {
  const auto* const extensions = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
  const bool known =
      extensions != nullptr &&
      std::string_view(extensions).find("texture_filter_anisotropic") != std::string_view::npos;
  if (known) glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAX_ANISOTROPY_EXT, kAnisotropy);
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
  SharpenWherePossible();
  return failure == 0;
}

void SetDullSurface() {
  constexpr GLfloat kNoShine[] = {0, 0, 0, 1};
  glMaterialfv(GL_FRONT, GL_SPECULAR, kNoShine);
}

/// A dull white surface: light alone tints the picture.
void SetPictureMaterial() {
  constexpr GLfloat kWhite[] = {1, 1, 1, 1};
  glDisable(GL_COLOR_MATERIAL);
  glMaterialfv(GL_FRONT, GL_AMBIENT_AND_DIFFUSE, kWhite);
  SetDullSurface();
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
    SetDullSurface();
  }
}

void GlTexture::Release() {
  if (name != 0) glDeleteTextures(1, &name);
  name = 0;
}

}  // namespace quorb
