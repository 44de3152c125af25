#include "GlHost.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <cstddef>
#include <utility>

// The header of OpenGL 1.1 that some systems ship ends before this name.
#ifndef GL_MULTISAMPLE
#define GL_MULTISAMPLE 0x809D
#endif

namespace quorb {

namespace {

constexpr std::size_t kListBatch = 256;
constexpr int kGridMeshes = 20;
constexpr int kLeftButton = 1, kRightButton = 2;
constexpr int kArrowPointer = 0, kOrbitPointer = 207;
/// A drag over the whole height of the view turns the scene by this.
constexpr double kDegreesOverTheView = 180;

void SetSwitch(GLenum name, bool on) {
  if (on) {
    glEnable(name);
  } else {
    glDisable(name);
  }
}

}  // namespace

GlHost::GlHost(std::function<void(bool)> applyAnimation) : animation(std::move(applyAnimation)) {}

HostLight& GlHost::Lights(int number) {
  if (number < 1 || number > kLightCount) return lightOfNoNumber;
  return lights[static_cast<std::size_t>(number) - 1];
}

HostMaterial& GlHost::Materials(int number) {
  return materials[static_cast<std::size_t>(std::clamp(number, 1, kMaterialCount)) - 1];
}

void GlHost::ReturnList(unsigned list) {
  if (list != 0) returnedLists.push_back(list);
}

void GlHost::SetMousePointer(int id, const std::string& /*icon*/) {
  mousePointer = id;
}

void GlHost::TrackballStart(int button, int x, int y) {
  const bool turns = (button == kLeftButton && mousePointer == kOrbitPointer) ||
                     (button == kRightButton && mousePointer == kArrowPointer);
  trackball = {turns, x, y};
}

void GlHost::TrackballMove(int x, int y) {
  if (!trackball.down) return;
  const double degreesPerPixel = kDegreesOverTheView / std::max(Height(), 1);
  camera.Yaw(static_cast<float>((trackball.x - x) * degreesPerPixel));
  camera.Pitch(static_cast<float>((trackball.y - y) * degreesPerPixel));
  trackball.x = x;
  trackball.y = y;
}

void GlHost::SetPixelRatio(double ratio) {
  pixelRatio = ratio;
  fonts.SetPixelRatio(ratio);
}

void GlHost::BeginFrame(int width, int height) {
  glViewport(0, 0, width, height);
  std::array<float, 4> colour{};
  glGetFloatv(GL_COLOR_CLEAR_VALUE, colour.data());
  std::copy_n(colour.begin(), clearedColour.size(), clearedColour.begin());
  glDepthMask(GL_TRUE);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);

  SetProjectionMatrix(width, height);
  SetViewMatrix();
  SetLights();
  SetSwitches();
}

void GlHost::SetProjectionMatrix(int width, int height) const {
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  if (camera.GetProjection() == 0) {
    const ClipRange clip = camera.PerspectiveClip();
    const double shape = static_cast<double>(std::max(width, 1)) / std::max(height, 1);
    gluPerspective(camera.PerspectiveField(), shape, clip.nearDistance, clip.farDistance);
    return;
  }
  const OrthoWindow window = WidenToShape(camera.Window(), width, height);
  const ClipRange clip = camera.OrthoClip();
  glOrtho(window.left, window.right, window.bottom, window.top, clip.nearDistance, clip.farDistance);
}

void GlHost::SetViewMatrix() const {
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
  const ViewLine line = camera.SafeViewLine();
  gluLookAt(line.eye[0], line.eye[1], line.eye[2], line.target[0], line.target[1], line.target[2], line.up[0],
            line.up[1], line.up[2]);
}

void GlHost::SetLights() const {
  for (std::size_t i = 0; i < lights.size(); ++i) {
    const auto name = static_cast<GLenum>(GL_LIGHT0 + i);
    const LightValues& light = lights[i];
    SetSwitch(name, light.enabled);
    if (!light.enabled) continue;
    glLightfv(name, GL_AMBIENT, light.ambient.data());
    glLightfv(name, GL_DIFFUSE, light.diffuse.data());
    glLightfv(name, GL_SPECULAR, light.specular.data());
    glLightfv(name, GL_POSITION, light.position.data());
  }
}

void GlHost::SetSwitches() const {
  SetSwitch(GL_DEPTH_TEST, depthTest);
  SetSwitch(GL_LIGHTING, false);
  SetSwitch(GL_TEXTURE_2D, false);
  SetSwitch(GL_COLOR_MATERIAL, false);
  // A line of many short pieces has gaps where its pieces miss the samples; without them it has none.
  SetSwitch(GL_MULTISAMPLE, false);

  glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void GlHost::EndFrame(int width, int height) {
  fonts.DrawKeptTexts();
  overlayTexts.Draw(fonts, width, height, pixelRatio, TextColourOver(clearedColour));
}

void GlHost::DeleteReturnedLists() {
  if (returnedLists.size() < kListBatch) return;
  for (const unsigned list : returnedLists)
    glDeleteLists(list, 1);
  returnedLists.clear();
}

void GlHost::ReleaseContext() {
  for (const unsigned list : returnedLists)
    glDeleteLists(list, 1);
  returnedLists.clear();
  for (GlTexture& texture : textures)
    texture.Release();
  fonts.Release();
}

void GlHost::DrawGrids() {
  glPushAttrib(GL_CURRENT_BIT | GL_ENABLE_BIT | GL_LINE_BIT);
  glDisable(GL_LIGHTING);
  glDisable(GL_TEXTURE_2D);
  glLineWidth(1.0F);
  glColor3f(0.5F, 0.5F, 0.5F);
  glBegin(GL_LINES);
  for (int i = 0; i <= kGridMeshes; ++i) {
    const double share = 2.0 * i / kGridMeshes - 1.0;
    glVertex3d(share * size[0], -size[1], 0.0);
    glVertex3d(share * size[0], size[1], 0.0);
    glVertex3d(-size[0], share * size[1], 0.0);
    glVertex3d(size[0], share * size[1], 0.0);
  }
  glEnd();
  glPopAttrib();
}

}  // namespace quorb
