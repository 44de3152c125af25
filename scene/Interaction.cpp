#include "Interaction.h"

#include <GL/gl.h>

#include <cmath>
#include <limits>

#include "ClassGl.h"
#include "Mth.h"
#include "RunState.h"
#include "SceneColour.h"
#include "UserFlag.h"
#include "WholeNumber.h"

namespace quorb {

namespace {

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr double kPanGain = 0.0025;
constexpr double kWindowStep = 3;
constexpr float kZoomIn = 1.05F;
constexpr float kZoomOut = 0.95F;
constexpr int kFirstHoldingName = 10;
constexpr int kOwnIcon = 99;

bool StepsWindow(MouseMode mode) {
  return mode == MouseMode::zMinus || mode == MouseMode::zPlus;
}

int CursorOf(MouseMode mode) {
  switch (mode) {
    case MouseMode::move:
      return 210;
    case MouseMode::rotate:
      return 211;
    case MouseMode::arcRotate:
      return 203;
    case MouseMode::scale:
      return 212;
    case MouseMode::zoom:
      return 200;
    case MouseMode::dolly:
      return 202;
    case MouseMode::pan:
      return 201;
    case MouseMode::orbit:
      return 207;
    case MouseMode::pitch:
      return 204;
    case MouseMode::yaw:
      return 205;
    case MouseMode::roll:
      return 206;
    default:
      return 0;
  }
}

/// A place in the view from -1 to 1, upward and to the right.
struct NormalPlace {
  double x = 0, y = 0;
};

NormalPlace Normalised(const ClassGl& scene, double x, double y) {
  return {(2 * x / scene.ViewWidth - 1) * scene.MouseGain,
          (2 * (scene.ViewHeight - y) / scene.ViewHeight - 1) * scene.MouseGain};
}

void PanBy(ClassGl& scene, double x, double y) {
  double left = 0, right = 0, bottom = 0, top = 0;
  HostCamera& camera = scene.Host.Camera();
  camera.GetOrtho(left, right, bottom, top);
  const double size = std::sqrt(left * left + right * right + bottom * bottom + top * top);
  camera.Pan(static_cast<float>((x - scene.MouseLastX) * kPanGain * size),
             static_cast<float>(-(y - scene.MouseLastY) * kPanGain * size));
}

void ZoomBy(ClassGl& scene, double y) {
  if (y == scene.MouseLastY) return;
  ZoomStep(scene.Host.Camera(), y < scene.MouseLastY ? ZoomGain(scene) : -ZoomGain(scene));
}

void DollyBy(ClassGl& scene, double y) {
  if (y == scene.MouseLastY) return;
  const double share = scene.InvRange / 5;
  scene.Host.Camera().Dolly(static_cast<float>(y > scene.MouseLastY ? -share : share));
}

void RollBy(ClassGl& scene, const NormalPlace& place) {
  // The angle is in radians, and the camera takes it for degrees: so an event turns by 3 degrees at most.
  const float angle =
      Atan2s(static_cast<float>(place.x - scene.MouseNormX), static_cast<float>(place.y - scene.MouseNormY));
  scene.Host.Camera().Roll(place.x < 0 ? -angle : angle);
}

void DragLeft(ClassGl& scene, double x, double y, const NormalPlace& place) {
  switch (static_cast<MouseMode>(scene.EditState())) {
    case MouseMode::select:
    case MouseMode::pan:
    case MouseMode::frozenStart:
      return PanBy(scene, x, y);
    case MouseMode::zoom:
      return ZoomBy(scene, y);
    case MouseMode::dolly:
      return DollyBy(scene, y);
    case MouseMode::pitch:
      return scene.Host.Camera().Pitch(static_cast<float>(scene.MouseLastY - y));
    case MouseMode::yaw:
      return scene.Host.Camera().Yaw(static_cast<float>(scene.MouseLastX - x));
    case MouseMode::roll:
      return RollBy(scene, place);
    default:
      return;
  }
}

void DragRight(ClassGl& scene, double x, double y) {
  const auto mode = static_cast<MouseMode>(scene.EditState());
  if (mode == MouseMode::select) return;
  if (mode == MouseMode::zoom) {
    PanBy(scene, x, y);
  } else {
    ZoomBy(scene, y);
  }
}

/// The place that a drag works with is that of the event before.
void Drag(ClassGl& scene, int button, double x, double y) {
  if (scene.ViewWidth == 0 || scene.ViewHeight == 0) return;
  const NormalPlace place = Normalised(scene, scene.MouseLastX, scene.MouseLastY);
  const bool held = scene.PickDragging && scene.PickedName >= kFirstHoldingName;
  if (button == kRightButton) {
    DragRight(scene, x, y);
  } else if (!held) {
    DragLeft(scene, x, y, place);
  }
  scene.MouseNormX = place.x;
  scene.MouseNormY = place.y;
}

}  // namespace

double ZoomGain(const ClassGl& scene) {
  return ColumnMode == 1 ? scene.InvRange / 10 : scene.InvRange;
}

void ZoomStep(HostCamera& camera, double gain) {
  if (camera.GetProjection() == 0) return camera.Zoom(gain > 0 ? kZoomIn : kZoomOut);
  double left = 0, right = 0, bottom = 0, top = 0;
  camera.GetOrtho(left, right, bottom, top);
  const double width = right - left;
  const double height = top - bottom;
  left += width * gain;
  right -= width * gain;
  bottom += height * gain;
  top -= height * gain;
  if (right > left && top > bottom) camera.SetOrtho(left, right, bottom, top);
}

void ClassGl::EditState(int value) {
  if (OrthoHalfWidth == 0) OrthoHalfWidth = Range;
  EditStateValue = value;
  const auto mode = static_cast<MouseMode>(value);
  if (mode == MouseMode::zMinus) OrthoHalfWidth *= kWindowStep;
  if (mode == MouseMode::zPlus) OrthoHalfWidth /= kWindowStep;
  if (StepsWindow(mode)) {
    Host.Camera().SetOrtho(-OrthoHalfWidth, OrthoHalfWidth, -OrthoHalfWidth, OrthoHalfWidth);
  } else {
    SetCursor(CursorOf(mode));
  }
  if (mode == MouseMode::lightBack) ToggleWhiteBack();
}

void ClassGl::ToggleWhiteBack() {
  WhiteBack = 1 - WhiteBack;
  if (!Host.MakeCurrent()) return;
  if (WhiteBack == 1) {
    glClearColor(1, 1, 1, 0);
  } else {
    SetClearColour(USERFLAG.ColourBackground);
  }
  Host.DoneCurrent();
}

void ClassGl::SetCursor(int id, const std::string& icon) {
  const bool hostOwn = (id >= 200 && id <= 207) || (id >= 210 && id <= 212);
  const bool standard = id >= 0 && id <= 15;
  Host.SetMousePointer(hostOwn || standard || id == kOwnIcon ? id : 0, id == kOwnIcon ? icon : "");
}

void ClassGl::MouseDown(int button, int, double x, double y) {
  MouseGain = 1;
  AssignRounded(MouseLastX, x);
  AssignRounded(MouseLastY, y);
  if (button != kLeftButton) return;
  if (EditStateValue == static_cast<int>(MouseMode::select) && PickedName != 0) PickDragging = true;
  MouseDownX = MouseLastX;
  MouseDownY = MouseLastY;
  if (ViewWidth == 0 || ViewHeight == 0) return;
  const NormalPlace place = Normalised(*this, x, y);
  MouseNormX = place.x;
  MouseNormY = place.y;
}

void ClassGl::MouseMove(int button, int, double x, double y) {
  if (button == 0) return;
  if (button == kLeftButton || button == kRightButton) Drag(*this, button, x, y);
  AssignRounded(MouseLastX, x);
  AssignRounded(MouseLastY, y);
  Host.Redraw();
}

void ClassGl::MouseUp(int button, int, double, double) {
  if (button != 0) PickDragging = false;
}

void ClassGl::Pick(const std::vector<std::int32_t>& hits) {
  constexpr std::size_t kHead = 3;
  double best = std::numeric_limits<float>::max();
  PickedName = 0;
  std::size_t record = 0;
  while (record + kHead <= hits.size()) {
    const double depth = ulongToDouble(hits[record + 1]);
    const std::size_t names = record + kHead;
    const auto count = static_cast<std::size_t>(hits[record] > 0 ? hits[record] : 0);
    if (count > hits.size() - names) return;
    for (std::size_t i = names; i < names + count; ++i) {
      if (hits[i] == -1 || depth >= best) continue;
      best = depth;
      PickedName = hits[i];
    }
    record = names + count;
  }
}

}  // namespace quorb
