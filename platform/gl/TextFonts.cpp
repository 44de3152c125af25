#include "TextFonts.h"

#include <FTGL/ftgl.h>
#include <GL/gl.h>

#include <cmath>
#include <cstddef>
#include <iostream>

#include "FontFiles.h"
#include "PrintableText.h"

// The header of OpenGL 1.1 that some systems ship ends before this name.
#ifndef GL_MULTISAMPLE
#define GL_MULTISAMPLE 0x809D
#endif

namespace quorb {

namespace {

/// Letter size at which the outlines are taken; the matrix scales them to the size asked for.
constexpr unsigned kOutlineSize = 64;
constexpr double kPixelsPerPoint = 96.0 / 72.0;

constexpr GLbitfield kTouchedState = GL_CURRENT_BIT | GL_ENABLE_BIT | GL_LIGHTING_BIT | GL_POLYGON_BIT |
                                     GL_TEXTURE_BIT | GL_COLOR_BUFFER_BIT | GL_PIXEL_MODE_BIT |
                                     GL_TRANSFORM_BIT;

/// Saves the state that drawing text touches and takes it back at the end of the scope.
class SavedState {
 public:
  SavedState() {
    glPushAttrib(kTouchedState);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &texture);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
  }
  ~SavedState() {
    glPopMatrix();
    glPopClientAttrib();
    glPopAttrib();
    // Some drivers keep the first texture that was ever bound, in spite of the saved state.
    glBindTexture(GL_TEXTURE_2D, static_cast<GLuint>(texture));
  }
  SavedState(const SavedState&) = delete;
  SavedState& operator=(const SavedState&) = delete;

 private:
  GLint texture = 0;
};

/// OpenGL answers no question between glBegin and glEnd, and has a matrix mode everywhere else.
bool IsBetweenBeginAndEnd() {
  GLint mode = 0;
  glGetIntegerv(GL_MATRIX_MODE, &mode);
  return mode == 0;
}

void SetPlainColour(int colour) {
  const auto bits = static_cast<unsigned>(colour);
  glDisable(GL_LIGHTING);
  glDisable(GL_TEXTURE_2D);
  glColor4ub(static_cast<GLubyte>((bits >> 16U) & 0xFFU), static_cast<GLubyte>((bits >> 8U) & 0xFFU),
             static_cast<GLubyte>(bits & 0xFFU), 255);
}

/// Matrices that count pixels of the viewport, at the depth of a place in the window.
void CountPixels(const GLdouble (&place)[4]) {
  GLint viewport[4] = {};
  glGetIntegerv(GL_VIEWPORT, viewport);
  glMatrixMode(GL_PROJECTION);
  glPushMatrix();
  glLoadIdentity();
  glOrtho(viewport[0], viewport[0] + viewport[2], viewport[1], viewport[1] + viewport[3], -1.0, 1.0);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  glTranslated(std::round(place[0]), std::round(place[1]), 1.0 - 2.0 * place[2]);
}

void RenderText(FTFont& face, const std::string& text) {
  const std::u32string characters = PrintableText(text);
  const std::wstring wide(characters.begin(), characters.end());
  face.Render(wide.c_str());
}

}  // namespace

TextFonts::TextFonts() = default;
TextFonts::~TextFonts() = default;

void TextFonts::NewOutlineFont(int /*deviceHandle*/, int& handle, const std::string& face, bool bold,
                               bool italic, double extrusion) {
  handle = HandleOf({face, bold, italic, Kind::outline, static_cast<int>(kOutlineSize), extrusion});
}

void TextFonts::NewBitmapFont(int /*deviceHandle*/, int& handle, const std::string& face, bool bold,
                              bool italic, int size) {
  handle = HandleOf({face, bold, italic, Kind::bitmap, size, 0.0});
}

int TextFonts::HandleOf(const Request& request) {
  const auto asked = requests.find(request);
  if (asked != requests.end()) return asked->second;
  const auto& [face, bold, italic, kind, size, extrusion] = request;
  const int handle = HandleOfFile({FindFontFile(face, bold, italic), kind, size, extrusion}, face);
  requests.emplace(request, handle);
  return handle;
}

int TextFonts::HandleOfFile(const Key& key, const std::string& face) {
  const auto known = handles.find(key);
  if (known != handles.end()) return known->second;

  Font font{std::get<Kind>(key), Load(key)};
  if (!font.face) std::cerr << "No font can be loaded for \"" << face << "\": its texts are not shown.\n";
  fonts.push_back(std::move(font));
  const int handle = static_cast<int>(fonts.size());
  handles.emplace(key, handle);
  return handle;
}

std::unique_ptr<FTFont> TextFonts::Load(const Key& key) const {
  const auto& [file, kind, size, extrusion] = key;
  if (file.empty() || size <= 0) return nullptr;

  std::unique_ptr<FTFont> face;
  unsigned pixels = kOutlineSize;
  if (kind == Kind::outline) {
    face = std::make_unique<FTExtrudeFont>(file.c_str());
  } else {
    face = std::make_unique<FTTextureFont>(file.c_str());
    pixels = static_cast<unsigned>(std::lround(size * kPixelsPerPoint * pixelRatio));
  }
  if (face->Error() != 0 || !face->FaceSize(pixels)) return nullptr;
  if (kind == Kind::outline) face->Depth(static_cast<float>(extrusion * kOutlineSize));
  return face;
}

FTFont* TextFonts::Face(int font, Kind kind) const {
  if (font < 1 || static_cast<std::size_t>(font) > fonts.size()) return nullptr;
  const Font& found = fonts[static_cast<std::size_t>(font) - 1];
  return found.kind == kind ? found.face.get() : nullptr;
}

void TextFonts::Draw3D(int font, const std::string& text, double x, double y, double z, double size,
                       int colour) {
  FTFont* face = Face(font, Kind::outline);
  if (face == nullptr) return;
  if (IsBetweenBeginAndEnd()) {
    keptTexts.push_back({font, text, x, y, z, size, colour});
    return;
  }
  const SavedState saved;
  SetPlainColour(colour);
  if (antialiasing) glEnable(GL_MULTISAMPLE);
  glDisable(GL_CULL_FACE);
  glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
  glTranslated(x, y, z);
  const double scale = size / kOutlineSize;
  glScaled(scale, scale, scale);
  RenderText(*face, text);
}

void TextFonts::DrawBitmap(int font, const std::string& text, double x, double y, double z, int colour) {
  FTFont* face = Face(font, Kind::bitmap);
  if (face == nullptr) return;
  if (IsBetweenBeginAndEnd()) {
    keptTexts.push_back({font, text, x, y, z, 0.0, colour});
    return;
  }
  const SavedState saved;
  SetPlainColour(colour);
  glRasterPos3d(x, y, z);
  GLboolean visible = GL_FALSE;
  glGetBooleanv(GL_CURRENT_RASTER_POSITION_VALID, &visible);
  if (visible == GL_FALSE) return;
  GLdouble place[4] = {};
  glGetDoublev(GL_CURRENT_RASTER_POSITION, place);
  glDisable(GL_CULL_FACE);
  CountPixels(place);
  RenderText(*face, text);
  glMatrixMode(GL_PROJECTION);
  glPopMatrix();
  glMatrixMode(GL_MODELVIEW);
}

void TextFonts::DrawKeptTexts() {
  std::vector<KeptText> texts;
  texts.swap(keptTexts);
  for (const KeptText& kept : texts) {
    Draw3D(kept.font, kept.text, kept.x, kept.y, kept.z, kept.size, kept.colour);
    DrawBitmap(kept.font, kept.text, kept.x, kept.y, kept.z, kept.colour);
  }
  texts.clear();
  if (keptTexts.empty()) keptTexts.swap(texts);
}

void TextFonts::Release() {
  for (Font& font : fonts)
    font.face.reset();
  handles.clear();
  requests.clear();
}

double TextFonts::Ascender(int font) const {
  const FTFont* face = Face(font, Kind::bitmap);
  return face == nullptr ? 0.0 : static_cast<double>(face->Ascender());
}

}  // namespace quorb
